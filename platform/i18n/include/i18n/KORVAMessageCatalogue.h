/// Finds the English text of a numbered message.
#pragma once

#include <i18n/I18NExport.h>

#include <cstdint>

class I18N_EXPORT KORVAMessageCatalogue {
public:
    KORVAMessageCatalogue() = delete;

    /// A literal with the message's parameters as `{0}`, `{1}` and so on; null for an unknown id.
    static const char* find(std::uint32_t id) noexcept;
};
