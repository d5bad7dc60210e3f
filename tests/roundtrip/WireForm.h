/// Holds written XML against what the objects tell of themselves.
#pragma once

#include "tests/roundtrip/XmlTree.h"
#include "tests/support/SchemaScan.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVASchemaTypeI.h>

#include <map>
#include <string>

class KORVAPortTypeBinding;

namespace korva::test {

/// Knows how each value of the schema looks as an element: its type by the schema files, its
/// children by their names and types, in their order. What differs fails the current test.
class WireForm {
public:
    using Type = KORVASchemaTypeI::ObjectType;

    explicit WireForm(const Schema& schema);

    /// Expects a document with `object` as the root "bus:`name`".
    void expectDocument(const std::string& xml, const std::string& name, const void* object,
                        Type type) const;

    /// Expects an envelope with the message's header and parameters, written for `binding`.
    void expectEnvelope(const std::string& xml, const KORVAPortTypeBinding& binding,
                        KORVAMessageI& message) const;

private:
    void expectElement(const XmlElement& element, const ExpandedName& name, const void* value,
                       Type type) const;
    void expectType(const XmlElement& element, const void* value, Type type) const;
    void expectChildren(const XmlElement& element, KORVASchemaTypeI& object) const;
    bool isArray(Type type) const;
    bool hasTextContent(Type type) const;
    std::string typeText(Type type) const;

    const Schema& m_schema;
    std::map<Type, std::string> m_names;  ///< the XML name of each type of the schema
};

}  // namespace korva::test
