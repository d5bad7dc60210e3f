/// Opens a file of the C library by a path in UTF-8.
#pragma once

#include <cstdio>

namespace brim {

/// `mode` is that of `std::fopen`.
/// @throws BRIMStreamError with the path and the system's text
std::FILE* openFile(const char* path, const char* mode, const char* function);

}  // namespace brim
