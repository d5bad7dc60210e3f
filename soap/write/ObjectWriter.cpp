#include "soap/write/ObjectWriter.h"

#include "soap/write/WireTokens.h"

#include <brim/BRIMOutputStream.h>
#include <brim/BRIMXmlEncodeOutputStream.h>
#include <zel/ZELAssert.h>

#include <algorithm>
#include <iterator>

namespace korva {

namespace {

using wire::LineToken;

/// How the tags of an element start.
struct TagForm {
    LineToken start;
    LineToken end;
};

/// In the order of ElementName::Form.
constexpr TagForm tagForms[] = {{LineToken("<"), LineToken("</")},
                                {LineToken("<", childPrefix), LineToken("</", childPrefix)},
                                {LineToken("<", itemName), LineToken("</", itemName)}};

void startLine(BRIMOutputStream& stream, const LineToken& token, int level) {
    std::size_t tabs = level > 0 ? static_cast<std::size_t>(level) : 0;
    while (tabs > LineToken::maxTabs) {
        const std::size_t more = std::min(tabs - LineToken::maxTabs, std::size(wire::manyTabs));
        stream.write(wire::manyTabs.data(), more);
        tabs -= more;
    }
    const std::string_view start = token.behind(tabs);
    stream.write(start.data(), start.size());
}

}  // namespace

void WireSink::put(std::string_view token) {
    m_stream.write(token.data(), token.size());
}

// A token that starts with the quote that ends the type; without a type there is none.
void WireSink::putBehindType(std::string_view token) {
    put(m_isLiteral ? token.substr(1) : token);
}

void WireSink::startElement(const ElementName& name, std::size_t depth) {
    startLine(m_stream, tagForms[name.form].start, levelOf(depth));
    if (!name.text.empty()) put(name.text);
    if (name.form == ElementName::Root && m_writeNamespaces) wire::writeObjectNamespaces(m_stream);
}

void WireSink::type(std::string_view text) {
    if (m_isLiteral) return;
    put(wire::typeAttribute);
    put(text);
}

void WireSink::arrayType(std::string_view elementType, std::string_view brackets) {
    if (m_isLiteral) return;
    put(wire::arrayTypeAttributes);
    put(elementType);
    put(brackets);
}

void WireSink::endNull(bool isArray) {
    putBehindType(isArray ? wire::typeEndsEmptyTag : wire::typeEndsNilTag);
}

void WireSink::endEmpty() {
    putBehindType(wire::typeEndsEmptyTag);
}

void WireSink::openChildren() {
    putBehindType(wire::typeEndsLine);
}

void WireSink::openText() {
    putBehindType(wire::typeEndsTag);
}

template <class Write>
void WireSink::reference(const Write& write) {
    putBehindType(wire::typeThenContentId);
    write(m_stream);
    put(wire::contentIdEndsTag);
}

template <class Write>
void WireSink::characters(const Write& write) {
    BRIMXmlEncodeOutputStream encoder(m_stream);
    write(encoder);
    encoder.close();
}

template <class Write>
void WireSink::base64(const Write& write) {
    write(m_stream);
}

void WireSink::endElement(const ElementName& name, std::size_t depth, bool hasChildren) {
    startLine(m_stream, tagForms[name.form].end, hasChildren ? levelOf(depth) : 0);
    if (!name.text.empty()) put(name.text);
    put(wire::tagEnd);
}

ObjectWriter::ObjectWriter(BRIMOutputStream& stream, bool writeNullElements, Style style)
    : m_sink(stream, style == Style::Literal), m_events(m_sink, writeNullElements) {}

void ObjectWriter::write(const void* object, ObjectType type, const char* qName, int indent,
                         bool writeNamespaces, bool force) {
    ZEL_ASSERT_NAMED(qName != NULL, "NULL qname");
    m_sink.startRoot(indent + 1, writeNamespaces);
    m_events.write(object, type, qName, force);
}

}  // namespace korva
