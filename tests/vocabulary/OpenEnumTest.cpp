// An unknown word of an enumeration that is known to be larger than the schema.

#include "tests/support/ExpectThrow.h"

#include <korva/KORVADataEnum.h>
#include <korva/KORVAMapLayerTypeEnum.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVASeverityEnum.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

struct Told {
    unsigned id;
    std::vector<std::string> parameters;
    bool operator==(const Told&) const = default;
};

struct Refusal {
    std::vector<Told> messages;
    std::string text;
    std::string place;
};

Refusal refusalOf(const std::function<void()>& action) {
    Refusal out;
    try {
        action();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const KORVAException& error) {
        for (const ZELMessage& message : error.getMessages()) {
            Told& told = out.messages.emplace_back();
            told.id = message.getId();
            for (const ZELMessageParm& parameter : message.getParms())
                told.parameters.push_back(parameter.getText());
        }
        out.text = error.toString();
        out.place = korva::test::firstTraceLine(error);
    }
    return out;
}

TEST(OpenEnum, UnknownWordIsToldFirstAndThenWhereToAddIt) {
    const Refusal refusal = refusalOf([] { KORVARunOptionEnum::stringToEnum("unheardOf"); });
    EXPECT_EQ(refusal.messages,
              (std::vector<Told>{{0xEA45DC29U, {"runOptionEnum:unheardOf"}},
                                 {0xEA4F0003U, {"runOptionEnum", "16", "schema/enums.xsd"}}}));
    EXPECT_TRUE(refusal.place.ends_with(" _stringToEnum() ZEL_THROW")) << refusal.place;
}

TEST(OpenEnum, TextHasBothSentences) {
    const std::string text = refusalOf([] { KORVARunOptionEnum::stringToEnum("unheardOf"); }).text;
    EXPECT_NE(text.find("The enumeration has no such value: \"runOptionEnum:unheardOf\"."),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("The enumeration \"runOptionEnum\" is open: the words of 16 of its values "
                        "aren't in the schema. If this is one of them, add it to schema/enums.xsd "
                        "and build anew."),
              std::string::npos)
        << text;
}

TEST(OpenEnum, WithoutAnyWordKnownRefusesAllInTheSameWay) {
    const Refusal refusal = refusalOf([] { KORVADataEnum::stringToEnum("html"); });
    EXPECT_EQ(refusal.messages,
              (std::vector<Told>{{0xEA45DC29U, {"dataEnum:html"}},
                                 {0xEA4F0003U, {"dataEnum", "3", "schema/enums.xsd"}}}));
}

TEST(OpenEnum, WithAnUnknownNumberOfOpenWordsSaysSome) {
    const Refusal refusal = refusalOf([] { KORVAMapLayerTypeEnum::stringToEnum("unheardOf"); });
    EXPECT_EQ(refusal.messages,
              (std::vector<Told>{{0xEA45DC29U, {"mapLayerTypeEnum:unheardOf"}},
                                 {0xEA4F0003U, {"mapLayerTypeEnum", "some", "schema/enums.xsd"}}}));
}

TEST(OpenEnum, IsNotWhatAClosedEnumerationIs) {
    const Refusal refusal = refusalOf([] { KORVASeverityEnum::stringToEnum("grave"); });
    EXPECT_EQ(refusal.messages, (std::vector<Told>{{0xEA45DC29U, {"severityEnum:grave"}}}));
}

}  // namespace
