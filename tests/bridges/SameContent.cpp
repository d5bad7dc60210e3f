#include "tests/bridges/SameContent.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <tarn/TARNBase64Binary.h>
#include <tarn/TARNSchemaTypesFactory.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace korva::test {

namespace {

using testing::AssertionFailure;
using testing::AssertionResult;
using testing::AssertionSuccess;

template <class Value>
bool equal(const void* left, const void* right) {
    return *static_cast<const Value*>(left) == *static_cast<const Value*>(right);
}

AssertionResult sameValue(const void* left, const void* right, KORVASchemaTypeI::ObjectType type) {
    bool isSame = false;
    switch (type) {
        case KORVASchemaTypeI::eString:
        case KORVASchemaTypeI::eTime:
        case KORVASchemaTypeI::eDateTime:
        case KORVASchemaTypeI::eQName:
            isSame =
                std::strcmp(static_cast<const char*>(left), static_cast<const char*>(right)) == 0;
            break;
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger: isSame = equal<int>(left, right); break;
        case KORVASchemaTypeI::eDecimal:
        case KORVASchemaTypeI::eFloat: isSame = equal<float>(left, right); break;
        case KORVASchemaTypeI::eBoolean: isSame = equal<bool>(left, right); break;
        case KORVASchemaTypeI::eBase64Binary: {
            const auto& one = *static_cast<const KORVAXSBase64Binary*>(left);
            const auto& other = *static_cast<const TARNBase64Binary*>(right);
            isSame = std::string_view(one.str(), one.pcount()) ==
                     std::string_view(other.str(), other.pcount());
            break;
        }
        default:
            return holdsTheSame(*static_cast<const KORVASchemaTypeI*>(left),
                                *static_cast<const TARNSchemaTypeI*>(right));
    }
    return isSame ? AssertionSuccess() : AssertionFailure() << "another value";
}

}  // namespace

AssertionResult holdsTheSame(const KORVASchemaTypeI& object, const TARNSchemaTypeI& other) {
    const std::string type =
        KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(object.getObjectType());
    if (type != TARNSchemaTypesFactory::getInstance().objectTypeToXSIType(other.getObjectType()))
        return AssertionFailure() << type << " has another type";
    std::vector<const char*> names;
    std::vector<const char*> otherNames;
    object.getChildObjectNames(names, true);
    other.getChildObjectNames(otherNames, true);
    if (names.size() != otherNames.size())
        return AssertionFailure() << type << " has another number of children";
    const bool isArray = KORVASchemaTypesFactory::isArrayType(object.getObjectType());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string name = isArray ? "entry " + std::to_string(i) : names[i];
        if (!isArray && name != otherNames[i])
            return AssertionFailure() << type << '.' << name << " has another name";
        const void* const value =
            const_cast<KORVASchemaTypeI&>(object).getChildObject(names[i], false);
        const void* const otherValue =
            const_cast<TARNSchemaTypeI&>(other).getChildObject(otherNames[i], false);
        if (value == nullptr && otherValue == nullptr) continue;
        if (value == nullptr || otherValue == nullptr)
            return AssertionFailure() << type << '.' << name << " is null in one";
        const AssertionResult result = sameValue(value, otherValue, object.getChildType(names[i]));
        if (!result) return AssertionFailure() << type << '.' << name << ": " << result.message();
    }
    return AssertionSuccess();
}

}  // namespace korva::test
