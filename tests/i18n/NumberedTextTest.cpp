#include <i18n/KORVAI18NRes.h>

#include <gtest/gtest.h>

#include <string>

namespace {

struct Row {
    unsigned number;
    const char* text;
};

const Row rows[] = {
    {0, "http://schemas.xmlsoap.org/soap/encoding/"},
    {1, "bus:"},
    {2, "http://www.w3.org/2001/XMLSchema"},
    {3, "http://www.w3.org/2001/XMLSchema-instance"},
    {4, "SOAP-ENC:Array"},
    {5, "SOAP-ENC:arrayType"},
    {6, "xmlns:bus"},
    {7, "xmlns:xsi"},
    {8, "xmlns:SOAP-ENC"},
    {9, "xmlns:xs"},
    {10, "xsi:type"},
    {11, "xsi:nil"},
    {12, "faultcode"},
    {13, "faultstring"},
    {14, "faultactor"},
    {15, "detail"},
    {16, "http://schemas.xmlsoap.org/soap/envelope/"},
    {17, KORVA_TEST_AUTHORITY "/schemas/halyardns/3/"},
    {18, "KORVA"},
    {19, "true"},
    {20, "false"},
};

TEST(NumberedText, EveryNumberGivesItsTextInEveryForm) {
    for (const Row& row : rows) {
        EXPECT_STREQ(KORVAI18NRes::getChar(row.number), row.text);
        EXPECT_EQ(KORVAI18NRes::getView(row.number), row.text);
        EXPECT_STREQ(KORVAI18NRes::getString(row.number).utf8(), row.text);
    }
}

TEST(NumberedText, SameNumberGivesTheSamePointer) {
    EXPECT_EQ(KORVAI18NRes::getChar(18), KORVAI18NRes::getChar(18));
}

TEST(NumberedText, OutsideTheTableAreNullAndTheEmptyText) {
    for (const unsigned number : {21u, 1000u, ~0u}) {
        EXPECT_EQ(KORVAI18NRes::getChar(number), nullptr);
        EXPECT_TRUE(KORVAI18NRes::getView(number).empty());
        EXPECT_TRUE(KORVAI18NRes::getString(number).empty());
        EXPECT_STREQ(KORVAI18NRes::getString(number).utf8(), "");
    }
}

TEST(NumberedText, WideFormHasTheSameLength) {
    const I18NString text = KORVAI18NRes::getString(KORVAI18NRes::eBusNamespace);
    EXPECT_EQ(std::u16string(text.wide(), text.wideLength()).size(),
              KORVAI18NRes::getView(KORVAI18NRes::eBusNamespace).size());
}

}  // namespace
