/// An element of a document.
#pragma once

#include <zelidom/ZELIDOM_Node.h>

#include <string_view>

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
XERCES_CPP_NAMESPACE_END

/// Names and values are given in UTF-8, or as NUL-terminated UTF-16, which saves the conversion. A
/// NUL ends a text. An empty namespace, or a null one, is none.
class ZELIDOM_EXPORT ZELIDOM_Element : public ZELIDOM_Node {
public:
    constexpr ZELIDOM_Element() noexcept = default;
    /// Null for a node that is no element.
    explicit ZELIDOM_Element(const ZELIDOM_Node& node);
    explicit ZELIDOM_Element(xercesc::DOMElement* element) noexcept;

    /// Sets an attribute that has no namespace, prefix or local name, whatever its name looks like.
    /// @throws ZELIDOM_Error `name` is no name
    /// @throws ZELOutOfMemoryError no memory is left
    void setAttribute(std::string_view name, std::string_view value);
    void setAttribute(const XMLCh* name, const XMLCh* value);

    /// @throws ZELIDOM_Error `qualifiedName` is no qualified name, or its prefix and the namespace
    ///     do not go together
    /// @throws ZELOutOfMemoryError no memory is left
    void setAttributeNS(std::string_view namespaceURI, std::string_view qualifiedName,
                        std::string_view value);
    void setAttributeNS(const XMLCh* namespaceURI, const XMLCh* qualifiedName, const XMLCh* value);

    /// The value of the attribute; empty if there is none.
    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_String getAttribute(std::string_view name) const;
    ZELIDOM_String getAttributeNS(std::string_view namespaceURI, std::string_view localName) const;

private:
    xercesc::DOMElement& element() const;
};
