/// The attributes of an element that tell what it is.
#pragma once

#include "soap/read/DocumentReceiver.h"

#include <i18n/KORVAI18NRes.h>

#include <optional>
#include <string_view>

namespace korva {

/// The namespaces of these attributes, as the document had them last: the next text at the same
/// address needs no look.
class AttributeNamespaces {
public:
    bool isSchemaInstance(std::string_view uri) { return m_schemaInstance.is(uri); }
    bool isSoapEncoding(std::string_view uri) { return m_soapEncoding.is(uri); }

private:
    class Known {
    public:
        explicit Known(std::string_view text) : m_text(text), m_address(text.data()) {}
        bool is(std::string_view uri) {
            if (uri.data() == m_address) return true;
            if (uri != m_text) return false;
            m_address = uri.data();
            return true;
        }

    private:
        std::string_view m_text;
        const char* m_address;  ///< never null: that is where no namespace may be
    };

    Known m_schemaInstance{KORVAI18NRes::getView(KORVAI18NRes::eSchemaInstanceNamespace)};
    Known m_soapEncoding{KORVAI18NRes::getView(KORVAI18NRes::eSoapEncodingNamespace)};
};

/// The attributes that a reader looks at. The texts live as long as the element's event.
struct TypeAttributes {
    std::optional<std::string_view> type;       ///< `type` of the schema instance namespace
    std::optional<std::string_view> arrayType;  ///< `arrayType` of the SOAP encoding namespace
    std::string_view contentId;  ///< what stands behind "cid:" in `href`; empty if nothing does
    bool isNil = false;          ///< `nil` of the schema instance namespace is "true"
    /// Whether the element refers to another, or others may refer to it: Sharing tells.
    bool isShared = false;

    TypeAttributes(const Element& element, AttributeNamespaces& namespaces);
};

/// What ties an element to others. Few elements have it, so it is looked for when it is there.
struct Sharing {
    std::string_view referredId;  ///< what stands behind "#" in `href`; empty if nothing does
    std::string_view id;          ///< empty without one

    explicit Sharing(const Element& element);
};

}  // namespace korva
