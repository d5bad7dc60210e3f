#include "core/PathRoot.h"

#include "core/ArrayAccess.h"
#include "core/ExactClass.h"
#include "core/Fields.h"
#include "core/Names.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_ClassObject.h>

namespace korva {

using Factory = KORVASchemaTypesFactory;

std::optional<KORVA_Child> PathRoot::find(const KORVA_Path::Step& step) const {
    if (step.kind != KORVA_Path::StepKind::Name) return std::nullopt;
    for (const KORVA_Child& child : children())
        if (child.name() == step.name) return child;
    return std::nullopt;
}

ObjectRoot::ObjectRoot(const KORVASchemaTypeI& object)
    : m_object(const_cast<KORVASchemaTypeI*>(&object)),  // changed by store and clear only
      m_isArray(dynamic_cast<const KORVASchemaTypeArrayI*>(&object) != nullptr) {}

KORVA_Children ObjectRoot::children() const {
    return KORVA_Children(*m_object);
}

std::optional<KORVA_Child> ObjectRoot::find(const KORVA_Path::Step& step) const {
    if (!m_isArray) return PathRoot::find(step);
    if (step.kind != KORVA_Path::StepKind::Index || step.index >= m_object->getChildObjectCount())
        return std::nullopt;
    const char* const name = KORVAChildIndex::toName(step.index + 1);
    return KORVA_Child(step.index, m_object->getChildType(name),
                       m_object->getChildObject(name, false));
}

std::optional<KORVA_Child> ObjectRoot::newElement() const {
    if (!m_isArray) return std::nullopt;
    const std::size_t count = m_object->getChildObjectCount();
    return KORVA_Child(count, m_object->getChildType(KORVAChildIndex::toName(count + 1)), nullptr);
}

const char* ObjectRoot::className() const {
    return m_object->generatedObjectName();
}

void ObjectRoot::store(const KORVA_Child& child, void* value, ObjectType type) {
    if (!m_isArray) {
        m_object->setChildObject(child.name().c_str(), value, type, nullptr);
        return;
    }
    std::size_t position = child.index() + 1;
    const bool isNew = child.index() == m_object->getChildObjectCount();
    m_object->setChildObject("item", value, type, isNew ? nullptr : &position);
}

bool ObjectRoot::clear(const KORVA_Child& child) {
    if (m_isArray) {
        auto* const array = dynamic_cast<KORVA_ArrayObject*>(m_object);
        const bool isPointer = child.isObject() || child.isText();
        if (array == nullptr || !isPointer || child.index() >= array->size()) return false;
        ArrayAccess::setSlot(*array, child.index(), nullptr);
        return true;
    }
    const TypeDescriptor* const type = findType(m_object->getObjectType());
    if (!isExactly(*m_object, type) || type->fields == nullptr) return false;
    const FieldDescriptor* const field =
        findField(*type->fields, nameCrc(child.name().c_str())).field;
    const Record& record = *ClassDescriptor::recordOf(*m_object);
    if (field->kind == FieldKind::EmbeddedArray)
        ArrayAccess::resize(*static_cast<KORVA_ArrayObject*>(at(record, field->offset)), 0);
    else if (isPointer(field->kind))
        korva::store<void*>(record, field->offset, nullptr);
    else
        clearValue(record, *field);
    return true;
}

bool ObjectRoot::isReplaceable(const KORVA_Child& child) const {
    return !Factory::isArrayType(child.type()) ||
           dynamic_cast<const KORVA_ClassObject*>(m_object) == nullptr;
}

}  // namespace korva
