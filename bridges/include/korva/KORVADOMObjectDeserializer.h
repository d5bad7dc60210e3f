/// The reader of documents in memory.
#pragma once

#include <korva/KORVADOMObjectDeserializerI.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVA_ReadingObserver.h>
#include <korva/KORVA_ReadingPolicy.h>
#include <zel/ZELSmartPointer.h>

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>

class ZELIDOM_Node;

XERCES_CPP_NAMESPACE_BEGIN
class ContentHandler;
XERCES_CPP_NAMESPACE_END

/// Replays the document as SAX2 events to the reader that serves streams, so that there is one
/// reader. Does not recurse: depth costs memory, not stack.
class KORVA_EXPORT KORVADOMObjectDeserializer : public KORVADOMObjectDeserializerI {
public:
    KORVADOMObjectDeserializer();
    ~KORVADOMObjectDeserializer() override;

    KORVASchemaTypeI* deserialize(const ZELIDOM_Element& domIn,
                                  KORVAObjectRegistryI* registry = nullptr,
                                  unsigned flags = 0) override;

    void setAttachmentHandler(KORVA_AttachmentHandler* handler) override;

    /// How many attributes an element may have, declarations of namespaces included: 256 at first.
    /// More end in KORVAException 0xEA4F0001.
    void setMaximumAttributes(std::size_t attributes) { m_maximumAttributes = attributes; }

    /// How many declarations of namespaces may be in scope at one place: 1,000 at first. More end
    /// in KORVAException 0xEA4F0001.
    void setMaximumDeclarations(std::size_t declarations) { m_maximumDeclarations = declarations; }

    /// How many elements may refer to others (`href="#..."`), where the policy follows references:
    /// 100,000 at first. More end in KORVAException 0xEA4F0001.
    void setMaximumReferences(std::size_t references) { m_maximumReferences = references; }

    /// What further calls make of what other toolkits send in the element; at first
    /// KORVA_ReadingPolicy::stated(). References lead to elements that stand in it.
    void setPolicy(const KORVA_ReadingPolicy& policy) { m_policy = policy; }

    /// Who is told of what further calls do not read as it stands; null, as at first, is nobody.
    /// Not owned. Lines are not known.
    void setObserver(KORVA_ReadingObserver* observer) { m_observer = observer; }

    /// Tells a handler of an element with all that it holds, as a parser would: mappings of
    /// prefixes, elements, and texts. An element without a local name is told of by its node name.
    /// @throws ZELAssertError `nodeIn` is null or no element
    /// What the handler throws passes through.
    static void replay(const ZELIDOM_Node& nodeIn, xercesc::ContentHandler& contentHandler);

private:
    KORVASchemaTypeI* read(const ZELIDOM_Element& domIn, KORVAObjectRegistryI* registry) const;

    ZELSmartPointer<KORVAObjectRegistryI> m_registry;  ///< of the last object, unless the caller's
    KORVA_AttachmentHandler* m_attachmentHandler = nullptr;
    std::size_t m_maximumAttributes;
    std::size_t m_maximumDeclarations;
    std::size_t m_maximumReferences;
    KORVA_ReadingPolicy m_policy;
    KORVA_ReadingObserver* m_observer = nullptr;
};
