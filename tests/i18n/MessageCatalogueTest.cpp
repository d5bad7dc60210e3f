#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageCatalogue.h>
#include <i18n/KORVAMessageId.h>
#include <zel/ZELException.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

namespace {

struct Row {
    std::uint32_t id;
    unsigned parameters;
};

// How many parameters each message is raised with.
const Row rows[] = {
    {0xEA4112C6, 2}, {0xEA41BF21, 2}, {0xEA47C21F, 4}, {0xEA47EC7B, 1}, {0xEA45DC29, 1},
    {0xEA441F8B, 1}, {0xEA49BA8D, 0}, {0xEA4EB50B, 0}, {0xEA46D8C9, 1}, {0xEA456BB1, 2},
    {0xEA407F89, 2}, {0xEA4152EA, 1}, {0xEA4ACDA5, 2}, {0xEA40320B, 2}, {0xEA41D35C, 1},
    {0xEA4AA334, 1}, {0xEA4B8476, 2}, {0xEA4BCA5D, 2}, {0xEA48385C, 2}, {0xEA4BA852, 1},
    {0xEA4CB90C, 2}, {0xEA487D84, 3}, {0xEA4BD4DB, 3}, {0xEA4F0001, 3}, {0xEA4F0003, 3},
    {0xEA4F0004, 3}, {0xEA4F0005, 3}, {0xEA4F0020, 3}, {0xEA4F0021, 2}, {0xEA4F0022, 3},
    {0xEA4F0023, 1}, {0xEA4F0024, 3}, {0xEA4F0025, 1}, {0xEA4F0030, 3}, {0xEA4F0031, 2},
    {0xEA4F0032, 3}, {0xEA4F0033, 3}, {0xEA4F0034, 2}, {0xEA4F0035, 2}, {0xEA4F0036, 2},
    {0xEA4F0010, 1}, {0xEA4F0011, 3}, {0xEA4F0012, 2}, {0xEA4F0013, 2}, {0xEA4F0014, 2},
    {0xEA4F0015, 3}, {0xEA4F0026, 1},
};

TEST(MessageCatalogue, EveryMessageIsASentenceThatTakesAllItsParameters) {
    for (const Row& row : rows) {
        const char* text = KORVAMessageCatalogue::find(row.id);
        ASSERT_NE(text, nullptr) << std::hex << row.id;
        const std::string sentence = text;
        EXPECT_TRUE(sentence.back() == '.' || row.id == 0xEA441F8B) << sentence;
        for (unsigned number = 0; number < 6; ++number) {
            const std::string place = "{" + std::to_string(number) + "}";
            EXPECT_EQ(sentence.find(place) != std::string::npos, number < row.parameters)
                << sentence;
        }
    }
}

TEST(MessageCatalogue, HasNoOtherMessages) {
    std::set<std::uint32_t> known;
    for (const Row& row : rows)
        known.insert(row.id);
    const std::uint32_t named[] = {
#define KORVA_MESSAGE(name, id, text) name,
#include <i18n/KORVAMessages.def>
#undef KORVA_MESSAGE
    };
    EXPECT_EQ(std::set<std::uint32_t>(std::begin(named), std::end(named)), known);
    EXPECT_EQ(std::size(named), std::size(rows));
}

TEST(MessageCatalogue, UnknownIdGivesNull) {
    EXPECT_EQ(KORVAMessageCatalogue::find(0), nullptr);
    EXPECT_EQ(KORVAMessageCatalogue::find(0xEA4112C7), nullptr);
    EXPECT_EQ(KORVAMessageCatalogue::find(0xFFFFFFFF), nullptr);
}

/// The way in which the object model's exception uses the catalogue.
class CatalogueException : public ZELException {
public:
    using ZELException::ZELException;

protected:
    const char* findMessageText(const ZELMessage& message) const override {
        return KORVAMessageCatalogue::find(message.getId());
    }
};

TEST(MessageCatalogue, FillsAnExceptionsText) {
    CatalogueException error(0);
    ZELMessage message(KORVAI18NRes::getString(18), eKORVA_WrongChildType);
    message << ZELMessageParm("schedule") << ZELMessageParm("active")
            << ZELMessageParm("bus:booleanProp") << ZELMessageParm("xs:int");
    error << message;
    EXPECT_STREQ(
        error.toString(),
        "ZELException: The child \"active\" of \"schedule\" has the type bus:booleanProp; a "
        "value of the type xs:int can't be set there.");
    EXPECT_STREQ(error.getMessages()[0].getComponent(), "KORVA");
}

}  // namespace
