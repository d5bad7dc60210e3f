#include "tests/support/SchemaScan.h"

#include <zlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace korva::test {

namespace {

/// One tag of an XML file: what stands between its angle brackets, and the text behind it.
class Tag {
public:
    Tag(std::string text, std::string textBehind)
        : m_text(std::move(text)), m_textBehind(std::move(textBehind)) {}

    bool is(const std::string& name) const {
        return m_text.compare(0, name.size(), name) == 0 &&
               (m_text.size() == name.size() ||
                std::string(" \t\r\n/").find(m_text[name.size()]) != std::string::npos);
    }

    /// The value of an attribute, empty if there is none.
    std::string attribute(const std::string& name) const {
        const std::string start = " " + name + "=\"";
        const std::size_t at = m_text.find(start);
        if (at == std::string::npos) return {};
        const std::size_t value = at + start.size();
        return m_text.substr(value, m_text.find('"', value) - value);
    }

    bool isEmptyElement() const { return m_text.back() == '/'; }
    const std::string& textBehind() const { return m_textBehind; }

private:
    std::string m_text;
    std::string m_textBehind;
};

std::vector<Tag> tagsOf(const std::string& xml) {
    std::vector<Tag> tags;
    std::size_t at = 0;
    while ((at = xml.find('<', at)) != std::string::npos) {
        if (xml.compare(at, 4, "<!--") == 0) {
            at = xml.find("-->", at);
            continue;
        }
        const std::size_t end = xml.find('>', at);
        tags.emplace_back(xml.substr(at + 1, end - at - 1),
                          xml.substr(end + 1, xml.find('<', end) - end - 1));
        at = end;
    }
    return tags;
}

std::string withoutPrefix(const std::string& name) {
    return name.substr(name.find(':') + 1);
}

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// Takes up "open", or "open" and how many words are not known.
void noteOpen(const std::string& note, SchemaType& type) {
    const std::string open = "open";
    if (note.compare(0, open.size(), open) != 0) return;
    (type.family == SchemaType::eEnum ? type.open : type.openFields) = true;
    if (note.size() > open.size()) type.openWords = std::stoi(note.substr(open.size()));
}

void scanFile(const std::filesystem::path& path, Schema::Types& types) {
    std::ifstream file(path);
    const std::string xml{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    SchemaType* type = nullptr;
    bool insideMember = false;  // what is noted there is no note on the type
    const auto begin = [&](const std::string& name, SchemaType::Family family) {
        const auto [row, isNew] = types.emplace(name, SchemaType{});
        if (!isNew) throw std::runtime_error(name + " stands twice");
        type = &row->second;
        type->family = family;
    };
    for (const Tag& tag : tagsOf(xml)) {
        if (tag.is("xs:complexType")) {
            begin(tag.attribute("name"), SchemaType::eClass);
            type->isAbstract = tag.attribute("abstract") == "true";
        } else if (tag.is("xs:simpleType")) {
            const std::string name = tag.attribute("name");
            begin(name, endsWith(name, "Enum") ? SchemaType::eEnum : SchemaType::eRestrictedString);
        } else if (tag.is("/xs:complexType") || tag.is("/xs:simpleType")) {
            type = nullptr;
        } else if (type != nullptr && tag.is("xs:extension")) {
            type->base = withoutPrefix(tag.attribute("base"));
        } else if (type != nullptr && tag.is("xs:restriction") &&
                   tag.attribute("base") == "SOAP-ENC:Array") {
            type->family = SchemaType::eArray;
        } else if (type != nullptr && type->family == SchemaType::eClass && tag.is("xs:element")) {
            type->fields.push_back({tag.attribute("name"), tag.attribute("type")});
            insideMember = !tag.isEmptyElement();
        } else if (type != nullptr && tag.is("xs:enumeration")) {
            type->words.push_back(tag.attribute("value"));
            insideMember = !tag.isEmptyElement();
        } else if (tag.is("/xs:element") || tag.is("/xs:enumeration")) {
            insideMember = false;
        } else if (type != nullptr && !insideMember && tag.is("xs:appinfo")) {
            noteOpen(tag.textBehind(), *type);
        } else if (type != nullptr && tag.is("xs:attribute")) {
            const std::string arrayType = tag.attribute("wsdl:arrayType");
            type->element = arrayType.substr(0, arrayType.find('['));
        }
    }
}

}  // namespace

Schema::Schema(Types types) : m_types(std::move(types)) {
    for (const auto& [name, type] : m_types) {
        if (type.isAbstract) continue;
        m_concrete[identityOf("bus:" + name)].push_back(name);
        for (std::string base = type.base; !base.empty(); base = at(base).base)
            if (at(base).isAbstract) m_concrete[identityOf("bus:" + base)].push_back(name);
    }
    std::map<std::string, std::size_t> counts;
    for (const auto& [name, type] : m_types)
        counts[name] = allFields(*this, name).size();
    for (auto& [type, names] : m_concrete)
        std::stable_sort(names.begin(), names.end(),
                         [&counts](const std::string& left, const std::string& right) {
                             return counts.at(left) < counts.at(right);
                         });
}

bool Schema::isA(const std::string& name, const std::string& base) const {
    for (std::string current = name; !current.empty(); current = at(current).base)
        if (current == base) return true;
    return false;
}

std::vector<std::string> Schema::derivedFrom(const std::string& base) const {
    std::vector<std::string> names;
    for (const auto& [name, type] : m_types)
        if (isA(name, base)) names.push_back(name);
    return names;
}

Schema scan(const std::vector<std::string>& files) {
    Schema::Types types;
    for (const std::string& file : files)
        scanFile(file, types);
    return Schema(std::move(types));
}

const Schema& builtSchema() {
    static const Schema& schema = *new Schema([] {
        std::vector<std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(KORVA_TEST_SCHEMA_DIR))
            if (entry.path().extension() == ".xsd" && entry.path().stem() != "soap-encoding")
                files.push_back(entry.path());
        return scan(files);
    }());
    return schema;
}

std::vector<SchemaField> allFields(const Schema& schema, const std::string& name) {
    const SchemaType& type = schema.at(name);
    std::vector<SchemaField> fields;
    if (!type.base.empty()) fields = allFields(schema, type.base);
    fields.insert(fields.end(), type.fields.begin(), type.fields.end());
    return fields;
}

bool canBeRoot(const std::string& name, const SchemaType& type) {
    return type.family != SchemaType::eArray || "bus:" + name == type.element + "Array";
}

KORVASchemaTypeI::ObjectType identityOf(const std::string& type) {
    const std::string name = withoutPrefix(type);
    if (type.compare(0, 4, "bus:") == 0)
        return static_cast<KORVASchemaTypeI::ObjectType>(
            crc32(0, reinterpret_cast<const Bytef*>(name.data()), static_cast<uInt>(name.size())));
    static const std::map<std::string, KORVASchemaTypeI::ObjectType> plain{
        {"int", KORVASchemaTypeI::eInt},
        {"integer", KORVASchemaTypeI::eInteger},
        {"decimal", KORVASchemaTypeI::eDecimal},
        {"time", KORVASchemaTypeI::eTime},
        {"dateTime", KORVASchemaTypeI::eDateTime},
        {"boolean", KORVASchemaTypeI::eBoolean},
        {"base64Binary", KORVASchemaTypeI::eBase64Binary},
        {"float", KORVASchemaTypeI::eFloat},
        {"QName", KORVASchemaTypeI::eQName},
    };
    const auto row = plain.find(name);
    return row != plain.end() ? row->second : KORVASchemaTypeI::eString;
}

std::string classNameOf(const std::string& xmlName) {
    std::string name = "KORVA" + xmlName;
    char& first = name[5];
    if (first >= 'a' && first <= 'z') first = static_cast<char>(first - 'a' + 'A');
    return name;
}

}  // namespace korva::test
