#include "examples/live_call/HostileRequests.h"

#include <stdexcept>
#include <string_view>

namespace live_call {

namespace {

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    const std::size_t at = text.find(what);
    if (at == std::string::npos) throw std::logic_error("There is no " + what);
    return text.replace(at, what.size(), with);
}

std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

/// A document type whose one entity is the content of a file.
std::string withForeignFile(const std::string& envelope, const std::string& marker) {
    const std::string type =
        std::string("?>\n<!DOCTYPE x [<!ENTITY file SYSTEM \"file://") + foreignFile + "\">]>";
    return replaced(replaced(envelope, "?>", type), marker, "&file;");
}

}  // namespace

std::vector<HostileRequest> hostileRequests(const std::string& envelope,
                                            const std::string& marker) {
    constexpr std::size_t depth = 100'000;
    constexpr std::size_t length = 5'000'000;
    return {
        {"no XML at all", "GET me the report, please."},
        {"XML that is cut off", envelope.substr(0, envelope.size() / 2)},
        {"a document type that asks for a file", withForeignFile(envelope, marker)},
        {"elements that are nested 100,000 deep",
         replaced(envelope, "<SOAP-ENV:Header>",
                  "<SOAP-ENV:Header>" + repeated("<a>", depth) + repeated("</a>", depth))},
        {"more than the server takes", replaced(envelope, marker, std::string(length, 'a'))},
    };
}

}  // namespace live_call
