#include "tarn/TARN_CharStreamable.h"

#include "types/TextMarker.h"

#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMOutputStream.h>
#include <tarn/TARN_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

TARN_CharStreamable::TARN_CharStreamable() {
    setIsContentId(false);
}

bool TARN_CharStreamable::isCharStreamable(const char* p) {
    return types::isMarked(p);
}

void TARN_CharStreamable::initialize(const TARN_Streamable& streamable, bool base64) {
    ZEL_ASSERT(!m_streamable && !m_data);
    m_streamable = &streamable;
    m_base64 = base64;
}

void TARN_CharStreamable::initialize(const char* data, bool base64) {
    ZEL_ASSERT(!m_streamable && !m_data);
    ZEL_ASSERT(data);
    m_data = data;
    m_base64 = base64;
}

void TARN_CharStreamable::setIsContentId(bool isContentId) {
    types::mark(m_marker, isContentId);
}

bool TARN_CharStreamable::getIsContentId() const {
    return types::isContentId(m_marker);
}

BRIMOutputStream& TARN_CharStreamable::operator>>(BRIMOutputStream& out) const {
    const auto write = [this](BRIMOutputStream& target) {
        types::writePiece(m_streamable, m_data, target);
    };
    ZEL_TRY {
        return types::writeEncoded<BRIMBase64OutputStream>(out, m_base64, write);
    }
    ZEL_CATCH("TARN_CharStreamable::operator>>");
}

bool TARN_CharStreamable::sharesSourceWith(const TARN_CharStreamable& other) const {
    return types::sameMarkers(m_marker, other.m_marker) && m_streamable == other.m_streamable &&
           m_data == other.m_data && m_base64 == other.m_base64;
}
