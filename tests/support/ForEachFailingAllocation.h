/// Runs an operation again and again, with each of its allocations failing in turn.
#pragma once

#include "tests/support/AllocationFailure.h"

#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELThrowable.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <exception>

namespace korva::test {

/// What a failed allocation may come to beside ZELOutOfMemoryError.
enum class Absorbed {
    Never,    ///< nothing else
    Harmless  ///< the operation may get through, if it sees to it that its outcome is as ever, or
              ///< tell another failure: a foreign library was asked, which does not tell of memory
};

/// Runs `operation` with its first allocation failing, then with its second, and so on, until it
/// gets through. Each failure must leave the operation as `ZELOutOfMemoryError` and leave nothing
/// allocated behind. One run before all others fills what is made on first use.
/// Returns how many allocations the operation makes.
template <class Operation>
std::size_t forEachFailingAllocation(Operation operation, Absorbed absorbed = Absorbed::Never) {
    operation();
    for (std::size_t n = 1;; ++n) {
        const std::size_t live = liveAllocations();
        bool failed = false;
        bool raised = false;
        const char* other = nullptr;
        {
            const AllocationFailure failure(n);
            try {
                operation();
            } catch (const ZELOutOfMemoryError&) {
                raised = true;
            } catch (const ZELThrowable&) {
                other = absorbed == Absorbed::Harmless ? nullptr : "another failure";
                raised = absorbed == Absorbed::Harmless;
            } catch (const std::exception&) {
                other = "a standard exception";
            } catch (...) {
                other = "another exception";
            }
            failed = failure.happened();
        }
        EXPECT_EQ(liveAllocations(), live) << "leak after failure of allocation " << n;
        EXPECT_EQ(other, nullptr) << other << " after failure of allocation " << n;
        if (!failed) {
            EXPECT_FALSE(raised) << "ZELOutOfMemoryError without a failed allocation";
            return n - 1;
        }
        EXPECT_TRUE(raised || other != nullptr || absorbed == Absorbed::Harmless)
            << "failure of allocation " << n << " is lost";
    }
}

}  // namespace korva::test
