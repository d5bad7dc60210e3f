#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAGuid.h>
#include <korva/KORVASearchPathMultipleObject.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASpecification.h>
#include <korva/KORVAXmlEncodedXML.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

TEST(RestrictedString, FreshObjectHasNoText) {
    KORVAGuid guid;
    EXPECT_EQ(guid.getValue(), nullptr);
    EXPECT_EQ(guid.getChildObject("", false), nullptr);
}

TEST(RestrictedString, TextIsStoredAsItStands) {
    KORVAGuid guid;
    const char text[] = "anything, for nothing is checked";
    guid.setValue(text);
    EXPECT_EQ(guid.getValue(), text);
    EXPECT_EQ(guid.getChildObject("", false), text);
    guid.setValue(nullptr);
    EXPECT_EQ(guid.getValue(), nullptr);
}

TEST(RestrictedString, NullNameIsNoError) {
    KORVAGuid guid;
    guid.setValue("text");
    EXPECT_EQ(guid.getChildObject(nullptr, false), guid.getValue());
    EXPECT_EQ(guid.getChildObject(nullptr, true), guid.getValue());
    EXPECT_EQ(guid.getChildType(nullptr), Object::eString);
    TextBuffer buffer("other");
    EXPECT_EQ(guid.setChildObject(nullptr, &buffer, Object::eString, nullptr), 0u);
    EXPECT_EQ(guid.getValue(), buffer.str());
}

TEST(RestrictedString, ChildIsTheTextUnderTheEmptyName) {
    KORVASpecification specification;
    EXPECT_EQ(specification.getChildObjectCount(), 1u);
    std::vector<const char*> names;
    specification.getChildObjectNames(names, true);
    ASSERT_EQ(names.size(), 1u);
    EXPECT_STREQ(names[0], "");
    EXPECT_EQ(specification.getChildType("anything"), Object::eString);
}

TEST(RestrictedString, IsSetFromABufferWhateverTheName) {
    KORVAGuid guid;
    TextBuffer buffer("text");
    for (const char* const name : {"", "anything"}) {
        guid.setValue(nullptr);
        EXPECT_EQ(guid.setChildObject(name, &buffer, Object::eString, nullptr), 0u);
        EXPECT_EQ(guid.getValue(), buffer.str());
    }
}

TEST(RestrictedString, CharStreamableIsStoredUnreadAlsoWhenItIsNull) {
    KORVAGuid guid;
    KORVA_CharStreamable streamable;
    for (const char* const name : {"", "anything", static_cast<const char*>(nullptr)}) {
        guid.setValue(nullptr);
        EXPECT_EQ(guid.setChildObject(name, &streamable, Object::eCharStreamable, nullptr), 0u);
        EXPECT_EQ(guid.getValue(), streamable.asCharStar());
    }
    EXPECT_EQ(guid.setChildObject("", nullptr, Object::eCharStreamable, nullptr), 0u);
    EXPECT_EQ(guid.getValue(), nullptr);
}

TEST(RestrictedString, NullBufferIsAnAssertion) {
    KORVAGuid guid;
    guid.setValue("kept");
    EXPECT_ASSERTION(guid.setChildObject("", nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(obj);");
    EXPECT_STREQ(guid.getValue(), "kept");
}

TEST(RestrictedString, OtherTypesAreRefusedBeforeTheObjectIsLookedAt) {
    KORVAGuid guid;
    EXPECT_TYPE_ERROR(guid.setChildObject("child", nullptr, Object::eInt, nullptr), "guid", "child",
                      "xs:string", "xs:int");
    EXPECT_TYPE_ERROR(guid.setChildObject(nullptr, nullptr, Object::eKORVAGuid, nullptr), "guid",
                      "", "xs:string", "bus:guid");
    EXPECT_EQ(guid.getValue(), nullptr);
}

TEST(RestrictedString, ComparesByClassAndByte) {
    const std::string first("/content/a");
    const std::string second("/content/a");
    KORVASearchPathSingleObject left;
    KORVASearchPathSingleObject right;
    EXPECT_TRUE(left == right);
    left.setValue(first.c_str());
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    right.setValue(second.c_str());
    EXPECT_TRUE(left == right);
    right.setValue("/content/A");
    EXPECT_FALSE(left == right);
    right.setValue("/content//a");
    EXPECT_TRUE(left != right);
    KORVASearchPathMultipleObject other;
    other.setValue("/content/a");
    EXPECT_FALSE(left == other);
    EXPECT_TRUE(left == left);
}

TEST(RestrictedString, IsaIsItsOwnIdentityOnly) {
    const KORVAGuid guid;
    EXPECT_TRUE(guid.isa(Object::eKORVAGuid));
    EXPECT_FALSE(guid.isa(Object::eKORVASpecification));
    EXPECT_FALSE(guid.isa(Object::eString));
}

TEST(RestrictedString, CopyHasATextOfItsOwn) {
    const Registry registry = makeRegistry();
    std::string text("text");
    KORVAGuid guid;
    const KORVAGuid empty(guid, *registry);
    EXPECT_EQ(empty.getValue(), nullptr);
    EXPECT_EQ(registry->size(), 0u);
    guid.setValue(text.c_str());
    const KORVAGuid copy(guid, *registry);
    text = "gone";
    EXPECT_STREQ(copy.getValue(), "text");
    EXPECT_EQ(registry->size(), 1u);
}

TEST(RestrictedString, EncodedXmlIsNeitherDecodedNorParsed) {
    const Registry registry = makeRegistry();
    KORVAXmlEncodedXML xml;
    TextBuffer text("&lt;a>&amp;amp; <not closed");
    xml.setChildObject("", &text, Object::eString, nullptr);
    EXPECT_STREQ(xml.getValue(), "&lt;a>&amp;amp; <not closed");
    const KORVAXmlEncodedXML copy(xml, *registry);
    EXPECT_STREQ(copy.getValue(), "&lt;a>&amp;amp; <not closed");
}

}  // namespace
