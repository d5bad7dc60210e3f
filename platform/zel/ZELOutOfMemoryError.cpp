#include "zel/ZELOutOfMemoryError.h"

#include <zel/ZELDefineThrowable.h>

ZELOutOfMemoryError::ZELOutOfMemoryError(int errorCode, const char* text) noexcept
    : ZELThrowable(eZELFatal, errorCode), m_text(text) {}

ZEL_DEFINE_PLAIN_THROWABLE(ZELOutOfMemoryError, "ZELOutOfMemoryError::clone");

void ZELOutOfMemoryError::describe(std::string& text) const {
    text += *getText() ? getText() : "out of memory";
}
