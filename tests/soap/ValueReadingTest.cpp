// What a value reader makes of elements that it accepts.
#include "tests/soap/Reading.h"

#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanArray.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADateTimeArray.h>
#include <korva/KORVADateTimeProp.h>
#include <korva/KORVADecimalProp.h>
#include <korva/KORVAFloatProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVAIntProp.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVASeverityEnumProp.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringArrayProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATimeProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using korva::test::busNamespace;
using korva::test::declarations;
using korva::test::document;
using korva::test::DocumentReader;

class ValueReading : public testing::Test {
protected:
    template <class X>
    X& read(const std::string& type, const std::string& content) {
        return reader.read<X>(document(type, content));
    }

    DocumentReader reader;
};

TEST_F(ValueReading, AnElementWithoutTypeInAKnownPropertyTakesTheDeclaredType) {
    auto& header =
        read<KORVATracking>("bus:tracking",
                            "<conversationContext><nodeID>n</nodeID></conversationContext>"
                            "<requestContext>r</requestContext><hopCount>3</hopCount>");
    ASSERT_NE(header.getConversationContext(), nullptr);
    EXPECT_STREQ(header.getRequestContext(), "r");
    ASSERT_NE(header.getHopCount(), nullptr);
    EXPECT_EQ(*header.getHopCount(), 3);
}

TEST_F(ValueReading, AnXsiTypeMayNameADerivedClass) {
    auto& value = read<KORVAParameterValue>(
        "bus:parameterValue",
        "<value><item xsi:type=\"bus:simpleParmValueItem\"><use>7</use></item></value>");
    ASSERT_EQ(value.getValue().size(), 1U);
    const KORVAParmValueItem* const item = value.getValue().at(0);
    ASSERT_EQ(item->getObjectType(), KORVASchemaTypeI::eKORVASimpleParmValueItem);
    EXPECT_STREQ(static_cast<const KORVASimpleParmValueItem*>(item)->getUse(), "7");
}

TEST_F(ValueReading, AnyPrefixDeclaredForTheNamespacesWorks) {
    auto& provider = reader.read<KORVAProvider>(
        "<root xmlns:a=\"" + busNamespace +
        "\" xmlns:b=\"http://www.w3.org/2001/XMLSchema-instance\""
        " xmlns:c=\"http://www.w3.org/2001/XMLSchema\" b:type=\"a:provider\">"
        "<name b:type=\"c:string\">n</name></root>");
    EXPECT_STREQ(provider.getName(), "n");
}

TEST_F(ValueReading, APrefixDeclaredAgainInsideHidesTheOuterOneUntilItsEnd) {
    // Inside the first child "xs" stands for something that nobody knows, so the type is declared.
    auto& provider =
        read<KORVAProvider>("bus:provider",
                            "<name xmlns:xs=\"urn:other\" xsi:type=\"xs:nothing\">n</name>"
                            "<build xsi:type=\"xs:string\">b</build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, TheSameTypeTextMeansWhatItsPrefixMeansAtThatElement) {
    // "p:string" is a type of the schema, then of nobody, then of the schema again.
    auto& provider = read<KORVAProvider>(
        "bus:provider",
        "<name xmlns:p=\"http://www.w3.org/2001/XMLSchema\" xsi:type=\"p:string\">n</name>"
        "<build xmlns:p=\"urn:other\" xsi:type=\"p:string\">b</build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, ATypeInAnUnknownNamespaceFallsBackToTheDeclaredType) {
    auto& tracking = reader.read<KORVATracking>(
        "<root" + declarations() +
        " xmlns:u=\"urn:unknown\" xsi:type=\"bus:tracking\">"
        "<conversationContext xsi:type=\"u:thing\"><nodeID xsi:type=\"u:text\">n</nodeID>"
        "</conversationContext></root>");
    EXPECT_NE(tracking.getConversationContext(), nullptr);
}

TEST_F(ValueReading, ATypeWithoutPrefixOrWithAnUndeclaredOneFallsBackToTheDeclaredType) {
    auto& provider = read<KORVAProvider>("bus:provider",
                                         "<name xsi:type=\"string\">n</name>"
                                         "<build xsi:type=\"nowhere:string\">b</build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, ATypeAttributeOfAnotherNamespaceIsNoTypeAttribute) {
    auto& provider = read<KORVAProvider>("bus:provider", "<name type=\"bus:folder\">n</name>");
    EXPECT_STREQ(provider.getName(), "n");
}

TEST_F(ValueReading, AnUnknownPropertyIsSkippedWithAllThatItHolds) {
    auto& provider = read<KORVAProvider>(
        "bus:provider",
        "<name>n</name><future xsi:type=\"bus:noSuchType\" href=\"cid:7\">text<name>x</name>"
        "<deep><deeper xsi:nil=\"true\">y</deeper></deep></future><build>b</build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, AnUnknownNilPropertyLeavesItsSiblingsAlone) {
    auto& provider =
        read<KORVAProvider>("bus:provider", "<future xsi:nil=\"true\"/><build>b</build>");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, ANilChildStaysUnset) {
    auto& tracking = read<KORVATracking>(
        "bus:tracking",
        "<hopCount xsi:nil=\"true\"/><requestContext xsi:nil=\"true\"></requestContext>"
        "<conversationContext xsi:nil=\"true\"/><stepContext>s</stepContext>");
    EXPECT_EQ(tracking.getHopCount(), nullptr);
    EXPECT_EQ(tracking.getRequestContext(), nullptr);
    EXPECT_EQ(tracking.getConversationContext(), nullptr);
    EXPECT_STREQ(tracking.getStepContext(), "s");
}

TEST_F(ValueReading, OnlyTheWordTrueMakesNil) {
    auto& provider = read<KORVAProvider>("bus:provider",
                                         "<name xsi:nil=\"false\">n</name>"
                                         "<build xsi:nil=\"1\">b</build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, ANilItemAddsNothingToItsArray) {
    auto& array = read<KORVAStringArray>("bus:stringArray",
                                         "<item>a</item><item xsi:nil=\"true\"/><item>b</item>");
    ASSERT_EQ(array.size(), 2U);
    EXPECT_STREQ(array.at(1), "b");
}

TEST_F(ValueReading, NilWinsOverAReference) {
    auto& provider = read<KORVAProvider>("bus:provider",
                                         "<name xsi:nil=\"true\" href=\"cid:1\"/><build>b</build>");
    EXPECT_EQ(provider.getName(), nullptr);
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, ReferencesThatAreNoContentIdsAreIgnored) {
    auto& provider = read<KORVAProvider>(
        "bus:provider", "<name href=\"cid:\">n</name><build href=\"CID:abc\">b</build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
    EXPECT_STREQ(read<KORVAProvider>("bus:provider", "<name href=\"#id1\">n</name>").getName(),
                 "n");
}

TEST_F(ValueReading, TheAnnouncedSizeOfAnArrayIsNotCompared) {
    for (const char* const size : {"[]", "[5]", "[0]", "[4000000000]", "[][2]", ""}) {
        auto& array = read<KORVAParmValueItemArray>(
            std::string("SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:parmValueItem") + size,
            "<item xsi:type=\"bus:simpleParmValueItem\"/><item "
            "xsi:type=\"bus:simpleParmValueItem\"/>");
        EXPECT_EQ(array.size(), 2U) << size;
    }
}

TEST_F(ValueReading, AnArrayOfPlainTypesTakesItsTypeFromTheDeclaration) {
    auto& warden =
        read<KORVAWarden>("bus:Warden",
                          "<roles xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"xs:string[2]\">"
                          "<item xsi:type=\"xs:string\">a</item><other>b</other></roles>");
    ASSERT_EQ(warden.getRoles().size(), 2U);
    EXPECT_STREQ(warden.getRoles().at(0), "a");
    EXPECT_STREQ(warden.getRoles().at(1), "b");
}

TEST_F(ValueReading, NumbersAndBooleansEnterAnArrayWithTheirValue) {
    auto& numbers =
        read<KORVAIntArray>("bus:intArray", "<i>1</i><i xsi:type=\"xs:int\"> -2 </i><i/>");
    ASSERT_EQ(numbers.size(), 3U);
    EXPECT_EQ(numbers.at(0), 1);
    EXPECT_EQ(numbers.at(1), -2);
    EXPECT_EQ(numbers.at(2), 0);
    auto& flags = read<KORVABooleanArray>("bus:booleanArray", "<i>true</i><i>0</i>");
    ASSERT_EQ(flags.size(), 2U);
    EXPECT_TRUE(flags.at(0));
    EXPECT_FALSE(flags.at(1));
    auto& times = read<KORVADateTimeArray>("bus:dateTimeArray", "<i>2026-01-02T03:04:05Z</i>");
    ASSERT_EQ(times.size(), 1U);
    EXPECT_STREQ(times.at(0), "2026-01-02T03:04:05Z");
}

TEST_F(ValueReading, AnArrayChildThatComesTwiceIsContinued) {
    auto& warden = read<KORVAWarden>("bus:Warden",
                                     "<roles><item>a</item></roles><roles><item>b</item></roles>");
    ASSERT_EQ(warden.getRoles().size(), 2U);
    EXPECT_STREQ(warden.getRoles().at(1), "b");
}

TEST_F(ValueReading, TheTypeOnTheWirePlaysNoPartForNumbers) {
    auto& passport =
        read<KORVAWardenPassport>("bus:WardenPassport",
                                  "<generation xsi:type=\"xs:string\">12</generation>"
                                  "<isAnonymous xsi:type=\"xs:int\">true</isAnonymous>");
    ASSERT_NE(passport.getGeneration(), nullptr);
    EXPECT_EQ(*passport.getGeneration(), 12);
    ASSERT_NE(passport.getIsAnonymous(), nullptr);
    EXPECT_TRUE(*passport.getIsAnonymous());
}

TEST_F(ValueReading, AnEmptyIntGivesZero) {
    auto& prop = read<KORVAIntProp>("bus:intProp", "<value/>");
    ASSERT_NE(prop.getValue(), nullptr);
    EXPECT_EQ(*prop.getValue(), 0);
}

TEST_F(ValueReading, IntegersAreReadUpToWhatIsNoDigitAndSaturate) {
    const auto value = [this](const char* text) {
        return *read<KORVAIntProp>("bus:intProp", "<value>" + std::string(text) + "</value>")
                    .getValue();
    };
    EXPECT_EQ(value("42"), 42);
    EXPECT_EQ(value("\n\t +42 \r\n"), 42);
    EXPECT_EQ(value("-42"), -42);
    EXPECT_EQ(value("4 2"), 4);
    EXPECT_EQ(value("4-2"), 4);
    EXPECT_EQ(value("+-42"), 0);
    EXPECT_EQ(value("- 42"), 0);
    EXPECT_EQ(value("-"), 0);
    EXPECT_EQ(value("0007"), 7);
    EXPECT_EQ(value("2147483647"), 2147483647);
    EXPECT_EQ(value("2147483648"), 2147483647);
    EXPECT_EQ(value("99999999999999999999999"), 2147483647);
    EXPECT_EQ(value("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(value("-99999999999999999999999"), -2147483647 - 1);
    EXPECT_EQ(value("+99999999999999999999999"), 2147483647);
}

TEST_F(ValueReading, FloatsAreReadAsFarAsTheyAreNumbers) {
    const auto value = [this](const char* text) {
        return *read<KORVAFloatProp>("bus:floatProp", "<value>" + std::string(text) + "</value>")
                    .getValue();
    };
    EXPECT_EQ(value("1e3"), 1000.0F);
    EXPECT_EQ(value("1E+3"), 1000.0F);
    EXPECT_EQ(value(" -2.5 "), -2.5F);
    EXPECT_EQ(value("+.5"), 0.5F);
    EXPECT_EQ(value("5."), 5.0F);
    EXPECT_EQ(value("1e"), 1.0F);
    EXPECT_EQ(value("1.5.5"), 1.5F);
    EXPECT_EQ(value("1 2"), 1.0F);
    EXPECT_EQ(value(""), 0.0F);
    EXPECT_EQ(value("--5"), 0.0F);
    EXPECT_FALSE(std::signbit(value("--5")));
    EXPECT_EQ(value("+-5"), 0.0F);
    EXPECT_EQ(value("e5"), 0.0F);
    EXPECT_TRUE(std::signbit(value("-0")));
    EXPECT_EQ(value("16777217"), 16777216.0F);
}

TEST_F(ValueReading, TheExponentOfAFloatMayBeWrittenWithD) {
    const auto value = [this](const char* text) {
        return *read<KORVAFloatProp>("bus:floatProp", "<value>" + std::string(text) + "</value>")
                    .getValue();
    };
    EXPECT_EQ(value("1D3"), 1000.0F);
    EXPECT_EQ(value("-1d3"), -1000.0F);
    EXPECT_EQ(value("2.5D+2"), 250.0F);
    EXPECT_EQ(value("2.5d-1"), 0.25F);
    EXPECT_EQ(value("+.5D1 "), 5.0F);
    EXPECT_EQ(value("1D-400"), 0.0F);
    EXPECT_EQ(value("0D400"), 0.0F);
    // What is no exponent is ignored, as it is behind 'E'.
    EXPECT_EQ(value("1D"), 1.0F);
    EXPECT_EQ(value("1D+"), 1.0F);
    EXPECT_EQ(value("1E5D3"), 100000.0F);
    EXPECT_EQ(value("1D3.5"), 1000.0F);
    EXPECT_EQ(value("1D 3"), 1.0F);
    EXPECT_EQ(value("D"), 0.0F);
    EXPECT_EQ(value("d5"), 0.0F);
    EXPECT_EQ(value("1 1D400"), 1.0F);
}

TEST_F(ValueReading, FloatsThatAreTooSmallBecomeZero) {
    const auto value = [this](const std::string& text) {
        return *read<KORVAFloatProp>("bus:floatProp", "<value>" + text + "</value>").getValue();
    };
    EXPECT_EQ(value("1e-400"), 0.0F);
    EXPECT_EQ(value("1000e-400"), 0.0F);
    EXPECT_EQ(value("1e-99999999999999999999"), 0.0F);
    EXPECT_EQ(value("0." + std::string(400, '0') + "1"), 0.0F);
    EXPECT_EQ(value("0e99999999999999999999"), 0.0F);
    EXPECT_EQ(value("1e-45"), std::numeric_limits<float>::denorm_min());
    EXPECT_TRUE(std::signbit(value("-1e-400")));
}

TEST_F(ValueReading, TheLargestFloatIsReadWhole) {
    constexpr float largest = std::numeric_limits<float>::max();
    const auto value = [this](const std::string& text) {
        return *read<KORVAFloatProp>("bus:floatProp", "<value>" + text + "</value>").getValue();
    };
    EXPECT_EQ(value("340282346638528859811704183484516925440.00"), largest);
    EXPECT_EQ(value("-3.4028234663852886D38"), -largest);
    // Up to half of the last digit's worth beyond is rounded down.
    EXPECT_EQ(value("3.40282356e38"), largest);
    EXPECT_EQ(value("0." + std::string(400, '0') + "1e430"), 1e29F);
}

TEST_F(ValueReading, DecimalsAreReadAsFloatsWhateverTheLocale) {
    auto& prop =
        read<KORVADecimalProp>("bus:decimalProp", "<value xsi:type=\"xs:decimal\">-1234.5</value>");
    ASSERT_NE(prop.getValue(), nullptr);
    EXPECT_EQ(*prop.getValue(), -1234.5F);
}

TEST_F(ValueReading, BooleansAreTheSixWords) {
    const auto value = [this](const char* text) {
        return *read<KORVABooleanProp>("bus:booleanProp",
                                       "<value>" + std::string(text) + "</value>")
                    .getValue();
    };
    for (const char* const text : {"true", "TRUE", "1", " true\n"})
        EXPECT_TRUE(value(text)) << text;
    for (const char* const text : {"false", "FALSE", "0", "\tfalse "})
        EXPECT_FALSE(value(text)) << text;
}

TEST_F(ValueReading, TimesAndDatesAreTexts) {
    EXPECT_STREQ(read<KORVATimeProp>("bus:timeProp", "<value xsi:type=\"xs:time\">13:20:00</value>")
                     .getValue(),
                 "13:20:00");
    EXPECT_STREQ(
        read<KORVADateTimeProp>("bus:dateTimeProp", "<value>2026-11-20</value>").getValue(),
        "2026-11-20");
}

TEST_F(ValueReading, WhiteSpaceInATextIsKept) {
    EXPECT_STREQ(read<KORVAStringProp>("bus:stringProp", "<value> a \n\tb </value>").getValue(),
                 " a \n\tb ");
}

TEST_F(ValueReading, AnEmptyTextIsPresentAndEmpty) {
    EXPECT_STREQ(read<KORVAStringProp>("bus:stringProp", "<value/>").getValue(), "");
    EXPECT_STREQ(read<KORVAStringProp>("bus:stringProp", "<value></value>").getValue(), "");
}

TEST_F(ValueReading, BinariesAreDecoded) {
    const KORVAXSBase64Binary* const binary =
        read<KORVABase64BinaryProp>("bus:base64BinaryProp", "<value>\n AAH+\n /w== </value>")
            .getValue();
    ASSERT_NE(binary, nullptr);
    EXPECT_EQ(std::string(binary->str(), binary->pcount()), std::string("\x00\x01\xFE\xFF", 4));
}

TEST_F(ValueReading, AnEmptyBinaryIsPresentAndEmpty) {
    const KORVAXSBase64Binary* const binary =
        read<KORVABase64BinaryProp>("bus:base64BinaryProp", "<value/>").getValue();
    ASSERT_NE(binary, nullptr);
    EXPECT_EQ(binary->pcount(), 0U);
}

TEST_F(ValueReading, LargeBinariesAreDecodedWhole) {
    std::string text;
    std::string expected;
    for (int i = 0; i != 100'000; ++i) {
        text += "AAECA/8A";  // 00 01 02, 03 FF 00
        expected += std::string("\x00\x01\x02\x03\xFF\x00", 6);
        if (i % 19 == 0) text += "\n";
    }
    const KORVAXSBase64Binary* const binary =
        read<KORVABase64BinaryProp>("bus:base64BinaryProp", "<value>" + text + "</value>")
            .getValue();
    ASSERT_EQ(binary->pcount(), expected.size());
    EXPECT_EQ(std::string(binary->str(), binary->pcount()), expected);
}

TEST_F(ValueReading, LargeBinariesMayHoldMuchWhiteSpaceAnywhere) {
    // Within groups, between them, and before the padding: more than is decoded at once.
    const std::string space(100'000, ' ');
    std::string text = space + "AA" + space + "E";
    std::string expected;
    for (int i = 0; i != 30'000; ++i)
        text += "CAAE";  // the last of one group and the first three of the next
    text += "C" + space + "AQ" + space + "=" + space + "=" + space;
    for (int i = 0; i != 30'001; ++i)
        expected += std::string("\x00\x01\x02", 3);
    expected += '\x01';
    const KORVAXSBase64Binary* const binary =
        read<KORVABase64BinaryProp>("bus:base64BinaryProp", "<value>" + text + "</value>")
            .getValue();
    ASSERT_EQ(binary->pcount(), expected.size());
    EXPECT_EQ(std::string(binary->str(), binary->pcount()), expected);
}

TEST_F(ValueReading, ALargeBinaryLeavesNothingToTheNext) {
    const std::string large(400'000, 'A');
    const auto& provider =
        read<KORVABase64BinaryProp>("bus:base64BinaryProp", "<value>" + large + "</value>");
    EXPECT_EQ(provider.getValue()->pcount(), 300'000U);
    const KORVAXSBase64Binary* const next =
        read<KORVABase64BinaryProp>("bus:base64BinaryProp", "<value>AAEC</value>").getValue();
    EXPECT_EQ(std::string(next->str(), next->pcount()), std::string("\x00\x01\x02", 3));
}

TEST_F(ValueReading, EnumerationsAndRestrictedStringsAreMadeOfTheirText) {
    EXPECT_EQ(read<KORVASeverityEnumProp>("bus:severityEnumProp",
                                          "<value xsi:type=\"bus:severityEnum\">warn</value>")
                  .getValue()
                  ->getValue(),
              KORVASeverityEnum::eKORVAWarn);
    EXPECT_STREQ(
        read<KORVAGuidProp>("bus:guidProp", "<value>{00-11}</value>").getValue()->getValue(),
        "{00-11}");
    EXPECT_EQ(read<KORVASeverityEnum>("bus:severityEnum", "fatal").getValue(),
              KORVASeverityEnum::eKORVAFatal);
    EXPECT_STREQ(
        read<KORVASearchPathSingleObject>("bus:searchPathSingleObject", "/content").getValue(),
        "/content");
}

TEST_F(ValueReading, AnEmptyEnumerationIsUninitialised) {
    EXPECT_EQ(read<KORVASeverityEnum>("bus:severityEnum", "").getValue(),
              KORVASeverityEnum::eKOVRAUninitialized);
}

TEST_F(ValueReading, TextBetweenTheChildrenOfACompositeIsDropped) {
    auto& provider = read<KORVAProvider>(
        "bus:provider", "junk<name>n</name>more<build>b</build> <patch>1</patch>end");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
    EXPECT_EQ(*provider.getPatch(), 1);
}

TEST_F(ValueReading, ContentObjectsKeepTheirClasses) {
    auto& prop = read<KORVABaseClassArrayProp>(
        "bus:baseClassArrayProp",
        "<value xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:baseClass[2]\">"
        "<item xsi:type=\"bus:folder\"><searchPath xsi:type=\"bus:stringProp\">"
        "<value xsi:type=\"xs:string\">/a</value></searchPath></item>"
        "<item xsi:type=\"bus:report\"/></value>");
    ASSERT_EQ(prop.getValue().size(), 2U);
    EXPECT_EQ(prop.getValue().at(0)->getObjectType(), KORVASchemaTypeI::eKORVAFolder);
    EXPECT_STREQ(prop.getValue().at(0)->getSearchPath()->getValue(), "/a");
    EXPECT_EQ(prop.getValue().at(1)->getObjectType(), KORVASchemaTypeI::eKORVAReport);
}

TEST_F(ValueReading, TheNamespaceOfElementsPlaysNoPart) {
    auto& provider = read<KORVAProvider>(
        "bus:provider", "<bus:name>n</bus:name><x:build xmlns:x=\"urn:x\">b</x:build>");
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(ValueReading, NamesOfAnyLengthWork) {
    const std::string name(1000, 'n');
    auto& array = read<KORVAStringArray>("bus:stringArray", "<" + name + ">a</" + name + ">");
    ASSERT_EQ(array.size(), 1U);
    EXPECT_STREQ(array.at(0), "a");
    auto& other = read<KORVAStringArray>("bus:stringArray", "<\xC3\xA4>a</\xC3\xA4>");
    EXPECT_EQ(other.size(), 1U);
}

TEST_F(ValueReading, NestingIsBoundedByTheLimitAndNotByTheStack) {
    // Two elements for each level, and one that has none in it.
    constexpr int levels = 4500;
    std::string text;
    for (int i = 0; i != levels; ++i)
        text += "<subNodes><item><value/>";
    for (int i = 0; i != levels; ++i)
        text += "</item></subNodes>";
    const KORVAHierarchicalParmValueItem* item =
        &read<KORVAHierarchicalParmValueItem>("bus:hierarchicalParmValueItem", text);
    int depth = 0;
    while (item->getSubNodes().size() == 1) {
        item = item->getSubNodes().at(0);
        ASSERT_NE(item->getValue(), nullptr);
        ++depth;
    }
    EXPECT_EQ(depth, levels);
}

}  // namespace
