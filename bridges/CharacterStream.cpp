#include "bridges/CharacterStream.h"

#include "bridges/ElementReceiver.h"

#include <zel/I18NConverter.h>

#include <algorithm>

namespace korva {

namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// How many bytes the character has that starts with this one; 1 for what starts none.
std::size_t sequenceLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0xC2 || byte > 0xF4) return 1;
    return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

/// How many bytes at the end belong to a character that is not whole.
std::size_t cutAtEnd(const char* bytes, std::size_t length) {
    for (std::size_t back = 1; back <= std::min<std::size_t>(length, 3); ++back) {
        const char byte = bytes[length - back];
        if (!isContinuation(byte)) return sequenceLength(byte) > back ? back : 0;
    }
    return 0;
}

}  // namespace

void CharacterStream::write(const char* bytes, std::size_t length) {
    while (length != 0) {
        // No byte gives more than one unit.
        std::size_t step = std::min(length, pieceSize - m_length);
        if (step < length) step -= cutAtEnd(bytes, step);
        if (step == 0) {
            finish();
            continue;
        }
        std::size_t written = 0;
        I18NConverter::toUtf16(bytes, step, m_piece + m_length, pieceSize + 1 - m_length, &written);
        m_length += written;
        bytes += step;
        length -= step;
    }
}

void CharacterStream::finish() {
    const std::size_t length = m_length;
    m_length = 0;
    if (length != 0) m_receiver.characters(m_piece, length);
}

}  // namespace korva
