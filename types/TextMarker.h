/// What makes an object stand in for a text: its first bytes, which cannot begin UTF-8.
#pragma once

#include <cstring>

namespace types {

using TextMarker = char[4];

inline constexpr TextMarker contentMarker = {'\xFF', '\xFF', '\xFF', '\x00'};
inline constexpr TextMarker contentIdMarker = {'\xFF', '\xFE', '\xFF', '\x00'};

/// Whether `p` is the address of such an object; null is not. The first byte settles nearly every
/// text; each further byte is read only while all before it agree, so that no text is overrun.
inline bool isMarked(const char* p) {
    return p != nullptr && p[0] == contentMarker[0] &&
           (p[1] == contentMarker[1] || p[1] == contentIdMarker[1]) && p[2] == contentMarker[2] &&
           p[3] == contentMarker[3];
}

/// Marks an object, as content or as the id of an attachment in its place.
inline void mark(TextMarker& marker, bool isContentId) {
    std::memcpy(marker, isContentId ? contentIdMarker : contentMarker, sizeof marker);
}

inline bool isContentId(const TextMarker& marker) {
    return std::memcmp(marker, contentIdMarker, sizeof marker) == 0;
}

inline bool sameMarkers(const TextMarker& left, const TextMarker& right) {
    return std::memcmp(left, right, sizeof left) == 0;
}

/// Writes what a streamable or else a text gives, each of which may be null.
template <class Streamable, class Stream>
void writePiece(const Streamable* streamable, const char* text, Stream& out) {
    if (streamable != nullptr)
        *streamable >> out;
    else if (text != nullptr)
        out.write(text, std::strlen(text));
}

/// Has `write` write to `out`, in base64 if it is so asked.
template <class Encoder, class Stream, class Write>
Stream& writeEncoded(Stream& out, bool base64, Write write) {
    if (base64) {
        Encoder encoder(out);
        write(encoder);
        encoder.close();
    } else {
        write(out);
    }
    return out;
}

}  // namespace types
