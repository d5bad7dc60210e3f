#include <zel/ZELMessage.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

std::string filled(const char* pattern) {
    ZELMessage message("C", 9);
    message << ZELMessageParm("zero") << ZELMessageParm("{0}");
    std::string text = ">";
    message.fill(pattern, text);
    return text;
}

TEST(ZelMessage, FillReplacesNumberedPlaces) {
    EXPECT_EQ(filled("{0}"), ">zero");
    EXPECT_EQ(filled("a {0} b {0} c"), ">a zero b zero c");
    EXPECT_EQ(filled(""), ">");
    EXPECT_EQ(filled("nothing"), ">nothing");
}

TEST(ZelMessage, FillDoesNotLookIntoParameters) {
    EXPECT_EQ(filled("{1}{0}"), ">{0}zero");
}

TEST(ZelMessage, FillLeavesOtherBracesAlone) {
    EXPECT_EQ(filled("{2}"), ">{2}");
    EXPECT_EQ(filled("{99999999999999999999}"), ">{99999999999999999999}");
    EXPECT_EQ(filled("{"), ">{");
    EXPECT_EQ(filled("{0"), ">{0");
    EXPECT_EQ(filled("{}"), ">{}");
    EXPECT_EQ(filled("{-1}"), ">{-1}");
    EXPECT_EQ(filled("{{0}}"), ">{zero}");
    EXPECT_EQ(filled("{0x}"), ">{0x}");
}

TEST(ZelMessage, FillWithoutAPatternGivesTheBareForm) {
    EXPECT_EQ(filled(nullptr), ">C message 0x9: zero, {0}");
    std::string text;
    ZELMessage("C", 0xFFFFFFFFu).fill(nullptr, text);
    EXPECT_EQ(text, "C message 0xffffffff");
}

TEST(ZelMessage, ParametersComeFromEitherEncoding) {
    ZELMessage message("C", 1);
    message << ZELMessageParm(I18NString(u"gr\u00FC\u00DFe", 5));
    EXPECT_STREQ(message.getParms()[0].getText(),
                 "gr\xC3\xBC\xC3\x9F"
                 "e");
}

TEST(ZelMessage, CopiesAndMoves) {
    ZELMessage message("C", 1);
    message << ZELMessageParm("p");
    ZELMessage copy(message);
    copy << ZELMessageParm("q");
    EXPECT_EQ(message.getParms().size(), 1u);
    EXPECT_EQ(copy.getParms().size(), 2u);
    message = copy;
    EXPECT_EQ(message.getParms().size(), 2u);
    const ZELMessage moved(std::move(copy));
    EXPECT_EQ(moved.getParms().size(), 2u);
    EXPECT_EQ(moved.getId(), 1u);
    EXPECT_STREQ(moved.getComponent(), "C");
}

}  // namespace
