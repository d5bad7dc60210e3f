#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

#include <algorithm>

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kRuleWidth = 96;
constexpr std::size_t kRowIndent = 4;

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
    std::vector<std::string> named = namedClasses(type.fields);
    named.emplace_back("KORVAObjectRegistryI");
    std::erase(named, type.className);
    PublicHeaderFrame frame(files, type.className, type.at.file, baseOf(type));
    Printer& printer = frame.content();
    printer.print(R"(

$forwards$
struct $class$_PrivateData;

)",
                  {{"forwards", forwards(named)}, {"class", type.className}});
    const ClassScope scope(printer, classComment(type), type.className, baseOf(type));
    declareLife(
        printer, type.className,
        "A deep copy; what it consists of is registered in `registry`, the object itself is "
        "not.");
    for (const Field& field : type.fields)
        declareAccessors(printer, field);
    printer.blankLine();
    declareNames(printer, !type.isAbstract);
    printer.print(R"(

protected:
    /// Takes the record of a derived class.
    explicit $class$(korva::Record* record) noexcept;
    const korva::ClassDescriptor& descriptor() const override;

private:
    $class$_PrivateData* data() const;
)",
                  {{"class", type.className}});
}

void printTables(Printer& printer, const Type& type) {
    if (type.fields.empty()) return;
    const NamespaceScope scope(printer);
    {
        const TableScope fields(printer,
                                "constexpr korva::FieldDescriptor " + type.name + "Fields");
        printFieldRows(printer, type.className + "_PrivateData", type.fields);
    }
    const TableScope hashes(printer, "constexpr std::uint16_t " + type.name + "Hashes");
    printer.print("    $entries$\n", {{"entries", numbers(type.hashes, kRowIndent)}});
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
                   {"mask", std::to_string(type.hashes.size() - 1)},
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
        printer.blankLine();
        defineAccessors(printer, type.className, field);
    }
}

void emitUnit(const Schema& schema, const std::vector<const Type*>& family, const std::string& name,
              unsigned unit, Files& files) {
    UnitFrame frame(files, "schema/" + name + std::to_string(unit) + "_gen_.cpp",
                    schema.files.front(),
                    {"core/ObjectCreation.h", "core/ObjectName.h", "schema/KORVADescriptors_gen_.h",
                     "schema/KORVARecords_gen_.h"});
    frame.content().print(R"(

#if defined(__GNUC__)
// The records derive from one another, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
)");
    for (const Type* type : family) {
        if (type->unit != unit) continue;
        frame.include(type->className);
        frame.include(createdClasses(type->fields));
        printClass(frame.content(), *type);
    }
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
