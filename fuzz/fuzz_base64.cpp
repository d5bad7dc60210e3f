// Base64, decoded in pieces of every size and encoded again.
#include "fuzz/Target.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>

#include <algorithm>
#include <string>

namespace {

std::string encoded(std::string_view bytes) {
    BRIMMemoryOutputStream out;
    BRIMBase64OutputStream encoder(out);
    const std::size_t first = bytes.size() / 3;
    encoder.write(bytes.data(), first);
    encoder.write(bytes.data() + first, bytes.size() - first);
    encoder.close();
    return {out.str(), out.pcount()};
}

std::string decoded(std::string_view text, std::size_t piece) {
    BRIMMemoryInputStream stream(text.data(), text.size());
    BRIMBase64InputStream decoder(stream);
    std::string bytes;
    char buffer[1000];
    for (;;) {
        const long long count = decoder.read(buffer, std::min(piece, sizeof buffer));
        if (count <= 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
}

}  // namespace

void korva::fuzz::attack(std::string_view input) {
    require(decoded(encoded(input), 7) == input, "bytes come back as they went");
    const std::string bytes = decoded(input, 1000);
    require(decoded(input, 1) == bytes, "the size of the pieces plays no part");
    require(decoded(encoded(bytes), 1000) == bytes, "what was decoded can be encoded");
}
