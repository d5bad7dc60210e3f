/// Where the texts that a reader collects are kept.
#pragma once

#include <zel/ZELByteBuffer.h>

#include <cstddef>

class KORVAObjectRegistryI;

namespace korva {

/// Copies texts into arrays that a registry owns, many small ones into one array: a text costs its
/// bytes and its NUL. Belongs to one parse.
class TextStore {
public:
    /// A NUL-terminated copy of `length` bytes, which lives as long as what `registry` owns.
    /// Nothing changes when memory runs out.
    char* keep(const char* bytes, std::size_t length, KORVAObjectRegistryI& registry);

private:
    char* allocate(std::size_t size, KORVAObjectRegistryI& registry);

    KORVAObjectRegistryI* m_registry = nullptr;  ///< owner of the current array
    char* m_free = nullptr;                      ///< what is unused of it
    std::size_t m_freeSize = 0;
    std::size_t m_nextSize = 512;
};

/// Shows a text that lives elsewhere as the buffer in which setChildObject takes texts.
class TextView final : public ZELByteBuffer {
public:
    /// `text` must be NUL-terminated.
    TextView(char* text, std::size_t length) {
        m_pBuffer = text;
        m_length = length;
        m_capacity = length;
    }
    TextView(const TextView&) = delete;
    TextView& operator=(const TextView&) = delete;
    ~TextView() override { m_pBuffer = nullptr; }
};

}  // namespace korva
