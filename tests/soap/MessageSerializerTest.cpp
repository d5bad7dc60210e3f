#include "tests/soap/SampleMessages.h"
#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/TestStreams.h"

#include <korva/KORVAActivate_Reply.h>
#include <korva/KORVAActivate_Request.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASOAPMessageISerializerFactory.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAVelmoraTabulonPortType.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::Call;
using korva::test::CollectingStream;
using korva::test::makeActivateCall;
using korva::test::makeRunCall;
using ObjectContext = KORVASOAPSerializer::ObjectContext;

struct Settings {
    bool nullElements = false;
    bool xmlDeclaration = true;
};

std::string envelope(KORVAPortTypeBinding& binding, KORVAMessageI& message,
                     Settings settings = {}) {
    KORVASOAPMessageISerializer serializer;
    serializer.setWriteNullElements(settings.nullElements);
    serializer.setWriteXmlDeclaration(settings.xmlDeclaration);
    CollectingStream stream;
    serializer.serialize(binding, message, stream);
    return stream.text;
}

/// The lines from the one that is `first` to the one that is `last`.
std::string lines(const std::string& text, const std::string& first, const std::string& last) {
    const std::size_t start = text.find('\n' + first + '\n');
    const std::size_t end = text.find('\n' + last + '\n', start + 1);
    if (start == std::string::npos || end == std::string::npos) return "no such lines in " + text;
    return text.substr(start + 1, end + last.size() + 1 - start);
}

std::string header(const std::string& text) {
    return lines(text, "\t<SOAP-ENV:Header>", "\t</SOAP-ENV:Header>");
}

std::string body(const std::string& text) {
    return lines(text, "\t<SOAP-ENV:Body>", "\t</SOAP-ENV:Body>");
}

std::string busNamespace(const std::string& path = "/schemas/halyardns/3/") {
    return KORVA_TEST_AUTHORITY + path;
}

std::string envelopeStart() {
    return "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\" "
           "xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "
           "xmlns:bus=\"" +
           busNamespace() +
           "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
           "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" "
           "SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\">\n";
}

TEST(MessageSerializer, WritesARequestWithoutABusHeader) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(
        envelope(*call, call->getInputMessage()),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + envelopeStart() +
            "\t<SOAP-ENV:Header>\n"
            "\t</SOAP-ENV:Header>\n"
            "\t<SOAP-ENV:Body>\n"
            "\t\t<rns1:activate xmlns:rns1=\"" +
            busNamespace() +
            "\">\n"
            "\t\t\t<bus:contentManagerURI xsi:type=\"xs:string\">abc</bus:contentManagerURI>\n"
            "\t\t</rns1:activate>\n"
            "\t</SOAP-ENV:Body>\n"
            "</SOAP-ENV:Envelope>\n");
}

TEST(MessageSerializer, WritesAMessageWithoutParametersAsTwoTagsOnTwoLines) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(body(envelope(*call, call->getOutputMessage())),
              "\t<SOAP-ENV:Body>\n"
              "\t\t<rns1:activateResponse xmlns:rns1=\"" +
                  busNamespace() +
                  "\">\n"
                  "\t\t</rns1:activateResponse>\n"
                  "\t</SOAP-ENV:Body>\n");
}

TEST(MessageSerializer, NamesTheOperationInTheNamespaceOfItsPortType) {
    const Call call = makeRunCall();
    EXPECT_NE(envelope(*call, call->getInputMessage())
                  .find("\t\t<rns1:run xmlns:rns1=\"" + busNamespace("/schemas/reportService/1") +
                        "\">\n"),
              std::string::npos);
}

TEST(MessageSerializer, ForcesEveryParameterEvenIfItIsNull) {
    const Call call = makeRunCall();
    EXPECT_EQ(
        body(envelope(*call, call->getInputMessage())),
        "\t<SOAP-ENV:Body>\n"
        "\t\t<rns1:run xmlns:rns1=\"" +
            busNamespace("/schemas/reportService/1") +
            "\">\n"
            "\t\t\t<bus:objectPath xsi:type=\"bus:searchPathSingleObject\" xsi:nil=\"true\"/>\n"
            "\t\t\t<bus:parameterValues xsi:type=\"SOAP-ENC:Array\" "
            "SOAP-ENC:arrayType=\"bus:parameterValue[]\"/>\n"
            "\t\t\t<bus:options xsi:type=\"SOAP-ENC:Array\" "
            "SOAP-ENC:arrayType=\"bus:option[]\"/>\n"
            "\t\t</rns1:run>\n"
            "\t</SOAP-ENV:Body>\n");
}

TEST(MessageSerializer, WithoutAnOperationNameTheParametersStandInTheBodyAtThreeTabs) {
    const Call call = makeActivateCall("abc");
    const Call nameless = KORVAPortTypeBinding::create(
        "", "", "", call->getBoundPortType(), call->getInputMessage(), call->getOutputMessage());
    EXPECT_EQ(body(envelope(*nameless, nameless->getInputMessage())),
              "\t<SOAP-ENV:Body>\n"
              "\t\t\t<bus:contentManagerURI xsi:type=\"xs:string\">abc</bus:contentManagerURI>\n"
              "\t</SOAP-ENV:Body>\n");
    EXPECT_EQ(body(envelope(*nameless, nameless->getOutputMessage())),
              "\t<SOAP-ENV:Body>\n"
              "\t</SOAP-ENV:Body>\n");
}

TEST(MessageSerializer, WithoutTheXmlDeclarationTheEnvelopeIsTheFirstLine) {
    const Call call = makeActivateCall("abc");
    const std::string with = envelope(*call, call->getInputMessage());
    const std::string without = envelope(*call, call->getInputMessage(), {.xmlDeclaration = false});
    EXPECT_EQ(without.rfind(envelopeStart(), 0), 0u) << without;
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + without, with);
}

TEST(MessageSerializer, WithNullElementsAMissingHeaderIsNil) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(header(envelope(*call, call->getInputMessage(), {.nullElements = true})),
              "\t<SOAP-ENV:Header>\n"
              "\t\t<bus:halyardHeader xsi:type=\"bus:halyardHeader\" xsi:nil=\"true\"/>\n"
              "\t</SOAP-ENV:Header>\n");
}

TEST(MessageSerializer, WithNullElementsUnsetPropertiesAreNil) {
    const Call call = makeRunCall();
    KORVAMessageI& request = call->getInputMessage();
    request.getHalyardHeader(request.getObjectRegistry());
    const std::string text = header(envelope(*call, request, {.nullElements = true}));
    EXPECT_NE(text.find("\t\t\t<bus:Moat xsi:type=\"bus:Moat\" xsi:nil=\"true\"/>\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("\t\t\t<bus:providers xsi:type=\"SOAP-ENC:Array\" "
                        "SOAP-ENC:arrayType=\"bus:provider[0]\"/>\n"),
              std::string::npos)
        << text;
}

TEST(MessageSerializer, WritesTheHeaderAtTwoTabsAndItsPropertiesAtThree) {
    const Call call = makeActivateCall("abc");
    KORVAMessageI& request = call->getInputMessage();
    request.getHalyardHeader(request.getObjectRegistry());
    EXPECT_EQ(header(envelope(*call, request)),
              "\t<SOAP-ENV:Header>\n"
              "\t\t<bus:halyardHeader xsi:type=\"bus:halyardHeader\">\n"
              "\t\t\t<bus:dispatcherTransportVars xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:dispatcherTransportVar[0]\"/>\n"
              "\t\t\t<bus:providers xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:provider[0]\"/>\n"
              "\t\t\t<bus:userPreferenceVars xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:userPreferenceVar[0]\"/>\n"
              "\t\t</bus:halyardHeader>\n"
              "\t</SOAP-ENV:Header>\n");
}

TEST(MessageSerializer, TakesAnyMessageOfTheRightTypes) {
    const Call call = makeActivateCall("abc");
    ZELSmartPointer<KORVAActivate_Request> other(new KORVAActivate_Request);
    other->setContentManagerURI("xyz");
    EXPECT_NE(envelope(*call, *other).find(">xyz</bus:contentManagerURI>"), std::string::npos);
    ZELSmartPointer<KORVAActivate_Reply> reply(new KORVAActivate_Reply);
    EXPECT_NE(envelope(*call, *reply).find("<rns1:activateResponse "), std::string::npos);
}

TEST(MessageSerializer, AMessageThatIsInputAndOutputIsWrittenAsAReply) {
    const Call call = makeActivateCall("abc");
    KORVAMessageI& request = call->getInputMessage();
    const Call both = KORVAPortTypeBinding::create("activate", "urn:x", "",
                                                   call->getBoundPortType(), request, request);
    EXPECT_EQ(body(envelope(*both, request)),
              "\t<SOAP-ENV:Body>\n"
              "\t\t<rns1:activateResponse xmlns:rns1=\"urn:x\">\n"
              "\t\t\t<bus:contentManagerURI xsi:type=\"xs:string\">abc</bus:contentManagerURI>\n"
              "\t\t</rns1:activateResponse>\n"
              "\t</SOAP-ENV:Body>\n");
}

TEST(MessageSerializer, WritesNothingOfAMessageOfAnotherType) {
    const Call call = makeActivateCall("abc");
    ZELSmartPointer<KORVAAsynchRun_Request> other(new KORVAAsynchRun_Request);
    KORVASOAPMessageISerializer serializer;
    CollectingStream stream;
    EXPECT_ASSERTION(serializer.serialize(*call, *other, stream),
                     "ZEL_ASSERT_NAMED(false, \"The message to be serialized must be either the "
                     "input or output message contained in the given binding object.\");");
    EXPECT_EQ(stream.writes, 0);
}

TEST(MessageSerializer, GivesAParameterTheTypeOfItsObject) {
    const Call call = makeRunCall();
    KORVAMessageI& request = call->getInputMessage();
    korva::test::fillRunRequest(request);
    const std::string text = envelope(*call, request);
    EXPECT_NE(text.find("\t\t\t<bus:objectPath xsi:type=\"bus:searchPathSingleObject\">"
                        "/content/report[@name=&apos;Quarter&apos;]</bus:objectPath>\n"),
              std::string::npos)
        << text;
}

TEST(MessageSerializer, WritesTheSameMessageTwiceAlikeAndLeavesTheStreamOpen) {
    const Call call = makeRunCall();
    korva::test::fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    KORVASOAPMessageISerializer serializer;
    CollectingStream first;
    CollectingStream second;
    serializer.serialize(*call, call->getInputMessage(), first);
    serializer.serialize(*call, call->getInputMessage(), second);
    EXPECT_EQ(first.text, second.text);
    EXPECT_FALSE(first.closed);
}

/// Answers otherwise than its table says.
class OtherRequest : public KORVAActivate_Request {
public:
    void getChildObjectNames(std::vector<const char*>& names) const override {
        names.push_back("contentManagerURI");
        names.push_back("more");
    }
    void* getChildObject(const char* name, bool) override { return const_cast<char*>(name); }
    ObjectType getChildType(const char*) const override { return KORVASchemaTypeI::eString; }
};

TEST(MessageSerializer, AsksADerivedMessageForItsParameters) {
    const Call call = makeActivateCall("x");
    OtherRequest request;
    EXPECT_EQ(lines(envelope(*call, request), "\t<SOAP-ENV:Body>", "\t</SOAP-ENV:Body>"),
              "\t<SOAP-ENV:Body>\n"
              "\t\t<rns1:activate xmlns:rns1=\"" +
                  std::string(call->getOperationNamespace()) +
                  "\">\n"
                  "\t\t\t<bus:contentManagerURI xsi:type=\"xs:string\">contentManagerURI"
                  "</bus:contentManagerURI>\n"
                  "\t\t\t<bus:more xsi:type=\"xs:string\">more</bus:more>\n"
                  "\t\t</rns1:activate>\n"
                  "\t</SOAP-ENV:Body>\n");
}

// serializeEnvelope

TEST(EnvelopeSerializer, ANullOperationNameNeedsNoNamespace) {
    KORVASOAPSerializer serializer;
    ObjectContext parameter("x", KORVASchemaTypeI::eString, "bus:a");
    for (const char* const operation : {static_cast<const char*>(nullptr), ""}) {
        CollectingStream stream;
        serializer.serializeEnvelope({}, {&parameter}, operation, nullptr, stream);
        EXPECT_EQ(body(stream.text),
                  "\t<SOAP-ENV:Body>\n"
                  "\t\t\t<bus:a xsi:type=\"xs:string\">x</bus:a>\n"
                  "\t</SOAP-ENV:Body>\n");
    }
}

TEST(EnvelopeSerializer, AnOperationWithoutANamespaceIsAnAssertion) {
    KORVASOAPSerializer serializer;
    CollectingStream stream;
    EXPECT_ASSERTION(
        serializer.serializeEnvelope({}, {}, "run", nullptr, stream),
        "ZEL_ASSERT_NAMED(pOperationNamespace, \"An operation namespace must be given.\");");
    const std::string end = "\t<SOAP-ENV:Body>\n";
    EXPECT_EQ(stream.text.substr(stream.text.size() - end.size()), end);
}

TEST(EnvelopeSerializer, ANullContextIsAnAssertion) {
    KORVASOAPSerializer serializer;
    CollectingStream stream;
    EXPECT_ASSERTION(serializer.serializeEnvelope({nullptr}, {}, nullptr, nullptr, stream),
                     "ZEL_ASSERT(objectContext);");
    EXPECT_ASSERTION(serializer.serializeEnvelope({}, {nullptr}, nullptr, nullptr, stream),
                     "ZEL_ASSERT(objectContext);");
}

TEST(EnvelopeSerializer, WritesEveryHeaderEntryAndLeavesOutThoseThatAreNull) {
    KORVASOAPSerializer serializer;
    const KORVAPermission permission;
    ObjectContext first(&permission, permission.getObjectType(), "bus:first");
    ObjectContext second(nullptr, KORVASchemaTypeI::eString, "bus:second");
    ObjectContext third("x", KORVASchemaTypeI::eString, "bus:third");
    CollectingStream stream;
    serializer.serializeEnvelope({&first, &second, &third}, {}, nullptr, nullptr, stream);
    EXPECT_EQ(header(stream.text),
              "\t<SOAP-ENV:Header>\n"
              "\t\t<bus:first xsi:type=\"bus:permission\">\n"
              "\t\t</bus:first>\n"
              "\t\t<bus:third xsi:type=\"xs:string\">x</bus:third>\n"
              "\t</SOAP-ENV:Header>\n");
}

TEST(EnvelopeSerializer, DeclaresNoNamespacesOnTheObjectsInside) {
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(true);
    ObjectContext parameter("x", KORVASchemaTypeI::eString, "bus:a");
    CollectingStream stream;
    serializer.serializeEnvelope({}, {&parameter}, nullptr, nullptr, stream);
    EXPECT_NE(stream.text.find("<bus:a xsi:type="), std::string::npos);
}

// Factory.

TEST(MessageSerializerFactory, MakesASerializerWithItsDefaults) {
    KORVASOAPMessageISerializerFactory& factory = KORVASOAPMessageISerializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVASOAPMessageISerializerFactory::getInstance());
    KORVASOAPMessageISerializerI* const serializer = factory.create();
    EXPECT_NE(dynamic_cast<KORVASOAPMessageISerializer*>(serializer), nullptr);
    const Call call = makeActivateCall("abc");
    CollectingStream stream;
    serializer->serialize(*call, call->getInputMessage(), stream);
    EXPECT_EQ(stream.text, envelope(*call, call->getInputMessage()));
    factory.destroy(serializer);
}

TEST(MessageSerializerFactory, IgnoresNull) {
    const std::size_t live = korva::test::liveAllocations();
    EXPECT_NO_THROW(KORVASOAPMessageISerializerFactory::getInstance().destroy(nullptr));
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

}  // namespace
