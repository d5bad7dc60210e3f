#include "soap/read/ElementRecord.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMXmlEncodeOutputStream.h>

#include <algorithm>
#include <cstring>

namespace korva {

ElementRecord::ElementRecord(const DocumentPlace* place) {
    if (place == nullptr) return;
    m_position = place->position();
    m_path = place->path();
}

std::size_t ElementRecord::keep(std::string_view text) {
    const std::size_t position = m_bytes.size();
    m_bytes += text;
    return position;
}

void ElementRecord::addPrefix(const char* prefix, const char* uri) {
    m_events.push_back({Kind::Prefix, 0, 0, 0, prefix, uri, {}, {}});
}

void ElementRecord::addPrefixEnd(const char* prefix) {
    m_events.push_back({Kind::PrefixEnd, 0, 0, 0, prefix, nullptr, {}, {}});
}

void ElementRecord::addStart(const Element& element) {
    const std::size_t first = m_attributes.size();
    for (const Attribute& attribute : element.attributes)
        m_attributes.push_back({attribute.prefix, attribute.localName, attribute.uri,
                                keep(attribute.value), attribute.value.size()});
    m_events.push_back({Kind::Start, static_cast<unsigned>(element.attributes.size()), first, 0,
                        element.localName, nullptr, element.uri, element.prefix});
}

void ElementRecord::addText(std::string_view piece) {
    const std::size_t position = keep(piece);
    m_events.push_back({Kind::Text, 0, position, piece.size(), nullptr, nullptr, {}, {}});
}

void ElementRecord::addEnd() {
    m_events.push_back({Kind::End, 0, 0, 0, nullptr, nullptr, {}, {}});
}

void ElementRecord::replay(DocumentReceiver& receiver) const {
    std::vector<Attribute> attributes;
    std::vector<const char*> ownPrefixes;  // of the outermost element
    bool isInside = false;
    for (const Event& event : m_events) {
        switch (event.kind) {
            case Kind::Prefix:
                if (!isInside) ownPrefixes.push_back(event.name);
                receiver.startPrefix(event.name, event.uri);
                break;
            case Kind::PrefixEnd: receiver.endPrefix(event.name); break;
            case Kind::Start:
                isInside = true;
                attributes.clear();
                for (unsigned i = 0; i != event.attributeCount; ++i) {
                    const KeptAttribute& kept = m_attributes[event.position + i];
                    attributes.push_back(
                        {kept.prefix, kept.localName, kept.uri, bytes(kept.position, kept.length)});
                }
                receiver.startElement({event.prefix, event.name, event.elementUri, attributes});
                break;
            case Kind::Text: receiver.text(bytes(event.position, event.length)); break;
            case Kind::End: receiver.endElement(); break;
        }
    }
    for (auto prefix = ownPrefixes.rbegin(); prefix != ownPrefixes.rend(); ++prefix)
        receiver.endPrefix(*prefix);
}

namespace {

/// Writes XML to a string.
class Markup {
public:
    Markup& operator<<(std::string_view markup) {
        m_out.write(markup.data(), markup.size());
        return *this;
    }
    void escape(std::string_view text) { m_escaping.write(text.data(), text.size()); }
    void attribute(std::string_view prefix, std::string_view name, std::string_view value) {
        *this << " ";
        this->name(prefix, name);
        *this << "=\"";
        escape(value);
        *this << "\"";
    }
    void name(std::string_view prefix, std::string_view localName) {
        if (!prefix.empty()) *this << prefix << ":";
        *this << localName;
    }
    void declaration(const char* prefix, const char* uri) {
        const std::string_view declared(prefix);
        if (declared.empty())
            attribute({}, "xmlns", uri);
        else
            attribute("xmlns", declared, uri);
    }
    std::string text() const { return {m_out.str(), m_out.pcount()}; }

private:
    BRIMMemoryOutputStream m_out;
    BRIMXmlEncodeOutputStream m_escaping{m_out};
};

}  // namespace

std::string ElementRecord::toText() const {
    struct Declaration {
        const char* prefix;
        const char* uri;
    };
    Markup markup;
    std::vector<Declaration> declarations;  // that wait for their element
    std::vector<const Event*> open;
    for (const Event& event : m_events) {
        switch (event.kind) {
            case Kind::Prefix: {
                // What was declared further out is hidden.
                const auto hidden = std::find_if(
                    declarations.begin(), declarations.end(), [&](const Declaration& other) {
                        return std::strcmp(other.prefix, event.name) == 0;
                    });
                if (hidden != declarations.end()) declarations.erase(hidden);
                declarations.push_back({event.name, event.uri});
                break;
            }
            case Kind::PrefixEnd: break;
            case Kind::Start:
                markup << "<";
                markup.name(event.prefix, event.name);
                for (const Declaration& declaration : declarations)
                    markup.declaration(declaration.prefix, declaration.uri);
                declarations.clear();
                for (unsigned i = 0; i != event.attributeCount; ++i) {
                    const KeptAttribute& kept = m_attributes[event.position + i];
                    markup.attribute(kept.prefix, kept.localName,
                                     bytes(kept.position, kept.length));
                }
                markup << ">";
                open.push_back(&event);
                break;
            case Kind::Text: markup.escape(bytes(event.position, event.length)); break;
            case Kind::End:
                markup << "</";
                markup.name(open.back()->prefix, open.back()->name);
                markup << ">";
                open.pop_back();
                break;
        }
    }
    return markup.text();
}

}  // namespace korva
