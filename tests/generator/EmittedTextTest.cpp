#include "generator/emit/Text.h"
#include "generator/reader/Reading.h"

#include <gtest/gtest.h>

#include <string>

namespace korva::schemac::emit {
namespace {

TEST(DocComment, FitsIntoTheColumnsAtItsIndentation) {
    std::string text;
    for (int i = 0; i < 80; ++i)
        text.append("word").append(std::to_string(i)).append(" ");
    text.pop_back();
    std::string comment = docComment(text, 8);
    std::string joinedAgain;
    std::size_t lines = 0;
    while (!comment.empty()) {
        const std::size_t end = comment.find('\n');
        ASSERT_LE(end + 8, 100U);
        ASSERT_TRUE(comment.starts_with("/// "));
        joinedAgain = joined(joinedAgain, comment.substr(4, end - 4));
        ++lines;
        comment.erase(0, end + 1);
    }
    EXPECT_EQ(joinedAgain, text);
    EXPECT_GT(lines, 5U);
}

TEST(DocComment, KeepsParagraphsApart) {
    EXPECT_EQ(docComment("one\n\ntwo", 4), "/// one\n///\n/// two\n");
    EXPECT_EQ(docComment("", 4), "");
}

TEST(DocComment, NeverEndsALineInABackslash) {
    EXPECT_EQ(docComment("path C:\\", 0), "/// path C:\\.\n");
}

TEST(DocComment, LeavesAWordThatIsTooLongInOnePiece) {
    const std::string longWord(150, 'x');
    EXPECT_EQ(docComment("a " + longWord + " b", 0), "/// a\n/// " + longWord + "\n/// b\n");
}

TEST(Literal, EscapesWhatACompilerWouldReadOtherwise) {
    EXPECT_EQ(literal("plain text"), "\"plain text\"");
    EXPECT_EQ(literal("a\"b\\c?"), "\"a\\\"b\\\\c\\?\"");
    EXPECT_EQ(literal("\xC3\xB6"
                      "1\n"),
              "\"\\303\\2661\\012\"");
}

TEST(Sentence, EndsInPunctuation) {
    EXPECT_EQ(sentence("A folder"), "A folder.");
    EXPECT_EQ(sentence("A folder."), "A folder.");
    EXPECT_EQ(sentence(""), "");
}

TEST(SourceName, KeepsTheLastTwoParts) {
    EXPECT_EQ(sourceName("/home/x/build/schema/bus.xsd"), "schema/bus.xsd");
    EXPECT_EQ(sourceName("schema/bus.xsd"), "schema/bus.xsd");
    EXPECT_EQ(sourceName("bus.xsd"), "bus.xsd");
}

TEST(Hex, PrintsTheIdentityAsAnUnsignedNumber) {
    EXPECT_EQ(hex(0x5A3811FB), "0x5A3811FBU");
    EXPECT_EQ(hex(-1), "0xFFFFFFFFU");
}

TEST(EnumeratorValue, IsTheIdentityInHexAsAnInt) {
    EXPECT_EQ(enumeratorValue(0x5A3811FB), "int(0x5A3811FBU)");
    EXPECT_EQ(enumeratorValue(-1), "int(0xFFFFFFFFU)");
}

TEST(Includes, AreSortedAndEachStandsOnce) {
    EXPECT_EQ(includes({"B", "A", "B"}), "#include <korva/A.h>\n#include <korva/B.h>\n");
    EXPECT_EQ(forwards({"B", "A", "B"}), "class A;\nclass B;\n");
}

TEST(Paragraphs, AreCollapsedToALineEach) {
    EXPECT_EQ(reading::paragraphs("\n   one\n   two\n  \n\n  three  four \n"),
              "one two\n\nthree four");
    EXPECT_EQ(reading::paragraphs(" \n "), "");
}

}  // namespace
}  // namespace korva::schemac::emit
