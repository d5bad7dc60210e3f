// Faults with each allocation failing in turn.
#include "tests/faults/FaultReading.h"
#include "tests/support/AllocationFailure.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASOAPFaultSerializerFactory.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::forEachFailingAllocation;
using korva::test::makeDocumentedFault;
using korva::test::makeHeader;
using korva::test::Maker;
using korva::test::makeUndocumentedFault;
using korva::test::written;

/// Counts bytes and keeps nothing, so that it needs no memory.
class CountingStream : public BRIMOutputStream {
public:
    void write(const char*, std::size_t length) override { bytes += length; }
    std::size_t bytes = 0;
};

TEST(FaultAllocation, EachClassMayFailToBeMade) {
    EXPECT_EQ(forEachFailingAllocation([] { const KORVASOAPFault fault; }), 1u);
    EXPECT_EQ(forEachFailingAllocation([] { const KORVAUndocumentedFaultDetail detail; }), 1u);
    for (int type = KORVASchemaTypeI::eKORVAUndocumentedFaultDetail;
         type <= KORVASchemaTypeI::eKORVASOAPFault; ++type)
        EXPECT_GE(forEachFailingAllocation([type] {
                      delete KORVASchemaTypesFactory::getInstance().create(
                          static_cast<KORVASchemaTypeI::ObjectType>(type));
                  }),
                  1u);
}

TEST(FaultAllocation, EachAllocationOfACopyMayFail) {
    const Maker maker;
    const KORVASOAPFault& documented = makeDocumentedFault(maker);
    const KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    for (const KORVASOAPFault* const fault : {&documented, &undocumented})
        EXPECT_GT(forEachFailingAllocation([fault] {
                      const Maker copies;
                      KORVASchemaTypesFactory::getInstance().createCopy(*fault, *copies.registry());
                  }),
                  15u);
}

TEST(FaultAllocation, EachAllocationOfAConversionMayFail) {
    const Maker maker;
    const KORVASOAPFault& documented = makeDocumentedFault(maker);
    const KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    EXPECT_GT(forEachFailingAllocation([&] {
                  const Maker converted;
                  KORVASOAPFault fault;
                  fault.setDetail(documented.getDetail());
                  fault.convertFaultDetail(*converted.registry());
              }),
              15u);
    EXPECT_GT(forEachFailingAllocation([&] {
                  const Maker converted;
                  KORVASOAPFault fault;
                  fault.setDetail(undocumented.getUndocumentedDetail());
                  fault.convertUndocumentedFaultDetail(*converted.registry());
              }),
              15u);
}

TEST(FaultAllocation, AConversionThatFailsKeepsItsSource) {
    const Maker maker;
    const KORVASOAPFault& documented = makeDocumentedFault(maker);
    for (std::size_t n = 1;; ++n) {
        const Maker converted;
        KORVASOAPFault fault;
        fault.setDetail(documented.getDetail());
        const korva::test::AllocationFailure failure(n);
        try {
            fault.convertFaultDetail(*converted.registry());
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(fault.getDetail(), documented.getDetail());
        }
        if (!failure.happened()) {
            EXPECT_EQ(fault.getDetail(), nullptr);
            break;
        }
    }
}

TEST(FaultAllocation, EachAllocationOfWritingMayFail) {
    const Maker maker;
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    korva::test::addDetails(maker, fault, korva::test::sampleDetails());
    const KORVAHalyardHeader& header = makeHeader(maker);
    CountingStream stream;
    EXPECT_GT(forEachFailingAllocation([&] {
                  KORVASOAPFaultSerializer().serialize(&header, fault, stream, true, true);
              }),
              2u);
    EXPECT_GT(stream.bytes, 0u);
}

TEST(FaultAllocation, AFaultWithoutDetailsIsWrittenWithoutMemory) {
    const KORVASOAPFault fault;
    CountingStream stream;
    EXPECT_EQ(forEachFailingAllocation([&] {
                  KORVASOAPFaultSerializer().serialize(nullptr, fault, stream, true, true);
              }),
              0u);
}

TEST(FaultAllocation, TheFactoryTellsOfMissingMemory) {
    EXPECT_EQ(forEachFailingAllocation([] {
                  KORVASOAPFaultSerializerFactory& factory =
                      KORVASOAPFaultSerializerFactory::getInstance();
                  factory.destroy(factory.create());
              }),
              1u);
}

TEST(FaultAllocation, EachAllocationOfTheMessagesMayFail) {
    const Maker maker;
    const KORVASOAPFault& fault = makeDocumentedFault(maker);
    EXPECT_GE(forEachFailingAllocation([&] {
                  std::string text;
                  fault.getMessages(text);
              }),
              1u);
}

TEST(FaultAllocation, EachAllocationOfReadingMayFail) {
    const Maker maker;
    const KORVASOAPFault& documented = makeDocumentedFault(maker);
    const KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    for (const KORVASOAPFault* const fault : {&documented, &undocumented}) {
        const std::string text = written(*fault, &makeHeader(maker), true);
        // Fills what is made on first use.
        korva::test::receiveFault(text);
        std::size_t failures = 0;
        for (std::size_t n = 1;; ++n) {
            const std::size_t live = korva::test::liveAllocations();
            bool happened = false;
            bool raised = false;
            {
                const korva::test::AllocationFailure failure(n);
                try {
                    const korva::test::Binding call =
                        korva::test::makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
                    korva::test::readReply(*call, text);
                } catch (const KORVASOAPFaultException& caught) {
                    // Only the trace may then have missed memory.
                    raised = true;
                    happened = failure.happened();
                    const korva::test::AllocationFailure none(0);
                    EXPECT_TRUE(caught.getSOAPFault() == *fault) << n;
                } catch (const ZELThrowable&) {  // the parser does not tell of memory always
                    ++failures;
                    happened = true;
                }
            }
            EXPECT_EQ(korva::test::liveAllocations(), live) << n;
            if (!happened) {
                EXPECT_TRUE(raised);
                break;
            }
        }
        EXPECT_GT(failures, 50u);
    }
}

}  // namespace
