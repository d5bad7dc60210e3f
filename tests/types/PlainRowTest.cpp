// The list of the plain types, against what is written down of them.
#include "types/PlainTypes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using types::FieldKind;

struct Expected {
    int number;
    std::string text;
    FieldKind kind;
};

const std::vector<Expected> expected = {
    {1, "xs:string", FieldKind::Text},     {2, "xs:int", FieldKind::Int},
    {3, "xs:integer", FieldKind::Int},     {4, "xs:decimal", FieldKind::Float},
    {5, "xs:time", FieldKind::Text},       {6, "xs:dateTime", FieldKind::Text},
    {7, "xs:boolean", FieldKind::Boolean}, {8, "xs:base64Binary", FieldKind::Binary},
    {9, "xs:float", FieldKind::Float},     {10, "xs:QName", FieldKind::Text}};

TEST(PlainRow, IsFoundByItsNumberAndByItsName) {
    ASSERT_EQ(types::plainCount, expected.size());
    for (const Expected& row : expected) {
        const types::PlainRow* const found = types::findPlain(row.number);
        ASSERT_NE(found, nullptr) << row.text;
        EXPECT_STREQ(found->text.data(), row.text.c_str());
        EXPECT_EQ(static_cast<int>(found->type), row.number);
        EXPECT_EQ(types::kindOf(row.number), row.kind) << row.text;
        EXPECT_EQ(types::findPlain(std::string_view(row.text).substr(3)), found);
    }
}

TEST(PlainRow, IsNotFoundForOtherNumbersAndNames) {
    for (const int number : {-1, 0, 11, 12, 0x116E90CF, static_cast<int>(0xC80D96B0)}) {
        EXPECT_EQ(types::findPlain(number), nullptr) << number;
        EXPECT_EQ(types::kindOf(number), FieldKind::Object) << number;
    }
    for (const char* const name : {"", "xs:int", "Int", "ints", "long"})
        EXPECT_EQ(types::findPlain(std::string_view(name)), nullptr) << name;
}

TEST(FieldKinds, ArePointersValuesOrArrays) {
    for (const FieldKind kind : {FieldKind::Object, FieldKind::Text, FieldKind::Binary}) {
        EXPECT_TRUE(types::isPointer(kind));
        EXPECT_FALSE(types::isValue(kind));
    }
    for (const FieldKind kind : {FieldKind::Boolean, FieldKind::Int, FieldKind::Float}) {
        EXPECT_FALSE(types::isPointer(kind));
        EXPECT_TRUE(types::isValue(kind));
    }
    for (const FieldKind kind :
         {FieldKind::EmbeddedArray, FieldKind::OptionalArray, FieldKind::UnlistedArray}) {
        EXPECT_FALSE(types::isPointer(kind));
        EXPECT_FALSE(types::isValue(kind));
    }
}

TEST(FieldKinds, VisitsOnlyValuesAndWithTheirZero) {
    std::string seen;
    const auto note = [&](auto zero) {
        EXPECT_EQ(zero, decltype(zero){});
        seen += types::valueName<decltype(zero)>;
        seen += ' ';
    };
    EXPECT_TRUE(types::visitValue(FieldKind::Boolean, note));
    EXPECT_TRUE(types::visitValue(FieldKind::Int, note));
    EXPECT_TRUE(types::visitValue(FieldKind::Float, note));
    EXPECT_FALSE(types::visitValue(FieldKind::Object, note));
    EXPECT_FALSE(types::visitValue(FieldKind::EmbeddedArray, note));
    EXPECT_EQ(seen, "boolean int float ");
}

}  // namespace
