#include "platform/zelidom/OwnedDocument.h"

#include <brim/BRIMStreamInputSource.h>
#include <zel/ZELThrow.h>
#include <zelidom/ZELIDOM_Document.h>
#include <zelidom/ZELIDOM_Error.h>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstddef>
#include <limits>
#include <string>

namespace zelidom {

namespace {

constexpr const char* function = "ZELIDOM_Document::parse";

/// More than a parser needs to be made, or for a start tag of as many attributes as are allowed.
constexpr std::size_t blocksPerEvent = 32 * ZELIDOM_Document::maximumAttributes;

[[noreturn]] void refuseAttributes() {
    const std::string text = "A start tag has more than " +
                             std::to_string(ZELIDOM_Document::maximumAttributes) + " attributes.";
    ZEL_THROW(ZELIDOM_Error(text.c_str()), function);
}

/// Refuses document types, and elements that are nested too deep, before anything is made of them.
class Parser final : public xercesc::XercesDOMParser {
public:
    Parser(DocumentMemory& memory, std::size_t maximumDepth)
        : XercesDOMParser(nullptr, &memory), m_memory(memory), m_maximumDepth(maximumDepth) {}

    void doctypeDecl(const xercesc::DTDElementDecl&, const XMLCh*, const XMLCh*, bool,
                     bool) override {
        ZEL_THROW(ZELIDOM_Error("The document has a document type."), function);
    }

    void startElement(const xercesc::XMLElementDecl& declaration, const unsigned uriId,
                      const XMLCh* const prefix,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      const XMLSize_t attributeCount, const bool isEmpty,
                      const bool isRoot) override {
        m_memory.noteEvent();
        if (attributeCount > ZELIDOM_Document::maximumAttributes) refuseAttributes();
        // An empty element has no end event, and counts only while it starts.
        if (m_depth >= m_maximumDepth) refuseDepth();
        if (!isEmpty) ++m_depth;
        XercesDOMParser::startElement(declaration, uriId, prefix, attributes, attributeCount,
                                      isEmpty, isRoot);
    }

    void docCharacters(const XMLCh* const text, const XMLSize_t length,
                       const bool isCdata) override {
        m_memory.noteEvent();
        XercesDOMParser::docCharacters(text, length, isCdata);
    }

    void docComment(const XMLCh* const text) override {
        m_memory.noteEvent();
        XercesDOMParser::docComment(text);
    }

    void docPI(const XMLCh* const target, const XMLCh* const data) override {
        m_memory.noteEvent();
        XercesDOMParser::docPI(target, data);
    }

    void endElement(const xercesc::XMLElementDecl& declaration, const unsigned uriId,
                    const bool isRoot, const XMLCh* const prefix) override {
        m_memory.noteEvent();
        --m_depth;
        XercesDOMParser::endElement(declaration, uriId, isRoot, prefix);
    }

private:
    [[noreturn]] void refuseDepth() const {
        const std::string text =
            "The elements are nested deeper than " + std::to_string(m_maximumDepth) + ".";
        ZEL_THROW(ZELIDOM_Error(text.c_str()), function);
    }

    DocumentMemory& m_memory;
    const std::size_t m_maximumDepth;
    std::size_t m_depth = 0;
};

/// A parser that ends with the parse, unless it ran out of memory.
class ParserOwner {
public:
    ParserOwner(DocumentMemory& memory, std::size_t maximumDepth)
        : m_parser(new (&memory) Parser(memory, maximumDepth)) {}
    ParserOwner(const ParserOwner&) = delete;
    ParserOwner& operator=(const ParserOwner&) = delete;
    ~ParserOwner() { delete m_parser; }

    xercesc::DOMDocument* parse(const xercesc::InputSource& source) {
        try {
            m_parser->setErrorHandler(&m_failOnErrors);
            m_parser->setDoNamespaces(true);
            m_parser->setValidationScheme(xercesc::XercesDOMParser::Val_Never);
            m_parser->setLoadExternalDTD(false);
            m_parser->setDisableDefaultEntityResolution(true);
            m_parser->parse(source);
            return m_parser->adoptDocument();
        } catch (const xercesc::OutOfMemoryException&) {
            m_parser = nullptr;
            throw;
        }
    }

private:
    xercesc::HandlerBase m_failOnErrors;
    Parser* m_parser;
};

}  // namespace

OwnedDocument::~OwnedDocument() {
    if (m_document != nullptr) m_document->release();
}

xercesc::DOMDocument& OwnedDocument::create() {
    m_document = xercesc::DOMImplementation::getImplementation()->createDocument(&m_memory);
    return *m_document;
}

xercesc::DOMDocument& OwnedDocument::parse(BRIMInputStream& stream, std::size_t maximumDepth) {
    const BRIMStreamInputSource source(stream, &m_memory);
    m_memory.setBlocksPerEvent(blocksPerEvent);
    try {
        ParserOwner parser(m_memory, maximumDepth);
        m_document = parser.parse(source);
    } catch (const DocumentMemory::TooManyBlocks&) {
        refuseAttributes();
    }
    m_memory.setBlocksPerEvent(std::numeric_limits<std::size_t>::max());
    return *m_document;
}

}  // namespace zelidom
