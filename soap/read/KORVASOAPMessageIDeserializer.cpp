#include "korva/KORVASOAPMessageIDeserializer.h"

#include "soap/read/XmlReader.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVAMessageIContentHandler.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVASOAPFaultException.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

using korva::XmlReader;

KORVASOAPMessageIDeserializerI::~KORVASOAPMessageIDeserializerI() = default;

KORVASOAPMessageIDeserializer::KORVASOAPMessageIDeserializer()
    : m_header(nullptr), m_attachmentHandler(nullptr) {
    try {
        m_reader.reset(new XmlReader);
    }
    ZEL_CATCH("KORVASOAPMessageIDeserializer::KORVASOAPMessageIDeserializer");
}

KORVASOAPMessageIDeserializer::~KORVASOAPMessageIDeserializer() = default;

void KORVASOAPMessageIDeserializer::parse(BRIMInputStream& stream, KORVAPortTypeBinding& binding,
                                          KORVAMessageI* pMsg) {
    ZEL_ASSERT(pMsg);
    m_header = nullptr;
    m_objectRegistry = pMsg->getObjectRegistry();
    KORVAMessageIContentHandler handler(binding, pMsg, m_converter);
    parse(stream, handler);
}

void KORVASOAPMessageIDeserializer::parse(BRIMInputStream& stream,
                                          const std::vector<KORVAPortTypeI*>& supportedPortTypes,
                                          ZELSmartPointer<KORVAPortTypeBinding>& result) {
    m_header = nullptr;
    KORVAMessageIContentHandler handler(supportedPortTypes, m_converter);
    m_objectRegistry = KORVAObjectRegistryFactory::getInstance().create();
    parse(stream, handler);
    result = handler.getBinding();
    result->getInputMessage().setObjectRegistry(m_objectRegistry.get());
}

void KORVASOAPMessageIDeserializer::parse(BRIMInputStream& stream,
                                          KORVAMessageIContentHandler& handler) {
    /// A caller can ask for the header after a failure, too.
    struct HeaderNote {
        KORVAHalyardHeader*& header;
        const KORVAMessageIContentHandler& handler;
        ~HeaderNote() { header = handler.getHeader(); }
    };
    const HeaderNote note{m_header, handler};
    handler.setAttachmentHandler(m_attachmentHandler);
    handler.setObjectRegistry(m_objectRegistry.get());
    m_converter.reset();
    m_reader->parse(
        stream, handler, nullptr,
        {"KORVASOAPMessageIDeserializer::parse", "KORVASOAPMessageIDeserializer::parse()"});
    if (KORVASOAPFault* const fault = handler.getFault())
        ZEL_THROW(KORVASOAPFaultException(handler.getHeader(), *fault, m_objectRegistry.get()),
                  "KORVASOAPMessageIDeserializer::parse()");
}

KORVAHalyardHeader* KORVASOAPMessageIDeserializer::getHeader() const {
    return m_header;
}

void KORVASOAPMessageIDeserializer::setAttachmentHandler(KORVA_AttachmentHandler* handler) {
    m_attachmentHandler = handler;
}

void KORVASOAPMessageIDeserializer::setMaximumDepth(std::size_t elements) {
    m_reader->limits().depth = elements;
}

void KORVASOAPMessageIDeserializer::setMaximumText(std::size_t units) {
    m_reader->limits().text = units;
}

void KORVASOAPMessageIDeserializer::setMaximumEntityExpansions(std::size_t expansions) {
    m_reader->limits().entityExpansions = expansions;
}
