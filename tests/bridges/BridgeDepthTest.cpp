// Objects nested far deeper than a stack could follow, over each bridge.
#include "tests/bridges/Conversions.h"
#include "tests/support/Comparison.h"
#include "tests/support/Registry.h"

#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace {

using korva::test::areEqual;
using korva::test::makeRegistry;
using korva::test::Registry;
using Item = KORVAHierarchicalParmValueItem;

constexpr std::size_t depth = 100000;

/// A chain of items, each in the array of the one above.
Item& makeChain(const Registry& registry) {
    auto* const top = registry->make<Item>();
    Item* last = top;
    for (std::size_t i = 1; i < depth; ++i) {
        auto* const next = registry->make<Item>();
        last->getSubNodes().push_back(next);
        last = next;
    }
    last->setInclusive(true);
    return *top;
}

TEST(BridgeDepth, DocumentsNeedNoStack) {
    const Registry registry = makeRegistry();
    const Item& source = makeChain(registry);
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    const ZELIDOM_Element element = korva::test::toElement(source, document);
    KORVADOMObjectDeserializer deserializer;
    const KORVASchemaTypeI* const read = deserializer.deserialize(element);
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(areEqual(source, *read));
}

TEST(BridgeDepth, EventsNeedNoStack) {
    const Registry registry = makeRegistry();
    const Item& source = makeChain(registry);
    const KORVASchemaTypeI* const read = korva::test::readReplayed(source, registry.get());
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(areEqual(source, *read));
}

TEST(BridgeDepth, TheSecondModelNeedsNoStack) {
    const Registry registry = makeRegistry();
    const korva::test::TarnRegistry tarnRegistry = korva::test::makeTarnRegistry();
    const Item& source = makeChain(registry);
    const TARNSchemaTypeI* const copy = korva::test::toTarn(source, tarnRegistry);
    EXPECT_TRUE(*copy == *korva::test::toTarn(source, tarnRegistry));
    EXPECT_TRUE(areEqual(source, *korva::test::fromTarn(*copy, *registry)));
}

}  // namespace
