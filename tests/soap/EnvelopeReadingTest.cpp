// The frame of envelopes, at both ends of a call.
#include "tests/soap/ElementWriting.h"
#include "tests/soap/Reading.h"
#include "tests/soap/SampleMessages.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Golden.h"

#include <brim/BRIMFileInputStream.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMonitorServicePortType.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPMessageIDeserializerFactory.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVA_Null_Reply.h>
#include <korva/KORVA_Null_Request.h>
#include <tarn/tarnsymbols1.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::Binding;
using korva::test::busNamespace;
using korva::test::CollectingStream;
using korva::test::declarations;
using korva::test::envelope;
using korva::test::envelopeNamespace;
using korva::test::makeCall;
using korva::test::operation;
using korva::test::placeIn;
using korva::test::readReply;
using korva::test::readRequest;
using korva::test::reportNamespace;
using korva::test::traceOf;

constexpr const char* startElement = "KORVAMessageIContentHandler::startElement";

const KORVAAsynchRun_Request& runRequest(const Binding& binding) {
    return static_cast<const KORVAAsynchRun_Request&>(binding->getInputMessage());
}

std::string write(KORVAPortTypeBinding& binding, KORVAMessageI& message) {
    CollectingStream stream;
    KORVASOAPMessageISerializer().serialize(binding, message, stream);
    return stream.text;
}

// ----- a call -----

TEST(EnvelopeReading, AServerReadsABindingWithAFilledInputMessage) {
    const Binding binding = readRequest(
        operation("run",
                  "<objectPath>/a</objectPath><parameterValues><item><name>p</name></item>"
                  "</parameterValues><options/>"));
    ASSERT_NE(binding.get(), nullptr);
    EXPECT_STREQ(binding->getOperationName(), "run");
    EXPECT_EQ(binding->getOperationNamespace(), reportNamespace);
    EXPECT_EQ(&binding->getBoundPortType(), &KORVAReportServicePortType::getInstance());
    ASSERT_EQ(binding->getInputMessage().getMessageType(), KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_EQ(binding->getOutputMessage().getMessageType(), KORVAMessageI::eKORVAAsynchRun_Reply);
    EXPECT_STREQ(runRequest(binding).getObjectPath()->getValue(), "/a");
    EXPECT_EQ(runRequest(binding).getParameterValues()->size(), 1U);
    EXPECT_EQ(runRequest(binding).getOptions()->size(), 0U);
}

TEST(EnvelopeReading, WhatAServerReadLivesAsLongAsTheInputMessage) {
    ZELSmartPointer<KORVAMessageI> message;
    {
        const Binding binding = readRequest(operation("run", "<objectPath>/a</objectPath>"));
        message = &binding->getInputMessage();
    }
    EXPECT_STREQ(static_cast<KORVAAsynchRun_Request&>(*message).getObjectPath()->getValue(), "/a");
}

TEST(EnvelopeReading, AClientReadsIntoItsMessage) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    readReply(*call, operation("runResponse", "<result><status>complete</status></result>"));
    const auto& reply = static_cast<const KORVAAsynchRun_Reply&>(call->getOutputMessage());
    ASSERT_NE(reply.getResult(), nullptr);
    EXPECT_NE(reply.getResult()->getStatus(), nullptr);
}

TEST(EnvelopeReading, AClientsBindingIsNotReferenced) {
    KORVAPortTypeBinding* const binding =
        KORVAReportServicePortType::getInstance().createPortTypeBinding(
            KORVAMessageI::MessageType{KORVAMessageI::eKORVAAsynchRun_Request});
    readReply(*binding, operation("runResponse", "<result/>"));
    EXPECT_EQ(binding->getReferenceCount(), 0);
    const Binding holder(binding);
}

TEST(EnvelopeReading, GoldenRequestsAreWrittenBackToTheSameBytes) {
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance(),
                                                  &KORVAVelmoraTabulonPortType::getInstance()};
    for (const char* const name : {"request-beyond-ascii", "request-with-header",
                                   "request-with-markup", "request-without-header"}) {
        const std::string text = korva::test::goldenEnvelope(name);
        ASSERT_FALSE(text.empty()) << name;
        BRIMMemoryInputStream stream(text.data(), text.size());
        KORVASOAPMessageIDeserializer deserializer;
        Binding binding;
        deserializer.parse(stream, offered, binding);
        EXPECT_EQ(write(*binding, binding->getInputMessage()), text) << name;
    }
}

TEST(EnvelopeReading, GoldenRepliesAreWrittenBackToTheSameBytes) {
    for (const char* const name : {"reply-with-details"}) {
        const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
        const std::string text = korva::test::goldenEnvelope(name);
        ASSERT_FALSE(text.empty()) << name;
        readReply(*call, text);
        EXPECT_EQ(write(*call, call->getOutputMessage()), text) << name;
    }
}

TEST(EnvelopeReading, FilledMessagesComeBackEqual) {
    const Binding call = korva::test::makeRunCall();
    korva::test::fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    const Binding read = readRequest(write(*call, call->getInputMessage()));
    EXPECT_EQ(*runRequest(read).getObjectPath(), *runRequest(call).getObjectPath());
    EXPECT_EQ(*runRequest(read).getParameterValues(), *runRequest(call).getParameterValues());
    EXPECT_EQ(*runRequest(read).getOptions(), *runRequest(call).getOptions());
    EXPECT_EQ(*read->getInputMessage().getHalyardHeader(nullptr),
              *call->getInputMessage().getHalyardHeader(nullptr));

    korva::test::fillRunReply(call->getOutputMessage());
    const Binding again = korva::test::makeRunCall();
    readReply(*again, write(*call, call->getOutputMessage()));
    EXPECT_EQ(*static_cast<KORVAAsynchRun_Reply&>(again->getOutputMessage()).getResult(),
              *static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult());
}

// ----- the frame -----

TEST(EnvelopeReading, AnotherSoapVersionFailsAtItsFirstElement) {
    EXPECT_NUMBERED(
        readRequest("<e:Envelope xmlns:e=\"http://www.w3.org/2003/05/soap-envelope\"/>"),
        0xEA46D8C9, startElement, "Envelope");
}

TEST(EnvelopeReading, TheFrameIsEnvelopeHeaderAndBody) {
    const std::string start = "<e:Envelope xmlns:e=\"" + envelopeNamespace + "\">";
    EXPECT_NUMBERED(readRequest("<Envelope/>"), 0xEA46D8C9, startElement, "Envelope");
    EXPECT_NUMBERED(readRequest("<e:Body xmlns:e=\"" + envelopeNamespace + "\"/>"), 0xEA46D8C9,
                    startElement, "Envelope");
    EXPECT_NUMBERED(readRequest(start + "<Body/></e:Envelope>"), 0xEA46D8C9, startElement, "Body");
    EXPECT_NUMBERED(readRequest(start + "<e:Trailer/></e:Envelope>"), 0xEA46D8C9, startElement,
                    "Body");
    EXPECT_NUMBERED(readRequest(start + "<Header/></e:Envelope>"), 0xEA46D8C9, startElement,
                    "Body");
}

TEST(EnvelopeReading, ThePrefixesOfTheFrameDoNotCount) {
    const Binding binding = readRequest(
        "<Envelope xmlns=\"" + envelopeNamespace + "\"><Body><run xmlns=\"" + reportNamespace +
        "\"><objectPath xmlns=\"\">/a</objectPath></run></Body></Envelope>");
    EXPECT_STREQ(runRequest(binding).getObjectPath()->getValue(), "/a");
}

TEST(EnvelopeReading, TextInTheFrameDoesNotMatter) {
    const Binding binding = readRequest(
        "<e:Envelope xmlns:e=\"" + envelopeNamespace + "\"> a <e:Body> b <r:run xmlns:r=\"" +
        reportNamespace + "\"> c <objectPath>/a</objectPath> d </r:run></e:Body>\n</e:Envelope>");
    EXPECT_STREQ(runRequest(binding).getObjectPath()->getValue(), "/a");
}

TEST(EnvelopeReading, AnEnvelopeWithoutOperationIsAnAssertionAtTheServer) {
    EXPECT_ASSERTION(readRequest(envelope("")), "ZEL_ASSERT(m_boundPortType);");
    EXPECT_ASSERTION(readRequest("<e:Envelope xmlns:e=\"" + envelopeNamespace + "\"/>"),
                     "ZEL_ASSERT(m_boundPortType);");
}

// ----- the operation -----

TEST(EnvelopeReading, ANamespaceOfNoPortTypeFails) {
    EXPECT_NUMBERED(readRequest(envelope("<r:run xmlns:r=\"urn:other\"/>")), 0xEA456BB1,
                    "KORVAMessageIContentHandler::characters", "run", "urn:other");
    EXPECT_NUMBERED(readRequest(envelope("<run/>")), 0xEA456BB1,
                    "KORVAMessageIContentHandler::characters", "run", "");
}

TEST(EnvelopeReading, AnOperationThatThePortTypeLacksFails) {
    EXPECT_NUMBERED(readRequest(operation("fly", "")), 0xEA4112C6,
                    "KORVAReportServicePortType::createPortTypeBinding", "fly", "reportService");
}

TEST(EnvelopeReading, AParameterThatTheOperationLacksFails) {
    EXPECT_NUMBERED(readRequest(operation("run", "<objectPath/><wings/>")), 0xEA4112C6,
                    "KORVAReportServicePortType::createPortTypeBinding", "run", "reportService");
}

TEST(EnvelopeReading, TheFirstPortTypeWithTheNamespaceIsTaken) {
    const std::string text = operation("run", "");
    BRIMMemoryInputStream stream(text.data(), text.size());
    const std::vector<KORVAPortTypeI*> offered = {&KORVAMonitorServicePortType::getInstance(),
                                                  &KORVAReportServicePortType::getInstance(),
                                                  &KORVAReportServicePortType::getInstance()};
    KORVASOAPMessageIDeserializer deserializer;
    Binding binding;
    deserializer.parse(stream, offered, binding);
    EXPECT_EQ(&binding->getBoundPortType(), &KORVAReportServicePortType::getInstance());
}

TEST(EnvelopeReading, AnOperationWithoutParametersGivesAMessageWithoutValues) {
    const Binding binding = readRequest(operation("run", ""));
    EXPECT_EQ(runRequest(binding).getObjectPath(), nullptr);
    EXPECT_EQ(runRequest(binding).getParameterValues(), nullptr);
    EXPECT_EQ(runRequest(binding).getOptions(), nullptr);
}

TEST(EnvelopeReading, AnEmptyListOfPortTypesIsAnAssertion) {
    KORVASOAPMessageIDeserializer deserializer;
    BRIMMemoryInputStream stream("", 0);
    Binding binding;
    EXPECT_ASSERTION(deserializer.parse(stream, {}, binding),
                     "ZEL_ASSERT(m_supportedPortTypes->size() > 0);");
}

TEST(EnvelopeReading, ANullMessageIsAnAssertion) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    KORVASOAPMessageIDeserializer deserializer;
    BRIMMemoryInputStream stream("", 0);
    EXPECT_ASSERTION(deserializer.parse(stream, *call, nullptr), "ZEL_ASSERT(pMsg);");
}

TEST(EnvelopeReading, AFaultIsRaisedAtBothEnds) {
    const std::string text = envelope("<e:Fault><faultcode>e:Client</faultcode></e:Fault>");
    EXPECT_THROW(readRequest(text), KORVASOAPFaultException);
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_THROW(readReply(*call, text), KORVASOAPFaultException);
}

TEST(EnvelopeReading, AFaultOfAnotherNamespaceIsAnOperation) {
    EXPECT_NUMBERED(readRequest(operation("Fault", "")), 0xEA4112C6,
                    "KORVAReportServicePortType::createPortTypeBinding", "Fault", "reportService");
}

// ----- parameters -----

TEST(EnvelopeReading, TheFirstElementOfAReplyMayHaveAnyName) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    readReply(*call, operation("runResponse", "<return><status>complete</status></return>"));
    EXPECT_NE(static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult(), nullptr);
}

TEST(EnvelopeReading, TheSecondElementOfAReplyMustHaveItsExactName) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    readReply(*call,
              operation("runResponse", "<return/><result><status>complete</status></result>"));
    // The second sets the same parameter again.
    EXPECT_NE(static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult()->getStatus(),
              nullptr);
    readReply(*call, operation("runResponse",
                               "<return/><other xsi:type=\"bus:asynchReply\">"
                               "<status>complete</status></other>"));
    EXPECT_EQ(static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult()->getStatus(),
              nullptr);
}

TEST(EnvelopeReading, ElementsOfAReplyWithoutParametersAreSkipped) {
    ZELSmartPointer<KORVA_Null_Request> request(new KORVA_Null_Request);
    ZELSmartPointer<KORVA_Null_Reply> reply(new KORVA_Null_Reply);
    const Binding call =
        KORVAReportServicePortType::getInstance().createPortTypeBinding(*request, *reply);
    readReply(*call, operation("anyResponse", "<result><a/></result><b xsi:type=\"bus:folder\"/>"));
    EXPECT_EQ(reply->getHalyardHeader(nullptr), nullptr);
}

TEST(EnvelopeReading, ANilParameterIsNull) {
    const Binding binding =
        readRequest(operation("run", "<objectPath xsi:nil=\"true\"/><options/>"));
    EXPECT_EQ(runRequest(binding).getObjectPath(), nullptr);
    EXPECT_NE(runRequest(binding).getOptions(), nullptr);
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    readReply(*call, operation("runResponse", "<result/>"));
    readReply(*call, operation("runResponse", "<result xsi:nil=\"true\"></result>"));
    EXPECT_EQ(static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult(), nullptr);
}

TEST(EnvelopeReading, AChildOrTextInANilParameterFails) {
    EXPECT_NUMBERED(readRequest(operation("run", "<objectPath xsi:nil=\"true\"><a/></objectPath>")),
                    0xEA41D35C, "KORVASchemaTypeIContentHandler::startElement", "objectPath");
    EXPECT_NUMBERED(readRequest(operation("run", "<objectPath xsi:nil=\"true\"> </objectPath>")),
                    0xEA4152EA, "KORVASchemaTypeIContentHandler::characters", "objectPath");
}

TEST(EnvelopeReading, AParameterOfAnotherTypeFails) {
    EXPECT_NUMBERED(readRequest(operation("run", "<objectPath xsi:type=\"bus:folder\"/>")),
                    0xEA4BD4DB, "KORVASchemaTypeIContentHandler::checkType()", "objectPath",
                    "bus:searchPathSingleObject", "bus:folder");
    EXPECT_NUMBERED(readRequest(operation("run", "<objectPath xsi:type=\"xs:string\"/>")),
                    0xEA487D84, "KORVASchemaTypeIContentHandler::checkType()", "objectPath",
                    "bus:searchPathSingleObject", "xs:string");
}

TEST(EnvelopeReading, AReferenceAsParameterIsAnAssertion) {
    const char* const text =
        "ZEL_ASSERT_NAMED(m_attachmentHandler, "
        "\"KORVASchemaTypeIContentHandler::setCurrentCharacterData - Handler not configured to "
        "process href attachments. );\");";
    EXPECT_ASSERTION(readRequest(operation("run", "<objectPath href=\"cid:7\"/>")), text);
}

TEST(EnvelopeReading, APrefixResolvesInTheElementThatDeclaresItOnly) {
    const std::string text =
        "<e:Envelope xmlns:e=\"" + envelopeNamespace +
        "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"><e:Body><r:run xmlns:r=\"" +
        reportNamespace + "\" xmlns:b=\"" + busNamespace +
        "\"><objectPath xsi:type=\"b:searchPathSingleObject\">/a</objectPath></r:run>";
    EXPECT_STREQ(
        runRequest(readRequest(text + "</e:Body></e:Envelope>")).getObjectPath()->getValue(), "/a");
    // Behind the element it is unknown again, and the type falls back to the declared one.
    const Binding second = readRequest(operation(
        "run", "",
        "<x xmlns:b=\"" + busNamespace +
            "\"/><bus:halyardHeader><tracking xsi:type=\"b:noSuchType\"/></bus:halyardHeader>"));
    EXPECT_NE(second->getInputMessage().getHalyardHeader(nullptr)->getTracking(), nullptr);
}

// ----- headers -----

TEST(EnvelopeReading, TheBusHeaderIsSetOnTheMessageAtBothEnds) {
    const std::string header =
        "<bus:halyardHeader><tracking><requestContext>r</requestContext></tracking>"
        "</bus:halyardHeader>";
    KORVASOAPMessageIDeserializer deserializer;
    const Binding binding = readRequest(deserializer, operation("run", "", header));
    KORVAHalyardHeader* const read = binding->getInputMessage().getHalyardHeader(nullptr);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(deserializer.getHeader(), read);
    EXPECT_STREQ(read->getTracking()->getRequestContext(), "r");

    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    readReply(deserializer, *call, operation("runResponse", "<result/>", header));
    ASSERT_NE(call->getOutputMessage().getHalyardHeader(nullptr), nullptr);
    EXPECT_EQ(deserializer.getHeader(), call->getOutputMessage().getHalyardHeader(nullptr));
}

TEST(EnvelopeReading, WithoutAHeaderThereIsNone) {
    KORVASOAPMessageIDeserializer deserializer;
    readRequest(deserializer, operation("run", "", "<bus:halyardHeader/>"));
    EXPECT_NE(deserializer.getHeader(), nullptr);
    const Binding binding = readRequest(deserializer, operation("run", ""));
    EXPECT_EQ(deserializer.getHeader(), nullptr);
    EXPECT_EQ(binding->getInputMessage().getHalyardHeader(nullptr), nullptr);
    // A client's message that was used before does not keep the header that it had.
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    call->getOutputMessage().getHalyardHeader(call->getOutputMessage().getObjectRegistry());
    readReply(deserializer, *call, operation("runResponse", "<result/>"));
    EXPECT_EQ(call->getOutputMessage().getHalyardHeader(nullptr), nullptr);
    EXPECT_EQ(deserializer.getHeader(), nullptr);
}

TEST(EnvelopeReading, ANilHeaderIsNone) {
    KORVASOAPMessageIDeserializer deserializer;
    readRequest(deserializer, operation("run", "", "<bus:halyardHeader xsi:nil=\"true\"/>"));
    EXPECT_EQ(deserializer.getHeader(), nullptr);
}

TEST(EnvelopeReading, AnUnknownHeaderEntryIsSkippedAndAKnownOneDropped) {
    KORVASOAPMessageIDeserializer deserializer;
    readRequest(deserializer, operation("run", "",
                                        "<other>text<deep><deeper/></deep></other>"
                                        "<x xsi:type=\"bus:folder\"><searchPath/></x>"
                                        "<bus:halyardHeader><unknown/></bus:halyardHeader>"));
    EXPECT_NE(deserializer.getHeader(), nullptr);
}

TEST(EnvelopeReading, AHeaderEntryIsTheBusHeaderByItsType) {
    KORVASOAPMessageIDeserializer deserializer;
    readRequest(deserializer, operation("run", "", "<x xsi:type=\"bus:halyardHeader\"/>"));
    EXPECT_NE(deserializer.getHeader(), nullptr);
    EXPECT_NUMBERED(
        readRequest(deserializer, operation("run", "", "<halyardHeader xsi:type=\"bus:folder\"/>")),
        0xEA4BD4DB, "KORVASchemaTypeIContentHandler::checkType()", "halyardHeader",
        "bus:halyardHeader", "bus:folder");
}

TEST(EnvelopeReading, TheHeaderCanBeReadAfterAFailureBehindIt) {
    KORVASOAPMessageIDeserializer deserializer;
    const std::string header =
        "<bus:halyardHeader><tracking><stepContext>s</stepContext></tracking>"
        "</bus:halyardHeader>";
    EXPECT_THROW(readRequest(deserializer, operation("fly", "", header)), KORVAException);
    ASSERT_NE(deserializer.getHeader(), nullptr);
    EXPECT_STREQ(deserializer.getHeader()->getTracking()->getStepContext(), "s");
    EXPECT_THROW(readRequest(deserializer, envelope("<e:Fault/>", header)),
                 KORVASOAPFaultException);
    EXPECT_NE(deserializer.getHeader(), nullptr);
    EXPECT_THROW(readRequest(deserializer, "<not-well-formed"), KORVAException);
    EXPECT_EQ(deserializer.getHeader(), nullptr);
}

// ----- the entry point -----

TEST(EnvelopeReading, AFailureTellsWhereItHappened) {
    const auto trace = traceOf([] {
        readRequest(operation("run",
                              "\n<parameterValues>\n <item><name>a</name><name>b</name></item>"
                              "</parameterValues>"));
    });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_NE(trace[1].find(") KORVASOAPMessageIDeserializer::parse() ZEL_RETHROW: "),
              std::string::npos)
        << trace[1];
    EXPECT_EQ(placeIn(trace[1]),
              "line 3, column 28, element /Envelope/Body/run/parameterValues/item/name");
}

TEST(EnvelopeReading, MalformedXmlIsToldInTheParsersWords) {
    try {
        readRequest("<e:Envelope xmlns:e=\"" + envelopeNamespace + "\">\n<e:Body></e:Envelope>");
        ADD_FAILURE();
    } catch (const KORVAException& exception) {
        ASSERT_EQ(exception.getMessages().size(), 1U);
        EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU);
        EXPECT_STREQ(exception.getMessages()[0].getParms()[0].getText(),
                     "Opening and ending tag mismatch: Body line 2 and Envelope");
        ASSERT_EQ(exception.getBackTrace().size(), 1U);
        const std::string line = exception.getBackTrace()[0];
        EXPECT_NE(line.find(") KORVASOAPMessageIDeserializer::parse ZEL_THROW: "),
                  std::string::npos)
            << line;
        EXPECT_EQ(placeIn(line), "line 2, column 22, element /Envelope/Body");
    }
}

TEST(EnvelopeReading, ADocumentTypeIsHandedToTheParser) {
    const Binding binding = readRequest("<!DOCTYPE Envelope [<!ENTITY path '/a&amp;b'>]>" +
                                        operation("run", "<objectPath>&path;</objectPath>"));
    EXPECT_STREQ(runRequest(binding).getObjectPath()->getValue(), "/a&b");
}

TEST(EnvelopeReading, TheDeserializerServesBothEndsInTurn) {
    KORVASOAPMessageIDeserializer deserializer;
    for (int i = 0; i != 3; ++i) {
        const Binding binding =
            readRequest(deserializer, operation("run", "<objectPath>/a</objectPath>"));
        EXPECT_STREQ(runRequest(binding).getObjectPath()->getValue(), "/a");
        EXPECT_THROW(readRequest(deserializer, operation("run", "<objectPath>")), KORVAException);
        const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
        readReply(deserializer, *call, operation("runResponse", "<result/>"));
        EXPECT_NE(static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult(),
                  nullptr);
    }
}

TEST(EnvelopeReading, AFailureLeavesTheResultAlone) {
    KORVASOAPMessageIDeserializer deserializer;
    Binding binding = readRequest(deserializer, operation("run", ""));
    KORVAPortTypeBinding* const before = binding.get();
    const std::string text = operation("fly", "");
    BRIMMemoryInputStream stream(text.data(), text.size());
    EXPECT_THROW(deserializer.parse(stream, {&KORVAReportServicePortType::getInstance()}, binding),
                 KORVAException);
    EXPECT_EQ(binding.get(), before);
}

TEST(EnvelopeReading, TheFactoryMakesAndDestroysDeserializers) {
    KORVASOAPMessageIDeserializerFactory& factory =
        KORVASOAPMessageIDeserializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVASOAPMessageIDeserializerFactory::getInstance());
    KORVASOAPMessageIDeserializerI* const deserializer = factory.create();
    EXPECT_EQ(deserializer->getHeader(), nullptr);
    factory.destroy(deserializer);
    factory.destroy(nullptr);
}

}  // namespace
