// The option families: a name from the family's enumeration, a value of the leaf's type.

#include "tests/support/ExpectThrow.h"
#include "tests/support/SchemaScan.h"
#include "tests/support/Tables.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVAClassEnum.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionString.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childrenOf;
using korva::test::childTypeOf;
using korva::test::isAbstract;
using korva::test::make;
using korva::test::optionFamilies;
using korva::test::OptionFamily;
using korva::test::OptionLeaf;
using korva::test::SchemaType;
using korva::test::typeOf;

TEST(OptionFamily, ThereAre34With131Leaves) {
    EXPECT_EQ(optionFamilies().size(), 34U);
    std::size_t leaves = 0;
    for (const OptionFamily& family : optionFamilies())
        leaves += family.leaves.size();
    EXPECT_EQ(leaves, 131U);
}

TEST(OptionFamily, NoOtherClassIsAnOption) {
    std::vector<std::string> expected = {"option"};
    for (const OptionFamily& family : optionFamilies()) {
        expected.push_back(family.name);
        for (const OptionLeaf& leaf : family.leaves)
            expected.push_back(leaf.name);
    }
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(builtSchema().derivedFrom("option"), expected);
}

TEST(OptionFamily, IsAbstractAndRefusedByTheFactory) {
    EXPECT_TRUE(isAbstract("option"));
    for (const OptionFamily& family : optionFamilies())
        EXPECT_TRUE(isAbstract(family.name)) << family.name;
    EXPECT_THROW(make("runOption"), KORVAException);
    EXPECT_NO_THROW(make("runOptionBoolean"));
}

TEST(OptionFamily, LeafHasTheFamilysNameAndAValueOfItsOwn) {
    for (const OptionFamily& family : optionFamilies()) {
        for (const OptionLeaf& leaf : family.leaves) {
            if (leaf.valueType == "-") continue;
            const auto option = make(leaf.name);
            EXPECT_TRUE(option->isa(typeOf(family.name))) << leaf.name;
            EXPECT_TRUE(option->isa(KORVASchemaTypeI::eKORVAOption)) << leaf.name;
            EXPECT_EQ(childrenOf(*option), (std::vector<std::string>{"name", "value"}))
                << leaf.name;
            EXPECT_EQ(childTypeOf(*option, "name"), family.nameType) << leaf.name;
            EXPECT_EQ(childTypeOf(*option, "value"), leaf.valueType) << leaf.name;
        }
    }
}

TEST(OptionFamily, TwoLeavesHaveARecordInPlaceOfAValue) {
    for (const char* const name : {"runOptionSaveAs", "lumara8OptionSaveAs"})
        EXPECT_EQ(
            childrenOf(*make(name)),
            (std::vector<std::string>{"name", "objectClass", "objectName", "parentSearchPath"}));
    EXPECT_EQ(childTypeOf(*make("runOptionSaveAs"), "parentSearchPath"), "xs:string");
    EXPECT_EQ(childTypeOf(*make("lumara8OptionSaveAs"), "parentSearchPath"),
              "bus:searchPathSingleObject");
}

TEST(OptionFamily, HasAsManyNamesAsAreKnownOrOpen) {
    for (const OptionFamily& family : optionFamilies()) {
        if (family.nameType == "xs:string") {
            EXPECT_EQ(family.name, "genericOption");
            EXPECT_EQ(family.nameCount, "free");
            continue;
        }
        const SchemaType& names =
            builtSchema().at(family.nameType.substr(std::string("bus:").size()));
        EXPECT_EQ(std::to_string(names.words.size() + static_cast<std::size_t>(names.openWords)),
                  family.nameCount)
            << family.name;
    }
}

TEST(OptionFamily, NameWithTheLeafOfAnotherTypeIsNoError) {
    KORVARunOptionBoolean option;
    KORVARunOptionEnum name;
    name.setValue("outputLocation");
    option.setName(&name);
    option.setValue(true);
    EXPECT_STREQ(option.getName()->toString(), "outputLocation");
    EXPECT_TRUE(*option.getValue());
}

TEST(OptionFamily, LeafWithoutAValueHasItsNameOnly) {
    KORVARunOptionEnum name;
    name.setValue("saveOutput");
    KORVARunOptionBoolean flag;
    flag.setName(&name);
    EXPECT_EQ(flag.getValue(), nullptr);
    EXPECT_EQ(flag.getChildObject("value", false), nullptr);
    EXPECT_EQ(flag.getChildObject("name", false), &name);
    KORVARunOptionString text;
    text.setName(&name);
    EXPECT_EQ(text.getValue(), nullptr);
    EXPECT_EQ(text.getChildObject("value", false), nullptr);
}

TEST(OptionFamily, TwoLeavesStandInTheEnumerationOfClassesThoughNoContentObjects) {
    for (const char* const name : {"genericOptionObjectRef", "genericOptionObjectRefArray"}) {
        KORVAClassEnum objectClass;
        objectClass.setValue(name);
        EXPECT_STREQ(objectClass.toString(), name);
        EXPECT_FALSE(make(name)->isa(KORVASchemaTypeI::eKORVABaseClass)) << name;
    }
    EXPECT_EQ(childTypeOf(*make("genericOptionObjectRef"), "value"), "bus:guid");
    EXPECT_EQ(childTypeOf(*make("genericOptionObjectRefArray"), "value"), "bus:guidArray");
}

}  // namespace
