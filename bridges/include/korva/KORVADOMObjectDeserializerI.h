/// How elements of a document in memory become schema objects.
#pragma once

#include <korva/KORVAExport.h>
#include <zelidom/ZELIDOM_Element.h>

class KORVAObjectRegistryI;
class KORVASchemaTypeI;
class KORVA_AttachmentHandler;

/// Reads elements as the reader of documents does that meets them in a stream. Serves one call at a
/// time, and may be used again after a failure.
class KORVA_EXPORT KORVADOMObjectDeserializerI {
public:
    virtual ~KORVADOMObjectDeserializerI();

    /// The object that an element is; null if its `xsi:type` is none that is known, and if it is
    /// nil. The namespaces that the element and those above it declare are in scope, also where
    /// they are declared by attributes without a namespace. Text beside the children of the element
    /// is passed over.
    /// @param registry owner of the object, and of all that was read before a failure. With null
    ///     the deserializer keeps the object itself, until its next call or its end
    /// @param flags not used
    /// @throws ZELAssertError `domIn` is null or a plain value; or a precondition broke while
    ///     reading
    /// @throws KORVAException the failures that KORVASchemaTypeIContentHandler tells of
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVASchemaTypeI* deserialize(const ZELIDOM_Element& domIn,
                                          KORVAObjectRegistryI* registry = nullptr,
                                          unsigned flags = 0) = 0;

    /// Who is told of references to attachments in further calls; null, as at first, refuses them.
    /// Not owned. Each call clears it first.
    virtual void setAttachmentHandler(KORVA_AttachmentHandler* handler) = 0;

    KORVADOMObjectDeserializerI(const KORVADOMObjectDeserializerI&) = delete;
    KORVADOMObjectDeserializerI& operator=(const KORVADOMObjectDeserializerI&) = delete;

protected:
    KORVADOMObjectDeserializerI() = default;
};
