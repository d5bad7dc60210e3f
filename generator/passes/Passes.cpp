#include "generator/passes/Passes.h"

#include <zel/ZELUtCrc32.h>

namespace korva::schemac {

void runPasses(model::Schema& schema, Diagnostics& diagnostics) {
    passes::resolveReferences(schema, diagnostics);
    passes::checkHeaders(schema, diagnostics);
    passes::findCycles(schema, diagnostics);
    passes::decideKinds(schema, diagnostics);
    passes::decideNames(schema, diagnostics);
    passes::decideIdentities(schema, diagnostics);
    passes::joinOperations(schema, diagnostics);
    passes::decideOrder(schema);
    passes::decideTables(schema);
}

namespace passes {

std::int32_t identityOf(std::string_view name) {
    return static_cast<std::int32_t>(ZELUtCrc32::crc32(std::string(name).c_str(), 0));
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
