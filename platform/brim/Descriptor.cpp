#include "platform/brim/Descriptor.h"

#include <algorithm>
#include <cerrno>

#if defined(_WIN32)
#include <io.h>
#else
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
#endif

}  // namespace

long long brim::readDescriptor(int descriptor, char* buffer, std::size_t size) noexcept {
    for (;;) {
        const long long count = readOnce(descriptor, buffer, std::min(size, largestStep));
        if (count >= 0 || errno != EINTR) return count;
    }
}

bool brim::writeDescriptor(int descriptor, const char* bytes, std::size_t length) noexcept {
    while (length != 0) {
        const long long count = writeOnce(descriptor, bytes, std::min(length, largestStep));
        if (count < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        bytes += count;
        length -= static_cast<std::size_t>(count);
    }
    return true;
}

bool brim::closeDescriptor(int descriptor) noexcept {
    // After a signal the descriptor may be closed or not; to try again could hit another's.
    return closeOnce(descriptor) == 0 || errno == EINTR;
}
