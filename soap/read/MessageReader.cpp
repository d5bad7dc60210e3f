#include "soap/read/MessageReader.h"

#include "core/NumberedError.h"
#include "soap/read/FoundInstead.h"
#include "soap/read/RecordReader.h"

#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_String.h>
#include <zel/ZELAssert.h>

#include <cstring>
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

void MessageReader::setRules(const KORVA_ReadingPolicy& policy, KORVA_ReadingObserver* observer,
                             const ReadLimits& limits) {
    m_context.findings.policy = policy;
    m_context.findings.observer = observer;
    m_limits = &limits;
}

// ----- starts of elements -----

void MessageReader::startElement(const Element& element) {
    KORVAObjectRegistryI* const m_objectRegistry = m_context.registry;
    ZEL_ASSERT(m_objectRegistry);
    if (m_references != nullptr) m_references->weigh(1);
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
        case Place::Shared:
            if (const std::string_view id = Sharing(element).id; !id.empty())
                m_references->noteIdInRecord(id);
            m_record->addStart(element);
            ++m_depth;
            break;
        case Place::Detail:
            if (m_depth == 1 && std::strcmp(element.localName, "exception") != 0 &&
                !TypeAttributes(element, m_context.attributeNamespaces).type)
                m_isDetailForeign = true;
            m_record->addStart(element);
            ++m_depth;
            break;
        case Place::Skipped:
        case Place::NoChild: ++m_depth; break;
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
    ParameterType type;
    if (element.localName == busHeader) type.expected = KORVASchemaTypeI::eKORVAHalyardHeader;
    startValue(element, type, 0);
}

void MessageReader::startOperation(const Element& element) {
    const bool isFault = m_fault == nullptr && isOfEnvelope(element, "Fault");
    if (m_hasOperation && !isFault) return startFurther(element);
    m_hasOperation = true;
    m_place = Place::Operation;
    m_parameterCount = 0;
    m_furtherPrefixes.clear();
    if (isFault) return startFault();
    // A binding keeps the pointer.
    m_target.start(
        m_context.texts.keep(element.localName, std::string_view(element.localName).size(),
                             *m_context.registry),
        element.uri);
}

/// The children of a fault then come as parameters.
void MessageReader::startFault() {
    m_fault = m_context.registry->make<KORVASOAPFault>();
}

/// An element behind the operation: nobody's, unless others refer to it.
void MessageReader::startFurther(const Element& element) {
    m_depth = 1;
    const std::string_view id = Sharing(element).id;
    if (m_references == nullptr || id.empty()) {
        m_place = Place::Skipped;
        m_context.findings.tell(KORVA_ReadingFinding::eFurtherElement, element,
                                "it stands behind the operation");
        return;
    }
    m_place = Place::Shared;
    m_record = &m_references->record(id, std::make_unique<ElementRecord>(m_context.findings.place));
    for (const Declaration& declaration : m_furtherPrefixes)
        m_record->addPrefix(declaration.prefix, declaration.uri);
    m_furtherPrefixes.clear();
    m_record->addStart(element);
}

void MessageReader::startParameter(const Element& element) {
    ++m_parameterCount;
    m_parameterName = element.localName;
    m_depth = 1;
    if (m_fault != nullptr) return startFaultChild(element);
    m_place = Place::Parameter;
    startValue(element, m_target.typeOf(m_parameterName, m_parameterCount), m_parameterCount);
}

void MessageReader::startFaultChild(const Element& element) {
    if (m_context.findings.policy.keepsForeignDetails()) {
        const std::string_view name = element.localName;
        if (name == KORVAI18NRes::getView(KORVAI18NRes::eFaultDetail)) return startDetail(element);
        if (name != KORVAI18NRes::getView(KORVAI18NRes::eFaultCode) &&
            name != KORVAI18NRes::getView(KORVAI18NRes::eFaultString) &&
            name != KORVAI18NRes::getView(KORVAI18NRes::eFaultActor)) {
            m_place = Place::NoChild;
            m_context.findings.tell(KORVA_ReadingFinding::eSkippedElement, element,
                                    "no fault has such a child");
            return;
        }
    }
    m_place = Place::Parameter;
    startValue(element, {m_fault->getChildType(m_parameterName), KORVASchemaTypeI::e_Unknown},
               m_parameterCount);
}

/// The details come when the body ends, in one shape or as text.
void MessageReader::startDetail(const Element& element) {
    m_place = Place::Detail;
    m_isDetailForeign = false;
    m_detail = std::make_unique<ElementRecord>(m_context.findings.place);
    m_record = m_detail.get();
    for (std::size_t i = 0; i != m_mapping.size(); ++i)
        m_record->addPrefix(m_mapping.getPrefixAt(i), m_mapping.getNamespaceAt(i));
    m_record->addStart(element);
}

void MessageReader::startValue(const Element& element, ParameterType type, std::size_t number) {
    ZEL_ASSERT(m_schemaTypeContentHandler == NULL);
    m_value.clear();
    m_value.startRoot(element, type.expected, type.declared, m_roots.size());
    if (m_value.isReference()) m_roots.push_back({element.localName, number});
    m_schemaTypeContentHandler = &m_value;
}

void MessageReader::text(std::string_view piece) {
    if (m_references != nullptr) m_references->weigh(piece.size());
    if (m_schemaTypeContentHandler != nullptr)
        m_schemaTypeContentHandler->text(piece);
    else if (isRecording())
        m_record->addText(piece);
}

// ----- ends of elements -----

void MessageReader::endElement() {
    switch (m_place) {
        case Place::Outside: break;
        case Place::Envelope: m_place = Place::Outside; break;
        case Place::Header: m_place = Place::Envelope; break;
        case Place::Body:
            endBody();
            m_place = Place::Envelope;
            break;
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
        case Place::NoChild:
            if (--m_depth == 0) m_place = Place::Operation;
            break;
        case Place::Shared:
            m_record->addEnd();
            if (--m_depth == 0) m_place = Place::Body;
            break;
        case Place::Detail:
            m_record->addEnd();
            if (--m_depth == 0) m_place = Place::Operation;
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
    entry.endRoot();
    m_schemaTypeContentHandler = nullptr;
}

void MessageReader::endParameter() {
    ValueReader& parameter = value();
    const ObjectType type = parameter.type();
    void* const object = parameter.value();
    const bool isReference = parameter.isReference();
    parameter.endRoot();
    m_schemaTypeContentHandler = nullptr;
    if (!isReference) takeParameter(m_parameterName, m_parameterCount, type, object);
}

void MessageReader::takeParameter(const char* name, std::size_t number, ObjectType type,
                                  void* value) {
    if (m_fault == nullptr)
        m_target.take(name, number, type, value);
    else if (value != nullptr)
        // A nil child stays unset.
        m_fault->setChildObject(name, value, type, nullptr);
}

// ----- the end of the body -----

/// Completes what was read: all that others refer to has come.
void MessageReader::endBody() {
    m_furtherPrefixes.clear();
    if (m_references != nullptr) m_references->resolve();
    if (m_detail == nullptr) return;
    if (!readDetail()) keepDetailText();
    m_detail.reset();
}

/// Reads the details of the fault in one of the two shapes: false if they have another.
bool MessageReader::readDetail() {
    if (m_isDetailForeign) return false;
    try {
        RecordReader reader(m_context, *m_detail);
        reader.read(KORVASchemaTypeI::eKORVAFaultDetailArray);
        if (m_references != nullptr) m_references->resolve();
        if (reader.value() != nullptr)
            m_fault->setChildObject(KORVAI18NRes::getChar(KORVAI18NRes::eFaultDetail),
                                    reader.value(), reader.type(), nullptr);
        return true;
    } catch (const KORVAException&) {
        // What the details hold must not hide that there is a fault.
        if (m_context.findings.policy.refusesFindings()) throw;
        if (m_references != nullptr) m_references->forget();
        return false;
    }
}

void MessageReader::keepDetailText() {
    m_context.findings.tell(KORVA_ReadingFinding::eForeignDetail, {},
                            KORVAI18NRes::getChar(KORVAI18NRes::eFaultDetail),
                            "it has neither shape of details, and is kept as text");
    const std::string text = m_detail->toText();
    m_fault->setDetailText(m_context.texts.keep(text.c_str(), text.size(), *m_context.registry));
}

/// A parameter or the bus header that is a reference has its value.
void MessageReader::setRoot(std::size_t number, const ElementValue& value) {
    const Root& root = m_roots[number];
    if (root.number == 0) {
        if (value.type == KORVASchemaTypeI::eKORVAHalyardHeader)
            m_header = static_cast<KORVAHalyardHeader*>(value.value);
        return;
    }
    void* taken = value.value;
    if (taken != nullptr && KORVASchemaTypesFactory::isString(value.type)) {
        // Messages take texts in buffers.
        auto* const string = m_context.registry->make<KORVA_String>();
        string->appendChars(static_cast<const char*>(value.value), value.length);
        taken = string->buffer();
    }
    takeParameter(root.name, root.number, value.type, taken);
}

// ----- documents and prefixes -----

void MessageReader::startDocument() {
    KORVAObjectRegistryI* const m_objectRegistry = m_context.registry;
    ZEL_ASSERT(m_objectRegistry);
    if (!m_context.findings.policy.resolvesReferences()) return;
    m_references =
        std::make_unique<References>(m_context, *m_limits, static_cast<RootReceiver&>(*this));
    m_context.references = m_references.get();
}

void MessageReader::endDocument() {
    const auto getNamespaceMapping = [this]() -> KORVANamespaceMapping& { return m_mapping; };
    ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, "There are namespace prefixes left on the mapping stack.");
    // A header may stand behind the body.
    if (m_references != nullptr) m_references->resolve();
    if (m_fault == nullptr) m_target.finish(m_header);
}

void MessageReader::startPrefix(const char* prefix, const char* uri) {
    m_mapping.addBorrowed(prefix, uri);
    if (isRecording())
        m_record->addPrefix(prefix, uri);
    else if (m_references != nullptr && m_place == Place::Body && m_hasOperation)
        m_furtherPrefixes.push_back({prefix, uri});
}

void MessageReader::endPrefix(const char* prefix) {
    m_mapping.remove(prefix);
    if (isRecording()) m_record->addPrefixEnd(prefix);
}

}  // namespace korva
