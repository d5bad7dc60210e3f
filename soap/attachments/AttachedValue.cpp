#include "soap/attachments/AttachedValue.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_Streamable.h>

namespace korva {

AttachedValue::AttachedValue() : m_view(const_cast<char*>(m_text.asCharStar()), 0) {}

AttachedValue::~AttachedValue() = default;

void* AttachedValue::valueFor(ObjectType type) {
    if (KORVASchemaTypesFactory::isBase64(type)) return &m_binary;
    return static_cast<ZELByteBuffer*>(&m_view);
}

std::size_t AttachedValue::setChildObject(const char*, void* obj, const ObjectType& type,
                                          std::size_t*) {
    if (KORVASchemaTypesFactory::isBase64(type))
        setBinary(*static_cast<const KORVAXSBase64Binary*>(obj));
    else
        setText(static_cast<const char*>(obj));
    return 0;
}

void AttachedValue::setText(const char* text) {
    if (!KORVA_CharStreamable::isCharStreamable(text)) {
        m_text.initialize(text, false);
        return;
    }
    const KORVA_CharStreamable other(text);
    if (other.getStreamable() != nullptr)
        m_text.initialize(*other.getStreamable(), false);
    else
        m_text.initialize(other.getData(), false);
}

void AttachedValue::setBinary(const KORVAXSBase64Binary& value) {
    if (value.streamable() != nullptr)
        m_binary.reference(*value.streamable());
    else
        m_binary.reference(value.pcount() != 0 ? value.str() : nullptr, value.pcount());
}

}  // namespace korva
