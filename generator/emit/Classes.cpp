#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Text.h"

#include <algorithm>

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kRuleWidth = 96;

std::string baseOf(const Type& type) {
    return type.baseType() != nullptr ? type.baseType()->className : "KORVA_ClassObject";
}

std::string classComment(const Type& type) {
    std::string what = type.documentation;
    if (what.empty()) {
        what = (type.kind == TypeKind::Property ? "The property \"" : "The class \"") + type.name +
               "\" of the schema.";
    }
    what = sentence(what);
    if (type.openFields) what += " Further fields are not documented.";
    return docComment(what, 0);
}

void emitHeader(const Type& type, Files& files) {
    std::vector<std::string> named = {"KORVAObjectRegistryI"};
    namedClasses(type.fields, named);
    std::erase(named, type.className);
    Printer printer;
    const Printer::Values values = {{"class", type.className}};
    printer.print(R"(
$made$
#pragma once

$baseInclude$

$check$

$forwards$
struct $class$_PrivateData;

$comment$
class KORVA_EXPORT $class$ : public $base$ {
public:
    $class$();
    /// A deep copy; what it consists of is registered in `registry`, the object itself is not.
    $class$(const $class$& other, KORVAObjectRegistryI& registry);
    ~$class$() override;
)",
                  {{"made", madeFrom(type.at.file)},
                   {"baseInclude", includes({baseOf(type)})},
                   {"base", baseOf(type)},
                   {"check", versionCheck},
                   {"forwards", forwards(named)},
                   {"comment", classComment(type)},
                   {"class", type.className}});
    for (const Field& field : type.fields)
        declareAccessors(printer, field);
    printer.print("\n\n");
    declareNames(printer, !type.isAbstract);
    printer.print(R"(

protected:
    /// Takes the record of a derived class.
    explicit $class$(korva::Record* record) noexcept;
    const korva::ClassDescriptor& descriptor() const override;

private:
    $class$_PrivateData* data() const;
};
)",
                  values);
    files.add("include/korva/" + type.className + ".h", printer.take());
}

std::string entries(const std::vector<std::size_t>& table) {
    std::vector<std::string> items;
    items.reserve(table.size());
    for (const std::size_t entry : table)
        items.push_back(std::to_string(entry) + ",");
    return filled(items, 4);
}

void printTables(Printer& printer, const Type& type) {
    if (type.fields.empty()) return;
    printer.print("namespace {\nconstexpr korva::FieldDescriptor $name$Fields[] = {\n",
                  {{"name", type.name}});
    printFieldRows(printer, type.className + "_PrivateData", type.fields);
    printer.print(R"(
};
constexpr std::uint16_t $name$Hashes[] = {
    $entries$
};
} // namespace
)",
                  {{"name", type.name}, {"entries", entries(hashTable(type.fields))}});
}

void printDescriptor(Printer& printer, const Type& type) {
    std::string base = "nullptr";
    if (type.baseType() != nullptr) base = "&korva::descriptors::" + type.baseType()->className;
    const bool none = type.fields.empty();
    printer.print(R"(
constinit const korva::ClassDescriptor korva::descriptors::$class$ = {
    "$class$",
    KORVASchemaTypeI::e$class$,
    $base$,
    $fields$,
    $hashes$,
    $mask$,
    $own$,
    $inherited$,
};
)",
                  {{"class", type.className},
                   {"base", base},
                   {"fields", none ? "nullptr" : type.name + "Fields"},
                   {"hashes", none ? "korva::noHashes" : type.name + "Hashes"},
                   {"mask", std::to_string(hashTable(type.fields).size() - 1)},
                   {"own", std::to_string(type.fields.size())},
                   {"inherited", std::to_string(type.inheritedFields)}});
}

void printClass(Printer& printer, const Type& type) {
    const std::string rule(kRuleWidth - std::min(kRuleWidth, type.name.size()), '-');
    printer.print("\n\n// $name$ $rule$\n", {{"name", type.name}, {"rule", rule}});
    printTables(printer, type);
    printDescriptor(printer, type);
    printer.print(R"(

inline $class$_PrivateData* $class$::data() const {
    return static_cast<$class$_PrivateData*>(m_pPrivateData);
}

$class$::$class$() : $base$(new $class$_PrivateData) {}
$class$::$class$(korva::Record* record) noexcept : $base$(record) {}
$class$::$class$(const $class$& other, KORVAObjectRegistryI& registry)
    : $base$(new $class$_PrivateData) {
    korva::copyFields(korva::descriptors::$class$, other, *this, registry);
}
$class$::~$class$() = default;
const korva::ClassDescriptor& $class$::descriptor() const {
    return korva::descriptors::$class$;
}
)",
                  {{"class", type.className}, {"base", baseOf(type)}});
    defineNames(printer, type.className, !type.isAbstract);
    for (const Field& field : type.fields) {
        printer.print("\n\n");
        defineAccessors(printer, type.className, field);
    }
}

void emitUnit(const Schema& schema, const std::vector<const Type*>& family, const std::string& name,
              unsigned unit, Files& files) {
    std::vector<std::string> included;
    Printer classes;
    for (const Type* type : family) {
        if (type->unit != unit) continue;
        included.push_back(type->className);
        createdClasses(type->fields, included);
        printClass(classes, *type);
    }
    Printer printer;
    printer.print(
        R"(
$made$
$internal$

$includes$

$check$

#if defined(__GNUC__)
// The records derive from one another, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
)",
        {{"made", madeFrom(schema.files.front())},
         {"internal",
          internalIncludes({"core/ObjectCreation.h", "core/ObjectName.h",
                            "schema/KORVADescriptors_gen_.h", "schema/KORVARecords_gen_.h"})},
         {"includes", includes(included)},
         {"check", versionCheck}});
    files.add("schema/" + name + std::to_string(unit) + "_gen_.cpp",
              printer.take() + classes.take());
}

}  // namespace

void emitClasses(const Schema& schema, Files& files) {
    for (const auto* family : {&schema.classes, &schema.properties}) {
        for (const Type* type : *family)
            emitHeader(*type, files);
    }
    for (unsigned unit = 1; unit <= kClassUnits; ++unit) {
        emitUnit(schema, schema.classes, "KORVASchemaTypesClass", unit, files);
    }
    for (unsigned unit = 1; unit <= kPropertyUnits; ++unit) {
        emitUnit(schema, schema.properties, "KORVASchemaTypesProperty", unit, files);
    }
}

}  // namespace korva::schemac::emit
