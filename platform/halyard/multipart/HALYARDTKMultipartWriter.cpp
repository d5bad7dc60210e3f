#include "halyard/HALYARDTKMultipartWriter.h"

#include "platform/halyard/multipart/Failure.h"
#include "platform/halyard/multipart/FieldValue.h"

#include <brim/BRIMCopy.h>
#include <brim/BRIMGZIPOutputStream.h>
#include <brim/BRIMInputStream.h>
#include <brim/BRIMOutputStream.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace {

/// 160 bits in hexadecimal digits.
std::string randomToken() {
    constexpr char digits[] = "0123456789abcdef";
    std::random_device source;
    std::string token;
    for (int word = 0; word < 5; ++word) {
        std::uint32_t bits = source();
        for (int digit = 0; digit < 8; ++digit, bits >>= 4U)
            token += digits[bits & 0xFU];
    }
    return token;
}

constexpr std::string_view rootType = "text/xml; charset=UTF-8";

/// Writes to the message, which closing it leaves open.
class PartStream final : public BRIMOutputStream {
public:
    explicit PartStream(BRIMOutputStream& stream) noexcept : m_stream(stream) {}

    void write(const char* bytes, std::size_t length) override { m_stream.write(bytes, length); }
    void flush() override { m_stream.flush(); }

private:
    BRIMOutputStream& m_stream;
};

}  // namespace

struct HALYARDTKMultipartWriter::Message {
    explicit Message(BRIMOutputStream& target)
        : stream(target), part(target), boundary("halyard-" + randomToken()) {
        rootId = "<root@" + boundary + '>';
        contentType = "multipart/related; type=\"text/xml\"; start=\"" + rootId +
                      "\"; boundary=\"" + boundary + '"';
    }

    void endPart();
    BRIMOutputStream& begin(std::string_view contentId, std::string_view type,
                            Compression compression);

    BRIMOutputStream& stream;
    PartStream part;
    std::optional<BRIMGZIPOutputStream> gzip;  ///< of the part that is being written
    std::string boundary;
    std::string rootId;
    std::string contentType;
    std::string head;
    bool hasRoot = false;
    bool isClosed = false;
};

void HALYARDTKMultipartWriter::Message::endPart() {
    if (!gzip) return;
    gzip->close();
    gzip.reset();
}

BRIMOutputStream& HALYARDTKMultipartWriter::Message::begin(std::string_view contentId,
                                                           std::string_view type,
                                                           Compression compression) {
    endPart();
    head = hasRoot ? "\r\n--" : "--";
    head += boundary;
    head += "\r\nContent-Type: ";
    head += type;
    head += "\r\nContent-Transfer-Encoding: binary\r\n";
    if (compression == eGzip) head += "Content-Encoding: gzip\r\n";
    if (!contentId.empty()) {
        head += "Content-ID: <";
        head += contentId;
        head += ">\r\n";
    }
    head += "\r\n";
    if (compression == eGzip) gzip.emplace(part);
    stream.write(head.data(), head.size());
    hasRoot = true;
    return gzip ? static_cast<BRIMOutputStream&>(*gzip) : part;
}

HALYARDTKMultipartWriter::HALYARDTKMultipartWriter(BRIMOutputStream& stream) {
    ZEL_TRY {
        m_message.reset(new Message(stream));
        return;
    }
    ZEL_CATCH("HALYARDTKMultipartWriter::HALYARDTKMultipartWriter");
}

HALYARDTKMultipartWriter::~HALYARDTKMultipartWriter() = default;

const char* HALYARDTKMultipartWriter::getContentType() const noexcept {
    return m_message->contentType.c_str();
}

BRIMOutputStream& HALYARDTKMultipartWriter::beginRoot() {
    ZEL_ASSERT(!m_message->hasRoot);
    ZEL_TRY {
        return m_message->begin(halyard::withoutBrackets(m_message->rootId), rootType, ePlain);
    }
    ZEL_CATCH("HALYARDTKMultipartWriter::beginRoot");
}

BRIMOutputStream& HALYARDTKMultipartWriter::beginPart(const char* contentId,
                                                      const char* contentType,
                                                      Compression compression) {
    ZEL_ASSERT(contentType);
    ZEL_ASSERT(m_message->hasRoot && !m_message->isClosed);
    ZEL_TRY {
        const std::string_view id = halyard::withoutBrackets(contentId != nullptr ? contentId : "");
        if (halyard::hasControlCharacter(id) || halyard::hasControlCharacter(contentType))
            halyard::refuse("a header would have a control character", ZEL_LOCATION,
                            "HALYARDTKMultipartWriter::beginPart");
        return m_message->begin(id, contentType, compression);
    }
    ZEL_CATCH("HALYARDTKMultipartWriter::beginPart");
}

void HALYARDTKMultipartWriter::writePart(const char* contentId, const char* contentType,
                                         BRIMInputStream& content, Compression compression) {
    BRIMOutputStream& part = beginPart(contentId, contentType, compression);
    ZEL_TRY {
        brim::copy(content, part);
        return;
    }
    ZEL_CATCH("HALYARDTKMultipartWriter::writePart");
}

void HALYARDTKMultipartWriter::close() {
    ZEL_ASSERT(m_message->hasRoot);
    if (m_message->isClosed) return;
    ZEL_TRY {
        Message& message = *m_message;
        message.endPart();
        message.head = "\r\n--" + message.boundary + "--\r\n";
        message.isClosed = true;
        message.stream.write(message.head.data(), message.head.size());
        return;
    }
    ZEL_CATCH("HALYARDTKMultipartWriter::close");
}
