/// Names a line of a source file, for the back trace of an exception.
#pragma once

/// A source file and a line in it. Two words that travel in registers: it copies no text, so the
/// name must live as long as the location, as that of a literal does.
class ZELFileLocation {
public:
    constexpr ZELFileLocation(const char* fileName, unsigned lineNumber) noexcept
        : m_fileName(fileName), m_lineNumber(lineNumber) {}

    /// The name as the compiler was given it. May be null if the location was made so.
    constexpr const char* getFileName() const noexcept { return m_fileName; }

    /// Counted from 1.
    constexpr unsigned getLineNumber() const noexcept { return m_lineNumber; }

private:
    const char* m_fileName;
    unsigned m_lineNumber;
};

/// The place where this stands.
#define ZEL_LOCATION ::ZELFileLocation(__FILE__, __LINE__)
