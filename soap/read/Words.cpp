#include "soap/read/Words.h"

#include <tarn/tarnsymbols1.h>
#include <zel/ZELUtCrc32.h>

namespace korva {

const char* wordOr(std::string_view name, const char* other) {
    const char* const word = tarnsymbols1::getChar(ZELUtCrc32::crc32(name));
    return word != nullptr && word == name ? word : other;
}

}  // namespace korva
