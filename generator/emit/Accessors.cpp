#include "generator/emit/Accessors.h"

#include "generator/emit/FieldKinds.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kMemberIndent = 4;

// What the getter with a registry does beside the other, and the function that does it.
struct Maker {
    std::string_view note;
    std::string_view creator;
};

constexpr Maker kMakes = {R"(/// The same; made and registered in `registry` when unset.
/// @throws ZELOutOfMemoryError no memory is left
)",
                          "korva::createOnGet"};
constexpr Maker kRefuses = {R"(/// The same; the type is abstract, so nothing can be made.
/// @throws ZELAssertError a registry is given, and the child is unset
)",
                            "korva::refuseCreation"};

const Maker& makerOf(const Field& field) {
    return field.createsOnGet ? kMakes : kRefuses;
}

std::string getterComment(const Field& field) {
    const std::string what =
        field.documentation.empty() ? "The element \"" + field.name + "\"." : field.documentation;
    return docComment(joined(sentence(what), rowOf(field.kind).shape.state), kMemberIndent);
}

}  // namespace

std::string_view cppType(const Field& field) {
    const Type* const named = field.reference.type;
    const std::string_view type = rowOf(field.kind).type;
    return type.empty() && named != nullptr ? std::string_view(named->className) : type;
}

void printMembers(Printer& printer, const std::vector<Field>& fields) {
    for (const Field& field : fields) {
        const FieldKindRow& row = rowOf(field.kind);
        printer.print(row.shape.member,
                      {{"type", cppType(field)}, {"member", field.member}, {"zero", row.zero}});
    }
}

void printFieldRows(Printer& printer, const std::string& recordName,
                    const std::vector<Field>& fields) {
    for (const Field& field : fields) {
        const FieldKindRow& row = rowOf(field.kind);
        std::string flag = "0";
        if (row.shape.hasFlag) flag = "offsetof(" + recordName + ", " + field.member + "IsNull)";
        printer.print(R"(
    // $name$
    {$crc$, $type$,
     offsetof($record$, $member$),
     $flag$, korva::FieldKind::$kind$},
)",
                      {{"crc", hex(field.identity)},
                       {"type", objectType(field.reference)},
                       {"record", recordName},
                       {"member", field.member},
                       {"flag", flag},
                       {"kind", row.name},
                       {"name", field.name}});
    }
}

void declareAccessors(Printer& printer, const Field& field) {
    const FieldShape& shape = rowOf(field.kind).shape;
    const std::string comment = getterComment(field);
    const Printer::Values values = {{"comment", comment},
                                    {"type", cppType(field)},
                                    {"stem", field.stem},
                                    {"note", makerOf(field).note}};
    printer.print("\n\n    $comment$\n", values);
    for (const std::string_view part : {shape.getter, shape.maker, shape.setter})
        printer.print(part, values);
}

void defineAccessors(Printer& printer, const std::string& className, const Field& field) {
    const FieldShape& shape = rowOf(field.kind).shape;
    const Printer::Values values = {{"class", className},
                                    {"type", cppType(field)},
                                    {"member", field.member},
                                    {"stem", field.stem},
                                    {"creator", makerOf(field).creator}};
    for (const std::string_view part : {shape.getterBody, shape.makerBody, shape.setterBody})
        printer.print(part, values);
}

std::vector<std::string> namedClasses(const std::vector<Field>& fields) {
    std::vector<std::string> out;
    for (const Field& field : fields) {
        if (field.reference.type != nullptr || field.kind == FieldKind::Binary) {
            out.emplace_back(cppType(field));
        }
    }
    return out;
}

std::vector<std::string> createdClasses(const std::vector<Field>& fields) {
    std::vector<std::string> out;
    for (const Field& field : fields) {
        if (field.createsOnGet) out.push_back(field.reference.type->className);
    }
    return out;
}

void declareLife(Printer& printer, const std::string& className, std::string_view note) {
    printer.print(R"(
    using Self = $class$;
    using Identity = korva::TypeIdentity<e$class$>;

    $class$();
    /// $note$
    $class$(const $class$& other, KORVAObjectRegistryI& registry);
    ~$class$() override;
)",
                  {{"class", className}, {"note", note}});
}

void declareNames(Printer& printer, bool concrete) {
    if (concrete) printer.print("    ObjectType getObjectType() const override;\n");
    printer.print(R"(
    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;
)");
}

void defineNames(Printer& printer, const std::string& className, bool concrete) {
    if (concrete) {
        printer.print(R"(
$class$::ObjectType $class$::getObjectType() const { return e$class$; }
)",
                      {{"class", className}});
    }
    printer.print(R"(
const char* $class$::generatedObjectName() const { return "$class$"; }
const std::string& $class$::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("$class$");
    return name;
}
)",
                  {{"class", className}});
}

}  // namespace korva::schemac::emit
