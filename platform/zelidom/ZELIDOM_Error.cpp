#include "zelidom/ZELIDOM_Error.h"

#include <zel/ZELFrame.h>

ZELIDOM_Error::ZELIDOM_Error(const char* text) noexcept : ZELException(text) {}

ZELIDOM_Error::ZELIDOM_Error(const ZELIDOM_Error&) noexcept = default;
ZELIDOM_Error& ZELIDOM_Error::operator=(const ZELIDOM_Error&) noexcept = default;
ZELIDOM_Error::~ZELIDOM_Error() = default;

void ZELIDOM_Error::hurl(ZELFileLocation location, const char* function, const char* macro) {
    addBackTrace(location, function, macro);
    throw ZELIDOM_Error(*this);
}

ZELIDOM_Error* ZELIDOM_Error::clone() const {
    ZEL_TRY {
        return new ZELIDOM_Error(*this);
    }
    ZEL_CATCH("ZELIDOM_Error::clone");
}

const char* ZELIDOM_Error::getThrowableName() const noexcept {
    return "ZELIDOM_Error";
}
