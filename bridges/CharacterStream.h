// Turns what is written to it into pieces of UTF-16.
#pragma once

#include <brim/BRIMOutputStream.h>

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>

namespace korva {

class ElementReceiver;

/// Takes UTF-8, however it is cut into writes, and hands it on in pieces that no character is cut
/// between. A short text is one piece; of a long one little is held at any time.
class CharacterStream final : public BRIMOutputStream {
public:
    explicit CharacterStream(ElementReceiver& receiver) : m_receiver(receiver) {}

    void write(const char* bytes, std::size_t length) override;

    /// Ends the text, so that the next write begins another.
    void finish();

private:
    static constexpr std::size_t pieceSize = 2048;
    static constexpr std::size_t longestSequence = 4;

    void convert(const char* bytes, std::size_t length);
    void convertCut();
    void handOn();

    ElementReceiver& m_receiver;
    std::size_t m_length = 0;
    std::size_t m_cutLength = 0;
    char m_cut[longestSequence];  ///< the character that the last write has cut
    XMLCh m_piece[pieceSize + 1];
};

}  // namespace korva
