#include "soap/read/Utf16.h"

#include <zel/I18NConverter.h>

namespace korva {

std::string utf8(const XMLCh* text) {
    return text != nullptr ? I18NConverter::utf8(text) : std::string();
}

}  // namespace korva
