#include "zelidom/ZELIDOM_Error.h"

#include <zel/ZELDefineThrowable.h>

ZELIDOM_Error::ZELIDOM_Error(const char* text) noexcept : ZELException(text) {}

ZEL_DEFINE_PLAIN_THROWABLE(ZELIDOM_Error, "ZELIDOM_Error::clone");
