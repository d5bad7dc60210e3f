#include "zelidom/ZELIDOM_String.h"

#include <zel/I18NConverter.h>

std::string ZELIDOM_String::utf8() const {
    return I18NConverter::utf8({m_text, wideLength()});
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
