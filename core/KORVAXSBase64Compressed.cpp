#include "korva/KORVAXSBase64Compressed.h"

#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMGZIPInputStream.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELFrame.h>

KORVAXSBase64Compressed::KORVAXSBase64Compressed() : m_compressed(false) {}
KORVAXSBase64Compressed::~KORVAXSBase64Compressed() = default;

void KORVAXSBase64Compressed::reference(const KORVA_Streamable& source, bool compressed) {
    KORVAXSBase64Binary::reference(source);
    m_compressed = compressed;
}

void KORVAXSBase64Compressed::serialize(BRIMOutputStream& out) const {
    if (streamable() == nullptr || !m_compressed) {
        KORVAXSBase64Binary::serialize(out);
        return;
    }
    ZEL_TRY {
        BRIMBase64OutputStream encoder(out);
        // Reading moves the stream's position, which is no part of the value.
        BRIMGZIPInputStream expanded(const_cast<KORVA_Streamable&>(*streamable()));
        char piece[16384];
        for (;;) {
            const long long count = expanded.read(piece, sizeof piece);
            if (count <= 0) break;
            encoder.write(piece, static_cast<std::size_t>(count));
        }
        encoder.close();
    }
    ZEL_CATCH("KORVAXSBase64Compressed::serialize");
}
