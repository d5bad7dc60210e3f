#include "generator/Diagnostics.h"

#include <algorithm>
#include <tuple>

namespace korva::schemac {

void Diagnostics::error(const Location& at, std::string_view element, std::string_view wrong,
                        std::string_view expected) {
    std::string text(element);
    text.append(": ").append(wrong).append("; expected ").append(expected);
    m_errors.push_back({at, std::move(text)});
}

std::string Diagnostics::text() const {
    std::vector<const Error*> sorted;
    sorted.reserve(m_errors.size());
    for (const Error& error : m_errors)
        sorted.push_back(&error);
    std::stable_sort(sorted.begin(), sorted.end(), [](const Error* left, const Error* right) {
        return std::tie(left->at.file, left->at.line) < std::tie(right->at.file, right->at.line);
    });
    std::string out;
    for (const Error* error : sorted) {
        out.append(place(error->at)).append(": error: ").append(error->text).append("\n");
    }
    return out;
}

std::string item(std::string_view kind, std::string_view name) {
    std::string out(kind);
    out.append(" ").append(inQuotes(name));
    return out;
}

std::string inQuotes(std::string_view text) {
    std::string out("\"");
    out.append(text).append("\"");
    return out;
}

std::string place(const Location& at) {
    return at.file + ":" + std::to_string(at.line);
}

}  // namespace korva::schemac
