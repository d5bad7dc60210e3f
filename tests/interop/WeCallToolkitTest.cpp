// A client that writes and reads with the library, against the servers of other toolkits. The cases
// are those of tests/toolkits/Cases.h.
#include "tests/interop/ToolkitServer.h"
#include "tests/interop/ToolkitTest.h"
#include "tests/toolkits/Cases.h"
#include "tests/toolkits/Describe.h"

#include <gtest/gtest.h>

using namespace korva::test;

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
