/// How schema objects become elements of a document in memory.
#pragma once

#include <korva/KORVAExport.h>
#include <korva/KORVASchemaTypeI.h>
#include <zelidom/ZELIDOM_Document.h>
#include <zelidom/ZELIDOM_Element.h>

/// Makes elements of the shape that the wire form has. A serializer keeps nothing between calls.
class KORVA_EXPORT KORVADOMObjectSerializerI {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    virtual ~KORVADOMObjectSerializerI();

    /// A new element with all that `object` holds. It belongs to `ownerDoc` and stands nowhere in
    /// it yet. All elements are in the bus namespace; children are named "bus:" and their name,
    /// entries of arrays "item". An unset child has no element, an empty text no text node.
    ///
    /// The namespaces are declared on the new element. A failure leaves what was made to the
    /// document, without a place in it.
    /// @param object as KORVAObjectSerializerI tells for each type. A null array is written as such
    /// @param type what `object` is; it gives the element's type
    /// @param name the element's qualified name
    /// @throws ZELAssertError `ownerDoc` or `name` is null, or `object` is and no array; `type`
    ///     cannot be written; or an enumeration in the object has no value
    /// @throws ZELIDOM_Error `name` is no qualified name
    /// @throws KORVAException 0xEA4F0004: a text holds what no document can; 0xEA4F0005: an object
    ///     holds itself
    /// @throws ZELOutOfMemoryError no memory is left
    virtual ZELIDOM_Element serialize(const void* object, ObjectType type, const char* name,
                                      ZELIDOM_Document ownerDoc) = 0;

    KORVADOMObjectSerializerI(const KORVADOMObjectSerializerI&) = delete;
    KORVADOMObjectSerializerI& operator=(const KORVADOMObjectSerializerI&) = delete;

protected:
    KORVADOMObjectSerializerI() = default;
};
