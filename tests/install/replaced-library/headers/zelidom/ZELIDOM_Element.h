/// The handle of an element.
#pragma once

#include <zelidom/ZELIDOM_Node.h>

class ZELIDOM_Element : public ZELIDOM_Node {
public:
    ZELIDOM_Element(xercesc::DOMElement* element = nullptr) : ZELIDOM_Node(element) {}
    void setAttributeNS(const XMLCh* namespaceURI, const XMLCh* qualifiedName, const XMLCh* value);
};
