#include "korva/KORVA_String.h"

#include <korva/KORVA_RefCount_ConstChar.h>
#include <zel/ZELAssert.h>

namespace {

bool isWhiteSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

}  // namespace

KORVA_String::KORVA_String() : ZELByteBuffer(1, 128, 0) {}
KORVA_String::~KORVA_String() = default;

void KORVA_String::trim() {
    if (m_length == 0) return;
    ZEL_ASSERT(m_pBuffer);
    std::size_t first = 0;
    while (first < m_length && isWhiteSpace(m_pBuffer[first]))
        ++first;
    if (first == m_length) {
        reset();
        return;
    }
    std::size_t last = m_length;
    while (isWhiteSpace(m_pBuffer[last - 1]))
        --last;
    truncate(last);
    chop(first);
}
