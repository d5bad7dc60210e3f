// How the classes derive from each other, and which of them can be made.

#include "tests/support/SchemaScan.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::Family;
using korva::test::isAbstract;
using korva::test::make;
using korva::test::namesOf;
using korva::test::SchemaField;
using korva::test::typeNames;
using korva::test::typeOf;

std::set<std::string> fieldNamesUnderBaseClass() {
    std::set<std::string> out;
    for (const std::string& name : builtSchema().derivedFrom("baseClass"))
        for (const SchemaField& field : builtSchema().at(name).fields)
            out.insert(field.name);
    return out;
}

TEST(ClassTree, SchemaAndLibraryAgreeOnWhatIsAbstract) {
    for (const std::string& name : typeNames())
        EXPECT_EQ(isAbstract(name), builtSchema().at(name).isAbstract) << name;
}

TEST(ClassTree, SchemaAndLibraryAgreeOnEachBase) {
    const std::vector<std::string> classes = namesOf(Family::Class);
    for (const std::string& name : classes) {
        if (isAbstract(name)) continue;
        const auto object = make(name);
        for (const std::string& base : classes)
            EXPECT_EQ(object->isa(typeOf(base)), builtSchema().isA(name, base))
                << name << ' ' << base;
    }
}

TEST(ClassTree, Of65ClassesNoObjectCanBeMadeAndOfTheBaseOfProperties) {
    const std::vector<std::string> classes = namesOf(Family::Class);
    EXPECT_EQ(std::count_if(classes.begin(), classes.end(), isAbstract), 65);
    const std::vector<std::string> properties = namesOf(Family::Property);
    EXPECT_EQ(std::count_if(properties.begin(), properties.end(), isAbstract), 1);
    for (const Family family : {Family::Array, Family::Enum, Family::RestrictedString}) {
        const std::vector<std::string> others = namesOf(family);
        EXPECT_EQ(std::count_if(others.begin(), others.end(), isAbstract), 0);
    }
}

TEST(ClassTree, Has216ClassesUnderBaseClassWithItself) {
    EXPECT_EQ(builtSchema().derivedFrom("baseClass").size(), 216U);
}

TEST(ClassTree, Of201ClassesUnderBaseClassObjectsCanBeMade) {
    std::size_t count = 0;
    for (const std::string& name : namesOf(Family::Class))
        if (!isAbstract(name) && make(name)->isa(KORVASchemaTypeI::eKORVABaseClass)) ++count;
    EXPECT_EQ(count, 201U);
}

TEST(ClassTree, Has567FieldNamesUnderBaseClass) {
    EXPECT_EQ(fieldNamesUnderBaseClass().size(), 567U);
}

TEST(ClassTree, PropEnumIsTheFieldNamesUnderBaseClassLessEight) {
    std::set<std::string> expected = fieldNamesUnderBaseClass();
    for (const char* const left :
         {"decoratedSpecification", "gatewayDestination", "gsAffineConnections",
          "gsMaximumProcesses", "gsPeakAffineConnections", "gsPeakMaximumProcesses", "history",
          "secureKey"})
        EXPECT_EQ(expected.erase(left), 1U) << left;
    const std::vector<std::string>& words = builtSchema().at("propEnum").words;
    EXPECT_EQ(words.size(), 559U);
    EXPECT_EQ(std::set<std::string>(words.begin(), words.end()), expected);
    EXPECT_FALSE(builtSchema().at("propEnum").open);
}

TEST(ClassTree, ClassEnumIsTheConcreteClassesUnderBaseClassAndTwoOptions) {
    std::set<std::string> expected = {"genericOptionObjectRef", "genericOptionObjectRefArray"};
    for (const std::string& name : builtSchema().derivedFrom("baseClass"))
        if (!isAbstract(name)) expected.insert(name);
    const std::vector<std::string>& words = builtSchema().at("classEnum").words;
    EXPECT_EQ(words.size(), 203U);
    EXPECT_EQ(std::set<std::string>(words.begin(), words.end()), expected);
    EXPECT_FALSE(builtSchema().at("classEnum").open);
}

TEST(ClassTree, DataIntegrationTaskIsAbstractThoughItsFourSubclassesAddNothing) {
    EXPECT_TRUE(isAbstract("baseDataIntegrationTask"));
    std::size_t count = 0;
    for (const std::string& name : builtSchema().derivedFrom("baseDataIntegrationTask")) {
        if (name == "baseDataIntegrationTask") continue;
        ++count;
        EXPECT_FALSE(isAbstract(name)) << name;
        EXPECT_TRUE(builtSchema().at(name).fields.empty()) << name;
    }
    EXPECT_EQ(count, 4U);
}

}  // namespace
