// Faults converted from one shape of details to the other.
#include "tests/support/ExpectThrow.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>

#include <gtest/gtest.h>

namespace {

using korva::test::addDetails;
using korva::test::addUndocumentedDetails;
using korva::test::makeDocumentedFault;
using korva::test::makeFault;
using korva::test::Maker;
using korva::test::makeUndocumentedFault;
using korva::test::sampleDetails;

TEST(FaultConversion, DocumentedDetailsBecomeUndocumentedOnes) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    fault.convertFaultDetail(*maker.registry());
    EXPECT_EQ(fault.getDetail(), nullptr);
    EXPECT_TRUE(fault == makeUndocumentedFault(maker));
}

TEST(FaultConversion, UndocumentedDetailsBecomeDocumentedOnes) {
    const Maker maker;
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    fault.convertUndocumentedFaultDetail(*maker.registry());
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
    EXPECT_TRUE(fault == makeDocumentedFault(maker));
}

TEST(FaultConversion, ThereAndBackGivesTheSameFault) {
    const Maker maker;
    KORVASOAPFault& documented = makeDocumentedFault(maker);
    documented.convertFaultDetail(*maker.registry());
    documented.convertUndocumentedFaultDetail(*maker.registry());
    EXPECT_TRUE(documented == makeDocumentedFault(maker));
    KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    undocumented.convertUndocumentedFaultDetail(*maker.registry());
    undocumented.convertFaultDetail(*maker.registry());
    EXPECT_TRUE(undocumented == makeUndocumentedFault(maker));
}

TEST(FaultConversion, ASecondConversionChangesNothing) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    fault.convertFaultDetail(*maker.registry());
    auto* const details = fault.getUndocumentedDetail();
    fault.convertFaultDetail(*maker.registry());
    EXPECT_EQ(fault.getUndocumentedDetail(), details);
    EXPECT_TRUE(fault == makeUndocumentedFault(maker));

    fault.convertUndocumentedFaultDetail(*maker.registry());
    fault.convertUndocumentedFaultDetail(*maker.registry());
    EXPECT_TRUE(fault == makeDocumentedFault(maker));
}

TEST(FaultConversion, AnEmptySourceStaysAsItIs) {
    const Maker maker;
    KORVASOAPFault& documented = makeFault(maker);
    addDetails(maker, documented, {});
    documented.convertFaultDetail(*maker.registry());
    ASSERT_NE(documented.getDetail(), nullptr);
    EXPECT_TRUE(documented.getDetail()->empty());
    KORVASOAPFault& undocumented = makeFault(maker);
    addUndocumentedDetails(maker, undocumented, {});
    undocumented.convertUndocumentedFaultDetail(*maker.registry());
    ASSERT_NE(undocumented.getUndocumentedDetail(), nullptr);
    EXPECT_TRUE(undocumented.getUndocumentedDetail()->empty());
}

TEST(FaultConversion, TheArrayOfTheOtherShapeIsMadeInAnyCase) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    fault.convertFaultDetail(*maker.registry());
    ASSERT_NE(fault.getUndocumentedDetail(), nullptr);
    EXPECT_TRUE(fault.getUndocumentedDetail()->empty());
    EXPECT_EQ(fault.getDetail(), nullptr);
    fault.convertUndocumentedFaultDetail(*maker.registry());
    ASSERT_NE(fault.getDetail(), nullptr);
    EXPECT_TRUE(fault.getDetail()->empty());
}

TEST(FaultConversion, RowsAreAddedBehindThoseThatThereAre) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    addUndocumentedDetails(maker, fault, {{"info", "first", {}}});
    auto* const details = fault.getUndocumentedDetail();
    fault.convertFaultDetail(*maker.registry());
    EXPECT_EQ(fault.getUndocumentedDetail(), details);
    ASSERT_EQ(details->size(), 3u);
    EXPECT_STREQ(details->at(0)->getErrorCodeString(), "first");
    EXPECT_STREQ(details->at(1)->getErrorCodeString(), "RPT-0042");

    addDetails(maker, fault, {{"info", "second", {}}});
    fault.convertUndocumentedFaultDetail(*maker.registry());
    ASSERT_EQ(fault.getDetail()->size(), 4u);
    EXPECT_STREQ(fault.getDetail()->at(0)->getErrorCode(), "second");
    EXPECT_STREQ(fault.getDetail()->at(1)->getErrorCode(), "first");
}

TEST(FaultConversion, TextsAreSharedWithTheOldObjects) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    const KORVAFaultDetail& source = *fault.getDetail()->at(0);
    fault.convertFaultDetail(*maker.registry());
    const KORVAUndocumentedFaultDetail& target = *fault.getUndocumentedDetail()->at(0);
    EXPECT_EQ(target.getErrorCodeString(), source.getErrorCode());
    EXPECT_EQ(target.getMessage().at(0)->getMessageString(),
              source.getMessage().at(0)->getMessage());
}

TEST(FaultConversion, WhatIsUnsetStaysUnset) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{nullptr, nullptr, {{nullptr, {}}}}});
    fault.convertUndocumentedFaultDetail(*maker.registry());
    const KORVAFaultDetail& documented = *fault.getDetail()->at(0);
    EXPECT_EQ(documented.getSeverity(), nullptr);
    EXPECT_EQ(documented.getErrorCode(), nullptr);
    EXPECT_EQ(documented.getMessage().at(0)->getMessage(), nullptr);
    EXPECT_EQ(documented.getMessage().at(0)->getNestingLevel(), nullptr);

    documented.getMessage().at(0)->setNestingLevel(3);
    fault.convertFaultDetail(*maker.registry());
    const KORVAUndocumentedFaultDetail& undocumented = *fault.getUndocumentedDetail()->at(0);
    EXPECT_EQ(undocumented.getSeverity(), nullptr);
    EXPECT_EQ(undocumented.getErrorCodeString(), nullptr);
    EXPECT_EQ(undocumented.getMessage().at(0)->getMessageString(), nullptr);
    EXPECT_EQ(*undocumented.getMessage().at(0)->getNestingLevel(), 3);
}

TEST(FaultConversion, EverySeverityIsCopiedByItsWord) {
    for (const char* const word : {"debug", "info", "warn", "error", "fatal"}) {
        const Maker maker;
        KORVASOAPFault& fault = makeFault(maker);
        addDetails(maker, fault, {{word, nullptr, {}}});
        fault.convertFaultDetail(*maker.registry());
        EXPECT_STREQ(fault.getUndocumentedDetail()->at(0)->getSeverity(), word);
        fault.convertUndocumentedFaultDetail(*maker.registry());
        EXPECT_STREQ(fault.getDetail()->at(0)->getSeverity()->toString(), word);
    }
}

TEST(FaultConversion, AnEmptySeverityStaysUnsetAndTheFaultCanBeWritten) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{"", "code", {}}});
    fault.convertUndocumentedFaultDetail(*maker.registry());
    EXPECT_EQ(fault.getDetail()->at(0)->getSeverity(), nullptr);
    EXPECT_NO_THROW(korva::test::written(fault));
}

TEST(FaultConversion, ASeverityThatIsNoWordIsRefused) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{"warn", "1", {}}, {"dire", "2", {}}});
    EXPECT_NUMBERED(fault.convertUndocumentedFaultDetail(*maker.registry()), 0xEA45DC29U,
                    "_stringToEnum()", "severityEnum:dire");
    // The first row is made, and the source is still there.
    ASSERT_NE(fault.getUndocumentedDetail(), nullptr);
    EXPECT_EQ(fault.getUndocumentedDetail()->size(), 2u);
    ASSERT_EQ(fault.getDetail()->size(), 1u);
    EXPECT_STREQ(fault.getDetail()->at(0)->getErrorCode(), "1");
}

TEST(FaultConversion, ADocumentedMessageWithoutANestingLevelIsAnAssertion) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {{"warn", "1", {}}, {"warn", "2", {{"text", {}}}}});
    EXPECT_ASSERTION(fault.convertFaultDetail(*maker.registry()), "ZEL_ASSERT(pNestingLevel);");
    ASSERT_NE(fault.getDetail(), nullptr);
    ASSERT_EQ(fault.getUndocumentedDetail()->size(), 1u);
    EXPECT_STREQ(fault.getUndocumentedDetail()->at(0)->getErrorCodeString(), "1");
}

TEST(FaultConversion, AnUndocumentedMessageMayDoWithoutANestingLevel) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{"warn", "1", {{"text", {}}}}});
    fault.convertUndocumentedFaultDetail(*maker.registry());
    EXPECT_EQ(fault.getDetail()->at(0)->getMessage().at(0)->getNestingLevel(), nullptr);
}

TEST(FaultConversion, ANullRowIsAnAssertion) {
    const Maker maker;
    KORVASOAPFault& documented = makeDocumentedFault(maker);
    documented.getDetail()->push_back(nullptr);
    EXPECT_ASSERTION(documented.convertFaultDetail(*maker.registry()), "ZEL_ASSERT(pFaultDetail);");
    KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    undocumented.getUndocumentedDetail()->push_back(nullptr);
    EXPECT_ASSERTION(undocumented.convertUndocumentedFaultDetail(*maker.registry()),
                     "ZEL_ASSERT(pUndocumentedFaultDetail);");
}

TEST(FaultConversion, ANullMessageIsAnAssertion) {
    const Maker maker;
    KORVASOAPFault& documented = makeDocumentedFault(maker);
    documented.getDetail()->at(1)->getMessage().push_back(nullptr);
    EXPECT_ASSERTION(documented.convertFaultDetail(*maker.registry()), "ZEL_ASSERT(pMessage);");
    KORVASOAPFault& undocumented = makeUndocumentedFault(maker);
    undocumented.getUndocumentedDetail()->at(1)->getMessage().push_back(nullptr);
    EXPECT_ASSERTION(undocumented.convertUndocumentedFaultDetail(*maker.registry()),
                     "ZEL_ASSERT(pMessage);");
}

TEST(FaultConversion, WhatIsMadeIsRegistered) {
    const Maker maker;
    const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    fault.convertFaultDetail(*registry);
    // The array, two details and their three messages.
    EXPECT_EQ(registry->size(), 6u);
    fault.convertUndocumentedFaultDetail(*registry);
    // The same again, and two severities.
    EXPECT_EQ(registry->size(), 14u);
}

}  // namespace
