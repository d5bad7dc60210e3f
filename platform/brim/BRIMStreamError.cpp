#include "brim/BRIMStreamError.h"

#include <zel/ZELDefineThrowable.h>

BRIMStreamError::BRIMStreamError(const char* text) noexcept : ZELException(text) {}

ZEL_DEFINE_PLAIN_THROWABLE(BRIMStreamError, "BRIMStreamError::clone");
