#include "tests/vocabulary/SchemaScan.h"

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <filesystem>

namespace korva::test {

namespace {

using xercesc::DOMElement;

std::string textOf(const XMLCh* text) {
    char* copied = xercesc::XMLString::transcode(text);
    std::string out(copied);
    xercesc::XMLString::release(&copied);
    return out;
}

std::string nameOf(const DOMElement& element) {
    return textOf(element.getLocalName());
}

std::string attributeOf(const DOMElement& element, const char* name) {
    XMLCh* key = xercesc::XMLString::transcode(name);
    const std::string out = textOf(element.getAttribute(key));
    xercesc::XMLString::release(&key);
    return out;
}

std::string withoutPrefix(const std::string& name) {
    return name.substr(name.find(':') + 1);
}

// Takes up what stands inside a type, however deep, but not the notes on its fields and words.
void takeUp(const DOMElement& parent, ScannedType& type) {
    for (const DOMElement* child = parent.getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
        const std::string name = nameOf(*child);
        if (name == "element") {
            type.fields.push_back({attributeOf(*child, "name"), attributeOf(*child, "type")});
        } else if (name == "enumeration") {
            type.words.push_back(attributeOf(*child, "value"));
        } else if (name == "appinfo") {
            const std::string note = textOf(child->getTextContent());
            if (note.rfind("open", 0) != 0) continue;
            const bool isEnum =
                nameOf(*static_cast<const DOMElement*>(parent.getParentNode())) == "simpleType";
            (isEnum ? type.open : type.openFields) = true;
            if (note != "open") type.openWords = std::stoi(note.substr(5));
        } else {
            if (name == "extension") type.base = withoutPrefix(attributeOf(*child, "base"));
            takeUp(*child, type);
        }
    }
}

}  // namespace

const SchemaScan& SchemaScan::instance() {
    static const SchemaScan& scan = *new SchemaScan;
    return scan;
}

SchemaScan::SchemaScan() {
    xercesc::XMLPlatformUtils::Initialize();
    for (const auto& entry : std::filesystem::directory_iterator(KORVA_TEST_SCHEMA_DIR)) {
        const std::filesystem::path& path = entry.path();
        if (path.extension() == ".xsd" && path.filename() != "soap-encoding.xsd")
            read(path.string());
    }
    xercesc::XMLPlatformUtils::Terminate();
}

void SchemaScan::read(const std::string& path) {
    xercesc::XercesDOMParser parser;
    parser.setDoNamespaces(true);
    parser.parse(path.c_str());
    const DOMElement* const root = parser.getDocument()->getDocumentElement();
    for (const DOMElement* child = root->getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
        const std::string kind = nameOf(*child);
        if (kind != "complexType" && kind != "simpleType") continue;
        ScannedType type;
        type.name = attributeOf(*child, "name");
        type.isAbstract = attributeOf(*child, "abstract") == "true";
        takeUp(*child, type);
        EXPECT_TRUE(m_types.emplace(type.name, type).second) << type.name << " stands twice";
    }
}

bool SchemaScan::isA(const std::string& name, const std::string& base) const {
    for (std::string current = name; !current.empty(); current = type(current).base)
        if (current == base) return true;
    return false;
}

std::vector<std::string> SchemaScan::derivedFrom(const std::string& base) const {
    std::vector<std::string> out;
    for (const auto& [name, type] : m_types)
        if (isA(name, base)) out.push_back(name);
    return out;
}

std::vector<ScannedField> SchemaScan::allFields(const std::string& name) const {
    const ScannedType& own = type(name);
    std::vector<ScannedField> out;
    if (!own.base.empty()) out = allFields(own.base);
    out.insert(out.end(), own.fields.begin(), own.fields.end());
    return out;
}

}  // namespace korva::test
