#include "zel/ZELByteBuffer.h"

#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELThrow.h>

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

namespace {

/// No allocation is ever larger; below it no sum here can wrap.
constexpr std::size_t limit = std::numeric_limits<std::size_t>::max() / 4;

}  // namespace

ZELByteBuffer::ZELByteBuffer(int growth, std::size_t size, unsigned) noexcept
    : m_firstSize(
          static_cast<unsigned>(std::min<std::size_t>(size, std::numeric_limits<unsigned>::max()))),
      m_growth(growth) {}

ZELByteBuffer::ZELByteBuffer(const ZELByteBuffer& other)
    : m_firstSize(other.m_firstSize), m_growth(other.m_growth) {
    reserve(other.m_length);
    appendChars(other.m_pBuffer, other.m_length);
}

ZELByteBuffer::ZELByteBuffer(ZELByteBuffer&& other) noexcept
    : m_pBuffer(std::exchange(other.m_pBuffer, nullptr)),
      m_length(std::exchange(other.m_length, 0)),
      m_capacity(std::exchange(other.m_capacity, 0)),
      m_firstSize(other.m_firstSize),
      m_growth(other.m_growth) {}

ZELByteBuffer& ZELByteBuffer::operator=(const ZELByteBuffer& other) {
    if (this != &other) {
        reserve(other.m_length);
        reset();
        appendChars(other.m_pBuffer, other.m_length);
    }
    return *this;
}

ZELByteBuffer& ZELByteBuffer::operator=(ZELByteBuffer&& other) noexcept {
    std::swap(m_pBuffer, other.m_pBuffer);
    std::swap(m_length, other.m_length);
    std::swap(m_capacity, other.m_capacity);
    return *this;
}

ZELByteBuffer::~ZELByteBuffer() {
    delete[] m_pBuffer;
}

void ZELByteBuffer::reserve(std::size_t length) {
    if (length > m_capacity) reallocate(length);
}

void ZELByteBuffer::shrinkToFit() noexcept {
    if (m_length == m_capacity) return;
    char* smaller = nullptr;
    if (m_length != 0) {
        smaller = new (std::nothrow) char[m_length + 1];
        if (!smaller) return;
        std::memcpy(smaller, m_pBuffer, m_length + 1);
    }
    delete[] m_pBuffer;
    m_pBuffer = smaller;
    m_capacity = m_length;
}

char* ZELByteBuffer::release() noexcept {
    m_length = 0;
    m_capacity = 0;
    return std::exchange(m_pBuffer, nullptr);
}

void ZELByteBuffer::truncate(std::size_t length) noexcept {
    if (length >= m_length) return;
    m_length = length;
    m_pBuffer[length] = '\0';
}

void ZELByteBuffer::chop(std::size_t count) noexcept {
    if (count == 0 || m_length == 0) return;
    count = std::min(count, m_length);
    m_length -= count;
    std::memmove(m_pBuffer, m_pBuffer + count, m_length + 1);
}

void ZELByteBuffer::grow(std::size_t more) {
    if (more > limit - m_length) more = limit - m_length + 1;
    std::size_t capacity = m_length + more;
    if (!m_pBuffer) {
        // The first allocation has `m_firstSize` bytes, one of which is the NUL's.
        if (capacity < m_firstSize) capacity = m_firstSize - 1;
    } else if (m_growth != eGrowExact) {
        capacity = std::max(capacity, m_capacity + m_capacity / 2);
    }
    reallocate(capacity);
}

void ZELByteBuffer::reallocate(std::size_t capacity) {
    if (capacity > limit) ZEL_THROW(ZELOutOfMemoryError(), "ZELByteBuffer::reallocate");
    ZEL_TRY {
        char* buffer = new char[capacity + 1];
        if (m_pBuffer) {
            std::memcpy(buffer, m_pBuffer, m_length);
            delete[] m_pBuffer;
        }
        buffer[m_length] = '\0';
        m_pBuffer = buffer;
        m_capacity = capacity;
    }
    ZEL_CATCH("ZELByteBuffer::reallocate");
}
