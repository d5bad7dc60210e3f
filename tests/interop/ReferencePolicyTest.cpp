// The references that toolkits send for an object in two places, under each policy of reading. What
// is read is what they have just sent.
#include "tests/interop/ToolkitClient.h"
#include "tests/interop/ToolkitTest.h"
#include "tests/toolkits/Describe.h"
#ifdef KORVA_TEST_PHP
#include "tests/interop/Php.h"
#endif

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAException.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVA_EnvelopeReader.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <gmock/gmock.h>
#include <string>

using namespace korva::test;
using testing::HasSubstr;

namespace {

using Policy = KORVA_ReadingPolicy;

/// What an envelope holds, or the number of the message that tells why it is refused.
std::string readAs(const std::string& envelope, const Policy& policy) {
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    KORVA_EnvelopeReader reader;
    reader.deserializer().setPolicy(policy);
    try {
        return describe(*reader.read(stream).getMessage());
    } catch (const KORVAException& error) {
        char text[32];
        std::snprintf(text, sizeof text, "refused: 0x%08X", error.getMessages()[0].getId());
        return text;
    }
}

constexpr const char* refusedStrictly = "refused: 0xEA4F0015";
constexpr const char* refusedAsAbstract = "refused: 0xEA47EC7B";

constexpr const char* twoPrompts =
    "options: array of 2\n"
    "  [1]: runOptionBoolean\n"
    "    name: \"prompt\"\n"
    "    value: true\n"
    "  [2]: runOptionBoolean\n"
    "    name: \"prompt\"\n"
    "    value: true\n";

}  // namespace

#ifdef KORVA_TEST_PHP

TEST(ReferencePolicy, OfPhpsRequestGivesTheObjectInBothPlaces) {
    for (const char* const name : {"shared-object", "shared-typed-object"}) {
        const std::string envelope = PhpClient(name).envelope();
        EXPECT_THAT(envelope, HasSubstr("href=\"#ref1\""));
        EXPECT_THAT(readAs(envelope, Policy::tolerant()), HasSubstr(twoPrompts)) << name;
        EXPECT_EQ(readAs(envelope, Policy::strict()), refusedStrictly) << name;
    }
    EXPECT_EQ(readAs(PhpClient("shared-object").envelope(), Policy::stated()), refusedAsAbstract);
}

TEST(ReferencePolicy, OfPhpsReplyGivesTheObjectInBothPlaces) {
    PhpServer server("shared-object");
    const Call call = makeCall("empty");
    EXPECT_THROW(server.call(*call), Refusal);
    const std::string& envelope = server.reply().body;
    EXPECT_THAT(envelope, HasSubstr("<item href=\"#ref1\"/>"));
    const std::string read = readAs(envelope, Policy::tolerant());
    EXPECT_THAT(read, HasSubstr("  [1]: asynchDetailReportStatus\n"));
    EXPECT_THAT(read, HasSubstr("  [2]: asynchDetailReportStatus\n"));
    EXPECT_EQ(readAs(envelope, Policy::stated()), refusedAsAbstract);
    EXPECT_EQ(readAs(envelope, Policy::strict()), refusedStrictly);
}

#endif

#ifdef KORVA_TEST_GSOAP

namespace {

std::string sentByGSoap(const std::string& name) {
    return ToolkitClient(toolkits().back().client, name,
                         [](KORVAPortTypeBinding& call) { fillReply("empty", call); })
        .envelope();
}

}  // namespace

TEST(ReferencePolicy, OfGSoapGivesTheObjectInBothPlaces) {
    const std::string envelope = sentByGSoap("shared-values-by-reference");
    EXPECT_THAT(envelope, HasSubstr("<item href=\"#_"));
    const std::string read = readAs(envelope, Policy::tolerant());
    EXPECT_THAT(read, HasSubstr("parameterValues: array of 2\n"
                                "  [1]: parameterValue\n"
                                "    name: \"region\"\n"
                                "  [2]: parameterValue\n"
                                "    name: \"region\"\n"));
    EXPECT_EQ(readAs(envelope, Policy::stated()),
              "objectPath: \"/content/report\"\n"
              "parameterValues: array of 2\n"
              "  [1]: parameterValue\n"
              "  [2]: parameterValue\n"
              "options: array of 0\n");
    EXPECT_EQ(readAs(envelope, Policy::strict()), refusedStrictly);
}

TEST(ReferencePolicy, OfGSoapCannotMakeAnObjectOfItsAbstractBase) {
    const std::string envelope = sentByGSoap("shared-by-reference");
    EXPECT_EQ(readAs(envelope, Policy::tolerant()), refusedAsAbstract);
    EXPECT_EQ(readAs(envelope, Policy::stated()), refusedAsAbstract);
    EXPECT_EQ(readAs(envelope, Policy::strict()), refusedStrictly);
}

#endif

TEST(ReferencePolicy, HasNothingToDoWhereAToolkitWritesNoReferences) {
    for (const Toolkit& toolkit : toolkits()) {
        const ToolkitClient client(toolkit.client, "shared",
                                   [](KORVAPortTypeBinding& call) { fillReply("shared", call); });
        const std::string stated = readAs(client.envelope(), Policy::stated());
        EXPECT_EQ(stated, toolkit.sends("shared")) << toolkit;
        EXPECT_EQ(readAs(client.envelope(), Policy::tolerant()), stated) << toolkit;
        EXPECT_EQ(readAs(client.envelope(), Policy::strict()), stated) << toolkit;
    }
}
