#include "tests/roundtrip/Operations.h"
#include "tests/roundtrip/Wire.h"
#include "tests/roundtrip/WireForm.h"
#include "tests/support/Comparison.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ObjectFiller.h"
#include "tests/support/RandomValues.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"
#include "tests/support/Tables.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_String.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::areEqual;
using korva::test::areSameBytes;
using korva::test::Binding;
using korva::test::builtSchema;
using korva::test::canBeRoot;
using korva::test::classNameOf;
using korva::test::identityOf;
using korva::test::makeRegistry;
using korva::test::ObjectFiller;
using korva::test::PortTypeOperation;
using korva::test::RandomValues;
using korva::test::Registry;
using korva::test::SchemaType;
using korva::test::WireForm;
using Object = KORVASchemaTypeI;

std::uint32_t crcOf(const std::string& name) {
    return static_cast<std::uint32_t>(identityOf("bus:" + name));
}

bool isWordless(const SchemaType& type) {
    return type.family == SchemaType::eEnum && type.words.empty();
}

class VocabularyOnTheWire : public testing::Test {
protected:
    VocabularyOnTheWire()
        : m_sources(makeRegistry()),
          m_filler(builtSchema(), m_sources, m_values),
          m_form(builtSchema()) {}

    /// Calls `action` for each type that can be made, with values of its own to draw.
    template <class Action>
    void forEachConcreteType(Action action) {
        for (const auto& [name, type] : builtSchema()) {
            if (type.isAbstract) continue;
            SCOPED_TRACE(name);
            m_values.restart(crcOf(name));
            action(name, type);
            m_sources->clean();
            if (HasFatalFailure()) return;
        }
    }

    /// The same for the types of a family; enumerations without words are left out. Returns how
    /// many there are.
    template <class Action>
    std::size_t forEach(SchemaType::Family family, Action action) {
        std::size_t count = 0;
        forEachConcreteType([&](const std::string& name, const SchemaType& type) {
            if (type.family != family || isWordless(type)) return;
            ++count;
            action(name, type);
        });
        return count;
    }

    KORVASchemaTypeI& makeEmpty(const std::string& name) {
        return *m_sources->own(
            ZELOwner(KORVASchemaTypesFactory::getInstance().create(identityOf("bus:" + name))));
    }

    /// Writes the object, holds the document against it, and expects what is read to be equal and
    /// to be written alike.
    void expectRoundTrip(const KORVASchemaTypeI& object) {
        const std::string xml = korva::test::writeDocument(object, "value");
        m_form.expectDocument(xml, "value", &object, object.getObjectType());
        const Registry registry = makeRegistry();
        const KORVASchemaTypeI* const read =
            korva::test::readDocument(m_deserializer, xml, registry);
        ASSERT_NE(read, nullptr) << xml;
        EXPECT_TRUE(areEqual(object, *read)) << xml;
        EXPECT_TRUE(areSameBytes(korva::test::writeDocument(*read, "value"), xml));
    }

    Registry m_sources;
    RandomValues m_values;
    ObjectFiller m_filler;
    WireForm m_form;
    KORVAXMLDeserializer m_deserializer;
};

TEST_F(VocabularyOnTheWire, CoversAllNamesOfTheVocabulary) {
    const std::vector<std::string> names = korva::test::tableLines("type-names.txt");
    const std::set<std::string> listed(names.begin(), names.end());
    std::set<std::string> scanned;
    for (const auto& row : builtSchema())
        scanned.insert(row.first);
    EXPECT_EQ(scanned, listed);
    std::size_t concrete = 0;
    forEachConcreteType([&](const std::string&, const SchemaType&) { ++concrete; });
    EXPECT_EQ(concrete, 867u);
}

TEST_F(VocabularyOnTheWire, EachClassIsWrittenAsItTellsAndReadBackEqual) {
    const std::size_t count = forEach(SchemaType::eClass, [this](const std::string& name, auto&) {
        expectRoundTrip(m_filler.make(name));
        m_values.restart(crcOf(name), RandomValues::eSparse);
        expectRoundTrip(m_filler.make(name));
    });
    EXPECT_EQ(count, 653u);
}

TEST_F(VocabularyOnTheWire, EachClassWithoutValuesIsReadBackEqual) {
    forEach(SchemaType::eClass,
            [this](const std::string& name, auto&) { expectRoundTrip(makeEmpty(name)); });
}

TEST_F(VocabularyOnTheWire, NullElementsAreReadAsUnsetChildren) {
    forEach(SchemaType::eClass, [this](const std::string& name, auto&) {
        const KORVASchemaTypeI& object = makeEmpty(name);
        const std::string xml = korva::test::writeDocument(object, "value", true);
        const Registry registry = makeRegistry();
        const KORVASchemaTypeI* const read =
            korva::test::readDocument(m_deserializer, xml, registry);
        ASSERT_NE(read, nullptr) << xml;
        EXPECT_TRUE(areEqual(object, *read)) << xml;
        EXPECT_TRUE(areSameBytes(korva::test::writeDocument(*read, "value", true), xml));
    });
}

TEST_F(VocabularyOnTheWire, EachArrayOfNamedElementsIsReadBackEqual) {
    std::size_t count = 0;
    forEach(SchemaType::eArray, [&](const std::string& name, const SchemaType& type) {
        if (!canBeRoot(name, type)) return;
        ++count;
        expectRoundTrip(makeEmpty(name));
        for (int i = 0; i < 3; ++i)
            expectRoundTrip(m_filler.make(name));
    });
    EXPECT_EQ(count, 97u);
}

TEST_F(VocabularyOnTheWire, ArraysWithoutElementNameAreNoDocuments) {
    std::size_t count = 0;
    forEach(SchemaType::eArray, [&](const std::string& name, const SchemaType& type) {
        if (canBeRoot(name, type)) return;
        ++count;
        const KORVASchemaTypeI& object = m_filler.make(name);
        const std::string xml = korva::test::writeDocument(object, "value");
        m_form.expectDocument(xml, "value", &object, object.getObjectType());
        const Registry registry = makeRegistry();
        EXPECT_EQ(korva::test::readDocument(m_deserializer, xml, registry), nullptr) << name;
    });
    EXPECT_EQ(count, 11u);
}

TEST_F(VocabularyOnTheWire, ArraysWithoutElementNameAreReadBackEqualWhereTheyAreExpected) {
    forEach(SchemaType::eArray, [&](const std::string& name, const SchemaType& type) {
        if (canBeRoot(name, type)) return;
        for (int i = 0; i < 5; ++i) {
            const KORVASchemaTypeI& object = m_filler.make(name);
            const std::string xml = korva::test::writeDocument(object, "value");
            const Registry registry = makeRegistry();
            const KORVASchemaTypeI* const read =
                korva::test::readElement(xml, object.getObjectType(), registry);
            ASSERT_NE(read, nullptr) << xml;
            EXPECT_TRUE(areEqual(object, *read)) << xml;
            EXPECT_TRUE(areSameBytes(korva::test::writeDocument(*read, "value"), xml));
        }
    });
}

TEST_F(VocabularyOnTheWire, EachWordOfAnEnumerationIsReadBackEqual) {
    forEach(SchemaType::eEnum, [this](const std::string& name, const SchemaType& type) {
        for (const std::string& word : type.words) {
            KORVASchemaTypeI& object = makeEmpty(name);
            KORVA_String text;
            text.appendChars(word.data(), word.size());
            object.setChildObject("", text.buffer(), Object::eString, nullptr);
            expectRoundTrip(object);
        }
    });
}

TEST_F(VocabularyOnTheWire, EnumerationsWithoutValueAreNotWritten) {
    std::size_t wordless = 0;
    forEachConcreteType([&](const std::string& name, const SchemaType& type) {
        if (type.family != SchemaType::eEnum) return;
        wordless += isWordless(type);
        const std::string text = "ZEL_ASSERT_NAMED(m_value != " + classNameOf(name) +
                                 "::eKOVRAUninitialized, \"Enum not initialized.\");";
        EXPECT_ASSERTION(korva::test::writeDocument(makeEmpty(name), "value"), text);
    });
    EXPECT_GT(wordless, 0u);
}

TEST_F(VocabularyOnTheWire, EachRestrictedStringIsReadBackEqual) {
    const std::size_t count =
        forEach(SchemaType::eRestrictedString, [this](const std::string& name, auto&) {
            for (int i = 0; i < 20; ++i)
                expectRoundTrip(m_filler.make(name));
        });
    EXPECT_EQ(count, 9u);
}

/// A parameter of a request, in which an object can stand, itself or as an element.
struct Place {
    const PortTypeOperation* operation;
    const char* parameter;
    Object::ObjectType type;
    Object::ObjectType elementType;  ///< e_Unknown unless the parameter is an array

    bool takes(const KORVASchemaTypeI& object) const {
        return object.isa(type) || (elementType != Object::e_Unknown && object.isa(elementType));
    }
};

/// All parameters of all operations that a reader takes for what they are: the versions of an
/// operation share the types of their parameters.
std::vector<Place> allPlaces() {
    std::vector<Place> places;
    for (const PortTypeOperation& operation : korva::test::operations()) {
        const auto* parameter = KORVAMessageFactory::getInstance().getParameterTypes(
            korva::test::messageTypeOf(operation.request));
        for (; parameter->name != nullptr; ++parameter) {
            const Object::ObjectType type = parameter->type;
            if (operation.portType->resolveOperationParamType(operation.name.c_str(),
                                                              parameter->name) != type)
                continue;
            Place& place = places.emplace_back(Place{&operation, parameter->name, type, {}});
            if (!KORVASchemaTypesFactory::isArrayType(type)) continue;
            const std::unique_ptr<KORVASchemaTypeI> array(
                KORVASchemaTypesFactory::getInstance().create(type));
            place.elementType = array->getChildType(KORVAChildIndex::toName(1));
        }
    }
    return places;
}

TEST_F(VocabularyOnTheWire, EachTypeThatAParameterCanHoldIsReadBackFromAnEnvelope) {
    const std::vector<Place> places = allPlaces();
    KORVASOAPMessageIDeserializer deserializer;
    std::size_t held = 0;
    forEachConcreteType([&](const std::string& name, const SchemaType& type) {
        if (isWordless(type)) return;
        KORVASchemaTypeI& object = m_filler.make(name);
        const auto place = std::find_if(places.begin(), places.end(), [&](const Place& candidate) {
            return candidate.takes(object);
        });
        if (place == places.end()) return;
        ++held;
        KORVASchemaTypeI* value = &object;
        if (!object.isa(place->type)) {
            value = &m_filler.makeEmpty(place->type);
            value->setChildObject("item", &object, object.getObjectType(), nullptr);
        }
        const Binding client = place->operation->portType->createPortTypeBinding(
            korva::test::messageTypeOf(place->operation->request));
        KORVAMessageI& request = client->getInputMessage();
        request.setChildObject(place->parameter, value, value->getObjectType());
        const std::string xml = korva::test::writeEnvelope(*client, request);
        m_form.expectEnvelope(xml, *client, request);

        const Binding server = korva::test::readRequest(deserializer, xml);
        KORVAMessageI& read = server->getInputMessage();
        ASSERT_EQ(read.getMessageType(), request.getMessageType());
        EXPECT_EQ(read.getChildType(place->parameter), value->getObjectType());
        EXPECT_TRUE(areEqual(static_cast<const void*>(value),
                             read.getChildObject(place->parameter, false), value->getObjectType()))
            << xml;
    });
    EXPECT_EQ(held, 405u);
}

}  // namespace
