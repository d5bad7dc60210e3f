/// Names as words of the schema.
#pragma once

#include <string_view>

namespace korva {

/// The word table's text for `name` if that is a word of the schema, otherwise `other`.
const char* wordOr(std::string_view name, const char* other);

}  // namespace korva
