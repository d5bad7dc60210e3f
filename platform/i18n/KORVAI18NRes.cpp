#include "i18n/KORVAI18NRes.h"

#include <array>

#ifndef KORVA_BUS_AUTHORITY
#error "KORVA_BUS_AUTHORITY must be the scheme and host of the bus's namespaces"
#endif

namespace {

constexpr std::array<std::string_view, 21> texts = {
    "http://schemas.xmlsoap.org/soap/encoding/",
    KORVAI18NRes::busPrefix(),
    "http://www.w3.org/2001/XMLSchema",
    "http://www.w3.org/2001/XMLSchema-instance",
    "SOAP-ENC:Array",
    "SOAP-ENC:arrayType",
    "xmlns:bus",
    "xmlns:xsi",
    "xmlns:SOAP-ENC",
    "xmlns:xs",
    "xsi:type",
    "xsi:nil",
    "faultcode",
    "faultstring",
    "faultactor",
    "detail",
    "http://schemas.xmlsoap.org/soap/envelope/",
    KORVA_BUS_AUTHORITY "/schemas/halyardns/3/",
    "KORVA",
    "true",
    "false",
};

static_assert(!texts.back().empty(), "a text is missing");

}  // namespace

const char* KORVAI18NRes::getChar(unsigned number) noexcept {
    return number < texts.size() ? texts[number].data() : nullptr;
}

std::string_view KORVAI18NRes::getView(unsigned number) noexcept {
    return number < texts.size() ? texts[number] : std::string_view();
}

I18NString KORVAI18NRes::getString(unsigned number) {
    const std::string_view text = getView(number);
    return I18NString(text.data(), text.size());
}
