#include "tests/tarn/TarnObjects.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;

class TarnComparison : public testing::Test {
protected:
    template <class Value>
    TARNSchemaTypeI& prop(const char* type, Value value, TarnType valueType) {
        TARNSchemaTypeI& object = tarn.make(type);
        object.setChildObject("value", &value, valueType, nullptr);
        return object;
    }

    TARNSchemaTypeI& streamed(TARN_CharStreamable& text) {
        TARNSchemaTypeI& object = tarn.make("stringProp");
        object.setChildObject("value", &text, Type::eCharStreamable, nullptr);
        return object;
    }

    TarnObjects tarn;
};

TEST_F(TarnComparison, ObjectsOfDifferentTypesDiffer) {
    EXPECT_FALSE(tarn.make("permission") == tarn.make("policy"));
    EXPECT_FALSE(tarn.make("folder") == tarn.make("schedule"));
    EXPECT_TRUE(tarn.make("folder") == tarn.make("folder"));
}

TEST_F(TarnComparison, AMissingValueDiffersFromAnyOther) {
    TARNSchemaTypeI& none = tarn.make("intProp");
    EXPECT_FALSE(none == prop("intProp", 0, Type::eInt));
    EXPECT_FALSE(prop("intProp", 0, Type::eInt) == none);
}

TEST_F(TarnComparison, ValuesAreCompared) {
    EXPECT_TRUE(prop("intProp", 1, Type::eInt) == prop("intProp", 1, Type::eInt));
    EXPECT_FALSE(prop("intProp", 1, Type::eInt) == prop("intProp", 2, Type::eInt));
    EXPECT_FALSE(prop("decimalProp", 1.0F, Type::eDecimal) ==
                 prop("decimalProp", 1.5F, Type::eDecimal));
    EXPECT_FALSE(prop("booleanProp", true, Type::eBoolean) ==
                 prop("booleanProp", false, Type::eBoolean));
}

TEST_F(TarnComparison, TextsAreComparedByTheirBytes) {
    TARNSchemaTypeI& left = tarn.make("permission");
    TARNSchemaTypeI& right = tarn.make("permission");
    tarn.setText(left, "name", "a");
    tarn.setText(right, "name", "a");
    EXPECT_TRUE(left == right);
    tarn.setText(right, "name", "b");
    EXPECT_FALSE(left == right);
}

TEST_F(TarnComparison, StreamedTextsAreComparedByTheirSource) {
    const char* const text = "a";
    TARN_CharStreamable& one = tarn.streamed(text);
    TARN_CharStreamable& same = tarn.streamed(text);
    EXPECT_TRUE(streamed(one) == streamed(same));
    const std::string elsewhere = "a";
    EXPECT_FALSE(streamed(one) == streamed(tarn.streamed(elsewhere.c_str())));
    same.setIsContentId(true);
    EXPECT_FALSE(streamed(one) == streamed(same));
    TARNSchemaTypeI& plain = tarn.make("stringProp");
    tarn.setText(plain, "value", "a");
    EXPECT_FALSE(streamed(one) == plain);
}

TEST_F(TarnComparison, BinariesAreComparedByTheirBytes) {
    const auto binary = [this](const char* bytes) -> TARNSchemaTypeI& {
        TARNSchemaTypeI& object = tarn.make("base64BinaryProp");
        object.setChildObject("value", &tarn.binary(bytes), Type::eBase64Binary, nullptr);
        return object;
    };
    EXPECT_TRUE(binary("abc") == binary("abc"));
    EXPECT_FALSE(binary("abc") == binary("abd"));
}

TEST_F(TarnComparison, ArraysAreComparedInTheirOrder) {
    TARNSchemaTypeI& left = tarn.make("stringArray");
    TARNSchemaTypeI& right = tarn.make("stringArray");
    tarn.setText(left, "any", "a");
    EXPECT_FALSE(left == right);
    tarn.setText(right, "any", "a");
    EXPECT_TRUE(left == right);
    tarn.setText(left, "any", "b");
    tarn.setText(left, "any", "c");
    tarn.setText(right, "any", "c");
    tarn.setText(right, "any", "b");
    EXPECT_FALSE(left == right);
}

TEST_F(TarnComparison, WhatLiesDeeperIsCompared) {
    const auto policy = [this](const char* name) -> TARNSchemaTypeI& {
        TARNSchemaTypeI& object = tarn.make("policy");
        TARNSchemaTypeI& permission =
            tarn.addChild(*childOf(object, "permissions"), "any", tarnType("permission"));
        tarn.setText(permission, "name", name);
        return object;
    };
    EXPECT_TRUE(policy("a") == policy("a"));
    EXPECT_FALSE(policy("a") == policy("b"));
}

TEST_F(TarnComparison, DepthNeedsNoStack) {
    const auto chain = [this]() -> TARNSchemaTypeI& {
        TARNSchemaTypeI& top = tarn.make("hierarchicalParmValueItem");
        TARNSchemaTypeI* last = &top;
        for (int i = 0; i < 100000; ++i)
            last = &tarn.addChild(*childOf(*last, "subNodes"), "any", top.getObjectType());
        return top;
    };
    EXPECT_TRUE(chain() == chain());
}

}  // namespace
