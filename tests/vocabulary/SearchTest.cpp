// What a query says: properties, order, and the properties of referenced objects.

#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"

#include <korva/KORVAEventRefPropEnum.h>
#include <korva/KORVAOrderEnum.h>
#include <korva/KORVAPropEnum.h>
#include <korva/KORVAPropEnumArray.h>
#include <korva/KORVAQueryOptions.h>
#include <korva/KORVARefProp.h>
#include <korva/KORVARefPropArray.h>
#include <korva/KORVASort.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;

TEST(Search, PropEnumHasTheNamesOfTheFieldsOfAnyClass) {
    for (const char* const name : {"searchPath", "hidden", "defaultOutputFormat", "rsAuditLevel",
                                   "weeklyFriday", "cookieDomain", "dispatcherID"}) {
        KORVAPropEnum property;
        EXPECT_NO_THROW(property.setValue(name)) << name;
        EXPECT_STREQ(property.toString(), name);
    }
}

TEST(Search, PropEnumIsInAlphabeticalOrderWithoutRegardToCase) {
    const std::vector<std::string>& words = builtSchema().at("propEnum").words;
    EXPECT_TRUE(std::is_sorted(
        words.begin(), words.end(), [](const std::string& left, const std::string& right) {
            return std::lexicographical_compare(
                left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
                    return std::tolower(static_cast<unsigned char>(a)) <
                           std::tolower(static_cast<unsigned char>(b));
                });
        }));
    ASSERT_EQ(words.size(), 559U);
    EXPECT_EQ(std::vector<std::string>(words.begin(), words.begin() + 3),
              (std::vector<std::string>{"aasAffineConnections", "aasAuditLevel",
                                        "aasExecutionTimeLimit"}));
    EXPECT_EQ(std::vector<std::string>(words.end() - 3, words.end()),
              (std::vector<std::string>{"yearlyRelativeDay", "yearlyRelativeMonth",
                                        "yearlyRelativeWeek"}));
}

TEST(Search, HistoryIsAFieldButNoWordOfPropEnum) {
    EXPECT_NUMBERED(KORVAPropEnum::stringToEnum("history"), 0xEA45DC29U, "_stringToEnum()",
                    "propEnum:history");
    EXPECT_EQ(KORVAEventRefPropEnum::stringToEnum("history"), KORVAEventRefPropEnum::eKORVAHistory);
    EXPECT_EQ(KORVAEventRefPropEnum::stringToEnum("runnable"),
              KORVAEventRefPropEnum::eKORVARunnable);
}

TEST(Search, OrderEnumHasBothDirections) {
    EXPECT_EQ(static_cast<unsigned>(KORVAOrderEnum::stringToEnum("ascending")), 0x904134AEU);
    EXPECT_STREQ(KORVAOrderEnum::enumToString(KORVAOrderEnum::eKORVADescending), "descending");
}

TEST(Search, UpdateActionEnumHasItsThirdWord) {
    const std::vector<std::string>& words = builtSchema().at("updateActionEnum").words;
    EXPECT_EQ(words, (std::vector<std::string>{"fail", "replace", "update"}));
}

TEST(Search, SortWithoutAnOrderKeepsNone) {
    const korva::test::Registry registry = korva::test::makeRegistry();
    KORVASort sort;
    sort.getPropName(registry.operator->())->setValue("defaultName");
    EXPECT_EQ(sort.getOrder(), nullptr);
    EXPECT_EQ(sort.getChildObject("order", false), nullptr);
    const KORVASort copy(sort, *registry);
    EXPECT_EQ(copy.getOrder(), nullptr);
    EXPECT_STREQ(copy.getPropName()->toString(), "defaultName");
}

TEST(Search, RefPropsKeepTwoEntriesOfOneName) {
    const korva::test::Registry registry = korva::test::makeRegistry();
    KORVAPropEnum owner;
    owner.setValue("owner");
    KORVAPropEnum name;
    name.setValue("defaultName");
    KORVAPropEnum path;
    path.setValue("searchPath");
    KORVARefProp first;
    first.setRefPropName(&owner);
    first.getProperties().push_back(&name);
    KORVARefProp second;
    second.setRefPropName(&owner);
    second.getProperties().push_back(&path);
    KORVAQueryOptions options;
    options.getRefProps().push_back(&first);
    options.getRefProps().push_back(&second);

    const KORVAQueryOptions copy(options, *registry);
    KORVARefPropArray& copies = copy.getRefProps();
    ASSERT_EQ(copies.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_STREQ(copies.at(i)->getRefPropName()->toString(), "owner");
    EXPECT_STREQ(copies.at(0)->getProperties().at(0)->toString(), "defaultName");
    EXPECT_STREQ(copies.at(1)->getProperties().at(0)->toString(), "searchPath");
}

}  // namespace
