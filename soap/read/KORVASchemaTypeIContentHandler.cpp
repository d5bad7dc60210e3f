#include "korva/KORVASchemaTypeIContentHandler.h"

#include "soap/read/RootReader.h"
#include "soap/read/WideEvents.h"

#include <zel/I18NConverter.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler(
    void** resultSlot, KORVANamespaceMapping* namespaceMapping, KORVAObjectRegistryI* registry,
    I18NConverter& converter)
    : KORVAContentHandler(converter), m_resultSlot(resultSlot) {
    ZEL_TRY {
        m_reader.reset(new korva::RootReader(namespaceMapping, registry));
        m_events.reset(new korva::WideEvents(converter));
        return;
    }
    ZEL_CATCH("KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler");
}

KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler(
    const XMLCh* localName, const xercesc::Attributes& attributes,
    KORVANamespaceMapping* namespaceMapping, KORVAObjectRegistryI* registry,
    I18NConverter& converter, ObjectType expectedType)
    : KORVASchemaTypeIContentHandler(nullptr, namespaceMapping, registry, converter) {
    checkAttributes(attributes);
    m_events->startText();
    m_reader->startRoot(m_events->element(nullptr, localName, localName, attributes), expectedType);
}

KORVASchemaTypeIContentHandler::~KORVASchemaTypeIContentHandler() = default;

void KORVASchemaTypeIContentHandler::setAttachmentHandler(KORVA_AttachmentHandler* handler) {
    m_reader->context().attachmentHandler = handler;
}

void KORVASchemaTypeIContentHandler::setPolicy(const KORVA_ReadingPolicy& policy,
                                               KORVA_ReadingObserver* observer,
                                               std::size_t maximumReferences) {
    ZEL_TRY {
        korva::ReadLimits limits;
        limits.references = maximumReferences;
        m_reader->setRules(policy, observer, limits);
        m_reader->followReferences();
        return;
    }
    ZEL_CATCH("KORVASchemaTypeIContentHandler::setPolicy");
}

KORVASchemaTypeIContentHandler::ObjectType KORVASchemaTypeIContentHandler::getParamType() const {
    return m_reader->value().type();
}

void* KORVASchemaTypeIContentHandler::getParamValue() {
    m_events->endText(*m_reader);
    return m_reader->rootValue();
}

bool KORVASchemaTypeIContentHandler::takesText() const {
    return m_reader->value().takesText();
}

void KORVASchemaTypeIContentHandler::startDocument() {
    m_reader->startDocument();
}

void KORVASchemaTypeIContentHandler::endDocument() {
    m_reader->endDocument();
}

void KORVASchemaTypeIContentHandler::startElement(const XMLCh* uri, const XMLCh* localName,
                                                  const XMLCh* qName,
                                                  const xercesc::Attributes& attributes) {
    checkAttributes(attributes);
    m_events->startText();
    m_reader->startElement(m_events->element(uri, localName, qName, attributes));
}

void KORVASchemaTypeIContentHandler::endElement(const XMLCh*, const XMLCh*, const XMLCh*) {
    m_events->endText(*m_reader);
    m_reader->endElement();
    if (m_resultSlot != nullptr && m_reader->value().isEmpty()) *m_resultSlot = m_reader->result();
}

void KORVASchemaTypeIContentHandler::characters(const XMLCh* text, XMLSize_t length) {
    m_events->text(text, length, *m_reader);
}

// The prefixes are copied: the mapping may outlive this handler.

void KORVASchemaTypeIContentHandler::startPrefixMapping(const XMLCh* xmlPrefix, const XMLCh* uri) {
    ZEL_ASSERT(xmlPrefix);
    addPrefix(m_reader->mapping(), xmlPrefix, uri);
}

void KORVASchemaTypeIContentHandler::endPrefixMapping(const XMLCh* xmlPrefix) {
    ZEL_ASSERT(xmlPrefix);
    removePrefix(m_reader->mapping(), xmlPrefix);
}
