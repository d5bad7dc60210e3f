#include "core/NumberedError.h"

#include <korva/KORVAException.h>
#include <korva/KORVAZELMessage.h>
#include <zel/ZELFrame.h>
#include <zel/ZELMessageParm.h>
#include <zel/ZELPrintable.h>
#include <zel/ZELThrow.h>

namespace korva {

void addMessage(KORVAException& exception, const NumberedMessage& message) {
    KORVAZELMessage numbered(message.id);
    for (const char* const parameter : message.parameters)
        numbered << ZELMessageParm(zel::printable(parameter != nullptr ? parameter : ""));
    exception << numbered;
}

void raise(std::initializer_list<NumberedMessage> messages, ZELFileLocation location,
           const char* function) {
    KORVAException exception(0);
    ZEL_TRY {
        for (const NumberedMessage& message : messages)
            addMessage(exception, message);
    }
    ZEL_CATCH(function);
    exception.hurl(location, function, "ZEL_THROW");
}

}  // namespace korva
