#include "generator/reader/XmlLoader.h"

#include <zel/I18NConverter.h>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <fstream>
#include <iterator>

namespace korva::schemac {

namespace {

namespace xml = xercesc;

constexpr std::size_t kDeepest = 64;

std::string utf8(const XMLCh* text, XMLSize_t length) {
    return I18NConverter::utf8({text, length});
}

std::string utf8(const XMLCh* text) {
    return text != nullptr ? utf8(text, std::char_traits<XMLCh>::length(text)) : std::string();
}

// Ends the parse; the error has been recorded.
struct NestedTooDeep {};

class TreeBuilder final : public xml::DefaultHandler {
public:
    TreeBuilder(std::string path, Diagnostics& diagnostics)
        : m_path(std::move(path)), m_diagnostics(diagnostics) {}

    void setDocumentLocator(const xml::Locator* locator) override { m_locator = locator; }

    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override {
        m_prefixes.emplace_back(utf8(prefix), utf8(uri));
    }

    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh*,
                      const xml::Attributes& attributes) override {
        auto element = std::make_unique<XmlElement>();
        element->at = {m_path, static_cast<unsigned>(m_locator->getLineNumber())};
        element->uri = utf8(uri);
        element->name = utf8(localName);
        element->prefixes.swap(m_prefixes);
        element->parent = m_current;
        if (++m_depth >= kDeepest) {
            m_diagnostics.error(element->at, item("element", element->name),
                                "the file is nested too deep",
                                "fewer than " + std::to_string(kDeepest) + " levels");
            m_failed = true;
            throw NestedTooDeep();
        }
        for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
            element->attributes.push_back({utf8(attributes.getURI(i)),
                                           utf8(attributes.getLocalName(i)),
                                           utf8(attributes.getValue(i))});
        }
        XmlElement* added = element.get();
        if (m_current == nullptr) {
            m_root = std::move(element);
        } else {
            m_current->children.push_back(std::move(element));
        }
        m_current = added;
    }

    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override {
        --m_depth;
        m_current = const_cast<XmlElement*>(m_current->parent);
    }

    void characters(const XMLCh* text, XMLSize_t length) override {
        m_current->text += utf8(text, length);
    }

    void fatalError(const xml::SAXParseException& error) override {
        m_diagnostics.error({m_path, static_cast<unsigned>(error.getLineNumber())}, "XML",
                            utf8(error.getMessage()), "a well-formed document");
        m_root.reset();
        m_failed = true;
    }

    std::unique_ptr<XmlElement> takeRoot() { return m_failed ? nullptr : std::move(m_root); }

private:
    std::string m_path;
    Diagnostics& m_diagnostics;
    const xml::Locator* m_locator = nullptr;
    std::vector<std::pair<std::string, std::string>> m_prefixes;
    std::unique_ptr<XmlElement> m_root;
    XmlElement* m_current = nullptr;
    std::size_t m_depth = 0;
    bool m_failed = false;
};

}  // namespace

struct XmlLoader::Parser {
    struct Runtime {
        Runtime() { xml::XMLPlatformUtils::Initialize(); }
        ~Runtime() { xml::XMLPlatformUtils::Terminate(); }
    } runtime;
    std::unique_ptr<xml::SAX2XMLReader> reader{xml::XMLReaderFactory::createXMLReader()};
};

XmlLoader::XmlLoader() : m_parser(std::make_unique<Parser>()) {
    xml::SAX2XMLReader& reader = *m_parser->reader;
    reader.setFeature(xml::XMLUni::fgSAX2CoreNameSpaces, true);
    reader.setFeature(xml::XMLUni::fgSAX2CoreValidation, false);
    reader.setFeature(xml::XMLUni::fgXercesSchema, false);
    reader.setFeature(xml::XMLUni::fgXercesLoadExternalDTD, false);
    reader.setFeature(xml::XMLUni::fgXercesDisableDefaultEntityResolution, true);
}

XmlLoader::~XmlLoader() = default;

std::unique_ptr<XmlElement> XmlLoader::load(const std::string& path, Diagnostics& diagnostics) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file.is_open() || file.bad()) {
        diagnostics.error({path, 0}, "file", "it cannot be read", "an existing file");
        return nullptr;
    }
    TreeBuilder builder(path, diagnostics);
    xml::SAX2XMLReader& reader = *m_parser->reader;
    reader.setContentHandler(&builder);
    reader.setErrorHandler(&builder);
    const xml::MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()),
                                        bytes.size(), "schema");
    try {
        reader.parse(source);
    } catch (const NestedTooDeep&) {
    }
    reader.setContentHandler(nullptr);
    reader.setErrorHandler(nullptr);
    return builder.takeRoot();
}

const std::string* XmlElement::attribute(std::string_view attributeName,
                                         std::string_view attributeUri) const {
    for (const XmlAttribute& candidate : attributes) {
        if (candidate.name == attributeName && candidate.uri == attributeUri) {
            return &candidate.value;
        }
    }
    return nullptr;
}

const std::string* XmlElement::namespaceOf(std::string_view prefix) const {
    for (const XmlElement* element = this; element != nullptr; element = element->parent) {
        for (const auto& [declared, uriOfPrefix] : element->prefixes) {
            if (declared == prefix) return &uriOfPrefix;
        }
    }
    return nullptr;
}

std::string collapsed(std::string_view text) {
    std::string out;
    bool pending = false;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            pending = !out.empty();
        } else {
            if (pending) out.push_back(' ');
            pending = false;
            out.push_back(c);
        }
    }
    return out;
}

}  // namespace korva::schemac
