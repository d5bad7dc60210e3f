#include "zel/ZELText.h"

#include <atomic>
#include <cstddef>
#include <cstring>
#include <new>
#include <utility>

/// The count stands directly before the characters.
struct ZELText::Block {
    std::atomic<std::size_t> references;

    char* characters() noexcept { return reinterpret_cast<char*>(this + 1); }
};

ZELText::ZELText(const char* text) noexcept {
    if (!text || *text == '\0') return;
    const std::size_t size = std::strlen(text) + 1;
    void* memory = ::operator new(sizeof(Block) + size, std::nothrow);
    if (!memory) {
        m_text = "(text lost: out of memory)";
        return;
    }
    m_block = new (memory) Block{1};
    std::memcpy(m_block->characters(), text, size);
    m_text = m_block->characters();
}

ZELText ZELText::fromLiteral(const char* literal) noexcept {
    ZELText text;
    if (literal) text.m_text = literal;
    return text;
}

ZELText::ZELText(const ZELText& other) noexcept : m_text(other.m_text), m_block(other.m_block) {
    if (m_block) m_block->references.fetch_add(1, std::memory_order_relaxed);
}

ZELText& ZELText::operator=(const ZELText& other) noexcept {
    ZELText copy(other);
    std::swap(m_text, copy.m_text);
    std::swap(m_block, copy.m_block);
    return *this;
}

ZELText::~ZELText() {
    if (m_block && m_block->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        m_block->~Block();
        ::operator delete(m_block);
    }
}
