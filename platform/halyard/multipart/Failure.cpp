#include "platform/halyard/multipart/Failure.h"

#include <brim/BRIMStreamError.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

#include <string>

void halyard::refuse(std::string_view text, ZELFileLocation location, const char* function) {
    ZEL_TRY {
        const std::string whole = "multipart: " + std::string(text);
        zel::raise(location, BRIMStreamError(whole.c_str()), function);
    }
    ZEL_CATCH(function);
}

void halyard::refuseLimit(std::string_view limit, unsigned long long value, std::string_view setter,
                          ZELFileLocation location, const char* function) {
    ZEL_TRY {
        const std::string whole = "The input exceeds the limit on " + std::string(limit) +
                                  ", which is " + std::to_string(value) +
                                  ". If its source can be trusted, raise the limit with " +
                                  std::string(setter) + ".";
        zel::raise(location, BRIMStreamError(whole.c_str()), function);
    }
    ZEL_CATCH(function);
}
