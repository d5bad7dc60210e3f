#include "korva/KORVAXSBase64Binary.h"

#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMOutputStream.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <cstring>
#include <limits>
#include <new>

KORVAXSBase64Binary::KORVAXSBase64Binary()
    : m_streamable(nullptr), m_buffer(nullptr), m_length(0), m_capacity(0), m_isContentId(false) {}

KORVAXSBase64Binary::KORVAXSBase64Binary(const char* data, std::size_t length)
    : KORVAXSBase64Binary() {
    if (data == nullptr) return;
    if (length == 0) length = std::strlen(data);
    if (length == 0) return;
    ZEL_TRY {
        m_buffer = new char[length];
        std::memcpy(m_buffer, data, length);
        m_length = m_capacity = length;
    }
    ZEL_CATCH("KORVAXSBase64Binary::KORVAXSBase64Binary");
}

KORVAXSBase64Binary::~KORVAXSBase64Binary() {
    try {
        reference(nullptr, 0);
    } catch (...) {  // NOLINT(bugprone-empty-catch): a destructor lets nothing out
    }
}

void KORVAXSBase64Binary::release() {
    if (m_capacity != 0) delete[] m_buffer;
    m_buffer = nullptr;
    m_length = m_capacity = 0;
}

void KORVAXSBase64Binary::append(const char* data, std::size_t length) {
    if (m_capacity == 0) ZEL_ASSERT(m_buffer == NULL);
    ZEL_ASSERT(data);
    if (length == 0) length = std::strlen(data);
    ZEL_TRY {
        const std::size_t held = m_capacity == 0 ? 0 : m_length;
        if (length > (std::numeric_limits<std::size_t>::max() - m_capacity) / 2)
            throw std::bad_alloc();
        if (m_capacity < held + length) {
            const std::size_t capacity = m_capacity + 2 * length;
            char* const buffer = new char[capacity];
            if (held != 0) std::memcpy(buffer, m_buffer, held);
            if (m_capacity != 0) delete[] m_buffer;
            m_buffer = buffer;
            m_capacity = capacity;
        }
        m_streamable = nullptr;
        m_length = held;
        ZEL_ASSERT(m_buffer);
        std::memcpy(m_buffer + m_length, data, length);
        m_length += length;
    }
    ZEL_CATCH("KORVAXSBase64Binary::append");
}

void KORVAXSBase64Binary::adopt(ZELByteBuffer& buffer) {
    release();
    m_streamable = nullptr;
    m_length = buffer.pcount();
    m_capacity = buffer.capacity() + 1;
    m_buffer = buffer.release();
    if (m_length == 0) release();
}

void KORVAXSBase64Binary::reference(const char* data, std::size_t length) {
    release();
    m_streamable = nullptr;
    if (data == nullptr) return;
    // The value only ever reads what it does not own.
    m_buffer = const_cast<char*>(data);
    m_length = length != 0 ? length : std::strlen(data);
}

void KORVAXSBase64Binary::reference(const KORVA_Streamable& streamable) {
    release();
    m_streamable = &streamable;
}

bool KORVAXSBase64Binary::operator==(const KORVAXSBase64Binary& other) const {
    if (this == &other) return true;
    if (m_length != other.m_length) return false;
    ZEL_ASSERT(!m_streamable);
    if (m_length == 0) return true;
    if (m_buffer == nullptr || other.m_buffer == nullptr) return false;
    return std::memcmp(m_buffer, other.m_buffer, m_length) == 0;
}

bool KORVAXSBase64Binary::operator!=(const KORVAXSBase64Binary& other) const {
    return !(*this == other);
}

void KORVAXSBase64Binary::serialize(BRIMOutputStream& out) const {
    ZEL_TRY {
        if (m_streamable != nullptr) {
            BRIMBase64OutputStream encoder(out);
            *m_streamable >> encoder;
            encoder.close();
        } else if (m_buffer == nullptr || m_length == 0) {
            return;
        } else if (m_isContentId) {
            out.write(m_buffer, m_length);
        } else {
            BRIMBase64OutputStream encoder(out);
            encoder.write(m_buffer, m_length);
            encoder.close();
        }
    }
    ZEL_CATCH("KORVAXSBase64Binary::serialize");
}
