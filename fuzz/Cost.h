/// What an attack may cost: a limit on time and memory that breaks it off.
#pragma once

#include <cstddef>

namespace korva::fuzz {

/// Measures from its begin to its end. Ends the process, with a line that says why, as soon as the
/// attack holds more than 64 MB and 16 times its input, and at its end if that took more than a
/// second of the processor's time. One at a time, in one thread.
///
/// Memory is what `malloc` and its kin gave and didn't get back, whichever library asked. It is
/// counted under the address sanitizer, and with glibc without a sanitizer; elsewhere it is not.
class Cost {
public:
    explicit Cost(std::size_t inputSize) noexcept;
    Cost(const Cost&) = delete;
    Cost& operator=(const Cost&) = delete;
    ~Cost() = default;

    /// Ends the measurement.
    void check();

    /// The most memory that was held at once so far, in bytes.
    static std::size_t peak() noexcept;
    /// The processor's time until now, in seconds.
    double seconds() const noexcept;

private:
    double m_begin;
};

}  // namespace korva::fuzz
