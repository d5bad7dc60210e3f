// The types of the two models, each by the other.
#include "tests/bridges/Vocabulary.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVATARNSupport.h>
#include <tarn/TARNSchemaTypesFactory.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Korva = KORVASchemaTypeI;
using Tarn = TARNSchemaTypeI;
using Support = KORVATARNSupport;

TEST(TarnSupport, UnknownStaysUnknown) {
    EXPECT_EQ(Support::getObjectType(Korva::e_Unknown), Tarn::e_Unknown);
    EXPECT_EQ(Support::getObjectType(Tarn::e_Unknown), Korva::e_Unknown);
}

TEST(TarnSupport, PlainTypesHaveTheSameNumbers) {
    for (int type = Korva::eString; type <= Korva::eQName; ++type) {
        EXPECT_EQ(Support::getObjectType(static_cast<Korva::ObjectType>(type)), type);
        EXPECT_EQ(Support::getObjectType(static_cast<Tarn::ObjectType>(type)), type);
    }
}

TEST(TarnSupport, StreamedTextHasANumberOfItsOwn) {
    EXPECT_EQ(Support::getObjectType(Korva::eCharStreamable), 0x116E90CF);
    EXPECT_EQ(Support::getObjectType(Tarn::eCharStreamable), 11);
}

TEST(TarnSupport, FaultsHaveTheSameNumbers) {
    for (const int type : {12, 13, 14}) {
        EXPECT_EQ(Support::getObjectType(static_cast<Korva::ObjectType>(type)), type);
        EXPECT_EQ(Support::getObjectType(static_cast<Tarn::ObjectType>(type)), type);
    }
}

TEST(TarnSupport, EachTypeOfTheSchemaIsFoundByItsName) {
    std::size_t count = 0;
    for (const auto& [name, type] : korva::test::builtSchema()) {
        const Korva::ObjectType korva = korva::test::identityOf("bus:" + name);
        const Tarn::ObjectType tarn = Support::getObjectType(korva);
        EXPECT_EQ(TARNSchemaTypesFactory::getInstance().objectTypeToXSIType(tarn), "bus:" + name);
        EXPECT_EQ(Support::getObjectType(tarn), korva) << name;
        ++count;
    }
    EXPECT_GT(count, 900u);
}

TEST(TarnSupport, TheReservedTypeOfTheSecondModelIsAnAssertion) {
    EXPECT_ASSERTION(Support::getObjectType(static_cast<Tarn::ObjectType>(15)),
                     "ZEL_ASSERT(false);");
}

TEST(TarnSupport, ATypeWithoutATextIsAnAssertion) {
    EXPECT_ASSERTION(Support::getObjectType(static_cast<Tarn::ObjectType>(4711)),
                     "ZEL_ASSERT(tarnXsiType);");
    EXPECT_ASSERTION(Support::getObjectType(static_cast<Korva::ObjectType>(4711)),
                     "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): "
                     "unknown object type.\");");
}

}  // namespace
