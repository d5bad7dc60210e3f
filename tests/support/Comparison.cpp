#include "tests/support/Comparison.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_ClassObject.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>

#include <cstring>
#include <stdexcept>

namespace korva::test {

namespace {

/// Compares both ways if `left` is a Base; a class's own operator takes a derived object as well.
template <class Base>
bool areEqualAs(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right, bool& result) {
    const auto* const one = dynamic_cast<const Base*>(&left);
    const auto* const other = dynamic_cast<const Base*>(&right);
    if (one == nullptr) return false;
    result = other != nullptr && one->operator==(right) && other->operator==(left) &&
             !one->operator!=(right);
    return true;
}

template <class Value>
bool areEqualValues(const void* left, const void* right) {
    return *static_cast<const Value*>(left) == *static_cast<const Value*>(right);
}

}  // namespace

bool areEqual(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    if (left.getObjectType() != right.getObjectType()) return false;
    bool result = false;
    if (areEqualAs<KORVA_ClassObject>(left, right, result) ||
        areEqualAs<KORVA_ArrayObject>(left, right, result) ||
        areEqualAs<KORVA_EnumObject>(left, right, result) ||
        areEqualAs<KORVA_RestrictedString>(left, right, result))
        return result;
    throw std::logic_error("an object of no known family");
}

bool areEqual(const void* left, const void* right, KORVASchemaTypeI::ObjectType type) {
    if (left == nullptr || right == nullptr) return left == right;
    if (KORVASchemaTypesFactory::isString(type))
        return std::strcmp(static_cast<const char*>(left), static_cast<const char*>(right)) == 0;
    switch (type) {
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger: return areEqualValues<int>(left, right);
        case KORVASchemaTypeI::eDecimal:
        case KORVASchemaTypeI::eFloat: return areEqualValues<float>(left, right);
        case KORVASchemaTypeI::eBoolean: return areEqualValues<bool>(left, right);
        case KORVASchemaTypeI::eBase64Binary:
            return areEqualValues<KORVAXSBase64Binary>(left, right);
        default:
            return areEqual(*static_cast<const KORVASchemaTypeI*>(left),
                            *static_cast<const KORVASchemaTypeI*>(right));
    }
}

}  // namespace korva::test
