// A client that writes and reads with the library, against the servers of other toolkits. The cases
// are those of tests/toolkits/Cases.h.
#include "tests/interop/ToolkitServer.h"
#include "tests/interop/ToolkitTest.h"
#include "tests/toolkits/Cases.h"
#include "tests/toolkits/Describe.h"

#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>

using namespace korva::test;
using testing::HasSubstr;

namespace {

class WeCallToolkit : public testing::TestWithParam<Toolkit> {
protected:
    /// Expects the request to be understood as it was meant, and the reply to be read so.
    static void expectBothRead(const std::string& name) {
        ToolkitServer server(GetParam().server, name);
        const Call call = makeCall(name);
        server.call(*call);
        EXPECT_EQ(server.understood(), GetParam().understandsRequest(name));
        EXPECT_EQ(describe(call->getOutputMessage()), replyOf(name)) << server.reply().body;
    }
};

}  // namespace

TEST_P(WeCallToolkit, SendsATypedTreeWithTheHeaderAndReadsIts) {
    expectBothRead("tree");
}

TEST_P(WeCallToolkit, SendsTextThatNeedsEscapingAndTextBeyondAscii) {
    expectBothRead("texts");
}

TEST_P(WeCallToolkit, SendsTextsWithoutCharacters) {
    expectBothRead("empty-text");
}

TEST_P(WeCallToolkit, SendsEmptyArraysAndReadsThem) {
    expectBothRead("empty");
}

TEST_P(WeCallToolkit, SendsNullParametersAndReadsANullResult) {
    expectBothRead("nulls");
}

TEST_P(WeCallToolkit, LeavesNullItemsOutOnBothSides) {
    expectBothRead("null-items");
}

TEST_P(WeCallToolkit, LeavesOutWhatHasNoValue) {
    expectBothRead("omitted");
}

TEST_P(WeCallToolkit, SendsAnObjectThatOccursTwiceInBothPlaces) {
    expectBothRead("shared");
}

TEST_P(WeCallToolkit, ReadsANumber) {
    expectBothRead("trigger");
}

INSTANTIATE_TEST_SUITE_P(Toolkits, WeCallToolkit, testing::ValuesIn(toolkits()), toolkitName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(WeCallToolkit);

#ifdef KORVA_TEST_GSOAP

// Without SOAP_XML_TREE for its output.
TEST(WeCallGSoap, RefusesReferencesToAnObjectOfItsAbstractBase) {
    ToolkitServer server(toolkits().back().server, "shared-by-reference");
    const Call call = makeCall("empty");
    try {
        server.call(*call);
        ADD_FAILURE() << "the reply was read";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.number(), 0xEA47EC7Bu);
    }
    EXPECT_THAT(server.reply().body, HasSubstr("<item href=\"#_"));
}

TEST(WeCallGSoap, ReadsItsFaultWithDetailsInTheUndocumentedForm) {
    ToolkitServer server(toolkits().back().server, "fault");
    const Call call = makeCall("empty");
    try {
        server.call(*call);
        ADD_FAILURE() << "there was no fault";
    } catch (const KORVASOAPFaultException& exception) {
        const KORVASOAPFault& fault = exception.getSOAPFault();
        EXPECT_STREQ(fault.getFaultCode(), "SOAP-ENV:Server");
        EXPECT_STREQ(fault.getFaultString(), "not today");
        ASSERT_NE(fault.getUndocumentedDetail(), nullptr);
        ASSERT_EQ(fault.getUndocumentedDetail()->size(), 1u);
        EXPECT_STREQ(fault.getUndocumentedDetail()->at(0)->getErrorCodeString(), "RPT-1");
    }
    EXPECT_EQ(server.reply().status, 500);
}

#endif
