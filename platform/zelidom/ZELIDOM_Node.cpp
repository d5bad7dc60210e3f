#include "zelidom/ZELIDOM_Node.h"

#include "platform/zelidom/Failure.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>
#include <zelidom/ZELIDOM_NodeList.h>

#include <xercesc/dom/DOMNode.hpp>

ZELIDOM_Node::NodeType ZELIDOM_Node::getNodeType() const {
    ZEL_ASSERT(!isNull());
    return static_cast<NodeType>(m_node->getNodeType());
}

ZELIDOM_String ZELIDOM_Node::getNodeName() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_String(m_node->getNodeName());
}

ZELIDOM_String ZELIDOM_Node::getNodeValue() const {
    ZEL_ASSERT(!isNull());
    ZEL_TRY {
        // An attribute whose value was put together of pieces joins them now.
        return ZELIDOM_String(m_node->getNodeValue());
    }
    ZELIDOM_CATCH("ZELIDOM_Node::getNodeValue");
}

ZELIDOM_String ZELIDOM_Node::getLocalName() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_String(m_node->getLocalName());
}

ZELIDOM_String ZELIDOM_Node::getNamespaceURI() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_String(m_node->getNamespaceURI());
}

ZELIDOM_String ZELIDOM_Node::getPrefix() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_String(m_node->getPrefix());
}

ZELIDOM_Node ZELIDOM_Node::getParentNode() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_Node(m_node->getParentNode());
}

ZELIDOM_NodeList ZELIDOM_Node::getChildNodes() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_NodeList(m_node->getChildNodes());
}

ZELIDOM_Node ZELIDOM_Node::getFirstChild() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_Node(m_node->getFirstChild());
}

ZELIDOM_Node ZELIDOM_Node::getNextSibling() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_Node(m_node->getNextSibling());
}

ZELIDOM_NamedNodeMap ZELIDOM_Node::getAttributes() const {
    ZEL_ASSERT(!isNull());
    return ZELIDOM_NamedNodeMap(m_node->getAttributes());
}

ZELIDOM_Node ZELIDOM_Node::appendChild(const ZELIDOM_Node& child) {
    ZEL_ASSERT(!isNull());
    ZEL_ASSERT(!child.isNull());
    ZEL_TRY {
        return ZELIDOM_Node(m_node->appendChild(child.m_node));
    }
    ZELIDOM_CATCH("ZELIDOM_Node::appendChild");
}
