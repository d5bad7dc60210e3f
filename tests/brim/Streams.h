/// Streams with chosen behaviour, for the tests of the filters.
#pragma once

#include <brim/BRIMInputStream.h>
#include <brim/BRIMOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <zel/ZELThrow.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace korva::test {

/// Gives a text in pieces of at most `piece` bytes, then ends with `end`, or fails instead.
class PiecewiseInput : public BRIMInputStream {
public:
    PiecewiseInput(std::string text, std::size_t piece, long long end = 0)
        : m_text(std::move(text)), m_piece(piece), m_end(end) {}

    /// Called at the end of the text in place of giving `end`.
    void failAtEnd(std::function<void()> failure) { m_failure = std::move(failure); }

    long long read(char* buffer, std::size_t size) override {
        ++m_reads;
        const std::size_t count = std::min({size, m_piece, m_text.size() - m_position});
        if (count == 0) {
            if (m_failure) m_failure();
            return m_end;
        }
        std::memcpy(buffer, m_text.data() + m_position, count);
        m_position += count;
        return static_cast<long long>(count);
    }

    int reads() const { return m_reads; }

private:
    std::string m_text;
    std::size_t m_piece;
    long long m_end;
    std::size_t m_position = 0;
    int m_reads = 0;
    std::function<void()> m_failure;
};

/// Keeps each write, and counts the other calls; fails from a chosen write on.
class RecordingOutput : public BRIMOutputStream {
public:
    explicit RecordingOutput(std::size_t goodWrites = ~std::size_t{0}) : m_goodWrites(goodWrites) {}

    void write(const char* bytes, std::size_t length) override {
        if (m_writes.size() >= m_goodWrites) {
            ++m_failures;
            ZEL_THROW(BRIMStreamError("the stream is full"));
        }
        m_writes.emplace_back(bytes, length);
    }
    void close() override { ++m_closes; }
    void flush() override { ++m_flushes; }

    std::string all() const {
        std::string text;
        for (const std::string& piece : m_writes)
            text += piece;
        return text;
    }
    const std::vector<std::string>& writes() const { return m_writes; }
    int closes() const { return m_closes; }
    int flushes() const { return m_flushes; }
    int failures() const { return m_failures; }

private:
    std::size_t m_goodWrites;
    std::vector<std::string> m_writes;
    int m_closes = 0;
    int m_flushes = 0;
    int m_failures = 0;
};

/// All that a stream gives, read in pieces of `size` bytes.
inline std::string readAll(BRIMInputStream& stream, std::size_t size = 1024) {
    std::string text;
    std::vector<char> buffer(size);
    for (;;) {
        const long long count = stream.read(buffer.data(), buffer.size());
        if (count <= 0) return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

/// The text of the `BRIMStreamError` that `action` throws, or a text that says that it threw none.
template <class Action>
std::string streamErrorOf(Action action) {
    try {
        action();
    } catch (const BRIMStreamError& error) {
        return error.getText();
    }
    return "no error";
}

}  // namespace korva::test
