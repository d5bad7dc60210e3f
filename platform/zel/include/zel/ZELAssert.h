/// Assertions that are part of the behaviour: they stand in every build and raise
/// `ZELAssertError`, so that a caller can catch a broken precondition.
///
/// The text of the error is the macro call as it is written, made in the macro that the source
/// calls, so that `NULL` and other macros in a condition stay as they stand:
///
///     ZEL_ASSERT(name);                   // ZEL_ASSERT(name);
///     ZEL_ASSERT_NAMED(type, "No type");  // ZEL_ASSERT_NAMED(type, "No type");
///
/// Code that is driven by tables, and so has no literal, checks by itself and calls
/// `zel::assertionFailed` with the text that it composed.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELFileLocation.h>

namespace zel {

/// @throws ZELAssertError always, with a copy of `text`, which may be a temporary
[[noreturn]] ZEL_EXPORT void assertionFailed(const char* text, ZELFileLocation location);

/// The same for a literal, which needs no copy: what the macros call.
[[noreturn]] ZEL_EXPORT void literalAssertionFailed(const char* literal, ZELFileLocation location);

}  // namespace zel

#define ZEL_ASSERT(condition)           \
    ((condition) ? static_cast<void>(0) \
                 : ::zel::literalAssertionFailed("ZEL_ASSERT(" #condition ");", ZEL_LOCATION))

#define ZEL_ASSERT_NAMED(condition, text)                                                        \
    ((condition) ? static_cast<void>(0)                                                          \
                 : ::zel::literalAssertionFailed("ZEL_ASSERT_NAMED(" #condition ", " #text ");", \
                                                 ZEL_LOCATION))
