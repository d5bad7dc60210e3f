#include "brim/BRIMDescriptorOutputStream.h"

#include "platform/brim/Descriptor.h"
#include "platform/brim/SystemError.h"

#include <zel/ZELAssert.h>

#include <cerrno>
#include <cstring>
#include <utility>

BRIMDescriptorOutputStream::BRIMDescriptorOutputStream(int descriptor, Ownership ownership) noexcept
    : m_descriptor(descriptor), m_ownership(ownership) {}

BRIMDescriptorOutputStream::~BRIMDescriptorOutputStream() {
    try {
        close();
    } catch (...) {
    }
}

void BRIMDescriptorOutputStream::write(const char* bytes, std::size_t length) {
    ZEL_ASSERT(m_descriptor >= 0);
    if (length > sizeof m_buffer - m_length) flush();
    if (length >= sizeof m_buffer) {
        if (!brim::writeDescriptor(m_descriptor, bytes, length)) {
            brim::raiseSystemError(ZEL_LOCATION, "BRIMDescriptorOutputStream::write",
                                   "writing to a descriptor", errno);
        }
    } else if (length != 0) {
        std::memcpy(m_buffer + m_length, bytes, length);
        m_length += length;
    }
}

void BRIMDescriptorOutputStream::close() {
    if (m_descriptor < 0) return;
    const auto release = [this]() noexcept {
        const int descriptor = std::exchange(m_descriptor, -1);
        return m_ownership == eBorrowed || brim::closeDescriptor(descriptor);
    };
    try {
        flush();
    } catch (...) {
        release();
        throw;
    }
    if (!release()) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMDescriptorOutputStream::close",
                               "closing a descriptor", errno);
    }
}

void BRIMDescriptorOutputStream::flush() {
    // After a failure nobody knows how much was written, so what is held back is given up.
    const std::size_t length = std::exchange(m_length, 0);
    if (!brim::writeDescriptor(m_descriptor, m_buffer, length)) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMDescriptorOutputStream::flush",
                               "writing to a descriptor", errno);
    }
}
