/// The attributes of a document in memory, as a SAX2 handler takes them.
#pragma once

#include <korva/KORVAExport.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>

#include <xercesc/sax2/Attributes.hpp>

/// Shows a map of attributes without copying it. Each text that it gives is the document's own: it
/// stays while the attribute is as it is, whatever else is asked for. A text that an attribute does
/// not have, as the namespace of one without, is empty.
class KORVA_EXPORT KORVADOMToSAXAttributesImpl final : public xercesc::Attributes {
public:
    explicit KORVADOMToSAXAttributesImpl(const ZELIDOM_NamedNodeMap& map) : m_map(map) {}
    KORVADOMToSAXAttributesImpl(const KORVADOMToSAXAttributesImpl&) = delete;
    KORVADOMToSAXAttributesImpl& operator=(const KORVADOMToSAXAttributesImpl&) = delete;
    ~KORVADOMToSAXAttributesImpl() override;

    XMLSize_t getLength() const override;

    // Null at or beyond the length.
    const XMLCh* getURI(XMLSize_t index) const override;
    const XMLCh* getLocalName(XMLSize_t index) const override;
    const XMLCh* getQName(XMLSize_t index) const override;
    const XMLCh* getType(XMLSize_t index) const override;  ///< "CDATA"
    const XMLCh* getValue(XMLSize_t index) const override;

    // The first attribute with these names; false, or -1, if there is none.
    bool getIndex(const XMLCh* uri, const XMLCh* localName, XMLSize_t& index) const override;
    int getIndex(const XMLCh* uri, const XMLCh* localName) const override;
    bool getIndex(const XMLCh* qName, XMLSize_t& index) const override;
    int getIndex(const XMLCh* qName) const override;

    // Null if there is no such attribute.
    const XMLCh* getType(const XMLCh* uri, const XMLCh* localName) const override;
    const XMLCh* getType(const XMLCh* qName) const override;
    /// @throws ZELAssertError what the map has under this name is no attribute
    const XMLCh* getValue(const XMLCh* uri, const XMLCh* localName) const override;
    const XMLCh* getValue(const XMLCh* qName) const override;

private:
    ZELIDOM_NamedNodeMap m_map;
};
