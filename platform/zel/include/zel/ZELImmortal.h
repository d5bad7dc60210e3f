/// Objects that are made on first use and never destroyed.
#pragma once

#include <cstddef>

namespace zel {

/// The one object that `make` constructs, with placement new, at the address that it is handed:
///
///     return zel::immortal<Table>([](void* at) { return ::new (at) Table; });
///
/// Nothing runs when a library is loaded or left, and the object may be used until the very end of
/// the process. Each call in the source has an object of its own. The first call makes it, any
/// thread may do so; what `make` throws leaves it to the next.
template <class T, class Make>
T& immortal(Make make) {
    alignas(T) static std::byte storage[sizeof(T)];
    static T& object = *make(static_cast<void*>(storage));
    return object;
}

}  // namespace zel
