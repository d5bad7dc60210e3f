/// The texts of the messages, from this project.
#pragma once

#include <cstdint>

class KORVAMessageCatalogue {
public:
    static const char* find(std::uint32_t id) noexcept;
};
