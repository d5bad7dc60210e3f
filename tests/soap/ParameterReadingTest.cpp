// Parameters of plain types, which travel as messages hold them.
#include "tests/soap/Reading.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAActivate_Request.h>
#include <korva/KORVAContentDelete_Reply.h>
#include <korva/KORVAContentManagerServicePortType.h>
#include <korva/KORVADispatcherPortType.h>
#include <korva/KORVADispatcherStopService_Request.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVARS_testDataSourceConnection_2_Request.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::Binding;
using korva::test::busNamespace;
using korva::test::envelope;

Binding read(const std::vector<KORVAPortTypeI*>& offered, const char* uri, const std::string& name,
             const std::string& parameters) {
    const std::string text =
        envelope("<o:" + name + " xmlns:o=\"" + uri + "\">" + parameters + "</o:" + name + ">");
    BRIMMemoryInputStream stream(text.data(), text.size());
    KORVASOAPMessageIDeserializer deserializer;
    Binding result;
    deserializer.parse(stream, offered, result);
    return result;
}

Binding readBus(const std::string& name, const std::string& parameters) {
    return read({&KORVAVelmoraTabulonPortType::getInstance()}, busNamespace.c_str(), name,
                parameters);
}

Binding readDispatcher(const std::string& name, const std::string& parameters) {
    return read({&KORVADispatcherPortType::getInstance()},
                KORVADispatcherPortType::getInstance().getBoundNamespace(), name, parameters);
}

const char* uriOf(const Binding& binding) {
    return static_cast<KORVAActivate_Request&>(binding->getInputMessage()).getContentManagerURI();
}

TEST(ParameterReading, ATextIsTakenWithItsWhiteSpace) {
    EXPECT_STREQ(uriOf(readBus("activate", "<contentManagerURI> a\nb </contentManagerURI>")),
                 " a\nb ");
    EXPECT_STREQ(uriOf(readBus("activate", "<contentManagerURI xsi:type=\"xs:string\"/>")), "");
    EXPECT_EQ(uriOf(readBus("activate", "<contentManagerURI xsi:nil=\"true\"/>")), nullptr);
}

TEST(ParameterReading, ALargeTextIsTakenWhole) {
    const std::string text(1'000'000, 'x');
    EXPECT_EQ(uriOf(readBus("activate", "<contentManagerURI>" + text + "</contentManagerURI>")),
              text);
}

TEST(ParameterReading, ABooleanIsPresentOnlyIfItWasRead) {
    const auto immediately = [](const std::string& parameters) {
        const Binding binding = readDispatcher("stopService", parameters);
        const bool* const value =
            static_cast<KORVADispatcherStopService_Request&>(binding->getInputMessage())
                .getImmediately();
        return value == nullptr ? -1 : *value ? 1 : 0;
    };
    EXPECT_EQ(immediately("<servicePath/><immediately>true</immediately>"), 1);
    EXPECT_EQ(immediately("<servicePath/><immediately xsi:type=\"xs:boolean\">0</immediately>"), 0);
    EXPECT_EQ(immediately("<servicePath/>"), -1);
    EXPECT_EQ(immediately("<servicePath/><immediately xsi:nil=\"true\"/>"), -1);
    EXPECT_NUMBERED(immediately("<servicePath/><immediately>maybe</immediately>"), 0xEA407F89,
                    "KORVASchemaTypeIContentHandler::characters", "immediately", "boolean");
    EXPECT_NUMBERED(immediately("<servicePath/><immediately xsi:type=\"xs:int\">1</immediately>"),
                    0xEA487D84, "KORVASchemaTypeIContentHandler::checkType()", "immediately",
                    "xs:boolean", "xs:int");
    EXPECT_NUMBERED(immediately("<servicePath/><immediately><x/></immediately>"), 0xEA4AA334,
                    "KORVASchemaTypeIContentHandler::startElement", "x");
}

TEST(ParameterReading, AnIntIsTakenByTheReply) {
    const Binding call = KORVAContentManagerServicePortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAContentDelete_Request);
    korva::test::readReply(
        *call,
        envelope(
            "<r:deleteResponse xmlns:r=\"urn:any\"><result>\n 12 </result></r:deleteResponse>"));
    const int* const result =
        static_cast<KORVAContentDelete_Reply&>(call->getOutputMessage()).getResult();
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(*result, 12);
    korva::test::readReply(
        *call,
        envelope(
            "<r:deleteResponse xmlns:r=\"urn:any\"><result xsi:nil=\"true\"/></r:deleteResponse>"));
    EXPECT_EQ(static_cast<KORVAContentDelete_Reply&>(call->getOutputMessage()).getResult(),
              nullptr);
}

TEST(ParameterReading, ABinaryIsDecoded) {
    const Binding call = KORVAReportServicePortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAMapGetMapPreview_Request);
    korva::test::readReply(*call,
                           envelope("<r:x xmlns:r=\"urn:any\"><result>aGVs bG8=</result></r:x>"));
    const KORVAXSBase64Binary* const result =
        static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage()).getResult();
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(std::string(result->str(), result->pcount()), "hello");

    const Binding binding = readBus("testDataSourceConnection",
                                    "<connectionString>c</connectionString><username>u</username>"
                                    "<encryptedPassword>AAEC</encryptedPassword>");
    auto& request =
        static_cast<KORVARS_testDataSourceConnection_2_Request&>(binding->getInputMessage());
    EXPECT_STREQ(request.getUsername(), "u");
    EXPECT_EQ(std::string(request.getEncryptedPassword()->str(),
                          request.getEncryptedPassword()->pcount()),
              std::string("\x00\x01\x02", 3));
}

TEST(ParameterReading, AReferenceIsAnAssertion) {
    const char* const text =
        "ZEL_ASSERT_NAMED(m_attachmentHandler, "
        "\"KORVASchemaTypeIContentHandler::setCurrentCharacterData - Handler not configured to "
        "process href attachments. );\");";
    EXPECT_ASSERTION(readBus("activate", "<contentManagerURI href=\"cid:1\"/>"), text);
    EXPECT_ASSERTION(readBus("testDataSourceConnection", "<encryptedPassword href=\"cid:1\"/>"),
                     text);
}

TEST(ParameterReading, ParametersMayBeLeftOut) {
    const Binding binding = readDispatcher("stopService", "<immediately>1</immediately>");
    EXPECT_EQ(static_cast<KORVADispatcherStopService_Request&>(binding->getInputMessage())
                  .getServicePath(),
              nullptr);
}

}  // namespace
