// How a caller's parameters are compared with those of an operation.

#include "tests/support/ExpectThrow.h"

#include <korva/KORVAFolder.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVA_PortType.h>

#include <gtest/gtest.h>

#include <deque>
#include <initializer_list>
#include <vector>

namespace {

using Type = KORVASchemaTypeI;
using ObjectType = KORVASchemaTypeI::ObjectType;
using Descriptor = KORVAMessageFactory::KORVAParamDescriptor;

/// A list of parameters that owns them.
class Params {
public:
    Params(std::initializer_list<Descriptor> rows) {
        for (const Descriptor& row : rows)
            m_pointers.push_back(&m_params.emplace_back(row.name, row.type));
    }
    operator const std::vector<KORVAMessageParam*>&() const { return m_pointers; }

private:
    std::deque<KORVAMessageParam> m_params;
    std::vector<KORVAMessageParam*> m_pointers;
};

constexpr Descriptor abc[] = {
    {"a", Type::eString}, {"b", Type::eInt}, {"c", Type::eBoolean}, {nullptr, Type::e_Unknown}};
constexpr Descriptor none[] = {{nullptr, Type::e_Unknown}};

bool fits(const Descriptor* expected, const Params& params) {
    return KORVA_PortType::isSameParameterSignature(expected, params);
}

TEST(ParameterSignature, EqualListsMatchPairwise) {
    EXPECT_TRUE(fits(abc, {{"a", Type::eString}, {"b", Type::eInt}, {"c", Type::eBoolean}}));
    EXPECT_FALSE(fits(abc, {{"a", Type::eString}, {"c", Type::eBoolean}, {"b", Type::eInt}}));
    EXPECT_FALSE(fits(abc, {{"a", Type::eString}, {"b", Type::eInt}, {"c", Type::eInt}}));
    EXPECT_FALSE(fits(abc, {{"x", Type::eString}, {"b", Type::eInt}, {"c", Type::eBoolean}}));
}

TEST(ParameterSignature, EmptyListMatchesAnyOperation) {
    EXPECT_TRUE(fits(none, {}));
    EXPECT_TRUE(fits(abc, {}));
}

TEST(ParameterSignature, ParametersMayBeLeftOut) {
    EXPECT_TRUE(fits(abc, {{"a", Type::eString}}));
    EXPECT_TRUE(fits(abc, {{"b", Type::eInt}}));
    EXPECT_TRUE(fits(abc, {{"c", Type::eBoolean}}));
    EXPECT_TRUE(fits(abc, {{"a", Type::eString}, {"c", Type::eBoolean}}));
    EXPECT_TRUE(fits(abc, {{"b", Type::eInt}, {"c", Type::eBoolean}}));
}

TEST(ParameterSignature, ParametersMayNotBeReordered) {
    EXPECT_FALSE(fits(abc, {{"c", Type::eBoolean}, {"a", Type::eString}}));
    EXPECT_FALSE(fits(abc, {{"b", Type::eInt}, {"b", Type::eInt}}));
}

TEST(ParameterSignature, ListsOfOneLengthAreNotSearched) {
    constexpr Descriptor expected[] = {
        {"a", Type::eString}, {"b", Type::eKORVAFolder}, {nullptr, Type::e_Unknown}};
    // Beside the row of its name this would be refused, as its class is abstract.
    const Descriptor abstract = {"b", Type::eKORVABaseClass};
    EXPECT_FALSE(fits(expected, {abstract, {"a", Type::eString}}));
    EXPECT_THROW(fits(expected, {abstract}), KORVAException);
}

TEST(ParameterSignature, PartOfAListMustMatchInTypeToo) {
    EXPECT_FALSE(fits(abc, {{"b", Type::eString}}));
    EXPECT_FALSE(fits(abc, {{"d", Type::eString}}));
}

TEST(ParameterSignature, MoreParametersThanRowsFail) {
    EXPECT_FALSE(fits(none, {{"a", Type::eString}}));
    EXPECT_FALSE(fits(
        abc,
        {{"a", Type::eString}, {"b", Type::eInt}, {"c", Type::eBoolean}, {"d", Type::eString}}));
}

TEST(ParameterSignature, AssertsOnANullList) {
    EXPECT_ASSERTION(fits(nullptr, {}), "ZEL_ASSERT(expectedParamList);");
}

TEST(MessageParameter, NamesAreComparedByBytes) {
    const KORVAMessageParam param("objectPath", Type::eString);
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"objectPath", Type::eString}, &param));
    for (const char* const name : {"objectpath", "objectPat", "objectPathX", ""})
        EXPECT_FALSE(KORVA_PortType::isSameParameter({name, Type::eString}, &param)) << name;
}

TEST(MessageParameter, PlainTypesMustBeEqual) {
    const KORVAMessageParam param("a", Type::eInt);
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eInt}, &param));
    EXPECT_FALSE(KORVA_PortType::isSameParameter({"a", Type::eInteger}, &param));
    EXPECT_FALSE(KORVA_PortType::isSameParameter({"a", Type::eKORVAFolder}, &param));
}

TEST(MessageParameter, ObjectMayBeOfADerivedClass) {
    KORVAFolder folder;
    const KORVAMessageParam param("a", Type::eKORVAFolder, &folder);
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eKORVAFolder}, &param));
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eKORVABaseClass}, &param));
    EXPECT_FALSE(KORVA_PortType::isSameParameter({"a", Type::eKORVAReport}, &param));
    EXPECT_FALSE(KORVA_PortType::isSameParameter({"a", Type::eString}, &param));
}

TEST(MessageParameter, ObjectItselfDecidesNotItsDeclaredType) {
    KORVAFolder folder;
    const KORVAMessageParam param("a", Type::eKORVABaseClass, &folder);
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eKORVAFolder}, &param));
}

TEST(MessageParameter, WithoutAValueItsTypeMayBeADerivedClass) {
    const KORVAMessageParam param("a", Type::eKORVAFolder);
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eKORVAFolder}, &param));
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eKORVABaseClass}, &param));
    EXPECT_FALSE(KORVA_PortType::isSameParameter({"a", Type::eKORVAReport}, &param));
}

TEST(MessageParameter, WithoutAValueOfAnAbstractClassIsRefused) {
    const KORVAMessageParam param("a", Type::eKORVABaseClass);
    EXPECT_TRUE(KORVA_PortType::isSameParameter({"a", Type::eKORVABaseClass}, &param));
    EXPECT_NUMBERED(KORVA_PortType::isSameParameter({"a", Type::eKORVAFolder}, &param), 0xEA47EC7BU,
                    "KORVASchemaTypesFactory::create()", "bus:baseClass");
}

TEST(MessageParameter, AssertsOnWhatIsNull) {
    const KORVAMessageParam param("a", Type::eString);
    const KORVAMessageParam unnamed(nullptr, Type::eString);
    EXPECT_ASSERTION(KORVA_PortType::isSameParameter({"a", Type::eString}, nullptr),
                     "ZEL_ASSERT(param2);");
    EXPECT_ASSERTION(KORVA_PortType::isSameParameter({nullptr, Type::eString}, &param),
                     "ZEL_ASSERT(param1Name);");
    EXPECT_ASSERTION(KORVA_PortType::isSameParameter({"a", Type::eString}, &unnamed),
                     "ZEL_ASSERT(param2Name);");
}

}  // namespace
