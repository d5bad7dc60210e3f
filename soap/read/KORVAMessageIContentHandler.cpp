#include "korva/KORVAMessageIContentHandler.h"

#include "core/NumberedError.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>
#include <memory>
#include <new>

using korva::ReadingContext;

namespace {

constexpr const char* startElementLabel = "KORVAMessageIContentHandler::startElement";

bool isOfEnvelope(const XMLCh* uri) {
    return korva::equals(uri, KORVAI18NRes::getView(KORVAI18NRes::eSoapEnvelopeNamespace));
}

}  // namespace

KORVAMessageIContentHandler::KORVAMessageIContentHandler(I18NConverter& converter)
    : KORVAContentHandler(converter) {
    try {
        m_inScopePrefixMappings.reset(new KORVANamespaceMapping);
        m_context.reset(new ReadingContext);
    }
    ZEL_CATCH("KORVAMessageIContentHandler::KORVAMessageIContentHandler");
}

KORVAMessageIContentHandler::KORVAMessageIContentHandler(
    const std::vector<KORVAPortTypeI*>& supportedPortTypes, I18NConverter& converter)
    : KORVAMessageIContentHandler(converter) {
    m_supportedPortTypes = &supportedPortTypes;
    ZEL_ASSERT(m_supportedPortTypes->size() > 0);
}

KORVAMessageIContentHandler::KORVAMessageIContentHandler(KORVAPortTypeBinding& binding,
                                                         KORVAMessageI* message,
                                                         I18NConverter& converter)
    : KORVAMessageIContentHandler(converter) {
    m_givenBinding = &binding;
    m_msgObj = message;
    ZEL_ASSERT(m_msgObj);
}

KORVAMessageIContentHandler::~KORVAMessageIContentHandler() = default;

KORVAPortTypeBinding* KORVAMessageIContentHandler::getBinding() const {
    return m_givenBinding != nullptr ? m_givenBinding : m_binding.get();
}

KORVANamespaceMapping& KORVAMessageIContentHandler::getNamespaceMapping() const {
    ZEL_ASSERT(m_inScopePrefixMappings);
    return *m_inScopePrefixMappings;
}

/// A copy that lives as long as the objects that are read: a binding keeps the pointer.
const char* KORVAMessageIContentHandler::keepText(std::string_view text) {
    return m_context->texts.keep(text.data(), text.size(), *m_objectRegistry);
}

// ----- elements -----

void KORVAMessageIContentHandler::startElement(const XMLCh* uri, const XMLCh* localName,
                                               const XMLCh* qName,
                                               const xercesc::Attributes& attributes) {
    ++m_depth;
    ZEL_ASSERT(m_objectRegistry);
    if (m_depth <= 2) return startFrame(uri, localName);
    if (m_section == Section::Header && m_depth == 3) {
        if (m_schemaTypeContentHandler != nullptr) return;
        return startValue(localName, attributes,
                          korva::equals(localName, "halyardHeader")
                              ? KORVASchemaTypeI::eKORVAHalyardHeader
                              : KORVASchemaTypeI::e_Unknown);
    }
    if (m_section == Section::Body && m_depth == 3) return startOperation(uri, localName);
    if (m_section == Section::Body && m_depth == 4) return startParameter(localName, attributes);
    ZEL_ASSERT(m_schemaTypeContentHandler);
    m_schemaTypeContentHandler->startElement(uri, localName, qName, attributes);
}

void KORVAMessageIContentHandler::startFrame(const XMLCh* uri, const XMLCh* localName) {
    if (m_depth == 1) {
        if (!isOfEnvelope(uri) || !korva::equals(localName, "Envelope"))
            KORVA_RAISE(eKORVA_WrongEnvelope, startElementLabel, "Envelope");
    } else if (isOfEnvelope(uri) && korva::equals(localName, "Body")) {
        m_section = Section::Body;
    } else if (isOfEnvelope(uri) && korva::equals(localName, "Header")) {
        m_section = Section::Header;
    } else {
        KORVA_RAISE(eKORVA_WrongEnvelope, startElementLabel, "Body");
    }
}

void KORVAMessageIContentHandler::startOperation(const XMLCh* uri, const XMLCh* localName) {
    m_parameterCount = 0;
    m_operationName = keepText(m_context->names.find(localName));
    if (isOfEnvelope(uri) && korva::equals(localName, "Fault")) {
        // Its children then come as parameters.
        auto fault = std::make_unique<KORVASOAPFault>();
        m_objectRegistry->registerPointer(fault.get());
        m_fault = fault.release();
        return;
    }
    if (m_givenBinding != nullptr) return;

    ZEL_ASSERT(m_supportedPortTypes);
    const std::string operationNamespace = korva::utf8(uri);
    m_boundPortType = nullptr;
    for (KORVAPortTypeI* const portType : *m_supportedPortTypes)
        if (operationNamespace == portType->getBoundNamespace()) {
            m_boundPortType = portType;
            return;
        }
    KORVA_RAISE(eKORVA_NoPortType, "KORVAMessageIContentHandler::characters", m_operationName,
                operationNamespace.c_str());
}

void KORVAMessageIContentHandler::startParameter(const XMLCh* localName,
                                                 const xercesc::Attributes& attributes) {
    ++m_parameterCount;
    const char* const name = m_context->names.find(localName);
    KORVASchemaTypeI::ObjectType expectedType = KORVASchemaTypeI::e_Unknown;
    if (m_fault != nullptr)
        expectedType = m_fault->getChildType(name);
    else if (m_boundPortType != nullptr)
        expectedType = m_boundPortType->resolveOperationParamType(m_operationName, name);
    else if (m_msgObj != nullptr)
        expectedType = m_msgObj->getChildType(messageParameterName(name));
    ZEL_ASSERT(m_schemaTypeContentHandler == NULL);
    startValue(localName, attributes, expectedType);
}

/// The message's name for the parameter that is being read: a reply's first element may be called
/// anything.
const char* KORVAMessageIContentHandler::messageParameterName(const char* name) const {
    if (m_parameterCount != 1) return name;
    const KORVAMessageFactory::KORVAParamDescriptor* const first =
        KORVAMessageFactory::getInstance().getParameterTypes(m_msgObj->getMessageType());
    return first != nullptr && first->name != nullptr ? first->name : name;
}

void KORVAMessageIContentHandler::startValue(const XMLCh* localName,
                                             const xercesc::Attributes& attributes,
                                             KORVASchemaTypeI::ObjectType expectedType) {
    m_schemaTypeContentHandler.reset(new KORVASchemaTypeIContentHandler(
        localName, attributes, m_inScopePrefixMappings.get(), m_objectRegistry, converter(),
        expectedType, *m_context));
    m_schemaTypeContentHandler->setAttachmentHandler(m_attachmentHandler);
}

void KORVAMessageIContentHandler::endElement(const XMLCh* uri, const XMLCh* localName,
                                             const XMLCh* qName) {
    if (m_depth == 3 && m_section == Section::Header) {
        endHeaderEntry();
    } else if (m_depth == 4 && m_section == Section::Body) {
        endParameter(localName);
    } else if (m_depth > 3) {
        ZEL_ASSERT(m_schemaTypeContentHandler != NULL);
        m_schemaTypeContentHandler->endElement(uri, localName, qName);
    }
    --m_depth;
}

void KORVAMessageIContentHandler::endHeaderEntry() {
    ZEL_ASSERT(m_schemaTypeContentHandler != NULL);
    if (m_schemaTypeContentHandler->getParamType() == KORVASchemaTypeI::eKORVAHalyardHeader)
        m_header = static_cast<KORVAHalyardHeader*>(m_schemaTypeContentHandler->getParamValue());
    m_schemaTypeContentHandler.reset();
}

void KORVAMessageIContentHandler::endParameter(const XMLCh* localName) {
    ZEL_ASSERT(m_schemaTypeContentHandler != NULL);
    const KORVASchemaTypeI::ObjectType type = m_schemaTypeContentHandler->getParamType();
    void* const value = m_schemaTypeContentHandler->getParamValue();
    const char* const name = m_context->names.find(localName);
    if (m_fault != nullptr) {
        // A nil child stays unset.
        if (value != nullptr) m_fault->setChildObject(name, value, type, nullptr);
    } else if (m_givenBinding == nullptr) {
        m_parameters.push_back(
            ZELOwner<KORVAMessageParam>(new KORVAMessageParam(name, type, value)));
    } else {
        if (m_msgObj == nullptr) ZEL_ASSERT_NAMED(false, "Inconsistent object state.");
        // An element that is none of the message's parameters goes no further.
        const char* const parameter = messageParameterName(name);
        if (m_msgObj->getChildType(parameter) != KORVASchemaTypeI::e_Unknown)
            m_msgObj->setChildObject(parameter, value, type);
    }
    m_schemaTypeContentHandler.reset();
}

void KORVAMessageIContentHandler::characters(const XMLCh* text, XMLSize_t length) {
    if (m_schemaTypeContentHandler != nullptr) m_schemaTypeContentHandler->characters(text, length);
}

// ----- documents and prefixes -----

void KORVAMessageIContentHandler::startDocument() {
    ZEL_ASSERT(m_objectRegistry);
}

void KORVAMessageIContentHandler::endDocument() {
    // clang-format off
    ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, "There are namespace prefixes left on the mapping stack.");
    // clang-format on
    if (m_fault != nullptr) return;
    if (m_givenBinding != nullptr) {
        if (m_header != nullptr) m_msgObj->setHalyardHeader(m_header);
        return;
    }
    ZEL_ASSERT(m_boundPortType);
    std::vector<KORVAMessageParam*> parameters;
    parameters.reserve(m_parameters.size());
    for (const auto& parameter : m_parameters)
        parameters.push_back(parameter.get());
    m_binding = m_boundPortType->createPortTypeBinding(m_operationName, parameters);
    m_binding->getInputMessage().setHalyardHeader(m_header);
    m_parameters.clear();
}

void KORVAMessageIContentHandler::startPrefixMapping(const XMLCh* xmlPrefix, const XMLCh* uri) {
    // clang-format off
    ZEL_ASSERT_NAMED(xmlPrefix != NULL, "Received NULL xmlPrefix in KORVAMessageIContentHandler::startPrefixMapping()");
    // clang-format on
    addPrefix(getNamespaceMapping(), xmlPrefix, uri);
}

void KORVAMessageIContentHandler::endPrefixMapping(const XMLCh* xmlPrefix) {
    // clang-format off
    ZEL_ASSERT_NAMED(xmlPrefix != NULL, "Received NULL xmlPrefix in KORVAMessageIContentHandler::endPrefixMapping()");
    // clang-format on
    removePrefix(getNamespaceMapping(), xmlPrefix);
}
