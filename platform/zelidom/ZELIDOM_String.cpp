#include "zelidom/ZELIDOM_String.h"

#include <zel/I18NConverter.h>
#include <zel/ZELFrame.h>

std::string ZELIDOM_String::utf8() const {
    ZEL_TRY {
        const std::size_t units = wideLength();
        // No unit gives more than three bytes.
        std::string result(3 * units + 1, '\0');
        std::size_t length = 0;
        I18NConverter().toUtf8(m_text, units, result.data(), result.size(), &length);
        result.resize(length);
        return result;
    }
    ZEL_CATCH("ZELIDOM_String::utf8");
}

bool ZELIDOM_String::equals(std::string_view utf8) const {
    const XMLCh* unit = m_text;
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 || *unit >= 0x80) return this->utf8() == utf8;
        if (*unit++ != byte) return false;
    }
    return *unit == 0;
}
