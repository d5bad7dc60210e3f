#include "soap/read/Utf16.h"

#include <zel/I18NConverter.h>

namespace korva {

std::string utf8(const XMLCh* text) {
    if (text == nullptr) return {};
    const std::size_t units = std::char_traits<XMLCh>::length(text);
    // No unit gives more than three bytes.
    std::string result(3 * units + 1, '\0');
    std::size_t length = 0;
    I18NConverter().toUtf8(text, units, result.data(), result.size(), &length);
    result.resize(length);
    return result;
}

}  // namespace korva
