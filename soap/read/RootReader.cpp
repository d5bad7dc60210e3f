#include "soap/read/RootReader.h"

#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistryI.h>
#include <zel/ZELAssert.h>

namespace korva {

KORVANamespaceMapping& RootReader::mapping() const {
    ZEL_ASSERT(m_inScopePrefixesToNamespaceMappings);
    return *m_inScopePrefixesToNamespaceMappings;
}

void RootReader::startRoot(const Element& element, ObjectType expectedType) {
    m_isDocument = false;
    m_context.mapping = &mapping();
    m_value.startRoot(element, expectedType);
}

void RootReader::startDocument() {
    KORVAObjectRegistryI* const m_objectRegistry = m_context.registry;
    ZEL_ASSERT(m_objectRegistry);
}

void RootReader::endDocument() {
    const auto getNamespaceMapping = [this]() -> KORVANamespaceMapping& { return mapping(); };
    // clang-format off
    ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, "There are namespace prefixes left on the mapping stack.");
    // clang-format on
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
    if (m_isDocument && m_value.isEmpty())
        m_value.startDocumentRoot(element);
    else
        m_value.startElement(element);
}

void RootReader::endElement() {
    KORVASchemaTypeI* const root = m_value.endElement();
    if (m_isDocument && m_value.isEmpty()) m_result = root;
}

}  // namespace korva
