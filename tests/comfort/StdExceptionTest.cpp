#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAException.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVA_StdException.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

using korva::translated;
using korva::test::AllocationFailure;

void readAnUnknownWord() {
    KORVASeverityEnum::stringToEnum("harmless");
}

TEST(StdException, TellsWhatTheOriginalTells) {
    std::string expected;
    try {
        readAnUnknownWord();
    } catch (const ZELThrowable& error) {
        expected = error.toString();
    }
    try {
        translated(readAnUnknownWord);
        FAIL();
    } catch (const std::exception& error) {
        EXPECT_EQ(error.what(), expected);
        EXPECT_NE(expected.find("severityEnum:harmless"), std::string::npos);
    }
}

TEST(StdException, HoldsTheOriginalAsItsClass) {
    try {
        translated(readAnUnknownWord);
        FAIL();
    } catch (const KORVA_StdException& error) {
        ASSERT_NE(error.originalAs<KORVAException>(), nullptr);
        EXPECT_EQ(error.originalAs<KORVAException>()->getMessages()[0].getId(), 0xEA45DC29U);
        EXPECT_EQ(error.originalAs<ZELAssertError>(), nullptr);
        EXPECT_NUMBERED(error.raiseOriginal(ZEL_LOCATION), 0xEA45DC29U, "_stringToEnum()",
                        "severityEnum:harmless");
    }
}

TEST(StdException, GivesWhatTheFunctionGives) {
    EXPECT_EQ(translated([] { return 7; }), 7);
    int number = 0;
    int& same = translated([&]() -> int& { return number; });
    EXPECT_EQ(&same, &number);
    translated([&] { number = 1; });
    EXPECT_EQ(number, 1);
}

TEST(StdException, LetsOtherExceptionsPass) {
    EXPECT_THROW(translated([] { throw std::out_of_range("x"); }), std::out_of_range);
    EXPECT_THROW(translated([] { throw 7; }), int);
}

TEST(StdException, CopiesOutliveWhatTheyAreCopiesOf) {
    auto first = std::make_unique<KORVA_StdException>(ZELOutOfMemoryError(0, "a plan"));
    KORVA_StdException second(KORVAException(1));
    second = *first;
    const KORVA_StdException third(second);
    first.reset();
    EXPECT_NE(std::string(second.what()).find("a plan"), std::string::npos);
    EXPECT_EQ(&third.original(), &second.original());
    EXPECT_NE(third.originalAs<ZELOutOfMemoryError>(), nullptr);
}

TEST(StdException, IsBadAllocWhereNoMemoryIsLeftToHoldTheOriginal) {
    const ZELOutOfMemoryError error(0, nullptr);
    for (std::size_t n = 1;; ++n) {
        const std::size_t live = korva::test::liveAllocations();
        bool failed = false;
        bool raised = false;
        {
            const AllocationFailure failure(n);
            try {
                const KORVA_StdException held(error);
                const KORVA_StdException copy(held);
                EXPECT_EQ(held.what(), copy.what());
                EXPECT_EQ(&held.original(), &copy.original());
            } catch (const std::bad_alloc&) {
                raised = true;
            }
            failed = failure.happened();
        }
        EXPECT_EQ(korva::test::liveAllocations(), live) << n;
        if (!failed) break;
        // Without memory the description is short, and nothing is raised for it.
        EXPECT_TRUE(raised || n > 1);
    }
}

TEST(StdException, IsReadByTwoThreadsAtOnce) {
    std::exception_ptr failure;
    try {
        translated(readAnUnknownWord);
    } catch (...) {
        failure = std::current_exception();
    }
    const auto read = [&failure] {
        try {
            std::rethrow_exception(failure);
        } catch (const KORVA_StdException& error) {
            const KORVA_StdException copy(error);
            EXPECT_NE(std::string(copy.what()).find("harmless"), std::string::npos);
        }
    };
    std::thread other(read);
    read();
    other.join();
}

}  // namespace
