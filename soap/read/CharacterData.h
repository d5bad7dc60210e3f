/// The text between tags, where nothing but text may stand.
#pragma once

#include "soap/read/ReadGuard.h"

#include <cstddef>
#include <string_view>

namespace korva {

/// Tells `guard` the text at the start of `bytes`, which are UTF-8 behind a whole character of the
/// content of an element. Ends where it is not sure what follows: at a tag, a line's end that is
/// none of XML's own, a reference but those to the five predefined entities, a mark of what may
/// not stand in a text. Returns how many bytes were told, and counts them into `position`.
std::size_t tellCharacterData(std::string_view bytes, ReadGuard& guard, DocumentPosition& position);

}  // namespace korva
