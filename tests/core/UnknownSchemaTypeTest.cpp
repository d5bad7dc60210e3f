#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVASchedule.h>
#include <korva/KORVAUnknownSchemaType.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(UnknownSchemaType, StartsWithoutAName) {
    const KORVAUnknownSchemaType object;
    EXPECT_STREQ(object.getName(), "");
    EXPECT_STREQ(object.generatedObjectName(), "");
    EXPECT_EQ(object.getGeneratedObjectName(), "");
}

TEST(UnknownSchemaType, RemembersItsName) {
    std::string name("bus:stranger");
    KORVAUnknownSchemaType object(name);
    name = "changed";
    EXPECT_STREQ(object.getName(), "bus:stranger");
    EXPECT_STREQ(object.generatedObjectName(), "bus:stranger");
    EXPECT_EQ(object.getGeneratedObjectName(), "bus:stranger");
    object.setName("another");
    EXPECT_STREQ(object.getName(), "another");
    EXPECT_EQ(object.getGeneratedObjectName(), "another");
}

TEST(UnknownSchemaType, IsUnknownAndNothingElse) {
    const KORVAUnknownSchemaType object;
    EXPECT_EQ(object.getObjectType(), KORVASchemaTypeI::e_Unknown);
    EXPECT_TRUE(object.isa(KORVASchemaTypeI::e_Unknown));
    EXPECT_FALSE(object.isa(KORVASchemaTypeI::eString));
    EXPECT_FALSE(object.isa(KORVASchemaTypeI::eKORVASchedule));
}

TEST(UnknownSchemaType, HasNoChildren) {
    KORVAUnknownSchemaType object;
    KORVASchedule child;
    EXPECT_EQ(object.setChildObject("child", &child, KORVASchemaTypeI::eKORVASchedule, nullptr),
              0u);
    EXPECT_EQ(object.getChildObject("child", false), nullptr);
    EXPECT_EQ(object.getChildObject("child", true), nullptr);
    EXPECT_EQ(object.getChildType("child"), KORVASchemaTypeI::e_Unknown);
    EXPECT_EQ(object.getChildObjectCount(), 0u);
    std::vector<const char*> names{"kept"};
    object.getChildObjectNames(names, true);
    EXPECT_EQ(names.size(), 1u);
}

TEST(UnknownSchemaType, TakesNullEverywhere) {
    KORVAUnknownSchemaType object;
    EXPECT_EQ(object.getChildObject(nullptr, false), nullptr);
    EXPECT_EQ(object.getChildType(nullptr), KORVASchemaTypeI::e_Unknown);
    EXPECT_EQ(object.setChildObject(nullptr, nullptr, KORVASchemaTypeI::eString, nullptr), 0u);
}

TEST(UnknownSchemaType, EqualsItselfOnly) {
    const KORVAUnknownSchemaType first(std::string("name"));
    const KORVAUnknownSchemaType second(std::string("name"));
    EXPECT_TRUE(first == first);
    EXPECT_FALSE(first != first);
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(first != second);
}

TEST(UnknownSchemaType, RaisesOutOfMemoryError) {
    const std::string name(100, 'x');
    EXPECT_EQ(korva::test::forEachFailingAllocation([&] { KORVAUnknownSchemaType object(name); }),
              1u);
    EXPECT_EQ(korva::test::forEachFailingAllocation([&] {
                  KORVAUnknownSchemaType object;
                  object.setName(name);
              }),
              1u);
}

}  // namespace
