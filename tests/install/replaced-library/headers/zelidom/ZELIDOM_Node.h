/// Handles of this project over documents in memory.
#pragma once

#include <xercesc/dom/DOM.hpp>

#include <string>

class ZELIDOM_NamedNodeMap;

class ZELIDOM_String {
public:
    explicit ZELIDOM_String(const XMLCh* text) : m_text(text ? text : u"") {}
    bool empty() const { return *m_text == 0; }
    const XMLCh* wide() const { return m_text; }
    std::size_t wideLength() const { return std::char_traits<XMLCh>::length(m_text); }

private:
    const XMLCh* m_text;
};

class ZELIDOM_Node {
public:
    enum NodeType : short {
        ELEMENT_NODE = 1,
        ATTRIBUTE_NODE = 2,
        TEXT_NODE = 3,
        CDATA_SECTION_NODE = 4
    };

    ZELIDOM_Node(xercesc::DOMNode* node = nullptr) : m_node(node) {}
    bool isNull() const { return m_node == nullptr; }
    NodeType getNodeType() const;
    ZELIDOM_String getNodeName() const;
    ZELIDOM_String getNodeValue() const;
    ZELIDOM_String getLocalName() const;
    ZELIDOM_String getNamespaceURI() const;
    ZELIDOM_Node getParentNode() const;
    ZELIDOM_Node getFirstChild() const;
    ZELIDOM_Node getNextSibling() const;
    ZELIDOM_NamedNodeMap getAttributes() const;
    ZELIDOM_Node appendChild(const ZELIDOM_Node& child);
    friend bool operator==(const ZELIDOM_Node& left, const ZELIDOM_Node& right) {
        return left.m_node == right.m_node;
    }

protected:
    xercesc::DOMNode* m_node;
};
