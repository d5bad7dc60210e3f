/// The types of the schema as the library tells them.
#pragma once

#include "tests/support/Registry.h"

#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVASchemaTypesFactory.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace korva::test {

/// The family of a type.
enum class Family { Class, Property, Array, Enum, RestrictedString };

/// The CRC-32 of a text by zlib, as the signed number that an identity is.
std::int32_t crcOf(const std::string& text);

/// The identity of the type with this XML name. A test fails if there is none.
KORVASchemaTypeI::ObjectType typeOf(const std::string& name);

/// A new object of the type with this XML name.
std::unique_ptr<KORVASchemaTypeI> make(const std::string& name);

/// Whether the factory refuses to make the type because it is abstract.
bool isAbstract(const std::string& name);

/// The names of type-names.txt.
const std::vector<std::string>& typeNames();

/// The family to which the library's class of a type belongs. Abstract types, which have no
/// object, are told apart by the schema.
Family familyOf(const std::string& name);

/// The names of the types of one family.
std::vector<std::string> namesOf(Family family);

/// The names of all children of an object, base class first.
std::vector<std::string> childrenOf(const KORVASchemaTypeI& object);

/// "bus:stringProp", the declared type of a child.
std::string childTypeOf(const KORVASchemaTypeI& object, const std::string& child);

}  // namespace korva::test
