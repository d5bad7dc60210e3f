// Objects that hold themselves, on their way into an envelope.
#include "tests/soap/ElementWriting.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace {

using korva::test::element;
using korva::test::Maker;
using Item = KORVAHierarchicalParmValueItem;

constexpr unsigned holdsItself = 0xEA4F0005U;

/// Needs no memory.
class NullStream : public BRIMOutputStream {
public:
    void write(const char*, std::size_t) override {}
};

void write(const Item& item) {
    NullStream stream;
    KORVASOAPSerializer().serialize(&item, item.getObjectType(), "bus:value", stream);
}

/// A chain of items of which each stands in the array of the one above; the last is given back.
Item& extend(const Maker& maker, Item& top, std::size_t count) {
    Item* last = &top;
    for (std::size_t i = 0; i < count; ++i) {
        auto* const next = maker.make<Item>();
        last->getSubNodes().push_back(next);
        last = next;
    }
    return *last;
}

TEST(CycleWriting, AnObjectInItsOwnArrayIsRefused) {
    Item item;
    item.getSubNodes().push_back(&item);
    EXPECT_NUMBERED(write(item), holdsItself, nullptr, "KORVAHierarchicalParmValueItem", "item",
                    "KORVAHierarchicalParmValueItemArray");
}

TEST(CycleWriting, ACycleBelowALongChainIsRefused) {
    const Maker maker;
    Item top;
    Item& middle = extend(maker, top, 30000);
    Item& last = extend(maker, middle, 5);
    last.getSubNodes().push_back(&middle);
    EXPECT_THROW(write(top), KORVAException);
}

TEST(CycleWriting, ACycleBehindOtherChildrenIsRefused) {
    const Maker maker;
    Item top;
    extend(maker, top, 12000);  // deep enough to be looked at, and without a cycle
    auto* const second = maker.make<Item>();
    top.getSubNodes().push_back(second);
    extend(maker, *second, 3).getSubNodes().push_back(second);
    EXPECT_THROW(write(top), KORVAException);
}

TEST(CycleWriting, AnObjectInSeveralPlacesIsWrittenInEach) {
    const Maker maker;
    Item top;
    Item shared;
    shared.setInclusive(true);
    top.getSubNodes().push_back(&shared);
    top.getSubNodes().push_back(&shared);
    const std::string text = element(top);
    const std::string child = ">true</bus:inclusive>";
    const std::size_t first = text.find(child);
    ASSERT_NE(first, std::string::npos);
    EXPECT_NE(text.find(child, first + 1), std::string::npos);
}

TEST(CycleWriting, SharedObjectsFarDownAreNoCycle) {
    const Maker maker;
    Item top;
    Item& last = extend(maker, top, 25000);
    Item shared;
    last.getSubNodes().push_back(&shared);
    last.getSubNodes().push_back(&shared);
    EXPECT_NO_THROW(write(top));
}

}  // namespace
