#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAAsynchOptionInt.h>
#include <korva/KORVAGenericOptionObjectRef.h>
#include <korva/KORVAGenericOptionString.h>
#include <korva/KORVALumara8OptionSaveAs.h>
#include <korva/KORVAOption.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVARunOptionArray.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionSaveAs.h>
#include <korva/KORVASchemaTypesFactory.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

TEST(Option, FamiliesCannotBeCreated) {
    const auto& factory = KORVASchemaTypesFactory::getInstance();
    EXPECT_NUMBERED(factory.create(Object::eKORVARunOption), 0xEA47EC7BU,
                    "KORVASchemaTypesFactory::create()", "bus:runOption");
    EXPECT_NUMBERED(factory.create(Object::eKORVAOption), 0xEA47EC7BU,
                    "KORVASchemaTypesFactory::create()", "bus:option");
}

TEST(Option, NameStandsInTheFamilyBeforeTheValue) {
    const KORVARunOptionBoolean option;
    std::vector<const char*> names;
    option.getChildObjectNames(names, true);
    ASSERT_EQ(names.size(), 2u);
    EXPECT_STREQ(names[0], "name");
    EXPECT_STREQ(names[1], "value");
    EXPECT_EQ(option.getChildType("name"), Object::eKORVARunOptionEnum);
    EXPECT_EQ(option.getChildType("value"), Object::eBoolean);
    EXPECT_TRUE(option.isa(Object::eKORVARunOption));
    EXPECT_TRUE(option.isa(Object::eKORVAOption));
    EXPECT_STREQ(KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(option.getObjectType()),
                 "bus:runOptionBoolean");
}

TEST(Option, AnArrayMixesFamiliesAndKeepsEachClass) {
    const Registry registry = makeRegistry();
    KORVARunOptionBoolean run;
    run.getName(registry.get())->setValue("prompt");
    run.setValue(true);
    KORVAAsynchOptionInt asynch;
    asynch.setValue(5);
    KORVAGenericOptionString generic;
    generic.setName("free text");
    KORVAOptionArray options;
    options.push_back(&run);
    options.push_back(&asynch);
    options.push_back(&generic);
    const KORVAOptionArray copy(options, *registry);
    ASSERT_EQ(copy.size(), 3u);
    EXPECT_EQ(copy.at(0)->getObjectType(), Object::eKORVARunOptionBoolean);
    EXPECT_EQ(copy.at(1)->getObjectType(), Object::eKORVAAsynchOptionInt);
    EXPECT_EQ(copy.at(2)->getObjectType(), Object::eKORVAGenericOptionString);
    EXPECT_TRUE(copy == options);
}

TEST(Option, FamilyArrayRefusesOtherFamilies) {
    KORVARunOptionArray options;
    KORVAAsynchOptionInt asynch;
    EXPECT_TYPE_ERROR(
        options.setChildObject("item", &asynch, Object::eKORVAAsynchOptionInt, nullptr),
        "runOptionArray", "<index>", "bus:runOption", "bus:asynchOptionInt");
}

TEST(Option, SaveAsHasThreeFieldsAndTheTwoFormsDifferInOne) {
    const KORVARunOptionSaveAs run;
    const KORVALumara8OptionSaveAs lumara;
    for (const KORVASchemaTypeI* const option : {static_cast<const KORVASchemaTypeI*>(&run),
                                                 static_cast<const KORVASchemaTypeI*>(&lumara)}) {
        std::vector<const char*> names;
        option->getChildObjectNames(names, true);
        const std::vector<std::string> texts(names.begin(), names.end());
        EXPECT_EQ(texts, (std::vector<std::string>{"name", "objectClass", "objectName",
                                                   "parentSearchPath"}));
        EXPECT_EQ(option->getChildType("objectName"), Object::eKORVAMultilingualTokenArray);
        EXPECT_EQ(option->getChildType("value"), Object::e_Unknown);
    }
    EXPECT_EQ(run.getChildType("parentSearchPath"), Object::eString);
    EXPECT_EQ(lumara.getChildType("parentSearchPath"), Object::eKORVASearchPathSingleObject);
    EXPECT_EQ(run.getChildType("objectClass"), Object::eKORVAReportSaveAsEnum);
    EXPECT_EQ(lumara.getChildType("objectClass"), Object::eKORVALumara8SaveAsEnum);
}

TEST(Option, GenericFamilyHasAFreeName) {
    const KORVAGenericOptionObjectRef option;
    EXPECT_EQ(option.getChildType("name"), Object::eString);
    EXPECT_EQ(option.getChildType("value"), Object::eKORVAGuid);
}

}  // namespace
