// References between elements that are made to cost more than they weigh.

#include "tests/soap/Tolerant.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVAOption.h>
#include <korva/KORVAOptionArray.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace korva::test;

namespace {

constexpr const char* label = "KORVA_ReadingPolicy::resolvesReferences()";
constexpr const char* expansion = "text and elements that references lead to";

std::string repeated(int count, const std::function<std::string(int)>& piece) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += piece(i);
    return text;
}

std::string repeated(int count, const std::string& piece) {
    return repeated(count, [&](int) { return piece; });
}

std::size_t optionCount(const Read& read) {
    return static_cast<KORVAOptionArray*>(
               static_cast<KORVASchemaTypeI*>(
                   read->getInputMessage().getChildObject("options", false)))
        ->size();
}

/// An option that is a text array, whose items are given.
std::string texts(const std::string& items) {
    return "<item xsi:type=\"bus:runOptionStringArray\"><value>" + items + "</value></item>";
}

/// Elements, each of which has two objects that hold the next one.
std::string doubling(int levels) {
    return repeated(levels, [](int i) {
        const std::string object = "<item xsi:type=\"bus:output\"><parent href=\"#b" +
                                   std::to_string(i + 1) + "\"/></item>";
        return "<x id=\"b" + std::to_string(i) + "\" xsi:type=\"bus:baseClassArrayProp\"><value>" +
               object + object + "</value></x>";
    });
}

TEST(HostileReference, TenThousandToOneElementShareIt) {
    const Read read = readTolerantly(
        runWithOptions(repeated(10'000, "<item href=\"#a\"/>"),
                       "<x id=\"a\" xsi:type=\"bus:runOptionBoolean\"><value>true</value></x>"));
    EXPECT_EQ(optionCount(read), 10'000U);
}

TEST(HostileReference, MoreThanTheLimitAreRefused) {
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    const std::string behind =
        "<x id=\"a\" xsi:type=\"bus:runOptionBoolean\"><value>true</value></x>";
    deserializer.setMaximumReferences(5);
    EXPECT_EQ(optionCount(readWith(deserializer,
                                   runWithOptions(repeated(5, "<item href=\"#a\"/>"), behind))),
              5U);
    EXPECT_NUMBERED(
        readWith(deserializer, runWithOptions(repeated(6, "<item href=\"#a\"/>"), behind)),
        0xEA4F0001, label, "references between elements", "5", "setMaximumReferences");
}

TEST(HostileReference, HundredThousandAreTheDefaultLimit) {
    const std::string behind =
        "<x id=\"a\" xsi:type=\"bus:runOptionBoolean\"><value>true</value></x>";
    EXPECT_NUMBERED(
        readTolerantly(runWithOptions(repeated(100'001, "<item href=\"#a\"/>"), behind)),
        0xEA4F0001, label, "references between elements", "100000", "setMaximumReferences");
}

TEST(HostileReference, ChainsAreFollowedWithoutRecursion) {
    constexpr int length = 50'000;
    const std::string chain = repeated(length, [](int i) {
        return "<x id=\"c" + std::to_string(i) + "\" href=\"#c" + std::to_string(i + 1) + "\"/>";
    });
    EXPECT_EQ(optionCount(readTolerantly(runWithOptions(
                  "<item href=\"#c0\"/>", chain + "<x id=\"c" + std::to_string(length) +
                                              "\" xsi:type=\"bus:runOptionBoolean\"/>"))),
              1U);
    EXPECT_NUMBERED(readTolerantly(runWithOptions("<item href=\"#c0\"/>", chain)), 0xEA4F0012,
                    label, "x", "c" + std::to_string(length));
}

TEST(HostileReference, WhatDoublesWithEachLevelIsRefused) {
    const auto read = [](int levels) {
        const std::string text = envelope(
            "<r:runResponse xmlns:r=\"" + reportNamespace +
            "\"><result><details><item "
            "xsi:type=\"bus:asynchDetailReportOutput\"><outputObjects><item "
            "xsi:type=\"bus:output\"><parent href=\"#b0\"/></item></outputObjects></item></details>"
            "</result></r:runResponse>" +
            doubling(levels) + "<x id=\"b" + std::to_string(levels) +
            "\" xsi:type=\"bus:baseClassArrayProp\"/>");
        BRIMMemoryInputStream stream(text.data(), text.size());
        return KORVA_EnvelopeReader().read(stream);
    };
    EXPECT_EQ(read(15).getKind(), KORVA_Envelope::eReply);
    for (const int levels : {20, 64, 1000})
        EXPECT_NUMBERED(read(levels), 0xEA4F0001, label, expansion, "1048576",
                        "setMaximumExpandedText");
}

TEST(HostileReference, ManyToALargeTextAreRefused) {
    const auto envelopeOf = [](int references) {
        return runWithOptions(
            texts(repeated(references, "<item href=\"#t\"/>")),
            "<x id=\"t\" xsi:type=\"xs:string\">" + std::string(10'000, 'x') + "</x>");
    };
    EXPECT_NO_THROW(readTolerantly(envelopeOf(100)));
    EXPECT_NUMBERED(readTolerantly(envelopeOf(1000)), 0xEA4F0001, label, expansion, "1048576",
                    "setMaximumExpandedText");
}

TEST(HostileReference, TenTimesTheDocumentIsNeverTooLarge) {
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    deserializer.setMaximumExpandedText(1);
    EXPECT_NO_THROW(readWith(deserializer, runWithOptions(texts(repeated(8, "<item href=\"#t\"/>")),
                                                          "<x id=\"t\" xsi:type=\"xs:string\">" +
                                                              std::string(1000, 'x') + "</x>")));
}

TEST(HostileReference, ManyToALargeArrayAreRefused) {
    const std::string values = repeated(2000, "<item><value href=\"#v\"/></item>");
    EXPECT_NUMBERED(
        readTolerantly(
            run("<objectPath>/a</objectPath><parameterValues>" + values + "</parameterValues>",
                "<x id=\"v\">" + repeated(2000, "<item xsi:nil=\"true\"/>") +
                    repeated(2000, "<item xsi:type=\"bus:simpleParmValueItem\"/>") + "</x>")),
        0xEA4F0001, label, expansion, "1048576", "setMaximumExpandedText");
}

TEST(HostileReference, OfDeepElementsIsReadWithoutRecursion) {
    // Each element stands in the one before it, and is referred to from outside.
    constexpr int depth = 3000;
    const std::string opening = repeated(depth, [](int i) {
        return "<start id=\"d" + std::to_string(i) + "\" xsi:type=\"bus:boundRangeParmValueItem\">";
    });
    const std::string body = "<x id=\"d\" xsi:type=\"bus:boundRangeParmValueItem\">" + opening +
                             repeated(depth, "</start>") + "</x>";
    // A range's start is a single value, so it is refused; what matters is that this is told.
    EXPECT_THROW(readTolerantly(run("<objectPath>/a</objectPath><parameterValues><item><value>"
                                    "<item href=\"#d\"/></value></item></parameterValues>",
                                    body)),
                 KORVAException);
}

TEST(HostileReference, ManyIdsAreFoundQuickly) {
    const std::string behind = repeated(20'000, [](int i) {
        return "<x id=\"i" + std::to_string(i) + "\" xsi:type=\"bus:runOptionBoolean\"/>";
    });
    const std::string items = repeated(
        20'000, [](int i) { return "<item href=\"#i" + std::to_string(19'999 - i) + "\"/>"; });
    EXPECT_EQ(optionCount(readTolerantly(runWithOptions(items, behind))), 20'000U);
}

TEST(HostileReference, IdsAndReferencesWithoutAPlaceAreLeftAlone) {
    EXPECT_NO_THROW(readTolerantly(
        run("<objectPath>/a</objectPath><parameterValues id=\"v\"/>",
            "<x/><y id=\"\"/><z id=\"z\"><w href=\"#nowhere\"/></z>",
            "<foreign href=\"#nowhere\"/><other id=\"v\"><inner id=\"v\"/></other>")));
}

TEST(HostileReference, SurviveEachAllocationThatFails) {
    const std::string text = run(
        "<objectPath href=\"#p\"/><parameterValues><item><name href=\"#n\"/><value href=\"#v\"/>"
        "</item><item href=\"#w\"/></parameterValues><options xsi:type=\"bus:optionArray\">"
        "<item xsi:type=\"bus:runOptionStringArray\"><value><item id=\"l\">a</item>"
        "<item href=\"#l\"/></value></item><item href=\"#o\"/><item href=\"#nil\"/></options>",
        "<x id=\"p\">/b</x><x id=\"n\">region</x><x id=\"v\"><item href=\"#s\"/></x>"
        "<x id=\"s\" xsi:type=\"bus:simpleParmValueItem\"><use>1</use></x>"
        "<x id=\"w\"><name>two</name></x><x id=\"o\" xsi:type=\"bus:runOptionInt\">"
        "<name>unheardOf</name><value href=\"#i\"/></x><x id=\"i\">5</x>"
        "<x id=\"nil\" xsi:nil=\"true\"/><x id=\"h\"><tracking/></x>",
        "<bus:halyardHeader href=\"#h\"/>");
    // Only the library allocates.
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    const std::size_t count = forEachFailingAllocation(
        [&] {
            BRIMMemoryInputStream stream(text.data(), text.size());
            KORVASOAPMessageIDeserializer deserializer;
            deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
            Read read;
            deserializer.parse(stream, offered, read);
            EXPECT_EQ(optionCount(read), 2U);
            EXPECT_NE(deserializer.getHeader(), nullptr);
        },
        Absorbed::Harmless);
    EXPECT_GT(count, 100U);
}

}  // namespace
