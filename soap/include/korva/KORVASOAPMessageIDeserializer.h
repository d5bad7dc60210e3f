/// The reader of SOAP 1.1 envelopes.
#pragma once

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPMessageIDeserializerI.h>
#include <korva/KORVA_ReadingObserver.h>
#include <korva/KORVA_ReadingPolicy.h>
#include <zel/ZELOwner.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>

namespace korva {
class MessageReader;
class XmlReader;
}  // namespace korva

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

    /// How many bytes a start tag may have: 65,536 at first. A longer one ends in KORVAException
    /// 0xEA4F0001.
    void setMaximumStartTag(std::size_t bytes);

    /// How many attributes and declarations of namespaces a start tag may have: 256 at first. More
    /// end in KORVAException 0xEA4F0001.
    void setMaximumAttributes(std::size_t attributes);

    /// How many declarations of namespaces may be in scope at one place: 1,000 at first. More end
    /// in KORVAException 0xEA4F0001.
    void setMaximumDeclarations(std::size_t declarations);

    /// How many different names of elements, attributes, prefixes and namespaces a document may
    /// have: 50,000 at first. More end in KORVAException 0xEA4F0001.
    void setMaximumNames(std::size_t names);

    /// How many entities of a document type, of both kinds, may be expanded: 10,000 at first. More
    /// end in KORVAException 0xEA4F0001.
    void setMaximumEntityExpansions(std::size_t expansions);

    /// How many entities may be expanded inside each other: 64 at first. More end in KORVAException
    /// 0xEA4F0001.
    void setMaximumEntityNesting(std::size_t entities);

    /// How much text the entities and the default attributes of a document type may make, in UTF-16
    /// units: 2^20 at first, and always ten times the document. More ends in KORVAException
    /// 0xEA4F0001. The same holds for elements and bytes of text in all that references lead to,
    /// counted as often as they would be written.
    void setMaximumExpandedText(std::size_t units);

    /// How many elements may refer to others (`href="#..."`), where the policy follows references:
    /// 100,000 at first. More end in KORVAException 0xEA4F0001.
    void setMaximumReferences(std::size_t references);

    /// Whether an envelope with a document type ends in KORVAException 0xEA4EB50B, as SOAP has it;
    /// not at first. A server should.
    void setRefuseDocumentType(bool refuse);

    /// What further parses make of what other toolkits send; KORVA_ReadingPolicy::stated() at
    /// first.
    void setPolicy(const KORVA_ReadingPolicy& policy);

    /// Who is told of what further parses do not read as it stands; null, as at first, is nobody.
    /// Not owned.
    void setObserver(KORVA_ReadingObserver* observer);

private:
    friend class KORVA_EnvelopeReader;

    void parse(BRIMInputStream& stream, korva::MessageReader& reader,
               KORVA_ReadingObserver* observer);
    void throwFault(const korva::MessageReader& reader) const;

    ZELSmartPointer<KORVAObjectRegistryI> m_objectRegistry;  ///< of the last parse
    KORVAHalyardHeader* m_header;
    KORVA_AttachmentHandler* m_attachmentHandler;
    ZELOwner<korva::XmlReader> m_reader;
    KORVA_ReadingPolicy m_policy;
    KORVA_ReadingObserver* m_observer = nullptr;
};
