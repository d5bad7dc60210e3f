/// Turns the exceptions of Xerces-C into those of the platform.
#pragma once

#include <zel/ZELFileLocation.h>

namespace zelidom {

/// Translates the exception that is being handled and throws the result: ZELIDOM_Error for what the
/// DOM and the parser report, with their text, ZELOutOfMemoryError for exhausted memory. All else
/// goes on as `ZEL_CATCH` has it.
[[noreturn]] void translate(ZELFileLocation location, const char* function);

}  // namespace zelidom

/// Closes a `ZEL_TRY` around calls of Xerces-C.
#define ZELIDOM_CATCH(function)                       \
    catch (...) {                                     \
        ::zelidom::translate(ZEL_LOCATION, function); \
    }
