// How objects look on the wire.
#pragma once

#include "core/Descriptor.h"
#include "soap/write/ObjectEvents.h"

#include <cstddef>
#include <string_view>

class BRIMOutputStream;

namespace korva {

/// The sink that writes what it is told as tags and text.
class WireSink {
public:
    WireSink(BRIMOutputStream& stream, bool isLiteral) : m_stream(stream), m_isLiteral(isLiteral) {}

    /// Where the next root is to stand, and whether it declares the namespaces.
    void startRoot(int level, bool writeNamespaces) {
        m_rootLevel = level;
        m_writeNamespaces = writeNamespaces;
    }

    void startElement(const ElementName& name, std::size_t depth);
    void type(std::string_view text);
    void arrayType(std::string_view elementType, std::string_view brackets);
    void endNull(bool isArray);
    void endEmpty();
    void openChildren();
    void openText();
    template <class Write>
    void reference(const Write& write);
    void value(std::string_view text) { put(text); }
    template <class Write>
    void characters(const Write& write);
    template <class Write>
    void base64(const Write& write);
    void endElement(const ElementName& name, std::size_t depth, bool hasChildren);

private:
    void put(std::string_view token);
    void putBehindType(std::string_view token);
    int levelOf(std::size_t depth) const { return m_rootLevel + static_cast<int>(depth); }

    BRIMOutputStream& m_stream;
    const bool m_isLiteral;
    bool m_writeNamespaces = false;
    int m_rootLevel = 0;
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

    /// @param writeNullElements write an element also for what is null and would be left out
    ObjectWriter(BRIMOutputStream& stream, bool writeNullElements, Style style = Style::Encoded);

    /// Writes one element at `indent` + 1 tabs. Null is left out unless it is an array's or
    /// `force` is set.
    /// @throws ZELAssertError see KORVASOAPSerializer
    void write(const void* object, ObjectType type, const char* qName, int indent,
               bool writeNamespaces, bool force);

private:
    WireSink m_sink;
    ObjectEvents<WireSink> m_events;
};

}  // namespace korva
