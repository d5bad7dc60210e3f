/// The reader of plain XML documents.
#pragma once

#include <korva/KORVAXMLDeserializerI.h>
#include <korva/KORVA_ReadingObserver.h>
#include <korva/KORVA_ReadingPolicy.h>
#include <zel/ZELOwner.h>

#include <cstddef>

namespace korva {
class XmlReader;
}

/// Reads documents with a SAX2 parser, in one pass. Nothing outside the stream is opened. Keeping a
/// deserializer for further calls saves the set-up of its parser.
class KORVA_EXPORT KORVAXMLDeserializer : public KORVAXMLDeserializerI {
public:
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAXMLDeserializer();
    ~KORVAXMLDeserializer() override;

    KORVASchemaTypeI* parse(BRIMInputStream& stream, KORVAObjectRegistryI* registry) override;

    /// How deep elements may be nested, the root included: 10,000 at first. A document that is
    /// deeper ends in KORVAException 0xEA4F0001.
    void setMaximumDepth(std::size_t elements);

    /// How much text a document may have in all, in UTF-16 units: 2^30 at first. No text of an
    /// attribute can be much longer either. More ends in KORVAException 0xEA4F0001.
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

    /// How many elements may refer to others (`href="#..."`), where the policy follows references:
    /// 100,000 at first. More end in KORVAException 0xEA4F0001.
    void setMaximumReferences(std::size_t references);

    /// How many elements and bytes of text there may be in all that references lead to, counted as
    /// often as they would be written: 2^20 at first, and always ten times the document. More end
    /// in KORVAException 0xEA4F0001.
    void setMaximumExpandedText(std::size_t units);

    /// What further parses make of what other toolkits send; KORVA_ReadingPolicy::stated() at
    /// first. References lead to elements of the same document.
    void setPolicy(const KORVA_ReadingPolicy& policy);

    /// Who is told of what further parses do not read as it stands; null, as at first, is nobody.
    /// Not owned.
    void setObserver(KORVA_ReadingObserver* observer);

private:
    ZELOwner<korva::XmlReader> m_reader;
    KORVA_ReadingPolicy m_policy;
    KORVA_ReadingObserver* m_observer = nullptr;
};
