/// The passes over a schema that has been read. Each checks one thing, decides what follows from it
/// and writes that into the model; none of them stops at an error, so that one run tells all.
#pragma once

#include "generator/Diagnostics.h"
#include "generator/model/Schema.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korva::schemac {

/// Runs all passes in their order. The decisions hold only if no error was recorded.
void runPasses(model::Schema& schema, Diagnostics& diagnostics);

namespace passes {

/// Looks up the types of fields, parts, array elements and bases.
void resolveReferences(model::Schema& schema, Diagnostics& diagnostics);

/// Refuses elements of the top level that are not entries of a header, and parts that name others.
void checkHeaders(model::Schema& schema, Diagnostics& diagnostics);

/// Refuses a class that is among its own bases, and cuts such a chain for the passes that follow.
void findCycles(model::Schema& schema, Diagnostics& diagnostics);

/// Tells properties from classes and decides how each field is kept.
void decideKinds(model::Schema& schema, Diagnostics& diagnostics);

/// Names of classes, accessors and enumerators.
void decideNames(model::Schema& schema, Diagnostics& diagnostics);

/// CRC-32 identities of types, words and messages, and the word table.
void decideIdentities(model::Schema& schema, Diagnostics& diagnostics);

/// Joins port types with their bindings and messages.
void joinOperations(model::Schema& schema, Diagnostics& diagnostics);

/// The order in which each family is written, the unit of each item, and the place of each field.
void decideOrder(model::Schema& schema);

/// The hash tables of the fields, and the indexes of what is looked up by its identity.
void decideTables(model::Schema& schema);

/// The CRC-32 of a name as the signed number that identifies it.
std::int32_t identityOf(std::string_view name);

/// An identity as tables are sorted by it.
constexpr std::uint32_t unsignedIdentity(std::int32_t identity) {
    return static_cast<std::uint32_t>(identity);
}

/// `text` with its first letter raised, as in the name of a class or an accessor.
std::string raised(std::string_view text);

/// `complexType "schedule"` or `simpleType "severityEnum"`.
std::string describe(const model::Type& type);

}  // namespace passes

}  // namespace korva::schemac
