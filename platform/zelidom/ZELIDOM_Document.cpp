#include "zelidom/ZELIDOM_Document.h"

#include "platform/zelidom/Failure.h"
#include "platform/zelidom/OwnedDocument.h"
#include "platform/zelidom/WideText.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMText.hpp>

#include <utility>

using zelidom::orNone;
using zelidom::OwnedDocument;
using zelidom::WideText;

ZELIDOM_Document::ZELIDOM_Document() noexcept = default;
ZELIDOM_Document::ZELIDOM_Document(const ZELIDOM_Document&) noexcept = default;
ZELIDOM_Document::ZELIDOM_Document(ZELIDOM_Document&&) noexcept = default;
ZELIDOM_Document& ZELIDOM_Document::operator=(const ZELIDOM_Document&) noexcept = default;
ZELIDOM_Document& ZELIDOM_Document::operator=(ZELIDOM_Document&&) noexcept = default;
ZELIDOM_Document::~ZELIDOM_Document() = default;

ZELIDOM_Document::ZELIDOM_Document(xercesc::DOMDocument& document) noexcept
    : ZELIDOM_Node(&document) {}

ZELIDOM_Document::ZELIDOM_Document(xercesc::DOMDocument& document,
                                   ZELSmartPointer<OwnedDocument> owner) noexcept
    : ZELIDOM_Node(&document), m_owner(std::move(owner)) {}

xercesc::DOMDocument& ZELIDOM_Document::document() const {
    ZEL_ASSERT(!isNull());
    return *static_cast<xercesc::DOMDocument*>(xercesNode());
}

// What Xerces-C throws may be made of the document's memory, which so outlives it.

ZELIDOM_Document ZELIDOM_Document::create() {
    ZELSmartPointer<OwnedDocument> owned;
    ZEL_TRY {
        owned = new OwnedDocument;
        return {owned->create(), owned};
    }
    ZELIDOM_CATCH("ZELIDOM_Document::create");
}

ZELIDOM_Document ZELIDOM_Document::parse(BRIMInputStream& stream, std::size_t maximumDepth) {
    ZELSmartPointer<OwnedDocument> owned;
    ZEL_TRY {
        owned = new OwnedDocument;
        return {owned->parse(stream, maximumDepth), owned};
    }
    ZELIDOM_CATCH("ZELIDOM_Document::parse");
}

ZELIDOM_Element ZELIDOM_Document::getDocumentElement() const {
    return ZELIDOM_Element(document().getDocumentElement());
}

ZELIDOM_Element ZELIDOM_Document::createElementNS(std::string_view namespaceURI,
                                                  std::string_view qualifiedName) {
    return createElementNS(WideText(namespaceURI).get(), WideText(qualifiedName).get());
}

ZELIDOM_Element ZELIDOM_Document::createElementNS(const XMLCh* namespaceURI,
                                                  const XMLCh* qualifiedName) {
    ZEL_TRY {
        return ZELIDOM_Element(document().createElementNS(orNone(namespaceURI), qualifiedName));
    }
    ZELIDOM_CATCH("ZELIDOM_Document::createElementNS");
}

ZELIDOM_Element ZELIDOM_Document::createElement(std::string_view name) {
    ZEL_TRY {
        return ZELIDOM_Element(document().createElement(WideText(name).get()));
    }
    ZELIDOM_CATCH("ZELIDOM_Document::createElement");
}

ZELIDOM_Node ZELIDOM_Document::createTextNode(std::string_view text) {
    return createTextNode(WideText(text).get());
}

ZELIDOM_Node ZELIDOM_Document::createTextNode(const XMLCh* text) {
    ZEL_TRY {
        return ZELIDOM_Node(document().createTextNode(text));
    }
    ZELIDOM_CATCH("ZELIDOM_Document::createTextNode");
}
