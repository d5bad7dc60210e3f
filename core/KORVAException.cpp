#include "korva/KORVAException.h"

#include <i18n/KORVAMessageCatalogue.h>
#include <zel/ZELDefineThrowable.h>
#include <zel/ZELMessage.h>

KORVAException::KORVAException(int errorCode) noexcept : ZELException(errorCode) {}

KORVAException::KORVAException(ZELSeverity severity, int errorCode) noexcept
    : ZELException(severity, errorCode) {}

KORVAException::KORVAException(const char* text) noexcept : ZELException(text) {}

KORVAException::KORVAException(ZELSeverity severity, const char* text) noexcept
    : ZELException(severity, text) {}

ZEL_DEFINE_PLAIN_THROWABLE(KORVAException, "KORVAException::clone()");

const char* KORVAException::findMessageText(const ZELMessage& message) const {
    return KORVAMessageCatalogue::find(message.getId());
}
