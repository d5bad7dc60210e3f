/// Turns what is written to it into pieces of UTF-16.
#pragma once

#include <brim/BRIMOutputStream.h>

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>

namespace korva {

class ElementReceiver;

/// Takes UTF-8 in writes that no character is cut between, and hands it on in pieces of the same
/// kind. A short text is one piece; of a long one little is held at any time.
class CharacterStream final : public BRIMOutputStream {
public:
    explicit CharacterStream(ElementReceiver& receiver) : m_receiver(receiver) {}

    void write(const char* bytes, std::size_t length) override;

    /// Ends the text, so that the next write begins another.
    void finish();

private:
    static constexpr std::size_t pieceSize = 2048;

    ElementReceiver& m_receiver;
    std::size_t m_length = 0;
    XMLCh m_piece[pieceSize + 1];
};

}  // namespace korva
