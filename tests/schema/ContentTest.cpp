// The tree of content objects.

#include "tests/support/Registry.h"

#include <korva/KORVABaseClass.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVANil.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAQuery.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASchedule.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Object = KORVASchemaTypeI;

std::vector<std::string> childNames(const KORVASchemaTypeI& object) {
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);
    return {names.begin(), names.end()};
}

TEST(Content, NilHasTheTwentyFieldsOfItsBaseAndNoneOfItsOwn) {
    const KORVANil nil;
    EXPECT_EQ(nil.getChildObjectCount(), 20u);
    EXPECT_EQ(childNames(nil).size(), 20u);
    EXPECT_TRUE(nil.isa(Object::eKORVABaseClass));
    EXPECT_FALSE(nil.isa(Object::eKORVAUiClass));
}

TEST(Content, ReportAndQueryHaveTheSameFieldsAndDifferByTypeAlone) {
    const KORVAReport report;
    const KORVAQuery query;
    EXPECT_EQ(childNames(report), childNames(query));
    for (const std::string& name : childNames(report))
        EXPECT_EQ(report.getChildType(name.c_str()), query.getChildType(name.c_str())) << name;
    EXPECT_FALSE(report == query);
    EXPECT_FALSE(query == report);
}

TEST(Content, ScheduleHasSixtyThreeChildren) {
    EXPECT_EQ(KORVASchedule().getChildObjectCount(), 63u);
    EXPECT_EQ(KORVAFolder().getChildObjectCount(), childNames(KORVAFolder()).size());
}

TEST(Content, ParentHoldsAReferenceThatIsAnObject) {
    const korva::test::Registry registry = korva::test::makeRegistry();
    KORVAReport report;
    KORVAFolder folder;
    report.getParent(registry.get())->getValue().push_back(&folder);
    const KORVABaseClassArray& parents = report.getParent()->getValue();
    EXPECT_EQ(parents.at(0)->getObjectType(), Object::eKORVAFolder);
    KORVAOutput output;
    output.getParent(registry.get())->getValue().push_back(&report);
    EXPECT_TRUE(output.isa(Object::eKORVABaseClass));
    EXPECT_EQ(output.getParent()->getValue().at(0), &report);
}

}  // namespace
