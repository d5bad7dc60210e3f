/// The memory of zlib's streams, taken where that of everything else is taken.
#pragma once

#include <zlib.h>

namespace brim {

/// Null when there is none left.
voidpf allocateForZlib(voidpf, uInt items, uInt size);

void releaseForZlib(voidpf, voidpf memory);

}  // namespace brim
