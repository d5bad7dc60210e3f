// Whole envelopes, byte for byte as the files of tests/data/envelopes have them.
#include "tests/soap/SampleMessages.h"
#include "tests/support/Golden.h"
#include "tests/support/TestStreams.h"

#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::Call;
using korva::test::CollectingStream;
using korva::test::fillHeader;
using korva::test::goldenEnvelope;
using korva::test::makeActivateCall;
using korva::test::makeRunCall;

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
    EXPECT_EQ(written(*call, call->getInputMessage()), goldenEnvelope("request-without-header"));
}

TEST(EnvelopeGolden, RequestWithHeader) {
    const Call call = makeRunCall();
    fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    EXPECT_EQ(written(*call, call->getInputMessage()), goldenEnvelope("request-with-header"));
}

TEST(EnvelopeGolden, RequestWithNullParameters) {
    const Call call = makeRunCall();
    EXPECT_EQ(written(*call, call->getInputMessage()),
              goldenEnvelope("request-with-null-parameters"));
}

TEST(EnvelopeGolden, RequestWithNullElements) {
    const Call call = makeRunCall();
    fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    EXPECT_EQ(written(*call, call->getInputMessage(), true),
              goldenEnvelope("request-with-null-elements"));
}

TEST(EnvelopeGolden, RequestWithoutXmlDeclaration) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(written(*call, call->getInputMessage(), false, false),
              goldenEnvelope("request-without-xml-declaration"));
}

TEST(EnvelopeGolden, RequestWithoutOperation) {
    const Call call = makeActivateCall("abc");
    const Call nameless = KORVAPortTypeBinding::create(
        "", "", "", call->getBoundPortType(), call->getInputMessage(), call->getOutputMessage());
    EXPECT_EQ(written(*nameless, nameless->getInputMessage()),
              goldenEnvelope("request-without-operation"));
}

TEST(EnvelopeGolden, RequestWithMarkup) {
    const Call call = makeActivateCall("<a href=\"x\">&amp; 'b'\r\n\tc</a>");
    EXPECT_EQ(written(*call, call->getInputMessage()), goldenEnvelope("request-with-markup"));
}

TEST(EnvelopeGolden, RequestBeyondAscii) {
    const Call call = makeActivateCall(
        "Gr\xC3\xB6\xC3\x9F"
        "e \xE2\x82\xAC \xE6\x97\xA5\xE6\x9C\xAC "
        "\xF0\x9F\x98\x80");
    EXPECT_EQ(written(*call, call->getInputMessage()), goldenEnvelope("request-beyond-ascii"));
}

TEST(EnvelopeGolden, ReplyWithoutParameters) {
    const Call call = makeActivateCall("abc");
    EXPECT_EQ(written(*call, call->getOutputMessage()), goldenEnvelope("reply-without-parameters"));
}

TEST(EnvelopeGolden, ReplyWithDetails) {
    const Call call = makeRunCall();
    korva::test::fillRunReply(call->getOutputMessage());
    EXPECT_EQ(written(*call, call->getOutputMessage()), goldenEnvelope("reply-with-details"));
}

TEST(EnvelopeGolden, ReplyWithAttachment) {
    const Call call = KORVAReportServicePortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAMapGetMapPreview_Request);
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    auto* const image = reply.getObjectRegistry()->make<KORVAXSBase64Binary>("part-1@host", 11);
    image->setIsContentId(true);
    reply.setResult(image);
    EXPECT_EQ(written(*call, reply), goldenEnvelope("reply-with-attachment"));
}

}  // namespace
