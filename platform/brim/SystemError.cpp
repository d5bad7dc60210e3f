#include "platform/brim/SystemError.h"

#include <brim/BRIMStreamError.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

#include <string>
#include <system_error>

void brim::raiseSystemError(ZELFileLocation location, const char* function, const char* subject,
                            int error) {
    ZEL_TRY {
        const std::string text =
            std::string(subject) + ": " + std::generic_category().message(error);
        zel::raise(location, BRIMStreamError(text.c_str()), function);
    }
    ZEL_CATCH(function);
}
