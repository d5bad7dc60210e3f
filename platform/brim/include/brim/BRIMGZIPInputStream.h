/// Expands gzip data from another stream.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMInputStream.h>

#include <cstddef>

/// Reads one gzip member after another, as one stream. Data that is damaged, cut short or followed
/// by anything else throws `BRIMStreamError`; a lack of memory throws `ZELOutOfMemoryError`. The
/// wrapped stream is not owned. How much comes out is not limited here: a caller who doesn't trust
/// the source looks at `expandedBytes` and `expandsBeyond` behind each read.
class BRIM_EXPORT BRIMGZIPInputStream final : public BRIMInputStream {
public:
    explicit BRIMGZIPInputStream(BRIMInputStream& stream);
    ~BRIMGZIPInputStream() override;

    long long read(char* buffer, std::size_t size) override;

    /// How many bytes of the wrapped stream the data that was read so far took.
    unsigned long long compressedBytes() const noexcept;

    /// How many bytes were read from this stream so far.
    unsigned long long expandedBytes() const noexcept;

    /// How many bytes may be expanded before `expandsBeyond` looks at them: few bytes may well
    /// expand to many.
    static constexpr unsigned long long smallestForRatio = 16ULL << 20U;

    /// Whether more than `smallestForRatio` bytes were read so far, and more than `ratio` times as
    /// many as they took. `ratio` is not 0.
    bool expandsBeyond(unsigned long long ratio) const noexcept;

private:
    struct Inflater;

    BRIMInputStream& m_stream;
    Inflater* m_inflater;
};
