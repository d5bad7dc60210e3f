#include "soap/read/Findings.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>

#include <string_view>

namespace korva {

namespace {

/// How much of the path of a deep element is told at its start and at its end.
constexpr std::size_t longPath = 200;

/// The number of elements, from the one end or the other, whose names make up a long path.
template <class Iterator>
std::size_t countOfLongPath(Iterator name, Iterator end) {
    std::size_t count = 0;
    for (std::size_t length = 0; name != end; ++name, ++count) {
        length += std::string_view(*name).size() + 1;
        if (length > longPath) break;
    }
    return count;
}

}  // namespace

std::string pathOf(const std::vector<const char*>& names) {
    std::string text;
    const auto append = [&](std::size_t from, std::size_t to) {
        for (; from != to; ++from) {
            text += '/';
            text += names[from];
        }
    };
    const std::size_t first = countOfLongPath(names.begin(), names.end());
    const std::size_t last = countOfLongPath(names.rbegin(), names.rend());
    if (first + last >= names.size()) {
        append(0, names.size());
    } else {
        append(0, first);
        text += "/...";
        append(names.size() - last, names.size());
        if (last == 0) {
            // A name longer than a long path: its start.
            std::string_view name(names.back());
            std::size_t length = longPath;
            while ((static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U)
                --length;
            text += '/';
            text += name.substr(0, length);
            text += "...";
        }
    }
    return text;
}

void Findings::tellAll(KORVA_ReadingFinding::Kind kind, std::string_view uri, const char* name,
                       const char* reason) const {
    const std::string namespaceUri(uri);
    if (observer != nullptr) {
        const std::string path = place != nullptr ? place->path() : std::string();
        const DocumentPosition position = place != nullptr ? place->position() : DocumentPosition();
        observer->notice({kind, path.c_str(), position.line, position.column, namespaceUri.c_str(),
                          name, reason});
    }
    if (policy.refusesFindings())
        KORVA_RAISE(eKORVA_StrictReading, "KORVA_ReadingPolicy", name, namespaceUri.c_str(),
                    reason);
}

}  // namespace korva
