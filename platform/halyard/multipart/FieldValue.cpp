#include "platform/halyard/multipart/FieldValue.h"

#include "platform/halyard/multipart/Failure.h"

#include <zel/ZELAscii.h>

#include <algorithm>

namespace halyard {

namespace {

bool isBlank(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

[[noreturn]] void refuseParameters() {
    refuse("the parameters of a Content-Type are malformed", ZEL_LOCATION, "halyard::parameterOf");
}

/// Takes the quoted text at the front of `rest`, whose quote was taken.
std::string takeQuoted(std::string_view& rest) {
    std::string text;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            return text;
        }
        if (rest[i] == '\\' && i + 1 < rest.size()) ++i;
        text += rest[i];
    }
    refuseParameters();
}

}  // namespace

std::string_view trimmed(std::string_view text) noexcept {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view withoutBrackets(std::string_view id) noexcept {
    if (!id.empty() && id.front() == '<') id.remove_prefix(1);
    if (!id.empty() && id.back() == '>') id.remove_suffix(1);
    return id;
}

std::string unfolded(std::string_view field) {
    std::string line;
    for (;;) {
        const std::size_t length = std::min(field.find_first_of("\r\n"), field.size());
        line += field.substr(0, length);
        field.remove_prefix(length);
        if (field.empty()) return line;
        const std::size_t breaks = std::min(field.find_first_not_of("\r\n"), field.size());
        const std::size_t blanks = std::min(field.find_first_not_of(" \t", breaks), field.size());
        // What isn't folded is left to be judged where it stands.
        line += blanks != breaks ? " " : field.substr(0, breaks);
        field.remove_prefix(blanks);
    }
}

std::string_view valueOf(std::string_view field) noexcept {
    return trimmed(field.substr(0, field.find(';')));
}

std::optional<std::string> parameterOf(std::string_view field, std::string_view name) {
    const std::size_t first = field.find(';');
    std::string_view rest = first != std::string_view::npos ? field.substr(first) : "";
    for (;;) {
        rest = trimmed(rest);
        if (rest.empty()) return std::nullopt;
        if (rest.front() != ';') refuseParameters();
        rest = trimmed(rest.substr(1));
        // A semicolon at the end is common, and harmless.
        if (rest.empty()) return std::nullopt;
        const std::size_t equals = rest.find('=');
        if (equals == std::string_view::npos) refuseParameters();
        const std::string_view found = trimmed(rest.substr(0, equals));
        rest = trimmed(rest.substr(equals + 1));
        std::string value;
        if (!rest.empty() && rest.front() == '"') {
            rest.remove_prefix(1);
            value = takeQuoted(rest);
        } else {
            const std::size_t length = std::min(rest.find_first_of("; \t\r\n"), rest.size());
            value = rest.substr(0, length);
            rest.remove_prefix(length);
        }
        if (zel::equalIgnoringCase(found, name)) return value;
    }
}

bool hasControlCharacter(std::string_view text) noexcept {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
}

}  // namespace halyard
