#include "tests/support/ExpectThrow.h"
#include "tests/support/FreeObject.h"

#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAFloatProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVAIntProp.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_Children.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace {

using korva::children;
using korva::test::FreeObject;
using Object = KORVASchemaTypeI;

/// The child called `name`, which must be there.
KORVA_Child childOf(const Object& object, const std::string& name) {
    for (const KORVA_Child& child : children(object))
        if (child.name() == name) return child;
    ADD_FAILURE() << "no child " << name;
    return {"", Object::e_Unknown, nullptr};
}

TEST(Children, AreThoseOfTheReflectiveContractInItsOrder) {
    KORVAWarden warden;
    warden.setAction("logon");
    std::vector<const char*> names;
    warden.getChildObjectNames(names, true);
    const KORVA_Children range = children(warden);
    ASSERT_EQ(range.size(), names.size());
    for (std::size_t i = 0; i != names.size(); ++i) {
        EXPECT_EQ(range[i].name(), names[i]);
        EXPECT_EQ(range[i].type(), warden.getChildType(names[i]));
        EXPECT_EQ(range[i].isNull(), warden.getChildObject(names[i], false) == nullptr) << names[i];
        EXPECT_FALSE(range[i].isElement());
    }
    EXPECT_EQ(childOf(warden, "action").asText(), "logon");
    EXPECT_EQ(childOf(warden, "WardenPassport").asObject(), nullptr);
}

TEST(Children, OfAnArrayAreCountedFromZero) {
    KORVAStringArray texts;
    texts.push_back("a");
    texts.push_back(nullptr);
    const KORVA_Children range = children(texts);
    ASSERT_EQ(range.size(), 2u);
    EXPECT_TRUE(range[0].isElement());
    EXPECT_EQ(range[0].index(), 0u);
    EXPECT_EQ(range[0].name(), "0");
    EXPECT_EQ(range[0].asText(), "a");
    EXPECT_EQ(range[1].name(), "1");
    EXPECT_TRUE(range[1].isNull());
    EXPECT_EQ(range[1].asText(), std::nullopt);
    EXPECT_TRUE(children(KORVAIntArray()).empty());
}

TEST(Children, OfATextAreTheTextWithoutAName) {
    KORVAGuid guid;
    guid.setValue("an id");
    KORVASeverityEnum severity;
    ASSERT_EQ(children(guid).size(), 1u);
    EXPECT_EQ(children(guid)[0].name(), "");
    EXPECT_EQ(children(guid)[0].asText(), "an id");
    ASSERT_EQ(children(severity).size(), 1u);
    EXPECT_TRUE(children(severity)[0].isNull());
    severity.setValue("warn");
    EXPECT_EQ(children(severity)[0].asText(), "warn");
}

TEST(Children, OfAForeignObjectAreAskedByName) {
    int number = 7;
    const FreeObject object({{"number", Object::eInt, &number}});
    EXPECT_EQ(childOf(object, "number").asInt(), 7);
}

TEST(Children, OfAnUndocumentedDetailCannotBeWalked) {
    const KORVAUndocumentedFaultDetail detail;
    EXPECT_THROW(children(detail), ZELAssertError);
}

TEST(Children, TellValuesByTheirKinds) {
    KORVAIntProp number;
    KORVABooleanProp boolean;
    KORVAFloatProp decimal;
    EXPECT_EQ(childOf(number, "value").asInt(), std::nullopt);
    EXPECT_EQ(childOf(boolean, "value").asBoolean(), std::nullopt);
    EXPECT_EQ(childOf(decimal, "value").asFloat(), std::nullopt);
    number.setValue(3);
    boolean.setValue(false);
    decimal.setValue(1.25F);
    EXPECT_EQ(childOf(number, "value").asInt(), 3);
    EXPECT_EQ(childOf(boolean, "value").asBoolean(), false);
    EXPECT_EQ(childOf(decimal, "value").asFloat(), 1.25F);
    KORVAWarden warden;
    KORVAXSBase64Binary blob("bytes", 5);
    warden.setSecurityBlob(&blob);
    EXPECT_EQ(childOf(warden, "securityBlob").asBinary(), &blob);
    EXPECT_EQ(childOf(warden, "userSessionID").asBinary(), nullptr);
}

TEST(Children, OfObjectsThatConsistOfTextAreTexts) {
    KORVAGuid guid;
    guid.setValue("an id");
    int dummy = 0;
    const FreeObject object({{"guid", Object::eKORVAGuid, static_cast<Object*>(&guid)},
                             {"number", Object::eInt, &dummy}});
    EXPECT_EQ(childOf(object, "guid").asText(), "an id");
    EXPECT_EQ(childOf(object, "guid").asObject(), &guid);
}

TEST(Children, GiveAStreamedTextEitherWay) {
    KORVA_CharStreamable streamed;
    streamed.initialize("streamed", false);
    KORVAStringProp text;
    text.setValue(streamed.asCharStar());
    EXPECT_EQ(childOf(text, "value").asText(), "streamed");
    EXPECT_EQ(childOf(text, "value").asCharStar(), streamed.asCharStar());
}

TEST(Children, RefuseToBeReadAsAnotherKind) {
    KORVAFolder folder;
    KORVAStringProp path;
    folder.setSearchPath(&path);
    KORVAIntProp number;
    number.setValue(1);
    const KORVA_Child object = childOf(folder, "searchPath");
    const KORVA_Child value = childOf(number, "value");
    constexpr unsigned id = 0xEA4F0032U;
    EXPECT_NUMBERED(object.asInt(), id, "KORVA_Child", "A whole number", "searchPath",
                    "a value of the type KORVAStringProp");
    EXPECT_NUMBERED(object.asText(), id, "KORVA_Child", "A text", "searchPath",
                    "a value of the type KORVAStringProp");
    EXPECT_NUMBERED(object.asCharStar(), id, "KORVA_Child", "A text", "searchPath",
                    "a value of the type KORVAStringProp");
    EXPECT_NUMBERED(object.asBinary(), id, "KORVA_Child", "A binary", "searchPath",
                    "a value of the type KORVAStringProp");
    EXPECT_NUMBERED(value.asObject(), id, "KORVA_Child", "An object", "value",
                    "a value of the type xs:int");
    EXPECT_NUMBERED(value.asBoolean(), id, "KORVA_Child", "A boolean", "value",
                    "a value of the type xs:int");
    EXPECT_NUMBERED(value.asFloat(), id, "KORVA_Child", "A float or decimal", "value",
                    "a value of the type xs:int");
    EXPECT_NUMBERED(childOf(folder, "storeID").asInt(), id, "KORVA_Child", "A whole number",
                    "storeID", "a value of the type bus:guidProp");
}

TEST(Children, DescribeWhatIsThere) {
    KORVAFolder folder;
    KORVAGuid guid;
    guid.setValue("an id");
    KORVABaseClassArrayProp parents;
    parents.getValue().push_back(&folder);
    KORVAXSBase64Binary blob("bytes", 5);
    int number = -3;
    float decimal = 0.5F;
    bool boolean = true;
    char text[] = "a text";
    const FreeObject object({{"null", Object::eString, nullptr},
                             {"text", Object::eString, text},
                             {"int", Object::eInt, &number},
                             {"float", Object::eFloat, &decimal},
                             {"boolean", Object::eBoolean, &boolean},
                             {"binary", Object::eBase64Binary, &blob},
                             {"guid", Object::eKORVAGuid, static_cast<Object*>(&guid)},
                             {"folder", Object::eKORVAFolder, static_cast<Object*>(&folder)}});
    std::vector<std::string> texts;
    for (const KORVA_Child& child : children(object))
        texts.push_back(child.describe());
    EXPECT_EQ(texts, (std::vector<std::string>{"null", "a text", "-3", "0.5", "true", "5 bytes",
                                               "an id", "KORVAFolder"}));
    EXPECT_EQ(childOf(parents, "value").describe(), "KORVABaseClassArray[1]");
}

}  // namespace
