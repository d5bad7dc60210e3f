/// The handle of an element's attributes.
#pragma once

#include <zelidom/ZELIDOM_Node.h>

class ZELIDOM_NamedNodeMap {
public:
    explicit ZELIDOM_NamedNodeMap(xercesc::DOMNamedNodeMap* map) : m_map(map) {}
    bool isNull() const { return m_map == nullptr; }
    std::size_t getLength() const;
    ZELIDOM_Node item(std::size_t index) const;
    ZELIDOM_Node getNamedItem(const XMLCh* name) const;
    ZELIDOM_Node getNamedItemNS(const XMLCh* namespaceURI, const XMLCh* localName) const;

private:
    xercesc::DOMNamedNodeMap* m_map;
};
