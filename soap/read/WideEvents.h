/// From the SAX2 events of Xerces-C to those that the readers take.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ElementNames.h"

#include <zel/I18NConverter.h>

#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace korva {

/// Converts events, each by its own function; who hands them in may leave some out. A text may end
/// between the halves of a character, and the converter then keeps the first for the next.
class WideEvents {
public:
    /// @param converter must outlive the object
    explicit WideEvents(I18NConverter& converter) : m_converter(converter) {}

    /// The element in UTF-8. Its local name lives as long as this object, all else until the next
    /// call. The texts may be null, but for the local name.
    Element element(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                    const xercesc::Attributes& attributes);

    /// A prefix or a namespace in UTF-8, which lives as long as this object.
    const char* name(const XMLCh* text) { return m_names.find(text); }

    std::size_t nameCount() const { return m_names.count(); }

    /// Forgets half a character: the text that it stood in is nobody's.
    void startText() { m_converter.reset(); }
    void text(const XMLCh* text, XMLSize_t length, DocumentReceiver& receiver);
    /// Half a character at the end of a text is none.
    void endText(DocumentReceiver& receiver);

private:
    std::string_view keep(const XMLCh* text);
    std::string_view prefixOf(const XMLCh* qName, const XMLCh* localName);

    I18NConverter& m_converter;
    ElementNames m_names;
    std::vector<Attribute> m_attributes;  ///< of the last element
    std::vector<std::string> m_values;    ///< of those, kept for their room
};

}  // namespace korva
