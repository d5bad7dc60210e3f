#include "tests/support/ForEachFailingAllocation.h"
#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNTypeError.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;
using Object = std::unique_ptr<TARNSchemaTypeI>;

Object make(TarnType type) {
    return Object(TARNSchemaTypesFactory::getInstance().create(type));
}

TEST(TarnAllocationFailure, MakingAnObjectIsOneAllocation) {
    for (const TarnType type :
         {tarnType("schedule"), tarnType("baseClassArrayProp"), tarnType("stringArray"),
          tarnType("severityEnum"), tarnType("guid"), Type::eTARNSOAPFault,
          Type::eTARNUndocumentedFaultDetail, Type::eTARNUndocumentedFaultDetailArray})
        EXPECT_EQ(forEachFailingAllocation([type] { make(type); }), 1u) << type;
}

TEST(TarnAllocationFailure, MakingDetailsIsSafe) {
    EXPECT_EQ(forEachFailingAllocation([] {
                  const Object fault = make(Type::eTARNSOAPFault);
                  fault->getChildObject("detail", true);
                  fault->getChildObject("undocumentedDetail", true);
              }),
              3u);
}

TEST(TarnAllocationFailure, AppendingIsSafe) {
    const Object element = make(tarnType("permission"));
    EXPECT_GE(forEachFailingAllocation([&element] {
                  const Object array = make(tarnType("permissionArray"));
                  for (int i = 0; i < 3; ++i)
                      array->setChildObject("any", element.get(), tarnType("permission"), nullptr);
              }),
              2u);
}

TEST(TarnAllocationFailure, NamesAndComparisonsAreSafe) {
    const Object left = make(tarnType("schedule"));
    const Object right = make(tarnType("schedule"));
    EXPECT_GE(forEachFailingAllocation([&] {
                  std::vector<const char*> names;
                  left->getChildObjectNames(names, true);
              }),
              1u);
    EXPECT_GE(forEachFailingAllocation([&] { EXPECT_TRUE(*left == *right); }), 2u);
}

TEST(TarnAllocationFailure, MakingARegistryIsSafe) {
    EXPECT_EQ(forEachFailingAllocation([] {
                  const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
              }),
              1u);
}

}  // namespace
