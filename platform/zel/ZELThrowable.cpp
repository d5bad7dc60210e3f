#include "zel/ZELThrowable.h"

#include <charconv>
#include <cstring>
#include <new>

namespace {

/// Puts `line` on the list, or frees it if there is no room.
void keep(ZELList<char*>& lines, char* line) noexcept {
    try {
        lines.append(line);
    } catch (const std::bad_alloc&) {
        delete[] line;
    }
}

char* copyLine(const char* text) noexcept {
    const std::size_t size = std::strlen(text) + 1;
    char* line = new (std::nothrow) char[size];
    if (line) std::memcpy(line, text, size);
    return line;
}

/// Joins the parts of a line of the back trace; the first pass counts, the second writes.
class LineWriter {
public:
    explicit LineWriter(char* out) noexcept : m_out(out) {}

    void add(const char* text) noexcept {
        const std::size_t length = std::strlen(text);
        if (m_out) std::memcpy(m_out + m_length, text, length);
        m_length += length;
    }

    std::size_t length() const noexcept { return m_length; }

private:
    char* m_out;
    std::size_t m_length = 0;
};

struct LineParts {
    const char* file;
    const char* lineNumber;
    const char* function;
    const char* macro;
    const char* detail;
};

std::size_t writeLine(const LineParts& parts, char* out) noexcept {
    LineWriter line(out);
    line.add(parts.file ? parts.file : "?");
    line.add("(");
    line.add(parts.lineNumber);
    line.add(")");
    if (parts.function) {
        line.add(" ");
        line.add(parts.function);
    }
    if (parts.macro) {
        line.add(" ");
        line.add(parts.macro);
    }
    if (parts.detail) {
        line.add(": ");
        line.add(parts.detail);
    }
    return line.length();
}

template <class Number>
void writeNumber(Number number, char (&digits)[12]) noexcept {
    *std::to_chars(digits, digits + sizeof digits - 1, number).ptr = '\0';
}

}  // namespace

ZELThrowable::ZELThrowable(ZELSeverity severity, int errorCode) noexcept : m_severity(severity) {
    writeNumber(errorCode, m_errorCode);
}

ZELThrowable::ZELThrowable(const ZELThrowable& other) noexcept : m_severity(other.m_severity) {
    std::memcpy(m_errorCode, other.m_errorCode, sizeof m_errorCode);
    copyBackTrace(other);
}

ZELThrowable& ZELThrowable::operator=(const ZELThrowable& other) noexcept {
    if (this != &other) {
        m_severity = other.m_severity;
        std::memcpy(m_errorCode, other.m_errorCode, sizeof m_errorCode);
        freeBackTrace();
        copyBackTrace(other);
    }
    return *this;
}

ZELThrowable::~ZELThrowable() {
    freeBackTrace();
}

const char* ZELThrowable::getErrorCodeString() const noexcept {
    return m_errorCode;
}

const char* ZELThrowable::toString() const {
    try {
        std::string text = getThrowableName();
        const std::size_t nameLength = text.size();
        text += ": ";
        describe(text);
        if (text.size() == nameLength + 2) text.resize(nameLength);
        for (const char* line : m_backTrace) {
            text += "\n    at ";
            text += line;
        }
        m_description = ZELText(text.c_str());
    } catch (const std::bad_alloc&) {
        m_description = ZELText::fromLiteral(getThrowableName());
    }
    return m_description.get();
}

void ZELThrowable::addBackTrace(ZELFileLocation location, const char* function, const char* macro,
                                const char* detail) noexcept {
    char lineNumber[12];
    writeNumber(location.getLineNumber(), lineNumber);
    const LineParts parts{location.getFileName(), lineNumber, function, macro, detail};
    const std::size_t length = writeLine(parts, nullptr);
    char* line = new (std::nothrow) char[length + 1];
    if (!line) return;
    writeLine(parts, line);
    line[length] = '\0';
    keep(m_backTrace, line);
}

const char* ZELThrowable::getSeverityName(ZELSeverity severity) noexcept {
    switch (severity) {
        case eZELDebug: return "debug";
        case eZELInfo: return "info";
        case eZELWarn: return "warn";
        case eZELError: return "error";
        case eZELFatal: return "fatal";
    }
    return "unknown";
}

void ZELThrowable::describe(std::string&) const {}

void ZELThrowable::copyBackTrace(const ZELThrowable& other) noexcept {
    for (const char* text : other.m_backTrace) {
        char* line = copyLine(text);
        if (line) keep(m_backTrace, line);
    }
}

void ZELThrowable::freeBackTrace() noexcept {
    for (char* line : m_backTrace)
        delete[] line;
    m_backTrace.clear();
}
