#include "zel/ZELOutOfMemoryError.h"

#include <zel/ZELFrame.h>

ZELOutOfMemoryError::ZELOutOfMemoryError(int errorCode, const char* text) noexcept
    : ZELThrowable(eZELFatal, errorCode), m_text(text) {}

ZELOutOfMemoryError::ZELOutOfMemoryError(const ZELOutOfMemoryError&) noexcept = default;
ZELOutOfMemoryError& ZELOutOfMemoryError::operator=(const ZELOutOfMemoryError&) noexcept = default;
ZELOutOfMemoryError::~ZELOutOfMemoryError() = default;

void ZELOutOfMemoryError::hurl(ZELFileLocation location, const char* function, const char* macro) {
    addBackTrace(location, function, macro);
    throw ZELOutOfMemoryError(*this);
}

ZELOutOfMemoryError* ZELOutOfMemoryError::clone() const {
    ZEL_TRY {
        return new ZELOutOfMemoryError(*this);
    }
    ZEL_CATCH("ZELOutOfMemoryError::clone");
}

const char* ZELOutOfMemoryError::getThrowableName() const noexcept {
    return "ZELOutOfMemoryError";
}

void ZELOutOfMemoryError::describe(std::string& text) const {
    text += *getText() ? getText() : "out of memory";
}
