#include "tests/support/ExpectThrow.h"
#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNTypeError.h>

#include <gtest/gtest.h>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;

/// For an enumeration and a restricted string.
class TarnTextObject : public testing::TestWithParam<const char*> {
protected:
    TarnObjects tarn;
    TARNSchemaTypeI& object = tarn.make(GetParam());
};

TEST_P(TarnTextObject, StartsWithoutAText) {
    EXPECT_EQ(object.getChildObject("", false), nullptr);
    EXPECT_EQ(namesOf(object, true), std::vector<std::string>{""});
    EXPECT_TRUE(namesOf(object, false).empty());
    EXPECT_EQ(object.getChildObjectCount(), 1u);
    EXPECT_EQ(object.getChildType(""), Type::eString);
}

TEST_P(TarnTextObject, TakesItsTextUnderAnyName) {
    EXPECT_EQ(object.setChildObject("", tarn.text("a"), Type::eString, nullptr), 0u);
    EXPECT_STREQ(textOf(object, ""), "a");
    EXPECT_EQ(namesOf(object, false), std::vector<std::string>{""});
    tarn.setText(object, "any", "b");
    EXPECT_STREQ(textOf(object, "other"), "b");
}

TEST_P(TarnTextObject, TakesStreamedText) {
    TARN_CharStreamable& streamed = tarn.streamed("a");
    object.setChildObject("", &streamed, Type::eCharStreamable, nullptr);
    EXPECT_EQ(textOf(object, ""), streamed.asCharStar());
}

TEST_P(TarnTextObject, TakesNothingElse) {
    int number = 1;
    EXPECT_THROW(object.setChildObject("", &number, Type::eInt, nullptr), TARNTypeError);
    EXPECT_ASSERTION(object.setChildObject("", nullptr, Type::eString, nullptr),
                     "ZEL_ASSERT(value != NULL);");
    EXPECT_ASSERTION(object.setChildObject(nullptr, &number, Type::eInt, nullptr),
                     "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(object.getChildObject(nullptr, false), "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(object.getChildType(nullptr), "ZEL_ASSERT(name);");
}

TEST_P(TarnTextObject, IsNothingButItself) {
    EXPECT_TRUE(object.isa(tarnType(GetParam())));
    EXPECT_FALSE(object.isa(Type::eString));
}

INSTANTIATE_TEST_SUITE_P(Each, TarnTextObject, testing::Values("severityEnum", "guid"));

}  // namespace
