#include "brim/BRIMBase64OutputStream.h"

#include "platform/brim/Base64.h"

#include <zel/ZELAssert.h>

#include <algorithm>
#include <utility>

namespace base64 = brim::base64;

// Not defaulted, for that would let a caller clear the buffer with each object.
BRIMBase64OutputStream::BRIMBase64OutputStream() noexcept {}

BRIMBase64OutputStream::BRIMBase64OutputStream(BRIMOutputStream& stream) noexcept
    : m_stream(&stream) {}

BRIMBase64OutputStream::~BRIMBase64OutputStream() {
    try {
        close();
    } catch (...) {
    }
}

void BRIMBase64OutputStream::wrap(BRIMOutputStream& stream) {
    close();
    m_stream = &stream;
}

void BRIMBase64OutputStream::write(const char* bytes, std::size_t length) {
    ZEL_ASSERT(m_stream);
    // Fill up a group that an earlier write began.
    if (m_restLength != 0) {
        for (; m_restLength < 3 && length != 0; ++bytes, --length) {
            m_rest[m_restLength++] = static_cast<unsigned char>(*bytes);
        }
        if (m_restLength < 3) return;
        if (m_length == sizeof m_buffer) drain();
        base64::encodeGroups(reinterpret_cast<const char*>(m_rest), 3, m_buffer + m_length);
        m_length += 4;
        m_restLength = 0;
    }
    while (length >= 3) {
        if (m_length == sizeof m_buffer) drain();
        const std::size_t room = (sizeof m_buffer - m_length) / 4 * 3;
        const std::size_t step = std::min(room, length / 3 * 3);
        base64::encodeGroups(bytes, step, m_buffer + m_length);
        m_length += step / 3 * 4;
        bytes += step;
        length -= step;
    }
    for (; length != 0; ++bytes, --length) {
        m_rest[m_restLength++] = static_cast<unsigned char>(*bytes);
    }
}

void BRIMBase64OutputStream::close() {
    if (!m_stream) return;
    BRIMOutputStream& stream = *std::exchange(m_stream, nullptr);
    const std::size_t restLength = std::exchange(m_restLength, 0);
    const std::size_t length = std::exchange(m_length, 0);
    if (length != 0) stream.write(m_buffer, length);
    if (restLength != 0) {
        char last[4];
        base64::encodeLast(m_rest, restLength, last);
        stream.write(last, sizeof last);
    }
}

void BRIMBase64OutputStream::flush() {
    if (!m_stream) return;
    if (m_length != 0) drain();
    m_stream->flush();
}

void BRIMBase64OutputStream::drain() {
    const std::size_t length = std::exchange(m_length, 0);
    m_stream->write(m_buffer, length);
}
