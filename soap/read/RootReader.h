/// The reader of a document that holds one value, and of one element of a document.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/ValueReader.h"

class KORVANamespaceMapping;
class KORVAObjectRegistryI;

namespace korva {

class RootReader final : public DocumentReceiver {
public:
    /// @param mapping the prefixes in scope; it and the registry must outlive the reader
    RootReader(KORVANamespaceMapping* mapping, KORVAObjectRegistryI* registry)
        : m_inScopePrefixesToNamespaceMappings(mapping), m_context(mapping, registry) {}

    /// Reads the element that a document has just come to, instead of a document's root.
    void startRoot(const Element& element, ObjectType expectedType);

    void startDocument() override;
    void endDocument() override;
    /// The texts must live until the mapping loses them.
    void startPrefix(const char* prefix, const char* uri) override;
    void endPrefix(const char* prefix) override;
    void startElement(const Element& element) override;
    void text(std::string_view piece) override { m_value.text(piece); }
    void endElement() override;

    KORVANamespaceMapping& mapping() const;
    ReadingContext& context() { return m_context; }
    ValueReader& value() { return m_value; }
    const ValueReader& value() const { return m_value; }

    /// The object that the document's root is, when it has ended; otherwise null.
    KORVASchemaTypeI* result() const { return m_result; }

private:
    KORVANamespaceMapping* m_inScopePrefixesToNamespaceMappings;
    ReadingContext m_context;
    ValueReader m_value{m_context};
    bool m_isDocument = true;  ///< the root comes as an event
    KORVASchemaTypeI* m_result = nullptr;
};

}  // namespace korva
