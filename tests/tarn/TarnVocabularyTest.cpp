// The tables of the second object model, against the schema files as the tests read them.
#include "tests/support/SchemaScan.h"
#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNTypeError.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace korva::test;

/// The identity of a type as the schema files write it; the plain types have the same numbers.
TarnType identity(const std::string& type) {
    return static_cast<TarnType>(identityOf(type));
}

template <class Action>
void forEachConcreteType(Action action) {
    std::size_t count = 0;
    for (const auto& [name, type] : builtSchema()) {
        if (type.isAbstract) continue;
        SCOPED_TRACE(name);
        TarnObjects tarn;
        action(name, type, tarn.make(name.c_str()));
        ++count;
    }
    EXPECT_GT(count, 800u);
}

TEST(TarnVocabulary, HasEveryTypeByNumberAndName) {
    TARNSchemaTypesFactory& factory = TARNSchemaTypesFactory::getInstance();
    for (const auto& [name, type] : builtSchema()) {
        const TarnType number = identity("bus:" + name);
        EXPECT_EQ(factory.stringToObjectType(name.c_str()), number) << name;
        EXPECT_EQ(factory.objectTypeToXSIType(number), "bus:" + name);
        EXPECT_EQ(TARNSchemaTypesFactory::isArrayType(number), type.family == SchemaType::eArray);
        if (type.isAbstract) {
            EXPECT_THROW(factory.create(number), TARNTypeError) << name;
        }
    }
}

TEST(TarnVocabulary, ObjectsAreOfTheirTypeAndItsBases) {
    forEachConcreteType(
        [](const std::string& name, const SchemaType& type, TARNSchemaTypeI& object) {
            EXPECT_EQ(object.getObjectType(), identity("bus:" + name));
            EXPECT_TRUE(object.isa(object.getObjectType()));
            for (std::string base = type.base; !base.empty(); base = builtSchema().at(base).base)
                EXPECT_TRUE(object.isa(identity("bus:" + base))) << base;
        });
}

TEST(TarnVocabulary, ObjectsHaveTheirChildrenInOrder) {
    forEachConcreteType(
        [](const std::string& name, const SchemaType& type, TARNSchemaTypeI& object) {
            if (type.family == SchemaType::eArray) {
                EXPECT_EQ(object.getChildType("any"), identity(type.element));
                return;
            }
            if (type.family != SchemaType::eClass) return;
            std::vector<std::string> expected;
            for (const SchemaField& field : allFields(builtSchema(), name)) {
                expected.push_back(field.name);
                EXPECT_EQ(object.getChildType(field.name.c_str()), identity(field.type));
            }
            EXPECT_EQ(namesOf(object, true), expected);
            EXPECT_EQ(object.getChildObjectCount(), expected.size());
        });
}

}  // namespace
