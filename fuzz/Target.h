/// What every target is made of: one function, in a file of its own, that takes an input.
#pragma once

#include <zel/ZELThrowable.h>

#include <cstddef>
#include <string_view>

namespace korva::fuzz {

/// Does with `input` what a user of the library does with what a stranger sent. It may throw any
/// ZELThrowable, which is how the library refuses; anything else is a finding, and so is a process
/// that ends, and a cost beyond that of Cost. The XML platform has been started.
void attack(std::string_view input);

/// How many inputs were refused so far.
std::size_t refusedSoFar() noexcept;

/// Ends the process: a claim about the library does not hold.
[[noreturn]] void failed(const char* claim, const char* reason);

/// Ends the process unless the claim holds.
void require(bool holds, const char* claim);

/// Runs an action that the library has no reason to refuse, and gives its result.
template <class Action>
decltype(auto) mustTake(Action action, const char* claim) {
    try {
        return action();
    } catch (const ZELThrowable& refusal) {
        failed(claim, refusal.toString());
    }
}

/// The same for two texts that are claimed to be the same; tells where they part.
void requireSame(std::string_view left, std::string_view right, const char* claim);

}  // namespace korva::fuzz
