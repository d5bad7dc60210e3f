/// Small pieces of C++ text that the emitters share.
#pragma once

#include "generator/model/Schema.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korva::schemac::emit {

/// "schema/schedules.xsd" for any path that ends so: generated files do not depend on where the
/// build stands.
std::string sourceName(std::string_view path);

/// `text` as `///` lines that fit into 100 columns at this indentation; the lines are not indented.
std::string docComment(std::string_view text, std::size_t indent);

/// `text` with a full stop behind it, unless it ends in punctuation or is empty.
std::string sentence(std::string_view text);

/// Two texts with a blank between them, or the one that is not empty.
std::string joined(std::string_view left, std::string_view right);

/// `text` as a C++ string literal, quotation marks included.
std::string literal(std::string_view text);

/// "0x5A3811FBU".
std::string hex(std::int32_t identity);

/// "int(0x5A3811FBU)", for an enumerator: an int cannot hold the upper half of the numbers as such.
std::string enumeratorValue(std::int32_t identity);

/// "KORVASchemaTypeI::eKORVASchedule" or "KORVASchemaTypeI::eString".
std::string objectType(const model::TypeReference& reference);

/// `items` separated by blanks, as lines that fit into 100 columns at this indentation.
std::string filled(const std::vector<std::string>& items, std::size_t indent);

/// The numbers of a table, each with a comma behind it, as `filled` lays them out.
std::string numbers(const std::vector<std::size_t>& values, std::size_t indent);

/// `#include "path"` lines, in the order given.
std::string internalIncludes(const std::vector<std::string_view>& paths);

/// `#include <korva/X.h>` lines or `class X;` lines, sorted by their bytes, each once.
std::string includes(std::vector<std::string> classNames);
std::string forwards(std::vector<std::string> classNames);

}  // namespace korva::schemac::emit
