// Faults between the two models: each model has its own place for details of either shape.
#include "tests/bridges/Conversions.h"
#include "tests/support/Registry.h"
#include "tests/support/SampleFaults.h"
#include "tests/tarn/TarnObjects.h"

#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <tarn/TARNSOAPFault.h>
#include <tarn/TARNUndocumentedFaultDetail.h>
#include <tarn/TARNUndocumentedFaultDetailArray.h>

#include <gtest/gtest.h>

namespace {

using namespace korva::test;

class TarnFault : public testing::Test {
protected:
    const TARNSOAPFault& copy(const KORVASOAPFault& fault) {
        return dynamic_cast<const TARNSOAPFault&>(*toTarn(fault, tarnRegistry));
    }
    const KORVASOAPFault& copyBack(const TARNSOAPFault& fault) {
        return dynamic_cast<const KORVASOAPFault&>(*fromTarn(fault, *registry));
    }

    const Maker maker;
    const TarnRegistry tarnRegistry = makeTarnRegistry();
    const Registry registry = makeRegistry();
};

TEST_F(TarnFault, HasTheSameNumberInBothModels) {
    EXPECT_EQ(copy(makeFault(maker)).getObjectType(), TARNSchemaTypeI::eTARNSOAPFault);
    EXPECT_EQ(copyBack(copy(makeFault(maker))).getObjectType(), KORVASchemaTypeI::eKORVASOAPFault);
}

TEST_F(TarnFault, TextsAreCopiedWithoutDetails) {
    const KORVASOAPFault& fault = makeFault(maker);
    const TARNSOAPFault& there = copy(fault);
    EXPECT_STREQ(there.getFaultCode(), fault.getFaultCode());
    EXPECT_STREQ(there.getFaultString(), fault.getFaultString());
    EXPECT_STREQ(there.getFaultActor(), fault.getFaultActor());
    EXPECT_EQ(there.getDetail(), nullptr);
    EXPECT_EQ(there.getUndocumentedDetail(), nullptr);
    const KORVASOAPFault& back = copyBack(there);
    EXPECT_TRUE(back == fault);
    EXPECT_EQ(back.getDetail(), nullptr);
    EXPECT_EQ(back.getUndocumentedDetail(), nullptr);
}

TEST_F(TarnFault, DocumentedDetailsStayDocumented) {
    const KORVASOAPFault& fault = makeDocumentedFault(maker);
    const TARNSOAPFault& there = copy(fault);
    ASSERT_NE(there.getDetail(), nullptr);
    EXPECT_EQ(there.getDetail()->getChildObjectCount(), fault.getDetail()->size());
    EXPECT_EQ(there.getUndocumentedDetail(), nullptr);
    const KORVASOAPFault& back = copyBack(there);
    EXPECT_TRUE(back == fault);
    EXPECT_EQ(back.getUndocumentedDetail(), nullptr);
}

TEST_F(TarnFault, UndocumentedDetailsStayUndocumented) {
    const KORVASOAPFault& fault = makeUndocumentedFault(maker);
    const TARNSOAPFault& there = copy(fault);
    EXPECT_EQ(there.getDetail(), nullptr);
    ASSERT_NE(there.getUndocumentedDetail(), nullptr);
    ASSERT_EQ(there.getUndocumentedDetail()->size(), 2u);
    const TARNUndocumentedFaultDetail& first = *there.getUndocumentedDetail()->at(0);
    EXPECT_STREQ(first.getSeverity(), "error");
    EXPECT_STREQ(first.getErrorCode(), "RPT-0042");
    EXPECT_EQ(first.getMessage().getChildObjectCount(), 2u);
    EXPECT_EQ(there.getUndocumentedDetail()->at(1)->getErrorCode(), nullptr);
    const KORVASOAPFault& back = copyBack(there);
    EXPECT_TRUE(back == fault);
    ASSERT_NE(back.getUndocumentedDetail(), nullptr);
    EXPECT_EQ(back.getUndocumentedDetail()->size(), 2u);
    EXPECT_EQ(back.getDetail(), nullptr);
}

TEST_F(TarnFault, DetailsOfBothShapesAreBothKept) {
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    addUndocumentedDetails(maker, fault, sampleDetails());
    const TARNSOAPFault& there = copy(fault);
    ASSERT_NE(there.getDetail(), nullptr);
    ASSERT_NE(there.getUndocumentedDetail(), nullptr);
    const KORVASOAPFault& back = copyBack(there);
    EXPECT_TRUE(back == fault);
    ASSERT_NE(back.getDetail(), nullptr);
    ASSERT_NE(back.getUndocumentedDetail(), nullptr);
}

TEST_F(TarnFault, EmptyDetailsStayEmpty) {
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {});
    addUndocumentedDetails(maker, fault, {});
    EXPECT_TRUE(copyBack(copy(fault)) == fault);
}

TEST_F(TarnFault, NullDetailsAreLeftOut) {
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    fault.getUndocumentedDetail()->push_back(nullptr);
    EXPECT_EQ(copy(fault).getUndocumentedDetail()->size(), 2u);
}

TEST_F(TarnFault, CopiesInTheSecondModelAreEqual) {
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    addUndocumentedDetails(maker, fault, sampleDetails());
    EXPECT_TRUE(copy(fault) == copy(fault));
    EXPECT_FALSE(copy(fault) == copy(makeDocumentedFault(maker)));
}

}  // namespace
