// The vocabulary against lists that were written apart from the schema: a slip there is told here.

#include "tests/support/SchemaScan.h"
#include "tests/support/Tables.h"
#include "tests/support/TextBuffer.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childrenOf;
using korva::test::childTypeOf;
using korva::test::Family;
using korva::test::isAbstract;
using korva::test::make;
using korva::test::namesOf;
using korva::test::SchemaType;
using korva::test::tableRows;
using korva::test::TextBuffer;
using korva::test::typeOf;

struct ListedField {
    std::string name;
    std::string type;  ///< as XSI type; "?" when only the schema tells it
};

struct ListedClass {
    bool isAbstract = false;
    std::string base;
    bool open = false;  ///< only the schema tells the fields
    std::vector<ListedField> fields;
};

struct ListedEnum {
    std::string count;  ///< "?" when it is not known
    std::vector<std::string> words;
};

const std::map<std::string, ListedClass>& listedClasses() {
    static const std::map<std::string, ListedClass> classes = [] {
        std::map<std::string, ListedClass> out;
        ListedClass* last = nullptr;
        for (const std::vector<std::string>& row : tableRows("classes.txt")) {
            if (!row.front().empty()) {
                last = &out[row.front()];
                last->isAbstract = row.size() > 1 && row[1] == "abstract";
                if (row.size() > 2) last->base = row.back();
            } else if (row.at(1) == "...") {
                last->open = true;
            } else {
                last->fields.push_back({row.at(1), row.at(2)});
            }
        }
        return out;
    }();
    return classes;
}

const std::map<std::string, ListedEnum>& listedEnums() {
    static const std::map<std::string, ListedEnum> enums = [] {
        std::map<std::string, ListedEnum> out;
        ListedEnum* last = nullptr;
        for (const std::vector<std::string>& row : tableRows("enums.txt")) {
            if (!row.front().empty()) {
                last = &out[row.front()];
                last->count = row.at(1);
            } else {
                last->words.push_back(row.at(1));
            }
        }
        return out;
    }();
    return enums;
}

template <class Item>
std::vector<std::string> keysOf(const std::map<std::string, Item>& items) {
    std::vector<std::string> out;
    for (const auto& [name, item] : items)
        out.push_back(name);
    return out;
}

// The class and its bases, root first.
std::vector<std::string> lineOf(const std::string& name) {
    std::vector<std::string> out;
    for (std::string step = name; !step.empty(); step = listedClasses().at(step).base)
        out.push_back(step);
    return {out.rbegin(), out.rend()};
}

TEST(WrittenList, HasEveryClassAndPropertyAndNoOther) {
    std::vector<std::string> names = namesOf(Family::Class);
    for (const std::string& name : namesOf(Family::Property))
        names.push_back(name);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, keysOf(listedClasses()));
}

TEST(WrittenList, TellsOfWhichClassesNoObjectIsMade) {
    for (const auto& [name, listed] : listedClasses())
        EXPECT_EQ(isAbstract(name), listed.isAbstract) << name;
}

TEST(WrittenList, TellsTheBasesOfEachClass) {
    for (const auto& [name, listed] : listedClasses()) {
        EXPECT_EQ(builtSchema().at(name).base, listed.base) << name;
        if (listed.isAbstract) continue;
        const auto object = make(name);
        const std::vector<std::string> line = lineOf(name);
        for (const auto& [other, ignored] : listedClasses()) {
            const bool isBase = std::find(line.begin(), line.end(), other) != line.end();
            EXPECT_EQ(object->isa(typeOf(other)), isBase) << name << ' ' << other;
        }
    }
}

TEST(WrittenList, TellsTheFieldsOfEachClassInOrderWithTheirTypes) {
    std::size_t compared = 0;
    for (const auto& [name, listed] : listedClasses()) {
        if (listed.isAbstract || listed.open) continue;
        std::vector<ListedField> fields;
        for (const std::string& step : lineOf(name)) {
            const std::vector<ListedField>& own = listedClasses().at(step).fields;
            fields.insert(fields.end(), own.begin(), own.end());
        }
        const auto object = make(name);
        const std::vector<std::string> children = childrenOf(*object);
        ASSERT_EQ(children.size(), fields.size()) << name;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            EXPECT_EQ(children[i], fields[i].name) << name;
            if (fields[i].type == "?") continue;
            EXPECT_EQ(childTypeOf(*object, fields[i].name), fields[i].type)
                << name << '.' << fields[i].name;
            ++compared;
        }
    }
    EXPECT_GT(compared, 2500U);
}

TEST(WrittenList, HasEveryEnumerationAndNoOther) {
    EXPECT_EQ(namesOf(Family::Enum), keysOf(listedEnums()));
}

TEST(WrittenList, TellsTheWordsOfEachEnumerationInOrder) {
    for (const auto& [name, listed] : listedEnums()) {
        const std::vector<std::string>& words = builtSchema().at(name).words;
        auto next = words.begin();
        for (const std::string& word : listed.words) {
            next = std::find(next, words.end(), word);
            ASSERT_NE(next, words.end()) << name << ' ' << word;
            const auto value = make(name);
            TextBuffer text(word.c_str());
            value->setChildObject("", &text, KORVASchemaTypeI::eString, nullptr);
            EXPECT_EQ(static_cast<const char*>(value->getChildObject("", false)), word) << name;
        }
    }
}

TEST(WrittenList, TellsHowManyWordsEachEnumerationHas) {
    for (const auto& [name, listed] : listedEnums()) {
        const SchemaType& type = builtSchema().at(name);
        if (listed.count == "?") {
            EXPECT_TRUE(type.open) << name;
        } else {
            EXPECT_EQ(std::to_string(type.words.size() + static_cast<std::size_t>(type.openWords)),
                      listed.count)
                << name;
        }
    }
}

}  // namespace
