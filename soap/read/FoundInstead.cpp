#include "soap/read/FoundInstead.h"

#include <algorithm>
#include <array>

namespace korva {

namespace {

constexpr const char* htmlPage = "an HTML page, as a proxy or a wrong address answers with";

constexpr std::string_view soap12Namespace = "http://www.w3.org/2003/05/soap-envelope";

struct Kind {
    std::string_view start;  ///< in lower case
    const char* name;
};

constexpr std::array<Kind, 8> kinds{
    {{"<!doctype html", htmlPage},
     {"<html", htmlPage},
     {"\x1f\x8b", "compressed by gzip"},
     {"{", "a JSON text"},
     {"[", "a JSON text"},
     {"--", "a multipart message, of which the envelope is a part"},
     {"http/", "an HTTP response with its header, behind which the envelope stands"},
     {"mime-version:", "a message with its header, behind which the envelope stands"}}};

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// @param start in lower case
bool startsWith(std::string_view text, std::string_view start) {
    return text.size() >= start.size() &&
           std::equal(start.begin(), start.end(), text.begin(),
                      [](char left, char right) { return left == lower(right); });
}

}  // namespace

std::string foundInsteadOfXml(std::string_view start) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (start.starts_with(mark)) start.remove_prefix(mark.size());
    start.remove_prefix(std::min(start.find_first_not_of(" \t\r\n"), start.size()));
    for (const Kind& kind : kinds)
        if (startsWith(start, kind.start)) return kind.name;
    return {};
}

std::string foundInsteadOfEnvelope(const Element& root) {
    const std::string_view name(root.localName);
    if (root.uri == soap12Namespace) return "an envelope of SOAP 1.2";
    if (name.size() == 4 && startsWith(name, "html")) return htmlPage;
    const std::string element = "the element \"" + std::string(name) + '"';
    if (root.uri.empty()) return element + " of no namespace";
    return element + " of the namespace \"" + std::string(root.uri) + '"';
}

}  // namespace korva
