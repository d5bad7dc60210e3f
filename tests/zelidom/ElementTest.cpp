#include "tests/zelidom/Documents.h"

#include <zelidom/ZELIDOM_Attr.h>
#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class DocumentElement : public testing::Test {
protected:
    ZELIDOM_Document document = ZELIDOM_Document::create();
    ZELIDOM_Element element = document.createElementNS("urn:p", "p:e");
};

TEST_F(DocumentElement, PlainAttributesHaveNoNamespaceAndNoLocalName) {
    element.setAttribute("xmlns:p", "urn:p");
    const ZELIDOM_Node attribute = element.getAttributes().getNamedItem("xmlns:p");
    ASSERT_FALSE(attribute.isNull());
    EXPECT_EQ(attribute.getNodeValue(), "urn:p");
    EXPECT_TRUE(attribute.getLocalName().empty());
    EXPECT_TRUE(attribute.getPrefix().empty());
    EXPECT_TRUE(attribute.getNamespaceURI().empty());
    EXPECT_EQ(element.getAttribute("xmlns:p"), "urn:p");
}

TEST_F(DocumentElement, QualifiedAttributesTellAllPartsOfTheirName) {
    element.setAttributeNS("urn:q", "q:a", "value");
    const ZELIDOM_Node attribute = element.getAttributes().getNamedItemNS("urn:q", "a");
    ASSERT_FALSE(attribute.isNull());
    EXPECT_EQ(attribute.getNodeName(), "q:a");
    EXPECT_EQ(attribute.getLocalName(), "a");
    EXPECT_EQ(attribute.getPrefix(), "q");
    EXPECT_EQ(attribute.getNamespaceURI(), "urn:q");
    EXPECT_EQ(element.getAttributeNS("urn:q", "a"), "value");
}

TEST_F(DocumentElement, AnAttributeWithoutNamespaceMayHaveALocalName) {
    element.setAttributeNS("", "href", "cid:a");
    const ZELIDOM_Node attribute = element.getAttributes().getNamedItem("href");
    EXPECT_EQ(attribute.getLocalName(), "href");
    EXPECT_TRUE(attribute.getNamespaceURI().empty());
    EXPECT_EQ(element.getAttributeNS("", "href"), "cid:a");
}

TEST_F(DocumentElement, SettingAnAttributeAgainReplacesItsValue) {
    element.setAttribute("a", "1");
    element.setAttribute("a", "2");
    EXPECT_EQ(element.getAttributes().getLength(), 1u);
    EXPECT_EQ(element.getAttribute("a"), "2");
}

TEST_F(DocumentElement, AnAttributeThatIsNotThereIsEmpty) {
    EXPECT_TRUE(element.getAttribute("a").empty());
    EXPECT_TRUE(element.getAttributeNS("urn:q", "a").empty());
}

TEST_F(DocumentElement, TakesTextsOfAnyLengthInBothEncodings) {
    const std::string longText(1000, 'x');
    element.setAttribute("a", longText);
    EXPECT_EQ(element.getAttribute("a"), longText);
    element.setAttribute(longText, "\xE6\x97\xA5");
    EXPECT_EQ(element.getAttribute(longText).wide(), std::u16string(u"\u65E5"));
    element.setAttribute(u"b", u"wide");
    EXPECT_EQ(element.getAttribute("b"), "wide");
    element.setAttributeNS(u"urn:q", u"q:b", u"wide");
    EXPECT_EQ(element.getAttributeNS("urn:q", "b"), "wide");
}

TEST_F(DocumentElement, RefusesWhatIsNoName) {
    EXPECT_THROW(element.setAttribute("a b", "1"), ZELIDOM_Error);
    EXPECT_THROW(element.setAttribute("", "1"), ZELIDOM_Error);
    EXPECT_THROW(element.setAttributeNS("urn:q", "q:", "1"), ZELIDOM_Error);
    EXPECT_THROW(element.setAttributeNS("", "q:a", "1"), ZELIDOM_Error);
    EXPECT_THROW(element.setAttributeNS("urn:q", "xmlns:a", "1"), ZELIDOM_Error);
    EXPECT_EQ(element.getAttributes().getLength(), 0u);
}

}  // namespace
