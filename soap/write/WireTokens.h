/// The constant texts of the wire form, each with its length.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

class BRIMOutputStream;

namespace korva::wire {

/// Tabs for the lines whose level is beyond what a LineToken has.
inline constexpr auto manyTabs = [] {
    std::array<char, 4096> tabs{};
    tabs.fill('\t');
    return tabs;
}();

/// A short token that starts a line, and the tabs in front of it.
class LineToken {
public:
    static constexpr std::size_t maxTabs = 64;

    /// A token of two parts.
    explicit consteval LineToken(std::string_view mark, std::string_view name = {})
        : m_length(mark.size() + name.size()) {
        m_text.fill('\t');
        std::copy(name.begin(), name.end(),
                  std::copy(mark.begin(), mark.end(), m_text.begin() + maxTabs));
    }

    /// The token behind `tabs` tabs, of which there are no more than maxTabs.
    constexpr std::string_view behind(std::size_t tabs) const {
        return {m_text.data() + maxTabs - tabs, tabs + m_length};
    }

    /// Copies that to `out`, where maxSize bytes may be overwritten.
    /// @return the end of the copy
    char* copyBehind(std::size_t tabs, char* out) const {
        // Most lines stand so near to the left that one move of a fixed size has it all.
        const char* const text = m_text.data() + maxTabs - tabs;
        const std::size_t size = tabs + m_length;
        std::memcpy(out, text, shortSize);
        if (size > shortSize) std::memcpy(out + shortSize, text + shortSize, maxSize - shortSize);
        return out + size;
    }

    static constexpr std::size_t maxLength = 8;
    static constexpr std::size_t maxSize = maxTabs + maxLength;

private:
    static constexpr std::size_t shortSize = 16;

    std::array<char, maxTabs + maxSize> m_text{};
    std::size_t m_length;
};

// Where one constant always follows another they stand as one token. The start tag's last quote,
// which ends the type, belongs to the token behind it, its first byte.

inline constexpr std::string_view lineFeed = "\n";
inline constexpr std::string_view tagEnd = ">\n";

inline constexpr std::string_view typeAttribute = " xsi:type=\"";
inline constexpr std::string_view arrayTypeAttributes =
    " xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"";
inline constexpr std::string_view typeEndsTag = "\">";
inline constexpr std::string_view typeEndsLine = "\">\n";
inline constexpr std::string_view typeEndsEmptyTag = "\"/>\n";
inline constexpr std::string_view typeEndsNilTag = "\" xsi:nil=\"true\"/>\n";
inline constexpr std::string_view typeThenContentId = "\" href=\"cid:";
inline constexpr std::string_view contentIdEndsTag = "\">";

// The lines of an envelope's frame.

inline constexpr std::string_view xmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
inline constexpr std::string_view envelopeEnd = "</SOAP-ENV:Envelope>\n";
inline constexpr std::string_view headerStart = "\t<SOAP-ENV:Header>\n";
inline constexpr std::string_view headerEnd = "\t</SOAP-ENV:Header>\n";
inline constexpr std::string_view bodyStart = "\t<SOAP-ENV:Body>\n";
inline constexpr std::string_view bodyEnd = "\t</SOAP-ENV:Body>\n";

/// Writes the namespace declarations of a single object, each behind a blank.
void writeObjectNamespaces(BRIMOutputStream& stream);

/// Writes the start tag of an envelope, with all namespace declarations and without a line feed.
void writeEnvelopeStart(BRIMOutputStream& stream);

}  // namespace korva::wire
