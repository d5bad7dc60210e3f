#include "tests/support/AllocationFailure.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAStringProp.h>

#include <gtest/gtest.h>

namespace {

TEST(ObjectRegistryFactory, IsOneInstance) {
    EXPECT_EQ(&KORVAObjectRegistryFactory::getInstance(),
              &KORVAObjectRegistryFactory::getInstance());
}

TEST(ObjectRegistryFactory, CreatesARegistryWithoutReferences) {
    auto& factory = KORVAObjectRegistryFactory::getInstance();
    KORVAObjectRegistryI* const registry = factory.create();
    EXPECT_NE(dynamic_cast<KORVAObjectRegistry*>(registry), nullptr);
    EXPECT_EQ(registry->getReferenceCount(), 0u);
    factory.destroy(registry);
}

TEST(ObjectRegistryFactory, DestroyFreesAllWhateverTheReferenceCount) {
    auto& factory = KORVAObjectRegistryFactory::getInstance();
    const std::size_t live = korva::test::liveAllocations();
    KORVAObjectRegistryI* const registry = factory.create();
    registry->addReference();
    registry->addReference();
    registry->make<KORVAStringProp>();
    EXPECT_GT(korva::test::liveAllocations(), live);
    factory.destroy(registry);
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

TEST(ObjectRegistryFactory, DestroyOfNullDoesNothing) {
    const std::size_t live = korva::test::liveAllocations();
    KORVAObjectRegistryFactory::getInstance().destroy(nullptr);
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

TEST(ObjectRegistryFactory, CreateRaisesOutOfMemoryError) {
    auto& factory = KORVAObjectRegistryFactory::getInstance();
    EXPECT_EQ(korva::test::forEachFailingAllocation([&] { factory.destroy(factory.create()); }),
              2u);
}

}  // namespace
