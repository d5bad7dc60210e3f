#include "generator/emit/FieldKinds.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace korva::schemac::emit {

using model::FieldKind;

namespace {

constexpr std::string_view kPointerMember = "    $type$* $member$ = nullptr;\n";
constexpr std::string_view kPointerGetter = "    $type$* get$stem$() const;\n";
constexpr std::string_view kPointerGetterBody =
    "$type$* $class$::get$stem$() const { return data()->$member$; }\n";
constexpr std::string_view kPointerSetter = R"(
    /// Stores the pointer as it stands; null unsets.
    void set$stem$($type$* value);
)";
constexpr std::string_view kPointerSetterBody =
    "void $class$::set$stem$($type$* value) { data()->$member$ = value; }\n";

constexpr FieldShape kPointer = {
    .state = "Null while unset.",
    .member = kPointerMember,
    .getter = kPointerGetter,
    .maker = {},
    .setter = kPointerSetter,
    .getterBody = kPointerGetterBody,
    .makerBody = {},
    .setterBody = kPointerSetterBody,
};

constexpr FieldShape kMadePointer = {
    .state = "Null while unset.",
    .member = kPointerMember,
    .getter = kPointerGetter,
    .maker = R"(
    $note$
    $type$* get$stem$(KORVAObjectRegistryI* registry);
)",
    .setter = kPointerSetter,
    .getterBody = kPointerGetterBody,
    .makerBody = R"(
$type$* $class$::get$stem$(KORVAObjectRegistryI* registry) {
    return $creator$(data()->$member$, registry);
}
)",
    .setterBody = kPointerSetterBody,
};

constexpr FieldShape kValue = {
    .state = "Null while there is no value.",
    .member = R"(
    $type$ $member$ = $zero$;
    bool $member$IsNull = true;
)",
    .getter = kPointerGetter,
    .maker = {},
    .setter = R"(
    void set$stem$($type$ value);
    /// From now on there is no value; what was stored stays in place.
    void reset$stem$();
)",
    .getterBody = R"(
$type$* $class$::get$stem$() const {
    return data()->$member$IsNull ? nullptr : &data()->$member$;
}
)",
    .makerBody = {},
    .setterBody = R"(
void $class$::set$stem$($type$ value) {
    data()->$member$ = value;
    data()->$member$IsNull = false;
}
void $class$::reset$stem$() { data()->$member$IsNull = true; }
)",
    .hasFlag = true,
};

constexpr FieldShape kEmbedded = {
    .state = "Empty at first.",
    .member = "    $type$ $member$;\n",
    .getter = "    $type$& get$stem$() const;\n",
    .maker = {},
    .setter = {},
    .getterBody = "$type$& $class$::get$stem$() const { return data()->$member$; }\n",
    .makerBody = {},
    .setterBody = {},
};

constexpr std::array<FieldKindRow, 7> kRows = {{
    {FieldKind::Object, "Object", "", "", "KORVA_ObjectArray<$type$>", kMadePointer},
    {FieldKind::Text, "Text", "const char", "", "KORVA_TextArray", kPointer},
    {FieldKind::Boolean, "Boolean", "bool", "false", "KORVA_BooleanArrayBase", kValue},
    {FieldKind::Int, "Int", "int", "0", "KORVA_IntArrayBase", kValue},
    {FieldKind::Float, "Float", "float", "0", "", kValue},
    {FieldKind::Binary, "Binary", "KORVAXSBase64Binary", "", "", kPointer},
    {FieldKind::EmbeddedArray, "EmbeddedArray", "", "", "", kEmbedded},
}};

}  // namespace

const FieldKindRow& rowOf(FieldKind kind) {
    const auto found = std::find_if(kRows.begin(), kRows.end(),
                                    [&](const FieldKindRow& row) { return row.kind == kind; });
    if (found == kRows.end()) throw std::logic_error("a kind of field has no row");
    return *found;
}

}  // namespace korva::schemac::emit
