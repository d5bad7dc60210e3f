#include "platform/brim/ZlibMemory.h"

#include <cstddef>
#include <new>

voidpf brim::allocateForZlib(voidpf, uInt items, uInt size) {
    return ::operator new(static_cast<std::size_t>(items) * size, std::nothrow);
}

void brim::releaseForZlib(voidpf, voidpf memory) {
    ::operator delete(memory);
}
