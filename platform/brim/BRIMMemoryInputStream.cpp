#include "brim/BRIMMemoryInputStream.h"

#include <algorithm>
#include <cstring>

BRIMMemoryInputStream::BRIMMemoryInputStream(const char* bytes, std::size_t length) noexcept
    : m_next(bytes), m_left(length) {}

BRIMMemoryInputStream::~BRIMMemoryInputStream() = default;

long long BRIMMemoryInputStream::read(char* buffer, std::size_t size) {
    const std::size_t count = std::min(size, m_left);
    if (count != 0) std::memcpy(buffer, m_next, count);
    m_next += count;
    m_left -= count;
    return static_cast<long long>(count);
}
