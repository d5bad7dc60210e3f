#include "soap/read/Prolog.h"

#include <zel/ZELAscii.h>

#include <algorithm>

namespace korva {

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view declarationStart = "<?xml";
constexpr std::string_view documentTypeStart = "<!DOCTYPE";

bool isWhiteSpace(char c) {
    return whiteSpace.find(c) != std::string_view::npos;
}

}  // namespace

bool Prolog::skip(std::string_view text) {
    if (!m_text.starts_with(text)) return false;
    m_text.remove_prefix(text.size());
    return true;
}

/// Removes everything up to the end of `mark`; false if there is no `mark`.
bool Prolog::skipPast(std::string_view mark) {
    const std::size_t at = m_text.find(mark);
    if (at == std::string_view::npos) return false;
    m_text.remove_prefix(at + mark.size());
    return true;
}

void Prolog::skipWhiteSpace() {
    m_text.remove_prefix(std::min(m_text.find_first_not_of(whiteSpace), m_text.size()));
}

bool Prolog::isUtf8() {
    // An encoding of more than one byte shows by a zero among the first four, or by a byte order
    // mark; that of main frames by its '<'.
    const std::string_view first = m_text.substr(0, 4);
    if (first.find('\0') != std::string_view::npos || first.starts_with("\xFE\xFF") ||
        first.starts_with("\xFF\xFE") || first == "\x4C\x6F\xA7\x94")
        return false;
    skip(byteOrderMark);
    const bool isDeclared = m_text.starts_with(declarationStart) &&
                            m_text.size() > declarationStart.size() &&
                            isWhiteSpace(m_text[declarationStart.size()]);
    return !isDeclared || skipDeclaration();
}

/// Removes ` name = "value"`; false if that is not there.
bool Prolog::takeAttribute(std::string_view name, std::string_view& value) {
    const std::string_view before = m_text;
    skipWhiteSpace();
    if (m_text.size() != before.size() && skip(name)) {
        skipWhiteSpace();
        if (skip("=")) {
            skipWhiteSpace();
            const char quote = m_text.empty() ? '\0' : m_text.front();
            const std::size_t end =
                quote == '"' || quote == '\'' ? m_text.find(quote, 1) : std::string_view::npos;
            if (end != std::string_view::npos) {
                value = m_text.substr(1, end - 1);
                m_text.remove_prefix(end + 1);
                return true;
            }
        }
    }
    m_text = before;
    return false;
}

bool Prolog::skipDeclaration() {
    skip(declarationStart);
    std::string_view version;
    std::string_view encoding = "utf-8";
    std::string_view standalone = "no";
    if (!takeAttribute("version", version) || version != "1.0") return false;
    takeAttribute("encoding", encoding);
    takeAttribute("standalone", standalone);
    skipWhiteSpace();
    return skip("?>") && zel::equalIgnoringCase(encoding, "utf-8") &&
           (standalone == "yes" || standalone == "no");
}

bool Prolog::skipComment() {
    skip("<!--");
    return skipPast("--") && skip(">");
}

bool Prolog::skipInstruction() {
    skip("<?");
    const std::string_view target = m_text.substr(0, 4);
    // A declaration that comes too late is the parser's to tell.
    if (zel::equalIgnoringCase(target.substr(0, 3), "xml")) return false;
    return skipPast("?>");
}

bool Prolog::lacksDocumentType() {
    for (;;) {
        skipWhiteSpace();
        if (m_text.starts_with("<!--")) {
            if (!skipComment()) return false;
        } else if (m_text.starts_with("<?")) {
            if (!skipInstruction()) return false;
        } else {
            // What is cut off may still become a document type.
            const bool isCut = m_text.size() < documentTypeStart.size() && !m_isWhole;
            return !isCut && !m_text.starts_with("<!");
        }
    }
}

}  // namespace korva
