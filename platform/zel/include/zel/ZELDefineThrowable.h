/// Defines what every class of ZELThrowable's family has in the same form.
#pragma once

#include <zel/ZELFrame.h>

/// `hurl`, `clone` and `getThrowableName` of `Class`, which declares them and can be copied. A
/// failure of `clone` is told under `cloneLabel`.
#define ZEL_DEFINE_THROWABLE(Class, cloneLabel)                                           \
    void Class::hurl(ZELFileLocation location, const char* function, const char* macro) { \
        addBackTrace(location, function, macro);                                          \
        throw Class(*this);                                                               \
    }                                                                                     \
    Class* Class::clone() const {                                                         \
        ZEL_TRY {                                                                         \
            return new Class(*this);                                                      \
        }                                                                                 \
        ZEL_CATCH(cloneLabel);                                                            \
    }                                                                                     \
    const char* Class::getThrowableName() const noexcept {                                \
        return #Class;                                                                    \
    }                                                                                     \
    static_assert(true, "takes the semicolon")

/// These, and copying, assignment and destruction as the compiler would make them.
#define ZEL_DEFINE_PLAIN_THROWABLE(Class, cloneLabel)         \
    Class::Class(const Class&) noexcept = default;            \
    Class& Class::operator=(const Class&) noexcept = default; \
    Class::~Class() = default;                                \
    ZEL_DEFINE_THROWABLE(Class, cloneLabel)
