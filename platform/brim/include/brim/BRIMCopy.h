/// Pours one stream into another.
#pragma once

#include <brim/BRIMInputStream.h>
#include <brim/BRIMOutputStream.h>

#include <cstddef>

namespace brim {

/// Writes all that `in` still gives to `out`, in pieces of 16 KB, and closes neither.
/// @throws what the streams throw
inline void copy(BRIMInputStream& in, BRIMOutputStream& out) {
    char piece[16384];
    for (;;) {
        const long long count = in.read(piece, sizeof piece);
        if (count <= 0) return;
        out.write(piece, static_cast<std::size_t>(count));
    }
}

}  // namespace brim
