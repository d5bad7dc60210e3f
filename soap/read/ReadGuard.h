// What stands between the parser and a reader: limits, and where the parser was when it failed.
#pragma once

#include "soap/read/ReadLimits.h"

#include <xercesc/sax2/DefaultHandler.hpp>

#include <cstddef>
#include <string>

namespace korva {

/// Hands the parser's events on to a handler. Counts depth and text before the handler sees them,
/// opens no external entity, and remembers the place of a failure.
class ReadGuard final : public xercesc::DefaultHandler {
public:
    /// @param label the function that a broken limit is reported for
    ReadGuard(xercesc::ContentHandler& handler, const ReadLimits& limits, const char* label);

    /// Remembers the parser's position, unless an earlier failure did.
    void notePosition() noexcept;
    /// The same for a position that is known.
    void notePosition(XMLFileLoc line, XMLFileLoc column) noexcept;

    /// "line 3, column 14, element /Envelope/Body", as far as it is known. May be empty.
    std::string place() const;

    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseText() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseEntityExpansion() const;

    void setDocumentLocator(const xercesc::Locator* locator) override;
    void startDocument() override;
    void endDocument() override;
    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) override;
    void characters(const XMLCh* text, XMLSize_t length) override;
    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override;
    void endPrefixMapping(const XMLCh* prefix) override;
    /// An empty source: nothing outside the document is ever opened.
    xercesc::InputSource* resolveEntity(const XMLCh* publicId, const XMLCh* systemId) override;

private:
    [[noreturn]] void refuse(const char* what, std::size_t limit, const char* setter) const;

    /// Calls the handler and notes the position if it throws.
    template <class Call>
    void forward(Call call);

    xercesc::ContentHandler& m_handler;
    const ReadLimits& m_limits;
    const char* m_label;
    const xercesc::Locator* m_locator = nullptr;
    std::size_t m_depth = 0;
    std::size_t m_textLeft;
    std::u16string m_path;  ///< of the open elements, each behind a '/'
    XMLFileLoc m_line = 0;  ///< of the failure; 0 while there is none
    XMLFileLoc m_column = 0;
};

}  // namespace korva
