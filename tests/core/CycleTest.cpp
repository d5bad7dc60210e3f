// Objects that hold themselves, copied and compared.
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVASchemaTypesFactory.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Item = KORVAHierarchicalParmValueItem;

constexpr unsigned holdsItself = 0xEA4F0005U;
constexpr const char* itemClass = "KORVAHierarchicalParmValueItem";
constexpr const char* arrayClass = "KORVAHierarchicalParmValueItemArray";

KORVASchemaTypeI& copy(const Item& item, const Registry& registry) {
    return KORVASchemaTypesFactory::getInstance().createCopy(item, *registry);
}

/// The last of a chain of items below `top`, each in the array of the one above.
Item& extend(const Registry& registry, Item& top, std::size_t count) {
    Item* last = &top;
    for (std::size_t i = 0; i < count; ++i) {
        auto* const next = registry->make<Item>();
        last->getSubNodes().push_back(next);
        last = next;
    }
    return *last;
}

TEST(Cycle, CopyingAnObjectThatHoldsItselfIsRefused) {
    const Registry registry = makeRegistry();
    Item item;
    item.getSubNodes().push_back(&item);
    EXPECT_NUMBERED(copy(item, registry), holdsItself, nullptr, itemClass, "item", arrayClass);
}

TEST(Cycle, CopyingIsRefusedWhereverTheCycleIs) {
    const Registry registry = makeRegistry();
    Item top;
    extend(registry, top, 12000);
    Item& second = extend(registry, top, 1);
    extend(registry, second, 10).getSubNodes().push_back(&second);
    extend(registry, top, 12000);
    EXPECT_THROW(copy(top, registry), KORVAException);
}

TEST(Cycle, CopyingAnArrayThatHoldsItselfIsRefused) {
    const Registry registry = makeRegistry();
    KORVAHierarchicalParmValueItemArray array;
    Item item;
    array.push_back(&item);
    item.getSubNodes().push_back(&item);
    KORVAHierarchicalParmValueItemArray target;
    EXPECT_THROW(target.copy(array, *registry), KORVAException);
    EXPECT_TRUE(target.empty());
}

TEST(Cycle, ComparingTwoObjectsThatHoldThemselvesIsRefused) {
    Item left;
    Item right;
    left.getSubNodes().push_back(&left);
    right.getSubNodes().push_back(&right);
    EXPECT_NUMBERED(left == right, holdsItself, nullptr, itemClass, "item", arrayClass);
    EXPECT_NUMBERED(left != right, holdsItself, nullptr, itemClass, "item", arrayClass);
    EXPECT_TRUE(left == left);
}

TEST(Cycle, ComparingEndsWhereOneSideDoes) {
    const Registry registry = makeRegistry();
    Item left;
    left.getSubNodes().push_back(&left);
    Item right;
    extend(registry, right, 15000);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
}

TEST(Cycle, ComparingEndsAtADifference) {
    Item left;
    Item right;
    left.getSubNodes().push_back(&left);
    right.getSubNodes().push_back(&right);
    right.setInclusive(true);
    EXPECT_FALSE(left == right);
}

TEST(Cycle, ObjectsInSeveralPlacesAreNone) {
    const Registry registry = makeRegistry();
    Item top;
    Item& last = extend(registry, top, 25000);
    Item shared;
    last.getSubNodes().push_back(&shared);
    last.getSubNodes().push_back(&shared);
    const KORVASchemaTypeI& copied = copy(top, registry);
    EXPECT_TRUE(top == copied);
}

}  // namespace
