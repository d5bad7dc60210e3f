// Elements that have the value of another: href="#x" and id="x".

#include "tests/soap/Tolerant.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAOption.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAStringArray.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <string>

using namespace korva::test;
using testing::HasSubstr;

namespace {

constexpr const char* label = "KORVA_ReadingPolicy::resolvesReferences()";

/// Names of the parameter values that a request has.
std::string valuesWith(const std::string& content) {
    return "<parameterValues xsi:type=\"SOAP-ENC:Array\" "
           "SOAP-ENC:arrayType=\"bus:parameterValue[]\">" +
           content + "</parameterValues>";
}

std::string prompt(const std::string& value, const std::string& attributes = {}) {
    return "<item xsi:type=\"bus:runOptionBoolean\"" + attributes + "><name>prompt</name><value>" +
           value + "</value></item>";
}

std::string promptText(const std::string& value, int number) {
    return "  [" + std::to_string(number) +
           "]: runOptionBoolean\n    name: \"prompt\"\n    value: " + value + "\n";
}

std::string optionsText(int count) {
    return "objectPath: \"/a\"\nparameterValues: array of 0\noptions: array of " +
           std::to_string(count) + "\n";
}

KORVAOptionArray& optionsOf(const Read& read) {
    return *static_cast<KORVAOptionArray*>(
        static_cast<KORVASchemaTypeI*>(read->getInputMessage().getChildObject("options", false)));
}

TEST(MultiReference, LeadsBackToAnElementOfTheOperation) {
    EXPECT_EQ(described(runWithOptions(prompt("true", " id=\"a\"") + "<item href=\"#a\"/>")),
              optionsText(2) + promptText("true", 1) + promptText("true", 2));
}

TEST(MultiReference, LeadsForwardToAnElementOfTheOperation) {
    EXPECT_EQ(described(runWithOptions("<item href=\"#a\"/>" + prompt("true", " id=\"a\""))),
              optionsText(2) + promptText("true", 1) + promptText("true", 2));
}

TEST(MultiReference, LeadsToAnElementBehindTheOperation) {
    EXPECT_EQ(described(runWithOptions("<item href=\"#a\"/>", prompt("true", " id=\"a\""))),
              optionsText(1) + promptText("true", 1));
}

TEST(MultiReference, KeepsTheOrderOfItems) {
    EXPECT_EQ(described(runWithOptions(
                  "<item href=\"#b\"/>" + prompt("true") + "<item href=\"#a\"/>" + prompt("false"),
                  prompt("false", " id=\"a\"") + prompt("true", " id=\"b\""))),
              optionsText(4) + promptText("true", 1) + promptText("true", 2) +
                  promptText("false", 3) + promptText("false", 4));
}

TEST(MultiReference, GivesAllReferencesOneObject) {
    const Read read = readTolerantly(
        runWithOptions("<item href=\"#a\"/><item href=\"#a\"/>", prompt("true", " id=\"a\"")));
    const KORVAOptionArray& options = optionsOf(read);
    ASSERT_EQ(options.size(), 2U);
    EXPECT_EQ(options.at(0), options.at(1));
}

TEST(MultiReference, LeadsThroughElementsBehindTheOperation) {
    EXPECT_EQ(
        described(runWithOptions("<item href=\"#a\"/>",
                                 "<x id=\"c\" xsi:type=\"xs:boolean\">true</x>"
                                 "<x id=\"a\" xsi:type=\"bus:runOptionBoolean\"><name href=\"#b\"/>"
                                 "<value href=\"#c\"/></x>"
                                 "<x id=\"b\" xsi:type=\"bus:runOptionEnum\">prompt</x>")),
        optionsText(1) + promptText("true", 1));
}

TEST(MultiReference, GivesTheDeclaredTypeToAnElementThatTellsNone) {
    const std::string behind =
        "<x id=\"p\">/b</x><x id=\"v\"><item id=\"i\"><name href=\"#n\"/></item></x>"
        "<x id=\"n\">region</x>";
    EXPECT_EQ(described(run("<objectPath href=\"#p\"/><parameterValues href=\"#v\"/>", behind)),
              "objectPath: \"/b\"\nparameterValues: array of 1\n  [1]: parameterValue\n"
              "    name: \"region\"\noptions: null\n");
}

TEST(MultiReference, LeadsToWhatIsItselfAReference) {
    EXPECT_EQ(described(runWithOptions("<item href=\"#a\"/>",
                                       "<x id=\"a\" href=\"#b\"/>" + prompt("true", " id=\"b\""))),
              optionsText(1) + promptText("true", 1));
}

TEST(MultiReference, LeadsIntoAnElementBehindTheOperation) {
    EXPECT_EQ(described(runWithOptions("<item href=\"#b\"/><item href=\"#a\"/>",
                                       "<x id=\"v\" xsi:type=\"SOAP-ENC:Array\" "
                                       "SOAP-ENC:arrayType=\"bus:option[]\">" +
                                           prompt("true", " id=\"a\"") +
                                           prompt("false", " id=\"b\"") + "</x>")),
              optionsText(2) + promptText("false", 1) + promptText("true", 2));
}

TEST(MultiReference, OfAnArrayInItsHolderSharesItsItems) {
    const std::string values = valuesWith(
        "<item><name>a</name><value href=\"#v\"/></item>"
        "<item><name>b</name><value href=\"#v\"/></item>");
    const Read read = readTolerantly(
        run("<objectPath>/a</objectPath>" + values,
            "<x id=\"v\" xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:parmValueItem[1]\">"
            "<item xsi:type=\"bus:simpleParmValueItem\"><use>1</use></item></x>"));
    EXPECT_EQ(describe(read->getInputMessage()),
              "objectPath: \"/a\"\nparameterValues: array of 2\n"
              "  [1]: parameterValue\n    name: \"a\"\n    value: array of 1\n"
              "      [1]: simpleParmValueItem\n        use: \"1\"\n"
              "  [2]: parameterValue\n    name: \"b\"\n    value: array of 1\n"
              "      [1]: simpleParmValueItem\n        use: \"1\"\noptions: null\n");
}

TEST(MultiReference, GivesTextsAndNumbers) {
    EXPECT_EQ(described(runWithOptions(
                  "<item xsi:type=\"bus:runOptionInt\"><name href=\"#n\"/><value href=\"#i\"/>"
                  "</item><item xsi:type=\"bus:runOptionStringArray\"><name href=\"#n\"/><value>"
                  "<item href=\"#t\"/><item>two</item><item href=\"#t\"/></value></item>",
                  "<x id=\"n\" xsi:type=\"bus:runOptionEnum\">outputFormat</x>"
                  "<x id=\"i\" xsi:type=\"xs:integer\"> -7 </x>"
                  "<x id=\"t\" xsi:type=\"xs:string\">one &amp; only</x>")),
              optionsText(2) +
                  "  [1]: runOptionInt\n    name: \"outputFormat\"\n    value: -7\n"
                  "  [2]: runOptionStringArray\n    name: \"outputFormat\"\n    value: array of 3\n"
                  "      [1]: \"one & only\"\n      [2]: \"two\"\n      [3]: \"one & only\"\n");
}

TEST(MultiReference, GivesTextsOfTheOperation) {
    EXPECT_EQ(described(runWithOptions(
                  "<item xsi:type=\"bus:runOptionStringArray\"><name id=\"n\">outputFormat</name>"
                  "<value><item id=\"t\">one</item><item href=\"#t\"/></value></item>"
                  "<item xsi:type=\"bus:runOptionInt\"><name href=\"#n\"/><value id=\"i\">5</value>"
                  "</item><item xsi:type=\"bus:runOptionInt\"><value href=\"#i\"/></item>")),
              optionsText(3) +
                  "  [1]: runOptionStringArray\n    name: \"outputFormat\"\n    value: array of 2\n"
                  "      [1]: \"one\"\n      [2]: \"one\"\n"
                  "  [2]: runOptionInt\n    name: \"outputFormat\"\n    value: 5\n"
                  "  [3]: runOptionInt\n    value: 5\n");
}

TEST(MultiReference, GivesTheHeader) {
    const std::string text =
        described(run("<objectPath>/a</objectPath>",
                      "<x id=\"h\" xsi:type=\"bus:halyardHeader\"><tracking href=\"#t\"/></x>"
                      "<x id=\"t\" xsi:type=\"bus:tracking\"><hopCount>3</hopCount></x>",
                      "<bus:halyardHeader href=\"#h\"/>"));
    EXPECT_THAT(text, HasSubstr("header: halyardHeader\n  tracking: tracking\n    hopCount: 3\n"));
}

TEST(MultiReference, SeesPrefixesThatAnElementAndTheBodyDeclare) {
    EXPECT_EQ(
        described("<e:Envelope xmlns:e=\"" + envelopeNamespace + "\"" + declarations() +
                  "><e:Body xmlns:q=\"" + busNamespace + "\"><r:run xmlns:r=\"" + reportNamespace +
                  "\"><objectPath>/a</objectPath><parameterValues/><options "
                  "xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:option[]\">"
                  "<item href=\"#a\"/></options></r:run>"
                  "<x id=\"a\" xmlns:o=\"" +
                  busNamespace + "\" xsi:type=\"o:runOptionBoolean\"><name xmlns:p=\"" +
                  busNamespace +
                  "\" xsi:type=\"p:runOptionEnum\">prompt</name><y xmlns:o=\"urn:other\"/>"
                  "<value>true</value></x><x id=\"b\" xsi:type=\"q:guid\">1</x>"
                  "</e:Body></e:Envelope>"),
        optionsText(1) + promptText("true", 1));
}

TEST(MultiReference, ToANilElementIsNil) {
    EXPECT_EQ(described(runWithOptions("<item href=\"#a\"/>" + prompt("true") +
                                           "<item href=\"#a\"/><item xsi:type=\"bus:runOptionInt\">"
                                           "<value href=\"#a\"/></item>",
                                       "<x id=\"a\" xsi:nil=\"true\"/>")),
              optionsText(2) + promptText("true", 1) + "  [2]: runOptionInt\n");
}

TEST(MultiReference, IsLeftAloneBehindTheOperationWhenNobodyRefersToIt) {
    EXPECT_EQ(described(runWithOptions(prompt("true"), "<x id=\"a\" xsi:type=\"bus:nonsense\"/>")),
              optionsText(1) + promptText("true", 1));
}

TEST(MultiReference, PassesOverWhatTheReferringElementHolds) {
    EXPECT_EQ(described(runWithOptions("<item href=\"#a\"> <x>ignored</x></item>",
                                       prompt("true", " id=\"a\""))),
              optionsText(1) + promptText("true", 1));
}

TEST(MultiReference, InAReplyIsFollowed) {
    const Read call = KORVAReportServicePortType::getInstance().createPortTypeBinding("run", {});
    const std::string reply =
        envelope("<r:runResponse xmlns:r=\"" + reportNamespace +
                 "\"><result href=\"#a\"/></r:runResponse>"
                 "<x id=\"a\" xsi:type=\"bus:asynchReply\"><status href=\"#b\"/></x>"
                 "<x id=\"b\" xsi:type=\"xs:string\">complete</x>");
    BRIMMemoryInputStream stream(reply.data(), reply.size());
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    deserializer.parse(stream, *call, &call->getOutputMessage());
    EXPECT_EQ(describe(call->getOutputMessage()), "result: asynchReply\n  status: \"complete\"\n");
}

TEST(MultiReference, InADocumentIsFollowed) {
    DocumentReader reader;
    reader.deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    const auto& output = reader.read<KORVAAsynchDetailReportOutput>(
        document("bus:asynchDetailReportOutput",
                 "<outputPages><item id=\"a\">one</item><item href=\"#a\"/></outputPages>"));
    ASSERT_EQ(output.getOutputPages().size(), 2U);
    EXPECT_STREQ(output.getOutputPages().at(1), "one");
}

TEST(MultiReference, IsReadAsAnEmptyElementUnlessItIsFollowed) {
    KORVASOAPMessageIDeserializer deserializer;
    const Read read =
        readWith(deserializer,
                 runWithOptions("<item xsi:type=\"bus:runOptionInt\" href=\"#a\"/>",
                                "<x id=\"a\" xsi:type=\"bus:runOptionInt\"><value>1</value></x>"));
    EXPECT_EQ(describe(read->getInputMessage()), optionsText(1) + "  [1]: runOptionInt\n");
}

// ----- what cannot be resolved -----

TEST(MultiReference, ToNoElementIsAnError) {
    EXPECT_NUMBERED(described(runWithOptions("<item href=\"#a\"/>")), 0xEA4F0012, label, "item",
                    "a");
    EXPECT_NUMBERED(described(runWithOptions("<item href=\"#\"/>" + prompt("true"))), 0xEA47EC7B,
                    "KORVASchemaTypesFactory::create()", "bus:option");
}

TEST(MultiReference, ToAnElementWithoutAValueIsAnError) {
    EXPECT_NUMBERED(described(run("<objectPath id=\"x\">/a</objectPath><parameterValues/><options "
                                  "xsi:type=\"bus:optionArray\"><unknown id=\"u\"/>"
                                  "<item href=\"#r\"/></options>",
                                  "<r/>")),
                    0xEA47EC7B, "KORVASchemaTypesFactory::create()", "bus:option");
}

TEST(MultiReference, ToMoreThanOneElementIsAnError) {
    EXPECT_NUMBERED(
        described(runWithOptions("<item href=\"#a\"/>",
                                 prompt("true", " id=\"a\"") + prompt("false", " id=\"a\""))),
        0xEA4F0013, label, "item", "a");
    EXPECT_NUMBERED(described(runWithOptions("<item href=\"#a\"/>" + prompt("true", " id=\"a\"") +
                                             prompt("false", " id=\"a\""))),
                    0xEA4F0013, label, "item", "a");
}

TEST(MultiReference, IdsThatOccurTwiceAreNoErrorWithoutAReference) {
    EXPECT_EQ(described(runWithOptions(prompt("true", " id=\"a\"") + prompt("true", " id=\"a\""))),
              optionsText(2) + promptText("true", 1) + promptText("true", 2));
}

TEST(MultiReference, ToItselfIsAnError) {
    EXPECT_NUMBERED(described(runWithOptions("<item href=\"#a\"/>", "<x id=\"a\" href=\"#a\"/>")),
                    0xEA4F0014, label, "x", "a");
    EXPECT_NUMBERED(described(run("<objectPath id=\"a\" href=\"#a\"/>")), 0xEA4F0014, label,
                    "objectPath", "a");
}

TEST(MultiReference, ToAnElementInWhichItStandsIsAnError) {
    const std::string option =
        "<item xsi:type=\"bus:runOptionStringArray\" id=\"a\"><value><item href=\"#a\"/></value>"
        "</item>";
    EXPECT_NUMBERED(described(runWithOptions(option)), 0xEA4F0014, label, "item", "a");
}

TEST(MultiReference, ThatLeadsBackThroughOthersIsAnError) {
    EXPECT_NUMBERED(
        described(run("<objectPath>/a</objectPath><parameterValues href=\"#a\"/>",
                      "<x id=\"a\" xsi:type=\"bus:parameterValueArray\"><item href=\"#b\"/></x>"
                      "<x id=\"b\" xsi:type=\"bus:parameterValue\"><value href=\"#c\"/></x>"
                      "<x id=\"c\"><item xsi:type=\"bus:boundRangeParmValueItem\">"
                      "<start href=\"#b\"/></item></x>")),
        0xEA4F0014, label, "start", "b");
}

TEST(MultiReference, ToAnotherTypeIsAnError) {
    EXPECT_NUMBERED(
        described(runWithOptions("<item href=\"#a\"/>", "<x id=\"a\" xsi:type=\"bus:tracking\"/>")),
        0xEA4BCA5D, "KORVASchemaTypeIContentHandler::startElement", "bus:tracking", "bus:option");
    EXPECT_NUMBERED(
        described(run("<objectPath href=\"#a\"/>", "<x id=\"a\" xsi:type=\"bus:tracking\"/>")),
        0xEA4BD4DB, "KORVASchemaTypeIContentHandler::checkType()", "objectPath",
        "bus:searchPathSingleObject", "bus:tracking");
    EXPECT_NUMBERED(
        described(runWithOptions("<item xsi:type=\"bus:runOptionInt\"><value href=\"#a\"/></item>",
                                 "<x id=\"a\" xsi:type=\"xs:string\">1</x>")),
        0xEA487D84, "KORVASchemaTypeIContentHandler::checkType()", "value", "xs:int", "xs:string");
}

TEST(MultiReference, ToAFieldThatHasAValueIsAnError) {
    EXPECT_NUMBERED(
        described(runWithOptions("<item xsi:type=\"bus:runOptionInt\"><name>prompt</name>"
                                 "<name href=\"#a\"/></item>",
                                 "<x id=\"a\" xsi:type=\"bus:runOptionEnum\">prompt</x>")),
        0xEA4B8476, label, "runOptionInt", "name");
}

}  // namespace
