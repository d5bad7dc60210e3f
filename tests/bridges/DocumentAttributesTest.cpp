#include "tests/bridges/EventRecorder.h"
#include "tests/support/ExpectThrow.h"
#include "tests/zelidom/Documents.h"

#include <korva/KORVADOMToSAXAttributesImpl.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>

#include <gtest/gtest.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMDocumentType.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <string>
#include <vector>

namespace {

using korva::test::narrow;
using korva::test::parseDocument;

class DocumentAttributes : public testing::Test {
protected:
    DocumentAttributes() {
        ZELIDOM_Element root = document.getDocumentElement();
        root.setAttribute("plain", "3");
    }

    XMLSize_t at(const XMLCh* qName) const {
        XMLSize_t index = 99;
        EXPECT_TRUE(attributes.getIndex(qName, index)) << narrow(qName);
        return index;
    }

    ZELIDOM_Document document = parseDocument("<r a='1' p:b='2' xmlns:p='urn:p' e=''/>");
    KORVADOMToSAXAttributesImpl attributes{document.getDocumentElement().getAttributes()};
};

TEST_F(DocumentAttributes, HaveTheLengthOfTheMap) {
    EXPECT_EQ(attributes.getLength(), 5u);
    EXPECT_EQ(KORVADOMToSAXAttributesImpl(ZELIDOM_NamedNodeMap()).getLength(), 0u);
}

TEST_F(DocumentAttributes, TellEachByItsPosition) {
    const XMLSize_t b = at(u"p:b");
    EXPECT_EQ(narrow(attributes.getURI(b)), "urn:p");
    EXPECT_EQ(narrow(attributes.getLocalName(b)), "b");
    EXPECT_EQ(narrow(attributes.getQName(b)), "p:b");
    EXPECT_EQ(narrow(attributes.getType(b)), "CDATA");
    EXPECT_EQ(narrow(attributes.getValue(b)), "2");
}

TEST_F(DocumentAttributes, GiveTheEmptyTextForWhatAnAttributeDoesNotHave) {
    EXPECT_EQ(narrow(attributes.getURI(at(u"a"))), "");
    EXPECT_EQ(narrow(attributes.getURI(at(u"plain"))), "");
    EXPECT_EQ(narrow(attributes.getLocalName(at(u"plain"))), "");
    EXPECT_EQ(narrow(attributes.getQName(at(u"plain"))), "plain");
    EXPECT_EQ(narrow(attributes.getValue(at(u"e"))), "");
}

TEST_F(DocumentAttributes, GiveNullAtAndBeyondTheLength) {
    for (const XMLSize_t index : {XMLSize_t{5}, XMLSize_t{6}, static_cast<XMLSize_t>(-1)}) {
        EXPECT_EQ(attributes.getURI(index), nullptr);
        EXPECT_EQ(attributes.getLocalName(index), nullptr);
        EXPECT_EQ(attributes.getQName(index), nullptr);
        EXPECT_EQ(attributes.getType(index), nullptr);
        EXPECT_EQ(attributes.getValue(index), nullptr);
    }
}

TEST_F(DocumentAttributes, AreFoundByQualifiedName) {
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        const XMLCh* const name = attributes.getQName(i);
        EXPECT_EQ(attributes.getIndex(name), static_cast<int>(i));
        EXPECT_EQ(narrow(attributes.getValue(name)), narrow(attributes.getValue(i)));
        EXPECT_EQ(narrow(attributes.getType(name)), "CDATA");
    }
}

TEST_F(DocumentAttributes, AreFoundByNamespaceAndLocalName) {
    XMLSize_t index = 99;
    EXPECT_TRUE(attributes.getIndex(u"urn:p", u"b", index));
    EXPECT_EQ(index, at(u"p:b"));
    EXPECT_EQ(attributes.getIndex(u"urn:p", u"b"), static_cast<int>(index));
    EXPECT_EQ(narrow(attributes.getValue(u"urn:p", u"b")), "2");
    EXPECT_EQ(narrow(attributes.getType(u"urn:p", u"b")), "CDATA");
    EXPECT_EQ(narrow(attributes.getValue(u"", u"a")), "1");
    EXPECT_EQ(narrow(attributes.getValue(nullptr, u"a")), "1");
    EXPECT_EQ(attributes.getIndex(u"", u"a"), static_cast<int>(at(u"a")));
}

TEST_F(DocumentAttributes, WhatIsNotThereIsNotFound) {
    XMLSize_t index = 99;
    EXPECT_FALSE(attributes.getIndex(u"b", index));
    EXPECT_FALSE(attributes.getIndex(u"urn:q", u"b", index));
    EXPECT_FALSE(attributes.getIndex(nullptr, index));
    EXPECT_FALSE(attributes.getIndex(u"urn:p", nullptr, index));
    EXPECT_EQ(index, 99u);
    EXPECT_EQ(attributes.getIndex(u"b"), -1);
    EXPECT_EQ(attributes.getIndex(u"urn:p", u"a"), -1);
    EXPECT_EQ(attributes.getValue(u"b"), nullptr);
    EXPECT_EQ(attributes.getValue(u"urn:p", u"a"), nullptr);
    EXPECT_EQ(attributes.getValue(static_cast<const XMLCh*>(nullptr)), nullptr);
    EXPECT_EQ(attributes.getValue(u"urn:p", nullptr), nullptr);
    EXPECT_EQ(attributes.getType(u"b"), nullptr);
    EXPECT_EQ(attributes.getType(u"urn:p", u"a"), nullptr);
}

TEST_F(DocumentAttributes, GiveTextsThatStayWhenOthersAreAskedFor) {
    std::vector<const XMLCh*> texts;
    std::vector<std::string> copies;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
        for (const XMLCh* const text : {attributes.getURI(i), attributes.getLocalName(i),
                                        attributes.getQName(i), attributes.getValue(i)}) {
            texts.push_back(text);
            copies.push_back(narrow(text));
        }
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(narrow(texts[i]), copies[i]);
}

TEST(DocumentAttributesOfNothing, ANodeThatIsNoAttributeIsAnAssertion) {
    const std::string xml = "<!DOCTYPE r [<!ENTITY e 'text'>]><r/>";
    xercesc::XercesDOMParser parser;
    parser.setCreateEntityReferenceNodes(true);
    parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()),
                                            xml.size(), "test"));
    const KORVADOMToSAXAttributesImpl entities(
        ZELIDOM_NamedNodeMap(parser.getDocument()->getDoctype()->getEntities()));
    ASSERT_EQ(entities.getLength(), 1u);
    EXPECT_ASSERTION(entities.getValue(u"e"),
                     "ZEL_ASSERT(node.getNodeType() == ZELIDOM_Node::ATTRIBUTE_NODE);");
}

}  // namespace
