#include "generator/emit/Accessors.h"

#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kMemberIndent = 4;

bool isValue(const Field& field) {
    return field.kind == FieldKind::Boolean || field.kind == FieldKind::Int ||
           field.kind == FieldKind::Float;
}

// The type of the member in the record: of a value, or what a pointer points at.
std::string_view cppType(const Field& field) {
    switch (field.kind) {
        case FieldKind::Boolean: return "bool";
        case FieldKind::Int: return "int";
        case FieldKind::Float: return "float";
        case FieldKind::Text: return "const char";
        case FieldKind::Binary: return "KORVAXSBase64Binary";
        case FieldKind::Object:
        case FieldKind::EmbeddedArray: break;
    }
    return field.reference.type->className;
}

std::string_view kindName(FieldKind kind) {
    switch (kind) {
        case FieldKind::Object: return "Object";
        case FieldKind::Text: return "Text";
        case FieldKind::Boolean: return "Boolean";
        case FieldKind::Int: return "Int";
        case FieldKind::Float: return "Float";
        case FieldKind::Binary: return "Binary";
        case FieldKind::EmbeddedArray: return "EmbeddedArray";
    }
    return {};
}

std::string getterComment(const Field& field) {
    std::string state = "Null while unset.";
    if (isValue(field)) state = "Null while there is no value.";
    if (field.kind == FieldKind::EmbeddedArray) state = "Empty at first.";
    const std::string what =
        field.documentation.empty() ? "The element \"" + field.name + "\"." : field.documentation;
    return docComment(joined(sentence(what), state), kMemberIndent);
}

void declareObject(Printer& printer, const Field& field) {
    printer.print(R"(
    $type$* get$stem$() const;
)",
                  {{"type", cppType(field)}, {"stem", field.stem}});
    printer.print(field.createsOnGet ? R"(
    /// The same; made and registered in `registry` when unset.
    /// @throws ZELOutOfMemoryError no memory is left
)"
                                     : R"(
    /// The same; the type is abstract, so nothing can be made.
    /// @throws ZELAssertError a registry is given, and the child is unset
)");
    printer.print(R"(
    $type$* get$stem$(KORVAObjectRegistryI* registry);
)",
                  {{"type", cppType(field)}, {"stem", field.stem}});
}

}  // namespace

void printMembers(Printer& printer, const std::vector<Field>& fields) {
    for (const Field& field : fields) {
        const Printer::Values values = {{"type", cppType(field)}, {"name", field.member}};
        switch (field.kind) {
            case FieldKind::EmbeddedArray: printer.print("    $type$ $name$;\n", values); break;
            case FieldKind::Boolean:
                printer.print("    bool $name$ = false;\n    bool $name$IsNull = true;\n", values);
                break;
            case FieldKind::Int:
            case FieldKind::Float:
                printer.print("    $type$ $name$ = 0;\n    bool $name$IsNull = true;\n", values);
                break;
            default: printer.print("    $type$* $name$ = nullptr;\n", values); break;
        }
    }
}

void printFieldRows(Printer& printer, const std::string& recordName,
                    const std::vector<Field>& fields) {
    for (const Field& field : fields) {
        const std::string crc = hex(field.identity);
        const std::string type = objectType(field.reference);
        std::string flag = "0";
        if (isValue(field)) {
            flag = "offsetof(" + recordName + ", " + field.member + "IsNull)";
        }
        printer.print(R"(
    // $name$
    {$crc$, $type$,
     offsetof($record$, $member$),
     $flag$, korva::FieldKind::$kind$},
)",
                      {{"crc", crc},
                       {"type", type},
                       {"record", recordName},
                       {"member", field.member},
                       {"flag", flag},
                       {"kind", kindName(field.kind)},
                       {"name", field.name}});
    }
}

void declareAccessors(Printer& printer, const Field& field) {
    const std::string comment = getterComment(field);
    const Printer::Values values = {
        {"comment", comment}, {"type", cppType(field)}, {"stem", field.stem}};
    printer.print("\n\n    $comment$\n", values);
    if (field.kind == FieldKind::EmbeddedArray) {
        printer.print("    $type$& get$stem$() const;\n", values);
        return;
    }
    if (field.kind == FieldKind::Object) {
        declareObject(printer, field);
    } else {
        printer.print("    $type$* get$stem$() const;\n", values);
    }
    if (isValue(field)) {
        printer.print(R"(
    void set$stem$($type$ value);
    /// From now on there is no value; what was stored stays in place.
    void reset$stem$();
)",
                      values);
    } else {
        printer.print(R"(
    /// Stores the pointer as it stands; null unsets.
    void set$stem$($type$* value);
)",
                      values);
    }
}

void defineAccessors(Printer& printer, const std::string& className, const Field& field) {
    const std::string_view creator =
        field.createsOnGet ? "korva::createOnGet" : "korva::refuseCreation";
    const Printer::Values values = {{"class", className},
                                    {"type", cppType(field)},
                                    {"member", field.member},
                                    {"stem", field.stem},
                                    {"creator", creator}};
    if (field.kind == FieldKind::EmbeddedArray) {
        printer.print("$type$& $class$::get$stem$() const { return data()->$member$; }\n", values);
        return;
    }
    if (isValue(field)) {
        printer.print(R"(
$type$* $class$::get$stem$() const {
    return data()->$member$IsNull ? nullptr : &data()->$member$;
}
void $class$::set$stem$($type$ value) {
    data()->$member$ = value;
    data()->$member$IsNull = false;
}
void $class$::reset$stem$() { data()->$member$IsNull = true; }
)",
                      values);
        return;
    }
    printer.print("$type$* $class$::get$stem$() const { return data()->$member$; }\n", values);
    if (field.kind == FieldKind::Object) {
        printer.print(R"(
$type$* $class$::get$stem$(KORVAObjectRegistryI* registry) {
    return $creator$(data()->$member$, registry);
}
)",
                      values);
    }
    printer.print("void $class$::set$stem$($type$* value) { data()->$member$ = value; }\n", values);
}

void namedClasses(const std::vector<Field>& fields, std::vector<std::string>& into) {
    for (const Field& field : fields) {
        if (field.reference.type != nullptr) into.push_back(field.reference.type->className);
        if (field.kind == FieldKind::Binary) into.emplace_back(cppType(field));
    }
}

void createdClasses(const std::vector<Field>& fields, std::vector<std::string>& into) {
    for (const Field& field : fields) {
        if (field.createsOnGet) into.push_back(field.reference.type->className);
    }
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
