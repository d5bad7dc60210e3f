/// How envelopes become messages.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELSmartPointer.h>

#include <vector>

class BRIMInputStream;
class KORVAHalyardHeader;
class KORVAMessageI;
class KORVAPortTypeBinding;
class KORVAPortTypeI;
class KORVA_AttachmentHandler;

/// Reads SOAP envelopes from streams. Keeps the state of its last parse; serves one call at a time,
/// and may be used again after a failure. Envelopes with a document type, and those that are not in
/// UTF-8 and XML 1.0, need the XML platform (XMLPlatformUtils::Initialize), which is the caller's
/// to start and to end; without it they end in ZELAssertError.
class KORVA_EXPORT KORVASOAPMessageIDeserializerI {
public:
    virtual ~KORVASOAPMessageIDeserializerI();

    /// At the client: fills `message`, the reply of `binding`, from the envelope in `stream`, and
    /// sets its bus header if there is one. What is read belongs to the message's registry, also
    /// what was read before a failure.
    /// @throws ZELAssertError `message` is null; or a precondition broke while reading
    /// @throws KORVASOAPFaultException the envelope holds a fault, which the exception carries
    /// @throws KORVAException 0xEA441F8B: the envelope is not well-formed; 0xEA46D8C9: it is not
    ///     SOAP 1.1; 0xEA4F0001: it exceeds a limit; 0xEA41BF21: a fault has no such child; and the
    ///     failures that KORVASchemaTypeIContentHandler tells of
    /// @throws ZELOutOfMemoryError no memory is left
    /// @throws ZELStdExceptionError any other standard exception
    /// A ZELThrowable of the stream passes through. The trace line of this operation tells line,
    /// column and element of a failure.
    virtual void parse(BRIMInputStream& stream, KORVAPortTypeBinding& binding,
                       KORVAMessageI* message) = 0;

    /// At the server: makes a binding with a filled input message from the envelope in `stream`.
    /// The namespace of the operation's element tells the port type; the first in the list wins.
    /// What is read lives as long as the input message's registry.
    /// @throws ZELAssertError `supportedPortTypes` is empty; the body has no operation
    /// @throws KORVASOAPFaultException as above
    /// @throws KORVAException as above; also 0xEA456BB1: no port type has the namespace;
    ///     0xEA4112C6: it has no such operation
    /// @throws ZELOutOfMemoryError, ZELStdExceptionError as above
    virtual void parse(BRIMInputStream& stream,
                       const std::vector<KORVAPortTypeI*>& supportedPortTypes,
                       ZELSmartPointer<KORVAPortTypeBinding>& result) = 0;

    /// The bus header of the last parse, also of one that failed behind it; null if there was none.
    /// Lives until the next parse, or as long as the registry of the message.
    virtual KORVAHalyardHeader* getHeader() const = 0;

    /// Who is told of references to attachments in further parses; null, as at first, refuses them.
    /// Not owned. Each parse clears it first.
    virtual void setAttachmentHandler(KORVA_AttachmentHandler* handler) = 0;

    KORVASOAPMessageIDeserializerI(const KORVASOAPMessageIDeserializerI&) = delete;
    KORVASOAPMessageIDeserializerI& operator=(const KORVASOAPMessageIDeserializerI&) = delete;

protected:
    KORVASOAPMessageIDeserializerI() = default;
};
