#include "brim/BRIMBase64InputStream.h"

#include "platform/brim/Base64.h"

#include <brim/BRIMStreamError.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

#include <string>

namespace base64 = brim::base64;

BRIMBase64InputStream::BRIMBase64InputStream(BRIMInputStream& stream) noexcept
    : m_stream(stream), m_next(m_buffer), m_end(m_buffer) {}

BRIMBase64InputStream::~BRIMBase64InputStream() = default;

long long BRIMBase64InputStream::read(char* buffer, std::size_t size) {
    char* out = buffer;
    char* const end = buffer + size;
    while (out != end) {
        if (m_restBegin != m_restEnd) {
            *out++ = m_rest[m_restBegin++];
        } else if (m_next != m_end) {
            if (m_groupLength == 0 && !m_complete) {
                const auto progress = base64::decodeGroups(m_next, m_end, out, end);
                m_next = progress.in;
                out = progress.out;
                if (m_next == m_end || out == end) continue;
            }
            takeCharacter(static_cast<unsigned char>(*m_next));
            ++m_next;
        } else if (out != buffer || !refill()) {
            // Never wait for more while there is something to give.
            break;
        }
    }
    return out - buffer;
}

/// Gets more characters; false at the end of the wrapped stream.
bool BRIMBase64InputStream::refill() {
    m_offset += static_cast<unsigned long long>(m_end - m_buffer);
    m_next = m_end = m_buffer;
    const long long count = m_stream.read(m_buffer, sizeof m_buffer);
    if (count <= 0) {
        if (m_groupLength != 0) refuse("the data ends within a group of four characters");
        return false;
    }
    m_end = m_buffer + count;
    return true;
}

void BRIMBase64InputStream::takeCharacter(unsigned char character) {
    const unsigned value = base64::decodeCharacter(character);
    if (value == base64::whiteSpace) return;
    if (m_complete) refuse("there is data behind the padding");
    if (character == '=') {
        if (m_groupLength < 2) refuse("the padding is in the wrong place");
        ++m_padding;
        m_group <<= 6;
    } else {
        if (value == base64::noBase64) refuse("there is a character that isn't base64");
        if (m_padding != 0) refuse("the padding is in the wrong place");
        m_group = m_group << 6 | value;
    }
    if (++m_groupLength < 4) return;

    m_rest[0] = static_cast<char>(m_group >> 16);
    m_rest[1] = static_cast<char>(m_group >> 8);
    m_rest[2] = static_cast<char>(m_group);
    m_restBegin = 0;
    m_restEnd = 3 - m_padding;
    m_complete = m_padding != 0;
    m_group = 0;
    m_groupLength = 0;
    m_padding = 0;
}

void BRIMBase64InputStream::refuse(const char* what) const {
    ZEL_TRY {
        const auto offset = m_offset + static_cast<unsigned long long>(m_next - m_buffer);
        const std::string text =
            std::string("base64: ") + what + ", at offset " + std::to_string(offset);
        ZEL_THROW(BRIMStreamError(text.c_str()), "BRIMBase64InputStream::read");
    }
    ZEL_CATCH("BRIMBase64InputStream::refuse");
}
