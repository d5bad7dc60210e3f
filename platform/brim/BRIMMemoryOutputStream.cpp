#include "brim/BRIMMemoryOutputStream.h"

BRIMMemoryOutputStream::BRIMMemoryOutputStream(std::size_t size) noexcept
    : m_buffer(ZELByteBuffer::eGrowGeometric, size) {}

BRIMMemoryOutputStream::~BRIMMemoryOutputStream() = default;

void BRIMMemoryOutputStream::write(const char* bytes, std::size_t length) {
    m_buffer.appendChars(bytes, length);
}
