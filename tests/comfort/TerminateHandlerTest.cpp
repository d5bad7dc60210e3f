#include <korva/KORVASeverityEnum.h>
#include <korva/KORVA_TerminateHandler.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <exception>
#include <stdexcept>

namespace {

[[noreturn]] void leaveWith(void (*failing)()) noexcept {
    failing();
    std::terminate();
}

TEST(TerminateHandlerDeathTest, PrintsTheTextOfAFailureOfTheLibrary) {
    EXPECT_DEATH(
        {
            KORVA_TerminateHandler::install();
            KORVA_TerminateHandler::install();
            leaveWith([] { KORVASeverityEnum::stringToEnum("harmless"); });
        },
        "terminated by an exception that nobody catches: KORVAException: .*severityEnum:harmless");
}

TEST(TerminateHandlerDeathTest, PrintsTheTextOfAStandardException) {
    EXPECT_DEATH(
        {
            KORVA_TerminateHandler::install();
            leaveWith([] { throw std::runtime_error("out of paper"); });
        },
        "terminated by an exception that nobody catches: out of paper");
}

TEST(TerminateHandlerDeathTest, PrintsThatTheClassIsUnknown) {
    EXPECT_DEATH(
        {
            KORVA_TerminateHandler::install();
            leaveWith([] { throw 7; });
        },
        "terminated by an exception that nobody catches: of a class that isn't known here");
}

TEST(TerminateHandlerDeathTest, CallsTheHandlerThatThereWas) {
    EXPECT_EXIT(
        {
            std::set_terminate([] { std::_Exit(7); });
            KORVA_TerminateHandler::install();
            leaveWith([] { throw std::runtime_error("out of paper"); });
        },
        testing::ExitedWithCode(7), "out of paper");
}

}  // namespace
