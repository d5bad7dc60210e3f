#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kRowIndent = 4;
constexpr std::string_view kPrefix = "bus:";

void printRow(Printer& printer, const Type& type) {
    const bool hasFields = type.kind == TypeKind::Class || type.kind == TypeKind::Property;
    const std::string element = type.kind == TypeKind::Array
                                    ? objectType(type.element)
                                    : std::string("KORVASchemaTypeI::e_Unknown");
    const std::string fields =
        hasFields ? "&descriptors::" + type.className : std::string("nullptr");
    const Printer::Values values = {{"class", type.className},
                                    {"name", type.name},
                                    {"prefix", kPrefix},
                                    {"element", element},
                                    {"fields", fields}};
    printer.print(R"(
    {KORVASchemaTypeI::e$class$, $element$,
     "$prefix$$name$", $fields$,
)",
                  values);
    printer.print(type.isAbstract ? "     nullptr, nullptr, nullptr},\n" : R"(
     &typeid(::$class$), &createObject<::$class$>,
     &copyObject<::$class$, KORVASchemaTypeI::e$class$>},
)",
                  values);
}

void printNames(Printer& printer, const Schema& schema) {
    const TableScope table(printer, "constexpr NameToType names");
    for (const Type* type : schema.byName) {
        printer.print("    {\"$name$\", KORVASchemaTypeI::e$class$},\n",
                      {{"name", type->name}, {"class", type->className}});
    }
}

void printArrayNames(Printer& printer, const Schema& schema) {
    const TableScope table(printer, "constexpr NameToType arrayNames");
    for (const Type* type : schema.arraysByKey) {
        printer.print("    {\"$key$\", KORVASchemaTypeI::e$class$},\n",
                      {{"key", type->arrayKey}, {"class", type->className}});
    }
    printer.print("    {nullptr, KORVASchemaTypeI::e_Unknown}, // not counted\n");
}

void printTables(Printer& printer, const Schema& schema) {
    const NamespaceScope scope(printer);
    printer.print("\n\nusing NameToType = KORVASchemaTypesFactory::KORVATypeNameToType;\n\n");
    {
        const TableScope table(printer, "constexpr TypeDescriptor types");
        for (const Type* type : schema.byIdentity)
            printRow(printer, *type);
    }
    printer.blankLine();
    {
        const TableScope table(printer, "constexpr std::uint16_t typeIndex");
        printer.print("    $index$\n", {{"index", numbers(schema.typeIndex.starts, kRowIndent)}});
    }
    printer.blankLine();
    printNames(printer, schema);
    printer.blankLine();
    printArrayNames(printer, schema);
    printer.blankLine();
}

}  // namespace

void emitFactory(const Schema& schema, Files& files) {
    UnitFrame unit(files, "schema/KORVASchemaTypesFactory_gen_.cpp", schema.files.front(),
                   {"core/ObjectCreation.h", "schema/KORVADescriptors_gen_.h"});
    for (const Type* type : schema.byName) {
        if (!type->isAbstract) unit.include(type->className);
    }
    Printer& printer = unit.content();
    printer.blankLine();
    const NamespaceScope scope(printer, "korva");
    printer.print("\n\nstatic_assert(typeIndexBits == $bits$, \"run korva-schemac again\");\n\n",
                  {{"bits", std::to_string(schema.typeIndex.bits)}});
    printTables(printer, schema);
    printer.print(R"(

constinit const TypeTables typeTables = {
    types,
    typeIndex,
    $typeCount$,
    names,
    $typeCount$,
    arrayNames,
    $arrayCount$,
};

)",
                  {{"typeCount", std::to_string(schema.byName.size())},
                   {"arrayCount", std::to_string(schema.arraysByKey.size())}});
}

}  // namespace korva::schemac::emit
