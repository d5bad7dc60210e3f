// What a fault looks like on the wire, rule by rule. Whole envelopes: FaultGoldenTest.
#include "tests/support/ExpectThrow.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASOAPFaultSerializerFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELException.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <stdexcept>
#include <string>

namespace {

using korva::test::addDetails;
using korva::test::addUndocumentedDetails;
using korva::test::CollectingStream;
using korva::test::makeDocumentedFault;
using korva::test::makeFault;
using korva::test::makeHeader;
using korva::test::Maker;
using korva::test::makeUndocumentedFault;
using korva::test::written;
using testing::HasSubstr;
using testing::Not;

/// What stands between the first `start` and the `end` behind it.
std::string between(const std::string& text, const std::string& start, const std::string& end) {
    const std::size_t from = text.find(start);
    const std::size_t to = text.find(end, from == std::string::npos ? from : from + start.size());
    if (to == std::string::npos) return "no " + start + "..." + end + " in " + text;
    return text.substr(from + start.size(), to - from - start.size());
}

/// The children of the fault as they are written.
std::string faultElement(const KORVASOAPFault& fault) {
    return between(written(fault), "<SOAP-ENV:Fault>", "</SOAP-ENV:Fault>");
}

std::string detailElement(const KORVASOAPFault& fault) {
    return between(written(fault), "<detail>", "</detail>");
}

std::string writtenCode(const char* code) {
    KORVASOAPFault fault;
    fault.setFaultCode(code);
    return between(written(fault), "<faultcode>", "</faultcode>");
}

// ----- the frame -----

TEST(FaultSerializer, WithoutFormattingTheFrameHasNoWhiteSpace) {
    EXPECT_EQ(faultElement(KORVASOAPFault()),
              "<faultcode></faultcode><faultstring></faultstring><detail></detail>");
    const std::string text = written(KORVASOAPFault(), nullptr, false, true);
    EXPECT_EQ(text.substr(0, text.find(' ', 50)),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><SOAP-ENV:Envelope");
    EXPECT_THAT(text, HasSubstr("\"><SOAP-ENV:Header></SOAP-ENV:Header><SOAP-ENV:Body>"
                                "<SOAP-ENV:Fault><faultcode>"));
    EXPECT_THAT(text, HasSubstr("</detail></SOAP-ENV:Fault></SOAP-ENV:Body></SOAP-ENV:Envelope>"));
    EXPECT_EQ(text.find_first_of("\n\t"), std::string::npos);
}

TEST(FaultSerializer, WithFormattingEachElementOfTheFrameHasALine) {
    const std::string text = written(KORVASOAPFault(), nullptr, true, true);
    const std::size_t start = text.find("\n<SOAP-ENV:Envelope ");
    EXPECT_EQ(text.substr(0, start), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    EXPECT_EQ(text.substr(text.find(">\n", start + 1)),
              ">\n\t<SOAP-ENV:Header>\n\t</SOAP-ENV:Header>\n\t<SOAP-ENV:Body>\n"
              "\t\t<SOAP-ENV:Fault>\n\t\t\t<faultcode></faultcode>\n"
              "\t\t\t<faultstring></faultstring>\n\t\t\t<detail>\n\t\t\t</detail>\n"
              "\t\t</SOAP-ENV:Fault>\n\t</SOAP-ENV:Body>\n</SOAP-ENV:Envelope>\n");
}

TEST(FaultSerializer, TheXmlDeclarationIsWrittenOnlyWhenAskedFor) {
    EXPECT_EQ(written(KORVASOAPFault(), nullptr, false, false).rfind("<SOAP-ENV:Envelope ", 0), 0u);
    EXPECT_EQ(written(KORVASOAPFault(), nullptr, true, false).rfind("<SOAP-ENV:Envelope ", 0), 0u);
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" +
                  written(KORVASOAPFault(), nullptr, false, false),
              written(KORVASOAPFault(), nullptr, false, true));
}

TEST(FaultSerializer, TheHeaderStandsAtTwoTabsWithItsTypes) {
    const Maker maker;
    for (const bool formatted : {false, true}) {
        const std::string text = written(makeFault(maker), &makeHeader(maker), formatted);
        const std::string start = formatted ? "\t<SOAP-ENV:Header>\n" : "<SOAP-ENV:Header>";
        EXPECT_THAT(text,
                    HasSubstr(start + "\t\t<bus:halyardHeader xsi:type=\"bus:halyardHeader\">\n"));
        EXPECT_THAT(text, HasSubstr("\t\t</bus:halyardHeader>\n" +
                                    std::string(formatted ? "\t" : "") + "</SOAP-ENV:Header>"));
        EXPECT_THAT(text, HasSubstr("xsi:type=\"xs:string\">s&amp;1<"));
    }
}

TEST(FaultSerializer, WithoutAHeaderItsElementIsEmpty) {
    EXPECT_THAT(written(KORVASOAPFault()), HasSubstr("<SOAP-ENV:Header></SOAP-ENV:Header>"));
}

// ----- code, text, actor -----

TEST(FaultSerializer, AFaultCodeOfTheEnvelopesNamespaceGetsItsPrefix) {
    EXPECT_EQ(writtenCode("SoapEnv:Client"), "SOAP-ENV:Client");
    EXPECT_EQ(writtenCode("soapenv:Server"), "SOAP-ENV:Server");
    EXPECT_EQ(writtenCode("soap-env:Server"), "SOAP-ENV:Server");
    EXPECT_EQ(writtenCode("SOAP-ENV:Client.Login:x"), "SOAP-ENV:Client.Login:x");
    EXPECT_EQ(writtenCode("soapenv:"), "SOAP-ENV:");
}

TEST(FaultSerializer, AnyOtherFaultCodeStaysAsItStands) {
    for (const char* const code :
         {"bus:Client", "Client", "", "soapenv", "SOAP-ENV", ":Client", "xsoapenv:Client",
          "soapen:Client", "soap_env:Client", "\xC5\xBFoapenv:Client"})
        EXPECT_EQ(writtenCode(code), code);
}

TEST(FaultSerializer, ANullFaultCodeOrTextGivesAnEmptyElement) {
    EXPECT_EQ(faultElement(KORVASOAPFault())
                  .rfind("<faultcode></faultcode><faultstring>"
                         "</faultstring>",
                         0),
              0u);
}

TEST(FaultSerializer, TheActorIsWrittenOnlyIfItIsSet) {
    KORVASOAPFault fault;
    EXPECT_THAT(faultElement(fault), Not(HasSubstr("faultactor")));
    fault.setFaultActor("");
    EXPECT_THAT(faultElement(fault), HasSubstr("</faultstring><faultactor></faultactor><detail>"));
    fault.setFaultActor("urn:a");
    EXPECT_THAT(faultElement(fault), HasSubstr("<faultactor>urn:a</faultactor>"));
}

TEST(FaultSerializer, CodeTextAndActorAreNotEscaped) {
    KORVASOAPFault fault;
    fault.setFaultCode("a&b");
    fault.setFaultString("<b>&\"'");
    fault.setFaultActor("c>d");
    EXPECT_EQ(faultElement(fault),
              "<faultcode>a&b</faultcode><faultstring><b>&\"'</faultstring>"
              "<faultactor>c>d</faultactor><detail></detail>");
}

TEST(FaultSerializer, CodeTextAndActorMayBeStreamed) {
    const korva::test::TextStreamable source("soapenv:<&>");
    KORVA_CharStreamable text;
    text.initialize(source, false);
    KORVASOAPFault fault;
    fault.setFaultCode(text.asCharStar());
    fault.setFaultString(text.asCharStar());
    fault.setFaultActor(text.asCharStar());
    EXPECT_EQ(faultElement(fault),
              "<faultcode>soapenv:<&></faultcode><faultstring>soapenv:<&></faultstring>"
              "<faultactor>soapenv:<&></faultactor><detail></detail>");
}

/// The children of the fault as a serializer that escapes writes them.
std::string escapedElement(const KORVASOAPFault& fault, bool replaceInvalidText = false) {
    KORVASOAPFaultSerializer serializer;
    serializer.setEscapeTexts(true);
    serializer.setReplaceInvalidText(replaceInvalidText);
    CollectingStream stream;
    serializer.serialize(nullptr, fault, stream, false, false);
    return between(stream.text, "<SOAP-ENV:Fault>", "</SOAP-ENV:Fault>");
}

TEST(FaultSerializer, CodeTextAndActorAreEscapedOnDemand) {
    const korva::test::TextStreamable source("</faultactor><x/>");
    KORVA_CharStreamable text;
    text.initialize(source, false);
    KORVASOAPFault fault;
    fault.setFaultCode("soapenv:a&b");
    fault.setFaultString("<b>&\"'");
    fault.setFaultActor(text.asCharStar());
    EXPECT_EQ(escapedElement(fault),
              "<faultcode>SOAP-ENV:a&amp;b</faultcode>"
              "<faultstring>&lt;b&gt;&amp;&quot;&apos;</faultstring>"
              "<faultactor>&lt;/faultactor&gt;&lt;x/&gt;</faultactor><detail></detail>");
}

TEST(FaultSerializer, TextsThatAreEscapedMayHoldOnlyWhatADocumentCan) {
    KORVASOAPFault fault;
    fault.setFaultCode("a");
    fault.setFaultString("b\x01");
    EXPECT_NUMBERED(escapedElement(fault), 0xEA4F0004U, nullptr, "/Fault/faultstring",
                    "the character U+0001", "setReplaceInvalidText");
    EXPECT_EQ(escapedElement(fault, true),
              "<faultcode>a</faultcode><faultstring>b\xEF\xBF\xBD</faultstring>"
              "<detail></detail>");
    // As they stand, whatever they are.
    EXPECT_THAT(faultElement(fault), HasSubstr("<faultstring>b\x01</faultstring>"));
}

TEST(FaultSerializer, TextsOfDetailsMayHoldOnlyWhatADocumentCan) {
    const Maker maker;
    KORVASOAPFault& documented = makeFault(maker);
    addDetails(maker, documented, {{"error", "c\x02", {}}});
    EXPECT_NUMBERED(written(documented), 0xEA4F0004U, nullptr, "/Fault/detail/exception/errorCode",
                    "the character U+0002", "setReplaceInvalidText");
    KORVASOAPFault& undocumented = makeFault(maker);
    addUndocumentedDetails(maker, undocumented, {{"error", "c\x02", {}}});
    EXPECT_NUMBERED(written(undocumented), 0xEA4F0004U, nullptr,
                    "/Fault/detail/exception/errorCode", "the character U+0002",
                    "setReplaceInvalidText");
}

// ----- details -----

TEST(FaultSerializer, WithoutDetailsTheirElementIsEmpty) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    EXPECT_EQ(detailElement(fault), "");
    addDetails(maker, fault, {});
    addUndocumentedDetails(maker, fault, {});
    EXPECT_EQ(detailElement(fault), "");
}

TEST(FaultSerializer, DocumentedDetailsTellTheirTypes) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {{"error", "<1>", {{"a&b", 2}}}});
    EXPECT_EQ(detailElement(fault),
              "\t\t\t\t<bus:exception xsi:type=\"bus:faultDetail\">\n"
              "\t\t\t\t\t<bus:errorCode xsi:type=\"xs:string\">&lt;1&gt;</bus:errorCode>\n"
              "\t\t\t\t\t<bus:message xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:faultDetailMessage[1]\">\n"
              "\t\t\t\t\t\t<item xsi:type=\"bus:faultDetailMessage\">\n"
              "\t\t\t\t\t\t\t<bus:message xsi:type=\"xs:string\">a&amp;b</bus:message>\n"
              "\t\t\t\t\t\t\t<bus:nestingLevel xsi:type=\"xs:integer\">2</bus:nestingLevel>\n"
              "\t\t\t\t\t\t</item>\n"
              "\t\t\t\t\t</bus:message>\n"
              "\t\t\t\t\t<bus:severity xsi:type=\"bus:severityEnum\">error</bus:severity>\n"
              "\t\t\t\t</bus:exception>\n");
}

TEST(FaultSerializer, UndocumentedDetailsTellNoTypes) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{"error", "<1>", {{"a&b", 2}, {"c", {}}}}});
    EXPECT_EQ(detailElement(fault),
              "<bus:exception>"
              "\t\t\t\t\t<bus:severity>error</bus:severity>\n"
              "\t\t\t\t\t<bus:errorCode>&lt;1&gt;</bus:errorCode>\n"
              "\t\t\t\t\t<bus:message>\n"
              "\t\t\t\t\t\t<bus:messageString>a&amp;b</bus:messageString>\n"
              "\t\t\t\t\t\t<bus:nestingLevel>2</bus:nestingLevel>\n"
              "\t\t\t\t\t</bus:message>\n"
              "\t\t\t\t\t<bus:message>\n"
              "\t\t\t\t\t\t<bus:messageString>c</bus:messageString>\n"
              "\t\t\t\t\t</bus:message>\n"
              "</bus:exception>");
}

TEST(FaultSerializer, WhatIsUnsetInADetailIsLeftOut) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{nullptr, nullptr, {}}});
    fault.getUndocumentedDetail()->front()->getMessage().push_back(nullptr);
    EXPECT_EQ(detailElement(fault), "<bus:exception></bus:exception>");
}

TEST(FaultSerializer, TextsOfUndocumentedDetailsMayBeStreamed) {
    const Maker maker;
    const korva::test::TextStreamable source("<&");
    KORVA_CharStreamable text;
    text.initialize(source, false);
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{text.asCharStar(), nullptr, {}}});
    EXPECT_THAT(detailElement(fault), HasSubstr("<bus:severity>&lt;&amp;</bus:severity>\n"));
    text.setIsContentId(true);
    EXPECT_THAT(detailElement(fault), HasSubstr("<bus:severity href=\"cid:<&\"></bus:severity>\n"));
}

TEST(FaultSerializer, DocumentedDetailsStandBeforeUndocumentedOnes) {
    const Maker maker;
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    addDetails(maker, fault, korva::test::sampleDetails());
    const std::string documented = detailElement(makeDocumentedFault(maker));
    const std::string undocumented = detailElement(makeUndocumentedFault(maker));
    EXPECT_EQ(detailElement(fault), documented + undocumented);
}

TEST(FaultSerializer, ANullRowIsAnAssertion) {
    const Maker maker;
    KORVASOAPFault& documented = makeDocumentedFault(maker);
    documented.getDetail()->push_back(nullptr);
    EXPECT_ASSERTION(written(documented), "ZEL_ASSERT(pFaultDetail);");
    KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    undocumented.getUndocumentedDetail()->push_back(nullptr);
    EXPECT_ASSERTION(written(undocumented), "ZEL_ASSERT(pUndocumentedFaultDetail);");
}

TEST(FaultSerializer, WritesAnyNumberOfFaultsOneAfterTheOther) {
    const Maker maker;
    const KORVASOAPFault& fault = makeUndocumentedFault(maker);
    KORVASOAPFaultSerializer serializer;
    CollectingStream stream;
    serializer.serialize(nullptr, fault, stream, true, true);
    stream.text.clear();
    serializer.serialize(nullptr, fault, stream, false, false);
    EXPECT_EQ(stream.text, written(fault));
}

TEST(FaultSerializer, TheFactoryMakesAndDestroysSerializers) {
    KORVASOAPFaultSerializerFactory& factory = KORVASOAPFaultSerializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVASOAPFaultSerializerFactory::getInstance());
    KORVASOAPFaultSerializerI* const serializer = factory.create();
    EXPECT_NE(dynamic_cast<KORVASOAPFaultSerializer*>(serializer), nullptr);
    CollectingStream stream;
    serializer->serialize(nullptr, KORVASOAPFault(), stream, false, false);
    EXPECT_EQ(stream.text, written(KORVASOAPFault()));
    factory.destroy(serializer);
    factory.destroy(nullptr);
}

// ----- failures of the stream -----

/// Fails at the n-th write.
template <class Failure>
class FailingStream : public BRIMOutputStream {
public:
    FailingStream(int failingWrite, Failure failure) : m_left(failingWrite), m_failure(failure) {}
    void write(const char* bytes, std::size_t length) override {
        if (--m_left == 0) m_failure();
        text.append(bytes, length);
    }
    bool hasFailed() const { return m_left <= 0; }
    std::string text;

private:
    int m_left;
    Failure m_failure;
};

TEST(FaultSerializer, AStreamsExceptionOfTheFamilyPassesWithATraceLine) {
    const Maker maker;
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    addDetails(maker, fault, korva::test::sampleDetails());
    const std::string whole = written(fault, &makeHeader(maker), true, true);
    const auto fail = [] { ZEL_THROW(ZELException("the pipe is broken"), "pipe"); };
    int n = 1;
    for (;; ++n) {
        FailingStream stream(n, fail);
        try {
            KORVASOAPFaultSerializer().serialize(&makeHeader(maker), fault, stream, true, true);
            EXPECT_EQ(stream.text, whole);
            break;
        } catch (const ZELException& exception) {
            ASSERT_TRUE(stream.hasFailed());
            EXPECT_STREQ(exception.getErrorCodeString(), "the pipe is broken");
            ASSERT_EQ(exception.getBackTrace().size(), 2u);
            EXPECT_THAT(exception.getBackTrace()[1],
                        HasSubstr(") KORVASOAPFaultSerializer::serialize() ZEL_RETHROW"));
            EXPECT_EQ(whole.rfind(stream.text, 0), 0u) << n;
        }
    }
    EXPECT_GT(n, 100);
}

TEST(FaultSerializer, AStandardExceptionBecomesOneOfTheFamily) {
    FailingStream stream(3, [] { throw std::runtime_error("no space"); });
    try {
        KORVASOAPFaultSerializer().serialize(nullptr, KORVASOAPFault(), stream, false, false);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ZELStdExceptionError& error) {
        EXPECT_STREQ(error.getText(), "no space");
    }
}

/// Neither of the library's family nor of the standard's.
struct StreamFailure {};

TEST(FaultSerializer, AnyOtherExceptionPassesUnchanged) {
    FailingStream stream(3, [] { throw StreamFailure(); });
    EXPECT_THROW(
        KORVASOAPFaultSerializer().serialize(nullptr, KORVASOAPFault(), stream, false, false),
        StreamFailure);
}

}  // namespace
