#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVABooleanProp.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFloatProp.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAIntProp.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVASeverityEnumProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATokenProp.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_Value.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace {

using korva::setText;
using korva::textOf;
using korva::value;
using korva::test::makeRegistry;
using korva::test::Registry;

TEST(TextOf, AFieldThatIsNotSetIsNothing) {
    const KORVAReport report;
    const KORVAStringProp empty;
    const KORVAGuidProp withoutGuid;
    const KORVASeverityEnum severity;
    EXPECT_EQ(textOf(static_cast<const char*>(nullptr)), std::nullopt);
    EXPECT_EQ(textOf(report.getDefaultName()), std::nullopt);
    EXPECT_EQ(textOf(&empty), std::nullopt);
    EXPECT_EQ(textOf(&withoutGuid), std::nullopt);
    EXPECT_EQ(textOf(&severity), std::nullopt);
}

TEST(TextOf, ReadsTextsWordsAndThePropertiesThatHoldThem) {
    KORVAStringProp text;
    text.setValue("a text");
    EXPECT_EQ(textOf(&text), "a text");
    KORVAGuid guid;
    guid.setValue("an id");
    EXPECT_EQ(textOf(&guid), "an id");
    KORVAGuidProp guidProp;
    guidProp.setValue(&guid);
    EXPECT_EQ(textOf(&guidProp), "an id");
    KORVASeverityEnum severity;
    severity.setValue("warn");
    KORVASeverityEnumProp severityProp;
    severityProp.setValue(&severity);
    EXPECT_EQ(textOf(&severity), "warn");
    EXPECT_EQ(textOf(&severityProp), "warn");
    EXPECT_EQ(textOf(""), "");
}

TEST(TextOf, ReadsAStreamedTextOut) {
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    first.initialize("in two", false);
    second.initialize(" pieces", false);
    first.append(second);
    KORVAStringProp text;
    text.setValue(first.asCharStar());
    EXPECT_EQ(textOf(&text), "in two pieces");
    EXPECT_EQ(KORVA_CharStreamable::toText(first.asCharStar()), "in two pieces");
    EXPECT_EQ(KORVA_CharStreamable::toText("plain"), "plain");
    EXPECT_ASSERTION(KORVA_CharStreamable::toText(nullptr), "ZEL_ASSERT(text);");
}

TEST(Value, OfAPropertyIsItsValueOrNothing) {
    KORVABooleanProp boolean;
    KORVAIntProp number;
    KORVAFloatProp decimal;
    KORVASeverityEnumProp severityProp;
    EXPECT_EQ(value(&boolean), std::nullopt);
    EXPECT_EQ(value(static_cast<const KORVABooleanProp*>(nullptr)), std::nullopt);
    EXPECT_EQ(value(&severityProp), std::nullopt);
    boolean.setValue(false);
    number.setValue(-7);
    decimal.setValue(0.5F);
    KORVASeverityEnum severity;
    severityProp.setValue(&severity);
    EXPECT_EQ(value(&severityProp), std::nullopt);
    severity.setValue(KORVASeverityEnum::eKORVAFatal);
    EXPECT_EQ(value(&boolean), false);
    EXPECT_EQ(value(&number), -7);
    EXPECT_EQ(value(&decimal), 0.5F);
    EXPECT_EQ(value(&severity), KORVASeverityEnum::eKORVAFatal);
    EXPECT_EQ(value(&severityProp), KORVASeverityEnum::eKORVAFatal);
    boolean.resetValue();
    EXPECT_EQ(value(&boolean), std::nullopt);
}

TEST(Value, OfWhatAGetterGivesIsACopy) {
    const int seven = 7;
    const bool* const none = nullptr;
    EXPECT_EQ(value(&seven), 7);
    EXPECT_EQ(value(none), std::nullopt);
    KORVAStringProp text;
    text.setValue("a text");
    EXPECT_EQ(value(&text), "a text");
    EXPECT_EQ(value(text.getValue()), "a text");
}

TEST(SetText, KeepsACopyThatBelongsToTheRegistry) {
    const Registry registry = makeRegistry();
    KORVAStringProp text;
    std::string source = "a text";
    setText(text, std::string_view(source).substr(2), *registry);
    source.assign(source.size(), '-');
    EXPECT_STREQ(text.getValue(), "text");
    EXPECT_EQ(registry->size(), 1u);
    KORVAGuid guid;
    setText(guid, "", *registry);
    EXPECT_STREQ(guid.getValue(), "");
}

TEST(SetText, TakesASetterOfTheClassOrOfABase) {
    const Registry registry = makeRegistry();
    KORVAFaultDetail detail;
    setText(detail, &KORVAFaultDetail::setErrorCode, "CM-1", *registry);
    EXPECT_STREQ(detail.getErrorCode(), "CM-1");
    KORVAGuid guid;
    setText(guid, &KORVA_RestrictedString::setValue, "an id", *registry);
    EXPECT_STREQ(guid.getValue(), "an id");
}

TEST(SetText, OfAnEnumerationSetsTheWord) {
    const Registry registry = makeRegistry();
    KORVASeverityEnum severity;
    setText(severity, "info", *registry);
    EXPECT_EQ(severity.getValue(), KORVASeverityEnum::eKORVAInfo);
    EXPECT_NUMBERED(setText(severity, "harmless", *registry), 0xEA45DC29U, "_stringToEnum()",
                    "severityEnum:harmless");
    EXPECT_EQ(severity.getValue(), KORVASeverityEnum::eKORVAInfo);
}

}  // namespace
