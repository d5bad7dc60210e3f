#include "korva/KORVASOAPMessageISerializer.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELUtCrc32.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using ObjectContext = KORVASOAPSerializer::ObjectContext;

constexpr std::uint32_t halyardHeader = ZELUtCrc32::crc32("halyardHeader");

ObjectContext makeContext(const void* object, KORVASchemaTypeI::ObjectType type, const char* name) {
    return {object, type, std::string(KORVAI18NRes::getChar(KORVAI18NRes::eBusPrefix)) + name};
}

}  // namespace

KORVASOAPMessageISerializer::KORVASOAPMessageISerializer()
    : m_writeNullElements(false), m_writeXmlDeclaration(true) {}

KORVASOAPMessageISerializer::~KORVASOAPMessageISerializer() = default;

void KORVASOAPMessageISerializer::setWriteXmlDeclaration(bool write) {
    m_writeXmlDeclaration = write;
}

void KORVASOAPMessageISerializer::setWriteNullElements(bool write) {
    m_writeNullElements = write;
}

void KORVASOAPMessageISerializer::serialize(KORVAPortTypeBinding& binding, KORVAMessageI& message,
                                            BRIMOutputStream& stream) {
    ZEL_TRY {
        const KORVAMessageI::MessageType type = message.getMessageType();
        const bool isReply = type == binding.getOutputMessage().getMessageType();
        if (!isReply && type != binding.getInputMessage().getMessageType()) {
            // clang-format off
            ZEL_ASSERT_NAMED(false, "The message to be serialized must be either the input or output message contained in the given binding object.");
            // clang-format on
        }

        ObjectContext header =
            makeContext(message.getHalyardHeader(nullptr), KORVASchemaTypeI::eKORVAHalyardHeader,
                        tarnsymbols1::getChar(halyardHeader));

        std::vector<const char*> names;
        message.getChildObjectNames(names);
        std::vector<ObjectContext> parameters;
        parameters.reserve(names.size());
        std::vector<ObjectContext*> bodyContexts;
        bodyContexts.reserve(names.size());
        for (const char* const name : names)
            bodyContexts.push_back(&parameters.emplace_back(makeContext(
                message.getChildObject(name, false), message.getChildType(name), name)));

        std::string operation = binding.getOperationName();
        if (!operation.empty() && isReply) operation += "Response";

        KORVASOAPSerializer serializer;
        serializer.setWriteNullElements(m_writeNullElements);
        serializer.setWriteXmlDeclaration(m_writeXmlDeclaration);
        serializer.serializeEnvelope({&header}, bodyContexts, operation.c_str(),
                                     binding.getOperationNamespace(), stream);
    }
    ZEL_CATCH("KORVASOAPMessageISerializer::serialize()");
}
