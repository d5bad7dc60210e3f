// PHP's client against a server that reads and writes with the library. Each case stands in
// php/client.php under its name.
#include "tests/interop/Objects.h"
#include "tests/interop/Php.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchDetailReportStatus.h>
#include <korva/KORVAAsynchDetailReportStatusEnum.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABase64BinaryMIMEProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVADecimalProp.h>
#include <korva/KORVADispatcherStopService_Request.h>
#include <korva/KORVAGraphic.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMapGetMapInfo_Reply.h>
#include <korva/KORVAMapGetMapInfo_Request.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAMapGetMapPreview_Request.h>
#include <korva/KORVAMapInfo.h>
#include <korva/KORVAMapInfoArray.h>
#include <korva/KORVAMonitorAdd_Request.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAPageDefinition.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVAReport.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionInt.h>
#include <korva/KORVARunOptionString.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATokenProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <ostream>
#include <set>
#include <sstream>

using namespace korva::test;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

KORVAAsynchReply& resultOf(KORVAPortTypeBinding& call) {
    auto& reply = dynamic_cast<KORVAAsynchRun_Reply&>(call.getOutputMessage());
    return *reply.getResult(reply.getObjectRegistry());
}

KORVAObjectRegistryI* registryOf(KORVAPortTypeBinding& call) {
    return call.getOutputMessage().getObjectRegistry();
}

KORVAOptionArray& optionsOf(const PhpClient& php) {
    return *php.request<KORVAAsynchRun_Request>().getOptions();
}

void expectPrompt(KORVAOptionArray& options, std::size_t i, bool value) {
    auto& option = item<KORVARunOptionBoolean>(options, i);
    ASSERT_NE(option.getName(), nullptr);
    EXPECT_EQ(option.getName()->getValue(), KORVARunOptionEnum::eKORVAPrompt);
    ASSERT_NE(option.getValue(), nullptr);
    EXPECT_EQ(*option.getValue(), value);
}

}  // namespace

// ----- operations and the frame -----

TEST(PhpCallsUs, CallsAnOperationWithoutParameters) {
    const PhpClient php("no-parameters", [](KORVAPortTypeBinding& call) {
        auto& reply = dynamic_cast<KORVAMapGetMapInfo_Reply&>(call.getOutputMessage());
        KORVAObjectRegistryI* const registry = reply.getObjectRegistry();
        reply.getResult(registry)->push_back(registry->make<KORVAMapInfo>());
        reply.getResult(registry)->push_back(registry->make<KORVAMapInfo>());
    });
    EXPECT_STREQ(php.binding().getOperationName(), "getMapInfo");
    EXPECT_STREQ(php.binding().getBoundPortType().getName(), "reportService");
    EXPECT_NO_THROW(php.request<KORVAMapGetMapInfo_Request>());
    EXPECT_EQ(php.printed(),
              "result: array of 2\n"
              "  [1]: mapInfo\n"
              "  [2]: mapInfo\n");
}

TEST(PhpCallsUs, SendsARunRequestWithTheBusHeaderAndReadsOursInTheReply) {
    const PhpClient php("header", [](KORVAPortTypeBinding& call) {
        KORVAObjectRegistryI* const registry = registryOf(call);
        KORVAHalyardHeader& header = *call.getOutputMessage().getHalyardHeader(registry);
        header.getWarden(registry)->getWardenPassport(registry)->setId("MTsy");
        header.getTracking(registry)->setHopCount(3);
        resultOf(call).getStatus(registry)->setValue("conversationComplete");
    });
    EXPECT_THAT(php.envelope(), HasSubstr("<ns2:halyardHeader xsi:type=\"ns2:halyardHeader\">"));

    const KORVAHalyardHeader* const header =
        php.binding().getInputMessage().getHalyardHeader(nullptr);
    ASSERT_NE(header, nullptr);
    ASSERT_NE(header->getWarden(), nullptr);
    EXPECT_EQ(bytes(header->getWarden()->getAuthenticityToken()), std::string("\0\1\xFE\xFF", 4));
    ASSERT_EQ(header->getWarden()->getRoles().size(), 2u);
    EXPECT_STREQ(header->getWarden()->getRoles().at(1), "R&D");
    ASSERT_NE(header->getWarden()->getWardenPassport(), nullptr);
    EXPECT_STREQ(header->getWarden()->getWardenPassport()->getId(), "MTsx");
    EXPECT_FALSE(*header->getWarden()->getWardenPassport()->getIsAnonymous());
    ASSERT_NE(header->getTracking(), nullptr);
    EXPECT_EQ(*header->getTracking()->getHopCount(), 2);
    EXPECT_STREQ(header->getTracking()->getRequestContext(), "q4");

    const auto& request = php.request<KORVAAsynchRun_Request>();
    EXPECT_STREQ(request.getObjectPath()->getValue(), "/content/report");
    EXPECT_EQ(php.printed(),
              "halyardHeader: object\n"
              "  Warden: object\n"
              "    WardenPassport: object\n"
              "      id: \"MTsy\"\n"
              "    roles: array of 0\n"
              "  dispatcherTransportVars: array of 0\n"
              "  providers: array of 0\n"
              "  tracking: object\n"
              "    hopCount: 3\n"
              "    providers: array of 0\n"
              "  userPreferenceVars: array of 0\n"
              "result: asynchReply\n"
              "  details: array of 0\n"
              "  secondaryRequests: array of 0\n"
              "  status: \"conversationComplete\"\n");
}

TEST(PhpCallsUs, SendsParametersWithoutANamespaceUnderPrefixesOfItsOwn) {
    const PhpClient php("plain-run");
    EXPECT_THAT(php.envelope(), HasSubstr("<ns1:run><objectPath xsi:type=\"ns2:"));
    EXPECT_THAT(php.envelope(), Not(HasSubstr("xmlns=")));
    EXPECT_THAT(php.envelope(), Not(HasSubstr("xmlns:bus=")));
    EXPECT_STREQ(php.request<KORVAAsynchRun_Request>().getObjectPath()->getValue(),
                 "/content/report");
}

TEST(PhpCallsUs, SendsHeaderEntriesOfOthersWhichAreSkipped) {
    const PhpClient php("foreign-header");
    EXPECT_THAT(php.envelope(), HasSubstr(":trace>abc</"));
    const KORVAHalyardHeader* const header =
        php.binding().getInputMessage().getHalyardHeader(nullptr);
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(*header->getTracking()->getHopCount(), 1);
}

TEST(PhpCallsUs, SendsAHeaderWithoutTypesWhichIsReadByTheDeclaredOnes) {
    const PhpClient php("untyped-header");
    EXPECT_THAT(php.envelope(), HasSubstr("halyardHeader><tracking><hopCount>3</hopCount>"));
    const KORVAHalyardHeader* const header =
        php.binding().getInputMessage().getHalyardHeader(nullptr);
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(*header->getTracking()->getHopCount(), 3);
}

TEST(PhpCallsUs, SendsAnEnvelopeOfSoap12WhichIsRefused) {
    const PhpClient php("soap12");
    EXPECT_THAT(php.envelope(), HasSubstr("http://www.w3.org/2003/05/soap-envelope"));
    EXPECT_EQ(php.refusal(), 0xEA46D8C9u);
}

TEST(PhpCallsUs, ReadsOurFaultWithItsDetails) {
    const PhpClient php("surplus-argument");
    EXPECT_EQ(php.printed(),
              "fault: SOAP-ENV:Client: The request cannot be read.\n"
              "detail: object\n"
              "  exception: object\n"
              "    errorCode: \"0xEA4112C6\"\n"
              "    message: array of 1\n"
              "      [1]: object\n"
              "        message: \"KORVA message 0xea4112c6: run, reportService\"\n");
}

/// Answers with the fault that `fill` makes.
PhpClient::Service failWith(void (*fill)(const Maker&, KORVASOAPFault&)) {
    return [fill](KORVAPortTypeBinding&) {
        const Maker maker;
        auto* const fault = maker.make<KORVASOAPFault>();
        fault->setFaultCode("SOAP-ENV:Server");
        fault->setFaultString("It failed.");
        fill(maker, *fault);
        throw KORVASOAPFaultException(nullptr, *fault, maker.registry());
    };
}

TEST(PhpCallsUs, ReadsDocumentedDetailsOfOurFault) {
    const PhpClient php("plain-run", failWith([](const Maker& maker, KORVASOAPFault& fault) {
                            addDetails(maker, fault, sampleDetails());
                        }));
    EXPECT_EQ(php.printed(),
              "fault: SOAP-ENV:Server: It failed.\n"
              "detail: object\n"
              "  exception: array of 2\n"
              "    [1]: object\n"
              "      errorCode: \"RPT-0042\"\n"
              "      message: array of 2\n"
              "        [1]: object\n"
              "          message: \"The data source <sales> & its replica can't be reached. \"\n"
              "          nestingLevel: 0\n"
              "        [2]: object\n"
              "          message: \"Connection refused.\"\n"
              "          nestingLevel: 1\n"
              "      severity: \"error\"\n"
              "    [2]: object\n"
              "      message: array of 1\n"
              "        [1]: object\n"
              "          message: \"It was tried twice.\"\n"
              "          nestingLevel: 0\n"
              "      severity: \"warn\"\n");
}

TEST(PhpCallsUs, ReadsUndocumentedDetailsOfOurFault) {
    const PhpClient php("plain-run", failWith([](const Maker& maker, KORVASOAPFault& fault) {
                            addUndocumentedDetails(maker, fault, sampleDetails());
                        }));
    EXPECT_EQ(php.printed(),
              "fault: SOAP-ENV:Server: It failed.\n"
              "detail: object\n"
              "  exception: array of 2\n"
              "    [1]: object\n"
              "      severity: \"error\"\n"
              "      errorCode: \"RPT-0042\"\n"
              "      message: array of 2\n"
              "        [1]: object\n"
              "          messageString: "
              "\"The data source <sales> & its replica can't be reached. \"\n"
              "          nestingLevel: \"0\"\n"
              "        [2]: object\n"
              "          messageString: \"Connection refused.\"\n"
              "          nestingLevel: \"1\"\n"
              "    [2]: object\n"
              "      severity: \"warn\"\n"
              "      message: object\n"
              "        messageString: \"It was tried twice.\"\n"
              "        nestingLevel: \"0\"\n");
}

// ----- arrays -----

TEST(PhpCallsUs, SendsDerivedOptionsInAnArrayTypedByItsClass) {
    const PhpClient php("derived-options");
    EXPECT_THAT(php.envelope(), ContainsRegex("<options SOAP-ENC:arrayType=\"ns2:option\\[3]\" "
                                              "xsi:type=\"ns2:optionArray\">"));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 3u);
    expectPrompt(options, 0, false);
    KORVAStringArray& formats = item<KORVARunOptionStringArray>(options, 1).getValue();
    ASSERT_EQ(formats.size(), 2u);
    EXPECT_STREQ(formats.at(0), "PDF");
    EXPECT_STREQ(formats.at(1), "HTML");
    EXPECT_EQ(*item<KORVARunOptionInt>(options, 2).getValue(), 5);
}

TEST(PhpCallsUs, SendsDerivedOptionsInAnArrayTypedBySoap) {
    const PhpClient php("derived-options-soap-array");
    EXPECT_THAT(php.envelope(), ContainsRegex("<options SOAP-ENC:arrayType=\"ns2:option\\[2]\" "
                                              "xsi:type=\"SOAP-ENC:Array\">"));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 2u);
    expectPrompt(options, 0, false);
    EXPECT_EQ(item<KORVARunOptionStringArray>(options, 1).getValue().size(), 2u);
}

TEST(PhpCallsUs, ReadsDerivedDetailsInAnArrayOfTheirBase) {
    const PhpClient php("plain-run", [](KORVAPortTypeBinding& call) {
        KORVAObjectRegistryI* const registry = registryOf(call);
        auto* const status = registry->make<KORVAAsynchDetailReportStatus>();
        status->getStatus(registry)->setValue("responseReady");
        resultOf(call).getDetails().push_back(status);
        auto* const output = registry->make<KORVAOutput>();
        output->getDataType(registry)->setValue("text/html");
        auto* const report = registry->make<KORVAReport>();
        report->getDefaultName(registry)->setValue("Q4");
        auto* const detail = registry->make<KORVAAsynchDetailReportOutput>();
        detail->getOutputObjects().push_back(output);
        detail->getOutputObjects().push_back(report);
        detail->getOutputPages().push_back("<p>1</p>");
        detail->getOutputPages().push_back("<p>2</p>");
        resultOf(call).getDetails().push_back(detail);
    });
    EXPECT_EQ(php.printed(),
              "result: asynchReply\n"
              "  details: array of 2\n"
              "    [1]: asynchDetailReportStatus\n"
              "      status: \"responseReady\"\n"
              "    [2]: asynchDetailReportOutput\n"
              "      outputObjects: array of 2\n"
              "        [1]: output\n"
              "          dataType: object\n"
              "            value: \"text/html\"\n"
              "        [2]: report\n"
              "          defaultName: object\n"
              "            value: \"Q4\"\n"
              "      outputPages: array of 2\n"
              "        [1]: \"<p>1</p>\"\n"
              "        [2]: \"<p>2</p>\"\n"
              "  secondaryRequests: array of 0\n");
}

TEST(PhpCallsUs, SendsEmptyArrays) {
    const PhpClient php("plain-run");
    EXPECT_THAT(php.envelope(), HasSubstr("[0]\""));
    const auto& request = php.request<KORVAAsynchRun_Request>();
    ASSERT_NE(request.getOptions(), nullptr);
    EXPECT_EQ(request.getOptions()->size(), 0u);
    ASSERT_NE(request.getParameterValues(), nullptr);
    EXPECT_EQ(request.getParameterValues()->size(), 0u);
}

TEST(PhpCallsUs, ReadsEmptyAndNullArraysAsEmptyOnes) {
    const PhpClient empty("no-parameters", [](KORVAPortTypeBinding& call) {
        auto& reply = dynamic_cast<KORVAMapGetMapInfo_Reply&>(call.getOutputMessage());
        reply.getResult(reply.getObjectRegistry());
    });
    EXPECT_EQ(empty.printed(), "result: array of 0\n");
    const PhpClient null("no-parameters");
    EXPECT_EQ(null.printed(), "result: array of 0\n");
}

TEST(PhpCallsUs, NamesTheItemsOfAnArrayAsItLikes) {
    const PhpClient php("literal");
    EXPECT_THAT(php.envelope(), HasSubstr("<SOAP-ENC:Struct><name>region</name>"));
    KORVAParameterValueArray& values = *php.request<KORVAAsynchRun_Request>().getParameterValues();
    ASSERT_EQ(values.size(), 2u);
    EXPECT_STREQ(values.at(0)->getName(), "region");
    EXPECT_STREQ(values.at(1)->getName(), "year");
}

TEST(PhpCallsUs, SendsAnArrayOfNoTypeWhoseItemsHaveTheirOwn) {
    const PhpClient php("without-wsdl-mixed-array");
    EXPECT_THAT(php.envelope(), HasSubstr("SOAP-ENC:arrayType=\"xsd:ur-type[2]\""));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 2u);
    expectPrompt(options, 0, true);
    EXPECT_EQ(*item<KORVARunOptionInt>(options, 1).getValue(), 3);
}

TEST(PhpCallsUs, SendsAnArrayTypedByItsLeavesWhichIsRefused) {
    const PhpClient php("without-wsdl-array-of-one-type");
    EXPECT_THAT(php.envelope(), HasSubstr("SOAP-ENC:arrayType=\"ns2:runOptionBoolean[1]\""));
    EXPECT_EQ(php.refusal(), 0xEA48385Cu);
}

TEST(PhpCallsUs, SendsAMapForAnArrayWhoseItemsAreThenReadByTheDeclaredType) {
    const PhpClient php("without-wsdl-map");
    EXPECT_THAT(php.envelope(), HasSubstr(":Map\"><item><key "));
    KORVAParameterValueArray& values = *php.request<KORVAAsynchRun_Request>().getParameterValues();
    ASSERT_EQ(values.size(), 1u);
    EXPECT_EQ(values.at(0)->getName(), nullptr);
}

TEST(PhpCallsUs, SendsItemsOfAnAbstractClassWithoutTypesWhichAreRefused) {
    const PhpClient php("literal-abstract-items");
    EXPECT_EQ(php.refusal(), 0xEA47EC7Bu);
}

// ----- nulls -----

TEST(PhpCallsUs, SendsNullParameters) {
    const PhpClient php("null-parameters");
    EXPECT_THAT(php.envelope(), HasSubstr("<options xsi:nil=\"true\" xsi:type="));
    const auto& request = php.request<KORVAAsynchRun_Request>();
    EXPECT_EQ(request.getObjectPath(), nullptr);
    EXPECT_EQ(request.getParameterValues(), nullptr);
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(PhpCallsUs, ReadsANullResult) {
    const PhpClient php("plain-run");
    EXPECT_EQ(php.printed(), "result: null\n");
}

TEST(PhpCallsUs, SendsNullFieldsThatStayUnsetAndNullItemsThatAreLeftOut) {
    const PhpClient php("null-fields-and-items");
    EXPECT_THAT(php.envelope(), HasSubstr("[2]\""));
    EXPECT_THAT(php.envelope(), HasSubstr("<item xsi:nil=\"true\""));
    EXPECT_THAT(php.envelope(), HasSubstr("<value xsi:nil=\"true\"/>"));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 1u);
    EXPECT_EQ(item<KORVARunOptionBoolean>(options, 0).getValue(), nullptr);
}

TEST(PhpCallsUs, SendsANullArrayTypedBySoapWhichIsRefused) {
    const PhpClient php("null-soap-array");
    EXPECT_THAT(php.envelope(),
                HasSubstr("<parameterValues xsi:nil=\"true\" xsi:type=\"SOAP-ENC:Array\"/>"));
    EXPECT_EQ(php.refusal(), 0xEA4BA852u);
}

// ----- plain values -----

TEST(PhpCallsUs, SendsTextThatNeedsEscapingAndTextBeyondAscii) {
    const PhpClient php("report-texts");
    const auto& request = php.request<KORVAAsynchRun_Request>();
    EXPECT_STREQ(request.getObjectPath()->getValue(), anyText);
    KORVAOptionArray& options = *request.getOptions();
    ASSERT_EQ(options.size(), 2u);
    EXPECT_STREQ(item<KORVARunOptionString>(options, 0).getValue(), "");
    EXPECT_STREQ(item<KORVARunOptionString>(options, 1).getValue(), "  two\nlines  ");
}

TEST(PhpCallsUs, ReadsTextThatNeedsEscapingAndTextBeyondAscii) {
    const PhpClient php("plain-run", [](KORVAPortTypeBinding& call) {
        auto* const detail = registryOf(call)->make<KORVAAsynchDetailReportOutput>();
        detail->getOutputPages().push_back(anyText);
        detail->getOutputPages().push_back("");
        detail->getOutputPages().push_back("  two\nlines  ");
        resultOf(call).getDetails().push_back(detail);
    });
    EXPECT_THAT(php.printed(),
                HasSubstr("      outputPages: array of 3\n"
                          "        [1]: \"a<b> & \\\"c\\\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 "
                          "\U0001F600\\ttab\"\n"
                          "        [2]: \"\"\n"
                          "        [3]: \"  two\\nlines  \"\n"));
}

TEST(PhpCallsUs, SendsTextThatItKeepsInAnotherEncoding) {
    const PhpClient php("latin1-texts");
    EXPECT_STREQ(php.request<KORVAAsynchRun_Request>().getObjectPath()->getValue(), "caf\u00e9");
}

TEST(PhpCallsUs, SendsABooleanParameter) {
    const PhpClient php("boolean");
    const auto& request = php.request<KORVADispatcherStopService_Request>();
    ASSERT_NE(request.getImmediately(), nullptr);
    EXPECT_TRUE(*request.getImmediately());
}

TEST(PhpCallsUs, ReadsBooleans) {
    const PhpClient php("plain-run", [](KORVAPortTypeBinding& call) {
        for (const bool value : {true, false}) {
            auto* const option = registryOf(call)->make<KORVARunOptionBoolean>();
            option->setValue(value);
            resultOf(call).getPrimaryRequest(registryOf(call))->getOptions().push_back(option);
        }
    });
    EXPECT_THAT(php.answer(), HasSubstr("<bus:value xsi:type=\"xs:boolean\">true</bus:value>"));
    EXPECT_THAT(php.printed(), HasSubstr("value: true\n"));
    EXPECT_THAT(php.printed(), HasSubstr("value: false\n"));
}

TEST(PhpCallsUs, SendsIntegersAndDecimals) {
    const PhpClient php("numbers");
    EXPECT_THAT(php.envelope(), HasSubstr("<value xsi:type=\"xsd:decimal\">2.50 </value>"));
    const auto& request = php.request<KORVAMonitorAdd_Request>();
    EXPECT_STREQ(request.getEventID(), "event");
    const auto& page = item<KORVAPageDefinition>(*request.getObjects(), 0);
    EXPECT_EQ(*page.getHeight()->getValue(), 1.5f);
    EXPECT_EQ(*page.getWidth()->getValue(), 2.5f);
    EXPECT_EQ(*item<KORVARunOptionInt>(*request.getOptions(), 0).getValue(), -2147483647 - 1);
}

TEST(PhpCallsUs, ReadsIntegersAndDecimalsWithTheirTrailingBlank) {
    const PhpClient php("plain-run", [](KORVAPortTypeBinding& call) {
        KORVAObjectRegistryI* const registry = registryOf(call);
        auto* const page = registry->make<KORVAPageDefinition>();
        page->getHeight(registry)->setValue(1.5f);
        page->getWidth(registry)->setValue(-0.25f);
        auto* const output = registry->make<KORVAAsynchDetailReportOutput>();
        output->getOutputObjects().push_back(page);
        auto* const attachment = registry->make<KORVAAsynchDetailMIMEAttachment>();
        attachment->setDataSize(2147483647);
        resultOf(call).getDetails().push_back(output);
        resultOf(call).getDetails().push_back(attachment);
    });
    EXPECT_THAT(php.printed(), HasSubstr("          height: object\n"
                                         "            value: \"1.50\"\n"
                                         "          width: object\n"
                                         "            value: \"-0.25\"\n"));
    EXPECT_THAT(php.answer(), HasSubstr("<bus:value xsi:type=\"xs:decimal\">1.50 </bus:value>"));
    EXPECT_THAT(php.printed(), HasSubstr("      dataSize: 2147483647\n"));
}

TEST(PhpCallsUs, SendsBase64) {
    const PhpClient php("base64");
    EXPECT_THAT(php.envelope(), HasSubstr("xsi:type=\"xsd:base64Binary\">AAH+/2FiYw==<"));
    const auto& graphic =
        item<KORVAGraphic>(*php.request<KORVAMonitorAdd_Request>().getObjects(), 0);
    EXPECT_EQ(bytes(graphic.getData()->getValue()), someBytes);
}

TEST(PhpCallsUs, ReadsBase64) {
    const PhpClient php("preview", [](KORVAPortTypeBinding& call) {
        auto& reply = dynamic_cast<KORVAMapGetMapPreview_Reply&>(call.getOutputMessage());
        reply.setResult(makeBinary(reply.getObjectRegistry(), someBytes));
    });
    EXPECT_STREQ(php.request<KORVAMapGetMapPreview_Request>().getId(), "map-1");
    EXPECT_EQ(php.printed(), "result: hex 0001feff616263\n");
}

// ----- what does not fit -----

TEST(PhpCallsUs, SendsUnknownElementsWhichAreSkipped) {
    const PhpClient php("raw-unknown-element");
    EXPECT_THAT(php.envelope(), HasSubstr("<u:news xmlns:u="));
    EXPECT_THAT(php.envelope(), HasSubstr("<more xsi:type=\"SOAP-ENC:Struct\">"));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 2u);
    expectPrompt(options, 0, true);
}

TEST(PhpCallsUs, SendsRawXmlWithUnknownElementsAndAnItemNameOfItsOwn) {
    const PhpClient php("raw-option-with-unknown-elements");
    EXPECT_THAT(php.envelope(), HasSubstr("<choice xmlns:b="));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 1u);
    expectPrompt(options, 0, true);
}

TEST(PhpCallsUs, SendsAnUnknownParameterWhichIsRefused) {
    EXPECT_EQ(PhpClient("raw-parameter").refusal(), 0xEA4112C6u);
    EXPECT_EQ(PhpClient("surplus-argument").refusal(), 0xEA4112C6u);
}

TEST(PhpCallsUs, SendsATypeOfAnotherVersionWhichIsRefused) {
    EXPECT_EQ(PhpClient("type-of-another-version").refusal(), 0xEA48385Cu);
}

TEST(PhpCallsUs, SendsAPlainTypeThatTheSchemaDoesNotUseWhichIsRefused) {
    const PhpClient php("long-typed-int");
    EXPECT_THAT(php.envelope(), HasSubstr("<value xsi:type=\"xsd:long\">3</value>"));
    EXPECT_EQ(php.refusal(), 0xEA48385Cu);
}

TEST(PhpCallsUs, SendsAnIntegerTypedOtherwiseThanDeclaredWhichIsRead) {
    const PhpClient php("integer-typed-int");
    EXPECT_THAT(php.envelope(), HasSubstr("<value xsi:type=\"xsd:integer\">3</value>"));
    EXPECT_EQ(*item<KORVARunOptionInt>(optionsOf(php), 0).getValue(), 3);
}

TEST(PhpCallsUs, SendsAPlainTextForAWordOfAnEnumerationWhichIsRefused) {
    const PhpClient php("without-wsdl-text-for-enum");
    EXPECT_THAT(php.envelope(), HasSubstr("<name xsi:type=\"xsd:string\">prompt</name>"));
    EXPECT_EQ(php.refusal(), 0xEA487D84u);
}

TEST(PhpCallsUs, SendsATextForAnObjectWhichIsRefused) {
    const PhpClient php("without-wsdl-text-for-object");
    EXPECT_THAT(php.envelope(), HasSubstr("<objectPath xsi:type=\"xsd:string\">"));
    EXPECT_EQ(php.refusal(), 0xEA487D84u);
}

TEST(PhpCallsUs, SendsAStructWithoutAClassWhichIsRefused) {
    const PhpClient php("without-wsdl-struct");
    EXPECT_THAT(php.envelope(), HasSubstr("<objectPath xsi:type=\"SOAP-ENC:Struct\">"));
    EXPECT_EQ(php.refusal(), 0xEA4BA852u);
}

TEST(PhpCallsUs, SendsASharedObjectByReferenceWhichIsRefusedWhereItsClassIsNotTold) {
    const PhpClient php("shared-object");
    EXPECT_THAT(php.envelope(), HasSubstr("id=\"ref1\""));
    EXPECT_THAT(php.envelope(), HasSubstr("<item href=\"#ref1\"/>"));
    EXPECT_EQ(php.refusal(), 0xEA47EC7Bu);
}

TEST(PhpCallsUs, SendsASharedObjectByReferenceWhichIsReadAsAnEmptyOneOfItsClass) {
    const PhpClient php("shared-typed-object");
    EXPECT_THAT(php.envelope(),
                HasSubstr("<item href=\"#ref1\" xsi:type=\"ns2:runOptionBoolean\"/>"));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 2u);
    expectPrompt(options, 0, true);
    EXPECT_EQ(item<KORVARunOptionBoolean>(options, 1).getName(), nullptr);
    EXPECT_EQ(item<KORVARunOptionBoolean>(options, 1).getValue(), nullptr);
}

TEST(PhpCallsUs, SendsEqualObjectsInPlace) {
    const PhpClient php("equal-objects");
    EXPECT_THAT(php.envelope(), Not(HasSubstr("href")));
    KORVAOptionArray& options = optionsOf(php);
    ASSERT_EQ(options.size(), 2u);
    expectPrompt(options, 0, true);
    expectPrompt(options, 1, true);
}

// ----- every operation of every service -----

struct ServiceFile {
    const char* name;        ///< of the WSDL
    const char* portType;    ///< what the port type calls itself
    std::size_t operations;  ///< with different names
};

std::ostream& operator<<(std::ostream& out, const ServiceFile& service) {
    return out << service.name;
}

class PhpCallsEveryOperation : public testing::TestWithParam<ServiceFile> {};

TEST_P(PhpCallsEveryOperation, WithTheSoapActionOfItsBinding) {
    const ServiceFile& service = GetParam();
    const PhpClient php(std::string("every-operation-of-") + service.name);
    std::istringstream printed(php.printed());
    std::set<std::string> names;
    for (const Exchange& exchange : php.exchanges()) {
        std::string name;
        ASSERT_TRUE(std::getline(printed, name));
        SCOPED_TRACE(name);
        names.insert(name);
        ASSERT_NE(exchange.binding, nullptr) << std::hex << exchange.refusal;
        EXPECT_EQ(exchange.binding->getOperationName(), name);
        EXPECT_STREQ(exchange.binding->getBoundPortType().getName(), service.portType);
        EXPECT_EQ(exchange.action, std::string("\"") + exchange.binding->getSOAPAction() + '"');
    }
    std::string rest;
    EXPECT_FALSE(std::getline(printed, rest)) << rest;
    EXPECT_EQ(names.size(), service.operations);
}

INSTANTIATE_TEST_SUITE_P(
    Services, PhpCallsEveryOperation,
    testing::Values(ServiceFile{"reportService", "reportService", 49},
                    ServiceFile{"batchReportService", "batchReportService", 49},
                    ServiceFile{"VelmoraTabulon", "VelmoraTabulonPortType", 70},
                    ServiceFile{"deliveryService", "deliveryService", 12},
                    ServiceFile{"dispatcher", "dispatcher", 8},
                    ServiceFile{"monitorService", "monitorService", 13},
                    ServiceFile{"contentManagerService", "contentManagerService", 34},
                    ServiceFile{"contentManagerCacheService", "contentManagerCacheService", 1},
                    ServiceFile{"eventManagementService", "eventManagementService", 31},
                    ServiceFile{"mobileService", "mobileService", 5}),
    [](const testing::TestParamInfo<ServiceFile>& service) { return service.param.name; });
