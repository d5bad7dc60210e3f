#include "core/ObjectComparison.h"

#include "core/ArrayAccess.h"
#include "core/CycleCheck.h"
#include "core/ExactClass.h"
#include "core/Fields.h"
#include "core/TextValue.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_ClassObject.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>

#include <vector>

namespace korva {

namespace {

/// Uses the comparison of the object's family; objects of no family are equal to themselves only.
bool equalByOperator(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    if (const auto* object = dynamic_cast<const KORVA_EnumObject*>(&left))
        return !object->operator!=(right);
    if (const auto* object = dynamic_cast<const KORVA_RestrictedString*>(&left))
        return !object->operator!=(right);
    if (const auto* object = dynamic_cast<const KORVA_ClassObject*>(&left))
        return !object->operator!=(right);
    if (const auto* object = dynamic_cast<const KORVA_ArrayObject*>(&left))
        return !object->operator!=(right);
    return &left == &right;
}

/// One comparison: pairs still to be compared wait in a list instead of on the stack.
class Comparison {
public:
    bool equalFields(const ClassDescriptor& descriptor, const Record& left, const Record& right) {
        for (const ClassDescriptor* level = &descriptor; level != nullptr; level = level->base)
            for (const FieldDescriptor& field : *level)
                if (!equalField(field, left, right)) return false;
        return true;
    }

    bool equalElements(const KORVA_ArrayObject& left, const KORVA_ArrayObject& right) {
        const std::size_t count = left.size();
        if (right.size() != count) return false;
        const ObjectType type = ArrayAccess::elementType(left);
        for (std::size_t i = 0; i < count; ++i) {
            const void* const a = ArrayAccess::slot(left, i);
            const void* const b = ArrayAccess::slot(right, i);
            if (!equalElement(type, a, b)) return false;
        }
        return true;
    }

    /// Compares what waits.
    bool run() {
        while (!m_pending.empty()) {
            const Pair pair = m_pending.back();
            m_pending.pop_back();
            m_depth = pair.depth;
            // Where one side has an end, so has the comparison.
            if (m_watch.isDue(m_depth) && hasCycle(*pair.right)) refuseCycle(*pair.left);
            if (!equalObjects(*pair.left, *pair.right)) return false;
        }
        return true;
    }

private:
    struct Pair {
        const KORVASchemaTypeI* left;
        const KORVASchemaTypeI* right;
        std::size_t depth;
    };

    bool postpone(const KORVASchemaTypeI* left, const KORVASchemaTypeI* right) {
        if (left == nullptr || right == nullptr) return left == right;
        if (left != right) m_pending.push_back({left, right, m_depth + 1});
        return true;
    }

    bool equalObjects(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
        const TypeDescriptor* const type = findType(left.getObjectType());
        if (!isExactly(left, type)) return equalByOperator(left, right);
        if (type->fields != nullptr)
            return right.isa(type->identity) &&
                   equalFields(*type->fields, *ClassDescriptor::recordOf(left),
                               *ClassDescriptor::recordOf(right));
        if (type->elementType != KORVASchemaTypeI::e_Unknown)
            return right.isa(type->identity) &&
                   equalElements(static_cast<const KORVA_ArrayObject&>(left),
                                 static_cast<const KORVA_ArrayObject&>(right));
        return equalByOperator(left, right);
    }

    bool equalElement(ObjectType type, const void* left, const void* right) {
        bool equal = false;
        if (types::visitValue(types::kindOf(type), [&](auto value) {
                equal =
                    types::valueAt<decltype(value)>(left) == types::valueAt<decltype(value)>(right);
            }))
            return equal;
        if (KORVASchemaTypesFactory::isString(type))
            return equalTexts(static_cast<const char*>(left), static_cast<const char*>(right));
        return postpone(static_cast<const KORVASchemaTypeI*>(left),
                        static_cast<const KORVASchemaTypeI*>(right));
    }

    bool equalField(const FieldDescriptor& field, const Record& left, const Record& right) {
        switch (field.kind) {
            case FieldKind::Object:
                return postpone(load<const KORVASchemaTypeI*>(left, field.offset),
                                load<const KORVASchemaTypeI*>(right, field.offset));
            case FieldKind::Text:
                return equalTexts(load<const char*>(left, field.offset),
                                  load<const char*>(right, field.offset));
            case FieldKind::Binary:
                return equalBinaries(load<const KORVAXSBase64Binary*>(left, field.offset),
                                     load<const KORVAXSBase64Binary*>(right, field.offset));
            case FieldKind::EmbeddedArray:
                return equalElements(
                    *static_cast<const KORVA_ArrayObject*>(at(left, field.offset)),
                    *static_cast<const KORVA_ArrayObject*>(at(right, field.offset)));
            default: return equalValues(field, left, right);
        }
    }

    static bool equalValues(const FieldDescriptor& field, const Record& left, const Record& right) {
        bool equal = load<bool>(left, field.flagOffset) == load<bool>(right, field.flagOffset);
        types::visitValue(field.kind, [&](auto value) {
            using Value = decltype(value);
            equal = equal && load<Value>(left, field.offset) == load<Value>(right, field.offset);
        });
        return equal;
    }

    std::vector<Pair> m_pending;
    std::size_t m_depth = 0;  ///< of the pair that is being compared
    DepthWatch m_watch;
};

}  // namespace

bool equalObjects(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    if (const HandWrittenType* const row = findHandWrittenType(left.getObjectType()))
        return row->equal(left, right);
    return equalByOperator(left, right);
}

bool equalFields(const ClassDescriptor& descriptor, const KORVASchemaTypeI& left,
                 const KORVASchemaTypeI& right) {
    Comparison comparison;
    return comparison.equalFields(descriptor, *ClassDescriptor::recordOf(left),
                                  *ClassDescriptor::recordOf(right)) &&
           comparison.run();
}

bool equalElements(const KORVA_ArrayObject& left, const KORVA_ArrayObject& right) {
    Comparison comparison;
    return comparison.equalElements(left, right) && comparison.run();
}

}  // namespace korva
