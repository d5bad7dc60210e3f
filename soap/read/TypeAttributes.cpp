#include "soap/read/TypeAttributes.h"

#include <i18n/KORVAI18NRes.h>

namespace korva {

namespace {

constexpr std::string_view contentIdScheme = "cid:";

bool is(const Attribute& attribute, KORVAI18NRes::Number uri, std::string_view localName) {
    return attribute.localName == localName && attribute.uri == KORVAI18NRes::getView(uri);
}

}  // namespace

TypeAttributes::TypeAttributes(const Element& element) {
    for (const Attribute& attribute : element.attributes) {
        if (attribute.localName.empty()) continue;
        // The names differ in their first letter.
        switch (attribute.localName.front()) {
            case 't':
                if (is(attribute, KORVAI18NRes::eSchemaInstanceNamespace, "type"))
                    type = attribute.value;
                break;
            case 'a':
                if (is(attribute, KORVAI18NRes::eSoapEncodingNamespace, "arrayType"))
                    arrayType = attribute.value;
                break;
            case 'n':
                if (is(attribute, KORVAI18NRes::eSchemaInstanceNamespace, "nil"))
                    isNil = attribute.value == "true";
                break;
            case 'h':
                if (attribute.prefix.empty() && attribute.localName == "href" &&
                    attribute.value.starts_with(contentIdScheme))
                    contentId = attribute.value.substr(contentIdScheme.size());
                break;
            default: break;
        }
    }
}

}  // namespace korva
