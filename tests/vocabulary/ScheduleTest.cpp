// Schedules and histories.

#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVAGenericOptionString.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOptionArrayProp.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParameterValueArrayProp.h>
#include <korva/KORVARunOptionArray.h>
#include <korva/KORVARunOptionArrayProp.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVASchedule.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childrenOf;
using korva::test::childTypeOf;
using korva::test::make;

TEST(Schedule, KeepsOptionsParametersAndRunOptionsApart) {
    KORVAGenericOptionString option;
    KORVAParameterValue parameter;
    KORVARunOptionBoolean runOption;
    KORVAOptionArrayProp options;
    options.getValue().push_back(&option);
    KORVAParameterValueArrayProp parameters;
    parameters.getValue().push_back(&parameter);
    KORVARunOptionArrayProp runOptions;
    runOptions.getValue().push_back(&runOption);
    KORVASchedule schedule;
    schedule.setOptions(&options);
    schedule.setParameters(&parameters);
    schedule.setRunOptions(&runOptions);

    EXPECT_EQ(schedule.getChildObject("options", false), &options);
    EXPECT_EQ(schedule.getChildObject("parameters", false), &parameters);
    EXPECT_EQ(schedule.getChildObject("runOptions", false), &runOptions);
    const korva::test::Registry registry = korva::test::makeRegistry();
    const KORVASchedule copy(schedule, *registry);
    ASSERT_EQ(copy.getOptions()->getValue().size(), 1U);
    EXPECT_TRUE(
        copy.getOptions()->getValue().at(0)->isa(KORVASchemaTypeI::eKORVAGenericOptionString));
    ASSERT_EQ(copy.getParameters()->getValue().size(), 1U);
    ASSERT_EQ(copy.getRunOptions()->getValue().size(), 1U);
    EXPECT_TRUE(
        copy.getRunOptions()->getValue().at(0)->isa(KORVASchemaTypeI::eKORVARunOptionBoolean));
}

TEST(Schedule, HasAFlagForEachDayOfTheWeek) {
    const auto schedule = make("schedule");
    std::size_t days = 0;
    for (const std::string& child : childrenOf(*schedule)) {
        if (child.rfind("weekly", 0) != 0) continue;
        ++days;
        EXPECT_EQ(childTypeOf(*schedule, child), "bus:booleanProp") << child;
    }
    EXPECT_EQ(days, 7U);
}

TEST(History, DetailHoldsOnlyWhatItInherits) {
    EXPECT_TRUE(builtSchema().at("historyDetail").fields.empty());
    const auto detail = make("historyDetail");
    const std::vector<std::string> children = childrenOf(*detail);
    ASSERT_EQ(children.size(), 23U);
    EXPECT_EQ(std::vector<std::string>(children.begin() + 20, children.end()),
              (std::vector<std::string>{"detail", "detailTime", "severity"}));
    EXPECT_EQ(childTypeOf(*detail, "detail"), "bus:stringProp");
    EXPECT_EQ(childTypeOf(*detail, "detailTime"), "bus:dateTimeProp");
    EXPECT_EQ(childTypeOf(*detail, "severity"), "bus:severityEnumProp");
}

}  // namespace
