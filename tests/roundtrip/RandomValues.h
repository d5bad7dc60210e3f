/// Values that are hard on a wire form.
#pragma once

#include "tests/support/FillerValues.h"

#include <cstdint>
#include <random>
#include <string>

namespace korva::test {

/// Random values, the same for each seed everywhere: texts with markup, line ends, blanks and
/// characters of all lengths; the least and the greatest numbers; floats that two decimals can
/// tell; binary values of all bytes; arrays of none, one or three elements.
class RandomValues : public FillerValues {
public:
    /// What follows depends on `seed` alone.
    void restart(std::uint32_t seed) { m_engine.seed(seed); }

    std::string text(const std::string& place) override;
    std::string bytes(const std::string& place) override;
    int number() override;
    float fraction() override;
    bool flag() override { return choose(2) == 1; }
    std::size_t arraySize() override;
    std::size_t choose(std::size_t count) override { return m_engine() % count; }
    bool takesEmptyEnums() override { return false; }

private:
    std::mt19937 m_engine;
};

}  // namespace korva::test
