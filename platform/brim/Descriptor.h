/// The calls on descriptors that the operating systems spell differently.
#pragma once

#include <cstddef>

namespace brim {

/// Reads once, again if a signal came first. Returns how many bytes, or -1 with `errno` set.
long long readDescriptor(int descriptor, char* buffer, std::size_t size) noexcept;

/// Writes all bytes, in as many steps as it takes. False with `errno` set if that fails.
bool writeDescriptor(int descriptor, const char* bytes, std::size_t length) noexcept;

/// Opens a new file for reading and writing that has no name and goes with the descriptor, in the
/// folder for temporary files (`TMPDIR`, where systems have it). Returns -1 with `errno` set if
/// that fails.
int openTemporaryDescriptor() noexcept;

/// Reads once at `offset`, again if a signal came first. Returns how many bytes, or -1 with `errno`
/// set.
long long readDescriptorAt(int descriptor, unsigned long long offset, char* buffer,
                           std::size_t size) noexcept;

/// Writes all bytes at `offset`, in as many steps as it takes. False with `errno` set if that
/// fails.
bool writeDescriptorAt(int descriptor, unsigned long long offset, const char* bytes,
                       std::size_t length) noexcept;

/// False with `errno` set if that fails.
bool closeDescriptor(int descriptor) noexcept;

}  // namespace brim
