#include "korva/KORVA_SpoolingAttachmentContainer.h"

#include <brim/BRIMOutputStream.h>
#include <brim/BRIMTemporaryFile.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <optional>
#include <vector>

namespace {

/// What the containers that share a file hold between them.
struct Spool {
    std::optional<BRIMTemporaryFile> file;
    std::size_t inMemory = 0;  ///< bytes of finished containers
};

/// Bytes of one container that stand together in the file.
struct Extent {
    unsigned long long position;  ///< in the content
    unsigned long long offset;    ///< in the file
    unsigned long long length;
};

}  // namespace

/// The bytes: those in the file, if there are any, then those in memory.
class KORVA_SpoolingAttachmentContainer::Content final : public KORVA_Streamable {
public:
    explicit Content(std::size_t threshold)
        : m_threshold(threshold), m_spool(std::make_shared<Spool>()) {}
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    ~Content() override { forgetMemory(); }

    void append(const char* bytes, std::size_t length);
    void shareFile(const Content& other);
    void finish(std::size_t mostInMemory);
    unsigned long long size() const noexcept { return fileSize() + m_rest.pcount(); }
    bool hasFile() const noexcept { return !m_extents.empty(); }

    long long read(char* buffer, std::size_t size) override {
        const std::size_t count = readAt(m_position, buffer, size);
        m_position += count;
        return static_cast<long long>(count);
    }

    BRIMOutputStream& operator>>(BRIMOutputStream& out) const override;

    bool rewind() noexcept override {
        m_position = 0;
        return true;
    }

private:
    unsigned long long fileSize() const noexcept {
        return m_extents.empty() ? 0 : m_extents.back().position + m_extents.back().length;
    }
    void appendToFile(const char* bytes, std::size_t length);
    void forgetMemory() noexcept;
    std::size_t readAt(unsigned long long position, char* buffer, std::size_t size) const;

    std::size_t m_threshold;
    std::shared_ptr<Spool> m_spool;
    std::vector<Extent> m_extents;  ///< in the order of the content, without gaps
    ZELByteBuffer m_rest{ZELByteBuffer::eGrowGeometric, 256};
    std::size_t m_counted = 0;          ///< bytes of `m_rest` that the spool knows of
    unsigned long long m_position = 0;  ///< of `read`
};

void KORVA_SpoolingAttachmentContainer::Content::append(const char* bytes, std::size_t length) {
    forgetMemory();
    if (length > m_threshold - m_rest.pcount()) {
        appendToFile(m_rest.str(), m_rest.pcount());
        m_rest.reset();
        // The file is written in large pieces, those of the caller or our own.
        if (length >= m_threshold) {
            appendToFile(bytes, length);
            return;
        }
        if (m_rest.capacity() < m_threshold) m_rest.reserve(m_threshold);
    }
    // Grows to the threshold, and never beyond.
    const std::size_t needed = m_rest.pcount() + length;
    if (needed > m_rest.capacity() && needed > m_threshold / 2) m_rest.reserve(m_threshold);
    m_rest.appendChars(bytes, length);
}

void KORVA_SpoolingAttachmentContainer::Content::appendToFile(const char* bytes,
                                                              std::size_t length) {
    if (!m_spool->file) m_spool->file.emplace();
    BRIMTemporaryFile& file = *m_spool->file;
    // Another container may have written meanwhile.
    if (m_extents.empty() || m_extents.back().offset + m_extents.back().length != file.size())
        m_extents.push_back({fileSize(), file.size(), 0});
    file.append(bytes, length);
    m_extents.back().length += length;
}

void KORVA_SpoolingAttachmentContainer::Content::shareFile(const Content& other) {
    ZEL_ASSERT(m_extents.empty());
    forgetMemory();
    m_spool = other.m_spool;
}

/// Says that no more is to come: what would be too much in memory, with all that others have there,
/// goes to the file, and so does what is behind other bytes there.
void KORVA_SpoolingAttachmentContainer::Content::finish(std::size_t mostInMemory) {
    forgetMemory();
    if (m_rest.pcount() == 0) return;
    if (hasFile() || m_rest.pcount() > mostInMemory - std::min(mostInMemory, m_spool->inMemory)) {
        appendToFile(m_rest.str(), m_rest.pcount());
        m_rest.reset();
    }
    m_rest.shrinkToFit();
    m_counted = m_rest.pcount();
    m_spool->inMemory += m_counted;
}

void KORVA_SpoolingAttachmentContainer::Content::forgetMemory() noexcept {
    m_spool->inMemory -= m_counted;
    m_counted = 0;
}

std::size_t KORVA_SpoolingAttachmentContainer::Content::readAt(unsigned long long position,
                                                               char* buffer,
                                                               std::size_t size) const {
    const unsigned long long inFile = fileSize();
    if (position >= inFile) {
        const auto offset = static_cast<std::size_t>(position - inFile);
        const std::size_t count = std::min(size, m_rest.pcount() - offset);
        std::memcpy(buffer, m_rest.str() + offset, count);
        return count;
    }
    const auto behind = std::upper_bound(
        m_extents.begin(), m_extents.end(), position,
        [](unsigned long long place, const Extent& extent) { return place < extent.position; });
    const Extent& extent = *std::prev(behind);
    const unsigned long long skipped = position - extent.position;
    const auto count =
        static_cast<std::size_t>(std::min<unsigned long long>(size, extent.length - skipped));
    return m_spool->file->read(extent.offset + skipped, buffer, count);
}

BRIMOutputStream& KORVA_SpoolingAttachmentContainer::Content::operator>>(
    BRIMOutputStream& out) const {
    ZEL_TRY {
        char piece[16384];
        const unsigned long long inFile = fileSize();
        for (unsigned long long position = 0; position < inFile;) {
            const std::size_t count = readAt(position, piece, sizeof piece);
            out.write(piece, count);
            position += count;
        }
        if (m_rest.pcount() != 0) out.write(m_rest.str(), m_rest.pcount());
        return out;
    }
    ZEL_CATCH("KORVA_SpoolingAttachmentContainer::operator>>");
}

KORVA_SpoolingAttachmentContainer::KORVA_SpoolingAttachmentContainer(std::size_t threshold) {
    ZEL_ASSERT(threshold > 0);
    ZEL_TRY {
        m_content.reset(new Content(threshold));
        return;
    }
    ZEL_CATCH("KORVA_SpoolingAttachmentContainer::KORVA_SpoolingAttachmentContainer");
}

KORVA_SpoolingAttachmentContainer::~KORVA_SpoolingAttachmentContainer() = default;

KORVA_AttachmentContainerI* KORVA_SpoolingAttachmentContainer::create() {
    ZEL_TRY {
        return new KORVA_SpoolingAttachmentContainer;
    }
    ZEL_CATCH("KORVA_SpoolingAttachmentContainer::create");
}

void KORVA_SpoolingAttachmentContainer::append(const char* bytes, std::size_t length) {
    m_content->append(bytes, length);
}

const char* KORVA_SpoolingAttachmentContainer::getData() {
    return nullptr;
}

void KORVA_SpoolingAttachmentContainer::shareFile(KORVA_SpoolingAttachmentContainer& other) {
    m_content->shareFile(*other.m_content);
}

void KORVA_SpoolingAttachmentContainer::finish(std::size_t mostInMemory) {
    ZEL_TRY {
        m_content->finish(mostInMemory);
        return;
    }
    ZEL_CATCH("KORVA_SpoolingAttachmentContainer::finish");
}

KORVA_Streamable* KORVA_SpoolingAttachmentContainer::getStreamable() {
    return m_content.get();
}

void KORVA_SpoolingAttachmentContainer::rewind() {
    m_content->rewind();
}

unsigned long long KORVA_SpoolingAttachmentContainer::size() const {
    return m_content->size();
}

bool KORVA_SpoolingAttachmentContainer::isSpooled() const {
    return m_content->hasFile();
}
