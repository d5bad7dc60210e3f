/// Streams that tests write to and read from.
#pragma once

#include <brim/BRIMOutputStream.h>
#include <korva/KORVA_Streamable.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

namespace korva::test {

/// Keeps what is written to it.
class CollectingStream : public BRIMOutputStream {
public:
    void write(const char* bytes, std::size_t length) override {
        text.append(bytes, length);
        ++writes;
    }
    void close() override { closed = true; }

    std::string text;
    int writes = 0;
    bool closed = false;
};

/// A streamable over a text. Reading gives it in pieces of at most `piece` bytes.
class TextStreamable : public KORVA_Streamable {
public:
    explicit TextStreamable(std::string bytes, std::size_t piece = static_cast<std::size_t>(-1))
        : m_bytes(std::move(bytes)), m_piece(piece) {}

    long long read(char* buffer, std::size_t size) override {
        const std::size_t count = std::min({size, m_piece, m_bytes.size() - m_position});
        std::memcpy(buffer, m_bytes.data() + m_position, count);
        m_position += count;
        return static_cast<long long>(count);
    }

    BRIMOutputStream& operator>>(BRIMOutputStream& out) const override {
        out.write(m_bytes.data(), m_bytes.size());
        return out;
    }

protected:
    /// Lets `read` begin anew.
    void restart() { m_position = 0; }

private:
    std::string m_bytes;
    std::size_t m_piece;
    std::size_t m_position = 0;
};

}  // namespace korva::test
