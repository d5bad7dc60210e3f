/// The calls on descriptors that the operating systems spell differently.
#pragma once

#include <cstddef>

namespace brim {

/// Reads once, again if a signal came first. Returns how many bytes, or -1 with `errno` set.
long long readDescriptor(int descriptor, char* buffer, std::size_t size) noexcept;

/// Writes all bytes, in as many steps as it takes. False with `errno` set if that fails.
bool writeDescriptor(int descriptor, const char* bytes, std::size_t length) noexcept;

/// False with `errno` set if that fails.
bool closeDescriptor(int descriptor) noexcept;

}  // namespace brim
