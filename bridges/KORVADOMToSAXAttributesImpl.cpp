#include "korva/KORVADOMToSAXAttributesImpl.h"

#include "bridges/AttributeSearch.h"

#include <zel/ZELAssert.h>

using korva::findAttribute;

namespace {

const XMLCh* valueOf(const ZELIDOM_Node& node) {
    if (node.isNull()) return nullptr;
    ZEL_ASSERT(node.getNodeType() == ZELIDOM_Node::ATTRIBUTE_NODE);
    return node.getNodeValue().wide();
}

}  // namespace

KORVADOMToSAXAttributesImpl::~KORVADOMToSAXAttributesImpl() = default;

XMLSize_t KORVADOMToSAXAttributesImpl::getLength() const {
    return m_map.getLength();
}

const XMLCh* KORVADOMToSAXAttributesImpl::getURI(XMLSize_t index) const {
    const ZELIDOM_Node node = m_map.item(index);
    return node.isNull() ? nullptr : node.getNamespaceURI().wide();
}

const XMLCh* KORVADOMToSAXAttributesImpl::getLocalName(XMLSize_t index) const {
    const ZELIDOM_Node node = m_map.item(index);
    return node.isNull() ? nullptr : node.getLocalName().wide();
}

const XMLCh* KORVADOMToSAXAttributesImpl::getQName(XMLSize_t index) const {
    const ZELIDOM_Node node = m_map.item(index);
    return node.isNull() ? nullptr : node.getNodeName().wide();
}

const XMLCh* KORVADOMToSAXAttributesImpl::getType(XMLSize_t index) const {
    return index < getLength() ? korva::attributeType : nullptr;
}

const XMLCh* KORVADOMToSAXAttributesImpl::getValue(XMLSize_t index) const {
    const ZELIDOM_Node node = m_map.item(index);
    return node.isNull() ? nullptr : node.getNodeValue().wide();
}

bool KORVADOMToSAXAttributesImpl::getIndex(const XMLCh* uri, const XMLCh* localName,
                                           XMLSize_t& index) const {
    return korva::isFound(*this, findAttribute(*this, uri, localName), index);
}

int KORVADOMToSAXAttributesImpl::getIndex(const XMLCh* uri, const XMLCh* localName) const {
    return korva::indexOrNone(*this, findAttribute(*this, uri, localName));
}

bool KORVADOMToSAXAttributesImpl::getIndex(const XMLCh* qName, XMLSize_t& index) const {
    return korva::isFound(*this, findAttribute(*this, qName), index);
}

int KORVADOMToSAXAttributesImpl::getIndex(const XMLCh* qName) const {
    return korva::indexOrNone(*this, findAttribute(*this, qName));
}

const XMLCh* KORVADOMToSAXAttributesImpl::getType(const XMLCh* uri, const XMLCh* localName) const {
    return getType(findAttribute(*this, uri, localName));
}

const XMLCh* KORVADOMToSAXAttributesImpl::getType(const XMLCh* qName) const {
    return getType(findAttribute(*this, qName));
}

const XMLCh* KORVADOMToSAXAttributesImpl::getValue(const XMLCh* uri, const XMLCh* localName) const {
    return localName != nullptr ? valueOf(m_map.getNamedItemNS(uri, localName)) : nullptr;
}

const XMLCh* KORVADOMToSAXAttributesImpl::getValue(const XMLCh* qName) const {
    return qName != nullptr ? valueOf(m_map.getNamedItem(qName)) : nullptr;
}
