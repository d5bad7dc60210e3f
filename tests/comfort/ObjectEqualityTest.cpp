#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVA_Equal.h>

#include <gtest/gtest.h>

namespace {

using korva::equal;
using Object = KORVASchemaTypeI;

TEST(ObjectEquality, LooksAtContentNotAtAddresses) {
    KORVABooleanProp yes;
    KORVABooleanProp alsoYes;
    KORVABooleanProp no;
    yes.setValue(true);
    alsoYes.setValue(true);
    no.setValue(false);
    KORVAFolder left;
    KORVAFolder right;
    left.setDisabled(&yes);
    right.setDisabled(&alsoYes);
    const Object& a = left;
    const Object& b = right;
    EXPECT_TRUE(equal(a, b));
    right.setDisabled(&no);
    EXPECT_FALSE(equal(a, b));
}

TEST(ObjectEquality, ComparesEachFamily) {
    KORVAGuid guids[2];
    guids[0].setValue("one");
    guids[1].setValue("two");
    EXPECT_FALSE(equal(guids[0], static_cast<const Object&>(guids[1])));
    guids[1].setValue("one");
    EXPECT_TRUE(equal(guids[0], static_cast<const Object&>(guids[1])));
    KORVASeverityEnum severities[2];
    severities[0].setValue(KORVASeverityEnum::eKORVAWarn);
    EXPECT_FALSE(equal(severities[0], severities[1]));
    severities[1].setValue("warn");
    EXPECT_TRUE(equal(severities[0], severities[1]));
    KORVABaseClassArray arrays[2];
    KORVAFolder folder;
    arrays[0].push_back(&folder);
    EXPECT_FALSE(equal(arrays[0], arrays[1]));
    arrays[1].push_back(&folder);
    EXPECT_TRUE(equal(arrays[0], arrays[1]));
}

TEST(ObjectEquality, ComparesFaultsAndBothShapesOfTheirDetails) {
    KORVASOAPFault left;
    KORVASOAPFault right;
    KORVAFaultDetail details[2];
    details[0].setErrorCode("1");
    details[1].setErrorCode("1");
    KORVAFaultDetailArray documented[2];
    documented[0].push_back(&details[0]);
    documented[1].push_back(&details[1]);
    left.setDetail(&documented[0]);
    right.setDetail(&documented[1]);
    EXPECT_TRUE(equal(left, right));
    details[1].setErrorCode("2");
    EXPECT_FALSE(equal(left, right));

    KORVAUndocumentedFaultDetail undocumented[2];
    undocumented[0].setSeverity("error");
    EXPECT_FALSE(equal(undocumented[0], undocumented[1]));
    undocumented[1].setSeverity("error");
    EXPECT_TRUE(equal(undocumented[0], undocumented[1]));
    KORVAUndocumentedFaultDetailArray arrays[2];
    arrays[0].push_back(&undocumented[0]);
    arrays[1].push_back(&undocumented[1]);
    EXPECT_TRUE(equal(arrays[0], arrays[1]));
    undocumented[1].setSeverity("warn");
    EXPECT_FALSE(equal(arrays[0], arrays[1]));
}

TEST(ObjectEquality, IsTheSameInBothDirections) {
    KORVAReport report;
    KORVAFolder folder;
    const KORVAGuid guid;
    EXPECT_FALSE(equal(report, folder));
    EXPECT_FALSE(equal(folder, report));
    EXPECT_FALSE(equal(guid, folder));
    EXPECT_FALSE(equal(folder, guid));
}

TEST(ObjectEquality, OfNullIsWithNullOnly) {
    const KORVAFolder folder;
    const Object* const none = nullptr;
    EXPECT_TRUE(equal(none, none));
    EXPECT_FALSE(equal(&folder, none));
    EXPECT_FALSE(equal(none, &folder));
    const KORVAFolder other;
    EXPECT_TRUE(equal(&folder, &other));
}

TEST(ObjectEquality, OfObjectsOfUnknownTypesIsThatOfTheirAddresses) {
    const KORVAUnknownSchemaType left("x");
    const KORVAUnknownSchemaType right("x");
    EXPECT_TRUE(equal(left, left));
    EXPECT_FALSE(equal(left, right));
}

}  // namespace
