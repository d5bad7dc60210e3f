/// How schema objects become text.
#pragma once

#include <korva/KORVAExport.h>
#include <korva/KORVASchemaTypeI.h>

class BRIMOutputStream;

/// Writes schema objects and plain values to a stream. A serializer keeps nothing between calls but
/// its settings; it is used by one thread at a time.
class KORVA_EXPORT KORVAObjectSerializerI {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    virtual ~KORVAObjectSerializerI();

    /// Writes one value as an element. A null value is written as such.
    ///
    /// The element goes to the stream while the object is walked: after an exception the stream
    /// holds a part of it, which the caller throws away.
    /// @param object a KORVASchemaTypeI for generated types, text for text kinds (which may be a
    ///     KORVA_CharStreamable), a KORVAXSBase64Binary, or the address of an int, bool or float;
    ///     may be null
    /// @param type what `object` is; it gives the element's type, also when the object is of a
    ///     derived class
    /// @param qName the element's name with its prefix
    /// @throws ZELAssertError `qName` is null, `type` cannot be written, or an enumeration in the
    ///     object has no value
    /// @throws KORVAException 0xEA4F0004: a text holds what no document can; 0xEA4F0005: an object
    ///     holds itself
    /// @throws ZELOutOfMemoryError no memory is left
    /// The stream's own exceptions pass through.
    virtual void serialize(const void* object, ObjectType type, const char* qName,
                           BRIMOutputStream& stream) = 0;

    /// Whether `serialize` declares the namespaces on the element that it writes. True at first.
    virtual void setWriteNamespaceDeclarations(bool write) = 0;

    /// Whether an envelope starts with the XML declaration. True at first.
    virtual void setWriteXmlDeclaration(bool write) = 0;

    /// Whether children that are unset are written as null elements instead of being left out.
    /// False at first.
    virtual void setWriteNullElements(bool write) = 0;

    KORVAObjectSerializerI(const KORVAObjectSerializerI&) = delete;
    KORVAObjectSerializerI& operator=(const KORVAObjectSerializerI&) = delete;

protected:
    KORVAObjectSerializerI() = default;
};
