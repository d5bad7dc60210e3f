#include "tarn/TARNTypeError.h"

#include <zel/ZELFrame.h>

TARNTypeError::TARNTypeError(const char* text) noexcept : ZELException(text) {}

TARNTypeError::TARNTypeError(const TARNTypeError&) noexcept = default;
TARNTypeError& TARNTypeError::operator=(const TARNTypeError&) noexcept = default;
TARNTypeError::~TARNTypeError() = default;

void TARNTypeError::hurl(ZELFileLocation location, const char* function, const char* macro) {
    addBackTrace(location, function, macro);
    throw TARNTypeError(*this);
}

TARNTypeError* TARNTypeError::clone() const {
    ZEL_TRY {
        return new TARNTypeError(*this);
    }
    ZEL_CATCH("TARNTypeError::clone");
}

const char* TARNTypeError::getThrowableName() const noexcept {
    return "TARNTypeError";
}
