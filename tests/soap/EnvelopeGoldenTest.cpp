// Whole envelopes, byte for byte as the files of tests/data/envelopes have them.
#include "tests/soap/SampleMessages.h"
#include "tests/support/TestStreams.h"

#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace {

using korva::test::Call;
using korva::test::CollectingStream;
using korva::test::fillHeader;
using korva::test::makeActivateCall;
using korva::test::makeRunCall;

/// The file, with the namespaces' authority that this build has.
std::string golden(const std::string& name) {
    const std::string path = KORVA_TEST_DATA_DIR "/envelopes/" + name + ".xml";
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << "cannot read " << path;
    std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::string authority = "http://bus.korva.example";
    const std::string ours = KORVA_TEST_AUTHORITY;
    for (std::size_t at = text.find(authority); at != std::string::npos;
         at = text.find(authority, at + ours.size()))
        text.replace(at, authority.size(), ours);
    return text;
}

std::string written(KORVAPortTypeBinding& binding, KORVAMessageI& message,
                    bool writeNullElements = false, bool writeXmlDeclaration = true) {
    KORVASOAPMessageISerializer serializer;
    serializer.setWriteNullElements(writeNullElements);
    serializer.setWriteXmlDeclaration(writeXmlDeclaration);
    CollectingStream stream;
    serializer.serialize(binding, message, stream);
    return stream.text;
}

TEST(EnvelopeGolden, RequestWithoutHeader) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(written(*call, call->getInputMessage()), golden("request-without-header"));
}

TEST(EnvelopeGolden, RequestWithHeader) {
    const Call call = makeRunCall();
    fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    EXPECT_EQ(written(*call, call->getInputMessage()), golden("request-with-header"));
}

TEST(EnvelopeGolden, RequestWithNullParameters) {
    const Call call = makeRunCall();
    EXPECT_EQ(written(*call, call->getInputMessage()), golden("request-with-null-parameters"));
}

TEST(EnvelopeGolden, RequestWithNullElements) {
    const Call call = makeRunCall();
    fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    EXPECT_EQ(written(*call, call->getInputMessage(), true), golden("request-with-null-elements"));
}

TEST(EnvelopeGolden, RequestWithoutXmlDeclaration) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(written(*call, call->getInputMessage(), false, false),
              golden("request-without-xml-declaration"));
}

TEST(EnvelopeGolden, RequestWithoutOperation) {
    const Call call = makeActivateCall("abc");
    const Call nameless = KORVAPortTypeBinding::create(
        "", "", "", call->getBoundPortType(), call->getInputMessage(), call->getOutputMessage());
    EXPECT_EQ(written(*nameless, nameless->getInputMessage()), golden("request-without-operation"));
}

TEST(EnvelopeGolden, RequestWithMarkup) {
    const Call call = makeActivateCall("<a href=\"x\">&amp; 'b'\r\n\tc</a>");
    EXPECT_EQ(written(*call, call->getInputMessage()), golden("request-with-markup"));
}

TEST(EnvelopeGolden, RequestBeyondAscii) {
    const Call call = makeActivateCall(
        "Gr\xC3\xB6\xC3\x9F"
        "e \xE2\x82\xAC \xE6\x97\xA5\xE6\x9C\xAC "
        "\xF0\x9F\x98\x80");
    EXPECT_EQ(written(*call, call->getInputMessage()), golden("request-beyond-ascii"));
}

TEST(EnvelopeGolden, ReplyWithoutParameters) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(written(*call, call->getOutputMessage()), golden("reply-without-parameters"));
}

TEST(EnvelopeGolden, ReplyWithDetails) {
    const Call call = makeRunCall();
    korva::test::fillRunReply(call->getOutputMessage());
    EXPECT_EQ(written(*call, call->getOutputMessage()), golden("reply-with-details"));
}

TEST(EnvelopeGolden, ReplyWithAttachment) {
    const Call call = KORVAReportServicePortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAMapGetMapPreview_Request);
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    auto* const image = new KORVAXSBase64Binary("part-1@host", 11);
    reply.getObjectRegistry()->registerPointer(image);
    image->setIsContentId(true);
    reply.setResult(image);
    EXPECT_EQ(written(*call, reply), golden("reply-with-attachment"));
}

}  // namespace
