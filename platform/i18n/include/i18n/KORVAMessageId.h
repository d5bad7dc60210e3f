/// The numbers of the library's messages, by name.
#pragma once

#include <cstdint>

/// Each name stands in `KORVAMessages.def` with its number and its English text.
enum KORVAMessageId : std::uint32_t {
#define KORVA_MESSAGE(name, id, text) name = id,
#include <i18n/KORVAMessages.def>
#undef KORVA_MESSAGE
};
