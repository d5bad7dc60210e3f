#include "generator/reader/SchemaReader.h"

#include "generator/reader/Reading.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace korva::schemac {

using namespace reading;

namespace {

// Facets that restrict a text; the restriction is the server's to enforce.
constexpr std::array<std::string_view, 5> kTextFacets = {"pattern", "length", "minLength",
                                                         "maxLength", "whiteSpace"};

bool isTextFacet(const XmlElement& element) {
    return element.uri == kXsd &&
           std::find(kTextFacets.begin(), kTextFacets.end(), element.name) != kTextFacets.end();
}

constexpr std::string_view kQualified = "qualified";
constexpr std::string_view kUnqualified = "unqualified";
constexpr std::string_view kItem = "item";

std::string isValue(std::string_view attribute, const std::string& value) {
    std::string out = "its ";
    out.append(attribute).append(" is ").append(inQuotes(value));
    return out;
}

// The children of `element` but for its annotation.
std::vector<const XmlElement*> contentOf(const XmlElement& element) {
    std::vector<const XmlElement*> out;
    for (const auto& child : element.children) {
        if (!child->is(kXsd, "annotation")) out.push_back(child.get());
    }
    return out;
}

}  // namespace

std::string besides(const std::string& from, const std::string& relative) {
    return (std::filesystem::path(from).parent_path() / relative).lexically_normal().string();
}

void SchemaReader::read(const std::string& path) {
    if (!m_seen.insert(std::filesystem::path(path).lexically_normal().string()).second) return;
    m_schema.files.push_back(path);
    const auto root = m_loader.load(path, m_diagnostics);
    if (root == nullptr) return;
    if (!root->is(kXsd, "schema")) {
        m_diagnostics.error(root->at, describe(*root), "the file is no schema", "xs:schema");
        return;
    }
    readSchema(*root, path);
}

void SchemaReader::readSchema(const XmlElement& root, const std::string& path) {
    const std::string uri = required(root, "targetNamespace", m_diagnostics);
    if (m_schema.uri.empty()) m_schema.uri = uri;
    if (!uri.empty() && uri != m_schema.uri) {
        m_diagnostics.error(root.at, "schema", "its target namespace is " + inQuotes(uri),
                            inQuotes(m_schema.uri) + ", as in the files before");
    }
    readElementForm(root);
    for (const auto& child : root.children) {
        if (child->is(kXsd, "include")) {
            readInclude(*child, path);
        } else if (child->is(kXsd, "complexType")) {
            readComplexType(*child);
        } else if (child->is(kXsd, "simpleType")) {
            readSimpleType(*child);
        } else if (child->is(kXsd, "element")) {
            readTopElement(*child);
        } else if (!child->is(kXsd, "annotation") && !child->is(kXsd, "import")) {
            refuse(*child,
                   "xs:complexType, xs:simpleType, xs:element, xs:include, xs:import or "
                   "xs:annotation",
                   m_diagnostics);
        }
    }
}

void SchemaReader::readElementForm(const XmlElement& root) {
    const std::string* form = root.attribute("elementFormDefault");
    if (form != nullptr && *form != kQualified) {
        m_diagnostics.error(root.at, "schema", isValue("elementFormDefault", *form),
                            "\"qualified\"; fields are written in the namespace of the bus");
        return;
    }
    const bool tells = form != nullptr;
    if (!m_tellsWire) m_tellsWire = tells;
    if (*m_tellsWire == tells) return;
    m_diagnostics.error(
        root.at, "schema",
        tells ? "its elementFormDefault is \"qualified\"" : "it has no elementFormDefault",
        tells ? "none, as in the files before" : "\"qualified\", as in the files before");
}

void SchemaReader::readTopElement(const XmlElement& element) {
    checkAttributes(element, {"name", "type"}, m_diagnostics);
    for (const XmlElement* child : contentOf(element)) {
        m_diagnostics.error(child->at, describe(element), "it defines a type in place",
                            "the attribute \"type\"");
    }
    annotationOf(element, Notes::None, m_diagnostics);
    model::Field top;
    top.at = element.at;
    top.name = required(element, "name", m_diagnostics);
    const std::string typeName = required(element, "type", m_diagnostics);
    if (top.name.empty() || typeName.empty()) return;
    top.reference = typeReference(element, typeName, m_diagnostics);
    m_schema.elements.push_back(std::move(top));
}

void SchemaReader::readInclude(const XmlElement& include, const std::string& path) {
    const std::string location = required(include, "schemaLocation", m_diagnostics);
    if (location.empty()) return;
    const std::string included = besides(path, location);
    if (!std::filesystem::is_regular_file(included)) {
        m_diagnostics.error(include.at, "include", "there is no file " + inQuotes(included),
                            "a path relative to the file that includes it");
        return;
    }
    read(included);
}

void SchemaReader::readComplexType(const XmlElement& element) {
    checkAttributes(element, {"name", "abstract"}, m_diagnostics);
    model::Type& type = m_schema.types.emplace_back();
    type.at = element.at;
    type.name = required(element, "name", m_diagnostics);
    type.isAbstract = flag(element, "abstract", false, m_diagnostics);
    const Annotation annotation = annotationOf(element, Notes::Open, m_diagnostics);
    type.documentation = annotation.documentation;
    type.openFields = annotation.open;

    const auto content = contentOf(element);
    if (content.empty()) {
        m_diagnostics.error(element.at, describe(element), "it has no content",
                            "xs:sequence (which may be empty) or xs:complexContent");
        return;
    }
    if (content.front()->is(kXsd, "sequence")) {
        readSequence(*content.front(), type);
    } else if (content.front()->is(kXsd, "complexContent")) {
        readComplexContent(*content.front(), type);
    } else {
        refuse(*content.front(), "xs:sequence or xs:complexContent", m_diagnostics);
    }
    for (std::size_t i = 1; i < content.size(); ++i) {
        refuse(*content[i], "one xs:sequence or xs:complexContent and nothing behind it",
               m_diagnostics);
    }
}

void SchemaReader::readComplexContent(const XmlElement& content, model::Type& type) {
    const auto derivations = contentOf(content);
    if (derivations.size() != 1 || !(derivations.front()->is(kXsd, "extension") ||
                                     derivations.front()->is(kXsd, "restriction"))) {
        m_diagnostics.error(content.at, describe(content), "its derivation is unclear",
                            "one xs:extension of a class, or one xs:restriction of SOAP-ENC:Array");
        return;
    }
    const XmlElement& derivation = *derivations.front();
    checkAttributes(derivation, {"base"}, m_diagnostics);
    const std::string base = required(derivation, "base", m_diagnostics);
    if (base.empty()) return;
    if (derivation.name == "restriction") {
        const model::QName name = qualified(derivation, base, m_diagnostics);
        if (name.uri != kSoapEncoding || name.name != "Array") {
            m_diagnostics.error(derivation.at, describe(derivation),
                                "its base is " + inQuotes(base), "SOAP-ENC:Array");
            return;
        }
        readArray(derivation, type);
        return;
    }
    type.base = typeReference(derivation, base, m_diagnostics);
    bool sawSequence = false;
    for (const XmlElement* child : contentOf(derivation)) {
        if (child->is(kXsd, "sequence") && !sawSequence) {
            sawSequence = true;
            readSequence(*child, type);
        } else {
            refuse(*child, "one xs:sequence", m_diagnostics);
        }
    }
}

void SchemaReader::readArray(const XmlElement& restriction, model::Type& type) {
    constexpr std::string_view kBrackets = "[]";
    type.form = model::TypeForm::Array;
    if (type.isAbstract) {
        m_diagnostics.error(type.at, item("complexType", type.name), "the array is abstract",
                            "an array without the attribute \"abstract\"");
    }
    const std::string* arrayType = nullptr;
    const XmlElement* holder = nullptr;
    const XmlElement* items = nullptr;
    for (const XmlElement* child : contentOf(restriction)) {
        if (child->is(kXsd, "sequence") && items == nullptr && holder == nullptr) {
            items = child;
            continue;
        }
        if (!child->is(kXsd, "attribute")) {
            refuse(*child, "one xs:attribute with a wsdl:arrayType", m_diagnostics);
            continue;
        }
        checkAttributes(*child, {"ref"}, m_diagnostics);
        holder = child;
        arrayType = child->attribute("arrayType", kWsdl);
    }
    if (arrayType == nullptr) {
        m_diagnostics.error(holder != nullptr ? holder->at : restriction.at,
                            item("complexType", type.name), "the array does not tell its elements",
                            "an xs:attribute with a wsdl:arrayType such as \"bus:schedule[]\"");
        return;
    }
    if (!arrayType->ends_with(kBrackets) || arrayType->size() == kBrackets.size() ||
        arrayType->find('[') != arrayType->size() - kBrackets.size()) {
        m_diagnostics.error(holder->at, item("complexType", type.name),
                            "its wsdl:arrayType is \"" + *arrayType + "\"",
                            "a type and one pair of empty brackets");
        return;
    }
    type.element = typeReference(
        *holder, arrayType->substr(0, arrayType->size() - kBrackets.size()), m_diagnostics);
    if (items != nullptr) {
        readItems(*items, type);
    } else if (tellsWire()) {
        m_diagnostics.error(restriction.at, item("complexType", type.name),
                            "it does not tell its items",
                            "an xs:sequence of one xs:element \"item\"");
    }
}

void SchemaReader::readItems(const XmlElement& sequence, const model::Type& type) {
    checkAttributes(sequence, {}, m_diagnostics);
    const auto content = contentOf(sequence);
    if (content.size() != 1 || !content.front()->is(kXsd, "element")) {
        m_diagnostics.error(sequence.at, describe(sequence), "the items of the array are unclear",
                            "one xs:element \"item\"");
        return;
    }
    const XmlElement& element = *content.front();
    checkAttributes(element, {"name", "type", "form", "minOccurs", "maxOccurs", "nillable"},
                    m_diagnostics);
    const std::string name = required(element, "name", m_diagnostics);
    if (!name.empty() && name != kItem) {
        m_diagnostics.error(element.at, describe(element), isValue("name", name),
                            "\"item\", as it is written");
    }
    checkForm(element, kUnqualified);
    checkOccurrence(element, "unbounded", "an array has any number of items");
    checkMayBeMissing(element);
    const std::string text = required(element, "type", m_diagnostics);
    if (text.empty()) return;
    const model::QName reference = qualified(element, text, m_diagnostics);
    if (reference.uri != type.element.uri || reference.name != type.element.name) {
        m_diagnostics.error(element.at, describe(element), isValue("type", text),
                            inQuotes(type.element.text) + ", as in the wsdl:arrayType");
    }
}

void SchemaReader::checkForm(const XmlElement& element, std::string_view wire) {
    const std::string* told = element.attribute("form");
    if (told != nullptr ? *told == wire : !tellsWire() || wire == kQualified) return;
    m_diagnostics.error(element.at, describe(element),
                        told != nullptr ? isValue("form", *told) : "it has no form",
                        inQuotes(wire) + ", as it is written");
}

void SchemaReader::checkOccurrence(const XmlElement& element, const std::string& most,
                                   std::string_view why) {
    const std::string* told = element.attribute("maxOccurs");
    const std::string occurs = told != nullptr ? *told : "1";
    if (occurs == most) return;
    std::string expected = inQuotes(most);
    expected.append("; ").append(why);
    m_diagnostics.error(element.at, describe(element), isValue("maxOccurs", occurs), expected);
}

void SchemaReader::checkMayBeMissing(const XmlElement& element) {
    const std::string* least = element.attribute("minOccurs");
    if (least != nullptr ? *least != "0" : tellsWire()) {
        m_diagnostics.error(element.at, describe(element),
                            least != nullptr ? isValue("minOccurs", *least) : "it has no minOccurs",
                            "\"0\"; what has no value is left out");
    }
    if (!flag(element, "nillable", !tellsWire(), m_diagnostics)) {
        m_diagnostics.error(element.at, describe(element), "it is not nillable",
                            "nillable=\"true\"; what has no value may be written as nil");
    }
}

void SchemaReader::readSequence(const XmlElement& sequence, model::Type& type) {
    checkAttributes(sequence, {}, m_diagnostics);
    for (const XmlElement* child : contentOf(sequence)) {
        if (child->is(kXsd, "element")) {
            readElement(*child, type);
        } else {
            m_diagnostics.error(child->at, describe(*child), "it has no place in a sequence",
                                "xs:element");
        }
    }
}

void SchemaReader::readElement(const XmlElement& element, model::Type& type) {
    checkAttributes(element, {"name", "type", "form", "minOccurs", "maxOccurs", "nillable"},
                    m_diagnostics);
    checkForm(element, kQualified);
    checkOccurrence(element, "1", "what repeats is an array type of its own");
    checkMayBeMissing(element);
    for (const XmlElement* child : contentOf(element)) {
        m_diagnostics.error(child->at, describe(element), "it defines a type in place",
                            "the attribute \"type\"");
    }
    model::Field field;
    field.at = element.at;
    field.name = required(element, "name", m_diagnostics);
    const std::string typeName = required(element, "type", m_diagnostics);
    if (field.name.empty() || typeName.empty()) return;
    field.reference = typeReference(element, typeName, m_diagnostics);
    const Annotation annotation = annotationOf(element, Notes::Supplied, m_diagnostics);
    field.documentation = annotation.documentation;
    field.supplied = annotation.supplied;
    type.fields.push_back(std::move(field));
}

void SchemaReader::readSimpleType(const XmlElement& element) {
    checkAttributes(element, {"name"}, m_diagnostics);
    model::Type& type = m_schema.types.emplace_back();
    type.at = element.at;
    type.form = model::TypeForm::RestrictedString;
    type.name = required(element, "name", m_diagnostics);
    const Annotation annotation = annotationOf(element, Notes::OpenCount, m_diagnostics);
    type.documentation = annotation.documentation;
    type.openWords = annotation.open ? model::kUnknownCount : annotation.openCount;
    if (type.openWords != 0) type.form = model::TypeForm::Enumeration;

    const auto content = contentOf(element);
    if (content.size() != 1 || !content.front()->is(kXsd, "restriction")) {
        m_diagnostics.error(element.at, describe(element), "it is no restriction of a text",
                            "one xs:restriction of xs:string");
        return;
    }
    readFacets(*content.front(), type);
}

void SchemaReader::readFacets(const XmlElement& restriction, model::Type& type) {
    checkAttributes(restriction, {"base"}, m_diagnostics);
    const std::string base = required(restriction, "base", m_diagnostics);
    if (!base.empty()) {
        const model::QName name = qualified(restriction, base, m_diagnostics);
        if (!name.uri.empty() && (name.uri != kXsd || name.name != "string")) {
            m_diagnostics.error(restriction.at, item("simpleType", type.name),
                                "it restricts " + inQuotes(base), "xs:string");
        }
    }
    for (const XmlElement* child : contentOf(restriction)) {
        if (isTextFacet(*child)) continue;
        if (!child->is(kXsd, "enumeration")) {
            refuse(*child, "xs:enumeration or a facet of a text", m_diagnostics);
            continue;
        }
        checkAttributes(*child, {"value"}, m_diagnostics);
        type.form = model::TypeForm::Enumeration;
        const Annotation annotation = annotationOf(*child, Notes::Supplied, m_diagnostics);
        model::Word word;
        word.at = child->at;
        word.text = required(*child, "value", m_diagnostics);
        word.documentation = annotation.documentation;
        word.supplied = annotation.supplied;
        if (!word.text.empty()) type.words.push_back(std::move(word));
    }
}

}  // namespace korva::schemac
