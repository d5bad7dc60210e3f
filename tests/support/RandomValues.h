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
    enum Density { eFull, eSparse };

    /// What follows depends on the arguments alone.
    /// @param density whether every child gets a value, or two in three
    void restart(std::uint32_t seed, Density density = eFull) {
        m_engine.seed(seed);
        m_density = density;
    }

    std::string text(const std::string& place) override;
    std::string bytes(const std::string& place) override;
    int number() override;
    float fraction() override;
    bool flag() override { return choose(2) == 1; }
    bool leavesOut() override { return m_density == eSparse && choose(3) == 0; }
    std::size_t arraySize() override;
    std::size_t choose(std::size_t count) override { return m_engine() % count; }
    bool takesEmptyEnums() override { return false; }

private:
    std::mt19937 m_engine;
    Density m_density = eFull;
};

}  // namespace korva::test
