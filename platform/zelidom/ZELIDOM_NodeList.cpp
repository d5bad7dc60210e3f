#include "zelidom/ZELIDOM_NodeList.h"

#include <xercesc/dom/DOMNodeList.hpp>

std::size_t ZELIDOM_NodeList::getLength() const {
    return isNull() ? 0 : m_list->getLength();
}

ZELIDOM_Node ZELIDOM_NodeList::item(std::size_t index) const {
    return isNull() ? ZELIDOM_Node() : ZELIDOM_Node(m_list->item(index));
}
