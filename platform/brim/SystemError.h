/// Tells of the failure of a call to the operating system.
#pragma once

#include <zel/ZELFileLocation.h>

namespace brim {

/// `subject` is a path or says what was tried; `error` is the value of `errno`.
/// @throws BRIMStreamError always, with the text "subject: what the system says"
[[noreturn]] void raiseSystemError(ZELFileLocation location, const char* function,
                                   const char* subject, int error);

}  // namespace brim
