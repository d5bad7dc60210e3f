#include "tests/bridges/Outline.h"

#include "tests/bridges/EventRecorder.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVADOMObjectSerializer.h>
#include <korva/KORVASAXObjectSerializer.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>

#include <gtest/gtest.h>
#include <xercesc/sax2/DefaultHandler.hpp>

#include <map>

namespace korva::test {

namespace {

using Attributes = std::map<std::string, std::string>;

std::string namespaceOf(const std::string& prefix) {
    const auto text = [](KORVAI18NRes::Number number) {
        return std::string(KORVAI18NRes::getChar(number));
    };
    if (prefix == "bus") return text(KORVAI18NRes::eBusNamespace);
    if (prefix == "xsi") return text(KORVAI18NRes::eSchemaInstanceNamespace);
    if (prefix == "SOAP-ENC") return text(KORVAI18NRes::eSoapEncodingNamespace);
    if (prefix == "xmlns") return "http://www.w3.org/2000/xmlns/";
    return {};
}

/// Checks the parts of a name against each other.
void expectName(const std::string& qName, const std::string& localName, const std::string& uri) {
    const std::size_t colon = qName.find(':');
    const std::string prefix = colon != std::string::npos ? qName.substr(0, colon) : "";
    EXPECT_EQ(localName, colon != std::string::npos ? qName.substr(colon + 1) : qName);
    if (qName != "item") {
        EXPECT_EQ(uri, namespaceOf(prefix)) << qName;
    }
}

std::string startTag(const std::string& name, const Attributes& attributes) {
    std::string text = "<" + name;
    for (const auto& [attribute, value] : attributes)
        if (attribute.rfind("xmlns:", 0) != 0) text += " " + attribute + "=\"" + value + "\"";
    return text + ">";
}

class OutlineHandler : public xercesc::DefaultHandler {
public:
    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override {
        expectName(narrow(qName), narrow(localName), narrow(uri));
        Attributes rows;
        for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
            expectName(narrow(attributes.getQName(i)), narrow(attributes.getLocalName(i)),
                       narrow(attributes.getURI(i)));
            rows[narrow(attributes.getQName(i))] = narrow(attributes.getValue(i));
        }
        text += startTag(narrow(qName), rows);
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh* qName) override {
        text += "</" + narrow(qName) + ">";
    }
    void characters(const XMLCh* piece, XMLSize_t) override { text += narrow(piece); }

    std::string text;
};

}  // namespace

std::string outline(const ZELIDOM_Node& element) {
    if (element.getNodeType() != ZELIDOM_Node::ELEMENT_NODE) return element.getNodeValue().utf8();
    const std::string name = element.getNodeName().utf8();
    expectName(name, element.getLocalName().utf8(), element.getNamespaceURI().utf8());
    Attributes rows;
    const ZELIDOM_NamedNodeMap attributes = element.getAttributes();
    for (std::size_t i = 0; i < attributes.getLength(); ++i) {
        const ZELIDOM_Node attribute = attributes.item(i);
        expectName(attribute.getNodeName().utf8(), attribute.getLocalName().utf8(),
                   attribute.getNamespaceURI().utf8());
        rows[attribute.getNodeName().utf8()] = attribute.getNodeValue().utf8();
    }
    std::string text = startTag(name, rows);
    for (ZELIDOM_Node child = element.getFirstChild(); !child.isNull();
         child = child.getNextSibling())
        text += outline(child);
    return text + "</" + name + ">";
}

std::string ToDocument::write(const void* object, ObjectType type, const char* name,
                              bool replaceInvalidText) {
    const std::string qName = std::string("bus:") + (name != nullptr ? name : "");
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    KORVADOMObjectSerializer serializer;
    serializer.setReplaceInvalidText(replaceInvalidText);
    return outline(
        serializer.serialize(object, type, name != nullptr ? qName.c_str() : nullptr, document));
}

std::string ToEvents::write(const void* object, ObjectType type, const char* name,
                            bool replaceInvalidText) {
    OutlineHandler handler;
    KORVASAXObjectSerializer serializer;
    serializer.setReplaceInvalidText(replaceInvalidText);
    serializer.serialize(object, type, name, handler);
    return handler.text;
}

}  // namespace korva::test
