/// The reader of a document that holds one value, and of one element of a document.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ReadLimits.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/References.h"
#include "soap/read/ValueReader.h"

#include <cstddef>
#include <memory>

class KORVANamespaceMapping;
class KORVAObjectRegistryI;

namespace korva {

class RootReader final : public DocumentReceiver, private RootReceiver, private DocumentPlace {
public:
    /// @param mapping the prefixes in scope; it and the registry must outlive the reader
    RootReader(KORVANamespaceMapping* mapping, KORVAObjectRegistryI* registry)
        : m_inScopePrefixesToNamespaceMappings(mapping), m_context(mapping, registry) {}

    /// Due before what it is to be read by. The observer must outlive the reader.
    void setRules(const KORVA_ReadingPolicy& policy, KORVA_ReadingObserver* observer,
                  const ReadLimits& limits);
    /// What the rules say of references holds from now on. A document's start sees to it.
    void followReferences();

    /// Reads the element that a document has just come to, instead of a document's root.
    void startRoot(const Element& element, ObjectType expectedType);

    void startDocument() override;
    void endDocument() override;
    /// The texts must live until the mapping loses them.
    void startPrefix(const char* prefix, const char* uri) override;
    void endPrefix(const char* prefix) override;
    void startElement(const Element& element) override;
    void text(std::string_view piece) override {
        if (m_references != nullptr) m_references->weigh(piece.size());
        m_value.text(piece);
    }
    void endElement() override;

    /// The value of the element that startRoot began, which has ended; as ValueReader::value.
    void* rootValue();

    KORVANamespaceMapping& mapping() const;
    ReadingContext& context() { return m_context; }
    ValueReader& value() { return m_value; }
    const ValueReader& value() const { return m_value; }

    /// The object that the document's root is, when it has ended; otherwise null.
    KORVASchemaTypeI* result() const { return m_result; }

private:
    /// Nobody gives a document's root a place.
    void setRoot(std::size_t, const ElementValue&) override {}
    // Who hands in events of his own tells no lines.
    DocumentPosition position() const override { return {}; }
    std::string path() const override;

    KORVANamespaceMapping* m_inScopePrefixesToNamespaceMappings;
    ReadingContext m_context;
    ValueReader m_value{m_context};
    bool m_isDocument = true;  ///< the root comes as an event
    KORVASchemaTypeI* m_result = nullptr;
    ReadLimits m_limits;
    const char* m_starting = nullptr;  ///< the element that begins, and how deep it will be
    std::size_t m_startingDepth = 0;
    std::unique_ptr<References> m_references;  ///< null where they are not followed
};

}  // namespace korva
