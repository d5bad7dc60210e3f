#include "generator/emit/Emit.h"
#include "generator/emit/FieldKinds.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

#include <map>
#include <vector>

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kRowIndent = 4;
constexpr std::string_view kPrefix = "bus:";

// The rows of the tables, which refer to each other by their positions.
class Tables {
public:
    explicit Tables(const Schema& schema) {
        for (const Type* type : schema.byIdentity)
            m_positions.emplace(type, m_positions.size());
        for (const Type* type : schema.byIdentity)
            printType(*type);
    }

    const std::string& types() const { return m_types.text(); }
    const std::string& fields() const { return m_fields.text(); }
    const std::string& names() const { return m_names.text(); }
    std::string hashes() const { return numbers(m_hashes, kRowIndent); }

private:
    void printType(const Type& type) {
        const std::string base =
            type.baseType() != nullptr ? std::to_string(m_positions.at(type.baseType())) : "noBase";
        m_types.print(
            "{$identity$, $element$, $name$, $first$, $hash$, $mask$, $count$, $inherited$, "
            "$slots$, $arrays$, $base$, TypeKind::$kind$, $abstract$}, // $text$\n",
            {{"identity", std::to_string(type.identity)},
             {"element", std::to_string(type.elementObjectType)},
             {"name", std::to_string(m_namesSize)},
             {"first", std::to_string(m_fieldCount)},
             {"hash", std::to_string(type.fields.empty() ? 0 : m_hashes.size())},
             {"mask", std::to_string(type.hashes.size() - 1)},
             {"count", std::to_string(type.fields.size())},
             {"inherited", std::to_string(type.inheritedFields)},
             {"slots", std::to_string(type.slots)},
             {"arrays", std::to_string(type.arrays)},
             {"base", base},
             {"kind", types::nameOf(type.kind)},
             {"abstract", type.isAbstract ? "true" : "false"},
             {"text", type.name}});
        m_names.print("\"$prefix$$name$\\0\"\n", {{"prefix", kPrefix}, {"name", type.name}});
        m_namesSize += kPrefix.size() + type.name.size() + 1;
        printFields(type);
        if (!type.fields.empty()) {
            m_hashes.insert(m_hashes.end(), type.hashes.begin(), type.hashes.end());
        }
    }

    void printFields(const Type& type) {
        for (const Field& field : type.fields) {
            m_fields.print("{$crc$, $type$, $place$, FieldKind::$kind$}, // $text$\n",
                           {{"crc", hex(field.identity)},
                            {"type", std::to_string(field.objectType)},
                            {"place", std::to_string(field.place)},
                            {"kind", rowOf(field.kind).name},
                            {"text", type.name + '.' + field.name}});
        }
        m_fieldCount += type.fields.size();
    }

    std::map<const Type*, std::size_t> m_positions;
    Printer m_types;
    Printer m_fields;
    Printer m_names;
    std::size_t m_namesSize = 0;
    std::size_t m_fieldCount = 0;
    std::vector<std::size_t> m_hashes{0};  // the table of all types without fields
};

}  // namespace

void emitTarnTypes(const Schema& schema, Files& files) {
    const Tables tables(schema);
    UnitFrame unit(files, "tarn/TARNTypes_gen_.cpp", schema.files.front(), {"tarn/TypeTable.h"},
                   tarnCheck);
    Printer& printer = unit.content();
    printer.print(R"(

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Woverlength-strings"
#endif

)");
    const NamespaceScope scope(printer, "tarn");
    printer.print(R"(

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

)",
                  {{"bits", std::to_string(schema.typeIndex.bits)},
                   {"types", tables.types()},
                   {"index", numbers(schema.typeIndex.starts, kRowIndent)},
                   {"fields", tables.fields()},
                   {"hashes", tables.hashes()},
                   {"names", tables.names()}});
}

}  // namespace korva::schemac::emit
