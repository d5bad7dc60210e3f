// The reader of an envelope.
#pragma once

#include <korva/KORVAContentHandler.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELOwner.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>
#include <string_view>
#include <vector>

class KORVAHalyardHeader;
class KORVAMessageI;
class KORVAMessageParam;
class KORVANamespaceMapping;
class KORVAObjectRegistryI;
class KORVAPortTypeI;
class KORVASOAPFault;
class KORVASchemaTypeIContentHandler;
class KORVA_AttachmentHandler;

namespace korva {
struct ReadingContext;
}

/// Follows the SAX2 events of a SOAP 1.1 envelope: checks its frame, finds the operation, and gives
/// each header entry and each parameter to a KORVASchemaTypeIContentHandler. Made for one envelope.
///
/// At the server it is given the port types that the process offers, and makes a binding with a
/// filled input message. At the client it is given the message to fill. If the body holds a fault
/// instead, either makes a KORVASOAPFault, no binding is made and no message is filled.
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
    void setObjectRegistry(KORVAObjectRegistryI* registry) { m_objectRegistry = registry; }
    KORVAObjectRegistryI* getObjectRegistry() const { return m_objectRegistry; }

    /// Who is told of references to attachments; null, as at first, refuses them. Not owned.
    void setAttachmentHandler(KORVA_AttachmentHandler* handler) { m_attachmentHandler = handler; }
    KORVA_AttachmentHandler* getAttachmentHandler() const { return m_attachmentHandler; }

    /// The bus header as far as it was read, or null. Belongs to the registry.
    KORVAHalyardHeader* getHeader() const { return m_header; }

    /// The fault that the body holds, as far as it was read, or null. Belongs to the registry.
    KORVASOAPFault* getFault() const { return m_fault; }

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
    enum class Section { None, Header, Body };

    explicit KORVAMessageIContentHandler(I18NConverter& converter);

    KORVANamespaceMapping& getNamespaceMapping() const;
    const char* keepText(std::string_view text);

    void startFrame(const XMLCh* uri, const XMLCh* localName);
    void startOperation(const XMLCh* uri, const XMLCh* localName);
    void startParameter(const XMLCh* localName, const xercesc::Attributes& attributes);
    void startValue(const XMLCh* localName, const xercesc::Attributes& attributes,
                    KORVASchemaTypeI::ObjectType expectedType);
    void endHeaderEntry();
    void endParameter(const XMLCh* localName);
    const char* messageParameterName(const char* name) const;

    std::size_t m_depth = 0;
    std::size_t m_parameterCount = 0;  ///< of this operation so far
    ZELOwner<KORVANamespaceMapping> m_inScopePrefixMappings;
    ZELOwner<korva::ReadingContext> m_context;
    std::vector<ZELOwner<KORVAMessageParam>> m_parameters;  ///< server: what was read
    KORVAMessageI* m_msgObj = nullptr;                      ///< client: what is filled
    Section m_section = Section::None;
    KORVAObjectRegistryI* m_objectRegistry = nullptr;
    KORVAHalyardHeader* m_header = nullptr;
    KORVASOAPFault* m_fault = nullptr;
    KORVAPortTypeBinding* m_givenBinding = nullptr;
    ZELSmartPointer<KORVAPortTypeBinding> m_binding;  ///< the one that was made
    const std::vector<KORVAPortTypeI*>* m_supportedPortTypes = nullptr;
    const char* m_operationName = nullptr;  ///< the registry's
    KORVAPortTypeI* m_boundPortType = nullptr;
    ZELOwner<KORVASchemaTypeIContentHandler> m_schemaTypeContentHandler;
    KORVA_AttachmentHandler* m_attachmentHandler = nullptr;
};
