#include "core/ChildWalk.h"

#include "core/ExactClass.h"
#include "core/Fields.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <tarn/tarnsymbols1.h>

namespace korva {

ChildWalk::ChildWalk(const KORVASchemaTypeI& object, bool skipUnset)
    : ChildWalk(object, findType(object.getObjectType()), skipUnset) {}

ChildWalk::ChildWalk(const KORVASchemaTypeI& object, const TypeDescriptor* type, bool skipUnset)
    : m_object(const_cast<KORVASchemaTypeI*>(&object)),  // reading without forWrite changes nothing
      m_class(nullptr),
      m_isArray(false),
      m_isContent(false),
      m_skipUnset(skipUnset),
      m_childCount(0),
      m_position(0),
      m_field(nullptr),
      m_levelEnd(nullptr),
      m_level(nullptr) {
    const bool exact = isExactly(object, type);
    if (exact && type->fields != nullptr) {
        m_class = type->fields;
        m_childCount = std::size_t{m_class->inheritedFieldCount} + m_class->fieldCount;
        enterLevel();
    } else if (exact && type->elementType != KORVASchemaTypeI::e_Unknown) {
        m_isArray = true;
        m_childCount = object.getChildObjectCount();
    } else if (exact) {
        m_isContent = true;
        m_childCount = 1;
    } else {
        object.getChildObjectNames(m_names, true);
        m_childCount = m_names.size();
        m_isArray = KORVASchemaTypesFactory::isArrayType(object.getObjectType());
        if (m_isArray)
            m_names.clear();
        else
            m_isContent =
                m_childCount != 0 && m_names.front() != nullptr && *m_names.front() == '\0';
    }
}

void ChildWalk::enterLevel() {
    // From the root downwards: the next level is the one whose base was visited last.
    const ClassDescriptor* next = m_class;
    while (next->base != m_level)
        next = next->base;
    m_level = next;
    m_field = next->begin();
    m_levelEnd = next->end();
}

bool ChildWalk::nextField(Child& child) {
    const Record& record = *ClassDescriptor::recordOf(*m_object);
    for (;;) {
        while (m_field == m_levelEnd) {
            if (m_level == m_class) return false;
            enterLevel();
        }
        const FieldDescriptor& field = *m_field++;
        // Most fields of most objects are pointers that are not set.
        void* const value = types::isPointer(field.kind) ? load<void*>(record, field.offset)
                                                         : readField(record, field, false);
        if (value == nullptr && m_skipUnset) continue;
        child = {tarnsymbols1::getChar(field.crc), field.type, value};
        return true;
    }
}

bool ChildWalk::next(Child& child) {
    if (m_class != nullptr) return nextField(child);
    while (m_position != m_childCount) {
        const std::size_t position = m_position++;
        const char* const name = m_isArray         ? KORVAChildIndex::toName(position + 1)
                                 : m_names.empty() ? ""
                                                   : m_names[position];
        void* const value = m_object->getChildObject(name, false);
        child = {name, m_object->getChildType(name), value};
        if (value == nullptr && m_skipUnset && !m_isContent &&
            !KORVASchemaTypesFactory::isArrayType(child.type))
            continue;
        return true;
    }
    return false;
}

}  // namespace korva
