#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

#include <map>
#include <vector>

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr unsigned kIndexBits = 10;
constexpr std::string_view kPrefix = "bus:";

std::string_view kindOf(TypeKind kind) {
    switch (kind) {
        case TypeKind::Class: return "Class";
        case TypeKind::Property: return "Property";
        case TypeKind::Array: return "Array";
        case TypeKind::Enum: return "Enum";
        case TypeKind::RestrictedString: return "RestrictedString";
    }
    return {};
}

std::string_view kindOf(FieldKind kind) {
    switch (kind) {
        case FieldKind::Object: return "Object";
        case FieldKind::Text: return "Text";
        case FieldKind::Binary: return "Binary";
        case FieldKind::Boolean: return "Boolean";
        case FieldKind::Int: return "Int";
        case FieldKind::Float: return "Float";
        case FieldKind::EmbeddedArray: return "Array";
    }
    return {};
}

std::string number(std::size_t value) {
    return decimal(static_cast<std::int64_t>(value));
}

/// The tables while they are being written.
class Tables {
public:
    explicit Tables(const Schema& schema) {
        for (const Type* type : schema.byIdentity) {
            m_positions.emplace(type, m_positions.size());
            m_identities.push_back(type->identity);
        }
        for (const Type* type : schema.byIdentity)
            printType(*type);
    }

    const std::string& types() const { return m_types.text(); }
    const std::string& fields() const { return m_fields.text(); }
    const std::string& names() const { return m_names.text(); }
    std::string hashes() const { return filled(m_hashes, 4); }

    std::string index() const { return topBitsIndex(m_identities, kIndexBits); }

private:
    void printType(const Type& type) {
        const std::string base =
            type.baseType() != nullptr ? number(m_positions.at(type.baseType())) : "noBase";
        // The table of a type without fields is the one entry in front.
        const std::vector<std::size_t> table = hashTable(type.fields);
        m_types.print(
            "{$identity$, $element$, $name$, $first$, $hash$, $mask$, $count$, $inherited$, "
            "$slots$, $arrays$, $base$, TypeKind::$kind$, $abstract$}, // $text$\n",
            {{"identity", decimal(type.identity)},
             {"element", decimal(type.elementObjectType)},
             {"name", number(m_namesSize)},
             {"first", number(m_fieldCount)},
             {"hash", number(type.fields.empty() ? 0 : m_hashes.size())},
             {"mask", number(table.size() - 1)},
             {"count", number(type.fields.size())},
             {"inherited", number(type.inheritedFields)},
             {"slots", number(type.slots)},
             {"arrays", number(type.arrays)},
             {"base", base},
             {"kind", kindOf(type.kind)},
             {"abstract", type.isAbstract ? "true" : "false"},
             {"text", type.name}});
        m_names.print("\"$prefix$$name$\\0\"\n", {{"prefix", kPrefix}, {"name", type.name}});
        m_namesSize += kPrefix.size() + type.name.size() + 1;
        printFields(type);
        if (type.fields.empty()) return;
        for (const std::size_t entry : table)
            m_hashes.push_back(number(entry) + ",");
    }

    void printFields(const Type& type) {
        for (const Field& field : type.fields) {
            m_fields.print("{$crc$, $type$, $place$, FieldKind::$kind$}, // $text$\n",
                           {{"crc", hex(field.identity)},
                            {"type", decimal(field.objectType)},
                            {"place", number(field.place)},
                            {"kind", kindOf(field.kind)},
                            {"text", type.name + '.' + field.name}});
        }
        m_fieldCount += type.fields.size();
    }

    std::map<const Type*, std::size_t> m_positions;
    std::vector<std::int32_t> m_identities;
    Printer m_types;
    Printer m_fields;
    Printer m_names;
    std::size_t m_namesSize = 0;
    std::size_t m_fieldCount = 0;
    std::vector<std::string> m_hashes{"0,"};
};

}  // namespace

void emitTarnTypes(const Schema& schema, Files& files) {
    const Tables tables(schema);
    Printer printer;
    printer.print(R"(
$made$
$internal$

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Woverlength-strings"
#endif

namespace tarn {

static_assert(typeIndexBits == $bits$, "run korva-schemac again");

constinit const TypeRow types[] = {
    $types$
};

constinit const std::uint16_t typeIndex[] = {
    $index$
};

constinit const FieldRow fields[] = {
    $fields$
    {0, 0, 0, FieldKind::Object}, // not counted
};

constinit const std::uint16_t hashes[] = {
    $hashes$
};

constinit const char typeNames[] =
    $names$
    ;

} // namespace tarn
)",
                  {{"made", madeFrom(schema.files.front())},
                   {"internal", internalIncludes({"tarn/TypeTable.h"})},
                   {"bits", number(kIndexBits)},
                   {"types", tables.types()},
                   {"index", tables.index()},
                   {"fields", tables.fields()},
                   {"hashes", tables.hashes()},
                   {"names", tables.names()}});
    files.add("tarn/TARNTypes_gen_.cpp", printer.take());
}

}  // namespace korva::schemac::emit
