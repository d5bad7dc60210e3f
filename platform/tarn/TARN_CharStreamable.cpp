#include "tarn/TARN_CharStreamable.h"

#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMOutputStream.h>
#include <tarn/TARN_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>

namespace {

constexpr char textMarker[4] = {'\xFF', '\xFF', '\xFF', '\x00'};
constexpr char contentIdMarker[4] = {'\xFF', '\xFE', '\xFF', '\x00'};

}  // namespace

TARN_CharStreamable::TARN_CharStreamable() {
    setIsContentId(false);
}

bool TARN_CharStreamable::isCharStreamable(const char* p) {
    // Each byte is read only while all before it agree, so that a short text is not overrun.
    return p != nullptr && p[0] == textMarker[0] &&
           (p[1] == textMarker[1] || p[1] == contentIdMarker[1]) && p[2] == textMarker[2] &&
           p[3] == textMarker[3];
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
    std::memcpy(m_marker, isContentId ? contentIdMarker : textMarker, sizeof m_marker);
}

bool TARN_CharStreamable::getIsContentId() const {
    return std::memcmp(m_marker, contentIdMarker, sizeof m_marker) == 0;
}

BRIMOutputStream& TARN_CharStreamable::operator>>(BRIMOutputStream& out) const {
    const auto write = [this](BRIMOutputStream& target) {
        if (m_streamable != nullptr)
            *m_streamable >> target;
        else if (m_data != nullptr)
            target.write(m_data, std::strlen(m_data));
    };
    ZEL_TRY {
        if (m_base64) {
            BRIMBase64OutputStream encoder(out);
            write(encoder);
            encoder.close();
        } else {
            write(out);
        }
        return out;
    }
    ZEL_CATCH("TARN_CharStreamable::operator>>");
}

bool TARN_CharStreamable::sharesSourceWith(const TARN_CharStreamable& other) const {
    return std::memcmp(m_marker, other.m_marker, sizeof m_marker) == 0 &&
           m_streamable == other.m_streamable && m_data == other.m_data &&
           m_base64 == other.m_base64;
}
