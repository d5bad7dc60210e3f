/// Finding attributes by name in any list of them.
#pragma once

#include <xercesc/sax2/Attributes.hpp>

namespace korva {

/// The type that attributes without a declared one have.
inline constexpr XMLCh attributeType[] = u"CDATA";

/// The position of the attribute with this qualified name, or the length of the list. Null is
/// nobody's name.
XMLSize_t findAttribute(const xercesc::Attributes& attributes, const XMLCh* qName);

/// The same by namespace, for which null is none, and local name.
XMLSize_t findAttribute(const xercesc::Attributes& attributes, const XMLCh* uri,
                        const XMLCh* localName);

/// What `getIndex` answers for a position that was found.
inline int indexOrNone(const xercesc::Attributes& attributes, XMLSize_t position) {
    return position < attributes.getLength() ? static_cast<int>(position) : -1;
}
inline bool isFound(const xercesc::Attributes& attributes, XMLSize_t position, XMLSize_t& index) {
    if (position >= attributes.getLength()) return false;
    index = position;
    return true;
}

}  // namespace korva
