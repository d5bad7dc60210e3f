#include "zelidom/ZELIDOM_NamedNodeMap.h"

#include "platform/zelidom/WideText.h"

#include <xercesc/dom/DOMNamedNodeMap.hpp>

using zelidom::orNone;
using zelidom::WideText;

std::size_t ZELIDOM_NamedNodeMap::getLength() const {
    return isNull() ? 0 : m_map->getLength();
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::item(std::size_t index) const {
    return isNull() ? ZELIDOM_Node() : ZELIDOM_Node(m_map->item(index));
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::getNamedItem(std::string_view name) const {
    return getNamedItem(WideText(name).get());
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::getNamedItem(const XMLCh* name) const {
    if (isNull()) return {};
    return ZELIDOM_Node(m_map->getNamedItem(name));
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::getNamedItemNS(std::string_view namespaceURI,
                                                  std::string_view localName) const {
    return getNamedItemNS(WideText(namespaceURI).get(), WideText(localName).get());
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::getNamedItemNS(const XMLCh* namespaceURI,
                                                  const XMLCh* localName) const {
    if (isNull()) return {};
    return ZELIDOM_Node(m_map->getNamedItemNS(orNone(namespaceURI), localName));
}
