// How failures travel through the library's own frames, from inside to a caller.

#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVABooleanProp.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAScheduleArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// A registry that fails, in its own way, when an object is registered.
class FailingRegistry : public KORVAObjectRegistryI {
public:
    explicit FailingRegistry(std::function<void()> fail) : m_fail(std::move(fail)) {}

    void registerPointer(bool*, KORVADeleteMode) override { m_fail(); }
    void registerPointer(char*, KORVADeleteMode) override { m_fail(); }
    void registerPointer(float*, KORVADeleteMode) override { m_fail(); }
    void registerPointer(int*, KORVADeleteMode) override { m_fail(); }
    void registerPointer(KORVA_AttachmentContainerI*) override { m_fail(); }
    void registerPointer(KORVA_CharStreamable*) override { m_fail(); }
    void registerPointer(KORVAXSBase64Binary*) override { m_fail(); }
    void registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>*) override { m_fail(); }
    void registerPointer(KORVA_String*) override { m_fail(); }
    void registerPointer(std::string*) override { m_fail(); }
    void registerPointer(BRIMOutputStream*) override { m_fail(); }
    void registerPointer(I18NString*) override { m_fail(); }
    void registerPointer(KORVASchemaTypeI*) override { m_fail(); }
    void clean() override {}

private:
    std::function<void()> m_fail;
};

/// Asks a fresh object for a child that must be made.
void createChild(const std::function<void()>& fail) {
    FailingRegistry registry(fail);
    KORVASchedule schedule;
    try {
        schedule.getActive(&registry);
    } catch (...) {
        EXPECT_EQ(schedule.getActive(), nullptr);
        throw;
    }
}

/// Checks that a failure leaves nothing allocated.
class KorvaFrame : public testing::Test {
protected:
    void SetUp() override { m_live = korva::test::liveAllocations(); }
    void TearDown() override { EXPECT_EQ(korva::test::liveAllocations(), m_live); }

private:
    std::size_t m_live = 0;
};

TEST_F(KorvaFrame, BadAllocInAGetterArrivesAsOutOfMemoryError) {
    try {
        createChild([] { throw std::bad_alloc(); });
        FAIL();
    } catch (const ZELOutOfMemoryError& error) {
        EXPECT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_TRUE(korva::test::isThrownBy(error, nullptr));
    }
}

TEST_F(KorvaFrame, RuntimeErrorInAGetterArrivesAsStdExceptionErrorWithItsText) {
    try {
        createChild([] { throw std::runtime_error("what went wrong"); });
        FAIL();
    } catch (const ZELStdExceptionError& error) {
        EXPECT_STREQ(error.getText(), "what went wrong");
        EXPECT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_TRUE(korva::test::isThrownBy(error, nullptr));
    }
}

TEST_F(KorvaFrame, ThrowableInAGetterKeepsItsTypeAndGetsALine) {
    try {
        createChild([] { ZEL_ASSERT(false); });
        FAIL();
    } catch (const ZELAssertError& error) {
        ASSERT_EQ(error.getBackTrace().size(), 2u);
        const std::string_view second = error.getBackTrace()[1];
        EXPECT_NE(second.find("ZEL_RETHROW"), std::string_view::npos) << second;
    }
}

TEST_F(KorvaFrame, ExceptionOfNeitherFamilyPassesUnchanged) {
    try {
        createChild([] { throw 42; });
        FAIL();
    } catch (int number) {
        EXPECT_EQ(number, 42);
    }
}

TEST_F(KorvaFrame, SeveralFramesAddALineEach) {
    for (std::size_t frames : {0u, 1u, 5u}) {
        const std::function<void(std::size_t)> nest = [&nest](std::size_t depth) {
            if (depth == 0)
                KORVASchemaTypesFactory::typeError("a", "b", KORVASchemaTypeI::eInt,
                                                   KORVASchemaTypeI::eString);
            ZEL_TRY {
                nest(depth - 1);
            }
            ZEL_CATCH("nest");
        };
        try {
            nest(frames);
            FAIL();
        } catch (const KORVAException& error) {
            EXPECT_EQ(error.getBackTrace().size(), 1 + frames);
            EXPECT_TRUE(korva::test::isThrownBy(error, "KORVASchemaTypesFactory::typeError()"));
        }
    }
}

TEST_F(KorvaFrame, CreateCopyTranslatesWhatItsRegistryThrows) {
    const KORVABooleanProp source;
    const auto& factory = KORVASchemaTypesFactory::getInstance();
    FailingRegistry noMemory([] { throw std::bad_alloc(); });
    EXPECT_THROW(factory.createCopy(source, noMemory), ZELOutOfMemoryError);
    FailingRegistry broken([] { throw std::logic_error("broken"); });
    EXPECT_THROW(factory.createCopy(source, broken), ZELStdExceptionError);
    FailingRegistry strange([] { throw 'x'; });
    EXPECT_THROW(factory.createCopy(source, strange), char);
    FailingRegistry asserting([] { ZEL_ASSERT(false); });
    try {
        factory.createCopy(source, asserting);
        FAIL();
    } catch (const ZELAssertError& error) {
        ASSERT_GE(error.getBackTrace().size(), 2u);
        const std::string_view last = error.getBackTrace()[error.getBackTrace().size() - 1];
        EXPECT_NE(last.find("KORVASchemaTypesFactory::createCopy() ZEL_RETHROW"),
                  std::string_view::npos)
            << last;
    }
}

TEST_F(KorvaFrame, FailedCopyLeavesNothingBehindThatTheRegistryDoesNotOwn) {
    KORVASchedule element;
    KORVABooleanProp active;
    element.setActive(&active);
    KORVAScheduleArray array;
    array.push_back(&element);
    // The registry takes what it is given up to a point, and then fails.
    for (int accepted = 0; accepted < 3; ++accepted) {
        const std::size_t live = korva::test::liveAllocations();
        {
            const ZELSmartPointer<KORVAObjectRegistry> owner(KORVAObjectRegistry::create());
            int left = accepted;
            class Limited : public FailingRegistry {
            public:
                Limited(KORVAObjectRegistry& to, int& count)
                    : FailingRegistry([] { throw std::runtime_error("full"); }),
                      m_to(&to),
                      m_left(&count) {}
                void registerPointer(KORVASchemaTypeI* p) override {
                    if ((*m_left)-- == 0) throw std::runtime_error("full");
                    m_to->registerPointer(p);
                }

            private:
                KORVAObjectRegistry* m_to;
                int* m_left;
            } registry(*owner, left);
            EXPECT_THROW(KORVASchemaTypesFactory::getInstance().createCopy(array, registry),
                         ZELStdExceptionError);
            EXPECT_EQ(owner->size(), static_cast<std::size_t>(accepted));
        }
        EXPECT_EQ(korva::test::liveAllocations(), live);
    }
}

}  // namespace
