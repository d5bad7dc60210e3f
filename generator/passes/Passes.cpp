#include "generator/passes/Passes.h"

#include <zlib.h>

namespace korva::schemac {

void runPasses(model::Schema& schema, Diagnostics& diagnostics) {
    passes::resolveReferences(schema, diagnostics);
    passes::findCycles(schema, diagnostics);
    passes::decideKinds(schema, diagnostics);
    passes::decideNames(schema, diagnostics);
    passes::decideIdentities(schema, diagnostics);
    passes::joinOperations(schema, diagnostics);
    passes::decideOrder(schema);
}

namespace passes {

std::int32_t identityOf(std::string_view name) {
    const auto* bytes = reinterpret_cast<const Bytef*>(name.data());
    return static_cast<std::int32_t>(
        static_cast<std::uint32_t>(crc32(0, bytes, static_cast<uInt>(name.size()))));
}

std::string raised(std::string_view text) {
    std::string out(text);
    if (!out.empty() && out[0] >= 'a' && out[0] <= 'z') {
        out[0] = static_cast<char>(out[0] - 'a' + 'A');
    }
    return out;
}

std::string describe(const model::Type& type) {
    const bool simple =
        type.form == model::TypeForm::Enumeration || type.form == model::TypeForm::RestrictedString;
    return item(simple ? "simpleType" : "complexType", type.name);
}

}  // namespace passes

}  // namespace korva::schemac
