#include "tests/zelidom/Documents.h"

#include <zel/ZELAssertError.h>
#include <zelidom/ZELIDOM_Attr.h>
#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>
#include <zelidom/ZELIDOM_NodeList.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using korva::test::parseDocument;
using korva::test::textOf;

constexpr const char* sample =
    "<p:root xmlns:p='urn:p' xmlns='urn:d' a='1' p:b='2'>text<!--note--><child/><p:last>x"
    "</p:last></p:root>";

TEST(DocumentNode, ANullHandleIsNoNode) {
    const ZELIDOM_Node node;
    EXPECT_TRUE(node.isNull());
    EXPECT_EQ(node.xercesNode(), nullptr);
    EXPECT_EQ(node, ZELIDOM_Node(nullptr));
    EXPECT_TRUE(ZELIDOM_Element().isNull());
    EXPECT_TRUE(ZELIDOM_Attr().isNull());
    EXPECT_TRUE(ZELIDOM_Document().isNull());
    EXPECT_TRUE(ZELIDOM_NodeList().isNull());
    EXPECT_TRUE(ZELIDOM_NamedNodeMap().isNull());
}

TEST(DocumentNode, OperationsOfANullHandleAreAssertions) {
    ZELIDOM_Node node;
    constexpr const char* text = "ZEL_ASSERT(!isNull());";
    const auto assertionOf = [](auto action) { return textOf<ZELAssertError>(action); };
    EXPECT_EQ(assertionOf([&] { node.getNodeType(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getNodeName(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getNodeValue(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getLocalName(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getNamespaceURI(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getPrefix(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getParentNode(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getChildNodes(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getFirstChild(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getNextSibling(); }), text);
    EXPECT_EQ(assertionOf([&] { node.getAttributes(); }), text);
    EXPECT_EQ(assertionOf([&] { node.appendChild(node); }), text);
    EXPECT_EQ(assertionOf([&] { ZELIDOM_Element().setAttribute("a", "b"); }), text);
    EXPECT_EQ(assertionOf([&] { ZELIDOM_Document().createTextNode("a"); }), text);
    ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_EQ(assertionOf([&] { document.appendChild(node); }), "ZEL_ASSERT(!child.isNull());");
}

TEST(DocumentNode, NullListsAndMapsAreEmpty) {
    EXPECT_EQ(ZELIDOM_NodeList().getLength(), 0u);
    EXPECT_TRUE(ZELIDOM_NodeList().item(0).isNull());
    EXPECT_EQ(ZELIDOM_NamedNodeMap().getLength(), 0u);
    EXPECT_TRUE(ZELIDOM_NamedNodeMap().item(0).isNull());
    EXPECT_TRUE(ZELIDOM_NamedNodeMap().getNamedItem("a").isNull());
    EXPECT_TRUE(ZELIDOM_NamedNodeMap().getNamedItemNS("", "a").isNull());
}

TEST(DocumentNode, TellsKindNamesAndValue) {
    const ZELIDOM_Document document = parseDocument(sample);
    EXPECT_EQ(document.getNodeType(), ZELIDOM_Node::DOCUMENT_NODE);
    EXPECT_EQ(document.getNodeName(), "#document");

    const ZELIDOM_Element root = document.getDocumentElement();
    EXPECT_EQ(root.getNodeType(), ZELIDOM_Node::ELEMENT_NODE);
    EXPECT_EQ(root.getNodeName(), "p:root");
    EXPECT_EQ(root.getLocalName(), "root");
    EXPECT_EQ(root.getPrefix(), "p");
    EXPECT_EQ(root.getNamespaceURI(), "urn:p");
    EXPECT_TRUE(root.getNodeValue().empty());

    const ZELIDOM_Node text = root.getFirstChild();
    EXPECT_EQ(text.getNodeType(), ZELIDOM_Node::TEXT_NODE);
    EXPECT_EQ(text.getNodeName(), "#text");
    EXPECT_EQ(text.getNodeValue(), "text");
    EXPECT_TRUE(text.getLocalName().empty());

    const ZELIDOM_Node comment = text.getNextSibling();
    EXPECT_EQ(comment.getNodeType(), ZELIDOM_Node::COMMENT_NODE);
    EXPECT_EQ(comment.getNodeValue(), "note");

    const ZELIDOM_Node child = comment.getNextSibling();
    EXPECT_EQ(child.getNodeName(), "child");
    EXPECT_EQ(child.getNamespaceURI(), "urn:d");
    EXPECT_TRUE(child.getPrefix().empty());
}

TEST(DocumentNode, ListsItsChildren) {
    const ZELIDOM_Document document = parseDocument(sample);
    const ZELIDOM_NodeList children = document.getDocumentElement().getChildNodes();
    ASSERT_EQ(children.getLength(), 4u);
    ZELIDOM_Node next = document.getDocumentElement().getFirstChild();
    for (std::size_t i = 0; i < children.getLength(); ++i) {
        EXPECT_EQ(children.item(i), next);
        EXPECT_EQ(next.getParentNode(), document.getDocumentElement());
        next = next.getNextSibling();
    }
    EXPECT_TRUE(next.isNull());
    EXPECT_TRUE(children.item(4).isNull());
}

TEST(DocumentNode, TheWayUpEndsAtTheDocument) {
    const ZELIDOM_Document document = parseDocument(sample);
    EXPECT_EQ(document.getDocumentElement().getParentNode(), document);
    EXPECT_TRUE(document.getParentNode().isNull());
}

TEST(DocumentNode, GivesAttributesByPositionAndByName) {
    const ZELIDOM_Document document = parseDocument(sample);
    const ZELIDOM_NamedNodeMap attributes = document.getDocumentElement().getAttributes();
    ASSERT_EQ(attributes.getLength(), 4u);
    std::set<std::string> names;
    for (std::size_t i = 0; i < attributes.getLength(); ++i) {
        const ZELIDOM_Attr attribute(attributes.item(i));
        ASSERT_FALSE(attribute.isNull());
        EXPECT_EQ(attribute.getNodeType(), ZELIDOM_Node::ATTRIBUTE_NODE);
        EXPECT_TRUE(attribute.getParentNode().isNull());
        names.insert(attribute.getName().utf8());
    }
    EXPECT_EQ(names, (std::set<std::string>{"xmlns:p", "xmlns", "a", "p:b"}));
    EXPECT_TRUE(attributes.item(4).isNull());

    EXPECT_EQ(ZELIDOM_Attr(attributes.getNamedItem("p:b")).getValue(), "2");
    EXPECT_EQ(ZELIDOM_Attr(attributes.getNamedItem(u"a")).getValue(), "1");
    EXPECT_TRUE(attributes.getNamedItem("b").isNull());
    EXPECT_EQ(ZELIDOM_Attr(attributes.getNamedItemNS("urn:p", "b")).getName(), "p:b");
    EXPECT_EQ(ZELIDOM_Attr(attributes.getNamedItemNS("", "a")).getName(), "a");
    EXPECT_EQ(ZELIDOM_Attr(attributes.getNamedItemNS(nullptr, u"a")).getName(), "a");
    EXPECT_TRUE(attributes.getNamedItemNS("urn:d", "a").isNull());
    EXPECT_EQ(attributes.getNamedItem("xmlns:p").getPrefix(), "xmlns");
    EXPECT_EQ(attributes.getNamedItem("xmlns:p").getLocalName(), "p");
}

TEST(DocumentNode, OnlyElementsHaveAttributes) {
    const ZELIDOM_Document document = parseDocument(sample);
    EXPECT_TRUE(document.getAttributes().isNull());
    EXPECT_TRUE(document.getDocumentElement().getFirstChild().getAttributes().isNull());
}

TEST(DocumentNode, ConvertsOnlyToWhatItIs) {
    const ZELIDOM_Document document = parseDocument(sample);
    const ZELIDOM_Element root = document.getDocumentElement();
    EXPECT_EQ(ZELIDOM_Element(ZELIDOM_Node(root)), root);
    EXPECT_TRUE(ZELIDOM_Element(root.getFirstChild()).isNull());
    EXPECT_TRUE(ZELIDOM_Element(ZELIDOM_Node()).isNull());
    EXPECT_TRUE(ZELIDOM_Attr(root).isNull());
    EXPECT_TRUE(ZELIDOM_Attr(ZELIDOM_Node()).isNull());
}

TEST(DocumentNode, AppendedNodesMove) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    ZELIDOM_Element root = document.createElement("root");
    ZELIDOM_Element first = document.createElement("first");
    ZELIDOM_Element second = document.createElement("second");
    EXPECT_EQ(document.appendChild(root), root);
    root.appendChild(first);
    root.appendChild(second);
    EXPECT_EQ(first.getNextSibling(), second);
    second.appendChild(first);
    EXPECT_EQ(root.getChildNodes().getLength(), 1u);
    EXPECT_EQ(first.getParentNode(), second);
}

TEST(DocumentNode, RefusesWhatCannotStandBelowIt) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    ZELIDOM_Document other = ZELIDOM_Document::create();
    ZELIDOM_Element root = document.createElement("root");
    ZELIDOM_Element child = document.createElement("child");
    document.appendChild(root);
    root.appendChild(child);
    EXPECT_THROW(child.appendChild(root), ZELIDOM_Error);
    EXPECT_THROW(root.appendChild(other.createElement("x")), ZELIDOM_Error);
    EXPECT_THROW(document.appendChild(document.createElement("second")), ZELIDOM_Error);
    EXPECT_THROW(root.appendChild(document), ZELIDOM_Error);
    EXPECT_THROW(document.createTextNode("text").appendChild(child), ZELIDOM_Error);
    EXPECT_FALSE(textOf<ZELIDOM_Error>([&] { child.appendChild(root); }).empty());
}

}  // namespace
