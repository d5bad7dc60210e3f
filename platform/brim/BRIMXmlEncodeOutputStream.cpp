#include <brim/BRIMXmlEncodeOutputStream.h>

#include <array>
#include <cstring>
#include <string_view>

namespace {

constexpr bool isMarkup(char byte) noexcept {
    return byte == '&' || byte == '<' || byte == '>' || byte == '"' || byte == '\'' || byte == '\r';
}

constexpr std::string_view entityOf(char byte) noexcept {
    switch (byte) {
        case '&': return "&amp;";
        case '<': return "&lt;";
        case '>': return "&gt;";
        case '"': return "&quot;";
        case '\'': return "&apos;";
        default: return "&#xD;";
    }
}

/// How many bytes at the front pass unchanged. Looks at whole blocks first, in a loop of which
/// compilers make vector code.
std::size_t cleanLength(const char* bytes, std::size_t length) noexcept {
    constexpr std::size_t block = 16;
    std::size_t i = 0;
    for (; length - i >= block; i += block) {
        unsigned char any = 0;
        for (std::size_t k = 0; k < block; ++k) {
            const char byte = bytes[i + k];
            any |= static_cast<unsigned char>((byte == '&') | (byte == '<') | (byte == '>') |
                                              (byte == '"') | (byte == '\'') | (byte == '\r'));
        }
        if (any != 0) break;
    }
    while (i < length && !isMarkup(bytes[i]))
        ++i;
    return i;
}

/// Joins short pieces, so that a text full of markup doesn't become a call for every character.
class Joiner {
public:
    explicit Joiner(BRIMOutputStream& stream) noexcept : m_stream(stream) {}

    void add(const char* bytes, std::size_t length) {
        if (length > sizeof m_buffer - m_length) drain();
        if (length > sizeof m_buffer / 2) {
            drain();
            m_stream.write(bytes, length);
        } else {
            std::memcpy(m_buffer + m_length, bytes, length);
            m_length += length;
        }
    }

    void drain() {
        if (m_length != 0) m_stream.write(m_buffer, m_length);
        m_length = 0;
    }

private:
    BRIMOutputStream& m_stream;
    std::size_t m_length = 0;
    char m_buffer[1024];
};

}  // namespace

BRIMXmlEncodeOutputStream::~BRIMXmlEncodeOutputStream() = default;

void BRIMXmlEncodeOutputStream::write(const char* bytes, std::size_t length) {
    std::size_t clean = cleanLength(bytes, length);
    if (clean == length) {
        if (length != 0) m_stream.write(bytes, length);
        return;
    }
    Joiner joiner(m_stream);
    for (;;) {
        joiner.add(bytes, clean);
        bytes += clean;
        length -= clean;
        if (length == 0) break;
        const std::string_view entity = entityOf(*bytes);
        joiner.add(entity.data(), entity.size());
        ++bytes;
        --length;
        clean = cleanLength(bytes, length);
    }
    joiner.drain();
}

void BRIMXmlEncodeOutputStream::flush() {
    m_stream.flush();
}
