#include "korva/KORVAMessageIContentHandler.h"

#include "soap/read/MessageReader.h"
#include "soap/read/WideEvents.h"

#include <zel/I18NConverter.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

KORVAMessageIContentHandler::KORVAMessageIContentHandler(
    const std::vector<KORVAPortTypeI*>& supportedPortTypes, I18NConverter& converter)
    : KORVAContentHandler(converter) {
    const auto* const m_supportedPortTypes = &supportedPortTypes;
    ZEL_ASSERT(m_supportedPortTypes->size() > 0);
    ZEL_TRY {
        m_target.reset(new korva::RequestTarget(supportedPortTypes));
        m_reader.reset(new korva::MessageReader(*m_target));
        m_events.reset(new korva::WideEvents(converter));
        return;
    }
    ZEL_CATCH("KORVAMessageIContentHandler::KORVAMessageIContentHandler");
}

KORVAMessageIContentHandler::KORVAMessageIContentHandler(KORVAPortTypeBinding& binding,
                                                         KORVAMessageI* message,
                                                         I18NConverter& converter)
    : KORVAContentHandler(converter) {
    const KORVAMessageI* const m_msgObj = message;
    ZEL_ASSERT(m_msgObj);
    ZEL_TRY {
        m_target.reset(new korva::ReplyTarget(binding, *message));
        m_reader.reset(new korva::MessageReader(*m_target));
        m_events.reset(new korva::WideEvents(converter));
        return;
    }
    ZEL_CATCH("KORVAMessageIContentHandler::KORVAMessageIContentHandler");
}

KORVAMessageIContentHandler::~KORVAMessageIContentHandler() = default;

void KORVAMessageIContentHandler::setObjectRegistry(KORVAObjectRegistryI* registry) {
    m_reader->context().registry = registry;
}

KORVAObjectRegistryI* KORVAMessageIContentHandler::getObjectRegistry() const {
    return m_reader->context().registry;
}

void KORVAMessageIContentHandler::setAttachmentHandler(KORVA_AttachmentHandler* handler) {
    m_reader->context().attachmentHandler = handler;
}

KORVA_AttachmentHandler* KORVAMessageIContentHandler::getAttachmentHandler() const {
    return m_reader->context().attachmentHandler;
}

KORVAHalyardHeader* KORVAMessageIContentHandler::getHeader() const {
    return m_reader->header();
}

KORVASOAPFault* KORVAMessageIContentHandler::getFault() const {
    return m_reader->fault();
}

KORVAPortTypeBinding* KORVAMessageIContentHandler::getBinding() const {
    return m_reader->binding();
}

void KORVAMessageIContentHandler::startDocument() {
    m_reader->startDocument();
}

void KORVAMessageIContentHandler::endDocument() {
    m_reader->endDocument();
}

void KORVAMessageIContentHandler::startElement(const XMLCh* uri, const XMLCh* localName,
                                               const XMLCh* qName,
                                               const xercesc::Attributes& attributes) {
    checkAttributes(attributes);
    m_events->startText();
    m_reader->startElement(m_events->element(uri, localName, qName, attributes));
}

void KORVAMessageIContentHandler::endElement(const XMLCh*, const XMLCh*, const XMLCh*) {
    m_events->endText(*m_reader);
    m_reader->endElement();
}

void KORVAMessageIContentHandler::characters(const XMLCh* text, XMLSize_t length) {
    m_events->text(text, length, *m_reader);
}

void KORVAMessageIContentHandler::startPrefixMapping(const XMLCh* xmlPrefix, const XMLCh* uri) {
    ZEL_ASSERT_NAMED(xmlPrefix != NULL, "Received NULL xmlPrefix in KORVAMessageIContentHandler::startPrefixMapping()");
    addPrefix(m_reader->mapping(), xmlPrefix, uri);
}

void KORVAMessageIContentHandler::endPrefixMapping(const XMLCh* xmlPrefix) {
    ZEL_ASSERT_NAMED(xmlPrefix != NULL, "Received NULL xmlPrefix in KORVAMessageIContentHandler::endPrefixMapping()");
    removePrefix(m_reader->mapping(), xmlPrefix);
}
