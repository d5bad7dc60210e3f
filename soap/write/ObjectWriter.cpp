#include "soap/write/ObjectWriter.h"

#include "soap/write/TextStreams.h"

#include <brim/BRIMOutputStream.h>
#include <zel/ZELAssert.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
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
                                {LineToken("<", childPrefix), LineToken("</", childPrefix)},
                                {LineToken("<", itemName), LineToken("</", itemName)}};

template <class Word>
void copyEnds(std::string_view text, char* out) {
    Word first;
    Word last;
    std::memcpy(&first, text.data(), sizeof first);
    std::memcpy(&last, text.data() + text.size() - sizeof last, sizeof last);
    std::memcpy(out, &first, sizeof first);
    std::memcpy(out + text.size() - sizeof last, &last, sizeof last);
}

/// Names are short: a call costs more than two moves that overlap.
/// @return the end of the copy
inline char* append(std::string_view text, char* out) {
    struct Half {
        std::uint64_t words[2];
    };
    const std::size_t size = text.size();
    if (size > 2 * sizeof(Half))
        std::memcpy(out, text.data(), size);
    else if (size >= sizeof(Half))
        copyEnds<Half>(text, out);
    else if (size >= sizeof(std::uint64_t))
        copyEnds<std::uint64_t>(text, out);
    else if (size >= sizeof(std::uint32_t))
        copyEnds<std::uint32_t>(text, out);
    else if (size != 0) {
        out[0] = text[0];
        out[size / 2] = text[size / 2];
        out[size - 1] = text[size - 1];
    }
    return out + size;
}

}  // namespace

void WireSink::send() {
    if (m_end == m_tag) return;
    m_stream.write(m_tag, static_cast<std::size_t>(m_end - m_tag));
    m_end = m_tag;
}

inline void WireSink::add(std::string_view token) {
    if (token.size() > room())
        addLong(token);
    else
        m_end = append(token, m_end);
}

/// More than there is room for.
void WireSink::addLong(std::string_view token) {
    send();
    if (token.size() > sizeof m_tag)
        m_stream.write(token.data(), token.size());
    else
        m_end = append(token, m_end);
}

// A token that starts with the quote that ends the type; without a type there is none.
inline void WireSink::addBehindType(std::string_view token) {
    add(m_isLiteral ? token.substr(1) : token);
}

/// The start of a line and, behind its token, the name.
inline void WireSink::startLine(const LineToken& token, int level, const ElementName& name) {
    const std::size_t tabs = level > 0 ? static_cast<std::size_t>(level) : 0;
    const bool isWord = name.form == ElementName::Child || name.form == ElementName::Item;
    if (tabs <= LineToken::maxTabs && isWord && name.text.size() + LineToken::maxSize <= room())
        m_end = append(name.text, token.copyBehind(tabs, m_end));
    else
        startUnusualLine(token, tabs, name);
}

void WireSink::startUnusualLine(const LineToken& token, std::size_t tabs, const ElementName& name) {
    while (tabs > LineToken::maxTabs) {
        const std::size_t more = std::min(tabs - LineToken::maxTabs, std::size(wire::manyTabs));
        add({wire::manyTabs.data(), more});
        tabs -= more;
    }
    add(token.behind(tabs));
    if (name.form == ElementName::Child || name.form == ElementName::Item) {
        add(name.text);
        return;
    }
    send();
    PlainTextStream stream(m_stream, m_invalid);
    stream.write(name.text.data(), name.text.size());
    stream.close();
}

inline void WireSink::startElement(const ElementName& name, std::size_t depth) {
    startLine(tagForms[name.form].start, levelOf(depth), name);
    if (m_writeNamespaces && depth == 0) {
        send();
        wire::writeObjectNamespaces(m_stream);
    }
}

inline void WireSink::type(std::string_view text) {
    if (m_isLiteral) return;
    add(wire::typeAttribute);
    add(text);
}

inline void WireSink::arrayType(std::string_view elementType, std::string_view brackets) {
    if (m_isLiteral) return;
    add(wire::arrayTypeAttributes);
    add(elementType);
    add(brackets);
}

inline void WireSink::endNull(bool isArray) {
    addBehindType(isArray ? wire::typeEndsEmptyTag : wire::typeEndsNilTag);
    send();
}

inline void WireSink::endEmpty() {
    addBehindType(wire::typeEndsEmptyTag);
    send();
}

inline void WireSink::openChildren() {
    addBehindType(wire::typeEndsLine);
    send();
}

inline void WireSink::openText() {
    addBehindType(wire::typeEndsTag);
}

inline void WireSink::value(std::string_view text) {
    add(text);
}

template <class Write>
void WireSink::reference(const Write& write) {
    addBehindType(wire::typeThenContentId);
    send();
    PlainTextStream id(m_stream, m_invalid);
    write(id);
    id.close();
    add(wire::contentIdEndsTag);
}

template <class Write>
void WireSink::characters(const Write& write) {
    send();
    EncodedTextStream text(m_stream, m_invalid);
    write(text);
    text.close();
}

template <class Write>
void WireSink::base64(const Write& write) {
    send();
    write(m_stream);
}

inline void WireSink::endElement(const ElementName& name, std::size_t depth, bool hasChildren) {
    startLine(tagForms[name.form].end, hasChildren ? levelOf(depth) : 0, name);
    add(wire::tagEnd);
    send();
}

ObjectWriter::ObjectWriter(BRIMOutputStream& stream, const WriteSettings& settings, Style style)
    : m_sink(stream, settings.replaceInvalidText, style == Style::Literal),
      m_events(m_sink, settings.writeNullElements) {}

void ObjectWriter::write(const void* object, ObjectType type, const ElementName& name, int indent,
                         bool writeNamespaces, bool force) {
    m_sink.startRoot(indent + 1, writeNamespaces);
    m_events.write(object, type, name, force);
}

void ObjectWriter::write(const void* object, ObjectType type, const char* qName, int indent,
                         bool writeNamespaces, bool force) {
    ZEL_ASSERT_NAMED(qName != NULL, "NULL qname");
    write(object, type, {ElementName::Root, qName}, indent, writeNamespaces, force);
}

}  // namespace korva
