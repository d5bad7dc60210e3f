// Threads that read and write at once, each with objects of its own.
#include "tests/soap/Reading.h"
#include "tests/soap/SampleMessages.h"
#include "tests/support/Golden.h"
#include "tests/support/Registry.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAException.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

using korva::test::Binding;
using korva::test::goldenEnvelope;
using korva::test::makeRegistry;
using korva::test::makeRunCall;

constexpr int threadCount = 4;
constexpr int rounds = 20;

/// Runs the action in all threads, which begin together.
template <class Action>
void inThreads(Action action) {
    std::atomic<bool> start{false};
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back([&] {
            while (!start) {
            }
            for (int round = 0; round < rounds; ++round)
                action();
        });
    start = true;
    for (std::thread& thread : threads)
        thread.join();
}

std::string written(KORVAPortTypeBinding& call, KORVAMessageI& message) {
    BRIMMemoryOutputStream out;
    KORVASOAPMessageISerializer().serialize(call, message, out);
    return {out.str(), out.pcount()};
}

TEST(Threads, ReadAndWriteRequestsAtOnce) {
    const std::string envelope = goldenEnvelope("request-with-header");
    std::atomic<int> same{0};
    inThreads([&] {
        const Binding call = korva::test::readRequest(envelope);
        if (written(*call, call->getInputMessage()) == envelope) ++same;
    });
    EXPECT_EQ(same, threadCount * rounds);
}

TEST(Threads, ReadRepliesAndFaultsAtOnce) {
    const std::string envelope = goldenEnvelope("reply-with-details");
    const std::string fault = goldenEnvelope("fault-documented");
    std::atomic<int> right{0};
    inThreads([&] {
        const auto call = makeRunCall();
        korva::test::readReply(*call, envelope);
        if (written(*call, call->getOutputMessage()) == envelope) ++right;
        try {
            korva::test::readReply(*call, fault);
        } catch (const KORVASOAPFaultException& exception) {
            if (exception.getSOAPFault().getFaultCode() != nullptr) ++right;
        }
    });
    EXPECT_EQ(right, 2 * threadCount * rounds);
}

TEST(Threads, MeetErrorsAtOnce) {
    std::atomic<int> refused{0};
    inThreads([&] {
        try {
            korva::test::readRequest(korva::test::operation("run", "<a/>"));
            korva::test::readRequest(korva::test::operation("none", "<a/>"));
        } catch (const KORVAException& refusal) {
            if (!std::string(refusal.toString()).empty()) ++refused;
        }
    });
    EXPECT_EQ(refused, threadCount * rounds);
}

TEST(Threads, MakeObjectsOfEveryKindAtOnce) {
    auto& factory = KORVASchemaTypesFactory::getInstance();
    std::atomic<int> made{0};
    inThreads([&] {
        const auto registry = makeRegistry();
        for (const KORVASchemaTypeI::ObjectType type :
             {KORVASchemaTypeI::eKORVASchedule, KORVASchemaTypeI::eKORVAReport,
              KORVASchemaTypeI::eKORVAStringArray}) {
            KORVASchemaTypeI* const object = registry->own(ZELOwner(factory.create(type)));
            made += factory.createCopy(*object, *registry).getObjectType() == type;
        }
    });
    EXPECT_EQ(made, 3 * threadCount * rounds);
}

}  // namespace
