#include "zel/ZELPrintable.h"

#include "platform/zel/Utf.h"

#include <zel/ZELFrame.h>

#include <charconv>
#include <cstdint>

namespace {

/// Whether a character moves, breaks or turns what stands around it.
bool isUnprintable(std::uint32_t point) {
    return point < 0x20 || (point >= 0x7F && point < 0xA0) || point == 0x61C || point == 0x200E ||
           point == 0x200F || (point >= 0x2028 && point <= 0x202E) ||
           (point >= 0x2066 && point <= 0x2069);
}

std::string_view escapeOf(std::uint32_t value, char kind, char (&buffer)[16]) {
    buffer[0] = '\\';
    buffer[1] = kind;
    buffer[2] = '{';
    char* const end = std::to_chars(buffer + 3, buffer + sizeof buffer - 1, value, 16).ptr;
    for (char* digit = buffer + 3; digit != end; ++digit)
        if (*digit >= 'a') *digit = static_cast<char>(*digit - 'a' + 'A');
    *end = '}';
    return {buffer, end + 1};
}

}  // namespace

std::string zel::printable(std::string_view text) {
    ZEL_TRY {
        std::string result;
        const auto* at = reinterpret_cast<const unsigned char*>(text.data());
        const unsigned char* const end = at + text.size();
        char buffer[16] = {};
        while (at != end) {
            const unsigned char* const begin = at;
            const std::uint32_t point = utf::nextPoint(at, end);
            std::string_view piece(reinterpret_cast<const char*>(begin),
                                   static_cast<std::size_t>(at - begin));
            if (point == utf::replacement && piece.size() == 1)
                piece = escapeOf(*begin, 'x', buffer);
            else if (point == '\n')
                piece = "\\n";
            else if (point == '\r')
                piece = "\\r";
            else if (point == '\t')
                piece = "\\t";
            else if (isUnprintable(point))
                piece = escapeOf(point, 'u', buffer);
            if (piece.size() > longestPrintable - result.size()) {
                result += " ... (cut, ";
                result += std::to_string(text.size());
                result += " bytes)";
                break;
            }
            result += piece;
        }
        return result;
    }
    ZEL_CATCH("zel::printable");
}
