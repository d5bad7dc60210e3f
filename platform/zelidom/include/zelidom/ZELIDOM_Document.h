/// A document, which owns its nodes.
#pragma once

#include <zel/ZELSmartPointer.h>
#include <zelidom/ZELIDOM_Element.h>
#include <zelidom/ZELIDOM_Node.h>

#include <cstddef>
#include <string_view>

class BRIMInputStream;

namespace zelidom {
class OwnedDocument;
}

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

/// A handle by value. Copies share the document, which ends with the last of them; handles of nodes
/// do not keep it.
///
/// The XML platform (XMLPlatformUtils::Initialize) is the caller's to start, before the first
/// document, and to end, behind the last. Texts are given as told at ZELIDOM_Element.
class ZELIDOM_EXPORT ZELIDOM_Document : public ZELIDOM_Node {
public:
    /// How deep elements may be nested in what is parsed, unless the caller says otherwise.
    static constexpr std::size_t defaultMaximumDepth = 10000;

    /// How many attributes a start tag may have in what is parsed, declarations included.
    static constexpr std::size_t maximumAttributes = 1000;

    /// The null handle.
    ZELIDOM_Document() noexcept;
    ZELIDOM_Document(const ZELIDOM_Document& other) noexcept;
    ZELIDOM_Document(ZELIDOM_Document&& other) noexcept;
    ZELIDOM_Document& operator=(const ZELIDOM_Document& other) noexcept;
    ZELIDOM_Document& operator=(ZELIDOM_Document&& other) noexcept;
    ~ZELIDOM_Document();

    /// A handle to a document of the caller's, who keeps owning it.
    explicit ZELIDOM_Document(xercesc::DOMDocument& document) noexcept;

    /// A new document without a root.
    /// @throws ZELOutOfMemoryError no memory is left
    static ZELIDOM_Document create();

    /// Parses what `stream` gives. Nothing else is opened. White space between elements is kept.
    /// @param maximumDepth how deep elements may be nested, the root included
    /// @throws ZELIDOM_Error the document is not well-formed, is nested deeper, has a start tag
    /// with
    ///     more attributes, or has a document type, which is refused
    /// @throws ZELOutOfMemoryError no memory is left
    /// What the stream throws passes through.
    static ZELIDOM_Document parse(BRIMInputStream& stream,
                                  std::size_t maximumDepth = defaultMaximumDepth);

    /// The root, or null.
    ZELIDOM_Element getDocumentElement() const;

    /// An element without attributes that stands nowhere yet.
    /// @throws ZELIDOM_Error `qualifiedName` is no qualified name, or its prefix and the namespace
    ///     do not go together
    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_Element createElementNS(std::string_view namespaceURI, std::string_view qualifiedName);
    ZELIDOM_Element createElementNS(const XMLCh* namespaceURI, const XMLCh* qualifiedName);

    /// An element without namespace, prefix or local name, whatever its name looks like.
    /// @throws ZELIDOM_Error `name` is no name
    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_Element createElement(std::string_view name);

    /// @throws ZELOutOfMemoryError no memory is left
    ZELIDOM_Node createTextNode(std::string_view text);
    ZELIDOM_Node createTextNode(const XMLCh* text);

private:
    ZELIDOM_Document(xercesc::DOMDocument& document,
                     ZELSmartPointer<zelidom::OwnedDocument> owner) noexcept;

    xercesc::DOMDocument& document() const;

    ZELSmartPointer<zelidom::OwnedDocument> m_owner;  ///< null for a document of the caller's
};
