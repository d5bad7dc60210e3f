#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/FieldKinds.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

std::string baseOf(const Type& type) {
    const Type* const element = type.element.type;
    Printer base;
    base.print(rowOf(type.elementKind).array,
               {{"type", element != nullptr ? std::string_view(element->className) : ""}});
    return base.take();
}

void emitHeader(const Type& type, Files& files) {
    const std::string what = type.documentation.empty()
                                 ? "An array of \"" + type.element.text + "\"."
                                 : sentence(type.documentation);
    std::vector<std::string> named;
    if (type.element.type != nullptr) named.push_back(type.element.type->className);
    PublicHeaderFrame frame(files, type.className, type.at.file, "KORVA_TypedArray");
    Printer& printer = frame.content();
    printer.print("\n\n$forwards$\n\n", {{"forwards", forwards(named)}});
    const ClassScope scope(printer, docComment(what, 0), type.className, baseOf(type));
    declareLife(printer, type.className,
                "A deep copy; what it consists of is registered in `registry`, the array itself is "
                "not.");
    printer.print(R"(

    /// Replaces the elements by deep copies of those of `other`, registered in `registry`.
    void copy(const $class$& other, KORVAObjectRegistryI& registry);

)",
                  {{"class", type.className}});
    declareNames(printer, true);
    printer.print(R"(

private:
    ObjectType elementType() const override;
)");
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
    UnitFrame frame(files, "schema/KORVASchemaTypesArray" + std::to_string(unit) + "_gen_.cpp",
                    schema.files.front(), {"core/ObjectName.h"});
    for (const Type* type : schema.arrays) {
        if (type->unit != unit) continue;
        frame.include(type->className);
        printArray(frame.content(), *type);
    }
}

}  // namespace

void emitArrays(const Schema& schema, Files& files) {
    for (const Type* type : schema.arrays)
        emitHeader(*type, files);
    for (unsigned unit = 1; unit <= kArrayUnits; ++unit)
        emitUnit(schema, unit, files);
}

}  // namespace korva::schemac::emit
