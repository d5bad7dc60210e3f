// Words of open enumerations that the schema lacks: those that an object holds, and those that a
// program adds.

#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVADataEnum.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVA_OpenWords.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace {

using korva::test::crcOf;
using korva::test::makeRegistry;
using korva::test::TextBuffer;
using Enum = KORVARunOptionEnum;

std::string wordOf(KORVASchemaTypeI& object) {
    return static_cast<const char*>(object.getChildObject("", false));
}

TEST(OtherWord, IsHeldAsItStands) {
    const auto registry = makeRegistry();
    Enum option;
    const char* const word = "heldAsItStands";
    EXPECT_FALSE(option.setWord(word, *registry));
    EXPECT_STREQ(option.getOtherWord(), word);
    EXPECT_NE(option.getOtherWord(), word);
    EXPECT_EQ(option.getValue(), Enum::eKORVA_OtherWord);
    EXPECT_STREQ(option.toString(), word);
    EXPECT_EQ(wordOf(option), word);
}

TEST(OtherWord, IsNoneWhereTheSchemaHasTheWord) {
    const auto registry = makeRegistry();
    Enum option;
    option.setWord("heldAsItStands", *registry);
    EXPECT_TRUE(option.setWord("prompt", *registry));
    EXPECT_EQ(option.getOtherWord(), nullptr);
    EXPECT_EQ(option.getValue(), Enum::eKORVAPrompt);
}

TEST(OtherWord, GoesWithEachValueThatIsSet) {
    const auto registry = makeRegistry();
    TextBuffer prompt("prompt");
    const std::vector<void (*)(Enum&, TextBuffer&)> setters = {
        [](Enum& option, TextBuffer&) { option.setValue(Enum::eKORVAPrompt); },
        [](Enum& option, TextBuffer&) { option.setValue("prompt"); },
        [](Enum& option, TextBuffer& text) {
            option.setChildObject("", static_cast<ZELByteBuffer*>(&text), KORVASchemaTypeI::eString,
                                  nullptr);
        }};
    for (const auto set : setters) {
        Enum option;
        option.setWord("heldAsItStands", *registry);
        set(option, prompt);
        EXPECT_EQ(option.getOtherWord(), nullptr);
        EXPECT_STREQ(option.toString(), "prompt");
    }
}

TEST(OtherWord, OfNoCharactersIsNoWord) {
    const auto registry = makeRegistry();
    Enum option;
    EXPECT_TRUE(option.setWord("", *registry));
    EXPECT_EQ(option.getValue(), Enum::eKOVRAUninitialized);
}

TEST(OtherWord, IsComparedByItsText) {
    const auto registry = makeRegistry();
    Enum left;
    Enum right;
    left.setWord("heldAsItStands", *registry);
    right.setWord("heldAsItStands", *registry);
    EXPECT_TRUE(left == right);
    right.setWord("another", *registry);
    EXPECT_FALSE(left == right);
    right.setValue(Enum::eKORVA_OtherWord);
    EXPECT_FALSE(left == right);
}

TEST(OtherWord, IsCopiedIntoTheRegistryOfTheCopy) {
    const auto registry = makeRegistry();
    KORVASchemaTypeI* copy = nullptr;
    {
        const std::string word = "heldAsItStands";
        Enum option;
        option.setWord(word.c_str(), *registry);
        copy = &KORVASchemaTypesFactory::getInstance().createCopy(option, *registry);
    }
    EXPECT_EQ(wordOf(*copy), "heldAsItStands");
    EXPECT_EQ(static_cast<Enum&>(*copy).getValue(), Enum::eKORVA_OtherWord);
}

TEST(OtherWord, IsRefusedByAClosedEnumeration) {
    const auto registry = makeRegistry();
    KORVASeverityEnum severity;
    EXPECT_FALSE(severity.isOpen());
    EXPECT_NUMBERED(severity.setWord("grave", *registry), 0xEA45DC29, "_stringToEnum()",
                    "severityEnum:grave");
}

TEST(OtherWord, HasNoTextOfItsOwn) {
    Enum option;
    option.setValue(Enum::eKORVA_OtherWord);
    EXPECT_ASSERTION(option.toString(), "ZEL_ASSERT_NAMED(false, \"invalid enum\");");
}

TEST(OpenWords, AreTakenWhereverWordsAre) {
    const auto registry = makeRegistry();
    const int value = KORVA_OpenWords::add("runOptionEnum", "addedByAProgram");
    EXPECT_EQ(value, static_cast<int>(crcOf("addedByAProgram")));
    Enum option;
    option.setValue("addedByAProgram");
    EXPECT_EQ(option.getValue(), static_cast<Enum::Enum>(value));
    EXPECT_EQ(option.getOtherWord(), nullptr);
    EXPECT_STREQ(option.toString(), "addedByAProgram");
    EXPECT_EQ(Enum::stringToEnum("addedByAProgram"), static_cast<Enum::Enum>(value));
    EXPECT_TRUE(option.setWord("addedByAProgram", *registry));
    EXPECT_EQ(wordOf(option), "addedByAProgram");
}

TEST(OpenWords, AreThoseOfOneEnumeration) {
    KORVA_OpenWords::add("runOptionEnum", "ofRunOptionsOnly");
    EXPECT_NUMBERED(KORVADataEnum::stringToEnum("ofRunOptionsOnly"), 0xEA45DC29, "_stringToEnum()",
                    "dataEnum:ofRunOptionsOnly");
}

TEST(OpenWords, AddedAgainChangeNothing) {
    const int value = KORVA_OpenWords::add("dataEnum", "twice");
    const char* const text = KORVADataEnum::enumToString(static_cast<KORVADataEnum::Enum>(value));
    EXPECT_EQ(KORVA_OpenWords::add("dataEnum", "twice"), value);
    EXPECT_EQ(KORVADataEnum::enumToString(static_cast<KORVADataEnum::Enum>(value)), text);
    EXPECT_EQ(KORVA_OpenWords::add("runOptionEnum", "prompt"), Enum::eKORVAPrompt);
}

TEST(OpenWords, AreForOpenEnumerationsOnly) {
    for (const char* const name : {"severityEnum", "runOption", "noSuchEnum", ""})
        EXPECT_NUMBERED(KORVA_OpenWords::add(name, "word"), 0xEA4F0010, "KORVA_OpenWords::add()",
                        name);
}

TEST(OpenWords, WithTheValueOfAnotherAreRefused) {
    // Two texts with one CRC-32.
    KORVA_OpenWords::add("runOptionEnum", "plumless");
    EXPECT_NUMBERED(KORVA_OpenWords::add("runOptionEnum", "buckeroo"), 0xEA4F0011,
                    "KORVA_OpenWords::add()", "buckeroo", "runOptionEnum", "plumless");
    EXPECT_NUMBERED(Enum::stringToEnum("buckeroo"), 0xEA45DC29, "_stringToEnum()",
                    "runOptionEnum:buckeroo");
}

TEST(OpenWords, AreNoNulls) {
    EXPECT_ASSERTION(KORVA_OpenWords::add(nullptr, "word"), "ZEL_ASSERT(enumeration);");
    EXPECT_ASSERTION(KORVA_OpenWords::add("dataEnum", nullptr), "ZEL_ASSERT(word);");
    EXPECT_ASSERTION(KORVA_OpenWords::add("dataEnum", ""), "ZEL_ASSERT(*word != '\\0');");
}

TEST(OpenWordsThread, MayBeAddedWhileOthersAreRead) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([thread] {
            for (int i = 0; i < 50; ++i) {
                const std::string word =
                    "word" + std::to_string(thread % 2) + "Of" + std::to_string(i);
                const int value = KORVA_OpenWords::add("runOptionEnum", word.c_str());
                EXPECT_EQ(Enum::enumToString(static_cast<Enum::Enum>(value)), word);
                EXPECT_EQ(Enum::stringToEnum(word.c_str()), value);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace
