#include "fuzz/TwoSources.h"

#include "fuzz/Wire.h"
#include "soap/read/DocumentReceiver.h"
#include "soap/read/Findings.h"
#include "soap/read/XmlReader.h"

#include <brim/BRIMInputStream.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVAXMLDeserializer.h>
#include <korva/KORVA_PortTypes.h>
#include <zel/ZELThrowable.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>

namespace korva::fuzz {

namespace {

/// Gives a text in pieces.
class PieceStream final : public BRIMInputStream {
public:
    PieceStream(std::string_view text, std::size_t piece) : m_text(text), m_piece(piece) {}

    long long read(char* buffer, std::size_t size) override {
        const std::size_t count = m_text.copy(buffer, std::min(size, m_piece));
        m_text.remove_prefix(count);
        return static_cast<long long>(count);
    }

private:
    std::string_view m_text;
    std::size_t m_piece;
};

/// Writes down what a source tells, a text in one piece.
class EventLog final : public DocumentReceiver {
public:
    const std::string& log() const { return m_log; }

    /// Without a text that may still have gone on.
    std::string logOfWholeEvents() const {
        return m_log.substr(0, m_isInText ? m_textAt : m_log.npos);
    }

    void startDocument() override { add("document", {}); }
    void endDocument() override { add("end of document", {}); }
    void startPrefix(const char* prefix, const char* uri) override {
        add("prefix", prefix);
        add(" is", uri);
    }
    void endPrefix(const char* prefix) override { add("end of prefix", prefix); }
    void startElement(const Element& element) override {
        add("element", element.prefix);
        add(" name", element.localName);
        add(" in", element.uri);
        for (const Attribute& attribute : element.attributes) {
            add(" attribute", attribute.prefix);
            add("  name", attribute.localName);
            add("  in", attribute.uri);
            add("  value", attribute.value);
        }
    }
    void text(std::string_view piece) override {
        if (piece.empty()) return;
        if (!m_isInText) {
            m_textAt = m_log.size();
            m_log += "text ";
        }
        m_isInText = true;
        m_log += piece;
    }
    void endElement() override { add("end of element", {}); }

private:
    void add(std::string_view what, std::string_view text) {
        if (m_isInText) m_log += '\n';
        m_isInText = false;
        m_log.append(what).append(" ").append(text).append("\n");
    }

    std::string m_log;
    bool m_isInText = false;
    std::size_t m_textAt = 0;
};

std::string numbered(unsigned id) {
    std::array<char, 16> text;
    std::snprintf(text.data(), text.size(), "error %08X", id);
    return text.data();
}

/// How a document is read.
struct Way {
    std::string_view document;
    std::size_t piece;
    std::size_t startTag;  ///< the limit, which chooses Xerces-C where libxml2 can't go so far
};

std::string eventsOf(const Way& way) {
    PieceStream stream(way.document, way.piece);
    XmlReader parser;
    parser.limits().startTag = way.startTag;
    EventLog events;
    try {
        Findings findings;
        parser.parse(stream, events, findings, {"parse", "parse()"});
    } catch (const KORVAException& error) {
        return events.logOfWholeEvents() + numbered(error.getMessages()[0].getId());
    }
    return events.log();
}

std::string requestOf(const Way& way) {
    PieceStream stream(way.document, way.piece);
    KORVA_AttachmentHandler attachments;
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(&attachments);
    deserializer.setMaximumStartTag(way.startTag);
    Binding binding;
    deserializer.parse(stream, KORVA_PortTypes::all(), binding);
    return written(*binding, binding->getInputMessage());
}

std::string replyOf(const Way& way) {
    PieceStream stream(way.document, way.piece);
    KORVA_AttachmentHandler attachments;
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(&attachments);
    deserializer.setMaximumStartTag(way.startTag);
    const Binding call = callFor(way.document);
    deserializer.parse(stream, *call, &call->getOutputMessage());
    return written(*call, call->getOutputMessage());
}

std::string objectOf(const Way& way) {
    PieceStream stream(way.document, way.piece);
    KORVAXMLDeserializer deserializer;
    deserializer.setMaximumStartTag(way.startTag);
    const Registry registry = makeRegistry();
    const KORVASchemaTypeI* const object = deserializer.parse(stream, registry.get());
    return object != nullptr ? written(*object) : "nothing";
}

/// What came of the reading, as a text.
template <class Reading>
std::string outcome(Reading reading, const Way& way) {
    try {
        return reading(way);
    } catch (const KORVAException& error) {
        return numbered(error.getMessages()[0].getId());
    } catch (const ZELThrowable& error) {
        return std::string("error ") + error.getThrowableName();
    }
}

/// Whether the one refuses a text where it stands, and the other a character of it. How much of a
/// text is told before the next of its characters is looked at is each parser's own.
bool areOfOneText(std::string_view left, std::string_view right) {
    const auto isText = [](std::string_view told) {
        return told == numbered(eKORVA_TextInNil) || told == numbered(eKORVA_TextInReference);
    };
    const auto isSyntax = [](std::string_view told) { return told == numbered(eKORVA_ParseError); };
    return (isText(left) && isSyntax(right)) || (isSyntax(left) && isText(right));
}

/// The two texts where they part.
std::string parting(std::string_view left, std::string_view right) {
    constexpr std::size_t context = 60;
    const auto at = static_cast<std::size_t>(
        std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
    const std::size_t from = at - std::min(at, context);
    return "\n--- chosen by its bytes:\n" + std::string(left.substr(from, 2 * context)) +
           "\n--- Xerces-C:\n" + std::string(right.substr(from, 2 * context)) + "\n";
}

}  // namespace

std::string differenceOfSources(std::string_view document, std::size_t piece) {
    const Way chosen{document, piece, startTagOfXerces - 1};
    const Way other{document, std::numeric_limits<std::size_t>::max(), startTagOfXerces};
    const struct {
        const char* name;
        std::string (*reading)(const Way&);
    } readings[] = {
        {"events", eventsOf}, {"request", requestOf}, {"reply", replyOf}, {"object", objectOf}};
    for (const auto& [name, reading] : readings) {
        const std::string left = outcome(reading, chosen);
        const std::string right = outcome(reading, other);
        if (left != right && !areOfOneText(left, right)) return name + parting(left, right);
    }
    return {};
}

}  // namespace korva::fuzz
