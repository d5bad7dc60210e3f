// What the library writes is what its schema says, to validators that know the schema alone.
#include "tests/roundtrip/SchemaValidators.h"
#include "tests/roundtrip/Wire.h"
#include "tests/support/ObjectFiller.h"
#include "tests/support/RandomValues.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"

#include <korva/KORVASchemaTypesFactory.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>

namespace {

using korva::test::betweenArrays;
using korva::test::builtSchema;
using korva::test::identityOf;
using korva::test::makeRegistry;
using korva::test::ObjectFiller;
using korva::test::RandomValues;
using korva::test::Registry;
using korva::test::SchemaType;
using korva::test::SchemaValidators;
using korva::test::withDeclaredArrays;
using korva::test::withoutNils;
using korva::test::writeDocument;
using Object = KORVASchemaTypeI;

/// Random values whose texts have the form of their types.
class ValidValues : public RandomValues {
public:
    std::string textOf(Object::ObjectType type, const std::string& place) override {
        switch (type) {
            case Object::eDateTime:
                return choose(2) == 0 ? "2024-02-29T23:59:59.999Z" : "1999-12-31T00:00:00";
            case Object::eTime: return choose(2) == 0 ? "23:59:59" : "00:00:00.000Z";
            case Object::eQName: return choose(2) == 0 ? "bus:report" : "xs:string";
            default: return text(place);
        }
    }

    /// A validator need not read more digits than 18, and libxml2 reads few more.
    float fraction() override {
        const float value = RandomValues::fraction();
        return value > most || value < -most ? most : value;
    }

private:
    static constexpr float most = 1e15F;
};

const SchemaValidators& validators() {
    static const SchemaValidators& instance =
        *new SchemaValidators(KORVA_TEST_SCHEMA_DIR "/bus.xsd");
    return instance;
}

void expectValid(const std::string& document) {
    EXPECT_EQ(validators().libxml2Errors(document), "") << document;
    EXPECT_EQ(validators().xercesErrors(document), "") << document;
}

/// No element can be of an abstract type, not even one that is nil.
const std::set<std::string>& abstractTypes() {
    static const std::set<std::string>& types = *new std::set<std::string>([] {
        std::set<std::string> names;
        for (const auto& [name, type] : builtSchema())
            if (type.isAbstract) names.insert("bus:" + name);
        return names;
    }());
    return types;
}

std::string writeWithNulls(const Object& object, const char* name) {
    return withoutNils(writeDocument(object, name, true), abstractTypes());
}

class SchemaValidity : public testing::Test {
protected:
    SchemaValidity() : m_registry(makeRegistry()), m_filler(builtSchema(), m_registry, m_values) {}

    void SetUp() override { ASSERT_EQ(validators().schemaErrors(), ""); }

    /// Calls `action` with each concrete type, and a document that it is written as: with all of
    /// its values, some of them, or none, and what is null left out or written. Returns how many
    /// types there are.
    template <class Action>
    std::size_t forEachDocument(Action action) {
        std::size_t count = 0;
        for (const auto& [name, type] : builtSchema()) {
            if (type.isAbstract) continue;
            if (type.family == SchemaType::eEnum && type.words.empty()) continue;
            SCOPED_TRACE(name);
            ++count;
            const auto seed = static_cast<std::uint32_t>(identityOf("bus:" + name));
            m_values.restart(seed);
            action(name, writeDocument(m_filler.make(name), rootName(name)));
            m_values.restart(seed, RandomValues::eSparse);
            const Object& sparse = m_filler.make(name);
            action(name, writeDocument(sparse, rootName(name)));
            action(name, writeWithNulls(sparse, rootName(name)));
            if (type.family == SchemaType::eClass || type.family == SchemaType::eArray) {
                const Object& empty = m_filler.makeEmpty(identityOf("bus:" + name));
                action(name, writeDocument(empty, rootName(name)));
                action(name, writeWithNulls(empty, rootName(name)));
            }
            m_registry->clean();
            if (HasFailure()) break;
        }
        return count;
    }

private:
    /// The header is the only type that the schema has an element for.
    static const char* rootName(const std::string& type) {
        return type == "halyardHeader" ? "halyardHeader" : "value";
    }

    Registry m_registry;
    ValidValues m_values;
    ObjectFiller m_filler;
};

TEST_F(SchemaValidity, WhatIsWrittenBetweenArraysIsValid) {
    const std::size_t count = forEachDocument([](const std::string&, const std::string& document) {
        expectValid(betweenArrays(document));
    });
    EXPECT_EQ(count, 842U);
}

TEST_F(SchemaValidity, WhatIsWrittenInArraysIsValidAsTheirDeclaredTypes) {
    forEachDocument([](const std::string& name, const std::string& document) {
        expectValid(withDeclaredArrays(document, "bus:" + name));
    });
}

TEST_F(SchemaValidity, AnArrayUnderItsNameOnTheWireIsAllThatIsNotValid) {
    // The name is that of the base of the declared type.
    const std::string document =
        "<bus:value xsi:type='bus:stringArrayProp'><bus:value xsi:type='SOAP-ENC:Array' "
        "SOAP-ENC:arrayType='xs:string[1]'><item xsi:type='xs:string'>a</item></bus:value>"
        "</bus:value>";
    expectValid(withDeclaredArrays(document, ""));
    const std::string declared = withDeclaredArrays(document, "");
    const std::string arrayType = "SOAP-ENC:arrayType=";
    std::string written = declared;
    written.insert(written.find(arrayType), "xsi:type='SOAP-ENC:Array' ");
    EXPECT_NE(validators().libxml2Errors(written), "");
    EXPECT_NE(validators().xercesErrors(written), "");
}

TEST_F(SchemaValidity, IsDeniedToWhatTheLibraryDoesNotWrite) {
    for (const char* const wrong : {
             // without a namespace
             "<bus:value xsi:type='bus:intProp'><value xsi:type='xs:int'>1</value></bus:value>",
             // no number
             "<bus:value xsi:type='bus:intProp'><bus:value>one</bus:value></bus:value>",
             // another order
             "<bus:value xsi:type='bus:intProp'><bus:value>1</bus:value><bus:schemaInfo/>"
             "</bus:value>",
             // twice
             "<bus:value xsi:type='bus:intProp'><bus:value>1</bus:value><bus:value>1</bus:value>"
             "</bus:value>",
             // unknown
             "<bus:value xsi:type='bus:intProp'><bus:price>1</bus:price></bus:value>",
             "<bus:value xsi:type='bus:accessEnum'>borrow</bus:value>",
             "<bus:value xsi:type='bus:noSuchType'/>",
             // abstract
             "<bus:value xsi:type='bus:option'/>",
             // items of another name, another type, and with a namespace
             "<bus:value xsi:type='bus:stringArray'><entry>a</entry></bus:value>",
             "<bus:value xsi:type='bus:intArray'><item>a</item></bus:value>",
             "<bus:value xsi:type='bus:stringArray'><bus:item>a</bus:item></bus:value>",
             "<bus:halyardHeader><bus:noSuchEntry/></bus:halyardHeader>",
         }) {
        EXPECT_NE(validators().libxml2Errors(betweenArrays(wrong)), "") << wrong;
        EXPECT_NE(validators().xercesErrors(betweenArrays(wrong)), "") << wrong;
    }
}

TEST_F(SchemaValidity, EachFileLoadsAloneAndFromNowhereElse) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(KORVA_TEST_SCHEMA_DIR)) {
        if (entry.path().extension() != ".xsd" || entry.path().stem() == "soap-encoding") continue;
        ++count;
        EXPECT_EQ(SchemaValidators::loadingErrors(entry.path().string()), "") << entry.path();
    }
    EXPECT_EQ(count, 16U);
}

TEST_F(SchemaValidity, TheFileThatServicesReferToDeclaresTheSameTypes) {
    const std::string joined = KORVA_TEST_SCHEMA_DIR "/joined/bus.xsd";
    EXPECT_EQ(SchemaValidators::loadingErrors(joined), "");
    std::set<std::string> names;
    for (const auto& [name, type] : builtSchema())
        names.insert(name);
    std::set<std::string> joinedNames;
    for (const auto& [name, type] : korva::test::scan({joined}))
        joinedNames.insert(name);
    EXPECT_EQ(joinedNames, names);
}

}  // namespace
