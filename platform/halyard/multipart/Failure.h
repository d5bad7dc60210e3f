/// The failures of a message that can't be read or written.
#pragma once

#include <zel/ZELFileLocation.h>

#include <string_view>

namespace halyard {

/// @throws BRIMStreamError always, with the text "multipart: " and `text`
[[noreturn]] void refuse(std::string_view text, ZELFileLocation location, const char* function);

/// @throws BRIMStreamError always; it names the limit, its value and the operation that sets it
[[noreturn]] void refuseLimit(std::string_view limit, unsigned long long value,
                              std::string_view setter, ZELFileLocation location,
                              const char* function);

}  // namespace halyard
