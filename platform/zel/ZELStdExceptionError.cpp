#include "zel/ZELStdExceptionError.h"

#include <zel/ZELDefineThrowable.h>

ZELStdExceptionError::ZELStdExceptionError(const std::exception& exception) noexcept
    : ZELThrowable(eZELError, 0), m_text(exception.what()) {}

ZEL_DEFINE_PLAIN_THROWABLE(ZELStdExceptionError, "ZELStdExceptionError::clone");

void ZELStdExceptionError::describe(std::string& text) const {
    text += getText();
}
