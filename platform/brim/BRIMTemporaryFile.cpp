#include "brim/BRIMTemporaryFile.h"

#include "platform/brim/Descriptor.h"
#include "platform/brim/SystemError.h"

#include <cerrno>

BRIMTemporaryFile::BRIMTemporaryFile() : m_descriptor(brim::openTemporaryDescriptor()) {
    if (m_descriptor < 0)
        brim::raiseSystemError(ZEL_LOCATION, "BRIMTemporaryFile::BRIMTemporaryFile",
                               "opening a temporary file", errno);
}

BRIMTemporaryFile::~BRIMTemporaryFile() {
    brim::closeDescriptor(m_descriptor);
}

void BRIMTemporaryFile::append(const char* bytes, std::size_t length) {
    if (!brim::writeDescriptorAt(m_descriptor, m_size, bytes, length))
        brim::raiseSystemError(ZEL_LOCATION, "BRIMTemporaryFile::append",
                               "writing to a temporary file", errno);
    m_size += length;
}

std::size_t BRIMTemporaryFile::read(unsigned long long offset, char* buffer,
                                    std::size_t size) const {
    std::size_t total = 0;
    while (total != size && offset + total < m_size) {
        const long long count =
            brim::readDescriptorAt(m_descriptor, offset + total, buffer + total, size - total);
        if (count < 0)
            brim::raiseSystemError(ZEL_LOCATION, "BRIMTemporaryFile::read",
                                   "reading a temporary file", errno);
        // Someone cut what belongs to this object alone.
        if (count == 0)
            brim::raiseSystemError(ZEL_LOCATION, "BRIMTemporaryFile::read",
                                   "reading a temporary file", EIO);
        total += static_cast<std::size_t>(count);
    }
    return total;
}
