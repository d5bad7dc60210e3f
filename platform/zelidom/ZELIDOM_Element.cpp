#include "zelidom/ZELIDOM_Element.h"

#include "platform/zelidom/Failure.h"
#include "platform/zelidom/WideText.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <xercesc/dom/DOMElement.hpp>

using zelidom::orNone;
using zelidom::WideText;

ZELIDOM_Element::ZELIDOM_Element(const ZELIDOM_Node& node)
    : ZELIDOM_Node(!node.isNull() && node.getNodeType() == ELEMENT_NODE ? node : ZELIDOM_Node()) {}

ZELIDOM_Element::ZELIDOM_Element(xercesc::DOMElement* element) noexcept : ZELIDOM_Node(element) {}

xercesc::DOMElement& ZELIDOM_Element::element() const {
    ZEL_ASSERT(!isNull());
    return *static_cast<xercesc::DOMElement*>(xercesNode());
}

void ZELIDOM_Element::setAttribute(std::string_view name, std::string_view value) {
    setAttribute(WideText(name).get(), WideText(value).get());
}

void ZELIDOM_Element::setAttribute(const XMLCh* name, const XMLCh* value) {
    ZEL_TRY {
        element().setAttribute(name, value);
        return;
    }
    ZELIDOM_CATCH("ZELIDOM_Element::setAttribute");
}

void ZELIDOM_Element::setAttributeNS(std::string_view namespaceURI, std::string_view qualifiedName,
                                     std::string_view value) {
    setAttributeNS(WideText(namespaceURI).get(), WideText(qualifiedName).get(),
                   WideText(value).get());
}

void ZELIDOM_Element::setAttributeNS(const XMLCh* namespaceURI, const XMLCh* qualifiedName,
                                     const XMLCh* value) {
    ZEL_TRY {
        element().setAttributeNS(orNone(namespaceURI), qualifiedName, value);
        return;
    }
    ZELIDOM_CATCH("ZELIDOM_Element::setAttributeNS");
}

ZELIDOM_String ZELIDOM_Element::getAttribute(std::string_view name) const {
    ZEL_TRY {
        return ZELIDOM_String(element().getAttribute(WideText(name).get()));
    }
    ZELIDOM_CATCH("ZELIDOM_Element::getAttribute");
}

ZELIDOM_String ZELIDOM_Element::getAttributeNS(std::string_view namespaceURI,
                                               std::string_view localName) const {
    ZEL_TRY {
        const WideText uri(namespaceURI);
        return ZELIDOM_String(
            element().getAttributeNS(orNone(uri.get()), WideText(localName).get()));
    }
    ZELIDOM_CATCH("ZELIDOM_Element::getAttributeNS");
}
