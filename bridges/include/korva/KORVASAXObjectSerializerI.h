/// How schema objects become the events of a parser.
#pragma once

#include <korva/KORVAExport.h>
#include <korva/KORVASchemaTypeI.h>

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class ContentHandler;
XERCES_CPP_NAMESPACE_END

/// Tells a SAX2 handler of an object as if a parser had read its encoded form; no text is made in
/// between. A serializer keeps nothing between calls; it serves one call at a time.
class KORVA_EXPORT KORVASAXObjectSerializerI {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    virtual ~KORVASAXObjectSerializerI();

    /// Tells `contentHandler` of the prefix mappings, of the element "bus:`name`" with all that it
    /// holds, and of the ends of the mappings; not of the start and the end of a document, so that
    /// the element may stand inside a larger one. The namespaces are declared on this first element
    /// alone, also among its attributes. There is no white space between elements, and no call of
    /// `characters` for an empty text; a long text comes in several.
    /// @param object as KORVAObjectSerializerI tells for each type. A null array is told of as such
    /// @param type what `object` is; it gives the element's type
    /// @param name the name of the element, without prefix
    /// @throws ZELAssertError `name` is null, or `object` is and no array; `type` cannot be
    ///     written; or an enumeration in the object has no value
    /// @throws KORVAException 0xEA4F0004: a text holds what no document can; 0xEA4F0005: an object
    ///     holds itself
    /// @throws ZELOutOfMemoryError no memory is left
    /// What the handler throws passes through. A standard exception becomes a ZELStdExceptionError.
    virtual void serialize(const void* object, ObjectType type, const char* name,
                           xercesc::ContentHandler& contentHandler) = 0;

    KORVASAXObjectSerializerI(const KORVASAXObjectSerializerI&) = delete;
    KORVASAXObjectSerializerI& operator=(const KORVASAXObjectSerializerI&) = delete;

protected:
    KORVASAXObjectSerializerI() = default;
};
