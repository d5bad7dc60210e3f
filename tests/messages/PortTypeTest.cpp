// What port types tell about themselves, and how their instances are made.

#include "messages/PortTypeSingleton.h"
#include "tests/messages/PortTypes.h"
#include "tests/support/ExpectThrow.h"

#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using korva::test::PortTypeCase;
using korva::test::portTypes;
using korva::test::withAuthority;
using Type = KORVASchemaTypeI;

TEST(PortType, ThereAreTen) {
    std::set<const KORVAPortTypeI*> instances;
    for (const PortTypeCase& port : portTypes())
        instances.insert(&port.portType);
    EXPECT_EQ(instances.size(), 10U);
}

TEST(PortType, HasItsName) {
    for (const PortTypeCase& port : portTypes())
        EXPECT_STREQ(port.portType.getName(), port.name);
}

TEST(PortType, HasItsNamespaceWithTheAuthority) {
    for (const PortTypeCase& port : portTypes())
        EXPECT_EQ(port.portType.getBoundNamespace(), withAuthority(port.boundNamespace));
}

TEST(PortType, ResolvesTheTypesOfItsOperationsParameters) {
    const KORVADispatcherPortType& port = KORVADispatcherPortType::getInstance();
    const struct {
        const char* operation;
        const char* parameter;
        KORVASchemaTypeI::ObjectType type;
    } rows[] = {
        {"notify", "notification", Type::eKORVANotification},
        {"notify", "propagate", Type::eBoolean},
        {"ping", "dispatcherPath", Type::eKORVASearchPathSingleObject},
        {"startService", "servicePath", Type::eKORVASearchPathSingleObject},
        {"stopService", "servicePath", Type::eKORVASearchPathSingleObject},
        {"stopService", "immediately", Type::eBoolean},
        {"cancel", "conversation", Type::eKORVAAsynchRequest},
        {"run", "objectPath", Type::eKORVASearchPathSingleObject},
        {"run", "parameterValues", Type::eKORVAParameterValueArray},
        {"run", "options", Type::eKORVAOptionArray},
        {"wait", "conversation", Type::eKORVAAsynchRequest},
        {"wait", "parameterValues", Type::eKORVAParameterValueArray},
        {"wait", "options", Type::eKORVAOptionArray},
        {"runSpecification", "specification", Type::eKORVAAsynchSpecification},
        {"runSpecification", "parameterValues", Type::eKORVAParameterValueArray},
        {"runSpecification", "options", Type::eKORVAOptionArray},
    };
    for (const auto& row : rows)
        EXPECT_EQ(port.resolveOperationParamType(row.operation, row.parameter), row.type)
            << row.operation << '-' << row.parameter;
}

TEST(PortType, ResolvesWhatItLacksToTheUnknownType) {
    const KORVADispatcherPortType& port = KORVADispatcherPortType::getInstance();
    const struct {
        const char* operation;
        const char* parameter;
    } rows[] = {{"run", "specification"},
                {"run", "option"},
                {"run", "optionss"},
                {"run", ""},
                {"", "options"},
                {"", ""},
                {"ru", "n-options"},
                {"Run", "options"},
                {"no operation", "options"},
                {"add", "parentPath"},
                {"run", "zzz"},
                {"zzz", "zzz"}};
    for (const auto& row : rows)
        EXPECT_EQ(port.resolveOperationParamType(row.operation, row.parameter), Type::e_Unknown)
            << row.operation << '-' << row.parameter;
}

TEST(PortType, ResolvesAParameterOfSeveralTypesToThatOfTheFirstVersion) {
    const KORVAVelmoraTabulonPortType& port = KORVAVelmoraTabulonPortType::getInstance();
    const KORVAMessageFactory::KORVAParamDescriptor* row =
        KORVAMessageFactory::getInstance().getParameterTypes(
            KORVAMessageI::eKORVACMS_query_1_Request);
    while (row->name != nullptr && std::string(row->name) != "options")
        ++row;
    ASSERT_NE(row->name, nullptr);
    EXPECT_EQ(port.resolveOperationParamType("query", "options"), row->type);
}

TEST(PortType, AssertsOnNullNames) {
    for (const PortTypeCase& port : portTypes()) {
        EXPECT_ASSERTION(port.portType.resolveOperationParamType(nullptr, "options"),
                         "ZEL_ASSERT(pOperationName);");
        EXPECT_ASSERTION(port.portType.resolveOperationParamType("run", nullptr),
                         "ZEL_ASSERT(pParamName);");
        EXPECT_ASSERTION(port.portType.createPortTypeBinding(nullptr, {}),
                         "ZEL_ASSERT(pOperationName);");
    }
}

TEST(PortType, OperationMetadataHoldsItsThreeFields) {
    const KORVADispatcherPortType::OperationMetadata metadata(
        KORVAMessageI::eKORVAAsynchRun_Request, KORVAMessageI::eKORVAAsynchRun_Reply, "action");
    EXPECT_EQ(metadata.inputMessageType, KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_EQ(metadata.outputMessageType, KORVAMessageI::eKORVAAsynchRun_Reply);
    EXPECT_STREQ(metadata.soapAction, "action");
}

TEST(PortType, FirstUseByManyThreadsGivesOneInstance) {
    std::atomic<bool> start{false};
    std::vector<const KORVAPortTypeI*> seen(8);
    std::vector<std::thread> threads;
    for (const KORVAPortTypeI*& instance : seen)
        threads.emplace_back([&start, &instance] {
            while (!start) {
            }
            instance = &KORVAMobileServicePortType::getInstance();
        });
    start = true;
    for (std::thread& thread : threads)
        thread.join();
    for (const KORVAPortTypeI* const instance : seen)
        EXPECT_EQ(instance, &KORVAMobileServicePortType::getInstance());
}

// The holder of an instance by itself

TEST(PortTypeSingleton, MakesOneInstanceForManyThreads) {
    korva::PortTypeSingleton<int> singleton;
    std::atomic<int> made{0};
    std::atomic<bool> start{false};
    int value = 0;
    std::vector<std::thread> threads;
    std::atomic<int> same{0};
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&] {
            while (!start) {
            }
            for (int round = 0; round < 1000; ++round)
                if (&singleton.get([&] {
                        ++made;
                        return &value;
                    }) == &value)
                    ++same;
        });
    start = true;
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(made, 1);
    EXPECT_EQ(same, 8000);
}

TEST(PortTypeSingleton, TriesAgainAfterAFailure) {
    korva::PortTypeSingleton<int> singleton;
    int value = 0;
    EXPECT_THROW(singleton.get([]() -> int* { throw std::bad_alloc(); }), ZELOutOfMemoryError);
    EXPECT_THROW(singleton.get([]() -> int* { throw std::runtime_error("x"); }),
                 ZELStdExceptionError);
    EXPECT_EQ(&singleton.get([&] { return &value; }), &value);
}

}  // namespace
