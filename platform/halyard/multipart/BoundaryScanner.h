/// Finds the lines that stand between the parts of a message.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class BRIMInputStream;

namespace halyard {

/// Divides a stream into sections: what stands before the first boundary, then the parts. Looks at
/// each byte about once, and most bytes not at all.
class BoundaryScanner {
public:
    /// `boundary` is told by the message, without the hyphens before it; it isn't empty.
    BoundaryScanner(BRIMInputStream& stream, std::string_view boundary);

    /// The line that a section's end is, and no more of it than the boundary, must not be longer.
    static constexpr std::size_t longestBoundary = 70;

    /// Content of the section: at least one byte, unless it is at its end.
    std::size_t read(char* buffer, std::size_t size);

    /// Skips what is left of the section, and enters the next. False if there is none: the message
    /// has ended.
    bool next();

    /// Whether `next` has found the end of the message.
    bool isEnded() const noexcept { return m_isEnded; }

    /// The next line of the section, without its break. It is valid until the next call. `room` is
    /// how many bytes it may have with its break, and what it has is taken off; a longer one gives
    /// nothing and false.
    bool readLine(std::string& line, std::size_t& room);

    /// Says that the headers of the section have been read: a boundary may follow at once.
    void beginContent() noexcept { m_isLineStart = true; }

private:
    enum class Line { data, boundary, end };

    void locate();
    void locateAtFront(std::size_t skipped);
    Line classify(std::size_t skipped, std::size_t& lineEnd);
    bool startsWith(std::string_view text);
    std::size_t find() const noexcept;
    std::size_t partialMatch() const noexcept;
    void setLineBreak(std::string_view lineBreak);
    bool fill();
    bool require(std::size_t length);
    [[noreturn]] void refuseEnd() const;

    BRIMInputStream& m_stream;
    std::string m_delimiter;  ///< with the line break before it
    std::size_t m_breakLength = 0;
    std::array<std::uint8_t, 256> m_skip;
    bool m_isLineStart = true;  ///< a boundary may stand here without a line break before it
    bool m_isPreamble = true;   ///< whose line breaks aren't known yet
    bool m_isAtBoundary = false;
    bool m_isLast = false;  ///< that boundary ends the message
    bool m_isEnded = false;
    bool m_isStreamAtEnd = false;
    std::size_t m_begin = 0;  ///< of what is not yet given
    std::size_t m_clean = 0;  ///< up to here it is content
    std::size_t m_end = 0;
    std::size_t m_next = 0;  ///< behind the boundary, when at one
    char m_buffer[32768];
};

}  // namespace halyard
