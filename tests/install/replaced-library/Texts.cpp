#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageCatalogue.h>
#include <i18n/KORVAMessageId.h>

namespace {

constexpr std::string_view texts[] = {"http://schemas.xmlsoap.org/soap/encoding/",
                                      "bus:",
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
                                      "http://bus.korva.example/schemas/halyardns/3/",
                                      "KORVA",
                                      "true",
                                      "false"};

}  // namespace

std::string_view KORVAI18NRes::getView(unsigned number) noexcept {
    return number < std::size(texts) ? texts[number] : std::string_view();
}

const char* KORVAI18NRes::getChar(unsigned number) noexcept {
    return getView(number).data();
}

I18NString KORVAI18NRes::getString(unsigned number) {
    const std::string_view text = getView(number);
    return I18NString(text.data(), text.size());
}

const char* KORVAMessageCatalogue::find(std::uint32_t id) noexcept {
    return id == eKORVA_NoSuchChild ? "kein Kind {0}" : nullptr;
}
