// Attachments with each allocation failing in turn.
#include "tests/attachments/ScriptedReader.h"
#include "tests/soap/Reading.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/Registry.h"

#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::forEachFailingAllocation;
using korva::test::gzipped;
using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

/// A message that allocates nothing by itself.
class PlainReader : public HALYARDTKMessageReader, HALYARDTKMessagePart {
public:
    PlainReader(const char* id, const std::string& content, bool isGzip)
        : m_id(id), m_content(content), m_isGzip(isGzip), m_stream(nullptr, 0) {}

    bool hasAttachments() override { return true; }
    bool hasNextPart() override { return m_given < 2; }
    HALYARDTKMessagePart* getNextPart() override {
        ++m_given;
        std::destroy_at(&m_stream);
        std::construct_at(&m_stream, m_content.data(), m_content.size());
        ++out;
        return this;
    }
    void releasePart(HALYARDTKMessagePart*) override { --out; }

    const char* getContentId() override { return m_id; }
    bool isCompressed() override { return m_isGzip; }
    BRIMInputStream& getStream() override { return m_stream; }

    int out = 0;

private:
    const char* m_id;
    const std::string& m_content;
    bool m_isGzip;
    int m_given = 0;
    BRIMMemoryInputStream m_stream;
};

void resolve(const std::string& content, bool isGzip,
             KORVA_AttachmentHandler::ContainerFactory factory) {
    const Registry registry = makeRegistry();
    KORVAStringProp text;
    KORVABase64BinaryProp binary;
    KORVA_AttachmentHandler handler;
    const char* const id = "an-id-that-is-too-long-to-be-kept-in-place";
    handler.registerHref(id, text, "value", Object::eString, 0);
    handler.registerHref(id, binary, "value", Object::eBase64Binary, 0);
    handler.registerHref("another-id-that-is-too-long-to-be-kept-in-place", text, "value",
                         Object::eString, 0);
    PlainReader reader("<an-id-that-is-too-long-to-be-kept-in-place>", content, isGzip);
    struct Check {
        const PlainReader& reader;
        ~Check() { EXPECT_EQ(reader.out, 0); }
    } const check{reader};
    EXPECT_FALSE(handler.resolveReferences(reader, *registry, factory));
    EXPECT_EQ(handler.getReferenceCount(), 1u);
}

TEST(AttachmentAllocation, AFailureInMemoryLeavesNothingBehind) {
    const std::string content(100000, 'x');
    EXPECT_GT(forEachFailingAllocation([&] { resolve(content, false, nullptr); }), 10u);
}

TEST(AttachmentAllocation, AFailureWhileSpoolingLeavesNothingBehind) {
    const std::string content(100000, 'x');
    EXPECT_GT(forEachFailingAllocation(
                  [&] { resolve(content, false, KORVA_SpoolingAttachmentContainer::create); }),
              10u);
}

TEST(AttachmentAllocation, AFailureWhileExpandingLeavesNothingBehind) {
    const std::string content = gzipped(std::string(100000, 'x'));
    EXPECT_GT(forEachFailingAllocation(
                  [&] { resolve(content, true, KORVA_SpoolingAttachmentContainer::create); }),
              10u);
}

TEST(AttachmentAllocation, AFailureWhileTextIsWrappedLeavesNothingBehind) {
    const std::string content("\xFF\xFF\xFF\0", 4);
    EXPECT_GT(forEachFailingAllocation([&] { resolve(content, false, nullptr); }), 10u);
}

TEST(AttachmentAllocation, AReferenceIsRegisteredOrNot) {
    KORVAStringProp text;
    const std::size_t live = korva::test::liveAllocations();
    {
        KORVA_AttachmentHandler handler;
        std::size_t count = 0;
        korva::test::failEachAllocation([&] {
            try {
                handler.registerHref("a", text, "value", Object::eString, 0);
                ++count;
            } catch (const ZELOutOfMemoryError&) {
            }
            EXPECT_EQ(handler.getReferenceCount(), count);
        });
        EXPECT_EQ(count, 1u);
    }
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

TEST(AttachmentAllocation, AFailureInAnEnvelopeThatRefersLeavesNothingBehind) {
    const std::string text = korva::test::envelope(
        "<o:testDataSourceConnection xmlns:o=\"" + korva::test::busNamespace +
            "\"><connectionString href=\"cid:connection\"/><username href=\"cid:user\"/>"
            "<encryptedPassword href=\"cid:password\"/></o:testDataSourceConnection>",
        "<bus:halyardHeader xsi:type=\"bus:halyardHeader\"><Warden><authenticityToken "
        "href=\"cid:token\"/><roles><item href=\"cid:role\"/></roles></Warden>"
        "</bus:halyardHeader>");
    const std::vector<KORVAPortTypeI*> offered = {&KORVAVelmoraTabulonPortType::getInstance()};
    EXPECT_GT(forEachFailingAllocation(
                  [&] {
                      BRIMMemoryInputStream stream(text.data(), text.size());
                      KORVASOAPMessageIDeserializer deserializer;
                      KORVA_AttachmentHandler attachments;
                      deserializer.setAttachmentHandler(&attachments);
                      korva::test::Binding binding;
                      deserializer.parse(stream, offered, binding);
                      const std::string content = "x";
                      PlainReader reader("password", content, false);
                      EXPECT_FALSE(attachments.resolveReferences(
                          reader, *binding->getInputMessage().getObjectRegistry(), nullptr));
                      EXPECT_EQ(attachments.getReferenceCount(), 4u);
                  },
                  korva::test::Absorbed::Harmless),
              50u);
}

}  // namespace
