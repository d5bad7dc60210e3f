// What messages and bindings leave behind when memory runs out at any point: nothing.

#include "messages/MessageDescriptor.h"
#include "messages/PortTypeSingleton.h"
#include "tests/messages/PortTypes.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAException.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVA_Null_Request.h>
#include <korva/KORVA_PortType.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using korva::test::failEachAllocation;
using korva::test::forEachFailingAllocation;
using korva::test::liveAllocations;
using Binding = ZELSmartPointer<KORVAPortTypeBinding>;
using Message = ZELSmartPointer<KORVAMessageI>;
using Type = KORVASchemaTypeI;

const KORVAPortTypeI& velmora() {
    return KORVAVelmoraTabulonPortType::getInstance();
}

const KORVAPortTypeI& dispatcher() {
    return KORVADispatcherPortType::getInstance();
}

TEST(MessageAllocation, FactoryMakesAWholeMessageOrNone) {
    const std::size_t count = forEachFailingAllocation([] {
        const Message message =
            KORVAMessageFactory::getInstance().create(KORVAMessageI::eKORVAAsynchRun_Request);
    });
    EXPECT_EQ(count, 2U);
}

TEST(MessageAllocation, GetterFailsCleanly) {
    const std::size_t count = forEachFailingAllocation([] {
        const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();
        const Message message =
            KORVAMessageFactory::getInstance().create(KORVAMessageI::eKORVAAsynchRun_Request);
        auto& request = static_cast<KORVAAsynchRun_Request&>(*message);
        try {
            request.getOptions(registry.get());
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(request.getOptions(), nullptr);
            EXPECT_EQ(registry->size(), 0U);
            throw;
        }
    });
    EXPECT_GE(count, 5U);
}

TEST(MessageAllocation, GetterFailsCleanlyWhenTheRegistryIsFull) {
    forEachFailingAllocation([] {
        const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();
        while (registry->size() < registry->capacity())
            registry->registerPointer(static_cast<KORVASchemaTypeI*>(nullptr));
        const std::size_t size = registry->size();
        const Message message =
            KORVAMessageFactory::getInstance().create(KORVAMessageI::eKORVAAsynchRun_Request);
        auto& request = static_cast<KORVAAsynchRun_Request&>(*message);
        try {
            request.getObjectPath(registry.get());
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(request.getObjectPath(), nullptr);
            EXPECT_EQ(registry->size(), size);
            throw;
        }
    });
}

TEST(MessageAllocation, RegistryIsMadeWholeOrNotAtAll) {
    KORVA_Null_Request message;
    const std::size_t count = forEachFailingAllocation([&] {
        message.setObjectRegistry(nullptr);
        message.getObjectRegistry();
        message.setObjectRegistry(nullptr);
    });
    EXPECT_EQ(count, 2U);
}

TEST(MessageAllocation, HeaderIsMadeWholeOrNotAtAll) {
    KORVA_Null_Request message;
    const std::size_t count = forEachFailingAllocation([&] {
        const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();
        message.setHalyardHeader(nullptr);
        try {
            message.getHalyardHeader(registry.get());
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(message.getHalyardHeader(nullptr), nullptr);
            EXPECT_EQ(registry->size(), 0U);
            throw;
        }
        message.setHalyardHeader(nullptr);
    });
    EXPECT_EQ(count, 4U);
}

TEST(MessageAllocation, NamesAreAppendedOrNot) {
    const KORVAAsynchRun_Request request;
    forEachFailingAllocation([&] {
        std::vector<const char*> names;
        request.getChildObjectNames(names);
        EXPECT_EQ(names.size(), 3U);
    });
}

TEST(MessageAllocation, ParamFailsCleanly) {
    const std::size_t count = forEachFailingAllocation([] {
        const KORVAMessageParam param("a name that is longer than a short string", Type::eString);
    });
    EXPECT_EQ(count, 1U);
}

/// The port types themselves are made on first use, and stay.
class BindingAllocation : public testing::Test {
protected:
    void SetUp() override {
        dispatcher();
        velmora();
    }
};

TEST_F(BindingAllocation, ByTypeFailsCleanly) {
    const std::size_t count = forEachFailingAllocation([] {
        const Binding binding =
            dispatcher().createPortTypeBinding(KORVAMessageI::eKORVAAsynchRun_Request);
    });
    EXPECT_EQ(count, 5U);
}

TEST_F(BindingAllocation, ByMessagesFailsCleanly) {
    KORVAAsynchRun_Request input;
    KORVAAsynchRun_Reply output;
    const std::size_t count = forEachFailingAllocation(
        [&] { const Binding binding = dispatcher().createPortTypeBinding(input, output); });
    EXPECT_EQ(count, 1U);
}

TEST_F(BindingAllocation, ByRequestFailsCleanlyAndLeavesAHeldRequest) {
    const Message input = new KORVAAsynchRun_Request;
    const std::size_t count = forEachFailingAllocation([&] {
        try {
            const Binding binding = dispatcher().createPortTypeBinding(input.get());
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(input->getReferenceCount(), 1U);
            throw;
        }
    });
    EXPECT_EQ(count, 3U);
}

TEST_F(BindingAllocation, ByRequestEndsARequestThatNobodyHolds) {
    const std::size_t count = forEachFailingAllocation([] {
        const Binding binding = dispatcher().createPortTypeBinding(
            KORVAMessageFactory::getInstance().create(KORVAMessageI::eKORVAAsynchRun_Request));
    });
    EXPECT_EQ(count, 5U);
}

TEST_F(BindingAllocation, ByNameFailsCleanly) {
    KORVAMessageParam requestID("requestID", Type::eKORVAGuid);
    KORVAMessageParam options("options", Type::eKORVARunOptionArray);
    const std::vector<KORVAMessageParam*> params = {&requestID, &options};
    const std::size_t count = forEachFailingAllocation(
        [&] { const Binding binding = velmora().createPortTypeBinding("execute", params); });
    EXPECT_EQ(count, 5U);
}

TEST_F(BindingAllocation, ByNameFailsCleanlyWhereATypeIsTried) {
    KORVAMessageParam param("specification", Type::eKORVAReportServiceReportSpecification);
    const std::vector<KORVAMessageParam*> params = {&param};
    const std::size_t count = forEachFailingAllocation([&] {
        const Binding binding = dispatcher().createPortTypeBinding("runSpecification", params);
    });
    EXPECT_GT(count, 5U);
}

TEST_F(BindingAllocation, RefusalIsToldOrIsOutOfMemory) {
    unsigned refused = 0;
    unsigned outOfMemory = 0;
    const std::size_t live = liveAllocations();
    failEachAllocation([&] {
        try {
            dispatcher().createPortTypeBinding("an operation that nobody has", {});
            ADD_FAILURE();
        } catch (const KORVAException& error) {
            refused += error.getMessages().size() == 1 ? 1 : 0;
        } catch (const ZELOutOfMemoryError&) {
            ++outOfMemory;
        }
    });
    EXPECT_GE(refused, 1U);
    EXPECT_GE(outOfMemory, 1U);
    EXPECT_EQ(liveAllocations(), live);
}

TEST_F(BindingAllocation, FailureInTheRequestLeavesNothing) {
    KORVAOptionArray notAPath;
    KORVAMessageParam param("objectPath", Type::eKORVASearchPathSingleObject, &notAPath);
    const std::vector<KORVAMessageParam*> params = {&param};
    const std::size_t live = liveAllocations();
    EXPECT_THROW(dispatcher().createPortTypeBinding("run", params), KORVAException);
    EXPECT_EQ(liveAllocations(), live);
}

TEST_F(BindingAllocation, AssertionsLeaveNothing) {
    const std::size_t live = liveAllocations();
    EXPECT_THROW(dispatcher().createPortTypeBinding(KORVAMessageI::eKORVA_Null_Request),
                 ZELAssertError);
    {
        const Message request = new KORVA_Null_Request;
        EXPECT_THROW(dispatcher().createPortTypeBinding(request.get()), ZELAssertError);
    }
    EXPECT_EQ(liveAllocations(), live);
}

constexpr korva::OperationRow noOperations[] = {
    {"", KORVAMessageI::eKORVA_Null_Request, KORVAMessageI::eKORVA_Null_Reply, ""}};
constexpr korva::PortTypeDescriptor emptyService = {
    "KORVAEmptyPortType", "empty", "urn:empty", noOperations, 1, nullptr, 0};

class EmptyPortType final : public KORVA_PortType {
public:
    EmptyPortType() : KORVA_PortType(emptyService) {}
};

TEST(PortTypeAllocation, InstanceIsMadeOrNot) {
    const std::size_t count = forEachFailingAllocation([] {
        korva::PortTypeSingleton<EmptyPortType> singleton;
        const std::unique_ptr<KORVAPortTypeI> instance(
            &singleton.get([] { return new EmptyPortType; }));
        EXPECT_STREQ(instance->getName(), "empty");
        EXPECT_EQ(instance->resolveOperationParamType("run", "options"), Type::e_Unknown);
    });
    EXPECT_EQ(count, 1U);
}

}  // namespace
