#include "korva/KORVAException.h"

#include <i18n/KORVAMessageCatalogue.h>
#include <zel/ZELFrame.h>
#include <zel/ZELMessage.h>

KORVAException::KORVAException(int errorCode) noexcept : ZELException(errorCode) {}

KORVAException::KORVAException(ZELSeverity severity, int errorCode) noexcept
    : ZELException(severity, errorCode) {}

KORVAException::KORVAException(const char* text) noexcept : ZELException(text) {}

KORVAException::KORVAException(ZELSeverity severity, const char* text) noexcept
    : ZELException(severity, text) {}

KORVAException::KORVAException(const KORVAException&) noexcept = default;

KORVAException& KORVAException::operator=(const KORVAException& other) noexcept {
    if (this != &other) ZELException::operator=(other);
    return *this;
}

KORVAException::~KORVAException() = default;

KORVAException* KORVAException::clone() const {
    ZEL_TRY {
        return new KORVAException(*this);
    }
    ZEL_CATCH("KORVAException::clone()");
}

const char* KORVAException::getThrowableName() const noexcept {
    return "KORVAException";
}

void KORVAException::hurl(ZELFileLocation location, const char* function, const char* macro) {
    addBackTrace(location, function, macro);
    throw KORVAException(*this);
}

const char* KORVAException::findMessageText(const ZELMessage& message) const {
    return KORVAMessageCatalogue::find(message.getId());
}
