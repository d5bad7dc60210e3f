/// The handle of a document, which belongs to whoever made it.
#pragma once

#include <zelidom/ZELIDOM_Element.h>

class ZELIDOM_Document : public ZELIDOM_Node {
public:
    explicit ZELIDOM_Document(xercesc::DOMDocument* document) : ZELIDOM_Node(document) {}
    ZELIDOM_Element createElementNS(const XMLCh* namespaceURI, const XMLCh* qualifiedName);
    ZELIDOM_Node createTextNode(const XMLCh* text);
};
