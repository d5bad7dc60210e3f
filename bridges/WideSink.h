/// The sink that tells of an object's elements in the parser's encoding.
#pragma once

#include "bridges/CharacterStream.h"
#include "bridges/EventAttributes.h"
#include "soap/write/InvalidText.h"
#include "soap/write/ObjectEvents.h"
#include "soap/write/TextStreams.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace korva {

class ElementReceiver;

/// See ObjectEvents for the operations.
class WideSink {
public:
    /// @param rootPrefix what stands before the name of the root
    /// @param replaceInvalidText write U+FFFD for what no document can hold, instead of refusing it
    /// @throws ZELOutOfMemoryError no memory is left
    WideSink(ElementReceiver& receiver, std::string_view rootPrefix, bool replaceInvalidText);
    WideSink(const WideSink&) = delete;
    WideSink& operator=(const WideSink&) = delete;

    void setPlace(const TextPlace& place) { m_invalid.setPlace(place); }
    void startElement(const ElementName& name, std::size_t depth);
    void type(std::string_view text);
    void arrayType(std::string_view elementType, std::string_view brackets);
    void endNull(bool isArray);
    void endEmpty();
    void openChildren() { open(); }
    void openText() { open(); }
    void endElement(const ElementName& name, std::size_t depth, bool hasChildren);

    void value(std::string_view text) {
        m_characters.write(text.data(), text.size());
        m_characters.finish();
    }

    template <class Write>
    void characters(const Write& write) {
        PlainTextStream text(m_characters, m_invalid);
        write(text);
        text.close();
        m_characters.finish();
    }

    template <class Write>
    void base64(const Write& write) {
        write(m_characters);
        m_characters.finish();
    }

    template <class Write>
    void reference(const Write& write) {
        StringStream id;
        PlainTextStream text(id, m_invalid);
        write(text);
        text.close();
        openReference(id.text);
    }

private:
    class StringStream final : public BRIMOutputStream {
    public:
        void write(const char* bytes, std::size_t length) override { text.append(bytes, length); }

        std::string text;
    };

    void setName(const ElementName& name);
    void appendGiven(std::string_view text);
    WideName name() const;
    void open();
    void openReference(std::string_view id);

    ElementReceiver& m_receiver;
    const std::string_view m_rootPrefix;
    const WideName m_typeName;
    const WideName m_arrayTypeName;
    const XMLCh* const m_busNamespace;
    InvalidText m_invalid;
    std::u16string m_qName;  ///< of the element that starts or ends
    std::size_t m_prefixLength = 0;
    EventAttributes m_attributes;
    CharacterStream m_characters;
};

}  // namespace korva
