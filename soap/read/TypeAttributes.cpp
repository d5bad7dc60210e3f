#include "soap/read/TypeAttributes.h"

namespace korva {

namespace {

constexpr std::string_view contentIdScheme = "cid:";

}  // namespace

TypeAttributes::TypeAttributes(const Element& element, AttributeNamespaces& namespaces) {
    for (const Attribute& attribute : element.attributes) {
        if (attribute.localName.empty()) continue;
        // The names differ in their first letter.
        switch (attribute.localName.front()) {
            case 't':
                if (attribute.localName == "type" && namespaces.isSchemaInstance(attribute.uri))
                    type = attribute.value;
                break;
            case 'a':
                if (attribute.localName == "arrayType" && namespaces.isSoapEncoding(attribute.uri))
                    arrayType = attribute.value;
                break;
            case 'n':
                if (attribute.localName == "nil" && namespaces.isSchemaInstance(attribute.uri))
                    isNil = attribute.value == "true";
                break;
            case 'h':
                if (!attribute.prefix.empty() || attribute.localName != "href") break;
                if (attribute.value.starts_with(contentIdScheme))
                    contentId = attribute.value.substr(contentIdScheme.size());
                else if (attribute.value.starts_with('#'))
                    isShared = true;
                break;
            case 'i':
                if (attribute.prefix.empty() && attribute.localName == "id") isShared = true;
                break;
            default: break;
        }
    }
}

Sharing::Sharing(const Element& element) {
    for (const Attribute& attribute : element.attributes) {
        if (!attribute.prefix.empty()) continue;
        if (attribute.localName == "id") id = attribute.value;
        if (attribute.localName == "href" && attribute.value.starts_with('#'))
            referredId = attribute.value.substr(1);
    }
}

}  // namespace korva
