#include "zel/ZELMessage.h"

#include <charconv>
#include <string_view>

namespace {

/// Appends the bare form of a message whose text isn't known.
void appendBare(const ZELMessage& message, std::string& text) {
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, message.getId(), 16).ptr;
    text += message.getComponent();
    text += " message 0x";
    text.append(digits, end);
    const char* separator = ": ";
    for (const ZELMessageParm& parm : message.getParms()) {
        text += separator;
        text += parm.getText();
        separator = ", ";
    }
}

}  // namespace

ZELMessage::ZELMessage(const I18NString& component, unsigned id) : ZELMessageBase(component, id) {}

ZELMessage::ZELMessage(const ZELMessage&) = default;
ZELMessage::ZELMessage(ZELMessage&&) noexcept = default;
ZELMessage& ZELMessage::operator=(const ZELMessage&) = default;
ZELMessage& ZELMessage::operator=(ZELMessage&&) noexcept = default;
ZELMessage::~ZELMessage() = default;

ZELMessage& ZELMessage::operator<<(const ZELMessageParm& parm) {
    ZELMessageComponents::operator<<(parm);
    return *this;
}

void ZELMessage::fill(const char* pattern, std::string& text) const {
    if (!pattern) {
        appendBare(*this, text);
        return;
    }
    std::string_view rest(pattern);
    for (;;) {
        const std::size_t open = rest.find('{');
        text += rest.substr(0, open);
        if (open == std::string_view::npos) return;
        rest.remove_prefix(open);

        std::size_t number = 0;
        const char* end = rest.data() + rest.size();
        const auto [close, error] = std::from_chars(rest.data() + 1, end, number);
        if (error == std::errc() && close != end && *close == '}' && number < getParms().size()) {
            text += getParms()[number].getText();
            rest.remove_prefix(static_cast<std::size_t>(close + 1 - rest.data()));
        } else {
            text += '{';
            rest.remove_prefix(1);
        }
    }
}
