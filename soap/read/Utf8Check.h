/// Whether bytes are UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace korva {

/// How many of the bytes of `text`, from its start on, are whole characters of UTF-8 without a NUL.
/// `isCut` tells whether the rest may be the start of a character that goes on behind `text`.
std::size_t utf8Prefix(std::string_view text, bool& isCut);

}  // namespace korva
