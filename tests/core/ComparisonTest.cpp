// Comparison of classes, field by field.

#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TestStreams.h"

#include <korva/KORVAAncestorInfo.h>
#include <korva/KORVAAncestorInfoArray.h>
#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVADeploymentObjectInformation.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAPolicy.h>
#include <korva/KORVAReport.h>
#include <korva/KORVARolapMetricNumber.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAScheduleArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using korva::test::TextStreamable;

TEST(Comparison, FreshObjectsOfOneClassAreEqual) {
    EXPECT_TRUE(KORVASchedule() == KORVASchedule());
    EXPECT_FALSE(KORVASchedule() != KORVASchedule());
    EXPECT_FALSE(KORVASchedule() == KORVAFolder());
}

TEST(Comparison, ObjectEqualsItselfUnread) {
    // Its stream could not be compared.
    const TextStreamable stream("x");
    KORVAXSBase64Binary data;
    data.reference(stream);
    KORVAAsynchDetailMIMEAttachment attachment;
    attachment.setData(&data);
    EXPECT_TRUE(attachment == attachment);
}

TEST(Comparison, SetChildDiffersFromAnUnsetOne) {
    KORVABooleanProp active;
    KORVASchedule left;
    KORVASchedule right;
    left.setActive(&active);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    KORVABooleanProp other;
    right.setActive(&other);
    EXPECT_TRUE(left == right);
    other.setValue(false);
    EXPECT_FALSE(left == right);
    right.setActive(&active);
    EXPECT_TRUE(left == right);
}

TEST(Comparison, BasePartTakesPart) {
    KORVABooleanProp hidden;
    KORVAStringProp version;
    KORVASchedule left;
    KORVASchedule right;
    left.setHidden(&hidden);
    EXPECT_FALSE(left == right);
    right.setHidden(&hidden);
    EXPECT_TRUE(left == right);
    left.setSearchPath(&version);
    EXPECT_FALSE(left == right);
}

TEST(Comparison, TextsCompareByContent) {
    const std::string first("node");
    const std::string second("node");
    KORVAConversationContext left;
    KORVAConversationContext right;
    left.setNodeID(first.c_str());
    EXPECT_FALSE(left == right);
    right.setNodeID(second.c_str());
    EXPECT_TRUE(left == right);
    right.setNodeID("Node");
    EXPECT_FALSE(left == right);
    left.setNodeID("");
    right.setNodeID(nullptr);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
}

TEST(Comparison, ResetObjectsKeepTheirDifference) {
    KORVAConversationContext left;
    KORVAConversationContext right;
    left.setProcessID(1);
    left.resetProcessID();
    right.setProcessID(2);
    right.resetProcessID();
    EXPECT_FALSE(left == right);
    right.setProcessID(1);
    EXPECT_FALSE(left == right);
    right.resetProcessID();
    EXPECT_TRUE(left == right);
}

TEST(Comparison, FloatsCompareAsNumbers) {
    KORVARolapMetricNumber left;
    KORVARolapMetricNumber right;
    left.setValue(0.0F);
    right.setValue(-0.0F);
    EXPECT_TRUE(left == right);
    right.setValue(0.5F);
    EXPECT_FALSE(left == right);
    left.setValue(std::numeric_limits<float>::quiet_NaN());
    right.setValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left == left);
}

TEST(Comparison, EmbeddedArraysTakePart) {
    KORVAAncestorInfo info;
    KORVAAncestorInfo same;
    KORVADeploymentObjectInformation left;
    KORVADeploymentObjectInformation right;
    left.getAncestors().push_back(&info);
    EXPECT_FALSE(left == right);
    right.getAncestors().push_back(&same);
    EXPECT_TRUE(left == right);
    same.setTitle("title");
    EXPECT_FALSE(left == right);
}

TEST(Comparison, CharStreamablesCompareByTheirPieces) {
    const TextStreamable stream("x");
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    first.initialize(stream, false);
    second.initialize(stream, false);
    KORVAStringProp left;
    KORVAStringProp right;
    left.setValue(first.asCharStar());
    right.setValue(second.asCharStar());
    EXPECT_TRUE(left == right);
    second.setIsContentId(true);
    EXPECT_FALSE(left == right);
    right.setValue("x");
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    right.setValue(nullptr);
    EXPECT_FALSE(left == right);
}

TEST(Comparison, StreamedBinariesAreAnAssertion) {
    const TextStreamable stream("x");
    KORVAXSBase64Binary first;
    KORVAXSBase64Binary second;
    first.reference(stream);
    second.reference(stream);
    KORVAAsynchDetailMIMEAttachment left;
    KORVAAsynchDetailMIMEAttachment right;
    left.setData(&first);
    right.setData(&second);
    EXPECT_ASSERTION(left == right, "ZEL_ASSERT(!m_streamable);");
    right.setData(&first);
    EXPECT_TRUE(left == right);
}

TEST(Comparison, ChildrenOfDifferentClassesDiffer) {
    KORVAFolder folder;
    KORVAReport report;
    KORVAPolicy left;
    KORVAPolicy right;
    left.setSecurityObject(&folder);
    right.setSecurityObject(&report);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    KORVAFolder other;
    right.setSecurityObject(&other);
    EXPECT_TRUE(left == right);
}

/// Equal to whatever claims to be a schedule, or to nothing.
class Opinionated : public KORVASchedule {
public:
    explicit Opinionated(bool equal) : m_equal(equal) {}
    bool operator==(const KORVASchemaTypeI&) const override { return m_equal; }
    bool operator!=(const KORVASchemaTypeI&) const override { return !m_equal; }

private:
    bool m_equal;
};

TEST(Comparison, ChildIsAskedByItsOwnVirtualOperator) {
    KORVASchedule schedule;
    Opinionated agreeing(true);
    Opinionated disagreeing(false);
    KORVABooleanProp active;
    agreeing.setActive(&active);
    KORVAScheduleArray left;
    KORVAScheduleArray right;
    right.push_back(&schedule);
    left.push_back(&agreeing);
    EXPECT_TRUE(left == right);
    left.front() = &disagreeing;
    EXPECT_FALSE(left == right);
    // From the other side the generated class compares.
    EXPECT_TRUE(right == left);
}

TEST(Comparison, ObjectsWithoutAFamilyEqualThemselvesOnly) {
    KORVAUnknownSchemaType first;
    KORVAUnknownSchemaType second;
    KORVAPolicy left;
    KORVAPolicy right;
    left.setSecurityObject(reinterpret_cast<KORVABaseClass*>(&first));
    right.setSecurityObject(reinterpret_cast<KORVABaseClass*>(&second));
    EXPECT_FALSE(left == right);
    right.setSecurityObject(reinterpret_cast<KORVABaseClass*>(&first));
    EXPECT_TRUE(left == right);
}

}  // namespace
