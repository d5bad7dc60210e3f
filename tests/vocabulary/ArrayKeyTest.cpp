// The arrays that an array type text such as "bus:schedule[3]" names.

#include "tests/support/Tables.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using korva::test::crcOf;
using korva::test::Family;
using korva::test::make;
using korva::test::namesOf;
using korva::test::tableLines;
using korva::test::typeNames;
using korva::test::typeOf;

const KORVASchemaTypesFactory& factory() {
    return KORVASchemaTypesFactory::getInstance();
}

TEST(ArrayKey, ThereAre97) {
    const std::vector<std::string> elements = tableLines("array-elements.txt");
    EXPECT_EQ(elements.size(), 97U);
    for (const std::string& element : elements)
        EXPECT_EQ(factory().busArrayTypeToObjectType(element.c_str()), crcOf(element + "Array"));
}

TEST(ArrayKey, NoOtherTypeIsAnElementThatAKeyNames) {
    const std::vector<std::string> elements = tableLines("array-elements.txt");
    for (const std::string& name : typeNames()) {
        const bool isKey = std::binary_search(elements.begin(), elements.end(), name);
        EXPECT_EQ(factory().busArrayTypeToObjectType(name.c_str()) != 0, isKey) << name;
    }
}

TEST(ArrayKey, LeadsBackToTheElement) {
    for (const std::string& element : tableLines("array-elements.txt")) {
        const KORVASchemaTypeI::ObjectType array =
            factory().busArrayTypeToObjectType(element.c_str());
        EXPECT_EQ(factory().objectTypeToArrayType(array), "bus:" + element);
    }
}

TEST(ArrayKey, ScheduleIsAClassByItsNameAndAnArrayByItsKey) {
    EXPECT_EQ(factory().busTypeToObjectType("schedule"), KORVASchemaTypeI::eKORVASchedule);
    EXPECT_EQ(factory().busArrayTypeToObjectType("schedule"),
              KORVASchemaTypeI::eKORVAScheduleArray);
    EXPECT_EQ(factory().busTypeToObjectType("schedule[]"), 0);
}

TEST(ArrayKey, ElevenArraysHaveNone) {
    const std::vector<std::string> elements = tableLines("array-elements.txt");
    std::vector<std::string> others;
    for (const std::string& array : namesOf(Family::Array)) {
        const std::string element = array.substr(0, array.size() - 5);
        if (!std::binary_search(elements.begin(), elements.end(), element)) others.push_back(array);
    }
    EXPECT_EQ(others.size(), 11U);
    for (const std::string& array : others)
        EXPECT_EQ(std::string(factory().objectTypeToArrayType(typeOf(array))).substr(0, 3), "xs:")
            << array;
}

}  // namespace
