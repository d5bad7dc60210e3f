#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
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

void emitRecordsHeader(const Schema& schema, Files& files) {
    InternalHeaderFrame header(files, "schema/KORVARecords_gen_.h", schema.files.front(),
                               "The records in which the objects of the schema keep their fields, "
                               "bases before derived classes.",
                               {"core/Descriptor.h"});
    header.include("KORVAExport");
    std::vector<std::string> pointed;
    Printer records;
    for (const auto* family : {&schema.classes, &schema.properties}) {
        for (const Type* type : *family) {
            for (const Field& field : type->fields) {
                if (field.kind == FieldKind::EmbeddedArray) {
                    header.include(field.reference.type->className);
                } else if (field.reference.type != nullptr || field.kind == FieldKind::Binary) {
                    pointed.emplace_back(cppType(field));
                }
            }
            printRecord(records, *type);
        }
    }
    header.content().print("\n\n$forwards$\n\n", {{"forwards", forwards(pointed)}});
    header.content().print("$records$\n", {{"records", records.text()}});
}

void emitDescriptorsHeader(const Schema& schema, Files& files) {
    InternalHeaderFrame header(files, "schema/KORVADescriptors_gen_.h", schema.files.front(),
                               "The tables of fields of all classes and properties, and those of "
                               "words of all enumerations.",
                               {"core/Descriptor.h"});
    header.include("KORVAExport");
    Printer& printer = header.content();
    printer.blankLine();
    const NamespaceScope scope(printer, "korva::descriptors");
    printer.blankLine();
    for (const Type* type : schema.byName) {
        if (type->kind == TypeKind::Class || type->kind == TypeKind::Property) {
            printer.print("extern const ClassDescriptor $class$;\n", {{"class", type->className}});
        } else if (type->kind == TypeKind::Enum) {
            printer.print("extern const EnumDescriptor $class$;\n", {{"class", type->className}});
        }
    }
}

}  // namespace

void emitRecords(const Schema& schema, Files& files) {
    emitRecordsHeader(schema, files);
    emitDescriptorsHeader(schema, files);
}

}  // namespace korva::schemac::emit
