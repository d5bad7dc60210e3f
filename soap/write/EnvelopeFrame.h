/// What stands around the values of an envelope, be it a message's or a fault's.
#pragma once

#include <cstddef>
#include <string_view>

class BRIMOutputStream;

namespace korva {

/// Writes the frame of one envelope: `start`, the entries of the header, `startBody`, what the body
/// holds, `end`.
class EnvelopeFrame {
public:
    /// Where the elements of the header stand, less one, as ObjectWriter takes it.
    static constexpr int headerIndent = 1;

    /// @param formatted give each element a line of its own, indented by tabs
    EnvelopeFrame(BRIMOutputStream& stream, bool formatted)
        : m_stream(stream), m_formatted(formatted) {}

    void start(bool writeXmlDeclaration);
    void startBody();
    void end();

    /// Writes a line: a constant with its tabs and its line feed, which go out only if formatted.
    void line(std::string_view line);

    /// The two ends of a line that is made of pieces.
    void startLine(std::size_t tabs);
    void endLine();

    void put(std::string_view token);

private:
    BRIMOutputStream& m_stream;
    const bool m_formatted;
};

}  // namespace korva
