// Every type of the schema, held against the schema files themselves.

#include "tests/support/ExpectThrow.h"
#include "tests/support/ObjectFiller.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_ClassObject.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>
#include <korva/KORVA_String.h>
#include <tarn/tarnsymbols1.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::allFields;
using korva::test::builtSchema;
using korva::test::classNameOf;
using korva::test::dump;
using korva::test::identityOf;
using korva::test::makeRegistry;
using korva::test::ObjectFiller;
using korva::test::Registry;
using korva::test::SchemaField;
using korva::test::SchemaType;
using Object = KORVASchemaTypeI;
using Type = KORVASchemaTypeI::ObjectType;
using Factory = KORVASchemaTypesFactory;

const Factory& factory() {
    return Factory::getInstance();
}

Type identity(const std::string& xmlName) {
    return identityOf("bus:" + xmlName);
}

std::uint32_t crcOf(const std::string& word) {
    return static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(word.data()), static_cast<uInt>(word.size())));
}

std::vector<const char*> childNames(const KORVASchemaTypeI& object) {
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);
    return names;
}

/// Uses the comparison of whatever family the object is of.
bool isEqual(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    if (const auto* const object = dynamic_cast<const KORVA_ClassObject*>(&left)) {
        EXPECT_NE(object->operator==(right), object->operator!=(right));
        return object->operator==(right);
    }
    if (const auto* const array = dynamic_cast<const KORVA_ArrayObject*>(&left))
        return array->operator==(right);
    if (const auto* const word = dynamic_cast<const KORVA_EnumObject*>(&left))
        return word->operator==(right);
    return dynamic_cast<const KORVA_RestrictedString&>(left).operator==(right);
}

/// Runs `check` for every type that can be created.
template <class Check>
void forEachConcreteType(Check check) {
    for (const auto& [name, type] : builtSchema()) {
        if (type.isAbstract) continue;
        SCOPED_TRACE(name);
        check(name, type);
    }
}

TEST(Vocabulary, HasTheTypesThatTheSchemaHas) {
    EXPECT_EQ(builtSchema().size(), 933u);
    std::size_t arrays = 0;
    std::size_t objectArrays = 0;
    std::size_t restrictedStrings = 0;
    std::set<Type> identities;
    for (const auto& [name, type] : builtSchema()) {
        identities.insert(identity(name));
        if (type.family == SchemaType::eRestrictedString) ++restrictedStrings;
        if (type.family != SchemaType::eArray) continue;
        ++arrays;
        if (type.element.compare(0, 4, "bus:") == 0) ++objectArrays;
    }
    EXPECT_EQ(identities.size(), 933u);
    EXPECT_GT(arrays, 100u);
    EXPECT_EQ(arrays - objectArrays, 11u);
    EXPECT_EQ(restrictedStrings, 9u);
}

TEST(Vocabulary, FactoryKnowsEveryTypeByNameAndNumber) {
    for (const auto& [name, type] : builtSchema()) {
        SCOPED_TRACE(name);
        EXPECT_EQ(factory().busTypeToObjectType(name.c_str()), identity(name));
        EXPECT_EQ(factory().stringToObjectType(name.c_str()), identity(name));
        EXPECT_EQ(factory().objectTypeToXSIType(identity(name)), "bus:" + name);
        EXPECT_TRUE(Factory::isGeneratedType(identity(name)));
        EXPECT_EQ(factory().xsiTypeToObjectType(name.c_str()), Object::e_Unknown);
        EXPECT_EQ(Factory::isArrayType(identity(name)), type.family == SchemaType::eArray);
    }
}

TEST(Vocabulary, AbstractTypesCannotBeCreated) {
    std::size_t count = 0;
    for (const auto& row : builtSchema()) {
        const std::string& name = row.first;
        if (!row.second.isAbstract) continue;
        EXPECT_NUMBERED(factory().create(identity(name)), 0xEA47EC7BU,
                        "KORVASchemaTypesFactory::create()", "bus:" + name);
        ++count;
    }
    EXPECT_GT(count, 60u);
}

TEST(Vocabulary, EveryTypeIsCreatedWithItsIdentityAndNames) {
    forEachConcreteType([](const std::string& name, const SchemaType& type) {
        const std::unique_ptr<KORVASchemaTypeI> object(factory().create(identity(name)));
        EXPECT_EQ(object->getObjectType(), identity(name));
        EXPECT_EQ(object->generatedObjectName(), classNameOf(name));
        EXPECT_EQ(object->getGeneratedObjectName(), classNameOf(name));
        EXPECT_STREQ(tarnsymbols1::getChar(crcOf(name)), name.c_str());
        // What travels behind a void* is the address of the object, whatever its class.
        EXPECT_EQ(dynamic_cast<void*>(object.get()), static_cast<void*>(object.get()));
        EXPECT_TRUE(object->isa(identity(name)));
        std::set<Type> levels{identity(name)};
        for (std::string base = type.base; !base.empty(); base = builtSchema().at(base).base) {
            EXPECT_TRUE(object->isa(identity(base))) << base;
            levels.insert(identity(base));
        }
        for (const auto& [other, otherType] : builtSchema())
            EXPECT_EQ(object->isa(identity(other)), levels.count(identity(other)) != 0) << other;
        EXPECT_FALSE(object->isa(Object::e_Unknown));
    });
}

TEST(Vocabulary, EveryClassHasTheSchemasChildrenInTheirOrder) {
    forEachConcreteType([](const std::string& name, const SchemaType& type) {
        if (type.family != SchemaType::eClass) return;
        const std::unique_ptr<KORVASchemaTypeI> object(factory().create(identity(name)));
        const std::vector<SchemaField> fields = allFields(builtSchema(), name);
        const std::vector<const char*> names = childNames(*object);
        ASSERT_EQ(names.size(), fields.size());
        EXPECT_EQ(object->getChildObjectCount(), fields.size());
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_EQ(names[i], fields[i].name);
            const Type declared = identityOf(fields[i].type);
            EXPECT_EQ(object->getChildType(names[i]), declared) << names[i];
            // A name that the caller made is as good as the one that the object gave.
            EXPECT_EQ(object->getChildType(fields[i].name.c_str()), declared) << names[i];
        }
    });
}

TEST(Vocabulary, FreshClassHasEmptyArraysAndNothingElse) {
    forEachConcreteType([](const std::string& name, const SchemaType& type) {
        if (type.family != SchemaType::eClass) return;
        const std::unique_ptr<KORVASchemaTypeI> object(factory().create(identity(name)));
        for (const char* const child : childNames(*object)) {
            const void* const value = object->getChildObject(child, false);
            if (Factory::isArrayType(object->getChildType(child))) {
                ASSERT_NE(value, nullptr) << child;
                EXPECT_EQ(static_cast<const KORVASchemaTypeI*>(value)->getChildObjectCount(), 0u);
            } else {
                EXPECT_EQ(value, nullptr) << child;
            }
        }
    });
}

TEST(Vocabulary, EveryArrayHasTheSchemasElements) {
    std::size_t named = 0;
    forEachConcreteType([&named](const std::string& name, const SchemaType& type) {
        if (type.family != SchemaType::eArray) return;
        const std::unique_ptr<KORVASchemaTypeI> array(factory().create(identity(name)));
        EXPECT_NE(dynamic_cast<KORVASchemaTypeArrayI*>(array.get()), nullptr);
        const Type element = identityOf(type.element);
        EXPECT_EQ(array->getChildType(KORVAChildIndex::toName(1)), element);
        const char* const text = Factory::objectTypeToArrayType(identity(name));
        ASSERT_NE(text, nullptr);
        EXPECT_STREQ(text, factory().objectTypeToXSIType(element));
        if (type.element.compare(0, 4, "bus:") != 0) return;
        const std::string elementName = type.element.substr(4);
        if (name != elementName + "Array") return;
        EXPECT_EQ(factory().busArrayTypeToObjectType(elementName.c_str()), identity(name));
        ++named;
    });
    EXPECT_EQ(named, 97u);
}

TEST(Vocabulary, EveryEnumerationKnowsItsWordsAndNoOther) {
    std::set<std::string> all;
    for (const auto& [name, type] : builtSchema())
        all.insert(type.words.begin(), type.words.end());
    EXPECT_GT(all.size(), 200u);
    forEachConcreteType([&all](const std::string& name, const SchemaType& type) {
        if (type.family != SchemaType::eEnum) return;
        const std::set<std::string> words(type.words.begin(), type.words.end());
        EXPECT_EQ(words.size(), type.words.size());
        const std::unique_ptr<KORVASchemaTypeI> object(factory().create(identity(name)));
        for (const std::string& word : all) {
            KORVA_String text;
            text.appendChars(word.data(), word.size());
            if (words.count(word) == 0) {
                EXPECT_NUMBERED(object->setChildObject("", text.buffer(), Object::eString, nullptr),
                                0xEA45DC29U, "_stringToEnum()", name + ":" + word);
                continue;
            }
            object->setChildObject("", text.buffer(), Object::eString, nullptr);
            EXPECT_EQ(static_cast<const char*>(object->getChildObject("", false)), word);
            EXPECT_EQ(object->getChildObject("", false), tarnsymbols1::getChar(crcOf(word)));
        }
    });
}

TEST(Vocabulary, EveryNameAndWordStandsInTheWordTable) {
    for (const auto& [name, type] : builtSchema()) {
        for (const SchemaField& field : type.fields)
            EXPECT_STREQ(tarnsymbols1::getChar(crcOf(field.name)), field.name.c_str());
        for (const std::string& word : type.words)
            EXPECT_STREQ(tarnsymbols1::getChar(crcOf(word)), word.c_str());
    }
}

TEST(Vocabulary, EveryTypeIsFilledCopiedAndCompared) {
    forEachConcreteType([](const std::string& name, const SchemaType&) {
        const Registry sources = makeRegistry();
        const Registry copies = makeRegistry();
        ObjectFiller filler(builtSchema(), sources);
        const KORVASchemaTypeI& source = filler.make(name);
        const KORVASchemaTypeI& copy = factory().createCopy(source, *copies);
        EXPECT_EQ(copy.getObjectType(), source.getObjectType());
        EXPECT_TRUE(isEqual(source, copy));
        EXPECT_TRUE(isEqual(copy, source));
        if (filler.canBeFilled(source.getObjectType())) {
            const KORVASchemaTypeI& empty = filler.makeEmpty(source.getObjectType());
            EXPECT_FALSE(isEqual(source, empty));
            EXPECT_FALSE(isEqual(empty, copy));
        }
        const std::string before = dump(source);
        sources->clean();
        EXPECT_EQ(dump(copy), before);
    });
}

/// Gives one child, or the first element of an array, another value.
class Change {
public:
    explicit Change(ObjectFiller& filler) : m_filler(filler) {
        m_text.appendChars("another text", 12);
        m_binary.append("other bytes", 11);
    }

    /// Returns whether the object now differs: some types have but one value.
    bool apply(KORVASchemaTypeI& object, const char* name) {
        const Type type = object.getChildType(name);
        void* const value = object.getChildObject(name, true);
        if (Factory::isArrayType(type)) {
            auto& array = *static_cast<KORVASchemaTypeI*>(value);
            std::size_t first = 1;
            return apply(array, KORVAChildIndex::toName(1), "item", &first);
        }
        return apply(object, name, name, nullptr);
    }

private:
    bool apply(KORVASchemaTypeI& object, const char* getName, const char* setName,
               std::size_t* index) {
        const Type type = object.getChildType(getName);
        void* const value = object.getChildObject(getName, true);
        if (Factory::isString(type)) {
            object.setChildObject(setName, m_text.buffer(), type, index);
        } else if (type == Object::eBase64Binary) {
            object.setChildObject(setName, &m_binary, type, index);
        } else if (type == Object::eBoolean) {
            *static_cast<bool*>(value) = !*static_cast<bool*>(value);
        } else if (type == Object::eFloat || type == Object::eDecimal) {
            *static_cast<float*>(value) += 1;
        } else if (!Factory::isGeneratedType(type)) {
            *static_cast<int*>(value) += 1;
        } else {
            KORVASchemaTypeI& empty = m_filler.makeEmpty(type);
            const bool differs = !isEqual(*static_cast<KORVASchemaTypeI*>(value), empty);
            object.setChildObject(setName, &empty, type, index);
            return differs;
        }
        return true;
    }

    ObjectFiller& m_filler;
    KORVA_String m_text;
    KORVAXSBase64Binary m_binary;
};

TEST(Vocabulary, EveryChildTakesPartInComparison) {
    std::size_t changed = 0;
    std::size_t alike = 0;
    forEachConcreteType([&](const std::string& name, const SchemaType& type) {
        if (type.family != SchemaType::eClass) return;
        const Registry registry = makeRegistry();
        const std::unique_ptr<KORVASchemaTypeI> empty(factory().create(identity(name)));
        for (const char* const child : childNames(*empty)) {
            // Two fillers that count alike make the same values.
            constexpr int deepest = 2;
            ObjectFiller first(builtSchema(), registry, deepest);
            ObjectFiller second(builtSchema(), registry, deepest);
            KORVASchemaTypeI& left = first.makeEmpty(identity(name));
            KORVASchemaTypeI& right = second.makeEmpty(identity(name));
            first.fillChild(left, child);
            EXPECT_FALSE(isEqual(left, right)) << child;
            EXPECT_FALSE(isEqual(right, left)) << child;
            second.fillChild(right, child);
            EXPECT_TRUE(isEqual(left, right)) << child;
            Change change(second);
            const bool differs = change.apply(right, child);
            EXPECT_EQ(isEqual(left, right), !differs) << child;
            EXPECT_EQ(isEqual(right, left), !differs) << child;
            ++(differs ? changed : alike);
        }
    });
    EXPECT_GT(changed, 5000u);
    EXPECT_LT(alike, changed / 20);
}

}  // namespace
