#include "soap/read/MessageReader.h"

#include "core/NumberedError.h"
#include "soap/read/FoundInstead.h"
#include "soap/read/PortTypeAdvice.h"

#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVASOAPFault.h>
#include <zel/ZELAssert.h>

#include <string>

namespace korva {

namespace {

// The names under which failures are told are published.
constexpr const char* startElementLabel = "KORVAMessageIContentHandler::startElement";

constexpr std::string_view busHeader = "halyardHeader";

bool isOfEnvelope(const Element& element, std::string_view localName) {
    return localName == element.localName &&
           element.uri == KORVAI18NRes::getView(KORVAI18NRes::eSoapEnvelopeNamespace);
}

}  // namespace

KORVAPortTypeBinding* MessageReader::binding() const {
    return m_givenBinding != nullptr ? m_givenBinding : m_binding.get();
}

// ----- starts of elements -----

void MessageReader::startElement(const Element& element) {
    KORVAObjectRegistryI* const m_objectRegistry = m_context.registry;
    ZEL_ASSERT(m_objectRegistry);
    switch (m_place) {
        case Place::Outside: startEnvelope(element); break;
        case Place::Envelope: startFrame(element); break;
        case Place::Header: startEntry(element); break;
        case Place::Body: startOperation(element); break;
        case Place::Operation: startParameter(element); break;
        case Place::Entry:
        case Place::Parameter:
            ++m_depth;
            ZEL_ASSERT(m_schemaTypeContentHandler);
            m_schemaTypeContentHandler->startElement(element);
            break;
        case Place::Skipped: ++m_depth; break;
    }
}

void MessageReader::startEnvelope(const Element& element) {
    if (!isOfEnvelope(element, "Envelope"))
        raise({{eKORVA_WrongEnvelope, {"Envelope"}},
               {eKORVA_FoundInstead, {foundInsteadOfEnvelope(element).c_str()}}},
              ZEL_LOCATION, startElementLabel);
    m_place = Place::Envelope;
}

void MessageReader::startFrame(const Element& element) {
    if (isOfEnvelope(element, "Body"))
        m_place = Place::Body;
    else if (isOfEnvelope(element, "Header"))
        m_place = Place::Header;
    else
        KORVA_RAISE(eKORVA_WrongEnvelope, startElementLabel, "Body");
}

void MessageReader::startEntry(const Element& element) {
    m_place = Place::Entry;
    m_depth = 1;
    startValue(element, element.localName == busHeader ? KORVASchemaTypeI::eKORVAHalyardHeader
                                                       : KORVASchemaTypeI::e_Unknown);
}

void MessageReader::startOperation(const Element& element) {
    const bool isFault = m_fault == nullptr && isOfEnvelope(element, "Fault");
    if (m_hasOperation && !isFault) {
        m_place = Place::Skipped;
        m_depth = 1;
        return;
    }
    m_hasOperation = true;
    m_place = Place::Operation;
    m_parameterCount = 0;
    // A binding keeps the pointer.
    m_operationName = m_context.texts.keep(
        element.localName, std::string_view(element.localName).size(), *m_context.registry);
    if (isFault)
        startFault();
    else if (m_givenBinding == nullptr)
        findPortType(element);
}

/// The children of a fault then come as parameters.
void MessageReader::startFault() {
    m_fault = m_context.registry->make<KORVASOAPFault>();
}

void MessageReader::findPortType(const Element& element) {
    ZEL_ASSERT(m_supportedPortTypes);
    for (KORVAPortTypeI* const portType : *m_supportedPortTypes)
        if (element.uri == portType->getBoundNamespace()) {
            m_boundPortType = portType;
            return;
        }
    // The label is as published.
    refusePortType(m_operationName, element.uri, *m_supportedPortTypes,
                   "KORVAMessageIContentHandler::characters");
}

void MessageReader::startParameter(const Element& element) {
    m_place = Place::Parameter;
    m_depth = 1;
    ++m_parameterCount;
    m_parameterName = element.localName;
    ObjectType expectedType = KORVASchemaTypeI::e_Unknown;
    if (m_fault != nullptr)
        expectedType = m_fault->getChildType(m_parameterName);
    else if (m_boundPortType != nullptr)
        expectedType = m_boundPortType->resolveOperationParamType(m_operationName, m_parameterName);
    else if (m_msgObj != nullptr)
        expectedType = m_msgObj->getChildType(messageParameterName(m_parameterName));
    ZEL_ASSERT(m_schemaTypeContentHandler == NULL);
    startValue(element, expectedType);
}

void MessageReader::startValue(const Element& element, ObjectType expectedType) {
    m_value.clear();
    m_value.startRoot(element, expectedType);
    m_schemaTypeContentHandler = &m_value;
}

/// The message's name for the parameter that is being read: a reply's first element may be called
/// anything.
const char* MessageReader::messageParameterName(const char* name) const {
    if (m_parameterCount != 1) return name;
    const KORVAMessageFactory::KORVAParamDescriptor* const first =
        KORVAMessageFactory::getInstance().getParameterTypes(m_msgObj->getMessageType());
    return first != nullptr && first->name != nullptr ? first->name : name;
}

void MessageReader::text(std::string_view piece) {
    if (m_schemaTypeContentHandler != nullptr) m_schemaTypeContentHandler->text(piece);
}

// ----- ends of elements -----

void MessageReader::endElement() {
    switch (m_place) {
        case Place::Outside: break;
        case Place::Envelope: m_place = Place::Outside; break;
        case Place::Header:
        case Place::Body: m_place = Place::Envelope; break;
        case Place::Operation: m_place = Place::Body; break;
        case Place::Entry:
            if (m_depth == 1)
                endEntry();
            else
                value().endElement();
            if (--m_depth == 0) m_place = Place::Header;
            break;
        case Place::Parameter:
            if (m_depth == 1)
                endParameter();
            else
                value().endElement();
            if (--m_depth == 0) m_place = Place::Operation;
            break;
        case Place::Skipped:
            if (--m_depth == 0) m_place = Place::Body;
            break;
    }
}

ValueReader& MessageReader::value() const {
    ZEL_ASSERT(m_schemaTypeContentHandler != NULL);
    return *m_schemaTypeContentHandler;
}

void MessageReader::endEntry() {
    ValueReader& entry = value();
    if (entry.type() == KORVASchemaTypeI::eKORVAHalyardHeader)
        m_header = static_cast<KORVAHalyardHeader*>(entry.value());
    m_schemaTypeContentHandler = nullptr;
}

void MessageReader::endParameter() {
    const ObjectType type = value().type();
    void* const object = value().value();
    if (m_fault != nullptr) {
        // A nil child stays unset.
        if (object != nullptr) m_fault->setChildObject(m_parameterName, object, type, nullptr);
    } else if (m_givenBinding == nullptr) {
        m_parameters.push_back(std::make_unique<KORVAMessageParam>(m_parameterName, type, object));
    } else {
        if (m_msgObj == nullptr) ZEL_ASSERT_NAMED(false, "Inconsistent object state.");
        // An element that is none of the message's parameters goes no further.
        const char* const parameter = messageParameterName(m_parameterName);
        if (m_msgObj->getChildType(parameter) != KORVASchemaTypeI::e_Unknown)
            m_msgObj->setChildObject(parameter, object, type);
    }
    m_schemaTypeContentHandler = nullptr;
}

// ----- documents and prefixes -----

void MessageReader::startDocument() {
    KORVAObjectRegistryI* const m_objectRegistry = m_context.registry;
    ZEL_ASSERT(m_objectRegistry);
}

void MessageReader::endDocument() {
    const auto getNamespaceMapping = [this]() -> KORVANamespaceMapping& { return m_mapping; };
    // clang-format off
    ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, "There are namespace prefixes left on the mapping stack.");
    // clang-format on
    if (m_fault != nullptr) return;
    if (m_givenBinding != nullptr)
        // Also without one: the message may have been used before.
        m_msgObj->setHalyardHeader(m_header);
    else
        bind();
}

void MessageReader::bind() {
    ZEL_ASSERT(m_boundPortType);
    std::vector<KORVAMessageParam*> parameters;
    parameters.reserve(m_parameters.size());
    for (const auto& parameter : m_parameters)
        parameters.push_back(parameter.get());
    m_binding = m_boundPortType->createPortTypeBinding(m_operationName, parameters);
    m_binding->getInputMessage().setHalyardHeader(m_header);
    m_parameters.clear();
}

void MessageReader::startPrefix(const char* prefix, const char* uri) {
    m_mapping.addBorrowed(prefix, uri);
}

void MessageReader::endPrefix(const char* prefix) {
    m_mapping.remove(prefix);
}

}  // namespace korva
