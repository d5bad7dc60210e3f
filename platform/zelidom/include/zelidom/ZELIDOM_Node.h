/// A node of a document: element, attribute, text, or one of the rarer kinds.
#pragma once

#include <zelidom/ZELIDOMExport.h>
#include <zelidom/ZELIDOM_String.h>

#include <xercesc/util/XercesDefs.hpp>

class ZELIDOM_NamedNodeMap;
class ZELIDOM_NodeList;

XERCES_CPP_NAMESPACE_BEGIN
class DOMNode;
XERCES_CPP_NAMESPACE_END

/// A handle by value to a node of Xerces-C's DOM, or to none. The document owns its nodes: a handle
/// is valid while the document lives, and copying it costs a pointer.
///
/// The operations of a null handle end in an assertion, but for `isNull`, comparison and
/// `xercesNode`. A document and its nodes belong to one thread at a time.
class ZELIDOM_EXPORT ZELIDOM_Node {
public:
    enum NodeType : short {
        ELEMENT_NODE = 1,
        ATTRIBUTE_NODE = 2,
        TEXT_NODE = 3,
        CDATA_SECTION_NODE = 4,
        ENTITY_REFERENCE_NODE = 5,
        ENTITY_NODE = 6,
        PROCESSING_INSTRUCTION_NODE = 7,
        COMMENT_NODE = 8,
        DOCUMENT_NODE = 9,
        DOCUMENT_TYPE_NODE = 10,
        DOCUMENT_FRAGMENT_NODE = 11,
        NOTATION_NODE = 12
    };

    constexpr ZELIDOM_Node() noexcept : m_node(nullptr) {}
    /// A handle to a node that Xerces-C made; null gives the null handle.
    constexpr explicit ZELIDOM_Node(xercesc::DOMNode* node) noexcept : m_node(node) {}

    constexpr bool isNull() const noexcept { return m_node == nullptr; }

    /// The node itself, for calls of Xerces-C; null for the null handle.
    constexpr xercesc::DOMNode* xercesNode() const noexcept { return m_node; }

    NodeType getNodeType() const;

    /// The qualified name of an element or attribute; "#text", "#comment", "#document" for others.
    ZELIDOM_String getNodeName() const;

    /// The value of an attribute, or the characters of a text or comment; empty for elements.
    ZELIDOM_String getNodeValue() const;

    /// Empty for what was made by an operation that takes no namespace.
    ZELIDOM_String getLocalName() const;
    ZELIDOM_String getNamespaceURI() const;
    ZELIDOM_String getPrefix() const;

    /// Null for a document, an attribute, and a node that stands nowhere yet.
    ZELIDOM_Node getParentNode() const;

    /// Live: follows the changes of this node.
    ZELIDOM_NodeList getChildNodes() const;

    // One step each, where the position in a list is counted out.
    ZELIDOM_Node getFirstChild() const;
    ZELIDOM_Node getNextSibling() const;

    /// The attributes of an element, in no order that means anything; the null map for all else.
    ZELIDOM_NamedNodeMap getAttributes() const;

    /// Puts `child` behind the last child, and takes it from where it stood before. Returns it. The
    /// time grows with the depth of this node.
    /// @throws ZELIDOM_Error `child` is of another document, or of a kind that cannot stand here,
    ///     or holds this node
    /// @throws ZELAssertError `child` is null
    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_Node appendChild(const ZELIDOM_Node& child);

    /// Whether both are the same node, or both are null.
    friend constexpr bool operator==(const ZELIDOM_Node& left, const ZELIDOM_Node& right) noexcept {
        return left.m_node == right.m_node;
    }

private:
    xercesc::DOMNode* m_node;
};
