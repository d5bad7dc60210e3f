// Attachments of 200 MB, from a writer to a reader at the other end of a pipe: neither holds them.
#include "tests/soap/Reading.h"

#include <brim/BRIMDescriptorInputStream.h>
#include <brim/BRIMDescriptorOutputStream.h>
#include <halyard/HALYARDTKMultipartReader.h>
#include <halyard/HALYARDTKMultipartWriter.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>
#include <korva/KORVA_Streamable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

using korva::test::Binding;
using korva::test::makeCall;

constexpr std::size_t megabyte = 1000 * 1000;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(memory_sanitizer)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif
#else
constexpr bool isSanitized = false;
#endif

/// Bytes that take about half as many when compressed, and that repeat too late to take fewer.
const std::string& block() {
    static const std::string& bytes = *[] {
        auto* const made = new std::string(megabyte + 3, '\0');
        std::uint64_t state = 1;
        for (char& byte : *made) {
            state = state * 6364136223846793005ULL + 1442695040888963407ULL;
            byte = static_cast<char>(state >> 60U);
        }
        return made;
    }();
    return bytes;
}

/// Gives `size` bytes: the block, again and again.
class Content : public BRIMInputStream {
public:
    explicit Content(std::size_t size) : m_size(size) {}

    long long read(char* buffer, std::size_t size) override {
        const std::size_t at = m_position % block().size();
        const std::size_t count = std::min({size, m_size - m_position, block().size() - at});
        std::memcpy(buffer, block().data() + at, count);
        m_position += count;
        return static_cast<long long>(count);
    }

private:
    std::size_t m_size;
    std::size_t m_position = 0;
};

/// Checks that it is written what Content gives.
class CheckingOutput : public BRIMOutputStream {
public:
    void write(const char* bytes, std::size_t length) override {
        while (length != 0) {
            const std::size_t at = size % block().size();
            const std::size_t count = std::min(length, block().size() - at);
            isSame = isSame && std::memcmp(bytes, block().data() + at, count) == 0;
            bytes += count;
            length -= count;
            size += count;
        }
    }

    bool isSame = true;
    std::size_t size = 0;
};

class CountingOutput : public BRIMOutputStream {
public:
    void write(const char*, std::size_t length) override { size += length; }

    std::size_t size = 0;
};

/// The process's highest resident size so far, in bytes.
std::size_t peak() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

/// Sends a reply with an attachment of `size` bytes through a pipe, and checks what arrives.
void send(std::size_t size, HALYARDTKMultipartWriter::Compression compression) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    BRIMDescriptorOutputStream out(ends[1], BRIMDescriptorOutputStream::eOwned);
    HALYARDTKMultipartWriter writer(out);
    Content content(size);
    std::thread sender([&] {
        const Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
        auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
        KORVAXSBase64Binary id("image", 5);
        id.setIsContentId(true);
        reply.setResult(&id);
        KORVASOAPMessageISerializer().serialize(*call, reply, writer.beginRoot());
        writer.writePart("image", "application/octet-stream", content, compression);
        writer.close();
        out.close();
    });

    BRIMDescriptorInputStream in(ends[0], BRIMDescriptorInputStream::eOwned);
    HALYARDTKMultipartReader reader(in, writer.getContentType());
    const Binding call = makeCall(KORVAMessageI::eKORVAMapGetMapPreview_Request);
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    KORVASOAPMessageIDeserializer deserializer;
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    deserializer.parse(reader.getRoot(), *call, &reply);
    EXPECT_TRUE(attachments.resolveReferences(reader, *reply.getObjectRegistry(),
                                              KORVA_SpoolingAttachmentContainer::create));
    sender.join();

    ASSERT_NE(reply.getResult(), nullptr);
    ASSERT_NE(reply.getResult()->streamable(), nullptr);
    // What arrived can be written, as it is and in an envelope, more than once.
    for (int i = 0; i < 2; ++i) {
        CheckingOutput check;
        *reply.getResult()->streamable() >> check;
        EXPECT_EQ(check.size, size);
        EXPECT_TRUE(check.isSame);
    }
    CountingOutput envelope;
    KORVASOAPMessageISerializer().serialize(*call, reply, envelope);
    EXPECT_GT(envelope.size, size / 3 * 4);
}

void expectBoundedMemory(HALYARDTKMultipartWriter::Compression compression) {
    // The first turn brings in what every turn needs.
    send(megabyte, compression);
    const std::size_t before = peak();
    send(200 * megabyte, compression);
    const std::size_t growth = peak() - before;
    testing::Test::RecordProperty("growth", static_cast<int>(growth));
    std::printf("The peak grew by %zu KB.\n", growth / 1024);
    // The instruments of a sanitizer keep what was freed.
    if (!isSanitized) {
        EXPECT_LT(growth, 16 * megabyte);
    }
}

TEST(LargeAttachment, TwoHundredMegabytesPassInBoundedMemory) {
    expectBoundedMemory(HALYARDTKMultipartWriter::ePlain);
}

TEST(LargeAttachment, TwoHundredMegabytesPassCompressedInBoundedMemory) {
    expectBoundedMemory(HALYARDTKMultipartWriter::eGzip);
}

}  // namespace
