/// The attributes of an element, by position and by name.
#pragma once

#include <zelidom/ZELIDOM_Node.h>

#include <cstddef>
#include <string_view>

XERCES_CPP_NAMESPACE_BEGIN
class DOMNamedNodeMap;
XERCES_CPP_NAMESPACE_END

/// A handle by value, as a node is. Positions hold until an attribute comes or goes. The null map
/// is empty.
class ZELIDOM_EXPORT ZELIDOM_NamedNodeMap {
public:
    constexpr ZELIDOM_NamedNodeMap() noexcept : m_map(nullptr) {}
    constexpr explicit ZELIDOM_NamedNodeMap(xercesc::DOMNamedNodeMap* map) noexcept : m_map(map) {}

    constexpr bool isNull() const noexcept { return m_map == nullptr; }

    std::size_t getLength() const;

    /// Null at or beyond the length.
    ZELIDOM_Node item(std::size_t index) const;

    /// The node with this qualified name, or null.
    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_Node getNamedItem(std::string_view name) const;
    ZELIDOM_Node getNamedItem(const XMLCh* name) const;

    /// The node with this namespace, empty for none, and local name; null if there is none.
    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_Node getNamedItemNS(std::string_view namespaceURI, std::string_view localName) const;
    ZELIDOM_Node getNamedItemNS(const XMLCh* namespaceURI, const XMLCh* localName) const;

private:
    xercesc::DOMNamedNodeMap* m_map;
};
