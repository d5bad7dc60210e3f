#include "i18n/KORVAMessageCatalogue.h"

// Two messages with one number are two equal cases, which doesn't compile.
const char* KORVAMessageCatalogue::find(std::uint32_t id) noexcept {
    switch (id) {
#define KORVA_MESSAGE(name, id, text) \
    case id:                          \
        return text;
#include <i18n/KORVAMessages.def>
#undef KORVA_MESSAGE
        default: return nullptr;
    }
}
