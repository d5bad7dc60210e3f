#include "tests/bridges/Conversions.h"
#include "tests/bridges/Outline.h"
#include "tests/support/ExpectThrow.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVADOMObjectSerializerFactory.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <zelidom/ZELIDOM_Attr.h>
#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>
#include <zelidom/ZELIDOM_NodeList.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::outline;
using korva::test::toElement;
using korva::test::writeOut;

std::string fixed(KORVAI18NRes::Number number) {
    return KORVAI18NRes::getChar(number);
}

class DocumentSerializer : public testing::Test {
protected:
    DocumentSerializer() { permission.setName("read"); }

    ZELIDOM_Document document = ZELIDOM_Document::create();
    KORVADOMObjectSerializer serializer;
    KORVAPermission permission;
};

TEST_F(DocumentSerializer, TheNewElementBelongsToTheDocumentAndStandsNowhere) {
    const ZELIDOM_Element element = toElement(permission, document);
    EXPECT_TRUE(element.getParentNode().isNull());
    EXPECT_TRUE(document.getDocumentElement().isNull());
    document.appendChild(element);
    EXPECT_EQ(document.getDocumentElement(), element);
}

TEST_F(DocumentSerializer, TheNewElementIsNamedAsGivenAndInTheBusNamespace) {
    const ZELIDOM_Element element = serializer.serialize(
        &permission, KORVASchemaTypeI::eKORVAPermission, "permission", document);
    EXPECT_EQ(element.getNodeName(), "permission");
    EXPECT_EQ(element.getLocalName(), "permission");
    EXPECT_EQ(element.getNamespaceURI(), fixed(KORVAI18NRes::eBusNamespace));
    const ZELIDOM_Node child = element.getFirstChild();
    EXPECT_EQ(child.getNodeName(), "bus:name");
    EXPECT_EQ(child.getNamespaceURI(), fixed(KORVAI18NRes::eBusNamespace));
}

TEST_F(DocumentSerializer, EntriesOfArraysAreItemsInTheBusNamespace) {
    KORVAPermissionArray array;
    array.push_back(&permission);
    const ZELIDOM_Node item = toElement(array, document).getFirstChild();
    EXPECT_EQ(item.getNodeName(), "item");
    EXPECT_EQ(item.getNamespaceURI(), fixed(KORVAI18NRes::eBusNamespace));
}

TEST_F(DocumentSerializer, DeclaresTheNamespacesOnTheNewElementOnly) {
    const ZELIDOM_Element element = toElement(permission, document);
    EXPECT_EQ(element.getAttribute("xmlns:xs"), fixed(KORVAI18NRes::eSchemaNamespace));
    EXPECT_EQ(element.getAttribute("xmlns:xsi"), fixed(KORVAI18NRes::eSchemaInstanceNamespace));
    EXPECT_EQ(element.getAttribute("xmlns:SOAP-ENC"), fixed(KORVAI18NRes::eSoapEncodingNamespace));
    EXPECT_EQ(element.getAttribute("xmlns:bus"), fixed(KORVAI18NRes::eBusNamespace));
    EXPECT_EQ(element.getAttributes().getLength(), 5u);
    EXPECT_EQ(element.getFirstChild().getAttributes().getLength(), 1u);
}

TEST_F(DocumentSerializer, AnEmptyTargetNamespaceIsNotDeclared) {
    const ZELIDOM_Element element = serializer.serializeObj(
        &permission, KORVASchemaTypeI::eKORVAPermission, "permission", document, "");
    EXPECT_TRUE(element.getNamespaceURI().empty());
    EXPECT_TRUE(element.getAttributes().getNamedItem("xmlns:bus").isNull());
    EXPECT_EQ(element.getAttributes().getLength(), 4u);
    EXPECT_EQ(element.getFirstChild().getNamespaceURI(), fixed(KORVAI18NRes::eBusNamespace));
}

TEST_F(DocumentSerializer, ATargetNamespaceIsDeclaredInPlaceOfTheBus) {
    const ZELIDOM_Element element = serializer.serializeObj(
        &permission, KORVASchemaTypeI::eKORVAPermission, "bus:permission", document, "urn:target");
    EXPECT_EQ(element.getNamespaceURI(), "urn:target");
    EXPECT_EQ(element.getAttribute("xmlns:bus"), "urn:target");
    EXPECT_EQ(element.getFirstChild().getNamespaceURI(), fixed(KORVAI18NRes::eBusNamespace));
}

TEST_F(DocumentSerializer, AValueIsOneTextNode) {
    const ZELIDOM_Node name = toElement(permission, document).getFirstChild();
    ASSERT_EQ(name.getChildNodes().getLength(), 1u);
    EXPECT_EQ(name.getFirstChild().getNodeType(), ZELIDOM_Node::TEXT_NODE);
    permission.setName("");
    EXPECT_EQ(toElement(permission, document).getFirstChild().getChildNodes().getLength(), 0u);
    const std::string longText(100000, 'x');
    permission.setName(longText.c_str());
    const ZELIDOM_Node large = toElement(permission, document).getFirstChild();
    EXPECT_EQ(large.getChildNodes().getLength(), 1u);
    EXPECT_EQ(large.getFirstChild().getNodeValue(), longText);
}

TEST_F(DocumentSerializer, ANullDocumentIsAnAssertion) {
    EXPECT_ASSERTION(toElement(permission, ZELIDOM_Document()), "ZEL_ASSERT(!ownerDoc.isNull());");
}

TEST_F(DocumentSerializer, ANullTargetNamespaceIsAnAssertion) {
    EXPECT_ASSERTION(
        serializer.serializeObj(&permission, KORVASchemaTypeI::eKORVAPermission, "bus:permission",
                                document, nullptr),
        "ZEL_ASSERT_NAMED(targetNamespace, \"The 'targetNamespace' parameter to the method "
        "'serializeObj' cannot be NULL.\");");
}

TEST_F(DocumentSerializer, RefusesWhatIsNoName) {
    EXPECT_THROW(
        serializer.serialize(&permission, KORVASchemaTypeI::eKORVAPermission, "a b", document),
        ZELIDOM_Error);
    EXPECT_THROW(
        serializer.serialize(&permission, KORVASchemaTypeI::eKORVAPermission, "", document),
        ZELIDOM_Error);
    // A prefix needs a namespace.
    EXPECT_THROW(serializer.serializeObj(&permission, KORVASchemaTypeI::eKORVAPermission,
                                         "bus:permission", document, ""),
                 ZELIDOM_Error);
}

TEST_F(DocumentSerializer, CanBeUsedAgainAlsoAfterAFailure) {
    const std::string first = outline(toElement(permission, document));
    EXPECT_ANY_THROW(
        serializer.serialize(nullptr, KORVASchemaTypeI::eKORVAPermission, "bus:value", document));
    EXPECT_EQ(outline(serializer.serialize(&permission, KORVASchemaTypeI::eKORVAPermission,
                                           "bus:value", document)),
              first);
}

TEST_F(DocumentSerializer, WhatIsWrittenOutDeclaresEachPrefixOnce) {
    document.appendChild(toElement(permission, document));
    const std::string xml = writeOut(document);
    const std::size_t first = xml.find("xmlns:xsi=");
    EXPECT_NE(first, std::string::npos) << xml;
    EXPECT_EQ(xml.find("xmlns:xsi=", first + 1), std::string::npos) << xml;
    EXPECT_EQ(xml.find("xmlns:bus="), xml.rfind("xmlns:bus=")) << xml;
}

TEST(DocumentSerializerFactory, MakesAndDestroysSerializers) {
    KORVADOMObjectSerializerFactory& factory = KORVADOMObjectSerializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVADOMObjectSerializerFactory::getInstance());
    KORVADOMObjectSerializerI* const one = factory.create();
    KORVADOMObjectSerializerI* const other = factory.create();
    EXPECT_NE(one, other);
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    const KORVAFolder folder;
    EXPECT_EQ(one->serialize(&folder, folder.getObjectType(), "bus:folder", document).getNodeName(),
              "bus:folder");
    factory.destroy(one);
    factory.destroy(other);
    factory.destroy(nullptr);
}

}  // namespace
