// The words of the enumerations.

#include "tests/support/SchemaScan.h"
#include "tests/support/TextBuffer.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::crcOf;
using korva::test::Family;
using korva::test::make;
using korva::test::namesOf;
using korva::test::SchemaType;
using korva::test::TextBuffer;

TEST(EnumWords, EachIsTakenAndToldAgain) {
    for (const std::string& name : namesOf(Family::Enum)) {
        for (const std::string& word : builtSchema().at(name).words) {
            const auto value = make(name);
            TextBuffer text(word.c_str());
            value->setChildObject("", &text, KORVASchemaTypeI::eString, nullptr);
            EXPECT_EQ(static_cast<const char*>(value->getChildObject("", false)), word) << name;
        }
    }
}

TEST(EnumWords, NoTwoOfAnEnumerationShareACrc) {
    for (const std::string& name : namesOf(Family::Enum)) {
        std::set<std::int32_t> crcs;
        const std::vector<std::string>& words = builtSchema().at(name).words;
        for (const std::string& word : words)
            crcs.insert(crcOf(word));
        EXPECT_EQ(crcs.size(), words.size()) << name;
        EXPECT_EQ(crcs.count(0), 0U) << name;
    }
}

TEST(EnumWords, AreMissingOnlyWhereTheEnumerationIsOpen) {
    std::size_t open = 0;
    for (const std::string& name : namesOf(Family::Enum)) {
        const SchemaType& type = builtSchema().at(name);
        open += type.open ? 1 : 0;
        EXPECT_TRUE(type.open || !type.words.empty()) << name;
    }
    EXPECT_EQ(open, 69U);
}

}  // namespace
