// What the presets make of what other toolkits send, and what an observer is told.

#include "tests/soap/Tolerant.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAOption.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

using namespace korva::test;
using Kind = KORVA_ReadingFinding::Kind;
using Policy = KORVA_ReadingPolicy;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const std::string emptyRun = "<objectPath>/a</objectPath>";

std::vector<Finding> findingsOf(const std::string& envelope,
                                const Policy& policy = Policy::stated()) {
    KORVASOAPMessageIDeserializer deserializer;
    FindingList list;
    deserializer.setPolicy(policy);
    deserializer.setObserver(&list);
    readWith(deserializer, envelope);
    return list.findings;
}

void readStrictly(const std::string& envelope) {
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setPolicy(Policy::strict());
    readWith(deserializer, envelope);
}

Finding found(Kind kind, const std::string& path, const std::string& name,
              const std::string& reason, const std::string& uri = {}) {
    return {kind, path, 1, uri, name, reason};
}

// ----- the class -----

TEST(ReadingPolicy, HasThreePresets) {
    static_assert(Policy() == Policy::stated());
    static_assert(Policy::strict() == Policy().setRefuseFindings(true));
    constexpr Policy tolerant = Policy::tolerant();
    static_assert(tolerant.resolvesReferences() && tolerant.keepsUnknownWords() &&
                  tolerant.takesPlainStrings() && tolerant.keepsForeignDetails() &&
                  !tolerant.refusesFindings());
    static_assert(!Policy().resolvesReferences() && !Policy().keepsUnknownWords() &&
                  !Policy().takesPlainStrings() && !Policy().keepsForeignDetails());
}

// ----- observers -----

TEST(ReadingObserver, IsToldOfElementsThatArePassedOver) {
    EXPECT_THAT(findingsOf(runWithOptions(
                    "<item xsi:type=\"bus:runOptionInt\"><z:new xmlns:z=\"urn:z\"><a/>"
                    "</z:new></item>")),
                ElementsAre(found(Kind::eSkippedElement, "/Envelope/Body/run/options/item/new",
                                  "new", "what it stands in has no such child", "urn:z")));
}

TEST(ReadingObserver, IsToldOfHeaderEntriesAndParametersWithoutAType) {
    EXPECT_THAT(findingsOf(run(emptyRun, {}, "<x:other xmlns:x=\"urn:x\"/>")),
                ElementsAre(found(Kind::eSkippedElement, "/Envelope/Header/other", "other",
                                  "neither it nor what holds it tells a type", "urn:x")));
}

TEST(ReadingObserver, IsToldOfWhatFollowsTheOperation) {
    EXPECT_THAT(findingsOf(run(emptyRun, "<x id=\"a\"><y/></x>")),
                ElementsAre(found(Kind::eFurtherElement, "/Envelope/Body/x", "x",
                                  "it stands behind the operation")));
}

TEST(ReadingObserver, IsToldOfReferencesThatAreNotFollowed) {
    EXPECT_THAT(
        findingsOf(runWithOptions("<item xsi:type=\"bus:runOptionInt\" href=\"#a\" id=\"b\"/>")),
        ElementsAre(found(Kind::eReference, "/Envelope/Body/run/options/item", "item",
                          "references are not followed, so it is empty"),
                    found(Kind::eIdentity, "/Envelope/Body/run/options/item", "item",
                          "other elements may refer to it")));
}

TEST(ReadingObserver, IsToldOfReferencesThatAreFollowed) {
    EXPECT_THAT(findingsOf(runWithOptions("<item href=\"#a\"/>",
                                          "<x id=\"a\" xsi:type=\"bus:runOptionInt\"><new/></x>"),
                           Policy::tolerant()),
                ElementsAre(found(Kind::eReference, "/Envelope/Body/run/options/item", "item",
                                  "it has the value of another element"),
                            found(Kind::eIdentity, "/Envelope/Body/x", "x",
                                  "other elements may refer to it"),
                            found(Kind::eSkippedElement, "/Envelope/Body/x", "new",
                                  "what it stands in has no such child")));
}

TEST(ReadingObserver, IsToldOfWordsAndStrings) {
    EXPECT_THAT(
        findingsOf(runWithOptions("<item xsi:type=\"bus:runOptionInt\">"
                                  "<name xsi:type=\"xs:string\">unheardOf</name></item>"),
                   Policy::tolerant()),
        ElementsAre(found(Kind::ePlainString, "/Envelope/Body/run/options/item/name", "name",
                          "it calls itself a string, and is read as the declared type"),
                    found(Kind::eUnknownWord, "/Envelope/Body/run/options/item/name", "name",
                          "its enumeration has no such word, which is kept")));
}

TEST(ReadingObserver, IsToldLineAndColumn) {
    struct Places final : KORVA_ReadingObserver {
        void notice(const KORVA_ReadingFinding& finding) override {
            text += std::to_string(finding.line) + ":" + std::to_string(finding.column) + " ";
        }
        std::string text;
    };
    const std::string text = run(emptyRun +
                                 "\n<options><item xsi:type=\"bus:runOptionInt\">\n"
                                 "<new/><other></other></item></options>");
    for (const std::string& prolog : {std::string(), std::string("<!DOCTYPE x []>")}) {
        Places places;
        KORVASOAPMessageIDeserializer deserializer;
        deserializer.setObserver(&places);
        readWith(deserializer, prolog + text);
        EXPECT_EQ(places.text, "3:7 3:14 ") << prolog;
    }
}

TEST(ReadingObserver, IsToldOfNothingByWhatThisLibraryWrites) {
    const Read read = readTolerantly(runWithOptions(
        "<item xsi:type=\"bus:runOptionInt\"><name>prompt</name><value>1</value></item>"));
    BRIMMemoryOutputStream out;
    KORVASOAPMessageISerializer().serialize(*read, read->getInputMessage(), out);
    const std::string written(out.str(), out.pcount());
    EXPECT_EQ(findingsOf(written), std::vector<Finding>());
    EXPECT_NO_THROW(readStrictly(written));
}

TEST(ReadingObserver, EndsTheReadingByWhatItThrows) {
    struct Thrower final : KORVA_ReadingObserver {
        void notice(const KORVA_ReadingFinding&) override { throw KORVAException("enough"); }
    };
    Thrower thrower;
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setObserver(&thrower);
    EXPECT_THROW(readWith(deserializer, run(emptyRun, "<x/>")), KORVAException);
    deserializer.setObserver(nullptr);
    EXPECT_NO_THROW(readWith(deserializer, run(emptyRun, "<x/>")));
}

TEST(ReadingObserver, ChangesNothingOfWhatIsRead) {
    KORVASOAPMessageIDeserializer deserializer;
    FindingList list;
    deserializer.setObserver(&list);
    const std::string text = runWithOptions(
        "<item xsi:type=\"bus:runOptionInt\" href=\"#a\"><new/><value>1</value></item>", "<x/>");
    const std::string observed = describe(readWith(deserializer, text)->getInputMessage());
    EXPECT_EQ(list.findings.size(), 3U);
    deserializer.setObserver(nullptr);
    EXPECT_EQ(describe(readWith(deserializer, text)->getInputMessage()), observed);
}

TEST(ReadingObserver, OfADocumentIsToldOfItsElements) {
    DocumentReader reader;
    FindingList list;
    reader.deserializer.setObserver(&list);
    EXPECT_EQ(reader.read("<a/>"), nullptr);
    reader.read<KORVAProvider>(document("bus:provider", "<new/>"));
    EXPECT_THAT(list.findings, ElementsAre(found(Kind::eSkippedElement, "/a", "a",
                                                 "it tells no type that is known"),
                                           found(Kind::eSkippedElement, "/root/new", "new",
                                                 "what it stands in has no such child")));
    reader.deserializer.setPolicy(Policy::strict());
    EXPECT_NUMBERED(reader.read("<a/>"), 0xEA4F0015, "KORVA_ReadingPolicy", "a", "",
                    "it tells no type that is known");
}

// ----- strict reading -----

TEST(StrictReading, RefusesWhatAnObserverIsTold) {
    const char* const label = "KORVA_ReadingPolicy";
    EXPECT_NUMBERED(
        readStrictly(runWithOptions("<item xsi:type=\"bus:runOptionInt\"><new/></item>")),
        0xEA4F0015, label, "new", "", "what it stands in has no such child");
    EXPECT_NUMBERED(readStrictly(run(emptyRun, "<x xmlns=\"urn:x\"/>")), 0xEA4F0015, label, "x",
                    "urn:x", "it stands behind the operation");
    EXPECT_NUMBERED(
        readStrictly(runWithOptions("<item xsi:type=\"bus:runOptionInt\" href=\"#a\"/>")),
        0xEA4F0015, label, "item", "", "references are not followed, so it is empty");
    EXPECT_NUMBERED(readStrictly(runWithOptions("<item xsi:type=\"bus:runOptionInt\" id=\"a\"/>")),
                    0xEA4F0015, label, "item", "", "other elements may refer to it");
}

// ----- words and strings -----

TEST(TolerantReading, KeepsWordsThatAnOpenEnumerationLacks) {
    const std::string text =
        runWithOptions("<item xsi:type=\"bus:runOptionInt\"><name>unheardOf</name></item>");
    const Read read = readTolerantly(text);
    BRIMMemoryOutputStream out;
    KORVASOAPMessageISerializer().serialize(*read, read->getInputMessage(), out);
    EXPECT_THAT(std::string(out.str(), out.pcount()), HasSubstr(">unheardOf<"));
    KORVASOAPMessageIDeserializer deserializer;
    EXPECT_NUMBERED(readWith(deserializer, text), 0xEA45DC29, "_stringToEnum()",
                    "runOptionEnum:unheardOf");
}

TEST(TolerantReading, RefusesWordsThatAClosedEnumerationLacks) {
    EXPECT_NUMBERED(described(run(emptyRun, {},
                                  "<bus:halyardHeader><Warden><exception><severity>grave</severity>"
                                  "</exception></Warden></bus:halyardHeader>")),
                    0xEA45DC29, "_stringToEnum()", "severityEnum:grave");
}

TEST(TolerantReading, TakesStringsForRestrictedStringsAndWords) {
    const std::string text =
        run("<objectPath xsi:type=\"xs:string\">/a</objectPath>"
            "<parameterValues/><options xsi:type=\"bus:optionArray\">"
            "<item xsi:type=\"bus:runOptionInt\">"
            "<name xsi:type=\"xs:string\">prompt</name></item></options>");
    EXPECT_EQ(described(text),
              "objectPath: \"/a\"\nparameterValues: array of 0\noptions: array of 1\n"
              "  [1]: runOptionInt\n    name: \"prompt\"\n");
    KORVASOAPMessageIDeserializer deserializer;
    EXPECT_NUMBERED(readWith(deserializer, text), 0xEA487D84,
                    "KORVASchemaTypeIContentHandler::checkType()", "objectPath",
                    "bus:searchPathSingleObject", "xs:string");
}

TEST(TolerantReading, RefusesStringsForNumbersAndObjects) {
    EXPECT_NUMBERED(described(run("<objectPath>/a</objectPath>"
                                  "<parameterValues xsi:type=\"xs:string\">x</parameterValues>")),
                    0xEA487D84, "KORVASchemaTypeIContentHandler::checkType()", "parameterValues",
                    "bus:parameterValueArray", "xs:string");
}

// ----- faults -----

const KORVASOAPFault& faultOf(const KORVASOAPFaultException& exception) {
    return exception.getSOAPFault();
}

/// The exception of a fault with these children beside code and text.
KORVASOAPFaultException raised(const std::string& children, const std::string& behind = {}) {
    try {
        readTolerantly(
            envelope("<e:Fault><faultcode>e:Server</faultcode><faultstring>It failed."
                     "</faultstring>" +
                     children + "</e:Fault>" + behind));
    } catch (const KORVASOAPFaultException& exception) {
        EXPECT_STREQ(faultOf(exception).getFaultCode(), "e:Server");
        EXPECT_STREQ(faultOf(exception).getFaultString(), "It failed.");
        return exception;
    }
    throw std::runtime_error("there was no fault");
}

TEST(TolerantFault, KeepsADetailOfAnotherShapeAsADocument) {
    const KORVASOAPFaultException exception =
        raised("<detail><h:host xmlns:h=\"urn:h\" a=\"&lt;&quot;\">a &amp; b</h:host></detail>");
    const std::string text = faultOf(exception).getDetailText();
    EXPECT_THAT(text, HasSubstr("<detail xmlns:e=\"" + envelopeNamespace + "\""));
    EXPECT_THAT(text, testing::EndsWith("><h:host xmlns:h=\"urn:h\" a=\"&lt;&quot;\">a &amp; "
                                        "b</h:host></detail>"));
    EXPECT_EQ(faultOf(exception).getDetail(), nullptr);
    EXPECT_EQ(faultOf(exception).getUndocumentedDetail(), nullptr);
    // It is well-formed, and declares what it uses.
    DocumentReader reader;
    EXPECT_EQ(reader.read(text), nullptr);
}

TEST(TolerantFault, KeepsADetailThatTurnsOutToBeOfAnotherShape) {
    const KORVASOAPFaultException exception =
        raised("<detail><exception><stack>at x</stack></exception></detail>");
    EXPECT_THAT(faultOf(exception).getDetailText(),
                HasSubstr("<exception><stack>at x</stack></exception>"));
}

TEST(TolerantFault, KeepsADetailWhoseReferenceLeadsNowhere) {
    const KORVASOAPFaultException exception = raised(
        "<detail><bus:exception xsi:type=\"bus:faultDetail\"><severity href=\"#s\"/>"
        "</bus:exception></detail>");
    EXPECT_THAT(faultOf(exception).getDetailText(), HasSubstr("href=\"#s\""));
}

TEST(TolerantFault, ReadsDetailsOfBothShapes) {
    const KORVASOAPFaultException documented = raised(
        "<detail><bus:exception xsi:type=\"bus:faultDetail\"><errorCode>RPT-1</errorCode>"
        "</bus:exception></detail>");
    EXPECT_EQ(faultOf(documented).getDetailText(), nullptr);
    ASSERT_NE(faultOf(documented).getDetail(), nullptr);
    EXPECT_STREQ(faultOf(documented).getDetail()->at(0)->getErrorCode(), "RPT-1");
    const KORVASOAPFaultException undocumented = raised(
        "<detail><bus:exception><bus:errorCode>RPT-2</bus:errorCode></bus:exception></detail>");
    ASSERT_NE(faultOf(undocumented).getUndocumentedDetail(), nullptr);
    EXPECT_STREQ(faultOf(undocumented).getUndocumentedDetail()->at(0)->getErrorCodeString(),
                 "RPT-2");
}

TEST(TolerantFault, FollowsReferencesOfItsDetails) {
    const KORVASOAPFaultException exception =
        raised("<detail><bus:exception href=\"#d\" xsi:type=\"bus:faultDetail\"/></detail>",
               "<x id=\"d\" xsi:type=\"bus:faultDetail\"><errorCode>RPT-3</errorCode></x>");
    ASSERT_NE(faultOf(exception).getDetail(), nullptr);
    EXPECT_STREQ(faultOf(exception).getDetail()->at(0)->getErrorCode(), "RPT-3");
}

TEST(TolerantFault, PassesOverChildrenThatNoFaultHas) {
    EXPECT_EQ(
        faultOf(raised("<reason><x>y</x></reason><faultactor>me</faultactor>")).getFaultActor(),
        std::string("me"));
}

TEST(TolerantFault, TakesTypesOfText) {
    try {
        readTolerantly(
            envelope("<e:Fault><faultcode xsi:type=\"xs:QName\">e:Server</faultcode>"
                     "<faultstring xsi:type=\"xs:string\">no</faultstring></e:Fault>"));
        ADD_FAILURE() << "there was no fault";
    } catch (const KORVASOAPFaultException& exception) {
        EXPECT_STREQ(faultOf(exception).getFaultCode(), "e:Server");
    }
}

TEST(TolerantFault, IsCopiedAndComparedWithItsText) {
    const KORVASOAPFaultException exception = raised("<detail><a/></detail>");
    const auto registry = KORVAObjectRegistryFactory::getInstance().create();
    const ZELSmartPointer<KORVAObjectRegistryI> held(registry);
    KORVASOAPFault copy(faultOf(exception), *registry);
    EXPECT_STREQ(copy.getDetailText(), faultOf(exception).getDetailText());
    EXPECT_TRUE(copy == faultOf(exception));
    copy.setDetailText("<detail/>");
    EXPECT_FALSE(copy == faultOf(exception));
}

TEST(TolerantFault, IsToldToAnObserver) {
    KORVASOAPMessageIDeserializer deserializer;
    FindingList list;
    deserializer.setPolicy(Policy::tolerant());
    deserializer.setObserver(&list);
    EXPECT_THROW(
        readWith(deserializer, envelope("<e:Fault><reason/><detail><a/></detail></e:Fault>")),
        KORVASOAPFaultException);
    ASSERT_EQ(list.findings.size(), 2U);
    EXPECT_EQ(list.findings[0].reason, "no fault has such a child");
    EXPECT_EQ(list.findings[1].kind, Kind::eForeignDetail);
}

TEST(TolerantFault, SurvivesEachAllocationThatFails) {
    const std::string text = envelope(
        "<e:Fault><faultcode>e:Server</faultcode><detail><exception><stack>at x</stack>"
        "</exception></detail></e:Fault>");
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    forEachFailingAllocation(
        [&] {
            KORVASOAPMessageIDeserializer deserializer;
            deserializer.setPolicy(Policy::tolerant());
            try {
                BRIMMemoryInputStream stream(text.data(), text.size());
                Read read;
                deserializer.parse(stream, offered, read);
            } catch (const KORVASOAPFaultException& exception) {
                if (faultOf(exception).getDetailText() == nullptr) ADD_FAILURE() << "no detail";
            }
        },
        Absorbed::Harmless);
}

}  // namespace
