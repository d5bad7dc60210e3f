#include "korva/KORVASOAPMessageIDeserializer.h"

#include "soap/read/MessageReader.h"
#include "soap/read/XmlReader.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

using korva::XmlReader;

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
    korva::ReplyTarget target(binding, *pMsg);
    korva::MessageReader reader(target);
    parse(stream, reader, m_observer);
    throwFault(reader);
}

void KORVASOAPMessageIDeserializer::parse(BRIMInputStream& stream,
                                          const std::vector<KORVAPortTypeI*>& supportedPortTypes,
                                          ZELSmartPointer<KORVAPortTypeBinding>& result) {
    m_header = nullptr;
    const auto* const m_supportedPortTypes = &supportedPortTypes;
    ZEL_ASSERT(m_supportedPortTypes->size() > 0);
    korva::RequestTarget target(supportedPortTypes);
    korva::MessageReader reader(target);
    m_objectRegistry = KORVAObjectRegistryFactory::getInstance().create();
    parse(stream, reader, m_observer);
    throwFault(reader);
    result = reader.binding();
    result->getInputMessage().setObjectRegistry(m_objectRegistry.get());
}

void KORVASOAPMessageIDeserializer::parse(BRIMInputStream& stream, korva::MessageReader& reader,
                                          KORVA_ReadingObserver* observer) {
    /// A caller can ask for the header after a failure, too.
    struct HeaderNote {
        KORVAHalyardHeader*& header;
        const korva::MessageReader& reader;
        ~HeaderNote() { header = reader.header(); }
    };
    const HeaderNote note{m_header, reader};
    // What an earlier message left in it may refer from objects that are gone.
    if (m_attachmentHandler != nullptr) m_attachmentHandler->clear();
    reader.context().attachmentHandler = m_attachmentHandler;
    reader.context().registry = m_objectRegistry.get();
    reader.setRules(m_policy, observer, m_reader->limits());
    m_reader->parse(
        stream, reader, reader.context().findings,
        {"KORVASOAPMessageIDeserializer::parse", "KORVASOAPMessageIDeserializer::parse()"});
}

void KORVASOAPMessageIDeserializer::throwFault(const korva::MessageReader& reader) const {
    if (KORVASOAPFault* const fault = reader.fault())
        ZEL_THROW(KORVASOAPFaultException(reader.header(), *fault, m_objectRegistry.get()),
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

void KORVASOAPMessageIDeserializer::setMaximumStartTag(std::size_t bytes) {
    m_reader->limits().startTag = bytes;
}

void KORVASOAPMessageIDeserializer::setMaximumAttributes(std::size_t attributes) {
    m_reader->limits().attributes = attributes;
}

void KORVASOAPMessageIDeserializer::setMaximumDeclarations(std::size_t declarations) {
    m_reader->limits().declarations = declarations;
}

void KORVASOAPMessageIDeserializer::setMaximumEntityNesting(std::size_t entities) {
    m_reader->limits().entityNesting = entities;
}

void KORVASOAPMessageIDeserializer::setMaximumExpandedText(std::size_t units) {
    m_reader->limits().expandedText = units;
}

void KORVASOAPMessageIDeserializer::setRefuseDocumentType(bool refuse) {
    m_reader->limits().refuseDocumentType = refuse;
}

void KORVASOAPMessageIDeserializer::setMaximumNames(std::size_t names) {
    m_reader->limits().names = names;
}

void KORVASOAPMessageIDeserializer::setMaximumReferences(std::size_t references) {
    m_reader->limits().references = references;
}

void KORVASOAPMessageIDeserializer::setPolicy(const KORVA_ReadingPolicy& policy) {
    m_policy = policy;
}

void KORVASOAPMessageIDeserializer::setObserver(KORVA_ReadingObserver* observer) {
    m_observer = observer;
}
