#include "brim/BRIMStreamError.h"

#include <zel/ZELFrame.h>

BRIMStreamError::BRIMStreamError(const char* text) noexcept : ZELException(text) {}

BRIMStreamError::BRIMStreamError(const BRIMStreamError&) noexcept = default;
BRIMStreamError& BRIMStreamError::operator=(const BRIMStreamError&) noexcept = default;
BRIMStreamError::~BRIMStreamError() = default;

void BRIMStreamError::hurl(ZELFileLocation location, const char* function, const char* macro) {
    addBackTrace(location, function, macro);
    throw BRIMStreamError(*this);
}

BRIMStreamError* BRIMStreamError::clone() const {
    ZEL_TRY {
        return new BRIMStreamError(*this);
    }
    ZEL_CATCH("BRIMStreamError::clone");
}

const char* BRIMStreamError::getThrowableName() const noexcept {
    return "BRIMStreamError";
}
