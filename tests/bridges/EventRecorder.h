/// SAX2 events as texts that can be compared.
#pragma once

#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>

#include <memory>
#include <string>
#include <vector>

XERCES_CPP_NAMESPACE_BEGIN
class SAX2XMLReader;
XERCES_CPP_NAMESPACE_END

namespace korva::test {

std::string narrow(const XMLCh* text);

/// Writes down what it is told of, one line for each event. Attributes and mappings of prefixes of
/// one element are sorted by name, as their order means nothing, and a text in several pieces is
/// one event.
class EventRecorder : public xercesc::DefaultHandler {
public:
    /// The lines so far. White space beside children, which only lays out a document, is left out.
    const std::vector<std::string>& events();

    /// The texts of `characters` as they came.
    std::vector<std::string> pieces;

    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) override;
    void characters(const XMLCh* text, XMLSize_t length) override;
    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override;
    void endPrefixMapping(const XMLCh* prefix) override;

private:
    void add(const std::string& event);
    void flush();

    std::vector<std::string> m_events;
    std::vector<std::string> m_mappings;  ///< of the element that is to start, or that has ended
    std::vector<bool> m_holdsText;        ///< of the open elements
    std::string m_text;
};

/// Xerces-C's own parser, set up as the library's reader has it.
class EventParser {
public:
    EventParser();
    ~EventParser();

    /// The events that the parser reports for a document, but for its start and end.
    std::vector<std::string> eventsOf(const std::string& xml);

private:
    std::unique_ptr<xercesc::SAX2XMLReader> m_reader;
};

}  // namespace korva::test
