#include "bridges/AttributeSearch.h"

#include <string_view>

namespace korva {

namespace {

std::u16string_view view(const XMLCh* text) {
    return text != nullptr ? std::u16string_view(text) : std::u16string_view();
}

template <class Match>
XMLSize_t find(const xercesc::Attributes& attributes, Match match) {
    const XMLSize_t length = attributes.getLength();
    for (XMLSize_t i = 0; i < length; ++i)
        if (match(i)) return i;
    return length;
}

}  // namespace

XMLSize_t findAttribute(const xercesc::Attributes& attributes, const XMLCh* qName) {
    if (qName == nullptr) return attributes.getLength();
    return find(attributes, [&](XMLSize_t i) { return view(attributes.getQName(i)) == qName; });
}

XMLSize_t findAttribute(const xercesc::Attributes& attributes, const XMLCh* uri,
                        const XMLCh* localName) {
    if (localName == nullptr) return attributes.getLength();
    return find(attributes, [&](XMLSize_t i) {
        return view(attributes.getLocalName(i)) == localName &&
               view(attributes.getURI(i)) == view(uri);
    });
}

}  // namespace korva
