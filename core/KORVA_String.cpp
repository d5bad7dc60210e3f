#include "korva/KORVA_String.h"

#include "types/Numbers.h"

#include <korva/KORVA_RefCount_ConstChar.h>
#include <zel/ZELAssert.h>

KORVA_String::KORVA_String() : ZELByteBuffer(1, 128, 0) {}
KORVA_String::~KORVA_String() = default;

void KORVA_String::trim() {
    if (m_length == 0) return;
    ZEL_ASSERT(m_pBuffer);
    const std::string_view rest = types::trimmed({m_pBuffer, m_length});
    if (rest.empty()) {
        reset();
        return;
    }
    const auto first = static_cast<std::size_t>(rest.data() - m_pBuffer);
    truncate(first + rest.size());
    chop(first);
}
