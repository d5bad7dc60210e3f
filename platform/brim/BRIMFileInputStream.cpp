#include "brim/BRIMFileInputStream.h"

#include "platform/brim/OpenFile.h"
#include "platform/brim/SystemError.h"

#include <cerrno>

BRIMFileInputStream::BRIMFileInputStream(const char* path)
    : m_file(brim::openFile(path, "rb", "BRIMFileInputStream::BRIMFileInputStream")) {}

BRIMFileInputStream::~BRIMFileInputStream() {
    std::fclose(m_file);
}

long long BRIMFileInputStream::read(char* buffer, std::size_t size) {
    const std::size_t count = std::fread(buffer, 1, size, m_file);
    // What came before a failure is given first; the next call meets the failure again.
    if (count == 0 && std::ferror(m_file)) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMFileInputStream::read", "reading a file", errno);
    }
    return static_cast<long long>(count);
}
