#include "tarn/TARNBase64Binary.h"

#include <zel/ZELAssert.h>

#include <cstring>

TARNBase64Binary::~TARNBase64Binary() = default;

void TARNBase64Binary::reference(const char* bytes, std::size_t length) {
    ZEL_ASSERT(bytes != NULL || length == 0);
    m_streamable = nullptr;
    m_bytes = length != 0 ? bytes : nullptr;
    m_length = length;
}

void TARNBase64Binary::reference(const TARN_Streamable& streamable) {
    m_streamable = &streamable;
    m_bytes = nullptr;
    m_length = 0;
}

bool TARNBase64Binary::isEqualTo(const TARNBase64Binary& other) const {
    return m_isContentId == other.m_isContentId && m_streamable == other.m_streamable &&
           m_length == other.m_length &&
           (m_length == 0 || std::memcmp(m_bytes, other.m_bytes, m_length) == 0);
}
