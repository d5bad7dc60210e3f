#include "core/NumberedError.h"

#include <korva/KORVAException.h>
#include <korva/KORVAZELMessage.h>
#include <zel/I18NString.h>
#include <zel/ZELFrame.h>
#include <zel/ZELMessageParm.h>
#include <zel/ZELPrintable.h>
#include <zel/ZELThrow.h>

namespace korva {

void raise(std::uint32_t messageId, std::initializer_list<const char*> parameters,
           ZELFileLocation location, const char* function) {
    KORVAException exception(0);
    ZEL_TRY {
        KORVAZELMessage message(messageId);
        for (const char* parameter : parameters)
            message << ZELMessageParm(zel::printable(parameter != nullptr ? parameter : ""));
        exception << message;
    }
    ZEL_CATCH(function);
    exception.hurl(location, function, "ZEL_THROW");
}

}  // namespace korva
