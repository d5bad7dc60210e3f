#include "zel/ZELAssertError.h"

#include <zel/ZELAssert.h>
#include <zel/ZELDefineThrowable.h>

ZELAssertError::ZELAssertError(ZELSeverity severity, int errorCode, const char* text) noexcept
    : ZELThrowable(severity, errorCode), m_text(text) {}

ZELAssertError::ZELAssertError(int severity, int errorCode, const char* text) noexcept
    : ZELAssertError(severity == 0 ? eZELFatal : static_cast<ZELSeverity>(severity), errorCode,
                     text) {}

ZELAssertError::ZELAssertError(const ZELText& text) noexcept
    : ZELThrowable(eZELFatal, 0), m_text(text) {}

ZEL_DEFINE_PLAIN_THROWABLE(ZELAssertError, "ZELAssertError::clone");

void ZELAssertError::describe(std::string& text) const {
    text += getText();
}

void zel::assertionFailed(const char* text, ZELFileLocation location) {
    ZELAssertError(ZELText(text)).hurl(location, nullptr, "ZEL_THROW");
}

void zel::literalAssertionFailed(const char* literal, ZELFileLocation location) {
    ZELAssertError(ZELText::fromLiteral(literal)).hurl(location, nullptr, "ZEL_THROW");
}
