#include "korva/KORVA_MessageObject.h"

#include "core/Fields.h"
#include "core/Names.h"
#include "messages/MessageDescriptor.h"
#include "messages/ParameterWalk.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <cstring>

using korva::FieldDescriptor;
using korva::FieldKind;
using korva::MessageDescriptor;
using Factory = KORVASchemaTypesFactory;

namespace {

/// The parameter called `name`, or null. Parameters are few, and are tried in declared order.
const FieldDescriptor* findParameter(const MessageDescriptor& message, const char* name) {
    std::uint32_t crc = 0;
    if (tarnsymbols1::findCrc(name, crc)) {
        for (const FieldDescriptor& parameter : message)
            if (parameter.crc == crc) return &parameter;
        return nullptr;
    }
    for (const FieldDescriptor& parameter : message)
        if (std::strcmp(korva::word(parameter.crc), name) == 0) return &parameter;
    return nullptr;
}

}  // namespace

KORVA_MessageObject::~KORVA_MessageObject() {
    delete m_pPrivateData;
    m_pPrivateData = nullptr;
}

KORVAMessageI::MessageType KORVA_MessageObject::getMessageType() const {
    return descriptor().type;
}

const char* KORVA_MessageObject::getMessageName() const {
    return descriptor().name;
}

void KORVA_MessageObject::getChildObjectNames(std::vector<const char*>& names) const {
    ZEL_TRY {
        const MessageDescriptor& message = descriptor();
        names.reserve(names.size() + message.parameterCount);
        for (const FieldDescriptor& parameter : message)
            names.push_back(tarnsymbols1::getChar(parameter.crc));
    }
    ZEL_CATCH(nullptr);
}

void* KORVA_MessageObject::getChildObject(const char* name, bool forWrite) {
    ZEL_ASSERT(name);
    const FieldDescriptor* const parameter = findParameter(descriptor(), name);
    return parameter != nullptr ? korva::readField(*m_pPrivateData, *parameter, forWrite) : nullptr;
}

KORVAMessageI::ObjectType KORVA_MessageObject::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    const FieldDescriptor* const parameter = findParameter(descriptor(), name);
    if (parameter == nullptr) return KORVASchemaTypeI::e_Unknown;
    return korva::typeOf(*parameter, *m_pPrivateData);
}

void KORVA_MessageObject::setChildObject(const char* name, void* value, const ObjectType& type) {
    ZEL_ASSERT(name);
    if (*name == '\0') return;
    const MessageDescriptor& message = descriptor();
    const FieldDescriptor* const parameter = findParameter(message, name);
    if (parameter == nullptr) return;

    const auto refuse = [&] {
        Factory::typeError(message.name, korva::word(parameter->crc), parameter->type, type);
    };
    switch (parameter->kind) {
        case FieldKind::Object:
            if (!Factory::isGeneratedType(type)) refuse();
            if (value != nullptr && !static_cast<KORVASchemaTypeI*>(value)->isa(parameter->type))
                refuse();
            korva::store(*m_pPrivateData, parameter->offset, value);
            break;
        case FieldKind::Text: {
            const char* text = nullptr;
            if (value != nullptr) {
                // A streamed text never stands in for a parameter.
                if (!Factory::isString(type) || type == KORVASchemaTypeI::eCharStreamable) refuse();
                text = static_cast<const ZELByteBuffer*>(value)->str();
            }
            korva::store(*m_pPrivateData, parameter->offset, text);
            break;
        }
        case FieldKind::Binary:
            if (value != nullptr && !Factory::isBase64(type)) refuse();
            korva::store(*m_pPrivateData, parameter->offset, value);
            break;
        default:
            if (value == nullptr)
                korva::clearValue(*m_pPrivateData, *parameter);
            else if (!korva::storeValue(*m_pPrivateData, *parameter, value, type))
                refuse();
            break;
    }
}
