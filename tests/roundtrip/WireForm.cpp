#include "tests/roundtrip/WireForm.h"

#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>
#include <xercesc/util/Base64.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <charconv>
#include <cstddef>
#include <vector>

namespace korva::test {

namespace {

using Object = KORVASchemaTypeI;
using Factory = KORVASchemaTypesFactory;

const std::string envelopeSpace = "{http://schemas.xmlsoap.org/soap/envelope/}";
const std::string encodingSpace = "{http://schemas.xmlsoap.org/soap/encoding/}";
const std::string instanceSpace = "{http://www.w3.org/2001/XMLSchema-instance}";
const std::string busSpace = "{" KORVA_TEST_AUTHORITY "/schemas/halyardns/3/}";

bool isBlank(const std::string& text) {
    return text.find_first_not_of(" \t\n") == std::string::npos;
}

/// The bytes that a text in base64 stands for.
std::string decoded(const std::string& text) {
    XMLSize_t length = 0;
    XMLByte* const bytes =
        xercesc::Base64::decode(reinterpret_cast<const XMLByte*>(text.c_str()), &length);
    if (bytes == nullptr) return text.empty() ? std::string() : "no base64: " + text;
    std::string result(reinterpret_cast<const char*>(bytes), length);
    xercesc::XMLPlatformUtils::fgMemoryManager->deallocate(bytes);
    return result;
}

/// Expects two decimals and a blank that mean `value`.
void expectFloatText(const std::string& text, float value) {
    const std::size_t point = text.find('.');
    ASSERT_NE(point, std::string::npos) << text;
    EXPECT_EQ(text.size(), point + 4) << text;
    EXPECT_EQ(text.back(), ' ') << text;
    float read = 0;
    const char* const end = text.data() + text.size() - 1;
    EXPECT_EQ(std::from_chars(text.data(), end, read).ptr, end) << text;
    EXPECT_EQ(read, value) << text;
}

void expectPlainText(const std::string& text, const void* value, Object::ObjectType type) {
    switch (type) {
        case Object::eInt:
        case Object::eInteger:
            EXPECT_EQ(text, std::to_string(*static_cast<const int*>(value)));
            break;
        case Object::eDecimal:
        case Object::eFloat: expectFloatText(text, *static_cast<const float*>(value)); break;
        case Object::eBoolean:
            EXPECT_EQ(text, *static_cast<const bool*>(value) ? "true" : "false");
            break;
        case Object::eBase64Binary: {
            const auto& binary = *static_cast<const KORVAXSBase64Binary*>(value);
            const std::string bytes =
                binary.pcount() != 0 ? std::string(binary.str(), binary.pcount()) : std::string();
            EXPECT_EQ(decoded(text), bytes);
            break;
        }
        default: EXPECT_EQ(text, static_cast<const char*>(value)); break;
    }
}

}  // namespace

WireForm::WireForm(const Schema& schema) : m_schema(schema) {
    for (const auto& row : schema)
        m_names[identityOf("bus:" + row.first)] = row.first;
}

bool WireForm::isArray(Type type) const {
    const auto row = m_names.find(type);
    return row != m_names.end() && m_schema.at(row->second).family == SchemaType::eArray;
}

bool WireForm::hasTextContent(Type type) const {
    const SchemaType::Family family = m_schema.at(m_names.at(type)).family;
    return family == SchemaType::eEnum || family == SchemaType::eRestrictedString;
}

std::string WireForm::typeText(Type type) const {
    switch (type) {
        case Object::eString: return "xs:string";
        case Object::eInt: return "xs:int";
        case Object::eInteger: return "xs:integer";
        case Object::eDecimal: return "xs:decimal";
        case Object::eTime: return "xs:time";
        case Object::eDateTime: return "xs:dateTime";
        case Object::eBoolean: return "xs:boolean";
        case Object::eBase64Binary: return "xs:base64Binary";
        case Object::eFloat: return "xs:float";
        case Object::eQName: return "xs:QName";
        default: return "bus:" + m_names.at(type);
    }
}

void WireForm::expectDocument(const std::string& xml, const std::string& name, const void* object,
                              Type type) const {
    expectElement(parseXml(xml), busSpace + name, object, type);
}

void WireForm::expectElement(const XmlElement& element, const ExpandedName& name, const void* value,
                             Type type) const {
    SCOPED_TRACE(name);
    EXPECT_EQ(element.name, name);
    expectType(element, value, type);
    const std::string* const nil = element.attribute(instanceSpace + "nil");
    EXPECT_EQ(nil != nullptr, value == nullptr && !isArray(type));
    EXPECT_TRUE(nil == nullptr || *nil == "true");
    if (value == nullptr) {
        EXPECT_TRUE(element.children.empty());
        EXPECT_EQ(element.text, "");
    } else if (!Factory::isGeneratedType(type)) {
        EXPECT_TRUE(element.children.empty());
        expectPlainText(element.text, value, type);
    } else {
        // Reading without writing in mind changes nothing.
        auto& object = *static_cast<Object*>(const_cast<void*>(value));
        if (hasTextContent(type)) {
            const void* const text = object.getChildObject("", false);
            EXPECT_TRUE(element.children.empty());
            EXPECT_EQ(element.text, text != nullptr ? static_cast<const char*>(text) : "");
        } else {
            EXPECT_TRUE(isBlank(element.text)) << element.text;
            expectChildren(element, object);
        }
    }
}

void WireForm::expectType(const XmlElement& element, const void* value, Type type) const {
    const std::string* const xsiType = element.attribute(instanceSpace + "type");
    const std::string* const arrayType = element.attribute(encodingSpace + "arrayType");
    std::size_t expected = 1;
    if (isArray(type)) {
        ++expected;
        std::string text = m_schema.at(m_names.at(type)).element + "[";
        if (value != nullptr)
            text += std::to_string(static_cast<const KORVASchemaTypeArrayI*>(value)->size());
        ASSERT_NE(arrayType, nullptr);
        EXPECT_EQ(*arrayType, text + "]");
        ASSERT_NE(xsiType, nullptr);
        EXPECT_EQ(*xsiType, "SOAP-ENC:Array");
    } else {
        if (value == nullptr) ++expected;
        ASSERT_NE(xsiType, nullptr);
        EXPECT_EQ(*xsiType, typeText(type));
    }
    EXPECT_EQ(element.attributes.size(), expected);
}

void WireForm::expectChildren(const XmlElement& element, KORVASchemaTypeI& object) const {
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);
    const bool isItem = isArray(object.getObjectType());
    auto child = element.children.begin();
    for (const char* const name : names) {
        const void* const value = object.getChildObject(name, false);
        if (value == nullptr) continue;
        Type type = object.getChildType(name);
        if (Factory::isGeneratedType(type))
            type = static_cast<const Object*>(value)->getObjectType();
        const ExpandedName expected = isItem ? "item" : busSpace + name;
        ASSERT_NE(child, element.children.end()) << expected << " is missing";
        expectElement(*child++, expected, value, type);
    }
    EXPECT_EQ(child, element.children.end()) << child->name << " is one element too many";
}

void WireForm::expectEnvelope(const std::string& xml, const KORVAPortTypeBinding& binding,
                              KORVAMessageI& message) const {
    const XmlElement envelope = parseXml(xml);
    EXPECT_EQ(envelope.name, envelopeSpace + "Envelope");
    ASSERT_EQ(envelope.children.size(), 2u);

    const XmlElement& header = envelope.children[0];
    EXPECT_EQ(header.name, envelopeSpace + "Header");
    KORVAHalyardHeader* const busHeader = message.getHalyardHeader(nullptr);
    ASSERT_EQ(header.children.size(), busHeader != nullptr ? 1u : 0u);
    if (busHeader != nullptr)
        expectElement(header.children[0], busSpace + "halyardHeader", busHeader,
                      Object::eKORVAHalyardHeader);

    const XmlElement& body = envelope.children[1];
    EXPECT_EQ(body.name, envelopeSpace + "Body");
    ASSERT_EQ(body.children.size(), 1u);
    const XmlElement& operation = body.children[0];
    const bool isReply = message.getMessageType() == binding.getOutputMessage().getMessageType();
    EXPECT_EQ(operation.name, "{" + std::string(binding.getOperationNamespace()) + "}" +
                                  binding.getOperationName() + (isReply ? "Response" : ""));
    std::vector<const char*> names;
    message.getChildObjectNames(names);
    ASSERT_EQ(operation.children.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        expectElement(operation.children[i], busSpace + names[i],
                      message.getChildObject(names[i], false), message.getChildType(names[i]));
}

}  // namespace korva::test
