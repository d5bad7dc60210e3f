/// The ways to throw: each records the place in the exception's back trace.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELFileLocation.h>

class ZELThrowable;

namespace zel {

/// Throws a copy of `throwable` as its dynamic type.
[[noreturn]] ZEL_EXPORT void raise(ZELFileLocation location, ZELThrowable& throwable,
                                   const char* function = nullptr);
[[noreturn]] ZEL_EXPORT void raise(ZELFileLocation location, ZELThrowable&& throwable,
                                   const char* function = nullptr);

/// Throws on what is being handled, which `caught` must be.
[[noreturn]] ZEL_EXPORT void rethrow(ZELFileLocation location, ZELThrowable& caught,
                                     const char* function = nullptr, const char* detail = nullptr);

}  // namespace zel

/// `ZEL_THROW(exception)` or `ZEL_THROW(exception, function)`: throws a copy of `exception` with
/// this place as the newest line of its back trace. `function` names the thrower, as a literal.
#define ZEL_THROW(...) ::zel::raise(ZEL_LOCATION, __VA_ARGS__)

/// `ZEL_RETHROW(caught)`, `ZEL_RETHROW(caught, function)` or `ZEL_RETHROW(caught, function,
/// detail)` inside `catch (ZELThrowable& caught)`: adds this place to the back trace and lets the
/// same exception go on. `detail` is more text for the line.
#define ZEL_RETHROW(...) ::zel::rethrow(ZEL_LOCATION, __VA_ARGS__)
