/// Expands gzip data from another stream.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMInputStream.h>

#include <cstddef>

/// Reads one gzip member after another, as one stream. Data that is damaged, cut short or followed
/// by anything else raises `BRIMStreamError`; a lack of memory raises `ZELOutOfMemoryError`. The
/// wrapped stream is not owned. How much comes out is not limited here: a caller who doesn't trust
/// the source looks at the counts behind each read.
class BRIM_EXPORT BRIMGZIPInputStream final : public BRIMInputStream {
public:
    explicit BRIMGZIPInputStream(BRIMInputStream& stream);
    ~BRIMGZIPInputStream() override;

    long long read(char* buffer, std::size_t size) override;

    /// How many bytes of the wrapped stream the data that was read so far took.
    unsigned long long compressedBytes() const noexcept;

    /// How many bytes were read from this stream so far.
    unsigned long long expandedBytes() const noexcept;

private:
    struct Inflater;

    BRIMInputStream& m_stream;
    Inflater* m_inflater;
};
