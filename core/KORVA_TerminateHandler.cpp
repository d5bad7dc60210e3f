#include "korva/KORVA_TerminateHandler.h"

#include <zel/ZELThrowable.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

constinit std::atomic<std::terminate_handler> previousHandler{nullptr};

void print(const char* text) {
    std::fputs("terminated by an exception that nobody catches: ", stderr);
    std::fputs(text, stderr);
    std::fputc('\n', stderr);
}

void printException(const std::exception_ptr& exception) noexcept {
    if (exception == nullptr) return;
    try {
        std::rethrow_exception(exception);
    } catch (const ZELThrowable& error) {
        print(error.toString());
    } catch (const std::exception& error) {
        print(error.what());
    } catch (...) {
        print("of a class that isn't known here");
    }
}

[[noreturn]] void tellAndTerminate() {
    printException(std::current_exception());
    if (const std::terminate_handler previous = previousHandler.load()) previous();
    std::abort();
}

}  // namespace

void KORVA_TerminateHandler::install() noexcept {
    const std::terminate_handler previous = std::set_terminate(&tellAndTerminate);
    if (previous != &tellAndTerminate) previousHandler.store(previous);
}
