#include "platform/halyard/multipart/BoundaryScanner.h"

#include "platform/halyard/multipart/Failure.h"

#include <brim/BRIMInputStream.h>

#include <algorithm>
#include <cstring>

namespace halyard {

namespace {

/// Blanks that a transport may add behind a boundary; a line with more of them is content.
constexpr std::size_t mostPadding = 256;

}  // namespace

BoundaryScanner::BoundaryScanner(BRIMInputStream& stream, std::string_view boundary)
    : m_stream(stream), m_delimiter("--") {
    m_delimiter += boundary;
    // Until the first boundary tells more, its line may follow any break.
    setLineBreak("\n");
}

/// Sets the break that stands before each boundary, and belongs to it.
void BoundaryScanner::setLineBreak(std::string_view lineBreak) {
    m_delimiter.replace(0, m_breakLength, lineBreak);
    m_breakLength = lineBreak.size();
    // How far a search may move on from a byte at the place of the delimiter's last.
    const std::size_t last = m_delimiter.size() - 1;
    m_skip.fill(static_cast<std::uint8_t>(m_delimiter.size()));
    for (std::size_t i = 0; i < last; ++i)
        m_skip[static_cast<unsigned char>(m_delimiter[i])] = static_cast<std::uint8_t>(last - i);
}

std::size_t BoundaryScanner::read(char* buffer, std::size_t size) {
    while (m_begin == m_clean) {
        if (m_isAtBoundary || size == 0) return 0;
        locate();
    }
    const std::size_t count = std::min(size, m_clean - m_begin);
    std::memcpy(buffer, m_buffer + m_begin, count);
    m_begin += count;
    return count;
}

bool BoundaryScanner::next() {
    if (m_isEnded) return false;
    while (!m_isAtBoundary) {
        m_begin = m_clean;
        locate();
    }
    if (m_isPreamble) {
        m_isPreamble = false;
        const bool hasReturn = m_next >= 2 && m_buffer[m_next - 2] == '\r';
        setLineBreak(hasReturn ? "\r\n" : "\n");
    }
    m_begin = m_clean = m_next;
    m_isAtBoundary = false;
    m_isLineStart = false;
    m_isEnded = m_isLast;
    return !m_isEnded;
}

bool BoundaryScanner::readLine(std::string& line, std::size_t& room) {
    line.clear();
    for (;;) {
        const std::size_t held = m_end - m_begin;
        const auto* const lineBreak =
            static_cast<const char*>(std::memchr(m_buffer + m_begin, '\n', held));
        const std::size_t count =
            lineBreak != nullptr ? static_cast<std::size_t>(lineBreak - (m_buffer + m_begin)) + 1
                                 : held;
        if (count > room) return false;
        room -= count;
        line.append(m_buffer + m_begin, count);
        m_begin += count;
        m_clean = m_begin;
        if (lineBreak != nullptr) break;
        if (!fill()) refuseEnd();
    }
    line.pop_back();
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return true;
}

/// Moves on with what is not known yet: finds some content, or the boundary.
void BoundaryScanner::locate() {
    if (m_isLineStart) {
        m_isLineStart = false;
        if (startsWith(std::string_view(m_delimiter).substr(m_breakLength))) {
            locateAtFront(m_breakLength);
            return;
        }
    }
    const std::size_t place = find();
    if (place == m_begin && m_end - m_begin >= m_delimiter.size()) {
        locateAtFront(0);
    } else if (place != m_end) {
        m_clean = place;
    } else {
        m_clean = partialMatch();
        if (m_clean != m_begin || fill()) return;
        // What looked like the beginning of a boundary is content, cut short.
        m_clean = m_end;
        if (m_clean == m_begin) refuseEnd();
    }
}

/// Decides on the boundary at the front, of which the first `skipped` characters are missing.
void BoundaryScanner::locateAtFront(std::size_t skipped) {
    std::size_t lineEnd = 0;
    const Line line = classify(skipped, lineEnd);
    if (line == Line::data) {
        // Nothing in it could be the beginning of another.
        m_clean = m_begin + m_delimiter.size() - skipped;
        return;
    }
    m_isAtBoundary = true;
    m_isLast = line == Line::end;
    m_next = lineEnd;
}

/// Says what the line is whose boundary stands at the front. `lineEnd` is then behind its break.
BoundaryScanner::Line BoundaryScanner::classify(std::size_t skipped, std::size_t& lineEnd) {
    std::size_t at = m_delimiter.size() - skipped;
    Line line = Line::boundary;
    if (require(at + 2) && std::memcmp(m_buffer + m_begin + at, "--", 2) == 0) {
        line = Line::end;
        at += 2;
    }
    const auto isNext = [&](char c) { return require(at + 1) && m_buffer[m_begin + at] == c; };
    const std::size_t mostBlanks = at + mostPadding;
    while (at != mostBlanks && (isNext(' ') || isNext('\t')))
        ++at;
    // In a message whose lines end with CRLF, a boundary with another end is none.
    const bool mayBeBare = m_isPreamble || m_breakLength == 1;
    const bool hasReturn = (m_isPreamble || m_breakLength == 2) && isNext('\r');
    if (hasReturn) ++at;
    if ((hasReturn || mayBeBare) && isNext('\n')) {
        lineEnd = m_begin + at + 1;
        return line;
    }
    // The message may end with the last hyphen, or within the line break behind it.
    if (line == Line::end && !require(at + 1)) {
        lineEnd = m_begin + at;
        return line;
    }
    return Line::data;
}

/// Where the delimiter stands whole, or `m_end`.
std::size_t BoundaryScanner::find() const noexcept {
    const std::size_t length = m_delimiter.size();
    const char* const delimiter = m_delimiter.data();
    const char last = delimiter[length - 1];
    for (std::size_t i = m_begin; m_end - i >= length;) {
        const char c = m_buffer[i + length - 1];
        if (c == last && std::memcmp(m_buffer + i, delimiter, length - 1) == 0) return i;
        i += m_skip[static_cast<unsigned char>(c)];
        if (i > m_end) break;
    }
    return m_end;
}

/// Where what may become the delimiter begins at the end of what is held, or `m_end`.
std::size_t BoundaryScanner::partialMatch() const noexcept {
    const std::size_t most = std::min(m_delimiter.size() - 1, m_end - m_begin);
    for (std::size_t length = most; length != 0; --length)
        if (std::memcmp(m_buffer + m_end - length, m_delimiter.data(), length) == 0)
            return m_end - length;
    return m_end;
}

bool BoundaryScanner::startsWith(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!require(i + 1) || m_buffer[m_begin + i] != text[i]) return false;
    return true;
}

/// Makes sure that so many bytes are held; false if the stream has fewer.
bool BoundaryScanner::require(std::size_t length) {
    while (m_end - m_begin < length)
        if (!fill()) return false;
    return true;
}

/// Holds more; false at the end of the stream. What is held is never as much as the buffer.
bool BoundaryScanner::fill() {
    if (m_isStreamAtEnd) return false;
    if (m_begin != 0) {
        std::memmove(m_buffer, m_buffer + m_begin, m_end - m_begin);
        m_end -= m_begin;
        m_clean -= m_begin;
        m_begin = 0;
    }
    const long long count = m_stream.read(m_buffer + m_end, sizeof m_buffer - m_end);
    m_isStreamAtEnd = count <= 0;
    if (m_isStreamAtEnd) return false;
    m_end += static_cast<std::size_t>(count);
    return true;
}

void BoundaryScanner::refuseEnd() const {
    refuse(m_isPreamble ? "the message has no boundary" : "the message is cut short", ZEL_LOCATION,
           "halyard::BoundaryScanner::refuseEnd");
}

}  // namespace halyard
