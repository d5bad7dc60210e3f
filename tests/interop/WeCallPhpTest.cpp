// A client that writes and reads with the library, against PHP's server. Each case stands in
// php/server.php under its name.
#include "tests/interop/Objects.h"
#include "tests/interop/Php.h"

#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchDetailReportStatus.h>
#include <korva/KORVAAsynchDetailReportStatusEnum.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABase64BinaryMIMEProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVADecimalProp.h>
#include <korva/KORVAGraphic.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMapGetMapInfo_Reply.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAMapInfoArray.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVAMonitorAdd_Reply.h>
#include <korva/KORVAMonitorAdd_Request.h>
#include <korva/KORVAMonitorServicePortType.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAPageDefinition.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAReport.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionInt.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATokenProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAValidateContentLocale_Reply.h>
#include <korva/KORVAValidateContentLocale_Request.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>

using namespace korva::test;
using testing::HasSubstr;
using testing::Not;

namespace {

using Call = ZELSmartPointer<KORVAPortTypeBinding>;

Call reportCall(KORVAMessageI::MessageType request) {
    return KORVAReportServicePortType::getInstance().createPortTypeBinding(request);
}

/// A run call without options and parameters.
Call runCall() {
    Call call = reportCall(KORVAMessageI::eKORVAAsynchRun_Request);
    auto& request = dynamic_cast<KORVAAsynchRun_Request&>(call->getInputMessage());
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    request.getObjectPath(registry)->setValue("/content/report");
    request.getParameterValues(registry);
    request.getOptions(registry);
    return call;
}

KORVAAsynchRun_Request& runRequest(const Call& call) {
    return dynamic_cast<KORVAAsynchRun_Request&>(call->getInputMessage());
}

KORVAAsynchReply* result(const Call& call) {
    return dynamic_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage()).getResult();
}

KORVAAsynchDetailArray& details(const Call& call) {
    return result(call)->getDetails();
}

/// The number of the message with which the reply is refused; 0 if it is not.
unsigned refusalOf(PhpServer& server, const Call& call) {
    try {
        server.call(*call);
        return 0;
    } catch (const Refusal& refusal) {
        return refusal.number();
    }
}

constexpr const char* plainRun =
    "action of the WSDL\n"
    "operation: run\n"
    "argument 1: \"/content/report\"\n"
    "argument 2: array of 0\n"
    "argument 3: array of 0\n";

}  // namespace

// ----- operations and the frame -----

TEST(WeCallPhp, CallsAnOperationWithoutParameters) {
    PhpServer server("no-parameters");
    const Call call = reportCall(KORVAMessageI::eKORVAMapGetMapInfo_Request);
    server.call(*call);
    EXPECT_EQ(server.understood(),
              "action of the WSDL\n"
              "operation: getMapInfo\n");
    const auto& reply = dynamic_cast<KORVAMapGetMapInfo_Reply&>(call->getOutputMessage());
    ASSERT_NE(reply.getResult(), nullptr);
    EXPECT_EQ(reply.getResult()->size(), 2u);
}

TEST(WeCallPhp, SendsARunRequestWithTheBusHeaderAndReadsItsOwnInTheReply) {
    PhpServer server("header");
    const Call call = runCall();
    KORVAObjectRegistryI* const registry = call->getInputMessage().getObjectRegistry();
    KORVAHalyardHeader& header = *call->getInputMessage().getHalyardHeader(registry);
    KORVAWarden& warden = *header.getWarden(registry);
    warden.setAuthenticityToken(makeBinary(registry, std::string("\0\1\xFE\xFF", 4)));
    warden.getWardenPassport(registry)->setId("MTsx");
    warden.getWardenPassport(registry)->setIsAnonymous(false);
    warden.getRoles().push_back("Authors");
    warden.getRoles().push_back("R&D");
    header.getTracking(registry)->setHopCount(2);
    server.call(*call);

    EXPECT_EQ(server.understood(),
              "action of the WSDL\n"
              "header: object\n"
              "  Warden: object\n"
              "    authenticityToken: hex 0001feff\n"
              "    WardenPassport: object\n"
              "      id: \"MTsx\"\n"
              "      isAnonymous: false\n"
              "    roles: array of 2\n"
              "      [1]: \"Authors\"\n"
              "      [2]: \"R&D\"\n"
              "  dispatcherTransportVars: array of 0\n"
              "  providers: array of 0\n"
              "  tracking: object\n"
              "    hopCount: 2\n"
              "    providers: array of 0\n"
              "  userPreferenceVars: array of 0\n"
              "operation: run\n"
              "argument 1: \"/content/report\"\n"
              "argument 2: array of 0\n"
              "argument 3: array of 0\n");
    const KORVAHalyardHeader* const answered = call->getOutputMessage().getHalyardHeader(nullptr);
    ASSERT_NE(answered, nullptr);
    ASSERT_NE(answered->getWarden(), nullptr);
    EXPECT_EQ(bytes(answered->getWarden()->getAuthenticityToken()), std::string("\0\1\xFE\xFF", 4));
    EXPECT_STREQ(answered->getWarden()->getWardenPassport()->getId(), "MTsy");
    EXPECT_TRUE(*answered->getWarden()->getWardenPassport()->getIsAnonymous());
    EXPECT_EQ(*answered->getTracking()->getHopCount(), 3);
}

TEST(WeCallPhp, TakesTheFirstElementOfAReplyUnderAnyName) {
    PhpServer server("without-wsdl");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body, HasSubstr("<return xsi:type="));
    ASSERT_NE(result(call), nullptr);
    EXPECT_EQ(result(call)->getStatus()->getValue(), KORVAAsynchReplyStatusEnum::eKORVAComplete);
}

// ----- arrays -----

TEST(WeCallPhp, SendsDerivedOptionsInAnArrayOfTheirBase) {
    PhpServer server("empty-arrays");
    const Call call = runCall();
    KORVAObjectRegistryI* const registry = call->getInputMessage().getObjectRegistry();
    auto* const prompt = registry->make<KORVARunOptionBoolean>();
    prompt->getName(registry)->setValue(KORVARunOptionEnum::eKORVAPrompt);
    prompt->setValue(false);
    auto* const format = registry->make<KORVARunOptionStringArray>();
    format->getName(registry)->setValue("outputFormat");
    format->getValue().push_back("PDF");
    format->getValue().push_back("HTML");
    auto* const elements = registry->make<KORVARunOptionInt>();
    elements->setValue(5);
    KORVAOptionArray& options = *runRequest(call).getOptions();
    options.push_back(prompt);
    options.push_back(format);
    options.push_back(elements);
    auto* const item = registry->make<KORVASimpleParmValueItem>();
    item->setUse("EMEA");
    auto* const region = registry->make<KORVAParameterValue>();
    region->setName("region");
    region->getValue().push_back(item);
    runRequest(call).getParameterValues()->push_back(region);
    server.call(*call);

    EXPECT_EQ(server.understood(),
              "action of the WSDL\n"
              "operation: run\n"
              "argument 1: \"/content/report\"\n"
              "argument 2: array of 1\n"
              "  [1]: parameterValue\n"
              "    name: \"region\"\n"
              "    value: array of 1\n"
              "      [1]: simpleParmValueItem\n"
              "        use: \"EMEA\"\n"
              "argument 3: array of 3\n"
              "  [1]: runOptionBoolean\n"
              "    name: \"prompt\"\n"
              "    value: false\n"
              "  [2]: runOptionStringArray\n"
              "    name: \"outputFormat\"\n"
              "    value: array of 2\n"
              "      [1]: \"PDF\"\n"
              "      [2]: \"HTML\"\n"
              "  [3]: runOptionInt\n"
              "    value: 5\n");
}

TEST(WeCallPhp, ReadsDerivedDetailsInAnArrayTypedByItsClass) {
    PhpServer server("derived-details");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body,
                HasSubstr(":asynchDetail[2]\" xsi:type=\"ns2:asynchDetailArray\">"));
    ASSERT_EQ(details(call).size(), 2u);
    EXPECT_EQ(item<KORVAAsynchDetailReportStatus>(details(call), 0).getStatus()->getValue(),
              KORVAAsynchDetailReportStatusEnum::eKORVAResponseReady);
    auto& output = item<KORVAAsynchDetailReportOutput>(details(call), 1);
    ASSERT_EQ(output.getOutputObjects().size(), 2u);
    EXPECT_STREQ(item<KORVAOutput>(output.getOutputObjects(), 0).getDataType()->getValue(),
                 "text/html");
    EXPECT_STREQ(item<KORVAReport>(output.getOutputObjects(), 1).getDefaultName()->getValue(),
                 "Q4");
    ASSERT_EQ(output.getOutputPages().size(), 2u);
    EXPECT_STREQ(output.getOutputPages().at(1), "<p>2</p>");
}

TEST(WeCallPhp, ReadsDerivedDetailsInAnArrayTypedBySoap) {
    PhpServer server("derived-details-soap-array");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body, HasSubstr(":asynchDetail[2]\" xsi:type=\"SOAP-ENC:Array\">"));
    ASSERT_EQ(details(call).size(), 2u);
    EXPECT_NO_THROW(item<KORVAAsynchDetailReportStatus>(details(call), 0));
    EXPECT_EQ(item<KORVAAsynchDetailReportOutput>(details(call), 1).getOutputPages().size(), 1u);
}

TEST(WeCallPhp, SendsAndReadsEmptyArrays) {
    PhpServer server("empty-arrays");
    const Call call = runCall();
    server.call(*call);
    EXPECT_EQ(server.understood(), plainRun);
    EXPECT_THAT(server.reply().body, HasSubstr(":baseClass[0]\""));
    ASSERT_EQ(details(call).size(), 1u);
    auto& output = item<KORVAAsynchDetailReportOutput>(details(call), 0);
    EXPECT_EQ(output.getOutputObjects().size(), 0u);
    EXPECT_EQ(output.getOutputPages().size(), 0u);
}

// ----- nulls -----

TEST(WeCallPhp, SendsNullParametersOfWhichArraysArriveEmpty) {
    PhpServer server("null-reply");
    const Call call = reportCall(KORVAMessageI::eKORVAAsynchRun_Request);
    server.call(*call);
    EXPECT_EQ(server.understood(),
              "action of the WSDL\n"
              "operation: run\n"
              "argument 1: null\n"
              "argument 2: array of 0\n"
              "argument 3: array of 0\n");
}

TEST(WeCallPhp, ReadsANullResult) {
    PhpServer server("null-reply");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body, HasSubstr("<result xsi:nil=\"true\" xsi:type="));
    EXPECT_EQ(result(call), nullptr);
}

TEST(WeCallPhp, ReadsNullFieldsAsUnsetAndLeavesNullItemsOut) {
    PhpServer server("null-fields-and-items");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body, HasSubstr(":asynchDetail[3]\""));
    ASSERT_EQ(details(call).size(), 2u);
    auto& output = item<KORVAAsynchDetailReportOutput>(details(call), 0);
    EXPECT_EQ(output.getOutputObjects().size(), 0u);
    ASSERT_EQ(output.getOutputPages().size(), 2u);
    EXPECT_STREQ(output.getOutputPages().at(0), "one");
    EXPECT_STREQ(output.getOutputPages().at(1), "three");
    EXPECT_EQ(item<KORVAAsynchDetailReportStatus>(details(call), 1).getStatus(), nullptr);
}

TEST(WeCallPhp, ReadsANullFieldTypedBySoapAsUnset) {
    PhpServer server("null-soap-array");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body, HasSubstr("<outputPages xsi:nil=\"true\"/>"));
    ASSERT_EQ(details(call).size(), 1u);
    EXPECT_EQ(item<KORVAAsynchDetailReportOutput>(details(call), 0).getOutputPages().size(), 0u);
}

TEST(WeCallPhp, RefusesANullResultTypedBySoap) {
    PhpServer server("null-result-soap-array");
    const Call call = reportCall(KORVAMessageI::eKORVAMapGetMapInfo_Request);
    EXPECT_EQ(refusalOf(server, call), 0xEA4BA852u);
    EXPECT_THAT(server.reply().body,
                HasSubstr("<result xsi:nil=\"true\" xsi:type=\"SOAP-ENC:Array\"/>"));
}

// ----- plain values -----

TEST(WeCallPhp, SendsAndReadsTextThatNeedsEscapingAndTextBeyondAscii) {
    PhpServer server("texts");
    const Call call = runCall();
    runRequest(call).getObjectPath()->setValue(anyText);
    server.call(*call);
    EXPECT_THAT(server.understood(),
                HasSubstr("argument 1: \"a<b> & \\\"c\\\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 "
                          "\U0001F600\\ttab\"\n"));
    ASSERT_EQ(details(call).size(), 1u);
    auto& pages = item<KORVAAsynchDetailReportOutput>(details(call), 0).getOutputPages();
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_STREQ(pages.at(0), anyText);
    EXPECT_STREQ(pages.at(1), "");
    EXPECT_STREQ(pages.at(2), "  two\nlines  ");
}

TEST(WeCallPhp, ReadsABooleanResult) {
    PhpServer server("boolean");
    ZELSmartPointer<KORVAValidateContentLocale_Request> request(
        new KORVAValidateContentLocale_Request);
    request->setLocale("de-ch");
    const Call call =
        KORVAVelmoraTabulonPortType::getInstance().createPortTypeBinding(request.get());
    server.call(*call);
    EXPECT_EQ(server.understood(),
              "action of the WSDL\n"
              "operation: validateContentLocale\n"
              "argument 1: \"de-ch\"\n");
    const auto& reply = dynamic_cast<KORVAValidateContentLocale_Reply&>(call->getOutputMessage());
    ASSERT_NE(reply.getValid(), nullptr);
    EXPECT_TRUE(*reply.getValid());
}

TEST(WeCallPhp, SendsAndReadsIntegersAndDecimals) {
    PhpServer server("numbers");
    ZELSmartPointer<KORVAMonitorAdd_Request> request(new KORVAMonitorAdd_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();
    request->setEventID("event");
    auto* const page = registry->make<KORVAPageDefinition>();
    page->getHeight(registry)->setValue(1.5f);
    page->getWidth(registry)->setValue(-0.25f);
    request->getObjects(registry)->push_back(page);
    request->getParameterValues(registry);
    auto* const option = registry->make<KORVARunOptionInt>();
    option->setValue(-2147483647 - 1);
    request->getOptions(registry)->push_back(option);
    const Call call =
        KORVAMonitorServicePortType::getInstance().createPortTypeBinding(request.get());
    server.call(*call);

    EXPECT_EQ(server.understood(),
              "action of the WSDL\n"
              "operation: add\n"
              "argument 1: \"event\"\n"
              "argument 2: array of 1\n"
              "  [1]: pageDefinition\n"
              "    height: object\n"
              "      value: \"1.50\"\n"
              "    width: object\n"
              "      value: \"-0.25\"\n"
              "argument 3: array of 0\n"
              "argument 4: array of 1\n"
              "  [1]: runOptionInt\n"
              "    value: -2147483648\n");
    auto& reply = dynamic_cast<KORVAMonitorAdd_Reply&>(call->getOutputMessage());
    KORVAAsynchDetailArray& read = reply.getResult()->getDetails();
    ASSERT_EQ(read.size(), 2u);
    auto& pages = item<KORVAAsynchDetailReportOutput>(read, 0).getOutputObjects();
    EXPECT_EQ(*item<KORVAPageDefinition>(pages, 0).getHeight()->getValue(), 1.5f);
    EXPECT_EQ(*item<KORVAPageDefinition>(pages, 0).getWidth()->getValue(), -0.25f);
    EXPECT_EQ(*item<KORVAAsynchDetailMIMEAttachment>(read, 1).getDataSize(), 2147483647);
}

TEST(WeCallPhp, SendsBase64) {
    PhpServer server("numbers");
    ZELSmartPointer<KORVAMonitorAdd_Request> request(new KORVAMonitorAdd_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();
    auto* const graphic = registry->make<KORVAGraphic>();
    graphic->getData(registry)->setValue(makeBinary(registry, someBytes));
    request->getObjects(registry)->push_back(graphic);
    const Call call =
        KORVAMonitorServicePortType::getInstance().createPortTypeBinding(request.get());
    server.call(*call);
    EXPECT_THAT(server.understood(), HasSubstr("    data: object\n"
                                               "      value: hex 0001feff616263\n"));
}

TEST(WeCallPhp, ReadsABase64Result) {
    PhpServer server("base64");
    const Call call = reportCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
    server.call(*call);
    const auto& reply = dynamic_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    EXPECT_EQ(bytes(reply.getResult()), someBytes);
}

// ----- what does not fit -----

TEST(WeCallPhp, SkipsUnknownElementsOfAReply) {
    PhpServer server("unknown-elements");
    const Call call = runCall();
    server.call(*call);
    EXPECT_THAT(server.reply().body, HasSubstr("<news><deep i:type=\"b:run\">"));
    ASSERT_NE(result(call), nullptr);
    EXPECT_EQ(result(call)->getStatus()->getValue(), KORVAAsynchReplyStatusEnum::eKORVAComplete);
    ASSERT_EQ(details(call).size(), 1u);
    EXPECT_EQ(item<KORVAAsynchDetailReportStatus>(details(call), 0).getStatus(), nullptr);
}

TEST(WeCallPhp, RefusesAReferenceToASharedObjectWhoseClassIsNotTold) {
    PhpServer server("shared-object");
    const Call call = runCall();
    EXPECT_EQ(refusalOf(server, call), 0xEA47EC7Bu);
    EXPECT_THAT(server.reply().body, HasSubstr("<item href=\"#ref1\"/>"));
}

// ----- faults -----

TEST(WeCallPhp, ReadsAFault) {
    PhpServer server("fault");
    const Call call = runCall();
    try {
        server.call(*call);
        FAIL() << "the fault was not raised";
    } catch (const KORVASOAPFaultException& error) {
        EXPECT_STREQ(error.getSOAPFault().getFaultCode(), "SOAP-ENV:Server");
        EXPECT_STREQ(error.getSOAPFault().getFaultString(), "not <today>");
        EXPECT_STREQ(error.getSOAPFault().getFaultActor(), "urn:actor");
    }
    EXPECT_EQ(server.reply().status, 500);
    EXPECT_EQ(server.understood(), plainRun);
}

TEST(WeCallPhp, ReadsAFaultWithDetails) {
    PhpServer server("fault-with-details");
    const Call call = runCall();
    try {
        server.call(*call);
        FAIL() << "the fault was not raised";
    } catch (const KORVASOAPFaultException& error) {
        KORVAUndocumentedFaultDetailArray* const details =
            error.getSOAPFault().getUndocumentedDetail();
        ASSERT_NE(details, nullptr);
        ASSERT_EQ(details->size(), 1u);
        EXPECT_STREQ(details->at(0)->getSeverity(), "error");
        EXPECT_STREQ(details->at(0)->getErrorCodeString(), "RPT-1");
        std::string messages;
        error.getSOAPFaultMessages(messages);
        EXPECT_EQ(messages, "no room");
    }
}

TEST(WeCallPhp, ReadsAFaultWithDetailsOfAnotherKindAsEmptyOnes) {
    PhpServer server("fault-with-foreign-details");
    const Call call = runCall();
    try {
        server.call(*call);
        FAIL() << "the fault was not raised";
    } catch (const KORVASOAPFaultException& error) {
        EXPECT_THAT(server.reply().body, HasSubstr("<detail><code>7</code>"));
        KORVAUndocumentedFaultDetailArray* const details =
            error.getSOAPFault().getUndocumentedDetail();
        ASSERT_NE(details, nullptr);
        ASSERT_EQ(details->size(), 2u);
        EXPECT_EQ(details->at(0)->getErrorCodeString(), nullptr);
        EXPECT_EQ(details->at(1)->getMessage().size(), 0u);
    }
}

TEST(WeCallPhp, RefusesAFaultWithElementsOfItsOwnInItsDetails) {
    PhpServer server("fault-with-deep-foreign-details");
    const Call call = runCall();
    EXPECT_EQ(refusalOf(server, call), 0xEA41BF21u);
    EXPECT_THAT(server.reply().body, HasSubstr("<detail><cause><code>7</code></cause></detail>"));
}
