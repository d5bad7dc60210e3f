#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

void printRecord(Printer& printer, const Type& type) {
    std::string base = "korva::Record";
    if (type.baseType() != nullptr) base = type.baseType()->className + "_PrivateData";
    printer.print("\nstruct $class$_PrivateData : $base$ {\n",
                  {{"class", type.className}, {"base", base}});
    printMembers(printer, type.fields);
    printer.print("};\n");
}

}  // namespace

void emitRecords(const Schema& schema, Files& files) {
    std::vector<std::string> named;
    std::vector<std::string> embedded = {"KORVAExport"};
    Printer records;
    for (const auto* family : {&schema.classes, &schema.properties}) {
        for (const Type* type : *family) {
            for (const Field& field : type->fields) {
                if (field.kind == FieldKind::EmbeddedArray) {
                    embedded.push_back(field.reference.type->className);
                } else if (field.reference.type != nullptr) {
                    named.push_back(field.reference.type->className);
                } else if (field.kind == FieldKind::Binary) {
                    named.emplace_back("KORVAXSBase64Binary");
                }
            }
            printRecord(records, *type);
        }
    }
    Printer printer;
    printer.print(R"(
$made$
// The records in which the objects of the schema keep their fields, bases before derived classes.
#pragma once

$internal$

$includes$

$check$

$forwards$

)",
                  {{"made", madeFrom(schema.files.front())},
                   {"internal", internalIncludes({"core/Descriptor.h"})},
                   {"includes", includes(embedded)},
                   {"check", versionCheck},
                   {"forwards", forwards(named)}});
    files.add("schema/KORVARecords_gen_.h", printer.take() + records.take());

    Printer descriptors;
    descriptors.print(R"(
$made$
// The tables of fields of all classes and properties, and those of words of all enumerations.
#pragma once

$internal$

$includes$

$check$

namespace korva::descriptors {

)",
                      {{"made", madeFrom(schema.files.front())},
                       {"internal", internalIncludes({"core/Descriptor.h"})},
                       {"includes", includes({"KORVAExport"})},
                       {"check", versionCheck}});
    for (const Type* type : schema.byName) {
        if (type->kind == TypeKind::Class || type->kind == TypeKind::Property) {
            descriptors.print("extern const ClassDescriptor $class$;\n",
                              {{"class", type->className}});
        } else if (type->kind == TypeKind::Enum) {
            descriptors.print("extern const EnumDescriptor $class$;\n",
                              {{"class", type->className}});
        }
    }
    descriptors.print("\n} // namespace korva::descriptors\n");
    files.add("schema/KORVADescriptors_gen_.h", descriptors.take());
}

}  // namespace korva::schemac::emit
