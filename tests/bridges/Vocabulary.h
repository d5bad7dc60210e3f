/// Objects of all types of the schema at random.
#pragma once

#include "tests/support/ObjectFiller.h"
#include "tests/support/RandomValues.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace korva::test {

/// Calls `action` with objects of each concrete type that `takes`, filled at random, `seeds` times:
/// all of it, or only some, in turn. Returns how many there were.
template <class Action, class Predicate = decltype(canBeRoot)>
std::size_t forEachRandomObject(std::uint32_t seeds, Action action, Predicate& takes = canBeRoot) {
    const Registry registry = makeRegistry();
    RandomValues values;
    ObjectFiller filler(builtSchema(), registry, values);
    std::size_t count = 0;
    for (const auto& [name, type] : builtSchema()) {
        if (type.isAbstract) continue;
        if (type.family == SchemaType::eEnum && type.words.empty()) continue;
        if (!takes(name, type)) continue;
        for (std::uint32_t seed = 1; seed <= seeds; ++seed) {
            SCOPED_TRACE(name + ", seed " + std::to_string(seed));
            values.restart(seed * 7919U + static_cast<std::uint32_t>(identityOf("bus:" + name)),
                           seed % 2 == 0 ? RandomValues::eSparse : RandomValues::eFull);
            action(filler.make(name));
            registry->clean();
            ++count;
            if (testing::Test::HasFailure()) return count;
        }
    }
    return count;
}

}  // namespace korva::test
