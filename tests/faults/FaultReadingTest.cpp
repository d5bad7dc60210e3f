// Faults as they arrive: frame, children, documented and undocumented details, failures.
#include "tests/attachments/ScriptedReader.h"
#include "tests/faults/FaultReading.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Golden.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVA_AttachmentHandler.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using korva::test::Binding;
using korva::test::DocumentReader;
using korva::test::faultEnvelope;
using korva::test::goldenEnvelope;
using korva::test::makeCall;
using korva::test::readReply;
using korva::test::readRequest;
using korva::test::receiveFault;
using korva::test::receiveFaultAsServer;
using korva::test::textOf;

constexpr const char* valueStart = "KORVASchemaTypeIContentHandler::startElement";

/// The envelope of a fault with this content of its detail.
std::string withDetail(const std::string& content) {
    return faultEnvelope("<detail>" + content + "</detail>");
}

// ----- the frame -----

TEST(FaultReading, AFaultIsRaisedAtAClient) {
    const KORVASOAPFaultException caught = receiveFault(
        faultEnvelope("<faultcode>e:Client</faultcode><faultstring>It failed.</faultstring>"
                      "<faultactor>urn:actor</faultactor><detail/>"));
    const KORVASOAPFault& fault = caught.getSOAPFault();
    EXPECT_STREQ(fault.getFaultCode(), "e:Client");
    EXPECT_STREQ(fault.getFaultString(), "It failed.");
    EXPECT_STREQ(fault.getFaultActor(), "urn:actor");
    ASSERT_NE(fault.getDetail(), nullptr);
    EXPECT_TRUE(fault.getDetail()->empty());
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
    EXPECT_EQ(caught.getHalyardHeader(), nullptr);
}

TEST(FaultReading, AFaultIsRaisedAtAServer) {
    const KORVASOAPFaultException caught =
        receiveFaultAsServer(faultEnvelope("<faultstring>It failed.</faultstring>"));
    EXPECT_STREQ(caught.getSOAPFault().getFaultString(), "It failed.");
}

TEST(FaultReading, TheExceptionIsThrownByTheEntryPoint) {
    const KORVASOAPFaultException caught = receiveFault(faultEnvelope(""));
    ASSERT_EQ(caught.getBackTrace().size(), 1u);
    EXPECT_TRUE(korva::test::isThrownBy(caught, "KORVASOAPMessageIDeserializer::parse()"));
}

TEST(FaultReading, AFaultGivesNoBindingAtAServer) {
    KORVASOAPMessageIDeserializer deserializer;
    const Binding before = readRequest(korva::test::operation("run", ""));
    Binding result = before;
    const std::string text = faultEnvelope("");
    BRIMMemoryInputStream stream(text.data(), text.size());
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    EXPECT_THROW(deserializer.parse(stream, offered, result), KORVASOAPFaultException);
    EXPECT_EQ(result, before);
}

TEST(FaultReading, AFaultLeavesTheMessageOfTheClientAlone) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_THROW(
        readReply(*call, faultEnvelope("<faultcode>a</faultcode>", "<bus:halyardHeader/>")),
        KORVASOAPFaultException);
    auto& reply = static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage());
    EXPECT_EQ(reply.getResult(), nullptr);
    EXPECT_EQ(reply.getHalyardHeader(nullptr), nullptr);
}

TEST(FaultReading, TheHeaderComesWithTheFaultAndStaysAtTheDeserializer) {
    const std::string text =
        faultEnvelope("",
                      "<bus:halyardHeader><tracking><stepContext>s</stepContext></tracking>"
                      "</bus:halyardHeader>");
    KORVASOAPMessageIDeserializer deserializer;
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    try {
        readReply(deserializer, *call, text);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const KORVASOAPFaultException& caught) {
        ASSERT_NE(caught.getHalyardHeader(), nullptr);
        EXPECT_STREQ(caught.getHalyardHeader()->getTracking()->getStepContext(), "s");
        EXPECT_EQ(deserializer.getHeader(), caught.getHalyardHeader());
    }
}

TEST(FaultReading, TheFaultIsReadableAfterEverythingElseHasGone) {
    std::unique_ptr<KORVASOAPFaultException> kept;
    {
        auto deserializer = std::make_unique<KORVASOAPMessageIDeserializer>();
        Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
        try {
            readReply(*deserializer, *call,
                      faultEnvelope("<faultstring>It failed.</faultstring><detail><x><message>"
                                    "<messageString>m</messageString></message></x></detail>",
                                    "<bus:halyardHeader/>"));
        } catch (const KORVASOAPFaultException& caught) {
            kept.reset(caught.clone());
        }
        deserializer.reset();
        call = nullptr;
    }
    ASSERT_NE(kept, nullptr);
    EXPECT_STREQ(kept->getSOAPFault().getFaultString(), "It failed.");
    EXPECT_NE(kept->getHalyardHeader(), nullptr);
    std::string messages;
    kept->getSOAPFaultMessages(messages);
    EXPECT_EQ(messages, "m");
}

TEST(FaultReading, TheRegistryOfTheExceptionIsThatOfTheClientsMessage) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    KORVAObjectRegistryI* const registry = call->getOutputMessage().getObjectRegistry();
    const unsigned references = registry->getReferenceCount();
    try {
        readReply(*call, faultEnvelope(""));
        ADD_FAILURE() << "nothing was thrown";
    } catch (const KORVASOAPFaultException& caught) {
        EXPECT_EQ(caught.getObjectRegistry(), registry);
        EXPECT_EQ(registry->getReferenceCount(), references + 1);
    }
    EXPECT_EQ(registry->getReferenceCount(), references);
}

TEST(FaultReading, TheDeserializerServesOnAfterAFault) {
    KORVASOAPMessageIDeserializer deserializer;
    EXPECT_THROW(readRequest(deserializer, faultEnvelope("")), KORVASOAPFaultException);
    EXPECT_STREQ(readRequest(deserializer, korva::test::operation("run", ""))->getOperationName(),
                 "run");
    EXPECT_THROW(readRequest(deserializer, faultEnvelope("")), KORVASOAPFaultException);
}

TEST(FaultReading, AnEnvelopeThatIsDamagedBehindTheFaultIsAParseError) {
    const std::string whole = faultEnvelope("<faultcode>a</faultcode>");
    EXPECT_THROW(readRequest(whole.substr(0, whole.size() - 1)), KORVAException);
}

TEST(FaultReading, TheElementsOfTheFrameMayHaveAnyPrefix) {
    const std::string text = "<Envelope xmlns=\"" + korva::test::envelopeNamespace +
                             "\"><Body><Fault><faultcode xmlns=\"\">a</faultcode></Fault></Body>"
                             "</Envelope>";
    EXPECT_STREQ(receiveFault(text).getSOAPFault().getFaultCode(), "a");
}

// ----- children -----

TEST(FaultReading, TextsKeepTheirWhiteSpaceAndTheirEntities) {
    const KORVASOAPFaultException caught = receiveFault(
        faultEnvelope("<faultcode> a </faultcode><faultstring>&lt;b&gt; &amp;\n</faultstring>"
                      "<faultactor/>"));
    EXPECT_STREQ(caught.getSOAPFault().getFaultCode(), " a ");
    EXPECT_STREQ(caught.getSOAPFault().getFaultString(), "<b> &\n");
    EXPECT_STREQ(caught.getSOAPFault().getFaultActor(), "");
}

TEST(FaultReading, ATextOfAnySizeIsRead) {
    const std::string text(100'000, 'x');
    EXPECT_EQ(receiveFault(faultEnvelope("<faultstring>" + text + "</faultstring>"))
                  .getSOAPFault()
                  .getFaultString(),
              text);
}

TEST(FaultReading, ChildrenMayTellTheirTypes) {
    const KORVASOAPFaultException caught =
        receiveFault(faultEnvelope("<faultcode xsi:type=\"xs:string\">a</faultcode>"
                                   "<detail xsi:type=\"SOAP-ENC:Array\" "
                                   "SOAP-ENC:arrayType=\"bus:faultDetail[0]\"/>"));
    EXPECT_STREQ(caught.getSOAPFault().getFaultCode(), "a");
    EXPECT_NE(caught.getSOAPFault().getDetail(), nullptr);
}

TEST(FaultReading, AChildOfAnotherTypeIsRefused) {
    EXPECT_NUMBERED(receiveFault(faultEnvelope("<faultcode xsi:type=\"xs:QName\">a</faultcode>")),
                    0xEA487D84U, "KORVASchemaTypeIContentHandler::checkType()", "faultcode",
                    "xs:string", "xs:QName");
    EXPECT_NUMBERED(receiveFault(faultEnvelope("<detail xsi:type=\"bus:faultDetail\"/>")),
                    0xEA4BD4DBU, "KORVASchemaTypeIContentHandler::checkType()", "detail",
                    "bus:faultDetailArray", "bus:faultDetail");
}

TEST(FaultReading, ANilChildStaysUnset) {
    const KORVASOAPFaultException caught = receiveFault(faultEnvelope(
        "<faultcode xsi:nil=\"true\"/><faultstring>b</faultstring><detail xsi:nil=\"true\"/>"));
    EXPECT_EQ(caught.getSOAPFault().getFaultCode(), nullptr);
    EXPECT_STREQ(caught.getSOAPFault().getFaultString(), "b");
    EXPECT_EQ(caught.getSOAPFault().getDetail(), nullptr);
}

TEST(FaultReading, AnUnknownChildIsRefused) {
    EXPECT_NUMBERED(receiveFault(faultEnvelope("<reason>x</reason>")), 0xEA41BF21U,
                    "KORVASOAPFault::getChildType", "reason", "Fault");
}

// ----- documented details -----

TEST(FaultReading, DetailsThatTellTheirTypeAreDocumented) {
    const KORVASOAPFaultException caught = receiveFault(withDetail(
        "<bus:exception xsi:type=\"bus:faultDetail\"><bus:errorCode>7</bus:errorCode>"
        "<bus:message><item><bus:message>m</bus:message><bus:nestingLevel>2</bus:nestingLevel>"
        "</item></bus:message><bus:severity>fatal</bus:severity></bus:exception>"
        "<x xsi:type=\"bus:faultDetail\"/>"));
    EXPECT_EQ(caught.getSOAPFault().getUndocumentedDetail(), nullptr);
    ASSERT_NE(caught.getSOAPFault().getDetail(), nullptr);
    ASSERT_EQ(caught.getSOAPFault().getDetail()->size(), 2u);
    const KORVAFaultDetail& detail = *caught.getSOAPFault().getDetail()->at(0);
    EXPECT_STREQ(detail.getErrorCode(), "7");
    EXPECT_EQ(detail.getSeverity()->getValue(), KORVASeverityEnum::eKORVAFatal);
    ASSERT_EQ(detail.getMessage().size(), 1u);
    EXPECT_STREQ(detail.getMessage().at(0)->getMessage(), "m");
    EXPECT_EQ(*detail.getMessage().at(0)->getNestingLevel(), 2);
}

TEST(FaultReading, ADetailOfAnotherTypeIsRefused) {
    EXPECT_NUMBERED(receiveFault(withDetail("<x xsi:type=\"bus:message\"/>")), 0xEA4BCA5DU,
                    valueStart, "bus:message", "bus:faultDetail");
}

// ----- undocumented details -----

TEST(FaultReading, DetailsThatTellNoTypeAreUndocumented) {
    const KORVASOAPFaultException caught = receiveFault(withDetail(
        "\n <x>\n  <severity>error</severity>\n  <errorCode> 7 </errorCode>\n"
        "  <message>\n   <messageString>m &amp; n</messageString>\n"
        "   <nestingLevel>2</nestingLevel>\n  </message>\n  <message/>\n </x>\n <y/>\n"));
    EXPECT_EQ(caught.getSOAPFault().getDetail(), nullptr);
    ASSERT_NE(caught.getSOAPFault().getUndocumentedDetail(), nullptr);
    const KORVAUndocumentedFaultDetailArray& details =
        *caught.getSOAPFault().getUndocumentedDetail();
    ASSERT_EQ(details.size(), 2u);
    EXPECT_STREQ(details.at(0)->getSeverity(), "error");
    EXPECT_STREQ(details.at(0)->getErrorCodeString(), " 7 ");
    ASSERT_EQ(details.at(0)->getMessage().size(), 2u);
    EXPECT_STREQ(details.at(0)->getMessage().at(0)->getMessageString(), "m & n");
    EXPECT_EQ(*details.at(0)->getMessage().at(0)->getNestingLevel(), 2);
    EXPECT_TRUE(*details.at(0)->getMessage().at(1) == KORVAMessage());
    EXPECT_TRUE(*details.at(1) == KORVAUndocumentedFaultDetail());
}

TEST(FaultReading, ADetailOfAnUnknownNamespaceIsUndocumented) {
    const KORVASOAPFaultException caught =
        receiveFault(withDetail("<x xmlns:f=\"urn:foreign\" xsi:type=\"f:error\"/>"));
    ASSERT_NE(caught.getSOAPFault().getUndocumentedDetail(), nullptr);
    EXPECT_EQ(caught.getSOAPFault().getUndocumentedDetail()->size(), 1u);
}

TEST(FaultReading, TextInAnUndocumentedDetailIsDropped) {
    const KORVASOAPFaultException caught = receiveFault(
        withDetail("some<x>text<severity>a</severity>of<message>nobody</message></x>"));
    const KORVAUndocumentedFaultDetailArray& details =
        *caught.getSOAPFault().getUndocumentedDetail();
    EXPECT_STREQ(details.at(0)->getSeverity(), "a");
    EXPECT_TRUE(*details.at(0)->getMessage().at(0) == KORVAMessage());
}

TEST(FaultReading, ANilDetailIsSkipped) {
    const KORVASOAPFaultException caught =
        receiveFault(withDetail("<x xsi:nil=\"true\"/><y><message xsi:nil=\"true\"/></y>"));
    const KORVAUndocumentedFaultDetailArray& details =
        *caught.getSOAPFault().getUndocumentedDetail();
    ASSERT_EQ(details.size(), 1u);
    EXPECT_TRUE(details.at(0)->getMessage().empty());
}

TEST(FaultReading, AnUnknownChildOfAnUndocumentedDetailIsRefused) {
    EXPECT_NUMBERED(receiveFault(withDetail("<x><stack/></x>")), 0xEA41BF21U,
                    "KORVAUndocumentedFaultDetail::getChildType", "stack", "UndocumentFaultDetail");
}

TEST(FaultReading, AnUnknownChildOfAMessageIsSkipped) {
    const KORVASOAPFaultException caught = receiveFault(withDetail(
        "<x><message><stack><deep/></stack><messageString>m</messageString></message></x>"));
    EXPECT_STREQ(caught.getSOAPFault()
                     .getUndocumentedDetail()
                     ->at(0)
                     ->getMessage()
                     .at(0)
                     ->getMessageString(),
                 "m");
}

TEST(FaultReading, ATextOfAnUndocumentedDetailOccursOnce) {
    EXPECT_NUMBERED(receiveFault(withDetail("<x><severity>a</severity><severity>b</severity></x>")),
                    0xEA4B8476U, valueStart, "", "severity");
    EXPECT_NUMBERED(receiveFault(withDetail("<x><message><messageString>a</messageString>"
                                            "<messageString>b</messageString></message></x>")),
                    0xEA4B8476U, valueStart, "", "messageString");
}

TEST(FaultReading, ATextOfAnUndocumentedDetailTakesNoOtherType) {
    EXPECT_NUMBERED(receiveFault(withDetail("<x><severity xsi:type=\"xs:int\">1</severity></x>")),
                    0xEA487D84U, "KORVASchemaTypeIContentHandler::checkType()", "severity",
                    "xs:string", "xs:int");
}

TEST(FaultReading, TextInAReferenceFromAnUndocumentedDetailIsRefused) {
    EXPECT_NUMBERED(receiveFault(withDetail("<x href=\"cid:7\"> </x>")), 0xEA4ACDA5U,
                    "KORVASchemaTypeIContentHandler::characters", "", "7");
}

TEST(FaultReading, TextsOfAFaultMayTravelAsAttachments) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    try {
        readReply(deserializer, *call,
                  faultEnvelope("<faultstring href=\"cid:text\"/><detail><x><severity "
                                "href=\"cid:severity\"/><errorCode href=\"cid:code\"/><message>"
                                "<messageString href=\"cid:text\"/></message></x></detail>"));
        FAIL();
    } catch (const KORVASOAPFaultException& caught) {
        EXPECT_EQ(attachments.getReferenceCount(), 4u);
        korva::test::ScriptedReader reader{
            {"<code>", "RPT-1"}, {"<text>", "It failed."}, {"<severity>", "error"}};
        EXPECT_TRUE(attachments.resolveReferences(
            reader, *call->getOutputMessage().getObjectRegistry(), nullptr));
        const KORVASOAPFault& fault = caught.getSOAPFault();
        EXPECT_EQ(textOf(fault.getFaultString()), "streamed:It failed.");
        const KORVAUndocumentedFaultDetail& detail = *fault.getUndocumentedDetail()->at(0);
        EXPECT_STREQ(detail.getSeverity(), "error");
        EXPECT_STREQ(detail.getErrorCodeString(), "RPT-1");
        EXPECT_STREQ(detail.getMessage().at(0)->getMessageString(), "It failed.");
    }
}

TEST(FaultReading, TheFirstUndocumentedDetailTakesThePlaceOfDocumentedOnes) {
    const KORVASOAPFaultException caught =
        receiveFault(withDetail("<x xsi:type=\"bus:faultDetail\"/><y><severity>a</severity></y>"));
    EXPECT_EQ(caught.getSOAPFault().getDetail(), nullptr);
    const KORVAUndocumentedFaultDetailArray& details =
        *caught.getSOAPFault().getUndocumentedDetail();
    ASSERT_EQ(details.size(), 1u);
    EXPECT_STREQ(details.at(0)->getSeverity(), "a");
}

TEST(FaultReading, ADocumentedDetailBehindAnUndocumentedOneIsSkipped) {
    const KORVASOAPFaultException fault =
        receiveFault(withDetail("<x><errorCode>E1</errorCode></x>"
                                "<y xsi:type=\"bus:faultDetail\"><errorCode>E2</errorCode></y>"
                                "<x><errorCode>E3</errorCode></x>"));
    const KORVAUndocumentedFaultDetailArray* const details =
        fault.getSOAPFault().getUndocumentedDetail();
    ASSERT_NE(details, nullptr);
    ASSERT_EQ(details->size(), 2U);
    EXPECT_STREQ(details->at(0)->getErrorCodeString(), "E1");
    EXPECT_STREQ(details->at(1)->getErrorCodeString(), "E3");
    // An item of another type is no detail of either kind.
    EXPECT_NUMBERED(receiveFault(withDetail("<x/><y xsi:type=\"bus:folder\"/>")), 0xEA4BCA5DU,
                    valueStart, "bus:folder", "KORVAUndocumentedFaultDetail");
}

TEST(FaultReading, OutsideOfAFaultDetailsMustTellTheirType) {
    const std::string prop =
        korva::test::document("bus:faultDetailArrayProp", "<value><x/></value>");
    EXPECT_ASSERTION(DocumentReader().read(prop), "ZEL_ASSERT((m_objStack.size() == 1));");
    // The root of a document takes undocumented details as the root of a parameter does.
    DocumentReader reader;
    KORVASchemaTypeI* const root =
        reader.read("<root" + korva::test::declarations() +
                    " xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:faultDetail[]\"><x/>"
                    "</root>");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->getObjectType(), KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray);
}

TEST(FaultReading, AThousandUndocumentedDetailsAreRead) {
    std::string rows;
    for (int i = 0; i < 1000; ++i)
        rows += "<x><errorCode>" + std::to_string(i) + "</errorCode></x>";
    const KORVASOAPFaultException caught = receiveFault(withDetail(rows));
    const KORVAUndocumentedFaultDetailArray& details =
        *caught.getSOAPFault().getUndocumentedDetail();
    ASSERT_EQ(details.size(), 1000u);
    EXPECT_STREQ(details.at(999)->getErrorCodeString(), "999");
}

// ----- there and back -----

class FaultRoundTrip : public testing::Test {
protected:
    /// Writes the fault, reads it at both ends and compares.
    void expectSame(const KORVASOAPFault& fault) {
        for (const bool formatted : {false, true}) {
            const KORVAHalyardHeader& header = korva::test::makeHeader(maker);
            const std::string text = korva::test::written(fault, &header, formatted, true);
            const KORVASOAPFaultException atClient = receiveFault(text);
            EXPECT_TRUE(atClient.getSOAPFault() == fault) << text;
            EXPECT_TRUE(*atClient.getHalyardHeader() == header);
            const KORVASOAPFaultException atServer = receiveFaultAsServer(text);
            EXPECT_TRUE(atServer.getSOAPFault() == fault) << text;
            EXPECT_TRUE(*atServer.getHalyardHeader() == header);
            EXPECT_EQ(korva::test::written(atClient.getSOAPFault(), atClient.getHalyardHeader(),
                                           formatted, true),
                      text);
        }
    }

    const korva::test::Maker maker;
};

TEST_F(FaultRoundTrip, Documented) {
    expectSame(korva::test::makeDocumentedFault(maker));
}

TEST_F(FaultRoundTrip, Undocumented) {
    expectSame(korva::test::makeUndocumentedFault(maker));
}

TEST_F(FaultRoundTrip, WithoutDetails) {
    KORVASOAPFault& fault = korva::test::makeFault(maker);
    korva::test::addDetails(maker, fault, {});
    expectSame(fault);
}

TEST_F(FaultRoundTrip, WithTextsBeyondAscii) {
    KORVASOAPFault& fault = korva::test::makeFault(maker);
    fault.setFaultString(
        "Gr\xC3\xB6\xC3\x9F"
        "e \xE2\x82\xAC \xF0\x9F\x98\x80");
    korva::test::addUndocumentedDetails(
        maker, fault, {{"s\xC3\xA9v\xC3\xA8re", "\xE6\x97\xA5", {{"]]>\r\n\t\"'", -1}}}});
    expectSame(fault);
}

TEST_F(FaultRoundTrip, OneShapeReadAndConvertedEqualsTheOther) {
    const KORVASOAPFaultException caught =
        receiveFault(korva::test::written(korva::test::makeUndocumentedFault(maker)));
    caught.getSOAPFault().convertUndocumentedFaultDetail(*caught.getObjectRegistry());
    EXPECT_TRUE(caught.getSOAPFault() == korva::test::makeDocumentedFault(maker));
}

TEST_F(FaultRoundTrip, OfBothShapesTheUndocumentedDetailsRemain) {
    KORVASOAPFault& fault = korva::test::makeUndocumentedFault(maker);
    korva::test::addDetails(maker, fault, korva::test::sampleDetails());
    const KORVASOAPFaultException caught = receiveFault(korva::test::written(fault));
    EXPECT_TRUE(caught.getSOAPFault() == korva::test::makeUndocumentedFault(maker));
}

TEST_F(FaultRoundTrip, TheGoldensAreReadAsTheFaultsThatTheyWereWrittenFrom) {
    for (const char* const name : {"fault-documented", "fault-documented-formatted"})
        EXPECT_TRUE(receiveFault(goldenEnvelope(name)).getSOAPFault() ==
                    korva::test::makeDocumentedFault(maker))
            << name;
    for (const char* const name : {"fault-undocumented", "fault-undocumented-formatted"})
        EXPECT_TRUE(receiveFault(goldenEnvelope(name)).getSOAPFault() ==
                    korva::test::makeUndocumentedFault(maker))
            << name;
}

TEST_F(FaultRoundTrip, WhatWasNotEscapedIsNotReadAgain) {
    EXPECT_NUMBERED(receiveFault(goldenEnvelope("fault-with-markup-formatted")), 0xEA4AA334U,
                    valueStart, "sales");
}

}  // namespace
