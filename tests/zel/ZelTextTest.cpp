#include <zel/ZELText.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

TEST(Text, IsEmptyAtFirstAndFromNull) {
    EXPECT_STREQ(ZELText().get(), "");
    EXPECT_STREQ(ZELText(nullptr).get(), "");
    EXPECT_STREQ(ZELText::fromLiteral(nullptr).get(), "");
}

TEST(Text, CopiesItsCharactersAndSharesThemWithItsCopies) {
    auto source = std::make_unique<std::string>("some text");
    auto text = std::make_unique<ZELText>(source->c_str());
    source.reset();
    const ZELText copy(*text);
    EXPECT_EQ(copy.get(), text->get());
    text.reset();
    EXPECT_STREQ(copy.get(), "some text");
}

TEST(Text, LiteralIsKeptAsItStands) {
    static const char literal[] = "literal";
    EXPECT_EQ(ZELText::fromLiteral(literal).get(), literal);
}

TEST(Text, AssignmentReplaces) {
    ZELText text("first");
    const ZELText second("second");
    text = second;
    EXPECT_STREQ(text.get(), "second");
    const ZELText& same = text;
    text = same;
    EXPECT_STREQ(text.get(), "second");
}

}  // namespace
