#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNTypeError.h>

#include <gtest/gtest.h>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;

TARNSchemaTypesFactory& factory() {
    return TARNSchemaTypesFactory::getInstance();
}

TEST(TarnSchemaTypesFactory, IdentitiesAreConstants) {
    static_assert(TARNSchemaTypesFactory::identityOf("schedule") == 0x5A3811FB);
}

TEST(TarnSchemaTypesFactory, FindsTypesByTheirNames) {
    EXPECT_EQ(factory().stringToObjectType("schedule"), 0x5A3811FB);
    EXPECT_EQ(factory().stringToObjectType("string"), Type::eString);
    EXPECT_EQ(factory().stringToObjectType("QName"), Type::eQName);
}

TEST(TarnSchemaTypesFactory, AnUnknownNameIsNoType) {
    EXPECT_EQ(factory().stringToObjectType(nullptr), Type::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType(""), Type::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType("bus:schedule"), Type::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType("xs:string"), Type::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType("Schedule"), Type::e_Unknown);
    // A word of the schema, but no type.
    EXPECT_EQ(factory().stringToObjectType("dailyPeriod"), Type::e_Unknown);
}

TEST(TarnSchemaTypesFactory, GivesTheNamesOfTypes) {
    EXPECT_STREQ(factory().objectTypeToXSIType(tarnType("schedule")), "bus:schedule");
    EXPECT_STREQ(factory().objectTypeToXSIType(Type::e_Unknown), "_unknown");
    EXPECT_STREQ(factory().objectTypeToXSIType(Type::eString), "xs:string");
    EXPECT_STREQ(factory().objectTypeToXSIType(Type::eQName), "xs:QName");
    EXPECT_STREQ(factory().objectTypeToXSIType(Type::eTARNUndocumentedFaultDetail),
                 "TARNUndocumentedFaultDetail");
    EXPECT_STREQ(factory().objectTypeToXSIType(Type::eTARNUndocumentedFaultDetailArray),
                 "TARNUndocumentedFaultDetailArray");
    EXPECT_STREQ(factory().objectTypeToXSIType(Type::eTARNSOAPFault), "TARNSOAPFault");
}

TEST(TarnSchemaTypesFactory, ATypeWithoutANameGivesNull) {
    for (const int type : {-1, 11, 15, 0x116E90CF, 0x7FFFFFFF})
        EXPECT_EQ(factory().objectTypeToXSIType(static_cast<TarnType>(type)), nullptr) << type;
}

TEST(TarnSchemaTypesFactory, TellsTheKindsOfTypesApart) {
    const auto& isGenerated = TARNSchemaTypesFactory::isGeneratedType;
    EXPECT_TRUE(isGenerated(Type::e_Unknown));
    EXPECT_TRUE(isGenerated(Type::eTARNSOAPFault));
    EXPECT_TRUE(isGenerated(tarnType("schedule")));
    EXPECT_TRUE(isGenerated(static_cast<TarnType>(-1)));
    EXPECT_FALSE(isGenerated(Type::eString));
    EXPECT_FALSE(isGenerated(Type::eQName));
    EXPECT_FALSE(isGenerated(Type::eCharStreamable));
    EXPECT_FALSE(isGenerated(Type::eTARNReserved));

    for (const TarnType type :
         {Type::eString, Type::eTime, Type::eDateTime, Type::eQName, Type::eCharStreamable})
        EXPECT_TRUE(TARNSchemaTypesFactory::isString(type)) << type;
    EXPECT_FALSE(TARNSchemaTypesFactory::isString(Type::eBase64Binary));
    EXPECT_FALSE(TARNSchemaTypesFactory::isString(static_cast<TarnType>(11)));

    EXPECT_TRUE(TARNSchemaTypesFactory::isArrayType(tarnType("scheduleArray")));
    EXPECT_TRUE(TARNSchemaTypesFactory::isArrayType(Type::eTARNUndocumentedFaultDetailArray));
    EXPECT_FALSE(TARNSchemaTypesFactory::isArrayType(tarnType("schedule")));
    EXPECT_FALSE(TARNSchemaTypesFactory::isArrayType(tarnType("baseClassArrayProp")));
    EXPECT_FALSE(TARNSchemaTypesFactory::isArrayType(Type::e_Unknown));
}

TEST(TarnSchemaTypesFactory, RefusesToMakeWhatThereIsNot) {
    for (const TarnType type : {Type::e_Unknown, Type::eString, Type::eTARNReserved,
                                Type::eCharStreamable, static_cast<TarnType>(4711)})
        EXPECT_THROW(factory().create(type), TARNTypeError) << type;
    try {
        factory().create(tarnType("baseClass"));
        ADD_FAILURE() << "an object of an abstract type";
    } catch (const TARNTypeError& error) {
        EXPECT_STREQ(error.getText(), "There are no objects of bus:baseClass.");
    }
}

}  // namespace
