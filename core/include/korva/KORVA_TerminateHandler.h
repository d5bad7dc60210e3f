/// What a program prints when an exception leaves its `main`, or one of its threads.
#pragma once

#include <korva/KORVAExport.h>

/// Without this a failure of the library that nobody catches is told by the name of its class, and
/// often not even that.
class KORVA_EXPORT KORVA_TerminateHandler {
public:
    KORVA_TerminateHandler() = delete;

    /// From now on the text of an exception that nobody catches, a ZELThrowable's or a standard
    /// one's, goes to the standard error stream; then the handler that there was is called, which
    /// ends the process. A second call does nothing. Any thread may call it.
    static void install() noexcept;
};
