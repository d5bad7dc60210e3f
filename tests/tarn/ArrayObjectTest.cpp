#include "tests/support/ExpectThrow.h"
#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNTypeError.h>
#include <zel/ZELStdExceptionError.h>

#include <gtest/gtest.h>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;

class TarnArrayObject : public testing::Test {
protected:
    TarnObjects tarn;
};

TEST_F(TarnArrayObject, AppendsUnderAnyName) {
    TARNSchemaTypeI& array = tarn.make("permissionArray");
    TARNSchemaTypeI& one = tarn.make("permission");
    TARNSchemaTypeI& other = tarn.make("permission");
    EXPECT_EQ(array.setChildObject("any", &one, one.getObjectType(), nullptr), 1u);
    EXPECT_EQ(array.setChildObject("other", &other, one.getObjectType(), nullptr), 2u);
    EXPECT_EQ(array.getChildObjectCount(), 2u);
    EXPECT_EQ(childOf(array, elementName(1)), &one);
    EXPECT_EQ(childOf(array, elementName(2)), &other);
    EXPECT_EQ(array.setChildObject("", &one, one.getObjectType(), nullptr), 0u);
    EXPECT_EQ(array.getChildObjectCount(), 2u);
}

TEST_F(TarnArrayObject, ReplacesAtAnIndex) {
    TARNSchemaTypeI& array = tarn.make("stringArray");
    tarn.setText(array, "any", "a");
    tarn.setText(array, "any", "b");
    std::size_t index = 1;
    EXPECT_EQ(array.setChildObject("any", tarn.text("c"), Type::eString, &index), 1u);
    EXPECT_STREQ(textOf(array, elementName(1)), "c");
    EXPECT_STREQ(textOf(array, elementName(2)), "b");
    for (std::size_t wrong : {0U, 3U})
        EXPECT_ASSERTION(array.setChildObject("any", tarn.text("d"), Type::eString, &wrong),
                         "ZEL_ASSERT(*index > 0 && *index <= m_elements.size());");
}

TEST_F(TarnArrayObject, NamesItsElementsByNumbers) {
    TARNSchemaTypeI& array = tarn.make("stringArray");
    tarn.setText(array, "any", "a");
    tarn.setText(array, "any", "b");
    std::vector<const char*> names;
    array.getChildObjectNames(names, true);
    array.getChildObjectNames(names, false);
    EXPECT_EQ(names, (std::vector<const char*>{elementName(1), elementName(2), elementName(1),
                                               elementName(2)}));
}

TEST_F(TarnArrayObject, HoldsNumbersAndFlags) {
    TARNSchemaTypeI& numbers = tarn.make("intArray");
    int number = 7;
    numbers.setChildObject("any", &number, Type::eInt, nullptr);
    EXPECT_EQ(*static_cast<int*>(numbers.getChildObject(elementName(1), false)), 7);
    EXPECT_EQ(numbers.getChildType("any"), Type::eInt);
    TARNSchemaTypeI& flags = tarn.make("booleanArray");
    flags.setChildObject("any", &number, Type::eInt, nullptr);
    EXPECT_TRUE(*static_cast<bool*>(flags.getChildObject(elementName(1), false)));
}

TEST_F(TarnArrayObject, ElementsThatAreNotThereAreAnError) {
    TARNSchemaTypeI& array = tarn.make("stringArray");
    EXPECT_THROW(array.getChildObject(elementName(1), false), ZELStdExceptionError);
    EXPECT_THROW(array.getChildObject("a text", false), ZELStdExceptionError);
    EXPECT_ASSERTION(array.getChildObject(nullptr, false), "ZEL_ASSERT(name);");
}

TEST_F(TarnArrayObject, AnElementThatDoesNotFitIsRefused) {
    TARNSchemaTypeI& array = tarn.make("permissionArray");
    EXPECT_THROW(tarn.addChild(array, "any", tarnType("policy")), TARNTypeError);
    EXPECT_THROW(tarn.setText(array, "any", "a"), TARNTypeError);
    EXPECT_THROW(tarn.addChild(tarn.make("intArray"), "any", tarnType("policy")), TARNTypeError);
    EXPECT_EQ(array.getChildObjectCount(), 0u);
    EXPECT_ASSERTION(array.setChildObject("any", nullptr, Type::eString, nullptr),
                     "ZEL_ASSERT(value != NULL);");
    EXPECT_ASSERTION(array.setChildObject(nullptr, &array, Type::eString, nullptr),
                     "ZEL_ASSERT(name);");
}

TEST_F(TarnArrayObject, IsNothingButItself) {
    TARNSchemaTypeI& array = tarn.make("permissionArray");
    EXPECT_TRUE(array.isa(tarnType("permissionArray")));
    EXPECT_FALSE(array.isa(tarnType("permission")));
}

}  // namespace
