#include "brim/BRIMFileOutputStream.h"

#include "platform/brim/OpenFile.h"
#include "platform/brim/SystemError.h"

#include <zel/ZELAssert.h>

#include <cerrno>
#include <utility>

BRIMFileOutputStream::BRIMFileOutputStream(const char* path, Mode mode)
    : m_file(brim::openFile(path, mode == eAppend ? "ab" : "wb",
                            "BRIMFileOutputStream::BRIMFileOutputStream")) {}

BRIMFileOutputStream::~BRIMFileOutputStream() {
    if (m_file) std::fclose(m_file);
}

void BRIMFileOutputStream::write(const char* bytes, std::size_t length) {
    ZEL_ASSERT(m_file);
    if (length != 0 && std::fwrite(bytes, 1, length, m_file) != length) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMFileOutputStream::write", "writing a file",
                               errno);
    }
}

void BRIMFileOutputStream::close() {
    if (m_file && std::fclose(std::exchange(m_file, nullptr)) != 0) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMFileOutputStream::close", "closing a file",
                               errno);
    }
}

void BRIMFileOutputStream::flush() {
    if (m_file && std::fflush(m_file) != 0) {
        brim::raiseSystemError(ZEL_LOCATION, "BRIMFileOutputStream::flush", "writing a file",
                               errno);
    }
}
