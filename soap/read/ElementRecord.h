/// An element and all that it holds, kept to be told later.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/Findings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korva {

/// Keeps the events of one element. Costs memory as the element has bytes; names and namespaces
/// must live as long as the record, as those of a parse do.
class ElementRecord {
public:
    /// @param place where the document is, for what is found when the record is told
    explicit ElementRecord(const DocumentPlace* place);

    /// A declaration that the next start tag brings along.
    void addPrefix(const char* prefix, const char* uri);
    void addPrefixEnd(const char* prefix);
    void addStart(const Element& element);
    void addText(std::string_view piece);
    void addEnd();

    /// Tells it all to `receiver`, prefixes before the element that declares them. Those that the
    /// outermost element declares are closed at last.
    void replay(DocumentReceiver& receiver) const;

    /// As a document of its own, which declares what was added before it.
    std::string toText() const;

    /// How much there is to tell: grows with the element's bytes.
    std::size_t size() const { return m_events.size() + m_bytes.size(); }

    DocumentPosition position() const { return m_position; }
    const std::string& path() const { return m_path; }

private:
    enum class Kind : unsigned char { Prefix, PrefixEnd, Start, Text, End };

    struct Event {
        Kind kind;
        unsigned attributeCount;  ///< of a start tag
        std::size_t position;     ///< of the first attribute, or of a text in m_bytes
        std::size_t length;       ///< of a text
        const char* name;         ///< of an element, or a prefix
        const char* uri;          ///< of a declaration
        std::string_view elementUri;
        std::string_view prefix;
    };

    /// An attribute whose value stands in m_bytes.
    struct KeptAttribute {
        std::string_view prefix;
        std::string_view localName;
        std::string_view uri;
        std::size_t position;
        std::size_t length;
    };

    std::string_view bytes(std::size_t position, std::size_t length) const {
        return std::string_view(m_bytes).substr(position, length);
    }
    std::size_t keep(std::string_view text);

    DocumentPosition m_position;
    std::string m_path;
    std::vector<Event> m_events;
    std::vector<KeptAttribute> m_attributes;
    std::string m_bytes;
};

}  // namespace korva
