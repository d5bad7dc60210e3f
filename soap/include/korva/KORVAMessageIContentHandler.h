/// The reader of an envelope.
#pragma once

#include <korva/KORVAContentHandler.h>
#include <zel/ZELOwner.h>

#include <vector>

class KORVAHalyardHeader;
class KORVAMessageI;
class KORVAObjectRegistryI;
class KORVAPortTypeBinding;
class KORVAPortTypeI;
class KORVASOAPFault;
class KORVA_AttachmentHandler;

namespace korva {
class MessageReader;
class OperationTarget;
class WideEvents;
}  // namespace korva

/// Follows the SAX2 events of a SOAP 1.1 envelope: checks its frame, finds the operation, and gives
/// each header entry and each parameter to a KORVASchemaTypeIContentHandler. Made for one envelope.
///
/// At the server it is given the port types that the process offers, and makes a binding with a
/// filled input message. At the client it is given the message to fill. If the body holds a fault
/// instead, either makes a KORVASOAPFault, no binding is made and no message is filled. The body's
/// first element is the operation; what follows is skipped, unless it is a fault.
///
/// Failures beside those of the values are KORVAExceptions: 0xEA46D8C9 (the frame), 0xEA456BB1 (no
/// port type has the operation's namespace), 0xEA41BF21 (a fault has no such child), and what the
/// port type raises when the operation is bound.
class KORVA_EXPORT KORVAMessageIContentHandler : public KORVAContentHandler {
public:
    /// At the server. The vector and `converter` must outlive the handler.
    /// @throws ZELAssertError `supportedPortTypes` is empty
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAMessageIContentHandler(const std::vector<KORVAPortTypeI*>& supportedPortTypes,
                                I18NConverter& converter);

    /// At the client. Binding, message and `converter` must outlive the handler.
    /// @throws ZELAssertError `message` is null
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAMessageIContentHandler(KORVAPortTypeBinding& binding, KORVAMessageI* message,
                                I18NConverter& converter);

    ~KORVAMessageIContentHandler() override;

    /// The owner of all that is read, which must outlive the handler; due before the parse.
    void setObjectRegistry(KORVAObjectRegistryI* registry);
    KORVAObjectRegistryI* getObjectRegistry() const;

    /// Who is told of references to attachments; null, as at first, refuses them. Not owned.
    void setAttachmentHandler(KORVA_AttachmentHandler* handler);
    KORVA_AttachmentHandler* getAttachmentHandler() const;

    /// The bus header as far as it was read, or null. Belongs to the registry.
    KORVAHalyardHeader* getHeader() const;

    /// The fault that the body holds, as far as it was read, or null. Belongs to the registry.
    KORVASOAPFault* getFault() const;

    /// The binding that was given, or the one that the end of the envelope made; null before that.
    KORVAPortTypeBinding* getBinding() const;

    void startDocument() override;
    void endDocument() override;
    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) override;
    void characters(const XMLCh* text, XMLSize_t length) override;
    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override;
    void endPrefixMapping(const XMLCh* prefix) override;

private:
    ZELOwner<korva::OperationTarget> m_target;
    ZELOwner<korva::MessageReader> m_reader;
    ZELOwner<korva::WideEvents> m_events;
};
