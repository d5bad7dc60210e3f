#include "core/Expansion.h"

#include <brim/BRIMCopy.h>
#include <brim/BRIMGZIPInputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVA_Streamable.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace korva {

namespace {

/// A stream of which the first bytes are read at once.
class BegunStream final : public BRIMInputStream {
public:
    explicit BegunStream(BRIMInputStream& stream)
        : m_stream(stream), m_count(std::max(stream.read(m_bytes, sizeof m_bytes), 0LL)) {}

    bool isAtEnd() const { return m_count == 0; }

    long long read(char* buffer, std::size_t size) override {
        if (m_position == m_count) return m_stream.read(buffer, size);
        const long long count = std::min(m_count - m_position, static_cast<long long>(size));
        std::memcpy(buffer, m_bytes + m_position, static_cast<std::size_t>(count));
        m_position += count;
        return count;
    }

private:
    BRIMInputStream& m_stream;
    char m_bytes[1024];
    long long m_count;
    long long m_position = 0;
};

void expandFrom(BRIMInputStream& compressed, BRIMOutputStream& out) {
    BRIMGZIPInputStream expanded(compressed);
    brim::copy(expanded, out);
}

}  // namespace

void expand(const KORVA_Streamable& compressed, BRIMOutputStream& out) {
    // Where it is read next is no part of a value.
    auto& source = const_cast<KORVA_Streamable&>(compressed);
    const bool isAtBegin = source.rewind();
    BegunStream begun(source);
    if (isAtBegin || !begun.isAtEnd()) {
        expandFrom(begun, out);
        return;
    }
    // It has been read before.
    BRIMMemoryOutputStream bytes;
    compressed >> bytes;
    BRIMMemoryInputStream held(bytes.str(), bytes.pcount());
    expandFrom(held, out);
}

}  // namespace korva
