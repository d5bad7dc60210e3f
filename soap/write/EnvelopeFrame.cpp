#include "soap/write/EnvelopeFrame.h"

#include "soap/write/WireTokens.h"

#include <brim/BRIMOutputStream.h>

namespace korva {

void EnvelopeFrame::start(bool writeXmlDeclaration) {
    if (writeXmlDeclaration) line(wire::xmlDeclaration);
    wire::writeEnvelopeStart(m_stream);
    endLine();
    line(wire::headerStart);
}

void EnvelopeFrame::startBody() {
    line(wire::headerEnd);
    line(wire::bodyStart);
}

void EnvelopeFrame::end() {
    line(wire::bodyEnd);
    line(wire::envelopeEnd);
}

void EnvelopeFrame::line(std::string_view line) {
    if (!m_formatted) {
        line.remove_prefix(line.find_first_not_of('\t'));
        line.remove_suffix(wire::lineFeed.size());
    }
    put(line);
}

void EnvelopeFrame::startLine(std::size_t tabs) {
    if (m_formatted) put({wire::manyTabs.data(), tabs});
}

void EnvelopeFrame::endLine() {
    if (m_formatted) put(wire::lineFeed);
}

void EnvelopeFrame::put(std::string_view token) {
    m_stream.write(token.data(), token.size());
}

}  // namespace korva
