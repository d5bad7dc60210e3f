#include "tests/roundtrip/XmlTree.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <memory>
#include <stdexcept>

namespace korva::test {

namespace {

std::string utf8(const XMLCh* text) {
    const xercesc::TranscodeToStr converted(text, "UTF-8");
    return {reinterpret_cast<const char*>(converted.str()), converted.length()};
}

ExpandedName expanded(const XMLCh* uri, const XMLCh* name) {
    const std::string space = utf8(uri);
    return space.empty() ? utf8(name) : "{" + space + "}" + utf8(name);
}

class TreeBuilder : public xercesc::DefaultHandler {
public:
    explicit TreeBuilder(XmlElement& root) : m_root(root) {}

    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh*,
                      const xercesc::Attributes& attributes) override {
        XmlElement* element = &m_root;
        if (!m_open.empty()) element = &m_open.back()->children.emplace_back();
        element->name = expanded(uri, localName);
        for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
            element->attributes[expanded(attributes.getURI(i), attributes.getLocalName(i))] =
                utf8(attributes.getValue(i));
        m_open.push_back(element);
        m_text.emplace_back();
    }

    // Pieces are joined before they are converted: a pair of surrogates may be torn apart.
    void characters(const XMLCh* text, XMLSize_t length) override {
        m_text.back().append(text, length);
    }

    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override {
        m_open.back()->text = utf8(m_text.back().c_str());
        m_open.pop_back();
        m_text.pop_back();
    }

    void fatalError(const xercesc::SAXParseException& error) override {
        throw std::runtime_error(utf8(error.getMessage()) + " in line " +
                                 std::to_string(error.getLineNumber()));
    }

private:
    XmlElement& m_root;
    std::vector<XmlElement*> m_open;
    std::vector<std::basic_string<XMLCh>> m_text;
};

}  // namespace

const std::string* XmlElement::attribute(const ExpandedName& attributeName) const {
    const auto row = attributes.find(attributeName);
    return row != attributes.end() ? &row->second : nullptr;
}

XmlElement parseXml(const std::string& xml) {
    const std::unique_ptr<xercesc::SAX2XMLReader> parser(
        xercesc::XMLReaderFactory::createXMLReader());
    parser->setFeature(xercesc::XMLUni::fgSAX2CoreValidation, false);
    parser->setFeature(xercesc::XMLUni::fgXercesSchema, false);
    XmlElement root;
    TreeBuilder builder(root);
    parser->setContentHandler(&builder);
    parser->setErrorHandler(&builder);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()),
                                            xml.size(), "a document");
    parser->parse(source);
    return root;
}

}  // namespace korva::test
