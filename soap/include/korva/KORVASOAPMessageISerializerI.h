/// How messages become envelopes.
#pragma once

#include <korva/KORVAExport.h>

class BRIMOutputStream;
class KORVAMessageI;
class KORVAPortTypeBinding;

/// Writes messages to a stream. A serializer keeps nothing between calls but its settings; it is
/// used by one thread at a time.
class KORVA_EXPORT KORVASOAPMessageISerializerI {
public:
    virtual ~KORVASOAPMessageISerializerI();

    /// Whether the envelope starts with the XML declaration. True at first.
    virtual void setWriteXmlDeclaration(bool write) = 0;

    /// Whether children that are unset, and a missing bus header, are written as null elements
    /// instead of being left out. False at first.
    virtual void setWriteNullElements(bool write) = 0;

    /// Writes the whole envelope of `message`: as a reply if it has the type of the binding's
    /// output message, otherwise as a request. It need not be one of the binding's own messages.
    ///
    /// The envelope goes to the stream while the message is walked: after an exception the stream
    /// may hold a part of it, which the caller throws away. Nothing of the transport is written;
    /// the SOAP action stands in the binding.
    /// @throws ZELAssertError `message` is of neither type, of which nothing is written; the
    ///     binding has an operation but no namespace; a value cannot be written
    /// @throws KORVAException 0xEA4F0004: a text holds what no document can; 0xEA4F0005: an object
    ///     holds itself
    /// @throws ZELOutOfMemoryError no memory is left
    /// The stream's own exceptions pass through.
    virtual void serialize(KORVAPortTypeBinding& binding, KORVAMessageI& message,
                           BRIMOutputStream& stream) = 0;

    KORVASOAPMessageISerializerI(const KORVASOAPMessageISerializerI&) = delete;
    KORVASOAPMessageISerializerI& operator=(const KORVASOAPMessageISerializerI&) = delete;

protected:
    KORVASOAPMessageISerializerI() = default;
};
