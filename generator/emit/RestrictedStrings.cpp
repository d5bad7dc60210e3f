#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

void emitHeader(const Type& type, Files& files) {
    const std::string what = type.documentation.empty()
                                 ? "The text \"" + type.name + "\" of the schema."
                                 : sentence(type.documentation);
    PublicHeaderFrame frame(files, type.className, type.at.file, "KORVA_RestrictedString");
    Printer& printer = frame.content();
    printer.blankLine();
    const ClassScope scope(printer, docComment(what, 0), type.className, "KORVA_RestrictedString");
    declareLife(printer, type.className, "A copy, whose text is registered in `registry`.");
    printer.blankLine();
    declareNames(printer, true);
}

void printClass(Printer& printer, const Type& type) {
    printer.print(R"(

$class$::$class$() = default;
$class$::$class$(const $class$& other, KORVAObjectRegistryI& registry)
    : KORVA_RestrictedString(other, registry) {}
$class$::~$class$() = default;
)",
                  {{"class", type.className}});
    defineNames(printer, type.className, true);
}

}  // namespace

void emitRestrictedStrings(const Schema& schema, Files& files) {
    UnitFrame unit(files, "schema/KORVASchemaTypesRestrictedString_gen_.cpp", schema.files.front(),
                   {"core/ObjectName.h"});
    for (const Type* type : schema.restrictedStrings) {
        emitHeader(*type, files);
        unit.include(type->className);
        printClass(unit.content(), *type);
    }
}

}  // namespace korva::schemac::emit
