#include "soap/read/RootReader.h"

#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistryI.h>
#include <zel/ZELAssert.h>

namespace korva {

KORVANamespaceMapping& RootReader::mapping() const {
    ZEL_ASSERT(m_inScopePrefixesToNamespaceMappings);
    return *m_inScopePrefixesToNamespaceMappings;
}

void RootReader::setRules(const KORVA_ReadingPolicy& policy, KORVA_ReadingObserver* observer,
                          const ReadLimits& limits) {
    m_context.findings.policy = policy;
    m_context.findings.observer = observer;
    m_context.findings.place = this;
    m_limits = limits;
}

void RootReader::followReferences() {
    m_context.references = nullptr;
    m_references.reset();
    if (!m_context.findings.policy.resolvesReferences()) return;
    m_references =
        std::make_unique<References>(m_context, m_limits, static_cast<RootReceiver&>(*this));
    m_context.references = m_references.get();
}

void* RootReader::rootValue() {
    void* const root = m_value.value();
    if (m_references != nullptr) {
        m_value.endRoot();
        m_references->resolve();
    }
    return root;
}

std::string RootReader::path() const {
    std::string path = m_value.path();
    if (m_value.depth() < m_startingDepth) (path += '/') += m_starting;
    return path;
}

void RootReader::startRoot(const Element& element, ObjectType expectedType) {
    m_isDocument = false;
    m_context.mapping = &mapping();
    m_value.startRoot(element, expectedType);
}

void RootReader::startDocument() {
    KORVAObjectRegistryI* const m_objectRegistry = m_context.registry;
    ZEL_ASSERT(m_objectRegistry);
    followReferences();
}

void RootReader::endDocument() {
    const auto getNamespaceMapping = [this]() -> KORVANamespaceMapping& { return mapping(); };
    ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, "There are namespace prefixes left on the mapping stack.");
    m_value.assertNothingIsOpen();
}

void RootReader::startPrefix(const char* prefix, const char* uri) {
    mapping().addBorrowed(prefix, uri);
}

void RootReader::endPrefix(const char* prefix) {
    mapping().remove(prefix);
}

void RootReader::startElement(const Element& element) {
    m_context.mapping = &mapping();
    if (m_references != nullptr) m_references->weigh(1);
    m_starting = element.localName;
    m_startingDepth = m_value.depth() + 1;
    if (m_isDocument && m_value.isEmpty())
        m_value.startDocumentRoot(element);
    else
        m_value.startElement(element);
}

void RootReader::endElement() {
    m_startingDepth = 0;
    KORVASchemaTypeI* const root = m_value.endElement();
    if (!m_isDocument || !m_value.isEmpty()) return;
    if (m_references != nullptr) m_references->resolve();
    m_result = root;
}

}  // namespace korva
