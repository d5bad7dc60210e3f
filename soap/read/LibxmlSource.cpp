#include "soap/read/LibxmlSource.h"

#include "soap/read/CharacterData.h"
#include "soap/read/DocumentBytes.h"
#include "soap/read/ReadGuard.h"
#include "soap/read/Utf8Check.h"
#include "soap/read/Words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <exception>
#include <libxml/globals.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korva {

namespace {

const char* chars(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

/// The parser's own limits are off: ours strike before. Without "NOENT" an '&' in the value of an
/// attribute would be told as "&#38;"; there are no entities but those that all documents have.
constexpr int options = XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOENT;

/// How many names, elements or attributes a parser may have room for and still be kept.
constexpr int ordinaryCount = 4096;

/// Names of the parser's dictionary, which has one address for all occurrences of a text: with its
/// length, and as a word of the schema.
class Names {
public:
    struct Name {
        const char* address = nullptr;
        std::size_t length = 0;
        const char* word = nullptr;  ///< the schema's, or the same text again

        std::string_view view() const { return {address, length}; }
    };

    const Name& find(const xmlChar* name) {
        const char* const address = chars(name);
        const auto bits = reinterpret_cast<std::uintptr_t>(address);
        Name& known = m_known[(bits ^ bits >> 8U) % m_known.size()];
        if (known.address != address) {
            const std::string_view text(address);
            known = {address, text.size(), wordOr(text, address)};
        }
        return known;
    }

private:
    std::array<Name, 512> m_known;
};

/// What the parser tells the thread instead of its own handler, when it runs out of memory, is not
/// printed, and not kept for the next who asks.
class SilentErrors {
public:
    SilentErrors()
        : m_function(xmlStructuredError),
          m_data(xmlStructuredErrorContext),
          m_hadError(xmlGetLastError() != nullptr) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    }
    SilentErrors(const SilentErrors&) = delete;
    SilentErrors& operator=(const SilentErrors&) = delete;
    ~SilentErrors() {
        xmlSetStructuredErrorFunc(m_data, m_function);
        if (!m_hadError) xmlResetLastError();
    }

private:
    xmlStructuredErrorFunc m_function;
    void* m_data;
    bool m_hadError;
};

}  // namespace

/// A parser and the names that it has met.
class LibxmlSource::Parser {
public:
    explicit Parser(const xmlSAXHandler& handler) : m_context(xmlNewParserCtxt()) {
        if (m_context == nullptr) throw std::bad_alloc();
        *m_context->sax = handler;
    }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;
    ~Parser() { xmlFreeParserCtxt(m_context); }

    xmlParserCtxt& context() { return *m_context; }
    Names& names() { return m_names; }
    Names& namespaces() { return m_namespaces; }

    /// Whether it is worth keeping.
    bool isOrdinary() const {
        return xmlDictSize(m_context->dict) <= ordinaryCount &&
               m_context->nameMax <= ordinaryCount && m_context->maxatts <= 5 * ordinaryCount &&
               m_context->nsMax <= 2 * ordinaryCount;
    }

private:
    xmlParserCtxtPtr m_context;
    Names m_names;
    Names m_namespaces;
};

/// The parse of one document.
class LibxmlSource::Parse final : public DocumentLocator {
public:
    Parse(Parser& parser, DocumentBytes& bytes, ReadGuard& guard)
        : m_parser(parser), m_context(parser.context()), m_bytes(bytes), m_guard(guard) {}

    static xmlSAXHandler handler();

    void run();

    DocumentPosition position() const noexcept override;

private:
    static Parse& of(void* data) { return *static_cast<Parse*>(data); }

    /// Calls `action` unless the parse failed before. No exception may go through the parser.
    template <class Action>
    void guarded(Action action) noexcept {
        if (m_failure) return;
        try {
            action();
        } catch (...) {
            fail();
        }
    }

    void fail() noexcept {
        m_failure = std::current_exception();
        m_guard.notePosition(position());
        // The parser finds no more than it has, and tells nobody.
        m_context.disableSAX = 1;
    }

    void startElement(const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                      int declarationCount, const xmlChar** declarations, int attributeCount,
                      const xmlChar** attributes);
    void endElement();
    void characters(std::string_view text);
    std::size_t takeText(std::string_view bytes);
    void error(const xmlError& error);
    int read(char* buffer, std::size_t size);
    void checkSize();
    std::size_t fill(char* buffer, std::size_t size);

    Parser& m_parser;
    xmlParserCtxt& m_context;
    DocumentBytes& m_bytes;
    ReadGuard& m_guard;
    int m_behind = 0;  ///< how much of what is being told the parser has not passed
    std::exception_ptr m_failure;
    std::vector<Attribute> m_attributes;  ///< of the last start tag
    std::size_t m_depth = 0;
    std::vector<std::pair<std::size_t, const char*>> m_prefixes;  ///< declared, with the depth
    bool m_isInText = false;         ///< all that the parser has is told, and text may follow
    std::array<char, 8> m_heldBack;  ///< bytes that the next piece begins with
    std::size_t m_heldBackSize = 0;
    bool m_isAtEnd = false;              ///< of the bytes
    std::exception_ptr m_streamFailure;  ///< told when the parser comes to where the bytes end
};

xmlSAXHandler LibxmlSource::Parse::handler() {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = [](void* data, const xmlChar* localName, const xmlChar* prefix,
                                const xmlChar* uri, int declarationCount,
                                const xmlChar** declarations, int attributeCount, int,
                                const xmlChar** attributes) {
        Parse& parse = of(data);
        // A tag that has no end is told before its error is.
        const xmlChar* const end = parse.m_context.input->cur;
        const bool isEmpty = end[0] == '/' && end[1] == '>';
        if (!isEmpty && end[0] != '>') return;
        // Behind the '>', where a reader of the text would be.
        parse.m_behind = isEmpty ? 2 : 1;
        parse.guarded([&] {
            parse.startElement(localName, prefix, uri, declarationCount, declarations,
                               attributeCount, attributes);
        });
        parse.m_behind = 0;
    };
    handler.endElementNs = [](void* data, const xmlChar*, const xmlChar*, const xmlChar*) {
        of(data).guarded([data] { of(data).endElement(); });
    };
    handler.characters = [](void* data, const xmlChar* text, int length) {
        of(data).guarded([=] {
            of(data).characters({chars(text), static_cast<std::size_t>(length)});
        });
    };
    handler.cdataBlock = [](void* data, const xmlChar* text, int length) {
        of(data).guarded([=] {
            of(data).m_guard.text({chars(text), static_cast<std::size_t>(length)});
        });
    };
    handler.ignorableWhitespace = handler.characters;
    handler.internalSubset = [](void* data, const xmlChar*, const xmlChar*, const xmlChar*) {
        // The look at the prolog excludes it, so one of the two is wrong.
        of(data).guarded([data] { of(data).m_guard.refuseDocumentType(); });
    };
    handler.serror = [](void* data, xmlErrorPtr error) {
        of(data).guarded([=] { of(data).error(*error); });
    };
    return handler;
}

void LibxmlSource::Parse::run() {
    m_context.userData = this;
    xmlCtxtUseOptions(&m_context, options);
    xmlParserInputBufferPtr buffer = xmlParserInputBufferCreateIO(
        [](void* data, char* bytes, int size) {
            return of(data).read(bytes, static_cast<std::size_t>(size));
        },
        nullptr, this, XML_CHAR_ENCODING_NONE);
    if (buffer == nullptr) throw std::bad_alloc();
    xmlParserInputPtr input = xmlNewIOInputStream(&m_context, buffer, XML_CHAR_ENCODING_NONE);
    if (input == nullptr) {
        xmlFreeParserInputBuffer(buffer);
        throw std::bad_alloc();
    }
    if (inputPush(&m_context, input) < 0) {
        xmlFreeInputStream(input);
        throw std::bad_alloc();
    }

    m_guard.startDocument();
    xmlParseDocument(&m_context);
    guarded([this] {
        if (m_streamFailure) std::rethrow_exception(m_streamFailure);
        if (m_context.errNo == XML_ERR_NO_MEMORY) throw std::bad_alloc();
        if (!m_context.wellFormed || !m_isAtEnd)
            throw NotWellFormed{"The document is not well-formed."};
        m_guard.endDocument();
    });
    if (m_failure) std::rethrow_exception(m_failure);
    xmlCtxtReset(&m_context);
}

DocumentPosition LibxmlSource::Parse::position() const noexcept {
    const xmlParserInput* const input = m_context.input;
    if (input == nullptr || input->line <= 0) return {};
    return {static_cast<unsigned long long>(input->line),
            static_cast<unsigned long long>(input->col + m_behind)};
}

// ----- events -----

void LibxmlSource::Parse::startElement(const xmlChar* localName, const xmlChar* prefix,
                                       const xmlChar* uri, int declarationCount,
                                       const xmlChar** declarations, int attributeCount,
                                       const xmlChar** attributes) {
    // The parser holds a start tag whole, and a '<' stands nowhere in it but at its start.
    const xmlParserInput& input = *m_context.input;
    const auto held = static_cast<std::size_t>(input.cur - input.base);
    if (held > m_guard.limits().startTag) {
        const std::string_view tag(chars(input.base), held);
        if (held - tag.rfind('<') > m_guard.limits().startTag) m_guard.refuseStartTag();
    }

    // The parser's dictionary does not grow with its names for ever.
    if (static_cast<std::size_t>(xmlDictSize(m_context.dict)) > m_guard.limits().names)
        m_guard.refuseNames();

    const auto viewIn = [](Names& names, const xmlChar* text) {
        return text != nullptr ? names.find(text).view() : std::string_view();
    };
    Names& names = m_parser.names();
    Names& namespaces = m_parser.namespaces();
    ++m_depth;
    for (int i = 0; i != declarationCount; ++i) {
        // A prefix and its namespace; no prefix is the default's.
        const char* const declared =
            declarations[2 * i] != nullptr ? chars(declarations[2 * i]) : "";
        const xmlChar* const declaredUri = declarations[2 * i + 1];
        m_guard.startPrefix(declared, declaredUri != nullptr ? chars(declaredUri) : "");
        m_prefixes.emplace_back(m_depth, declared);
    }
    m_attributes.clear();
    for (int i = 0; i != attributeCount; ++i) {
        // Local name, prefix, namespace, and the value's begin and end.
        const xmlChar** const attribute = attributes + 5 * i;
        m_attributes.push_back(
            {viewIn(namespaces, attribute[1]),
             viewIn(names, attribute[0]),
             viewIn(namespaces, attribute[2]),
             {chars(attribute[3]), static_cast<std::size_t>(attribute[4] - attribute[3])}});
    }
    m_guard.startElement({viewIn(namespaces, prefix), names.find(localName).word,
                          viewIn(namespaces, uri), m_attributes});
}

void LibxmlSource::Parse::endElement() {
    m_guard.endElement();
    for (; !m_prefixes.empty() && m_prefixes.back().first == m_depth; m_prefixes.pop_back())
        m_guard.endPrefix(m_prefixes.back().second);
    --m_depth;
}

/// A long text is not left to the parser, which tells it in pieces from one reference to the next.
/// When it tells that of a reference it holds nothing back and goes on from its input, so that
/// what follows as text may be taken from there.
void LibxmlSource::Parse::characters(std::string_view text) {
    m_guard.text(text);
    xmlParserInput& input = *m_context.input;
    // The text of a reference is one character; a longer one may be followed by what is not told.
    const bool isReference = text.size() <= 4 && input.cur != input.base && input.cur[-1] == ';' &&
                             !(text.data() >= chars(input.base) && text.data() < chars(input.end));
    if (!isReference) return;
    input.cur += takeText({chars(input.cur), static_cast<std::size_t>(input.end - input.cur)});
    m_isInText = input.cur == input.end;
    // The parser would get more before it looks whether it holds too much.
    xmlParserInputShrink(&input);
}

/// Tells the text at the start of `bytes`, and counts it where the parser does.
std::size_t LibxmlSource::Parse::takeText(std::string_view bytes) {
    xmlParserInput& input = *m_context.input;
    DocumentPosition position = {static_cast<unsigned long long>(input.line),
                                 static_cast<unsigned long long>(input.col)};
    const std::size_t length = tellCharacterData(bytes, m_guard, position);
    input.line = static_cast<int>(position.line);
    input.col = static_cast<int>(position.column);
    return length;
}

void LibxmlSource::Parse::error(const xmlError& error) {
    if (error.code == XML_ERR_NO_MEMORY) throw std::bad_alloc();
    if (error.level < XML_ERR_ERROR) return;
    // Any text may be the name of a namespace.
    if (error.domain == XML_FROM_NAMESPACE && error.code == XML_WAR_NS_URI) return;
    // Told by the parser when it comes to where the bytes end too early.
    if (m_streamFailure) std::rethrow_exception(m_streamFailure);
    if (error.line > 0)
        m_guard.notePosition({static_cast<unsigned long long>(error.line),
                              static_cast<unsigned long long>(std::max(error.int2, 0))});
    std::string_view text = error.message != nullptr ? error.message : "";
    while (text.ends_with('\n'))
        text.remove_suffix(1);
    throw NotWellFormed{std::string(text)};
}

// ----- bytes -----

/// What the parser calls when it needs more. It gets no more when the parse has failed.
int LibxmlSource::Parse::read(char* buffer, std::size_t size) {
    if (m_failure || m_streamFailure || m_isAtEnd) return 0;
    guarded([this] { checkSize(); });
    if (m_failure) return 0;
    for (;;) {
        std::size_t length = 0;
        try {
            length = fill(buffer, size);
        } catch (...) {
            m_streamFailure = std::current_exception();
        }
        if (!m_isInText) return static_cast<int>(length);
        std::size_t told = 0;
        guarded([&] { told = takeText({buffer, length}); });
        if (m_failure) return 0;
        if (told == length && !m_isAtEnd && !m_streamFailure) continue;
        m_isInText = false;
        std::memmove(buffer, buffer + told, length - told);
        return static_cast<int>(length - told);
    }
}

/// Looks at what the parser holds before it gets more.
void LibxmlSource::Parse::checkSize() {
    // Beside a start tag the parser may hold some of what stands before it, and of what follows.
    constexpr std::size_t margin = 16384;
    const xmlParserInput* const input = m_context.input;
    if (input == nullptr) return;
    const auto held = static_cast<std::size_t>(input->end - input->base);
    const bool isInTag =
        m_context.instate == XML_PARSER_CONTENT || m_context.instate == XML_PARSER_ATTRIBUTE_VALUE;
    if (isInTag && held > margin && held - margin > m_guard.limits().startTag)
        m_guard.refuseStartTag();
}

/// Takes the next bytes of the document, which are checked here: the parser lets some pass that
/// are no UTF-8, and takes a NUL for the end.
std::size_t LibxmlSource::Parse::fill(char* buffer, std::size_t size) {
    for (;;) {
        std::memcpy(buffer, m_heldBack.data(), m_heldBackSize);
        const std::size_t wanted = size - m_heldBackSize;
        const std::size_t count = m_bytes.read(buffer + m_heldBackSize, wanted);
        std::size_t length = m_heldBackSize + count;
        m_heldBackSize = 0;
        m_isAtEnd = count != wanted;

        bool isCut = false;
        const std::size_t valid = utf8Prefix({buffer, length}, isCut);
        if (valid != length && (!isCut || m_isAtEnd)) {
            m_isAtEnd = true;
            m_streamFailure =
                std::make_exception_ptr(NotWellFormed{"The document has bytes that are no UTF-8."});
            return valid;
        }
        // The parser looks at some marks only as far as its bytes go, so none is divided.
        std::size_t end = valid;
        if (!m_isAtEnd)
            while (end != 0 && valid - end != 3 &&
                   std::strchr("]-?>\r", buffer[end - 1]) != nullptr)
                --end;
        m_heldBackSize = length - end;
        std::memcpy(m_heldBack.data(), buffer + end, m_heldBackSize);
        if (end != 0 || m_isAtEnd) return end;
    }
}

// ----- the source -----

LibxmlSource::LibxmlSource() = default;

LibxmlSource::~LibxmlSource() = default;

void LibxmlSource::parse(DocumentBytes& bytes, ReadGuard& guard) {
    xmlInitParser();
    const SilentErrors silence;
    // A parser that fails is not used again.
    std::unique_ptr<Parser> parser = std::move(m_parser);
    if (parser == nullptr) parser = std::make_unique<Parser>(Parse::handler());
    Parse parse(*parser, bytes, guard);
    guard.setLocator(&parse);
    const std::unique_ptr<ReadGuard, void (*)(ReadGuard*)> end(
        &guard, [](ReadGuard* told) { told->setLocator(nullptr); });
    parse.run();
    if (parser->isOrdinary()) m_parser = std::move(parser);
}

}  // namespace korva
