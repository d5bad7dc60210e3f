#include "tarn/TARNTypeError.h"

#include <zel/ZELDefineThrowable.h>

TARNTypeError::TARNTypeError(const char* text) noexcept : ZELException(text) {}

ZEL_DEFINE_PLAIN_THROWABLE(TARNTypeError, "TARNTypeError::clone");
