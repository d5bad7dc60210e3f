// The clients of other toolkits against a server that reads and writes with the library. The cases
// are those of tests/toolkits/Cases.h.
#include "tests/interop/Objects.h"
#include "tests/interop/ToolkitClient.h"
#include "tests/interop/ToolkitTest.h"
#include "tests/support/SampleFaults.h"
#include "tests/toolkits/Cases.h"
#include "tests/toolkits/Describe.h"

#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>

using namespace korva::test;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class ToolkitCallsUs : public testing::TestWithParam<Toolkit> {
protected:
    /// Runs a case, to which the server answers as the case says.
    static ToolkitClient run(const std::string& name) {
        return {GetParam().client, name,
                [name](KORVAPortTypeBinding& call) { fillReply(name, call); }};
    }

    /// Runs the case "fault", to which the server answers with the fault that `fill` makes.
    static ToolkitClient fail(void (*fill)(const Maker&, KORVASOAPFault&)) {
        return {GetParam().client, "fault", [fill](KORVAPortTypeBinding&) {
                    const Maker maker;
                    auto* const fault = maker.make<KORVASOAPFault>();
                    fault->setFaultCode("SOAP-ENV:Server");
                    fault->setFaultString("It failed.");
                    fill(maker, *fault);
                    throw KORVASOAPFaultException(nullptr, *fault, maker.registry());
                }};
    }

    /// Expects the request to be read as it was meant, and the reply to be understood so.
    static void expectBothRead(const std::string& name) {
        const ToolkitClient client = run(name);
        EXPECT_EQ(describe(client.binding().getInputMessage()), GetParam().sends(name))
            << client.envelope();
        EXPECT_EQ(client.printed(), GetParam().understandsReply(name)) << client.answer();
    }
};

}  // namespace

TEST_P(ToolkitCallsUs, SendsATypedTreeWithTheHeaderAndReadsOurs) {
    expectBothRead("tree");
}

TEST_P(ToolkitCallsUs, SendsTextThatNeedsEscapingAndTextBeyondAscii) {
    expectBothRead("texts");
}

TEST_P(ToolkitCallsUs, SendsTextsWithoutCharacters) {
    expectBothRead("empty-text");
}

TEST_P(ToolkitCallsUs, SendsEmptyArraysAndReadsThem) {
    expectBothRead("empty");
}

TEST_P(ToolkitCallsUs, SendsNullParametersAndReadsANullResult) {
    expectBothRead("nulls");
}

TEST_P(ToolkitCallsUs, SendsNullItemsThatAreLeftOut) {
    EXPECT_THAT(run("null-items").envelope(), HasSubstr(GetParam().nullItem));
    expectBothRead("null-items");
}

TEST_P(ToolkitCallsUs, LeavesOutWhatHasNoValue) {
    EXPECT_THAT(run("omitted").envelope(), Not(HasSubstr("nil=")));
    expectBothRead("omitted");
}

TEST_P(ToolkitCallsUs, SendsAnObjectThatOccursTwiceInBothPlaces) {
    expectBothRead("shared");
}

TEST_P(ToolkitCallsUs, ReadsANumber) {
    expectBothRead("trigger");
    EXPECT_THAT(run("trigger").exchange().action, HasSubstr("/eventManagementService/"));
}

TEST_P(ToolkitCallsUs, ReadsDocumentedDetailsOfOurFault) {
    const ToolkitClient client = fail([](const Maker& maker, KORVASOAPFault& fault) {
        addDetails(maker, fault, sampleDetails());
    });
    EXPECT_THAT(client.printed(), StartsWith("fault: SOAP-ENV:Server: It failed.\n"));
    EXPECT_THAT(client.printed(), ContainsRegex("errorCode.*[>:] ?RPT-0042"));
    EXPECT_THAT(client.printed(), ContainsRegex("message.*[>:] ?Connection refused\\."));
}

TEST_P(ToolkitCallsUs, ReadsUndocumentedDetailsOfOurFault) {
    const ToolkitClient client = fail([](const Maker& maker, KORVASOAPFault& fault) {
        addUndocumentedDetails(maker, fault, sampleDetails());
    });
    EXPECT_THAT(client.printed(), StartsWith("fault: SOAP-ENV:Server: It failed.\n"));
    EXPECT_THAT(client.printed(), ContainsRegex("errorCode.*[>:] ?RPT-0042"));
    EXPECT_THAT(client.printed(), ContainsRegex("messageString[>:] ?Connection refused\\."));
}

TEST_P(ToolkitCallsUs, ReadsAnAttachmentOfOurReply) {
    const ToolkitClient client(
        GetParam().client, "attachment",
        [](KORVAPortTypeBinding& call) { fillReply("attachment", call); }, someBytes);
    EXPECT_THAT(client.answer(), HasSubstr("href=\"cid:picture\""));
    EXPECT_EQ(client.printed(), GetParam().understandsReply("attachment"));
}

TEST_P(ToolkitCallsUs, IsToldWhyItsRequestIsRefused) {
    const ToolkitClient client = run("refused");
    EXPECT_EQ(client.refusal(), 0xEA45DC29u);
    EXPECT_THAT(client.printed(), StartsWith("fault: SOAP-ENV:Client: "));
    EXPECT_THAT(client.printed(), HasSubstr("0xEA45DC29"));
}

INSTANTIATE_TEST_SUITE_P(Toolkits, ToolkitCallsUs, testing::ValuesIn(toolkits()), toolkitName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ToolkitCallsUs);

#ifdef KORVA_TEST_GSOAP

namespace {

ToolkitClient runGSoap(const std::string& name) {
    return {toolkits().back().client, name,
            [](KORVAPortTypeBinding& call) { fillReply("empty", call); }};
}

}  // namespace

// Without SOAP_XML_TREE for its output.
TEST(GSoapCallsUs, SendsReferencesToAnObjectOfItsAbstractBaseWhichAreRefused) {
    const ToolkitClient client = runGSoap("shared-by-reference");
    EXPECT_THAT(client.envelope(), ContainsRegex("<item href=\"(#_[0-9]+)\"/><item href=\"#_"));
    EXPECT_THAT(client.envelope(), ContainsRegex("<id id=\"_[0-9]+\" xsi:type=\"bus:option\">"));
    EXPECT_EQ(client.refusal(), 0xEA47EC7Bu);
}

TEST(GSoapCallsUs, SendsReferencesThatAreReadAsObjectsWithoutFields) {
    const ToolkitClient client = runGSoap("shared-values-by-reference");
    EXPECT_THAT(client.envelope(), ContainsRegex("<item href=\"(#_[0-9]+)\"/><item href=\"#_"));
    EXPECT_THAT(client.envelope(), ContainsRegex("</ems:run><id id=\"_[0-9]+\""));
    EXPECT_EQ(describe(client.binding().getInputMessage()),
              "objectPath: \"/content/report\"\n"
              "parameterValues: array of 2\n"
              "  [1]: parameterValue\n"
              "  [2]: parameterValue\n"
              "options: array of 0\n");
}

#endif
