#include "soap/read/TextStore.h"

#include <korva/KORVAObjectRegistryI.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace korva {

namespace {
constexpr std::size_t largestArray = 32768;
}

char* TextStore::allocate(std::size_t size, KORVAObjectRegistryI& registry) {
    return registry.own(std::unique_ptr<char[]>(new char[size]),
                        KORVAObjectRegistryI::eKORVADeleteArray);
}

char* TextStore::keep(const char* bytes, std::size_t length, KORVAObjectRegistryI& registry) {
    const std::size_t size = length + 1;
    char* text = nullptr;
    if (size > m_nextSize / 4) {
        // Would leave too much of an array unused.
        text = allocate(size, registry);
    } else {
        if (size > m_freeSize || m_registry != &registry) {
            m_free = allocate(m_nextSize, registry);
            m_freeSize = m_nextSize;
            m_registry = &registry;
            m_nextSize = std::min(2 * m_nextSize, largestArray);
        }
        text = m_free;
        m_free += size;
        m_freeSize -= size;
    }
    std::memcpy(text, bytes, length);
    text[length] = '\0';
    return text;
}

}  // namespace korva
