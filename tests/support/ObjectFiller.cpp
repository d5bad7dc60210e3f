#include "tests/support/ObjectFiller.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_String.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <cstring>
#include <utility>
#include <vector>

namespace korva::test {

namespace {

using Type = KORVASchemaTypeI::ObjectType;
using Factory = KORVASchemaTypesFactory;

std::vector<const char*> childNames(const KORVASchemaTypeI& object) {
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);
    return names;
}

bool isNumber(Type type) {
    return type == KORVASchemaTypeI::eInt || type == KORVASchemaTypeI::eInteger;
}

bool isFloat(Type type) {
    return type == KORVASchemaTypeI::eFloat || type == KORVASchemaTypeI::eDecimal;
}

/// Whether what a getter gave is what was set.
void expectSame(const void* value, void* set, Type type) {
    ASSERT_NE(value, nullptr);
    if (Factory::isString(type))
        EXPECT_STREQ(static_cast<const char*>(value), static_cast<ZELByteBuffer*>(set)->str());
    else if (isNumber(type))
        EXPECT_EQ(*static_cast<const int*>(value), *static_cast<int*>(set));
    else if (isFloat(type))
        EXPECT_EQ(*static_cast<const float*>(value), *static_cast<float*>(set));
    else if (type == KORVASchemaTypeI::eBoolean)
        EXPECT_EQ(*static_cast<const bool*>(value), *static_cast<bool*>(set));
    else
        EXPECT_EQ(value, set);
}

void append(std::string& text, const KORVASchemaTypeI& object, const std::string& indent);

void append(std::string& text, const void* value, Type type, const std::string& indent) {
    if (value == nullptr)
        text += "null";
    else if (Factory::isString(type))
        text += static_cast<const char*>(value);
    else if (isNumber(type))
        text += std::to_string(*static_cast<const int*>(value));
    else if (isFloat(type))
        text += std::to_string(*static_cast<const float*>(value));
    else if (type == KORVASchemaTypeI::eBoolean)
        text += *static_cast<const bool*>(value) ? "true" : "false";
    else if (type == KORVASchemaTypeI::eBase64Binary)
        text.append(static_cast<const KORVAXSBase64Binary*>(value)->str(),
                    static_cast<const KORVAXSBase64Binary*>(value)->pcount());
    else
        append(text, *static_cast<const KORVASchemaTypeI*>(value), indent);
    text += '\n';
}

void append(std::string& text, const KORVASchemaTypeI& object, const std::string& indent) {
    text += object.generatedObjectName();
    text += '\n';
    const bool isArray = Factory::isArrayType(object.getObjectType());
    for (const char* const name : childNames(object)) {
        text += indent;
        text += isArray ? std::to_string(KORVAChildIndex::toIndex(name)) : std::string(name);
        text += ": ";
        void* value = nullptr;
        try {
            // Reading without writing in mind changes nothing.
            value = const_cast<KORVASchemaTypeI&>(object).getChildObject(name, false);
        } catch (const ZELAssertError&) {
            text += "not initialized, ";  // an enumeration without a word
        }
        append(text, value, object.getChildType(name), indent + "  ");
    }
}

}  // namespace

ObjectFiller::ObjectFiller(const Schema& schema, Registry registry, int deepest)
    : ObjectFiller(schema, std::move(registry), m_ownValues, deepest) {}

ObjectFiller::ObjectFiller(const Schema& schema, Registry registry, FillerValues& values,
                           int deepest)
    : m_schema(schema), m_registry(std::move(registry)), m_values(values), m_deepest(deepest) {}

KORVASchemaTypeI& ObjectFiller::create(const std::string& xmlName) {
    return *m_registry->own(ZELOwner(Factory::getInstance().create(identityOf("bus:" + xmlName))));
}

KORVASchemaTypeI& ObjectFiller::makeEmpty(Type type) {
    return create(m_schema.concreteNames(type).front());
}

KORVASchemaTypeI& ObjectFiller::make(const std::string& xmlName) {
    KORVASchemaTypeI& object = create(xmlName);
    fill(object);
    return object;
}

bool ObjectFiller::canBeFilled(Type type) const {
    const SchemaType& row = m_schema.at(m_schema.concreteNames(type).front());
    switch (row.family) {
        case SchemaType::eArray:
        case SchemaType::eRestrictedString: return true;
        case SchemaType::eEnum: return !row.words.empty();
        case SchemaType::eClass:
            return !allFields(m_schema, m_schema.concreteNames(type).front()).empty();
    }
    return false;
}

void ObjectFiller::fill(KORVASchemaTypeI& object) {
    fill(object, 0);
}

void ObjectFiller::fillChild(KORVASchemaTypeI& object, const char* name) {
    setChild(object, name, object.getChildType(name), 0);
}

void ObjectFiller::fill(KORVASchemaTypeI& object, int level) {
    const SchemaType& type = m_schema.at(m_schema.concreteNames(object.getObjectType()).front());
    switch (type.family) {
        case SchemaType::eArray: fillArray(object, level); break;
        case SchemaType::eEnum:
        case SchemaType::eRestrictedString: fillText(object, type); break;
        case SchemaType::eClass:
            if (level >= m_deepest) break;
            for (const char* const name : childNames(object))
                if (!m_values.leavesOut()) setChild(object, name, object.getChildType(name), level);
            break;
    }
}

void ObjectFiller::fillText(KORVASchemaTypeI& object, const SchemaType& type) {
    if (type.family == SchemaType::eEnum && type.words.empty()) return;
    const std::string text = type.family == SchemaType::eEnum
                                 ? type.words.at(m_values.choose(type.words.size()))
                                 : m_values.text("a restricted text");
    ZELByteBuffer* const value = makeText(text);
    EXPECT_EQ(object.setChildObject("", value, KORVASchemaTypeI::eString, nullptr), 0u);
    expectSame(object.getChildObject("", false), value, KORVASchemaTypeI::eString);
}

void ObjectFiller::fillArray(KORVASchemaTypeI& array, int level) {
    const Type type = array.getChildType(KORVAChildIndex::toName(1));
    const std::size_t size = m_values.arraySize();
    for (std::size_t i = 1; i <= size; ++i) {
        void* const value = makeValue("element " + std::to_string(i), type, level + 1);
        if (value == nullptr) return;
        EXPECT_EQ(array.setChildObject("item", value, type, nullptr), i);
        expectSame(array.getChildObject(KORVAChildIndex::toName(i), false), value, type);
    }
    EXPECT_EQ(array.getChildObjectCount(), size);
}

void ObjectFiller::setChild(KORVASchemaTypeI& object, const char* name, Type type, int level) {
    SCOPED_TRACE(name);
    if (Factory::isArrayType(type)) {
        void* const array = object.getChildObject(name, false);
        ASSERT_NE(array, nullptr);
        fillArray(*static_cast<KORVASchemaTypeI*>(array), level);
        return;
    }
    void* const value = makeValue(std::string("text of ") + name, type, level + 1);
    if (value == nullptr) return;
    EXPECT_EQ(object.setChildObject(name, value, type, nullptr), 0u);
    expectSame(object.getChildObject(name, false), value, type);
}

void* ObjectFiller::makeValue(const std::string& place, Type type) {
    return makeValue(place, type, 0);
}

void* ObjectFiller::makeValue(const std::string& place, Type type, int level) {
    if (Factory::isString(type)) return makeText(m_values.textOf(type, place));
    if (isNumber(type)) return m_registry->make<int>(m_values.number());
    if (isFloat(type)) return m_registry->make<float>(m_values.fraction());
    if (type == KORVASchemaTypeI::eBoolean) return m_registry->make<bool>(m_values.flag());
    if (type == KORVASchemaTypeI::eBase64Binary) {
        const std::string bytes = m_values.bytes(place);
        return m_registry->make<KORVAXSBase64Binary>(bytes.data(), bytes.size());
    }
    const std::vector<std::string>& names = m_schema.concreteNames(type);
    const std::string& name = names.at(m_values.choose(names.size()));
    const SchemaType& row = m_schema.at(name);
    if (row.family == SchemaType::eEnum && row.words.empty() && !m_values.takesEmptyEnums())
        return nullptr;
    KORVASchemaTypeI& object = create(name);
    fill(object, level);
    return &object;
}

ZELByteBuffer* ObjectFiller::makeText(const std::string& text) {
    auto* const buffer = m_registry->make<KORVA_String>();
    buffer->appendChars(text.data(), text.size());
    return buffer->buffer();
}

std::string dump(const KORVASchemaTypeI& object) {
    std::string text;
    append(text, object, "  ");
    return text;
}

}  // namespace korva::test
