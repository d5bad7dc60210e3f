// Objects that hold themselves, over each bridge.
#include "tests/bridges/Conversions.h"
#include "tests/bridges/EventRecorder.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <tarn/TARNSchemaTypesFactory.h>

#include <gtest/gtest.h>
#include <xercesc/sax2/DefaultHandler.hpp>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Item = KORVAHierarchicalParmValueItem;

constexpr unsigned holdsItself = 0xEA4F0005U;

struct BridgeCycle : testing::Test {
    BridgeCycle() { item.getSubNodes().push_back(&item); }

    Item item;
};

TEST_F(BridgeCycle, IsRefusedByDocuments) {
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_NUMBERED(korva::test::toElement(item, document), holdsItself, nullptr,
                    "KORVAHierarchicalParmValueItem", "item",
                    "KORVAHierarchicalParmValueItemArray");
}

TEST_F(BridgeCycle, IsRefusedByEvents) {
    xercesc::DefaultHandler handler;
    EXPECT_THROW(korva::test::replay(item, handler), KORVAException);
}

TEST_F(BridgeCycle, IsRefusedOnTheWayToTheSecondModel) {
    const korva::test::TarnRegistry registry = korva::test::makeTarnRegistry();
    EXPECT_THROW(korva::test::toTarn(item, registry), KORVAException);
}

TEST_F(BridgeCycle, IsRefusedOnTheWayFromTheSecondModel) {
    const korva::test::TarnRegistry tarnRegistry = korva::test::makeTarnRegistry();
    const Registry registry = makeRegistry();
    const Item single;
    auto* const source = const_cast<TARNSchemaTypeI*>(korva::test::toTarn(single, tarnRegistry));
    auto* const nodes = static_cast<TARNSchemaTypeI*>(source->getChildObject("subNodes", true));
    nodes->setChildObject("item", source, source->getObjectType(), nullptr);
    EXPECT_NUMBERED(korva::test::fromTarn(*source, *registry), holdsItself, nullptr,
                    "bus:hierarchicalParmValueItemArray", "subNodes",
                    "bus:hierarchicalParmValueItem");
}

}  // namespace
