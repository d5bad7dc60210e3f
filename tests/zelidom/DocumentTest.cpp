#include "tests/zelidom/Documents.h"

#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_NodeList.h>

#include <gtest/gtest.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMImplementation.hpp>

#include <memory>
#include <string>

namespace {

TEST(Document, StartsWithoutARoot) {
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_FALSE(document.isNull());
    EXPECT_EQ(document.getNodeType(), ZELIDOM_Node::DOCUMENT_NODE);
    EXPECT_TRUE(document.getDocumentElement().isNull());
    EXPECT_EQ(document.getChildNodes().getLength(), 0u);
}

TEST(Document, CreatesElementsWithAllPartsOfTheirName) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    for (const ZELIDOM_Element& element :
         {document.createElementNS("urn:p", "p:e"), document.createElementNS(u"urn:p", u"p:e")}) {
        EXPECT_EQ(element.getNodeName(), "p:e");
        EXPECT_EQ(element.getLocalName(), "e");
        EXPECT_EQ(element.getPrefix(), "p");
        EXPECT_EQ(element.getNamespaceURI(), "urn:p");
        EXPECT_TRUE(element.getParentNode().isNull());
    }
}

TEST(Document, AnEmptyNamespaceIsNone) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_TRUE(document.createElementNS("", "e").getNamespaceURI().empty());
    EXPECT_TRUE(document.createElementNS(nullptr, u"e").getNamespaceURI().empty());
    EXPECT_EQ(document.createElementNS("", "e").getLocalName(), "e");
    EXPECT_THROW(document.createElementNS("", "p:e"), ZELIDOM_Error);
}

TEST(Document, CreatesElementsWithoutALocalName) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    const ZELIDOM_Element element = document.createElement("p:e");
    EXPECT_EQ(element.getNodeName(), "p:e");
    EXPECT_TRUE(element.getLocalName().empty());
    EXPECT_TRUE(element.getPrefix().empty());
}

TEST(Document, CreatesTexts) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_EQ(document.createTextNode("a<b").getNodeValue(), "a<b");
    EXPECT_EQ(document.createTextNode(u"wide").getNodeValue(), "wide");
    EXPECT_EQ(document.createTextNode("").getNodeType(), ZELIDOM_Node::TEXT_NODE);
    const std::string longText(100000, 'x');
    EXPECT_EQ(document.createTextNode(longText).getNodeValue(), longText);
}

TEST(Document, RefusesWhatIsNoName) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_THROW(document.createElement("1"), ZELIDOM_Error);
    EXPECT_THROW(document.createElementNS("urn:p", "p:"), ZELIDOM_Error);
    EXPECT_THROW(document.createElementNS("urn:p", "a:b:c"), ZELIDOM_Error);
}

TEST(Document, LivesAsLongAsItsLastHandle) {
    auto first = std::make_unique<ZELIDOM_Document>(ZELIDOM_Document::create());
    first->appendChild(first->createElement("root"));
    const ZELIDOM_Document second = *first;
    first.reset();
    EXPECT_EQ(second.getDocumentElement().getNodeName(), "root");
}

TEST(Document, LeavesADocumentOfTheCallersAlone) {
    xercesc::DOMDocument* const owned =
        xercesc::DOMImplementation::getImplementation()->createDocument(nullptr, u"root", nullptr);
    {
        ZELIDOM_Document document(*owned);
        EXPECT_EQ(document.xercesNode(), owned);
        EXPECT_EQ(document.getDocumentElement().getNodeName(), "root");
        document.getDocumentElement().appendChild(document.createElement("child"));
    }
    EXPECT_EQ(owned->getDocumentElement()->getChildElementCount(), 1u);
    owned->release();
}

}  // namespace
