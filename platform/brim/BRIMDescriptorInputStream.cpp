#include "brim/BRIMDescriptorInputStream.h"

#include "platform/brim/Descriptor.h"
#include "platform/brim/SystemError.h"

#include <cerrno>

BRIMDescriptorInputStream::BRIMDescriptorInputStream(int descriptor, Ownership ownership) noexcept
    : m_descriptor(descriptor), m_ownership(ownership) {}

BRIMDescriptorInputStream::~BRIMDescriptorInputStream() {
    if (m_ownership == eOwned) brim::closeDescriptor(m_descriptor);
}

long long BRIMDescriptorInputStream::read(char* buffer, std::size_t size) {
    const long long count = brim::readDescriptor(m_descriptor, buffer, size);
    if (count < 0) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMDescriptorInputStream::read",
                               "reading from a descriptor", errno);
    }
    return count;
}
