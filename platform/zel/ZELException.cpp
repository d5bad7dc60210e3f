#include "zel/ZELException.h"

#include <zel/ZELDefineThrowable.h>
#include <zel/ZELFrame.h>

ZELException::ZELException(int errorCode) noexcept : ZELException(eZELError, errorCode) {}

ZELException::ZELException(ZELSeverity severity, int errorCode) noexcept
    : ZELThrowable(severity, errorCode), m_fromText(false) {}

ZELException::ZELException(const char* text) noexcept : ZELException(eZELError, text) {}

ZELException::ZELException(ZELSeverity severity, const char* text) noexcept
    : ZELThrowable(severity, 0), m_text(text), m_fromText(true) {}

ZEL_DEFINE_PLAIN_THROWABLE(ZELException, "ZELException::clone");

const char* ZELException::getErrorCodeString() const noexcept {
    return m_fromText ? m_text.get() : ZELThrowable::getErrorCodeString();
}

ZELException& ZELException::operator<<(const ZELMessage& message) {
    ZEL_TRY {
        add(message);
    }
    ZEL_CATCH("ZELException::operator<<");
    return *this;
}

const char* ZELException::findMessageText(const ZELMessage&) const {
    return nullptr;
}

void ZELException::describe(std::string& text) const {
    if (getMessages().empty()) {
        if (!m_fromText) text += "error ";
        text += getErrorCodeString();
        return;
    }
    const char* separator = "";
    for (const ZELMessage& message : getMessages()) {
        text += separator;
        message.fill(findMessageText(message), text);
        separator = "\n";
    }
}
