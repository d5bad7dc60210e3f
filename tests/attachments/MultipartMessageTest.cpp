// Whole messages: an envelope and its attachments, written, and read back.
#include "tests/attachments/ScriptedReader.h"
#include "tests/soap/Reading.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <halyard/HALYARDTKMultipartReader.h>
#include <halyard/HALYARDTKMultipartWriter.h>
#include <korva/KORVAActivate_Request.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::Binding;
using korva::test::makeCall;
using korva::test::PiecewiseInput;
using korva::test::textOf;
using korva::test::written;

std::string binary(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * i >> 5U);
    return bytes;
}

/// A reply that refers to the part "image".
Binding makeReply() {
    Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    auto* const image = reply.getObjectRegistry()->make<KORVAXSBase64Binary>("image", 5);
    image->setIsContentId(true);
    reply.setResult(image);
    return call;
}

TEST(MultipartMessage, AReplyAndItsAttachmentCrossTheWire) {
    for (const auto compression :
         {HALYARDTKMultipartWriter::ePlain, HALYARDTKMultipartWriter::eGzip}) {
        const std::string content = binary(300000);
        BRIMMemoryOutputStream wire;
        HALYARDTKMultipartWriter writer(wire);
        const Binding sent = makeReply();
        KORVASOAPMessageISerializer().serialize(*sent, sent->getOutputMessage(),
                                                writer.beginRoot());
        BRIMMemoryInputStream image(content.data(), content.size());
        writer.writePart("image", "image/png", image, compression);
        writer.beginPart("unused", "text/plain").write("x", 1);
        writer.close();

        PiecewiseInput in({wire.str(), wire.pcount()}, 1000);
        HALYARDTKMultipartReader reader(in, writer.getContentType());
        const Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
        auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
        KORVASOAPMessageIDeserializer deserializer;
        KORVA_AttachmentHandler attachments;
        deserializer.setAttachmentHandler(&attachments);
        deserializer.parse(reader.getRoot(), *call, &reply);
        EXPECT_EQ(attachments.getReferenceCount(), 1u);
        EXPECT_TRUE(attachments.resolveReferences(reader, *reply.getObjectRegistry(),
                                                  KORVA_SpoolingAttachmentContainer::create));
        ASSERT_NE(reply.getResult(), nullptr);
        ASSERT_NE(reply.getResult()->streamable(), nullptr);
        EXPECT_EQ(written(*reply.getResult()->streamable()), content);

        // What was read can be sent on, with the content in its place.
        BRIMMemoryOutputStream again;
        KORVASOAPMessageISerializer().serialize(*call, reply, again);
        const Binding copy = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
        korva::test::readReply(*copy, {again.str(), again.pcount()});
        const KORVAXSBase64Binary& inPlace =
            *static_cast<KORVAMapGetMapPreview_Reply&>(copy->getOutputMessage()).getResult();
        EXPECT_EQ(std::string(inPlace.str(), inPlace.pcount()), content);
    }
}

TEST(MultipartMessage, ATextCrossesTheWireAsAnAttachment) {
    KORVA_CharStreamable id;
    id.initialize("uri", false);
    id.setIsContentId(true);
    const KORVAPortTypeI& service = KORVAVelmoraTabulonPortType::getInstance();
    const Binding sent = service.createPortTypeBinding(KORVAMessageI::eKORVAActivate_Request);
    static_cast<KORVAActivate_Request&>(sent->getInputMessage())
        .setContentManagerURI(id.asCharStar());
    BRIMMemoryOutputStream wire;
    HALYARDTKMultipartWriter writer(wire);
    KORVASOAPMessageISerializer().serialize(*sent, sent->getInputMessage(), writer.beginRoot());
    const std::string content = "http://a/b?c=<d>&e\r\n--halyard\r\n";
    writer.beginPart("uri", "text/plain").write(content.data(), content.size());
    writer.close();

    BRIMMemoryInputStream in(wire.str(), wire.pcount());
    HALYARDTKMultipartReader reader(in, writer.getContentType());
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    Binding binding;
    deserializer.parse(reader.getRoot(), {&KORVAVelmoraTabulonPortType::getInstance()}, binding);
    auto& request = static_cast<KORVAActivate_Request&>(binding->getInputMessage());
    EXPECT_TRUE(attachments.resolveReferences(reader, *request.getObjectRegistry(), nullptr));
    EXPECT_EQ(textOf(request.getContentManagerURI()), "streamed:" + content);
}

TEST(MultipartMessage, AMessageThatIsCutShortIsToldAndResolvesNothing) {
    const Binding sent = makeReply();
    BRIMMemoryOutputStream wire;
    HALYARDTKMultipartWriter writer(wire);
    KORVASOAPMessageISerializer().serialize(*sent, sent->getOutputMessage(), writer.beginRoot());
    writer.beginPart("image", "image/png").write("image", 5);
    // No close.
    BRIMMemoryInputStream in(wire.str(), wire.pcount());
    HALYARDTKMultipartReader reader(in, writer.getContentType());
    const Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    deserializer.parse(reader.getRoot(), *call, &reply);
    EXPECT_EQ(korva::test::streamErrorOf([&] {
                  attachments.resolveReferences(reader, *reply.getObjectRegistry(), nullptr);
              }),
              "multipart: the message is cut short");
    EXPECT_EQ(reply.getResult()->pcount(), 0u);
    EXPECT_EQ(attachments.getReferenceCount(), 1u);
}

TEST(MultipartMessage, AnEnvelopeAloneHasNoAttachments) {
    const Binding sent = makeReply();
    BRIMMemoryOutputStream wire;
    KORVASOAPMessageISerializer().serialize(*sent, sent->getOutputMessage(), wire);
    BRIMMemoryInputStream in(wire.str(), wire.pcount());
    HALYARDTKMultipartReader reader(in, "text/xml; charset=UTF-8");
    const Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    deserializer.parse(reader.getRoot(), *call, &call->getOutputMessage());
    EXPECT_FALSE(attachments.resolveReferences(
        reader, *call->getOutputMessage().getObjectRegistry(), nullptr));
}

}  // namespace
