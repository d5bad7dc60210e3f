// Envelopes of faults, byte for byte as the files of tests/data/envelopes have them.
#include "tests/support/Golden.h"
#include "tests/support/SampleFaults.h"

#include <gtest/gtest.h>

namespace {

using korva::test::addDetails;
using korva::test::goldenEnvelope;
using korva::test::makeDocumentedFault;
using korva::test::makeFault;
using korva::test::makeHeader;
using korva::test::Maker;
using korva::test::makeUndocumentedFault;
using korva::test::sampleDetails;
using korva::test::written;

TEST(FaultGolden, DocumentedFormatted) {
    const Maker maker;
    EXPECT_EQ(written(makeDocumentedFault(maker), &makeHeader(maker), true, true),
              goldenEnvelope("fault-documented-formatted"));
}

TEST(FaultGolden, Documented) {
    const Maker maker;
    EXPECT_EQ(written(makeDocumentedFault(maker), &makeHeader(maker), false, true),
              goldenEnvelope("fault-documented"));
}

TEST(FaultGolden, UndocumentedFormatted) {
    const Maker maker;
    EXPECT_EQ(written(makeUndocumentedFault(maker), &makeHeader(maker), true, true),
              goldenEnvelope("fault-undocumented-formatted"));
}

TEST(FaultGolden, Undocumented) {
    const Maker maker;
    EXPECT_EQ(written(makeUndocumentedFault(maker), &makeHeader(maker), false, true),
              goldenEnvelope("fault-undocumented"));
}

TEST(FaultGolden, BothShapesFormatted) {
    const Maker maker;
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    addDetails(maker, fault, sampleDetails());
    EXPECT_EQ(written(fault, &makeHeader(maker), true, true),
              goldenEnvelope("fault-both-shapes-formatted"));
}

TEST(FaultGolden, WithoutDetailsFormatted) {
    const Maker maker;
    EXPECT_EQ(written(makeFault(maker), nullptr, true, true),
              goldenEnvelope("fault-without-details-formatted"));
}

TEST(FaultGolden, WithoutDetailsAndXmlDeclaration) {
    const Maker maker;
    EXPECT_EQ(written(makeFault(maker)), goldenEnvelope("fault-without-details"));
}

TEST(FaultGolden, WithMarkupThatWasNotEscaped) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    fault.setFaultString("The report <sales> & its copy can't be run.");
    EXPECT_EQ(written(fault, nullptr, true, true), goldenEnvelope("fault-with-markup-formatted"));
}

}  // namespace
