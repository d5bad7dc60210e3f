#include "tarn/TextObject.h"

#include "tarn/Slot.h"
#include "tarn/TypeErrors.h"
#include "tarn/TypeTable.h"

#include <tarn/TARNSchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

namespace tarn {

TextObject::~TextObject() = default;

TARNSchemaTypeI::ObjectType TextObject::getObjectType() const {
    return static_cast<ObjectType>(m_type.identity);
}

std::size_t TextObject::setChildObject(const char* name, void* value, const ObjectType& type,
                                       std::size_t*) {
    ZEL_ASSERT(name);
    ZEL_ASSERT(value != NULL);
    if (!TARNSchemaTypesFactory::isString(type)) childDoesNotFit(m_type, name, eString, type);
    m_text = textOf(value, type);
    return 0;
}

void* TextObject::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    return m_text;
}

TARNSchemaTypeI::ObjectType TextObject::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    return eString;
}

void TextObject::getChildObjectNames(std::vector<const char*>& names, bool includeNull) const {
    ZEL_TRY {
        if (includeNull || m_text != nullptr) names.push_back("");
    }
    ZEL_CATCH(nullptr);
}

bool TextObject::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t TextObject::getChildObjectCount() const {
    return 1;
}

}  // namespace tarn
