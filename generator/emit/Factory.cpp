#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr unsigned kIndexBits = 10;
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

}  // namespace

void emitFactory(const Schema& schema, Files& files) {
    std::vector<std::string> included;
    Printer rows;
    Printer names;
    Printer arrayNames;
    std::vector<std::int32_t> identities;
    for (const Type* type : schema.byIdentity) {
        printRow(rows, *type);
        identities.push_back(type->identity);
    }
    for (const Type* type : schema.byName) {
        if (!type->isAbstract) included.push_back(type->className);
        names.print("{\"$name$\", KORVASchemaTypeI::e$class$},\n",
                    {{"name", type->name}, {"class", type->className}});
    }
    for (const Type* type : schema.arraysByKey) {
        arrayNames.print("{\"$key$\", KORVASchemaTypeI::e$class$},\n",
                         {{"key", type->arrayKey}, {"class", type->className}});
    }
    Printer printer;
    printer.print(R"(
$made$
$internal$

$includes$

$check$

namespace korva {

static_assert(typeIndexBits == $bits$, "run korva-schemac again");

namespace {

using NameToType = KORVASchemaTypesFactory::KORVATypeNameToType;

constexpr TypeDescriptor types[] = {
)",
                  {{"made", madeFrom(schema.files.front())},
                   {"internal",
                    internalIncludes({"core/ObjectCreation.h", "schema/KORVADescriptors_gen_.h"})},
                   {"includes", includes(included)},
                   {"check", versionCheck},
                   {"bits", decimal(kIndexBits)}});
    printer.print("$rows$", {{"rows", rows.text()}});
    printer.print(R"(
};

constexpr std::uint16_t typeIndex[] = {
    $index$
};

constexpr NameToType names[] = {
    $names$
};

constexpr NameToType arrayNames[] = {
    $arrayNames$
    {nullptr, KORVASchemaTypeI::e_Unknown}, // not counted
};

} // namespace

constinit const TypeTables typeTables = {
    types,
    typeIndex,
    $typeCount$,
    names,
    $typeCount$,
    arrayNames,
    $arrayCount$,
};

} // namespace korva
)",
                  {{"index", topBitsIndex(identities, kIndexBits)},
                   {"names", names.text()},
                   {"arrayNames", arrayNames.text()},
                   {"typeCount", std::to_string(schema.byName.size())},
                   {"arrayCount", std::to_string(schema.arraysByKey.size())}});
    files.add("schema/KORVASchemaTypesFactory_gen_.cpp", printer.take());
}

}  // namespace korva::schemac::emit
