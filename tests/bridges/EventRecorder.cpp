#include "tests/bridges/EventRecorder.h"

#include "tests/bridges/Vocabulary.h"

#include <zel/I18NString.h>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <algorithm>
#include <memory>
#include <string_view>

namespace korva::test {

namespace {

std::string nameOf(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) {
    return "{" + narrow(uri) + "}" + narrow(localName) + " " + narrow(qName);
}

/// Whether an element of this type has a text, and not children.
bool holdsText(const std::string& type) {
    if (type.rfind("xs:", 0) == 0) return true;
    if (type.rfind("bus:", 0) != 0) return false;
    const SchemaType::Family family = builtSchema().at(type.substr(4)).family;
    return family == SchemaType::eEnum || family == SchemaType::eRestrictedString;
}

}  // namespace

std::string narrow(const XMLCh* text) {
    return text != nullptr ? I18NString(text, std::char_traits<XMLCh>::length(text)).utf8()
                           : "(null)";
}

const std::vector<std::string>& EventRecorder::events() {
    flush();
    return m_events;
}

void EventRecorder::add(const std::string& event) {
    flush();
    m_events.push_back(event);
}

void EventRecorder::flush() {
    const bool isLayout = (m_holdsText.empty() || !m_holdsText.back()) &&
                          m_text.find_first_not_of("\t\n") == std::string::npos;
    if (!m_text.empty() && !isLayout) m_events.push_back("text " + m_text);
    m_text.clear();
    std::sort(m_mappings.begin(), m_mappings.end());
    m_events.insert(m_events.end(), m_mappings.begin(), m_mappings.end());
    m_mappings.clear();
}

void EventRecorder::startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                                 const xercesc::Attributes& attributes) {
    std::vector<std::string> rows;
    std::string type;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        // A declaration of the default namespace is in a namespace to the DOM, in none to SAX2.
        const bool isDefault = narrow(attributes.getQName(i)) == "xmlns";
        rows.push_back(nameOf(isDefault ? u"" : attributes.getURI(i), attributes.getLocalName(i),
                              attributes.getQName(i)) +
                       " " + narrow(attributes.getType(i)) + " " + narrow(attributes.getValue(i)));
        if (narrow(attributes.getQName(i)) == "xsi:type") type = narrow(attributes.getValue(i));
    }
    std::sort(rows.begin(), rows.end());
    std::string event = "start " + nameOf(uri, localName, qName);
    for (const std::string& row : rows)
        event += "\n  " + row;
    add(event);
    m_holdsText.push_back(holdsText(type));
}

void EventRecorder::endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) {
    add("end " + nameOf(uri, localName, qName));
    m_holdsText.pop_back();
}

void EventRecorder::characters(const XMLCh* text, XMLSize_t length) {
    pieces.emplace_back(I18NString(text, length).utf8());
    m_text += pieces.back();
}

void EventRecorder::startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) {
    if (!m_text.empty()) flush();
    m_mappings.push_back("map " + narrow(prefix) + " " + narrow(uri));
}

void EventRecorder::endPrefixMapping(const XMLCh* prefix) {
    if (!m_text.empty()) flush();
    m_mappings.push_back("unmap " + narrow(prefix));
}

EventParser::EventParser() : m_reader(xercesc::XMLReaderFactory::createXMLReader()) {
    using xercesc::XMLUni;
    m_reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, true);
    m_reader->setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, true);
    m_reader->setFeature(XMLUni::fgSAX2CoreValidation, false);
}

EventParser::~EventParser() = default;

std::vector<std::string> EventParser::eventsOf(const std::string& xml) {
    EventRecorder recorder;
    m_reader->setContentHandler(&recorder);
    m_reader->setErrorHandler(&recorder);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()),
                                            xml.size(), "test");
    m_reader->parse(source);
    return recorder.events();
}

}  // namespace korva::test
