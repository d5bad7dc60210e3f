#include "zel/ZELStdExceptionError.h"

#include <zel/ZELFrame.h>

ZELStdExceptionError::ZELStdExceptionError(const std::exception& exception) noexcept
    : ZELThrowable(eZELError, 0), m_text(exception.what()) {}

ZELStdExceptionError::ZELStdExceptionError(const ZELStdExceptionError&) noexcept = default;
ZELStdExceptionError& ZELStdExceptionError::operator=(const ZELStdExceptionError&) noexcept =
    default;
ZELStdExceptionError::~ZELStdExceptionError() = default;

void ZELStdExceptionError::hurl(ZELFileLocation location, const char* function, const char* macro) {
    addBackTrace(location, function, macro);
    throw ZELStdExceptionError(*this);
}

ZELStdExceptionError* ZELStdExceptionError::clone() const {
    ZEL_TRY {
        return new ZELStdExceptionError(*this);
    }
    ZEL_CATCH("ZELStdExceptionError::clone");
}

const char* ZELStdExceptionError::getThrowableName() const noexcept {
    return "ZELStdExceptionError";
}

void ZELStdExceptionError::describe(std::string& text) const {
    text += getText();
}
