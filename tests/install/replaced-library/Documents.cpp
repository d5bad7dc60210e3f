#include <zelidom/ZELIDOM_Document.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>

ZELIDOM_Node::NodeType ZELIDOM_Node::getNodeType() const {
    return static_cast<NodeType>(m_node->getNodeType());
}

ZELIDOM_String ZELIDOM_Node::getNodeName() const {
    return ZELIDOM_String(m_node->getNodeName());
}

ZELIDOM_String ZELIDOM_Node::getNodeValue() const {
    return ZELIDOM_String(m_node->getNodeValue());
}

ZELIDOM_String ZELIDOM_Node::getLocalName() const {
    return ZELIDOM_String(m_node->getLocalName());
}

ZELIDOM_String ZELIDOM_Node::getNamespaceURI() const {
    return ZELIDOM_String(m_node->getNamespaceURI());
}

ZELIDOM_Node ZELIDOM_Node::getParentNode() const {
    return m_node->getParentNode();
}

ZELIDOM_Node ZELIDOM_Node::getFirstChild() const {
    return m_node->getFirstChild();
}

ZELIDOM_Node ZELIDOM_Node::getNextSibling() const {
    return m_node->getNextSibling();
}

ZELIDOM_NamedNodeMap ZELIDOM_Node::getAttributes() const {
    return ZELIDOM_NamedNodeMap(m_node->getAttributes());
}

ZELIDOM_Node ZELIDOM_Node::appendChild(const ZELIDOM_Node& child) {
    return m_node->appendChild(child.m_node);
}

void ZELIDOM_Element::setAttributeNS(const XMLCh* namespaceURI, const XMLCh* qualifiedName,
                                     const XMLCh* value) {
    static_cast<xercesc::DOMElement*>(m_node)->setAttributeNS(namespaceURI, qualifiedName, value);
}

std::size_t ZELIDOM_NamedNodeMap::getLength() const {
    return m_map->getLength();
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::item(std::size_t index) const {
    return m_map->item(index);
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::getNamedItem(const XMLCh* name) const {
    return m_map->getNamedItem(name);
}

ZELIDOM_Node ZELIDOM_NamedNodeMap::getNamedItemNS(const XMLCh* namespaceURI,
                                                  const XMLCh* localName) const {
    return m_map->getNamedItemNS(namespaceURI, localName);
}

ZELIDOM_Element ZELIDOM_Document::createElementNS(const XMLCh* namespaceURI,
                                                  const XMLCh* qualifiedName) {
    return static_cast<xercesc::DOMDocument*>(m_node)->createElementNS(namespaceURI, qualifiedName);
}

ZELIDOM_Node ZELIDOM_Document::createTextNode(const XMLCh* text) {
    return static_cast<xercesc::DOMDocument*>(m_node)->createTextNode(text);
}
