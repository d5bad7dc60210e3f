#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

void emitHeader(const Type& type, Files& files) {
    const std::string what = type.documentation.empty()
                                 ? "The text \"" + type.name + "\" of the schema."
                                 : sentence(type.documentation);
    Printer printer;
    printer.print(R"(
$made$
#pragma once

$baseInclude$

$check$

$comment$
class KORVA_EXPORT $class$ : public KORVA_RestrictedString {
public:
    $class$();
    /// A copy, whose text is registered in `registry`.
    $class$(const $class$& other, KORVAObjectRegistryI& registry);
    ~$class$() override;

)",
                  {{"made", madeFrom(type.at.file)},
                   {"baseInclude", includes({"KORVA_RestrictedString"})},
                   {"check", versionCheck},
                   {"comment", docComment(what, 0)},
                   {"class", type.className}});
    declareNames(printer, true);
    printer.print("};\n");
    files.add("include/korva/" + type.className + ".h", printer.take());
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
    std::vector<std::string> included;
    Printer classes;
    for (const Type* type : schema.restrictedStrings) {
        emitHeader(*type, files);
        included.push_back(type->className);
        printClass(classes, *type);
    }
    Printer printer;
    printer.print(R"(
$made$
$internal$

$includes$
)",
                  {{"made", madeFrom(schema.files.front())},
                   {"internal", internalIncludes({"core/ObjectName.h"})},
                   {"includes", includes(included)}});
    files.add("schema/KORVASchemaTypesRestrictedString_gen_.cpp", printer.take() + classes.take());
}

}  // namespace korva::schemac::emit
