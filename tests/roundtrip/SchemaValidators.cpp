#include "tests/roundtrip/SchemaValidators.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstdarg>
#include <cstdio>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlschemas.h>
#include <stdexcept>
#include <vector>

namespace korva::test {

namespace {

constexpr const char* busUri = KORVA_TEST_AUTHORITY "/schemas/halyardns/3/";
constexpr const char* xsiUri = "http://www.w3.org/2001/XMLSchema-instance";

const xmlChar* chars(const char* text) {
    return reinterpret_cast<const xmlChar*>(text);
}

/// The beginning of a schema with all that a file declares.
std::string including(const std::string& path) {
    return std::string("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:bus='") +
           busUri + "' targetNamespace='" + busUri + "'><xs:include schemaLocation='file://" +
           path + "'/>";
}

/// The schema, and a root for elements that tell their types. No wildcard: under one, Xerces-C does
/// not look at what has no declaration.
std::string wrapperSchema(const std::string& path) {
    return including(path) +
           "<xs:element name='fragments'><xs:complexType>"
           "<xs:choice minOccurs='0' maxOccurs='unbounded'>"
           "<xs:element ref='bus:halyardHeader'/>"
           "<xs:element name='value' type='xs:anyType' form='qualified'/>"
           "<xs:element name='item' type='xs:anyType'/>"
           "</xs:choice></xs:complexType></xs:element></xs:schema>";
}

struct Free {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    void operator()(xmlSchema* schema) const { xmlSchemaFree(schema); }
    void operator()(xmlSchemaParserCtxt* context) const { xmlSchemaFreeParserCtxt(context); }
    void operator()(xmlSchemaValidCtxt* context) const { xmlSchemaFreeValidCtxt(context); }
};

using Document = std::unique_ptr<xmlDoc, Free>;

Document parse(const std::string& xml) {
    Document document(xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "fragments.xml",
                                    nullptr, XML_PARSE_NONET | XML_PARSE_HUGE));
    if (document == nullptr) throw std::runtime_error("not well-formed: " + xml);
    return document;
}

/// The document below a root that declares the prefixes of an envelope.
Document wrap(const std::string& document) {
    std::string xml = std::string("<bus:fragments xmlns:SOAP-ENC='") +
                      "http://schemas.xmlsoap.org/soap/encoding/' xmlns:bus='" + busUri +
                      "' xmlns:xsi='" + xsiUri + "' xmlns:xs='http://www.w3.org/2001/XMLSchema'>";
    const std::size_t declaration = document.compare(0, 5, "<?xml") == 0 ? document.find("?>") : 0;
    xml += document.substr(declaration == 0 ? 0 : declaration + 2);
    return parse(xml + "</bus:fragments>");
}

std::string textOf(const Document& document) {
    xmlChar* bytes = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(document.get(), &bytes, &size, "UTF-8");
    std::string text(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
    xmlFree(bytes);
    return text;
}

std::string attributeOf(xmlNode* element, const char* name) {
    xmlChar* const value = xmlGetNsProp(element, chars(name), chars(xsiUri));
    std::string text = value == nullptr ? "" : reinterpret_cast<const char*>(value);
    xmlFree(value);
    return text;
}

/// All elements at and below `element` that `takes`, outer ones first.
template <class Predicate>
std::vector<xmlNode*> elementsOf(xmlNode* element, Predicate takes) {
    std::vector<xmlNode*> found;
    if (takes(element)) found.push_back(element);
    for (xmlNode* child = xmlFirstElementChild(element); child != nullptr;
         child = xmlNextElementSibling(child))
        for (xmlNode* const below : elementsOf(child, takes))
            found.push_back(below);
    return found;
}

std::vector<xmlNode*> arraysOf(xmlNode* root) {
    return elementsOf(
        root, [](xmlNode* element) { return attributeOf(element, "type") == "SOAP-ENC:Array"; });
}

void remove(xmlNode* element) {
    xmlUnlinkNode(element);
    xmlFreeNode(element);
}

void append(std::string& errors, const char* format, std::va_list arguments) {
    char text[2000];
    std::vsnprintf(text, sizeof text, format, arguments);
    errors += text;
}

void collect(void* errors, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    append(*static_cast<std::string*>(errors), format, arguments);
    va_end(arguments);
}

std::string narrow(const XMLCh* text) {
    char* bytes = xercesc::XMLString::transcode(text);
    std::string result(bytes);
    xercesc::XMLString::release(&bytes);
    return result;
}

}  // namespace

std::string betweenArrays(const std::string& document) {
    const Document wrapped = wrap(document);
    xmlNode* const root = xmlDocGetRootElement(wrapped.get());
    for (xmlNode* const array : arraysOf(root)) {
        while (xmlNode* const item = xmlFirstElementChild(array)) {
            xmlUnlinkNode(item);
            xmlAddChild(root, item);
            xmlReconciliateNs(wrapped.get(), item);
        }
        remove(array);
    }
    return textOf(wrapped);
}

std::string withDeclaredArrays(const std::string& document, const std::string& rootType) {
    const Document wrapped = wrap(document);
    xmlNode* const root = xmlDocGetRootElement(wrapped.get());
    for (xmlNode* const array : arraysOf(root)) {
        xmlAttr* const type = xmlHasNsProp(array, chars("type"), chars(xsiUri));
        if (array->parent == root)
            xmlSetNsProp(array, type->ns, chars("type"), chars(rootType.c_str()));
        else
            xmlRemoveProp(type);
    }
    return textOf(wrapped);
}

std::string withoutNils(const std::string& document, const std::set<std::string>& types) {
    const Document parsed = parse(document);
    xmlNode* const root = xmlDocGetRootElement(parsed.get());
    for (xmlNode* const element : elementsOf(root, [&](xmlNode* candidate) {
             return attributeOf(candidate, "nil") == "true" &&
                    types.count(attributeOf(candidate, "type")) != 0;
         }))
        remove(element);
    return textOf(parsed);
}

class SchemaValidators::Libxml2 {
public:
    explicit Libxml2(const std::string& schema) {
        // What is to be fetched is an error instead.
        xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
        const std::unique_ptr<xmlSchemaParserCtxt, Free> context(
            xmlSchemaNewMemParserCtxt(schema.data(), static_cast<int>(schema.size())));
        xmlSchemaSetParserErrors(context.get(), collect, collect, &m_schemaErrors);
        m_schema.reset(xmlSchemaParse(context.get()));
        if (m_schema == nullptr && m_schemaErrors.empty()) m_schemaErrors = "libxml2: no schema\n";
    }

    const std::string& schemaErrors() const { return m_schemaErrors; }

    std::string errors(const std::string& xml) const {
        const Document document = parse(xml);
        const std::unique_ptr<xmlSchemaValidCtxt, Free> context(
            xmlSchemaNewValidCtxt(m_schema.get()));
        std::string errors;
        xmlSchemaSetValidErrors(context.get(), collect, collect, &errors);
        if (xmlSchemaValidateDoc(context.get(), document.get()) != 0 && errors.empty())
            errors = "libxml2: invalid\n";
        return errors;
    }

private:
    std::unique_ptr<xmlSchema, Free> m_schema;
    std::string m_schemaErrors;
};

class SchemaValidators::Xerces : private xercesc::ErrorHandler, private xercesc::EntityResolver {
public:
    explicit Xerces(const std::string& schema, bool checkFully)
        : m_reader(xercesc::XMLReaderFactory::createXMLReader(
              xercesc::XMLPlatformUtils::fgMemoryManager, &m_pool)) {
        using xercesc::XMLUni;
        m_reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, true);
        m_reader->setFeature(XMLUni::fgSAX2CoreValidation, true);
        m_reader->setFeature(XMLUni::fgXercesDynamic, false);
        m_reader->setFeature(XMLUni::fgXercesSchema, true);
        m_reader->setFeature(XMLUni::fgXercesSchemaFullChecking, checkFully);
        m_reader->setFeature(XMLUni::fgXercesUseCachedGrammarInParse, true);
        m_reader->setFeature(XMLUni::fgXercesLoadSchema, false);
        m_reader->setErrorHandler(this);
        m_reader->setEntityResolver(this);
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(schema.data()),
                                                schema.size(), "schema.xsd");
        m_reader->loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
        m_schemaErrors.swap(m_errors);
    }

    const std::string& schemaErrors() const { return m_schemaErrors; }

    std::string errors(const std::string& xml) {
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()),
                                                xml.size(), "fragments.xml");
        m_reader->parse(source);
        std::string errors;
        errors.swap(m_errors);
        return errors;
    }

private:
    void warning(const xercesc::SAXParseException& exception) override { note(exception); }
    void error(const xercesc::SAXParseException& exception) override { note(exception); }
    void fatalError(const xercesc::SAXParseException& exception) override { note(exception); }
    void resetErrors() override {}

    void note(const xercesc::SAXParseException& exception) {
        m_errors += "Xerces-C: " + narrow(exception.getSystemId()) + ":" +
                    std::to_string(exception.getLineNumber()) + ": " +
                    narrow(exception.getMessage()) + "\n";
    }

    xercesc::InputSource* resolveEntity(const XMLCh*, const XMLCh* systemId) override {
        const std::string id = narrow(systemId);
        if (id.compare(0, 5, "http:") != 0 && id.compare(0, 6, "https:") != 0) return nullptr;
        m_errors += "Xerces-C: looks for " + id + "\n";
        static constexpr XMLByte nothing[] = {'<', 'x', '/', '>'};
        return new xercesc::MemBufInputSource(nothing, sizeof nothing, "nothing");
    }

    xercesc::XMLGrammarPoolImpl m_pool;
    std::unique_ptr<xercesc::SAX2XMLReader> m_reader;
    std::string m_errors;
    std::string m_schemaErrors;
};

SchemaValidators::SchemaValidators(const std::string& path)
    : m_libxml2(new Libxml2(wrapperSchema(path))),
      m_xerces(new Xerces(wrapperSchema(path), true)) {}

SchemaValidators::~SchemaValidators() = default;

std::string SchemaValidators::schemaErrors() const {
    return m_libxml2->schemaErrors() + m_xerces->schemaErrors();
}

std::string SchemaValidators::loadingErrors(const std::string& path) {
    const std::string schema = including(path) + "</xs:schema>";
    return Libxml2(schema).schemaErrors() + Xerces(schema, false).schemaErrors();
}

std::string SchemaValidators::libxml2Errors(const std::string& document) const {
    return m_libxml2->errors(document);
}

std::string SchemaValidators::xercesErrors(const std::string& document) const {
    return m_xerces->errors(document);
}

}  // namespace korva::test
