#include "generator/emit/Printer.h"

#include <algorithm>
#include <stdexcept>

namespace korva::schemac::emit {

namespace {

constexpr char kMark = '$';

std::string_view valueOf(std::string_view name, Printer::Values values) {
    for (const auto& [candidate, value] : values) {
        if (candidate == name) return value;
    }
    throw std::logic_error("a template uses $" + std::string(name) + "$, which has no value");
}

// The next line of `text`, newline included, which is taken off it.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
    text.remove_prefix(line.size());
    return line;
}

}  // namespace

void Printer::print(std::string_view text, Values values) {
    if (text.starts_with('\n')) text.remove_prefix(1);
    while (!text.empty())
        printLine(takeLine(text), values);
}

void Printer::printLine(std::string_view line, Values values) {
    const std::size_t indent = line.find_first_not_of(' ');
    if (indent != std::string_view::npos && line[indent] == kMark && line.ends_with("$\n") &&
        line.find(kMark, indent + 1) == line.size() - 2 && line.size() - 2 > indent + 1) {
        std::string_view value = valueOf(line.substr(indent + 1, line.size() - 3 - indent), values);
        while (!value.empty()) {
            std::string_view part = takeLine(value);
            if (part.ends_with('\n')) part.remove_suffix(1);
            if (!part.empty()) m_out.append(indent, ' ').append(part);
            m_out.push_back('\n');
        }
        return;
    }
    while (!line.empty()) {
        const std::size_t mark = line.find(kMark);
        m_out.append(line.substr(0, mark));
        if (mark == std::string_view::npos) return;
        line.remove_prefix(mark + 1);
        const std::size_t end = line.find(kMark);
        if (end == std::string_view::npos) {
            throw std::logic_error("a template has a single $");
        }
        if (end == 0) {
            m_out.push_back(kMark);
        } else {
            m_out.append(valueOf(line.substr(0, end), values));
        }
        line.remove_prefix(end + 1);
    }
}

}  // namespace korva::schemac::emit
