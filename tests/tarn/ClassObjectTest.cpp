#include "tests/support/ExpectThrow.h"
#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNTypeError.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELUtCrc32.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;

class TarnClassObject : public testing::Test {
protected:
    /// The text of the error that `action` ends in.
    template <class Action>
    static std::string errorOf(Action action) {
        try {
            action();
        } catch (const TARNTypeError& error) {
            return error.getText();
        }
        return "no error";
    }

    template <class Value>
    void set(TARNSchemaTypeI& object, Value value, TarnType type) {
        object.setChildObject("value", &value, type, nullptr);
    }

    TarnObjects tarn;
};

TEST_F(TarnClassObject, StartsEmpty) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    for (const std::string& name : namesOf(schedule, true))
        EXPECT_EQ(schedule.getChildObject(name.c_str(), false), nullptr) << name;
    EXPECT_TRUE(namesOf(schedule, false).empty());
    EXPECT_EQ(schedule.getChildObjectCount(), namesOf(schedule, true).size());
}

TEST_F(TarnClassObject, KeepsAnObjectAsItStands) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    TARNSchemaTypeI& active = tarn.addChild(schedule, "active", tarnType("booleanProp"));
    EXPECT_EQ(childOf(schedule, "active"), &active);
    EXPECT_EQ(schedule.getChildType("active"), tarnType("booleanProp"));
    EXPECT_EQ(namesOf(schedule, false), std::vector<std::string>{"active"});
}

TEST_F(TarnClassObject, KeepsInheritedChildren) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    TARNSchemaTypeI& name = tarn.addChild(schedule, "searchPath", tarnType("stringProp"));
    EXPECT_EQ(childOf(schedule, "searchPath"), &name);
}

TEST_F(TarnClassObject, KnowsItsBases) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    EXPECT_TRUE(schedule.isa(tarnType("schedule")));
    EXPECT_TRUE(schedule.isa(tarnType("uiClass")));
    EXPECT_TRUE(schedule.isa(tarnType("baseClass")));
    EXPECT_FALSE(schedule.isa(tarnType("folder")));
    EXPECT_FALSE(schedule.isa(Type::e_Unknown));
}

TEST_F(TarnClassObject, ANameFromTheWordTableAndOneFromOutsideAreTheSame) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    TARNSchemaTypeI& active = tarn.addChild(schedule, "active", tarnType("booleanProp"));
    const char* const word = tarnsymbols1::getChar(ZELUtCrc32::crc32("active", 0));
    const std::string outside = "active";
    EXPECT_EQ(childOf(schedule, word), &active);
    EXPECT_EQ(childOf(schedule, outside.c_str()), &active);
}

TEST_F(TarnClassObject, AnObjectOfADerivedTypeFits) {
    TARNSchemaTypeI& array = *childOf(tarn.make("baseClassArrayProp"), "value");
    EXPECT_NO_THROW(tarn.addChild(array, "any", tarnType("folder")));
    EXPECT_THROW(tarn.addChild(array, "any", tarnType("stringProp")), TARNTypeError);
}

TEST_F(TarnClassObject, TextIsThatOfTheBuffer) {
    TARNSchemaTypeI& prop = tarn.make("stringProp");
    ZELByteBuffer* const text = tarn.text("abc");
    prop.setChildObject("value", text, Type::eString, nullptr);
    EXPECT_EQ(textOf(prop, "value"), text->str());
}

TEST_F(TarnClassObject, StreamedTextIsStoredUnread) {
    TARNSchemaTypeI& prop = tarn.make("stringProp");
    TARN_CharStreamable& streamed = tarn.streamed("abc");
    prop.setChildObject("value", &streamed, Type::eCharStreamable, nullptr);
    EXPECT_EQ(textOf(prop, "value"), streamed.asCharStar());
    const char* const plain = "plain";
    prop.setChildObject("value", const_cast<char*>(plain), Type::eCharStreamable, nullptr);
    EXPECT_EQ(textOf(prop, "value"), plain);
}

TEST_F(TarnClassObject, BinaryIsStoredAsItStands) {
    TARNSchemaTypeI& prop = tarn.make("base64BinaryProp");
    TARNBase64Binary& value = tarn.binary("abc");
    prop.setChildObject("value", &value, Type::eBase64Binary, nullptr);
    EXPECT_EQ(prop.getChildObject("value", false), &value);
}

TEST_F(TarnClassObject, ValuesAreCopiedIn) {
    TARNSchemaTypeI& integer = tarn.make("intProp");
    set(integer, -7, Type::eInt);
    EXPECT_EQ(*static_cast<int*>(integer.getChildObject("value", false)), -7);
    TARNSchemaTypeI& real = tarn.make("decimalProp");
    set(real, 1.5F, Type::eDecimal);
    EXPECT_EQ(*static_cast<float*>(real.getChildObject("value", false)), 1.5F);
    TARNSchemaTypeI& flag = tarn.make("booleanProp");
    set(flag, false, Type::eBoolean);
    ASSERT_NE(flag.getChildObject("value", false), nullptr);
    EXPECT_FALSE(*static_cast<bool*>(flag.getChildObject("value", false)));
}

TEST_F(TarnClassObject, ValuesAreConvertedAndSaturate) {
    TARNSchemaTypeI& integer = tarn.make("intProp");
    const auto* const number = static_cast<int*>(integer.getChildObject("value", true));
    set(integer, 2.9F, Type::eFloat);
    EXPECT_EQ(*number, 2);
    set(integer, 1e10F, Type::eDecimal);
    EXPECT_EQ(*number, std::numeric_limits<int>::max());
    set(integer, -1e10F, Type::eDecimal);
    EXPECT_EQ(*number, std::numeric_limits<int>::min());
    set(integer, std::numeric_limits<float>::quiet_NaN(), Type::eFloat);
    EXPECT_EQ(*number, 0);
    set(integer, true, Type::eBoolean);
    EXPECT_EQ(*number, 1);

    TARNSchemaTypeI& flag = tarn.make("booleanProp");
    set(flag, 12, Type::eInteger);
    EXPECT_TRUE(*static_cast<bool*>(flag.getChildObject("value", false)));
    TARNSchemaTypeI& real = tarn.make("decimalProp");
    set(real, 3, Type::eInt);
    EXPECT_EQ(*static_cast<float*>(real.getChildObject("value", false)), 3.0F);
}

TEST_F(TarnClassObject, ReadingForWritingMakesAValue) {
    for (const char* const type : {"intProp", "booleanProp", "decimalProp"}) {
        TARNSchemaTypeI& prop = tarn.make(type);
        EXPECT_EQ(prop.getChildObject("value", false), nullptr);
        void* const value = prop.getChildObject("value", true);
        ASSERT_NE(value, nullptr);
        EXPECT_EQ(prop.getChildObject("value", false), value);
    }
    TARNSchemaTypeI& text = tarn.make("stringProp");
    EXPECT_EQ(text.getChildObject("value", true), nullptr);
}

TEST_F(TarnClassObject, AnArrayStandsInsideTheObject) {
    TARNSchemaTypeI& prop = tarn.make("baseClassArrayProp");
    TARNSchemaTypeI* const array = childOf(prop, "value");
    ASSERT_NE(array, nullptr);
    EXPECT_EQ(prop.getChildObject("value", true), array);
    EXPECT_EQ(array->getObjectType(), prop.getChildType("value"));
    EXPECT_EQ(array->getChildObjectCount(), 0u);
    EXPECT_EQ(tarn.registry->size(), 1u);
}

TEST_F(TarnClassObject, AnArrayInsideCannotBeSet) {
    TARNSchemaTypeI& prop = tarn.make("baseClassArrayProp");
    EXPECT_EQ(errorOf([&] { tarn.addChild(prop, "value", tarnType("baseClassArray")); }),
              "The child \"value\" of bus:baseClassArrayProp is an array inside the object: get it "
              "and add to it.");
}

TEST_F(TarnClassObject, ATypeThatDoesNotFitIsRefused) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    EXPECT_EQ(errorOf([&] { tarn.addChild(schedule, "active", tarnType("stringProp")); }),
              "The child \"active\" of bus:schedule takes bus:booleanProp, not bus:stringProp.");
    EXPECT_EQ(childOf(schedule, "active"), nullptr);
    int number = 1;
    EXPECT_EQ(errorOf([&] { schedule.setChildObject("active", &number, Type::eInt, nullptr); }),
              "The child \"active\" of bus:schedule takes bus:booleanProp, not xs:int.");
    TARNSchemaTypeI& text = tarn.make("stringProp");
    EXPECT_EQ(errorOf([&] { text.setChildObject("value", &number, Type::eInt, nullptr); }),
              "The child \"value\" of bus:stringProp takes xs:string, not xs:int.");
    TARNSchemaTypeI& binary = tarn.make("base64BinaryProp");
    EXPECT_EQ(errorOf([&] { tarn.setText(binary, "value", "a"); }),
              "The child \"value\" of bus:base64BinaryProp takes xs:base64Binary, not xs:string.");
    TARNSchemaTypeI& integer = tarn.make("intProp");
    EXPECT_EQ(errorOf([&] {
                  integer.setChildObject("value", tarn.text("1"), Type::eCharStreamable, nullptr);
              }),
              "The child \"value\" of bus:intProp takes xs:int, not streamed text.");
    EXPECT_EQ(integer.getChildObject("value", false), nullptr);
    EXPECT_EQ(errorOf([&] {
                  integer.setChildObject("value", &number, static_cast<TarnType>(4711), nullptr);
              }),
              "The child \"value\" of bus:intProp takes xs:int, not an unknown type.");
}

TEST_F(TarnClassObject, AnUnknownNameIsIgnored) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    int number = 1;
    EXPECT_EQ(schedule.setChildObject("nobody knows", &number, Type::eInt, nullptr), 0u);
    EXPECT_EQ(schedule.setChildObject("", nullptr, Type::eInt, nullptr), 0u);
    EXPECT_EQ(schedule.getChildObject("nobody knows", true), nullptr);
    EXPECT_EQ(schedule.getChildType("nobody knows"), Type::e_Unknown);
}

TEST_F(TarnClassObject, NullIsAnAssertion) {
    TARNSchemaTypeI& schedule = tarn.make("schedule");
    int number = 1;
    EXPECT_ASSERTION(schedule.setChildObject(nullptr, &number, Type::eInt, nullptr),
                     "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(schedule.setChildObject("active", nullptr, Type::eInt, nullptr),
                     "ZEL_ASSERT(value != NULL);");
    EXPECT_ASSERTION(schedule.getChildObject(nullptr, false), "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(schedule.getChildType(nullptr), "ZEL_ASSERT(name);");
}

}  // namespace
