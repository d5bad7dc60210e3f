#include "soap/read/FoundInstead.h"

#include <zel/ZELAscii.h>

#include <algorithm>
#include <array>

namespace korva {

namespace {

constexpr const char* htmlPage = "an HTML page, as a proxy or a wrong address answers with";

constexpr std::string_view soap12Namespace = "http://www.w3.org/2003/05/soap-envelope";

struct Kind {
    std::string_view start;  ///< in any case
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

}  // namespace

std::string foundInsteadOfXml(std::string_view start) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (start.starts_with(mark)) start.remove_prefix(mark.size());
    start.remove_prefix(std::min(start.find_first_not_of(" \t\r\n"), start.size()));
    for (const Kind& kind : kinds)
        if (zel::equalIgnoringCase(start.substr(0, kind.start.size()), kind.start))
            return kind.name;
    return {};
}

std::string foundInsteadOfEnvelope(const Element& root) {
    const std::string_view name(root.localName);
    if (root.uri == soap12Namespace) return "an envelope of SOAP 1.2";
    if (zel::equalIgnoringCase(name, "html")) return htmlPage;
    const std::string element = "the element \"" + std::string(name) + '"';
    if (root.uri.empty()) return element + " of no namespace";
    return element + " of the namespace \"" + std::string(root.uri) + '"';
}

}  // namespace korva
