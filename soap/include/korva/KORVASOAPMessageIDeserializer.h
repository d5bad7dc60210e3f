// The reader of SOAP 1.1 envelopes.
#pragma once

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPMessageIDeserializerI.h>
#include <zel/I18NConverter.h>
#include <zel/ZELOwner.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>

class KORVAMessageIContentHandler;

namespace korva {
class XmlReader;
}

/// Reads envelopes with a SAX2 parser, in one pass. Nothing outside the stream is opened, whatever
/// the envelope refers to. Keeping a deserializer for further calls saves the set-up of its parser.
class KORVA_EXPORT KORVASOAPMessageIDeserializer : public KORVASOAPMessageIDeserializerI {
public:
    /// @throws ZELOutOfMemoryError no memory is left
    KORVASOAPMessageIDeserializer();
    ~KORVASOAPMessageIDeserializer() override;

    void parse(BRIMInputStream& stream, KORVAPortTypeBinding& binding,
               KORVAMessageI* pMsg) override;
    void parse(BRIMInputStream& stream, const std::vector<KORVAPortTypeI*>& supportedPortTypes,
               ZELSmartPointer<KORVAPortTypeBinding>& result) override;
    KORVAHalyardHeader* getHeader() const override;
    void setAttachmentHandler(KORVA_AttachmentHandler* handler) override;

    /// How deep elements may be nested, the envelope itself included: 10,000 at first. A document
    /// that is deeper ends in KORVAException 0xEA4F0001.
    void setMaximumDepth(std::size_t elements);

    /// How much text a document may have in all, in UTF-16 units, entities expanded: 2^30 at first.
    /// No text of an attribute can be much longer either. More ends in KORVAException 0xEA4F0001.
    void setMaximumText(std::size_t units);

    /// How many entities of a document type may be expanded: 50,000 at first. More end in
    /// KORVAException 0xEA4F0001.
    void setMaximumEntityExpansions(std::size_t expansions);

private:
    void parse(BRIMInputStream& stream, KORVAMessageIContentHandler& handler);

    ZELSmartPointer<KORVAObjectRegistryI> m_objectRegistry;  ///< of the last parse
    KORVAHalyardHeader* m_header;
    I18NConverter m_converter;
    KORVA_AttachmentHandler* m_attachmentHandler;
    ZELOwner<korva::XmlReader> m_reader;
};
