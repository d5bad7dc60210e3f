#include "korva/KORVAXSBase64Compressed.h"

#include "core/Expansion.h"

#include <brim/BRIMBase64OutputStream.h>
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
        korva::expand(*streamable(), encoder);
        encoder.close();
    }
    ZEL_CATCH("KORVAXSBase64Compressed::serialize");
}
