#include "soap/read/XercesSource.h"

#include "soap/read/DocumentBytes.h"
#include "soap/read/EntityBudget.h"
#include "soap/read/ReadGuard.h"
#include "soap/read/Utf16.h"
#include "soap/read/Utf8Check.h"
#include "soap/read/WideEvents.h"

#include <zel/ZELAssert.h>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/internal/XMLReader.hpp>
#include <xercesc/parsers/SAX2XMLReaderImpl.hpp>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <algorithm>
#include <array>
#include <exception>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace korva {

/// Takes the parser's events.
class XercesSource::Handler final : public xercesc::DefaultHandler, public DocumentLocator {
public:
    Handler(ReadGuard& guard, EntityBudget& budget, ParserMemory& memory)
        : m_guard(guard), m_budget(budget), m_memory(memory) {}

    /// Remembers what ended the bytes of the document too early. It is told when the parser has
    /// come to where they end: what it finds before that is the document's first failure.
    void endBytes(std::exception_ptr failure) noexcept { m_endOfBytes = std::move(failure); }
    bool hasEndedBytes() const noexcept { return m_endOfBytes != nullptr; }
    void rethrowEndOfBytes() const {
        if (m_endOfBytes) std::rethrow_exception(m_endOfBytes);
    }

    DocumentPosition position() const override {
        if (m_locator == nullptr) return {};
        return {m_locator->getLineNumber(), m_locator->getColumnNumber()};
    }

    void notePosition() noexcept {
        if (m_locator != nullptr) m_guard.notePosition(position());
    }

    /// Calls `action` and notes the position if it throws.
    template <class Action>
    void forward(Action action) {
        m_memory.noteEvent();
        try {
            action();
        } catch (...) {
            notePosition();
            throw;
        }
    }

    void setDocumentLocator(const xercesc::Locator* locator) override { m_locator = locator; }

    void startDocument() override {
        forward([this] { m_guard.startDocument(); });
    }
    void endDocument() override {
        forward([this] {
            rethrowEndOfBytes();
            m_guard.endDocument();
        });
    }

    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override {
        forward([=, this] {
            m_declared.push_back({m_events.name(prefix), m_events.name(uri)});
            checkDeclaration(m_declared.back());
        });
    }
    void endPrefixMapping(const XMLCh*) override {
        forward([this] {
            if (!isXml(m_prefixes.back())) m_guard.endPrefix(m_prefixes.back());
            m_prefixes.pop_back();
        });
    }

    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override {
        forward([=, this, &attributes] {
            const std::size_t length = lengthOf(attributes);
            if (length > m_guard.limits().startTag) m_guard.refuseStartTag();
            m_budget.addElement(length);
            const Element element = m_events.element(uri, localName, qName, attributes);
            if (m_events.nameCount() > m_guard.limits().names) m_guard.refuseNames();
            if (element.prefix == "xmlns")
                throw NotWellFormed{"The prefix 'xmlns' is no prefix of elements."};
            startPrefixes();
            m_events.startText();
            m_guard.startElement(element);
        });
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override {
        forward([this] {
            m_events.endText(m_guard);
            m_guard.endElement();
        });
    }
    void characters(const XMLCh* text, XMLSize_t length) override {
        forward([=, this] { m_events.text(text, length, m_guard); });
    }

    void resetDocType() override {
        if (m_guard.limits().refuseDocumentType) forward([this] { m_guard.refuseDocumentType(); });
    }
    void elementDecl(const XMLCh*, const XMLCh*) override { m_memory.noteEvent(); }
    void internalEntityDecl(const XMLCh* name, const XMLCh* value) override {
        forward([=, this] {
            m_budget.declareEntity(utf8(name), std::char_traits<XMLCh>::length(value));
        });
    }
    void attributeDecl(const XMLCh*, const XMLCh*, const XMLCh*, const XMLCh*,
                       const XMLCh*) override {
        forward([this] { m_budget.declareAttribute(); });
    }
    void startEntity(const XMLCh* name) override {
        forward([=, this] { m_budget.tellExpanded(utf8(name)); });
    }

    /// An empty source: nothing outside the document is ever opened.
    xercesc::InputSource* resolveEntity(const XMLCh*, const XMLCh*) override {
        constexpr XMLByte nothing[] = {0};
        return new xercesc::MemBufInputSource(nothing, 0, "", false);
    }

private:
    static std::size_t lengthOf(const xercesc::Attributes& attributes) {
        const auto length = [](const XMLCh* text) {
            return text != nullptr ? std::char_traits<XMLCh>::length(text) : 0;
        };
        std::size_t sum = 0;
        for (XMLSize_t i = 0; i != attributes.getLength(); ++i)
            sum += length(attributes.getQName(i)) + length(attributes.getValue(i)) + 1;
        return sum;
    }

    /// Whether it is the prefix that is always declared: saying so once more tells nothing.
    static bool isXml(std::string_view prefix) { return prefix == "xml"; }

    struct Declaration {
        const char* prefix;
        const char* uri;
    };

    /// What the parser lets pass.
    static void checkDeclaration(const Declaration& declaration) {
        const std::string_view uri = declaration.uri;
        const bool isNamespaceOfXml = uri == "http://www.w3.org/XML/1998/namespace";
        if (isNamespaceOfXml != isXml(declaration.prefix) || uri == "http://www.w3.org/2000/xmlns/")
            throw NotWellFormed{"A namespace that XML has for itself is declared."};
    }

    /// Tells of what the start tag declares, when all of it is known to be right.
    void startPrefixes() {
        for (const Declaration& declaration : m_declared) {
            m_prefixes.push_back(declaration.prefix);
            if (!isXml(declaration.prefix))
                m_guard.startPrefix(declaration.prefix, declaration.uri);
        }
        m_declared.clear();
    }

    ReadGuard& m_guard;
    EntityBudget& m_budget;
    ParserMemory& m_memory;
    I18NConverter m_converter;
    WideEvents m_events{m_converter};
    const xercesc::Locator* m_locator = nullptr;
    std::vector<Declaration> m_declared;  ///< by the start tag that is coming
    std::vector<const char*> m_prefixes;  ///< declared, newest at the back
    std::exception_ptr m_endOfBytes;
};

/// The document's bytes. A failure of theirs ends them.
class XercesSource::Input final : public xercesc::InputSource {
public:
    Input(DocumentBytes& bytes, bool isUtf8, EntityBudget& budget, Handler& handler,
          ParserMemory& memory)
        : InputSource(&memory),
          m_bytes(bytes),
          m_isUtf8(isUtf8),
          m_budget(budget),
          m_handler(handler) {}

    xercesc::BinInputStream* makeStream() const override {
        return new (getMemoryManager()) Stream(*this);
    }

private:
    class Stream final : public xercesc::BinInputStream {
    public:
        explicit Stream(const Input& input) : m_input(input) {}

        XMLFilePos curPos() const override { return m_position; }
        const XMLCh* getContentType() const override { return nullptr; }

        XMLSize_t readBytes(XMLByte* buffer, XMLSize_t size) override {
            if (m_input.m_handler.hasEndedBytes()) return 0;
            try {
                const XMLSize_t count = read(reinterpret_cast<char*>(buffer), size);
                m_position += count;
                return count;
            } catch (...) {
                m_input.m_handler.endBytes(std::current_exception());
                return 0;
            }
        }

    private:
        XMLSize_t read(char* buffer, XMLSize_t size);

        const Input& m_input;
        XMLFilePos m_position = 0;
        std::array<char, 4> m_cut{};  ///< the start of a character that the last piece ended in
        std::size_t m_cutSize = 0;
    };

    DocumentBytes& m_bytes;
    const bool m_isUtf8;
    EntityBudget& m_budget;
    Handler& m_handler;
};

XMLSize_t XercesSource::Input::Stream::read(char* buffer, XMLSize_t size) {
    const std::size_t count = m_input.m_bytes.read(buffer, size);
    m_input.m_budget.addInput(count);
    if (!m_input.m_isUtf8) return count;

    std::string piece(m_cut.data(), m_cutSize);
    piece.append(buffer, count);
    bool isCut = false;
    const std::size_t valid = utf8Prefix(piece, isCut);
    if (valid != piece.size() && (!isCut || count != size)) {
        m_input.m_handler.endBytes(
            std::make_exception_ptr(NotWellFormed{"The document has bytes that are no UTF-8."}));
        return valid - std::min(valid, m_cutSize);
    }
    m_cutSize = piece.copy(m_cut.data(), m_cut.size(), valid);
    return count;
}

/// A parser that ends with the parse. One that ran out of memory is not destroyed: its memory is
/// taken from under it, as its own destructor would go wrong.
class XercesSource::ParserOwner {
public:
    explicit ParserOwner(ParserMemory& memory) : m_memory(memory) {
        try {
            m_parser = new (&memory) xercesc::SAX2XMLReaderImpl(&memory);
        } catch (const xercesc::OutOfMemoryException&) {
            m_memory.release();
            throw;
        }
    }
    ParserOwner(const ParserOwner&) = delete;
    ParserOwner& operator=(const ParserOwner&) = delete;
    ~ParserOwner() { delete m_parser; }

    template <class Action>
    void run(Action action) {
        try {
            action(*m_parser);
        } catch (const xercesc::OutOfMemoryException&) {
            m_parser = nullptr;
            m_memory.release();
            throw;
        }
    }

private:
    ParserMemory& m_memory;
    xercesc::SAX2XMLReaderImpl* m_parser;
};

void XercesSource::run(Input& input, Handler& handler, EntityBudget& budget) {
    using xercesc::XMLUni;
    // The parser makes one of its readers for the document and one for each expansion of an entity
    // of either kind, and tells nobody of those in attributes and in the document type.
    const ParserMemory::Watch watch(m_memory, sizeof(xercesc::XMLReader),
                                    [&](std::size_t count, std::size_t live) {
                                        if (count > 1)
                                            handler.forward([&] { budget.expand(live - 1); });
                                    });

    ParserOwner owner(m_memory);
    owner.run([&](xercesc::SAX2XMLReaderImpl& parser) {
        parser.setContentHandler(&handler);
        parser.setDTDHandler(&handler);
        parser.setErrorHandler(&handler);
        parser.setEntityResolver(&handler);
        parser.setLexicalHandler(&handler);
        parser.setDeclarationHandler(&handler);
        parser.setFeature(XMLUni::fgXercesSchema, false);
        parser.setFeature(XMLUni::fgSAX2CoreValidation, false);
        parser.setFeature(XMLUni::fgSAX2CoreNameSpaces, true);
        parser.setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, true);
        parser.parse(input);
    });
}

void XercesSource::parse(DocumentBytes& bytes, bool isUtf8, ReadGuard& guard) {
    ZEL_ASSERT_NAMED(xercesc::XMLPlatformUtils::fgMemoryManager != nullptr,
                     "This document needs XMLPlatformUtils::Initialize() before it is read.");
    // The text of one attribute counts as text: the parser's buffers have twice the room that they
    // need, in UTF-16, beside some of a fixed size.
    constexpr std::size_t fixedSize = std::size_t{1} << 20U;
    const std::size_t text = guard.limits().text;
    m_memory.setLargestBlock(text < std::numeric_limits<std::size_t>::max() / 8
                                 ? 4 * text + fixedSize
                                 : std::numeric_limits<std::size_t>::max() / 2);
    m_memory.trim();  // a failure may have left much behind
    EntityBudget budget(guard.limits(), guard);
    Handler handler(guard, budget, m_memory);
    guard.setLocator(&handler);
    const std::unique_ptr<ReadGuard, void (*)(ReadGuard*)> end(
        &guard, [](ReadGuard* told) { told->setLocator(nullptr); });
    Input input(bytes, isUtf8, budget, handler, m_memory);
    try {
        run(input, handler, budget);
    } catch (const ParserMemory::BlockTooLarge&) {
        guard.refuseText();
    } catch (const ParserMemory::TooManyBlocks&) {
        guard.refuseStartTag();
    } catch (const xercesc::SAXParseException& exception) {
        guard.notePosition({exception.getLineNumber(), exception.getColumnNumber()});
        handler.rethrowEndOfBytes();
        throw;
    }
    m_memory.trim();
}

}  // namespace korva
