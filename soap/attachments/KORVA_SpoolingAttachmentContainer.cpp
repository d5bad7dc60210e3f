#include "korva/KORVA_SpoolingAttachmentContainer.h"

#include <brim/BRIMOutputStream.h>
#include <brim/BRIMTemporaryFile.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <algorithm>
#include <cstring>
#include <optional>

/// The bytes: the file's, if there is one, then those in memory.
class KORVA_SpoolingAttachmentContainer::Content final : public KORVA_Streamable {
public:
    explicit Content(std::size_t threshold) noexcept : m_threshold(threshold) {}

    void append(const char* bytes, std::size_t length);
    unsigned long long size() const noexcept { return fileSize() + m_rest.pcount(); }
    bool hasFile() const noexcept { return m_file.has_value(); }

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
    unsigned long long fileSize() const noexcept { return m_file ? m_file->size() : 0; }
    std::size_t readAt(unsigned long long position, char* buffer, std::size_t size) const;

    std::size_t m_threshold;
    std::optional<BRIMTemporaryFile> m_file;
    ZELByteBuffer m_rest{ZELByteBuffer::eGrowGeometric, 256};
    unsigned long long m_position = 0;  ///< of `read`
};

void KORVA_SpoolingAttachmentContainer::Content::append(const char* bytes, std::size_t length) {
    if (length > m_threshold - m_rest.pcount()) {
        if (!m_file) m_file.emplace();
        m_file->append(m_rest.str(), m_rest.pcount());
        m_rest.reset();
        // The file is written in large pieces, those of the caller or our own.
        if (length >= m_threshold) {
            m_file->append(bytes, length);
            return;
        }
        if (m_rest.capacity() < m_threshold) m_rest.reserve(m_threshold);
    }
    // Grows to the threshold, and never beyond.
    const std::size_t needed = m_rest.pcount() + length;
    if (needed > m_rest.capacity() && needed > m_threshold / 2) m_rest.reserve(m_threshold);
    m_rest.appendChars(bytes, length);
}

std::size_t KORVA_SpoolingAttachmentContainer::Content::readAt(unsigned long long position,
                                                               char* buffer,
                                                               std::size_t size) const {
    const unsigned long long inFile = fileSize();
    if (position < inFile) return m_file->read(position, buffer, size);
    const auto offset = static_cast<std::size_t>(position - inFile);
    const std::size_t count = std::min(size, m_rest.pcount() - offset);
    std::memcpy(buffer, m_rest.str() + offset, count);
    return count;
}

BRIMOutputStream& KORVA_SpoolingAttachmentContainer::Content::operator>>(
    BRIMOutputStream& out) const {
    ZEL_TRY {
        char piece[16384];
        const unsigned long long inFile = fileSize();
        for (unsigned long long position = 0; position < inFile;) {
            const std::size_t count = m_file->read(position, piece, sizeof piece);
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
