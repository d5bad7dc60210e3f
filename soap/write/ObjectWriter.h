/// How objects look on the wire.
#pragma once

#include "core/Descriptor.h"
#include "soap/write/InvalidText.h"
#include "soap/write/ObjectEvents.h"
#include "soap/write/WireTokens.h"

#include <cstddef>
#include <string_view>

class BRIMOutputStream;

namespace korva {

/// What a serializer has been told.
struct WriteSettings {
    bool writeNullElements = false;   ///< also what is null and would be left out
    bool replaceInvalidText = false;  ///< by U+FFFD, instead of refusing it
};

/// The sink that writes what it is told as tags and text. The tokens of one tag are one write.
class WireSink {
public:
    WireSink(BRIMOutputStream& stream, bool replaceInvalidText, bool isLiteral)
        : m_stream(stream), m_invalid(replaceInvalidText), m_isLiteral(isLiteral) {}
    WireSink(const WireSink&) = delete;
    WireSink& operator=(const WireSink&) = delete;

    /// Where the next root is to stand, and whether it declares the namespaces.
    void startRoot(int level, bool writeNamespaces) {
        m_rootLevel = level;
        m_writeNamespaces = writeNamespaces;
        m_end = m_tag;
    }

    void setPlace(const TextPlace& place) { m_invalid.setPlace(place); }
    void startElement(const ElementName& name, std::size_t depth);
    void type(std::string_view text);
    void arrayType(std::string_view elementType, std::string_view brackets);
    void endNull(bool isArray);
    void endEmpty();
    void openChildren();
    void openText();
    template <class Write>
    void reference(const Write& write);
    void value(std::string_view text);
    template <class Write>
    void characters(const Write& write);
    template <class Write>
    void base64(const Write& write);
    void endElement(const ElementName& name, std::size_t depth, bool hasChildren);

private:
    void add(std::string_view token);
    void addLong(std::string_view token);
    void addBehindType(std::string_view token);
    void startLine(const wire::LineToken& token, int level, const ElementName& name);
    void startUnusualLine(const wire::LineToken& token, std::size_t tabs, const ElementName& name);
    void send();
    std::size_t room() const { return static_cast<std::size_t>(m_tag + sizeof m_tag - m_end); }
    int levelOf(std::size_t depth) const { return m_rootLevel + static_cast<int>(depth); }

    BRIMOutputStream& m_stream;
    InvalidText m_invalid;
    const bool m_isLiteral;
    bool m_writeNamespaces = false;
    int m_rootLevel = 0;
    char* m_end = m_tag;
    char m_tag[512];  ///< as much of a tag as has not been written yet
};

/// Writes values to a stream as encoded elements, straight from the objects.
///
/// After an exception a writer is of no more use.
class ObjectWriter {
public:
    enum class Style {
        Encoded,  ///< each element tells its type
        Literal   ///< no element does
    };

    ObjectWriter(BRIMOutputStream& stream, const WriteSettings& settings,
                 Style style = Style::Encoded);

    /// What stands around the values, for the paths of errors: "/run". The text outlives the
    /// writing.
    void setParent(std::string_view path) { m_events.setParent(path); }

    /// Writes one element at `indent` + 1 tabs. Null is left out unless it is an array's or
    /// `force` is set.
    /// @throws ZELAssertError, KORVAException see KORVASOAPSerializer
    void write(const void* object, ObjectType type, const ElementName& name, int indent,
               bool writeNamespaces, bool force);

    /// The same with the name as it was given to a serializer.
    /// @throws ZELAssertError also if `qName` is null
    void write(const void* object, ObjectType type, const char* qName, int indent,
               bool writeNamespaces, bool force);

private:
    WireSink m_sink;
    ObjectEvents<WireSink> m_events;
};

}  // namespace korva
