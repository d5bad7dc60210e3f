#include "bridges/WideSink.h"

#include "bridges/ElementReceiver.h"

#include <zel/I18NConverter.h>

namespace korva {

namespace {

void append(std::string_view text, std::u16string& result) {
    I18NConverter::appendUtf16(text.data(), text.size(), result);
}

}  // namespace

WideSink::WideSink(ElementReceiver& receiver, std::string_view rootPrefix, bool replaceInvalidText)
    : m_receiver(receiver),
      m_rootPrefix(rootPrefix),
      m_typeName(fixedName(KORVAI18NRes::eTypeAttribute)),
      m_arrayTypeName(fixedName(KORVAI18NRes::eArrayTypeAttribute)),
      m_busNamespace(fixedText(KORVAI18NRes::eBusNamespace)),
      m_invalid(replaceInvalidText),
      m_characters(receiver) {}

void WideSink::setName(const ElementName& name) {
    m_qName.clear();
    switch (name.form) {
        case ElementName::Root: append(m_rootPrefix, m_qName); break;
        case ElementName::Child:
        case ElementName::GivenChild: append(childPrefix, m_qName); break;
        case ElementName::Item: append(itemName, m_qName); break;
    }
    m_prefixLength = name.form == ElementName::Item ? 0 : m_qName.size();
    if (name.form == ElementName::Root || name.form == ElementName::GivenChild)
        appendGiven(name.text);
    else
        append(name.text, m_qName);
}

/// A name that is no word of the schema.
void WideSink::appendGiven(std::string_view text) {
    StringStream name;
    PlainTextStream stream(name, m_invalid);
    stream.write(text.data(), text.size());
    stream.close();
    append(name.text, m_qName);
}

WideName WideSink::name() const {
    return {m_prefixLength != 0 ? m_busNamespace : u"", m_qName.c_str() + m_prefixLength,
            m_qName.c_str()};
}

void WideSink::startElement(const ElementName& name, std::size_t) {
    setName(name);
    m_attributes.clear();
    if (name.form == ElementName::Root) m_receiver.startRoot(m_attributes);
}

void WideSink::type(std::string_view text) {
    m_attributes.add(m_typeName, text);
}

void WideSink::arrayType(std::string_view elementType, std::string_view brackets) {
    m_attributes.add(m_typeName, fixedText(KORVAI18NRes::eArrayTypeName));
    m_attributes.add(m_arrayTypeName, elementType, brackets);
}

void WideSink::endNull(bool isArray) {
    if (!isArray)
        m_attributes.add(fixedName(KORVAI18NRes::eNilAttribute), fixedText(KORVAI18NRes::eTrue));
    endEmpty();
}

void WideSink::endEmpty() {
    open();
    m_receiver.endElement(name());
}

void WideSink::open() {
    m_receiver.startElement(name(), m_attributes);
}

void WideSink::openReference(std::string_view id) {
    m_attributes.add({u"", u"href", u"href"}, "cid:", id);
    open();
}

void WideSink::endElement(const ElementName& name, std::size_t, bool) {
    setName(name);
    m_receiver.endElement(this->name());
}

}  // namespace korva
