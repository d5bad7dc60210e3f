// Objects nested far deeper than a stack could follow.

#include "tests/support/Registry.h"

#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASimpleParmValueItem.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Item = KORVAHierarchicalParmValueItem;

constexpr std::size_t depth = 200000;

/// A chain of items, each in the array of the one above; `use` is the text of the last.
Item& makeChain(const Registry& registry, const char* use) {
    auto* const top = registry->make<Item>();
    Item* last = top;
    for (std::size_t i = 1; i < depth; ++i) {
        auto* const next = registry->make<Item>();
        next->setInclusive(true);
        last->getSubNodes().push_back(next);
        last = next;
    }
    last->getValue(registry.get())->setUse(use);
    return *top;
}

std::size_t depthOf(const Item& top, const Item*& last) {
    std::size_t count = 1;
    last = &top;
    while (!last->getSubNodes().empty()) {
        last = last->getSubNodes().at(0);
        ++count;
    }
    return count;
}

TEST(Depth, CopyAndComparisonNeedNoStack) {
    const Registry copies = makeRegistry();
    const Item* copy = nullptr;
    {
        const Registry sources = makeRegistry();
        const Item& source = makeChain(sources, "last");
        copy = static_cast<const Item*>(
            &KORVASchemaTypesFactory::getInstance().createCopy(source, *copies));
        EXPECT_TRUE(*copy == source);
        EXPECT_FALSE(*copy != source);
        const Item& other = makeChain(sources, "other");
        EXPECT_FALSE(*copy == other);
        const Item direct(source, *copies);
        EXPECT_TRUE(direct == source);
    }
    const Item* last = nullptr;
    EXPECT_EQ(depthOf(*copy, last), depth);
    EXPECT_STREQ(last->getValue()->getUse(), "last");
    EXPECT_TRUE(*last->getInclusive());
}

TEST(Depth, ArraysOfDeepObjectsNeedNoStackEither) {
    const Registry registry = makeRegistry();
    KORVAHierarchicalParmValueItemArray array;
    array.push_back(&makeChain(registry, "last"));
    const KORVAHierarchicalParmValueItemArray copy(array, *registry);
    EXPECT_TRUE(copy == array);
}

}  // namespace
