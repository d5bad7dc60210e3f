#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

std::string baseOf(const Type& type) {
    switch (type.elementKind) {
        case FieldKind::Text: return "KORVA_TextArray";
        case FieldKind::Int: return "KORVA_IntArrayBase";
        case FieldKind::Boolean: return "KORVA_BooleanArrayBase";
        default: break;
    }
    // Of the kinds that are left, each has a type of its own.
    const Type* const element = type.element.type;
    return element != nullptr ? "KORVA_ObjectArray<" + element->className + ">" : std::string();
}

void emitHeader(const Type& type, Files& files) {
    std::vector<std::string> named;
    if (type.element.type != nullptr) named.push_back(type.element.type->className);
    const std::string what = type.documentation.empty()
                                 ? "An array of \"" + type.element.text + "\"."
                                 : sentence(type.documentation);
    Printer printer;
    printer.print(R"(
$made$
#pragma once

$baseInclude$

$check$

$forwards$

$comment$
class KORVA_EXPORT $class$ : public $base$ {
public:
    $class$();
    /// A deep copy; what it consists of is registered in `registry`, the array itself is not.
    $class$(const $class$& other, KORVAObjectRegistryI& registry);
    ~$class$() override;

    /// Replaces the elements by deep copies of those of `other`, registered in `registry`.
    void copy(const $class$& other, KORVAObjectRegistryI& registry);

)",
                  {{"made", madeFrom(type.at.file)},
                   {"check", versionCheck},
                   {"baseInclude", includes({"KORVA_TypedArray"})},
                   {"forwards", forwards(named)},
                   {"comment", docComment(what, 0)},
                   {"class", type.className},
                   {"base", baseOf(type)}});
    declareNames(printer, true);
    printer.print(R"(

private:
    ObjectType elementType() const override;
};
)");
    files.add("include/korva/" + type.className + ".h", printer.take());
}

void printArray(Printer& printer, const Type& type) {
    printer.print(R"(

$class$::$class$() = default;
$class$::$class$(const $class$& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
$class$::~$class$() = default;
void $class$::copy(const $class$& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
$class$::ObjectType $class$::elementType() const { return $element$; }
)",
                  {{"class", type.className}, {"element", objectType(type.element)}});
    defineNames(printer, type.className, true);
}

void emitUnit(const Schema& schema, unsigned unit, Files& files) {
    std::vector<std::string> included;
    Printer arrays;
    for (const Type* type : schema.arrays) {
        if (type->unit != unit) continue;
        included.push_back(type->className);
        printArray(arrays, *type);
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
    files.add("schema/KORVASchemaTypesArray" + std::to_string(unit) + "_gen_.cpp",
              printer.take() + arrays.take());
}

}  // namespace

void emitArrays(const Schema& schema, Files& files) {
    for (const Type* type : schema.arrays)
        emitHeader(*type, files);
    for (unsigned unit = 1; unit <= kArrayUnits; ++unit)
        emitUnit(schema, unit, files);
}

}  // namespace korva::schemac::emit
