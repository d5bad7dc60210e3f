#include "korva/KORVASOAPMessageISerializer.h"

#include "messages/ParameterWalk.h"
#include "soap/write/MessageEnvelope.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

namespace {

constexpr korva::ElementName header = {korva::ElementName::Child, "halyardHeader"};

}  // namespace

KORVASOAPMessageISerializer::KORVASOAPMessageISerializer()
    : m_writeNullElements(false), m_writeXmlDeclaration(true), m_replaceInvalidText(false) {}

KORVASOAPMessageISerializer::~KORVASOAPMessageISerializer() = default;

void KORVASOAPMessageISerializer::setWriteXmlDeclaration(bool write) {
    m_writeXmlDeclaration = write;
}

void KORVASOAPMessageISerializer::setWriteNullElements(bool write) {
    m_writeNullElements = write;
}

void KORVASOAPMessageISerializer::setReplaceInvalidText(bool replace) {
    m_replaceInvalidText = replace;
}

void KORVASOAPMessageISerializer::serialize(KORVAPortTypeBinding& binding, KORVAMessageI& message,
                                            BRIMOutputStream& stream) {
    ZEL_TRY {
        const KORVAMessageI::MessageType type = message.getMessageType();
        const bool isReply = type == binding.getOutputMessage().getMessageType();
        if (!isReply && type != binding.getInputMessage().getMessageType()) {
            ZEL_ASSERT_NAMED(false, "The message to be serialized must be either the input or output message contained in the given binding object.");
        }

        const korva::OperationElement operation(
            binding.getOperationName(), isReply ? "Response" : "", binding.getOperationNamespace());
        korva::writeEnvelope(
            stream, {{m_writeNullElements, m_replaceInvalidText}, m_writeXmlDeclaration}, operation,
            [&](korva::ObjectWriter& writer) {
                korva::writeHeaderEntry(writer, message.getHalyardHeader(nullptr),
                                        KORVASchemaTypeI::eKORVAHalyardHeader, header);
            },
            [&](korva::ObjectWriter& writer) {
                korva::ParameterWalk walk(message);
                const auto form =
                    walk.isDescribed() ? korva::ElementName::Child : korva::ElementName::GivenChild;
                for (korva::Child parameter; walk.next(parameter);)
                    korva::writeParameter(writer, parameter.value, parameter.type,
                                          {form, parameter.name});
            });
    }
    ZEL_CATCH("KORVASOAPMessageISerializer::serialize()");
}
