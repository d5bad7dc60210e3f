/// Binary values whose stream holds gzip data.
#pragma once

#include <korva/KORVAXSBase64Binary.h>

/// A binary value that may be streamed from gzip data; it is expanded when it is written, so that
/// the wire carries the plain data in base64.
class KORVA_EXPORT KORVAXSBase64Compressed : public KORVAXSBase64Binary {
public:
    KORVAXSBase64Compressed();
    ~KORVAXSBase64Compressed() override;

    using KORVAXSBase64Binary::reference;

    /// Takes the bytes from `source`, which must outlive the value.
    /// @param compressed whether the stream holds gzip data
    void reference(const KORVA_Streamable& source, bool compressed);

    /// Whether the stream holds gzip data.
    bool isCompressed() const { return m_compressed; }

    /// May be called more than once. A stream that cannot be rewound is from the second time on
    /// held in memory meanwhile, compressed as it is.
    /// @throws ZELException the gzip data are damaged or end early
    void serialize(BRIMOutputStream& out) const override;

private:
    bool m_compressed;
};
