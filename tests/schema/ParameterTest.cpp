#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVABoundRangeParmValueItem.h>
#include <korva/KORVAChildIndex.h>
#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVAMetadataModelItemName.h>
#include <korva/KORVAParameter.h>
#include <korva/KORVAParameterAssignmentDataItem.h>
#include <korva/KORVAParameterDataSource.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAUnboundedEndRangeParmValueItem.h>
#include <korva/KORVAUnboundedStartRangeParmValueItem.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

TEST(Parameter, InclusiveIsOptional) {
    KORVASimpleParmValueItem item;
    EXPECT_EQ(item.getInclusive(), nullptr);
    EXPECT_EQ(item.getChildObject("inclusive", false), nullptr);
    KORVASimpleParmValueItem other;
    other.setInclusive(false);
    ASSERT_NE(other.getInclusive(), nullptr);
    EXPECT_FALSE(*other.getInclusive());
    EXPECT_FALSE(item == other);
}

TEST(Parameter, UnboundedStartHasNoStart) {
    KORVAUnboundedStartRangeParmValueItem item;
    EXPECT_EQ(item.getChildType("start"), Object::e_Unknown);
    EXPECT_EQ(item.getChildObject("start", false), nullptr);
    KORVASimpleParmValueItem bound;
    EXPECT_EQ(item.setChildObject("start", &bound, Object::eKORVASimpleParmValueItem, nullptr), 0u);
    EXPECT_EQ(item.getEnd(), nullptr);
    EXPECT_EQ(item.getChildType("end"), Object::eKORVASimpleParmValueItem);
    KORVAUnboundedEndRangeParmValueItem end;
    EXPECT_EQ(end.getChildType("end"), Object::e_Unknown);
    EXPECT_EQ(end.getChildType("start"), Object::eKORVASimpleParmValueItem);
    KORVABoundRangeParmValueItem range;
    EXPECT_EQ(range.getChildType("start"), Object::eKORVASimpleParmValueItem);
    EXPECT_EQ(range.getChildType("end"), Object::eKORVASimpleParmValueItem);
}

TEST(Parameter, ValueHoldsItemsOfEveryKind) {
    const Registry registry = makeRegistry();
    KORVAParameterValue value;
    value.setName("region");
    KORVASimpleParmValueItem simple;
    simple.setUse("north");
    KORVABoundRangeParmValueItem range;
    range.getStart(registry.get())->setUse("1");
    range.getEnd(registry.get())->setUse("9");
    KORVAHierarchicalParmValueItem tree;
    value.getValue().push_back(&simple);
    value.getValue().push_back(&range);
    value.getValue().push_back(&tree);
    const KORVAParameterValue copy(value, *registry);
    ASSERT_EQ(copy.getValue().size(), 3u);
    EXPECT_EQ(copy.getValue().at(0)->getObjectType(), Object::eKORVASimpleParmValueItem);
    EXPECT_EQ(copy.getValue().at(1)->getObjectType(), Object::eKORVABoundRangeParmValueItem);
    EXPECT_EQ(copy.getValue().at(2)->getObjectType(), Object::eKORVAHierarchicalParmValueItem);
    EXPECT_TRUE(copy == value);
}

TEST(Parameter, EmptyValueIsAnEmptyArray) {
    KORVAParameterValue value;
    EXPECT_EQ(value.getValue().size(), 0u);
    EXPECT_NE(value.getChildObject("value", false), nullptr);
}

TEST(Parameter, HierarchicalItemsHoldHierarchicalItemsOnly) {
    KORVAHierarchicalParmValueItem tree;
    KORVAHierarchicalParmValueItem node;
    KORVASimpleParmValueItem simple;
    auto* const nodes =
        static_cast<KORVAHierarchicalParmValueItemArray*>(tree.getChildObject("subNodes", false));
    EXPECT_EQ(
        nodes->setChildObject("item", &node, Object::eKORVAHierarchicalParmValueItem, nullptr), 1u);
    EXPECT_TYPE_ERROR(
        nodes->setChildObject("item", &simple, Object::eKORVASimpleParmValueItem, nullptr),
        "hierarchicalParmValueItemArray", "<index>", "bus:hierarchicalParmValueItem",
        "bus:simpleParmValueItem");
    EXPECT_EQ(nodes->getChildType(KORVAChildIndex::toName(1)),
              Object::eKORVAHierarchicalParmValueItem);
}

TEST(Parameter, LaterAdditionsStandBehindTheRest) {
    const KORVAParameter parameter;
    std::vector<const char*> names;
    parameter.getChildObjectNames(names, true);
    const std::vector<std::string> texts(names.begin(), names.end());
    EXPECT_EQ(texts,
              (std::vector<std::string>{"capabilities", "caption", "defaultValue", "name",
                                        "promptType", "type", "values", "modulePath", "modelPath",
                                        "modelFilterItem", "useValueExpression"}));
    EXPECT_TRUE(parameter.isa(Object::eKORVABaseParameter));
    const KORVAParameterDataSource source;
    EXPECT_EQ(source.getChildObjectCount(), 9u);
    EXPECT_FALSE(source == parameter);
}

TEST(Parameter, AssignmentBindsANameToADataItem) {
    const Registry registry = makeRegistry();
    KORVAParameterAssignmentDataItem assignment;
    EXPECT_EQ(assignment.getChildType("parameterName"), Object::eString);
    assignment.setParameterName("p");
    assignment.getDataItemName(registry.get())->setValue("[Sales].[Region]");
    EXPECT_STREQ(static_cast<const char*>(assignment.getChildObject("parameterName", false)), "p");
    EXPECT_EQ(assignment.getChildType("dataItemName"), Object::eKORVAMetadataModelItemName);
}

}  // namespace
