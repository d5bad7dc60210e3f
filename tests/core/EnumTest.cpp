#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchStatusEnum.h>
#include <korva/KORVAClassEnum.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVA_CharStreamable.h>
#include <tarn/tarnsymbols1.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;
using Severity = KORVASeverityEnum;

std::uint32_t crc(int value) {
    return static_cast<std::uint32_t>(value);
}

TEST(Enum, ValuesAreTheCrcsOfTheWords) {
    EXPECT_EQ(crc(Severity::eKORVADebug), 0x6CA547A7U);
    EXPECT_EQ(crc(Severity::eKORVAError), 0x5DDDBC71U);
    EXPECT_EQ(crc(Severity::eKORVAFatal), 0x38D0528FU);
    EXPECT_EQ(crc(Severity::eKORVAInfo), 0xCB893157U);
    EXPECT_EQ(crc(Severity::eKORVAWarn), 0x29BAB105U);
    EXPECT_EQ(Severity::eKOVRAUninitialized, 0);
}

TEST(Enum, ObjectHoldsOneWordOfData) {
    EXPECT_LE(sizeof(Severity), 2 * sizeof(void*));
}

TEST(Enum, WordsBecomeValuesAndBack) {
    for (const char* const word : {"debug", "error", "fatal", "info", "warn"}) {
        const Severity::Enum value = Severity::stringToEnum(word);
        EXPECT_STREQ(Severity::enumToString(value), word);
        EXPECT_EQ(Severity::enumToString(value), tarnsymbols1::getChar(crc(value)));
    }
    EXPECT_EQ(crc(Severity::stringToEnum("fatal")), 0x38D0528FU);
}

TEST(Enum, ConstantObjectTellsItsWord) {
    Severity severity;
    const Severity& constant = severity;
    EXPECT_STREQ(constant.toString(), "");
    severity.setValue(Severity::eKORVAWarn);
    EXPECT_STREQ(constant.toString(), "warn");
    EXPECT_STREQ(severity.toString(), "warn");
    severity.setValue(static_cast<Severity::Enum>(1));
    EXPECT_ASSERTION(constant.toString(), "ZEL_ASSERT_NAMED(false, \"invalid enum\");");
}

TEST(Enum, InternedWordGivesTheSameValue) {
    EXPECT_EQ(Severity::stringToEnum(tarnsymbols1::getChar(0x38D0528FU)), Severity::eKORVAFatal);
}

TEST(Enum, EmptyTextIsTheUninitializedValueAndBack) {
    EXPECT_EQ(Severity::stringToEnum(""), Severity::eKOVRAUninitialized);
    const char* const text = Severity::enumToString(Severity::eKOVRAUninitialized);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "");
}

TEST(Enum, NullTextIsAnAssertion) {
    EXPECT_ASSERTION(Severity::stringToEnum(nullptr), "ZEL_ASSERT(name);");
    Severity severity;
    EXPECT_ASSERTION(severity.setValue(static_cast<const char*>(nullptr)), "ZEL_ASSERT(name);");
}

TEST(Enum, UnknownWordTellsEnumerationAndWord) {
    for (const char* const word : {"Fatal", " fatal", "fata", "unheard-of"})
        EXPECT_NUMBERED(Severity::stringToEnum(word), 0xEA45DC29U, "_stringToEnum()",
                        "severityEnum:" + std::string(word));
    // A line break forges no line of a log.
    EXPECT_NUMBERED(Severity::stringToEnum("a\nb"), 0xEA45DC29U, "_stringToEnum()",
                    "severityEnum:a\\nb");
    // A word of another enumeration.
    EXPECT_NUMBERED(Severity::stringToEnum("complete"), 0xEA45DC29U, "_stringToEnum()",
                    "severityEnum:complete");
}

TEST(Enum, UnknownWordLeavesTheValueAsItWas) {
    Severity severity;
    severity.setValue("info");
    EXPECT_THROW(severity.setValue("unheard-of"), KORVAException);
    EXPECT_EQ(severity.getValue(), Severity::eKORVAInfo);
    severity.setValue("");
    EXPECT_EQ(severity.getValue(), Severity::eKOVRAUninitialized);
}

TEST(Enum, ForeignValueIsStoredAndRefusedWhenItIsToldAsText) {
    Severity severity;
    severity.setValue(static_cast<Severity::Enum>(7));
    EXPECT_EQ(severity.getValue(), 7);
    EXPECT_ASSERTION(severity.toString(), "ZEL_ASSERT_NAMED(false, \"invalid enum\");");
    EXPECT_ASSERTION(severity.getChildObject("", false),
                     "ZEL_ASSERT_NAMED(false, \"invalid enum\");");
    EXPECT_ASSERTION(Severity::enumToString(static_cast<Severity::Enum>(-1)),
                     "ZEL_ASSERT_NAMED(false, \"invalid enum\");");
}

TEST(Enum, FreshObjectIsUninitialized) {
    Severity severity;
    EXPECT_EQ(severity.getValue(), Severity::eKOVRAUninitialized);
    EXPECT_STREQ(severity.toString(), "");
    const char* const text =
        "ZEL_ASSERT_NAMED(m_value != KORVASeverityEnum::eKOVRAUninitialized, \"Enum not "
        "initialized.\");";
    EXPECT_ASSERTION(severity.getChildObject("", false), text);
    EXPECT_ASSERTION(severity.getChildObject(nullptr, true), text);
}

TEST(Enum, ChildIsTheWordUnderTheEmptyName) {
    Severity severity;
    EXPECT_EQ(severity.getChildObjectCount(), 1u);
    severity.setValue(Severity::eKORVAWarn);
    EXPECT_EQ(severity.getChildObjectCount(), 1u);
    std::vector<const char*> names;
    severity.getChildObjectNames(names, false);
    ASSERT_EQ(names.size(), 1u);
    EXPECT_STREQ(names[0], "");
    for (const char* const name : {"", "anything", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(severity.getChildType(name), Object::eString);
        EXPECT_STREQ(static_cast<const char*>(severity.getChildObject(name, false)), "warn");
    }
}

TEST(Enum, IsSetByNameFromABuffer) {
    Severity severity;
    TextBuffer word("error");
    for (const char* const name : {"", "anything"}) {
        severity.setValue(Severity::eKOVRAUninitialized);
        EXPECT_EQ(severity.setChildObject(name, &word, Object::eString, nullptr), 0u);
        EXPECT_EQ(severity.getValue(), Severity::eKORVAError);
    }
    TextBuffer unknown("unheard-of");
    EXPECT_NUMBERED(severity.setChildObject("", &unknown, Object::eString, nullptr), 0xEA45DC29U,
                    "_stringToEnum()", "severityEnum:unheard-of");
    EXPECT_EQ(severity.getValue(), Severity::eKORVAError);
}

TEST(Enum, SetRefusesNullAndOtherTypes) {
    Severity severity;
    TextBuffer word("error");
    int number = 1;
    EXPECT_ASSERTION(severity.setChildObject(nullptr, &word, Object::eString, nullptr),
                     "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(severity.setChildObject("", nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(obj);");
    EXPECT_TYPE_ERROR(severity.setChildObject("child", &number, Object::eInt, nullptr),
                      "severityEnum", "child", "xs:string", "xs:int");
    EXPECT_TYPE_ERROR(severity.setChildObject("", &number, Object::eKORVASeverityEnum, nullptr),
                      "severityEnum", "", "xs:string", "bus:severityEnum");
    KORVA_CharStreamable streamable;
    EXPECT_ASSERTION(
        severity.setChildObject("", &streamable, Object::eCharStreamable, nullptr),
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");");
    EXPECT_EQ(severity.getValue(), Severity::eKOVRAUninitialized);
}

TEST(Enum, CopyNeedsNoRegistry) {
    const korva::test::Registry registry = korva::test::makeRegistry();
    Severity severity;
    severity.setValue("debug");
    const Severity copy(severity, *registry);
    EXPECT_EQ(copy.getValue(), Severity::eKORVADebug);
    EXPECT_EQ(registry->size(), 0u);
}

TEST(Enum, ComparesByClassAndValue) {
    Severity left;
    Severity right;
    EXPECT_TRUE(left == right);
    left.setValue("info");
    EXPECT_FALSE(left == right);
    right.setValue("info");
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_TRUE(left == left);
}

TEST(Enum, SameWordInAnotherClassIsUnequal) {
    KORVAAsynchStatusEnum status;
    KORVAAsynchReplyStatusEnum replyStatus;
    EXPECT_FALSE(status == replyStatus);
    status.setValue("working");
    replyStatus.setValue("working");
    EXPECT_EQ(static_cast<int>(status.getValue()), static_cast<int>(replyStatus.getValue()));
    EXPECT_FALSE(status == replyStatus);
    EXPECT_TRUE(replyStatus != status);
}

TEST(Enum, IsaIsItsOwnIdentityOnly) {
    const Severity severity;
    EXPECT_TRUE(severity.isa(Object::eKORVASeverityEnum));
    EXPECT_FALSE(severity.isa(Object::eKORVAClassEnum));
    EXPECT_FALSE(severity.isa(Object::eString));
    EXPECT_FALSE(severity.isa(Object::e_Unknown));
}

TEST(Enum, ClassEnumNamesConcreteClassesAndTheTwoOptions) {
    EXPECT_EQ(KORVAClassEnum::stringToEnum("report"), KORVAClassEnum::eKORVAReport);
    EXPECT_EQ(static_cast<int>(KORVAClassEnum::eKORVAReport),
              static_cast<int>(Object::eKORVAReport));
    EXPECT_NO_THROW(KORVAClassEnum::stringToEnum("genericOptionObjectRef"));
    EXPECT_NO_THROW(KORVAClassEnum::stringToEnum("genericOptionObjectRefArray"));
    EXPECT_THROW(KORVAClassEnum::stringToEnum("uiClass"), KORVAException);
}

}  // namespace
