#include "messages/ParameterWalk.h"

#include "core/ExactClass.h"
#include "core/Fields.h"
#include "messages/MessageDescriptor.h"

#include <korva/KORVA_MessageObject.h>
#include <tarn/tarnsymbols1.h>

namespace korva {

ObjectType typeOf(const FieldDescriptor& parameter, const Record& record) {
    if (parameter.kind == FieldKind::Object)
        if (const auto* object = load<const KORVASchemaTypeI*>(record, parameter.offset))
            return object->getObjectType();
    return parameter.type;
}

ParameterWalk::ParameterWalk(KORVAMessageI& message)
    : m_message(message), m_record(nullptr), m_next(nullptr), m_end(nullptr), m_position(0) {
    if (const auto* const object = dynamic_cast<const KORVA_MessageObject*>(&message)) {
        const MessageDescriptor& descriptor = object->descriptor();
        if (isExactly(message, &descriptor)) {
            m_record = object->m_pPrivateData;
            m_next = descriptor.begin();
            m_end = descriptor.end();
            return;
        }
    }
    message.getChildObjectNames(m_names);
}

bool ParameterWalk::next(Child& parameter) {
    if (m_record != nullptr) {
        if (m_next == m_end) return false;
        const FieldDescriptor& field = *m_next++;
        parameter = {tarnsymbols1::getChar(field.crc), typeOf(field, *m_record),
                     readField(*m_record, field, false)};
        return true;
    }
    if (m_position == m_names.size()) return false;
    const char* const name = m_names[m_position++];
    parameter = {name, m_message.getChildType(name), m_message.getChildObject(name, false)};
    return true;
}

}  // namespace korva
