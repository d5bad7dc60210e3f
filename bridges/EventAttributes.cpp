#include "bridges/EventAttributes.h"

#include "bridges/AttributeSearch.h"

#include <zel/I18NConverter.h>
#include <zel/ZELAssert.h>

namespace korva {

EventAttributes::EventAttributes() = default;

EventAttributes::~EventAttributes() = default;

void EventAttributes::add(const WideName& name, const XMLCh* value) {
    ZEL_ASSERT(m_count < maxCount);
    m_rows[m_count++] = {name, value};
}

void EventAttributes::add(const WideName& name, std::string_view value, std::string_view rest) {
    ZEL_ASSERT(m_count < maxCount);
    std::u16string& text = m_values[m_count];
    text.clear();
    I18NConverter::appendUtf16(value.data(), value.size(), text);
    if (!rest.empty()) I18NConverter::appendUtf16(rest.data(), rest.size(), text);
    add(name, text.c_str());
}

const XMLCh* EventAttributes::getURI(XMLSize_t index) const {
    return index < m_count ? m_rows[index].name.uri : nullptr;
}

const XMLCh* EventAttributes::getLocalName(XMLSize_t index) const {
    return index < m_count ? m_rows[index].name.localName : nullptr;
}

const XMLCh* EventAttributes::getQName(XMLSize_t index) const {
    return index < m_count ? m_rows[index].name.qName : nullptr;
}

const XMLCh* EventAttributes::getType(XMLSize_t index) const {
    return index < m_count ? attributeType : nullptr;
}

const XMLCh* EventAttributes::getValue(XMLSize_t index) const {
    return index < m_count ? m_rows[index].value : nullptr;
}

bool EventAttributes::getIndex(const XMLCh* uri, const XMLCh* localName, XMLSize_t& index) const {
    return isFound(*this, findAttribute(*this, uri, localName), index);
}

int EventAttributes::getIndex(const XMLCh* uri, const XMLCh* localName) const {
    return indexOrNone(*this, findAttribute(*this, uri, localName));
}

bool EventAttributes::getIndex(const XMLCh* qName, XMLSize_t& index) const {
    return isFound(*this, findAttribute(*this, qName), index);
}

int EventAttributes::getIndex(const XMLCh* qName) const {
    return indexOrNone(*this, findAttribute(*this, qName));
}

const XMLCh* EventAttributes::getType(const XMLCh* uri, const XMLCh* localName) const {
    return getType(findAttribute(*this, uri, localName));
}

const XMLCh* EventAttributes::getType(const XMLCh* qName) const {
    return getType(findAttribute(*this, qName));
}

const XMLCh* EventAttributes::getValue(const XMLCh* uri, const XMLCh* localName) const {
    return getValue(findAttribute(*this, uri, localName));
}

const XMLCh* EventAttributes::getValue(const XMLCh* qName) const {
    return getValue(findAttribute(*this, qName));
}

}  // namespace korva
