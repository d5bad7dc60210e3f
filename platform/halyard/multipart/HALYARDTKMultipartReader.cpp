#include "halyard/HALYARDTKMultipartReader.h"

#include "platform/halyard/multipart/BoundaryScanner.h"
#include "platform/halyard/multipart/Failure.h"
#include "platform/halyard/multipart/FieldValue.h"
#include "platform/halyard/multipart/PartHeaders.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMGZIPInputStream.h>
#include <brim/BRIMInputStream.h>
#include <halyard/HALYARDTKMessagePart.h>
#include <zel/ZELAscii.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELPrintable.h>

#include <optional>
#include <string>
#include <string_view>

using halyard::BoundaryScanner;
using zel::equalIgnoringCase;

namespace {

constexpr const char* readerLabel = "HALYARDTKMultipartReader";

struct Limits {
    std::size_t parts = 10'000;
    std::size_t headerBytes = 16'384;
    unsigned long long inflatedBytes = 1ULL << 30U;
    unsigned long long inflateRatio = 200;
};

/// The content of one section, as it was sent.
class SectionStream final : public BRIMInputStream {
public:
    explicit SectionStream(BoundaryScanner& scanner) noexcept : m_scanner(scanner) {}

    /// From now on the stream is at its end: the scanner goes on to what isn't its own.
    void end() noexcept { m_hasEnded = true; }
    void begin() noexcept { m_hasEnded = false; }

    long long read(char* buffer, std::size_t size) override {
        return m_hasEnded ? 0 : static_cast<long long>(m_scanner.read(buffer, size));
    }

private:
    BoundaryScanner& m_scanner;
    bool m_hasEnded = true;
};

/// Expands gzip data, within limits.
class LimitedGzip final : public BRIMInputStream {
public:
    LimitedGzip(BRIMInputStream& stream, const Limits& limits) : m_gzip(stream), m_limits(limits) {}

    long long read(char* buffer, std::size_t size) override {
        const long long count = m_gzip.read(buffer, size);
        if (m_gzip.expandedBytes() > m_limits.inflatedBytes)
            refuse("the expanded bytes of the root part", m_limits.inflatedBytes,
                   "setMaximumInflatedBytes");
        if (m_gzip.expandsBeyond(m_limits.inflateRatio))
            refuse("the ratio by which the root part expands", m_limits.inflateRatio,
                   "setMaximumInflateRatio");
        return count;
    }

private:
    [[noreturn]] static void refuse(const char* limit, unsigned long long value,
                                    const char* setter) {
        halyard::refuseLimit(limit, value, std::string(readerLabel) + "::" + setter, ZEL_LOCATION,
                             "HALYARDTKMultipartReader::getRoot");
    }

    BRIMGZIPInputStream m_gzip;
    const Limits& m_limits;
};

/// What the headers of a section say of its content.
struct ContentForm {
    bool isBase64 = false;
    bool isCompressed = false;
};

ContentForm formOf(const halyard::PartHeaders& headers) {
    ContentForm form;
    const auto refuse = [](const char* what, std::string_view value) {
        halyard::refuse(std::string(what) + " \"" + zel::printable(value) + "\" isn't supported",
                        ZEL_LOCATION, "HALYARDTKMultipartReader::formOf");
    };
    if (const char* const transfer = headers.findOnly("Content-Transfer-Encoding")) {
        form.isBase64 = equalIgnoringCase(transfer, "base64");
        if (!form.isBase64 && !equalIgnoringCase(transfer, "binary") &&
            !equalIgnoringCase(transfer, "8bit") && !equalIgnoringCase(transfer, "7bit"))
            refuse("the transfer encoding", transfer);
    }
    if (const char* const content = headers.findOnly("Content-Encoding")) {
        form.isCompressed =
            equalIgnoringCase(content, "gzip") || equalIgnoringCase(content, "x-gzip");
        if (!form.isCompressed && !equalIgnoringCase(content, "identity"))
            refuse("the content encoding", content);
    }
    return form;
}

/// The part that is out.
class Part final : public HALYARDTKMessagePart {
public:
    explicit Part(BoundaryScanner& scanner) noexcept : m_section(scanner) {}

    void begin(const char* contentId, const ContentForm& form) {
        m_contentId = contentId != nullptr && *contentId != '\0' ? contentId : nullptr;
        m_isCompressed = form.isCompressed;
        m_section.begin();
        m_decoder.reset();
        if (form.isBase64) m_decoder.emplace(m_section);
    }
    void end() noexcept { m_section.end(); }

    const char* getContentId() override { return m_contentId; }
    bool isCompressed() override { return m_isCompressed; }
    BRIMInputStream& getStream() override {
        return m_decoder ? static_cast<BRIMInputStream&>(*m_decoder) : m_section;
    }

private:
    const char* m_contentId = nullptr;
    bool m_isCompressed = false;
    SectionStream m_section;
    std::optional<BRIMBase64InputStream> m_decoder;
};

}  // namespace

struct HALYARDTKMultipartReader::Message {
    explicit Message(BRIMInputStream& source) noexcept : stream(source) {}

    /// A message of one part, whose headers are those of the transport.
    bool isSingle() const noexcept { return !scanner; }

    void open(const char* contentType);
    void openRoot();
    void readHeaders();
    void moveOn();

    BRIMInputStream& stream;
    Limits limits;
    std::optional<BoundaryScanner> scanner;
    std::string start;  ///< the root's id as the message tells it, or empty
    halyard::PartHeaders headers;
    std::string line;

    std::optional<SectionStream> section;  ///< of the root
    std::optional<BRIMBase64InputStream> decoder;
    std::optional<LimitedGzip> gzip;
    BRIMInputStream* root = nullptr;  ///< null until it was begun
    bool rootWasBegun = false;        ///< well or not

    std::optional<Part> part;
    std::size_t partCount = 0;  ///< of those given so far
    bool partIsOut = false;
    bool isAtHeaders = false;  ///< of the next part
};

void HALYARDTKMultipartReader::Message::open(const char* contentType) {
    constexpr const char* label = "HALYARDTKMultipartReader::HALYARDTKMultipartReader";
    const std::string field = halyard::unfolded(contentType != nullptr ? contentType : "");
    const std::string_view type = halyard::valueOf(field);
    if (!equalIgnoringCase(type, "multipart/related")) {
        if (equalIgnoringCase(type.substr(0, 10), "multipart/"))
            halyard::refuse("the message's type \"" + zel::printable(type) + "\" isn't supported",
                            ZEL_LOCATION, label);
        return;
    }
    const auto boundary = halyard::parameterOf(field, "boundary");
    if (!boundary || boundary->empty())
        halyard::refuse("the message's type tells no boundary", ZEL_LOCATION, label);
    if (boundary->size() > BoundaryScanner::longestBoundary ||
        halyard::hasControlCharacter(*boundary))
        halyard::refuse("the message's boundary is none", ZEL_LOCATION, label);
    if (const auto id = halyard::parameterOf(field, "start"))
        start = halyard::withoutBrackets(halyard::trimmed(*id));
    scanner.emplace(stream, *boundary);
    section.emplace(*scanner);
    part.emplace(*scanner);
}

void HALYARDTKMultipartReader::Message::openRoot() {
    if (root != nullptr) return;
    if (isSingle()) {
        root = &stream;
        return;
    }
    // No other part takes the place of a root that failed.
    if (rootWasBegun) halyard::refuse("the root part can't be read", ZEL_LOCATION, readerLabel);
    rootWasBegun = true;
    if (!scanner->next())
        halyard::refuse("the message has no root part", ZEL_LOCATION, readerLabel);
    readHeaders();
    const ContentForm form = formOf(headers);
    const char* const id = headers.findOnly("Content-ID");
    if (!start.empty() && halyard::withoutBrackets(id != nullptr ? id : "") != start)
        halyard::refuse("the root part isn't the first part", ZEL_LOCATION, readerLabel);
    section->begin();
    BRIMInputStream* content = &*section;
    if (form.isBase64) content = &decoder.emplace(*content);
    if (form.isCompressed) content = &gzip.emplace(*content, limits);
    root = content;
}

void HALYARDTKMultipartReader::Message::readHeaders() {
    headers.clear();
    std::size_t room = limits.headerBytes;
    for (;;) {
        if (!scanner->readLine(line, room))
            halyard::refuseLimit("the header bytes of a part", limits.headerBytes,
                                 "HALYARDTKMultipartReader::setMaximumHeaderBytes", ZEL_LOCATION,
                                 readerLabel);
        if (line.empty()) break;
        headers.addLine(line);
    }
    isAtHeaders = false;
    scanner->beginContent();
}

/// Skips what is left of the root or of the last part, up to the headers of the next.
void HALYARDTKMultipartReader::Message::moveOn() {
    openRoot();
    if (isSingle() || isAtHeaders || scanner->isEnded()) return;
    section->end();
    isAtHeaders = scanner->next();
}

HALYARDTKMultipartReader::HALYARDTKMultipartReader(BRIMInputStream& stream,
                                                   const char* contentType) {
    ZEL_TRY {
        m_message.reset(new Message(stream));
        m_message->open(contentType);
        return;
    }
    ZEL_CATCH("HALYARDTKMultipartReader::HALYARDTKMultipartReader");
}

HALYARDTKMultipartReader::~HALYARDTKMultipartReader() = default;

void HALYARDTKMultipartReader::setMaximumParts(std::size_t parts) {
    m_message->limits.parts = parts;
}

void HALYARDTKMultipartReader::setMaximumHeaderBytes(std::size_t bytes) {
    m_message->limits.headerBytes = bytes;
}

void HALYARDTKMultipartReader::setMaximumInflatedBytes(unsigned long long bytes) {
    m_message->limits.inflatedBytes = bytes;
}

void HALYARDTKMultipartReader::setMaximumInflateRatio(unsigned long long ratio) {
    ZEL_ASSERT(ratio > 0);
    m_message->limits.inflateRatio = ratio;
}

BRIMInputStream& HALYARDTKMultipartReader::getRoot() {
    ZEL_TRY {
        m_message->openRoot();
        return *m_message->root;
    }
    ZEL_CATCH("HALYARDTKMultipartReader::getRoot");
}

const char* HALYARDTKMultipartReader::getHeader(const char* name) const {
    ZEL_ASSERT(name);
    return m_message->headers.find(name);
}

bool HALYARDTKMultipartReader::hasAttachments() {
    return m_message->partCount != 0 || hasNextPart();
}

bool HALYARDTKMultipartReader::hasNextPart() {
    ZEL_ASSERT(!m_message->partIsOut);
    ZEL_TRY {
        m_message->moveOn();
        return m_message->isAtHeaders;
    }
    ZEL_CATCH("HALYARDTKMultipartReader::hasNextPart");
}

HALYARDTKMessagePart* HALYARDTKMultipartReader::getNextPart() {
    ZEL_ASSERT(hasNextPart());
    ZEL_TRY {
        Message& message = *m_message;
        if (message.partCount >= message.limits.parts)
            halyard::refuseLimit("the parts of a message", message.limits.parts,
                                 "HALYARDTKMultipartReader::setMaximumParts", ZEL_LOCATION,
                                 "HALYARDTKMultipartReader::getNextPart");
        message.readHeaders();
        const ContentForm form = formOf(message.headers);
        message.part->begin(message.headers.findOnly("Content-ID"), form);
        ++message.partCount;
        message.partIsOut = true;
        return &*message.part;
    }
    ZEL_CATCH("HALYARDTKMultipartReader::getNextPart");
}

void HALYARDTKMultipartReader::releasePart(HALYARDTKMessagePart* part) {
    ZEL_ASSERT(m_message->partIsOut && part == &*m_message->part);
    m_message->part->end();
    m_message->partIsOut = false;
}
