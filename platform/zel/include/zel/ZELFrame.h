/// The frame around code that may throw on its way to a public interface, in its short form:
///
///     KORVAThing* KORVAThing::create() {
///         ZEL_TRY { return new KORVAThing; }
///         ZEL_CATCH("KORVAThing::create");
///     }
///
/// A `ZELThrowable` gets one more line in its back trace and goes on, `std::bad_alloc` becomes
/// `ZELOutOfMemoryError`, any other `std::exception` becomes `ZELStdExceptionError`. Exceptions of
/// neither family pass unchanged. `ZEL_CATCH` always throws, so a function whose `ZEL_TRY` returns
/// needs no `return` behind it. The name may be null.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELFileLocation.h>

namespace zel {

/// Translates the exception that is being handled and throws the result. Out of line, so that a
/// frame costs its caller nothing but a landing pad.
[[noreturn]] ZEL_EXPORT void translate(ZELFileLocation location, const char* function);

}  // namespace zel

#define ZEL_TRY try

#define ZEL_CATCH(function)                       \
    catch (...) {                                 \
        ::zel::translate(ZEL_LOCATION, function); \
    }
