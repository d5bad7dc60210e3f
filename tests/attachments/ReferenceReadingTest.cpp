// References in documents and envelopes, from the attribute to the value.
#include "tests/attachments/ReferringDocument.h"
#include "tests/attachments/ScriptedReader.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAActivate_Request.h>
#include <korva/KORVAAsynchOptionSearchPathSingleObjectArray.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVADateTimeProp.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVAProviderArray.h>
#include <korva/KORVARS_testDataSourceConnection_2_Request.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASearchPathSingleObjectArray.h>
#include <korva/KORVASeverityEnumProp.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringArrayProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAUserPreferenceVar.h>
#include <korva/KORVAUserPreferenceVarArray.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::Binding;
using korva::test::envelope;
using korva::test::makeCall;
using korva::test::operation;
using korva::test::ReferringDocument;
using korva::test::ScriptedPart;
using korva::test::ScriptedReader;
using korva::test::textOf;
using korva::test::written;

constexpr auto spooling = KORVA_SpoolingAttachmentContainer::create;

/// A document of the type, whose references are resolved from the part "7" with `content`.
ReferringDocument& resolve(ReferringDocument& document, const std::string& content,
                           KORVA_AttachmentHandler::ContainerFactory factory = nullptr) {
    ScriptedReader reader{{"<7>", content}};
    EXPECT_EQ(document.attachments.getReferenceCount(), 1u);
    EXPECT_TRUE(document.resolve(reader, factory));
    return document;
}

std::string binaryOf(const KORVAXSBase64Binary* value) {
    if (value == nullptr) return "null";
    if (value->streamable() != nullptr) return "streamed:" + written(*value->streamable());
    return {value->str(), value->pcount()};
}

TEST(ReferenceReading, AStringIsEmptyUntilItsPartComes) {
    ReferringDocument document("bus:provider", "<name href=\"cid:7\"/><build>b</build>");
    const auto& provider = document.as<KORVAProvider>();
    EXPECT_STREQ(provider.getName(), "");
    resolve(document, "content");
    EXPECT_STREQ(provider.getName(), "content");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST(ReferenceReading, AStringMayBeStreamed) {
    ReferringDocument document("bus:provider", "<name href=\"cid:7\"></name>");
    resolve(document, "content", spooling);
    EXPECT_EQ(textOf(document.as<KORVAProvider>().getName()), "streamed:content");
}

TEST(ReferenceReading, TextPropertiesAndDatesAreFilled) {
    ReferringDocument text("bus:stringProp", "<value xsi:type=\"xs:string\" href=\"cid:7\"/>");
    EXPECT_STREQ(resolve(text, "content").as<KORVAStringProp>().getValue(), "content");
    for (const auto factory : {KORVA_AttachmentHandler::ContainerFactory{}, spooling}) {
        ReferringDocument date("bus:dateTimeProp",
                               "<value xsi:type=\"xs:dateTime\" href=\"cid:7\"/>");
        resolve(date, "2026-01-01T00:00:00Z", factory);
        EXPECT_EQ(textOf(date.as<KORVADateTimeProp>().getValue()),
                  factory == nullptr ? "2026-01-01T00:00:00Z" : "streamed:2026-01-01T00:00:00Z");
    }
}

TEST(ReferenceReading, ABinaryIsFilled) {
    ReferringDocument document("bus:base64BinaryProp", "<value href=\"cid:7\"/>");
    const auto& prop = document.as<KORVABase64BinaryProp>();
    EXPECT_EQ(binaryOf(prop.getValue()), "");
    resolve(document, "content");
    EXPECT_EQ(binaryOf(prop.getValue()), "content");

    ReferringDocument streamed("bus:base64BinaryProp", "<value href=\"cid:7\"/>");
    const std::string content("\0\1\0", 3);
    resolve(streamed, content, spooling);
    EXPECT_EQ(binaryOf(streamed.as<KORVABase64BinaryProp>().getValue()), "streamed:" + content);
}

TEST(ReferenceReading, ARestrictedStringIsFilled) {
    ReferringDocument document("bus:guidProp", "<value href=\"cid:7\"/>");
    resolve(document, "content");
    EXPECT_STREQ(document.as<KORVAGuidProp>().getValue()->getValue(), "content");
}

TEST(ReferenceReading, AnEnumerationCannotBeFilled) {
    ReferringDocument document("bus:severityEnumProp", "<value href=\"cid:7\"/>");
    EXPECT_EQ(document.attachments.getReferenceCount(), 1u);
    ScriptedReader reader{{"7", "error"}};
    EXPECT_NUMBERED(document.resolve(reader), 0xEA47C21F, "KORVASchemaTypesFactory::typeError()",
                    "severityEnum", "", "xs:string", "xs:string");
    EXPECT_EQ(reader.out, 0);
    EXPECT_EQ(document.attachments.getReferenceCount(), 1u);
}

TEST(ReferenceReading, WhatAnEarlierMessageLeftIsForgotten) {
    KORVA_AttachmentHandler attachments;
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(&attachments);
    const std::string referring =
        korva::test::operation("run", "<objectPath href=\"cid:7\"/>", "<bus:halyardHeader/>");
    // The message fails behind the reference, and its objects go.
    EXPECT_THROW(korva::test::readRequest(deserializer, referring.substr(0, referring.size() - 3)),
                 KORVAException);
    EXPECT_EQ(attachments.getReferenceCount(), 1U);
    const auto binding = korva::test::readRequest(deserializer, korva::test::operation("run", ""));
    EXPECT_EQ(attachments.getReferenceCount(), 0U);
    ScriptedReader reader{{"7", "content"}};
    EXPECT_TRUE(attachments.resolveReferences(
        reader, *binding->getInputMessage().getObjectRegistry(), nullptr));
}

TEST(ReferenceReading, AnItemOfATextArrayIsFilledWhereItStands) {
    for (const auto factory : {KORVA_AttachmentHandler::ContainerFactory{}, spooling}) {
        ReferringDocument document(
            "bus:stringArrayProp",
            "<value xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"xs:string[3]\"><item>a</item>"
            "<item href=\"cid:7\"/><item>c</item></value>");
        resolve(document, "content", factory);
        const KORVAStringArray& items = document.as<KORVAStringArrayProp>().getValue();
        ASSERT_EQ(items.size(), 3u);
        EXPECT_STREQ(items.at(0), "a");
        EXPECT_EQ(textOf(items.at(1)), factory == nullptr ? "content" : "streamed:content");
        EXPECT_STREQ(items.at(2), "c");
    }
}

TEST(ReferenceReading, AnItemOfAnObjectArrayIsFilled) {
    for (const auto factory : {KORVA_AttachmentHandler::ContainerFactory{}, spooling}) {
        ReferringDocument document(
            "bus:asynchOptionSearchPathSingleObjectArray",
            "<value><item>/a</item><item href=\"cid:7\"/><item>/c</item></value>");
        resolve(document, "/content", factory);
        const KORVASearchPathSingleObjectArray& paths =
            document.as<KORVAAsynchOptionSearchPathSingleObjectArray>().getValue();
        ASSERT_EQ(paths.size(), 3u);
        EXPECT_STREQ(paths.at(0)->getValue(), "/a");
        EXPECT_EQ(textOf(paths.at(1)->getValue()),
                  factory == nullptr ? "/content" : "streamed:/content");
        EXPECT_STREQ(paths.at(2)->getValue(), "/c");
    }
}

TEST(ReferenceReading, AFieldOfAnObjectInAnArrayIsFilled) {
    ReferringDocument header(
        "bus:halyardHeader",
        "<userPreferenceVars><item><name>a</name><value>1</value></item>"
        "<item><name>b</name><value href=\"cid:7\"/></item></userPreferenceVars>");
    resolve(header, "content");
    const KORVAUserPreferenceVarArray& variables =
        header.as<KORVAHalyardHeader>().getUserPreferenceVars();
    ASSERT_EQ(variables.size(), 2u);
    EXPECT_STREQ(variables.at(0)->getValue(), "1");
    EXPECT_STREQ(variables.at(1)->getName(), "b");
    EXPECT_STREQ(variables.at(1)->getValue(), "content");
}

TEST(ReferenceReading, AReferenceOnAnObjectFillsNothing) {
    ReferringDocument document("bus:tracking", "<conversationContext href=\"cid:7\"/>");
    resolve(document, "content");
    const auto& tracking = document.as<KORVATracking>();
    ASSERT_NE(tracking.getConversationContext(), nullptr);
    EXPECT_TRUE(*tracking.getConversationContext() == KORVAConversationContext());
    EXPECT_EQ(tracking.getHopCount(), nullptr);
    EXPECT_EQ(tracking.getProviders().size(), 0u);
    EXPECT_EQ(tracking.getRequestContext(), nullptr);
    EXPECT_EQ(tracking.getSessionContext(), nullptr);
    EXPECT_EQ(tracking.getStepContext(), nullptr);
}

TEST(ReferenceReading, AReferenceOnANumberIsIgnored) {
    ReferringDocument document("bus:intProp", "<value href=\"cid:7\"/>");
    EXPECT_EQ(document.attachments.getReferenceCount(), 0u);
}

TEST(ReferenceReading, WhatIsNoReferenceIsReadAsAnyValue) {
    ReferringDocument document("bus:provider",
                               "<name href=\"cid:\">n</name><build href=\"CID:abc\">b</build>");
    EXPECT_EQ(document.attachments.getReferenceCount(), 0u);
    EXPECT_STREQ(document.as<KORVAProvider>().getName(), "n");
    EXPECT_STREQ(document.as<KORVAProvider>().getBuild(), "b");
}

TEST(ReferenceReading, NilAndUnknownElementsReferToNothing) {
    ReferringDocument document(
        "bus:provider",
        "<name xsi:nil=\"true\" href=\"cid:1\"/><future href=\"cid:2\"><name "
        "href=\"cid:3\"/></future><build>b</build>");
    EXPECT_EQ(document.attachments.getReferenceCount(), 0u);
    EXPECT_STREQ(document.as<KORVAProvider>().getBuild(), "b");
}

TEST(ReferenceReading, SeveralElementsMayReferToOnePart) {
    ReferringDocument document("bus:provider",
                               "<name href=\"cid:7\"/><build href=\"cid:7\"/><patch>1</patch>");
    EXPECT_EQ(document.attachments.getReferenceCount(), 2u);
    ScriptedReader reader{{"<7>", "content"}};
    EXPECT_TRUE(document.resolve(reader));
    const auto& provider = document.as<KORVAProvider>();
    EXPECT_STREQ(provider.getName(), "content");
    EXPECT_EQ(provider.getName(), provider.getBuild());
}

TEST(ReferenceReading, IdsBeyondAsciiAreUtf8) {
    ReferringDocument document("bus:provider", "<name href=\"cid:\xE2\x82\xAC&lt;\"/>");
    ScriptedReader reader{{"<\xE2\x82\xAC<>", "content"}};
    EXPECT_TRUE(document.resolve(reader));
    EXPECT_STREQ(document.as<KORVAProvider>().getName(), "content");
}

// ----- envelopes -----

/// An envelope, read at the server of the bus's service.
class Request {
public:
    Request(const std::string& name, const std::string& parameters,
            const std::string& header = {}) {
        const std::string text = envelope("<o:" + name + " xmlns:o=\"" + korva::test::busNamespace +
                                              "\">" + parameters + "</o:" + name + ">",
                                          header);
        BRIMMemoryInputStream stream(text.data(), text.size());
        KORVASOAPMessageIDeserializer deserializer;
        deserializer.setAttachmentHandler(&attachments);
        deserializer.parse(stream, {&KORVAVelmoraTabulonPortType::getInstance()}, binding);
    }

    bool resolve(std::vector<ScriptedPart> parts,
                 KORVA_AttachmentHandler::ContainerFactory factory = nullptr) {
        ScriptedReader reader(std::move(parts));
        return attachments.resolveReferences(
            reader, *binding->getInputMessage().getObjectRegistry(), factory);
    }

    template <class X>
    X& message() {
        return static_cast<X&>(binding->getInputMessage());
    }

    KORVA_AttachmentHandler attachments;
    Binding binding;
};

TEST(ReferenceReading, TheHeaderMayRefer) {
    Request request("activate", "<contentManagerURI>u</contentManagerURI>",
                    "<bus:halyardHeader xsi:type=\"bus:halyardHeader\"><Warden><authenticityToken "
                    "href=\"cid:t\"/><roles><item>a</item><item href=\"cid:r\"/></roles></Warden>"
                    "</bus:halyardHeader>");
    EXPECT_EQ(request.attachments.getReferenceCount(), 2u);
    EXPECT_TRUE(request.resolve({{"t", "token"}, {"r", "role"}}));
    KORVAWarden& warden =
        *request.binding->getInputMessage().getHalyardHeader(nullptr)->getWarden();
    EXPECT_EQ(binaryOf(warden.getAuthenticityToken()), "token");
    EXPECT_STREQ(warden.getRoles().at(1), "role");
}

TEST(ReferenceReading, AnObjectParameterOfTextContentIsFilled) {
    const std::string text = operation("run", "<objectPath href=\"cid:p\"/>");
    BRIMMemoryInputStream stream(text.data(), text.size());
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    Binding binding;
    deserializer.parse(stream, {&KORVAReportServicePortType::getInstance()}, binding);
    auto& request = static_cast<KORVAAsynchRun_Request&>(binding->getInputMessage());
    ScriptedReader reader{{"p", "/content"}};
    EXPECT_TRUE(attachments.resolveReferences(reader, *request.getObjectRegistry(), nullptr));
    EXPECT_STREQ(request.getObjectPath()->getValue(), "/content");
}

TEST(ReferenceReading, ATextParameterIsFilled) {
    for (const auto factory : {KORVA_AttachmentHandler::ContainerFactory{}, spooling}) {
        Request request("activate", "<contentManagerURI href=\"cid:u\"/>");
        const auto uri = [&] {
            return request.message<KORVAActivate_Request>().getContentManagerURI();
        };
        EXPECT_EQ(request.attachments.getReferenceCount(), 1u);
        EXPECT_EQ(textOf(uri()), "streamed:");
        EXPECT_FALSE(request.resolve({{"other", "x"}}, factory));
        EXPECT_EQ(textOf(uri()), "streamed:");
        EXPECT_TRUE(request.resolve({{"<u>", "content"}}, factory));
        EXPECT_EQ(textOf(uri()), "streamed:content");
    }
}

TEST(ReferenceReading, ATextParameterIsFilledWithTextThatLooksLikeAStreamable) {
    Request request("activate", "<contentManagerURI href=\"cid:u\"/>");
    EXPECT_TRUE(request.resolve({{"u", std::string("\xFF\xFF\xFF\0garbage", 11)}}));
    EXPECT_EQ(textOf(request.message<KORVAActivate_Request>().getContentManagerURI()),
              "streamed:\xFF\xFF\xFF");
}

TEST(ReferenceReading, ABinaryParameterIsFilled) {
    const std::string content("\1\0\2", 3);
    for (const auto factory : {KORVA_AttachmentHandler::ContainerFactory{}, spooling}) {
        Request request("testDataSourceConnection",
                        "<connectionString>c</connectionString><username>u</username>"
                        "<encryptedPassword href=\"cid:p\"/>");
        const auto value = [&] {
            return request.message<KORVARS_testDataSourceConnection_2_Request>()
                .getEncryptedPassword();
        };
        ASSERT_NE(value(), nullptr);
        EXPECT_EQ(value()->pcount(), 0u);
        EXPECT_TRUE(request.resolve({{"p", content}}, factory));
        EXPECT_EQ(binaryOf(value()), factory == nullptr ? "\1" : "streamed:" + content);
    }
    Request empty("testDataSourceConnection",
                  "<connectionString>c</connectionString><username>u</username>"
                  "<encryptedPassword href=\"cid:p\"/>");
    EXPECT_TRUE(empty.resolve({{"p", ""}}));
    EXPECT_EQ(empty.message<KORVARS_testDataSourceConnection_2_Request>()
                  .getEncryptedPassword()
                  ->pcount(),
              0u);
}

TEST(ReferenceReading, ABinaryParameterOfAReplyIsFilled) {
    const Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    korva::test::readReply(deserializer, *call,
                           envelope("<r:x xmlns:r=\"urn:any\"><result href=\"cid:image\"/></r:x>"));
    ScriptedReader reader{{"<image>", "image"}};
    EXPECT_TRUE(attachments.resolveReferences(reader, *reply.getObjectRegistry(), nullptr));
    EXPECT_EQ(binaryOf(reply.getResult()), "image");
}

TEST(ReferenceReading, AParameterThatRefersHasNoContent) {
    EXPECT_NUMBERED(Request("activate", "<contentManagerURI href=\"cid:u\"> </contentManagerURI>"),
                    0xEA4ACDA5, "KORVASchemaTypeIContentHandler::characters", "contentManagerURI",
                    "u");
    EXPECT_NUMBERED(
        Request("activate", "<contentManagerURI href=\"cid:u\"><x/></contentManagerURI>"),
        0xEA40320B, "KORVASchemaTypeIContentHandler::startElement", "contentManagerURI", "u");
}

}  // namespace
