#include "tests/support/AllocationFailure.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/tarn/TarnObjects.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::liveAllocations;

/// Writes down the order in which values go.
class Binary : public TARNBase64Binary {
public:
    Binary(std::string& log, char name) : m_log(log), m_name(name) {}
    ~Binary() override { m_log += m_name; }

private:
    std::string& m_log;
    const char m_name;
};

TEST(TarnObjectRegistry, FreesEveryKindWithItsLastReference) {
    const std::size_t before = liveAllocations();
    {
        const ZELSmartPointer<TARNObjectRegistryI> registry(TARNObjectRegistry::create());
        registry->registerPointer(
            TARNSchemaTypesFactory::getInstance().create(korva::test::tarnType("schedule")));
        registry->registerPointer(new TARN_String);
        registry->registerPointer(new TARNBase64Binary);
        registry->registerPointer(new TARN_CharStreamable);
        registry->registerPointer(new BRIMMemoryOutputStream);
        EXPECT_GT(liveAllocations(), before);
    }
    EXPECT_EQ(liveAllocations(), before);
}

TEST(TarnObjectRegistry, FreesInTheOrderOfRegistration) {
    std::string log;
    const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
    for (const char name : {'a', 'b', 'c'})
        registry->registerPointer(static_cast<TARNBase64Binary*>(new Binary(log, name)));
    registry->clean();
    EXPECT_EQ(log, "abc");
}

TEST(TarnObjectRegistry, IsUsableBehindASweep) {
    std::string log;
    {
        const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
        registry->clean();
        registry->registerPointer(static_cast<TARNBase64Binary*>(new Binary(log, 'a')));
        EXPECT_EQ(registry->size(), 1u);
        registry->clean();
        EXPECT_EQ(registry->size(), 0u);
        registry->registerPointer(static_cast<TARNBase64Binary*>(new Binary(log, 'b')));
    }
    EXPECT_EQ(log, "ab");
}

TEST(TarnObjectRegistry, OwnsWhatItMakesAndWhatItTakesOver) {
    std::string log;
    {
        const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
        registry->make<Binary>(log, 'a');
        const TARN_String* const text = registry->make<TARN_String>();
        ASSERT_NE(text, nullptr);
        const auto* const object = registry->own(ZELOwner(new Binary(log, 'b')));
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(registry->size(), 3u);
        EXPECT_EQ(log, "");
    }
    EXPECT_EQ(log, "ab");
}

TEST(TarnObjectRegistry, NothingIsLeftOfWhatItCannotRegister) {
    EXPECT_EQ(
        korva::test::forEachFailingAllocation([] {
            ZEL_TRY {
                const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
                registry->make<TARN_String>();
                return;
            }
            ZEL_CATCH(nullptr);
        }),
        3u);  // the registry, the string and the list
}

TEST(TarnObjectRegistry, SkipsNull) {
    const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
    registry->registerPointer(static_cast<TARNSchemaTypeI*>(nullptr));
    registry->registerPointer(static_cast<TARN_String*>(nullptr));
    registry->registerPointer(static_cast<TARNBase64Binary*>(nullptr));
    registry->registerPointer(static_cast<TARN_CharStreamable*>(nullptr));
    registry->registerPointer(static_cast<BRIMOutputStream*>(nullptr));
    EXPECT_EQ(registry->size(), 5u);
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
}

TEST(TarnObjectRegistry, StartsWithoutAReference) {
    const ZELSmartPointer<TARNObjectRegistry> registry(TARNObjectRegistry::create());
    EXPECT_EQ(registry->getReferenceCount(), 1u);
}

}  // namespace
