#include "platform/brim/Descriptor.h"

#include <algorithm>
#include <cerrno>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <wchar.h>
#else
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

/// No system takes more at a time in all of its types.
constexpr std::size_t largestStep = std::size_t{1} << 30;

#if defined(_WIN32)
long long readOnce(int descriptor, char* buffer, std::size_t size) noexcept {
    return ::_read(descriptor, buffer, static_cast<unsigned>(size));
}
long long writeOnce(int descriptor, const char* bytes, std::size_t length) noexcept {
    return ::_write(descriptor, bytes, static_cast<unsigned>(length));
}
int closeOnce(int descriptor) noexcept {
    return ::_close(descriptor);
}
long long readAtOnce(int descriptor, unsigned long long offset, char* buffer,
                     std::size_t size) noexcept {
    if (::_lseeki64(descriptor, static_cast<long long>(offset), SEEK_SET) < 0) return -1;
    return readOnce(descriptor, buffer, size);
}
long long writeAtOnce(int descriptor, unsigned long long offset, const char* bytes,
                      std::size_t length) noexcept {
    if (::_lseeki64(descriptor, static_cast<long long>(offset), SEEK_SET) < 0) return -1;
    return writeOnce(descriptor, bytes, length);
}
#else
long long readOnce(int descriptor, char* buffer, std::size_t size) noexcept {
    return ::read(descriptor, buffer, size);
}
long long writeOnce(int descriptor, const char* bytes, std::size_t length) noexcept {
    return ::write(descriptor, bytes, length);
}
int closeOnce(int descriptor) noexcept {
    return ::close(descriptor);
}
long long readAtOnce(int descriptor, unsigned long long offset, char* buffer,
                     std::size_t size) noexcept {
    return ::pread(descriptor, buffer, size, static_cast<off_t>(offset));
}
long long writeAtOnce(int descriptor, unsigned long long offset, const char* bytes,
                      std::size_t length) noexcept {
    return ::pwrite(descriptor, bytes, length, static_cast<off_t>(offset));
}
#endif

/// Writes in as many steps as it takes; `write` gives how many bytes one step took.
template <class Write>
bool writeAll(const char* bytes, std::size_t length, Write write) noexcept {
    while (length != 0) {
        const long long count = write(bytes, std::min(length, largestStep));
        if (count < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        bytes += count;
        length -= static_cast<std::size_t>(count);
    }
    return true;
}

}  // namespace

long long brim::readDescriptor(int descriptor, char* buffer, std::size_t size) noexcept {
    for (;;) {
        const long long count = readOnce(descriptor, buffer, std::min(size, largestStep));
        if (count >= 0 || errno != EINTR) return count;
    }
}

bool brim::writeDescriptor(int descriptor, const char* bytes, std::size_t length) noexcept {
    return writeAll(bytes, length, [descriptor](const char* piece, std::size_t size) {
        return writeOnce(descriptor, piece, size);
    });
}

bool brim::writeDescriptorAt(int descriptor, unsigned long long offset, const char* bytes,
                             std::size_t length) noexcept {
    return writeAll(bytes, length, [=](const char* piece, std::size_t size) {
        const auto done = static_cast<unsigned long long>(piece - bytes);
        return writeAtOnce(descriptor, offset + done, piece, size);
    });
}

#if defined(_WIN32)
int brim::openTemporaryDescriptor() noexcept {
    wchar_t* const path = ::_wtempnam(nullptr, L"brim");
    if (path == nullptr) return -1;
    int descriptor = -1;
    // The system deletes the file when its last descriptor is closed.
    ::_wsopen_s(&descriptor, path,
                _O_CREAT | _O_EXCL | _O_RDWR | _O_BINARY | _O_TEMPORARY | _O_NOINHERIT, _SH_DENYNO,
                _S_IREAD | _S_IWRITE);
    ::free(path);
    return descriptor;
}
#else
int brim::openTemporaryDescriptor() noexcept {
    const char* folder = std::getenv("TMPDIR");
    if (folder == nullptr || *folder == '\0') folder = "/tmp";
    char path[4096];
    const int length = std::snprintf(path, sizeof path, "%s/brim-XXXXXX", folder);
    if (length < 0 || static_cast<std::size_t>(length) >= sizeof path) {
        errno = ENAMETOOLONG;
        return -1;
    }
    const int descriptor = ::mkstemp(path);
    if (descriptor < 0) return -1;
    ::unlink(path);
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    return descriptor;
}
#endif

long long brim::readDescriptorAt(int descriptor, unsigned long long offset, char* buffer,
                                 std::size_t size) noexcept {
    for (;;) {
        const long long count = readAtOnce(descriptor, offset, buffer, std::min(size, largestStep));
        if (count >= 0 || errno != EINTR) return count;
    }
}

bool brim::closeDescriptor(int descriptor) noexcept {
    // After a signal the descriptor may be closed or not; to try again could hit another's.
    return closeOnce(descriptor) == 0 || errno == EINTR;
}
