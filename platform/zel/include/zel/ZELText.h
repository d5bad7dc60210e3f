/// A text that exceptions carry: its copies share the characters, and no operation can fail.
#pragma once

#include <zel/ZELExport.h>

/// Immutable, counted, safe to share between threads. If a text can't be stored for lack of memory,
/// `get` gives a fixed text that says so instead.
class ZEL_EXPORT ZELText {
public:
    /// The empty text.
    ZELText() noexcept = default;

    /// Copies the characters up to the NUL; null gives the empty text.
    explicit ZELText(const char* text) noexcept;

    /// Keeps the pointer itself, and so needs no memory: for string literals.
    static ZELText fromLiteral(const char* literal) noexcept;

    ZELText(const ZELText& other) noexcept;
    ZELText& operator=(const ZELText& other) noexcept;
    ~ZELText();

    /// Never null; lives as long as the last copy of this text.
    const char* get() const noexcept { return m_text; }

private:
    struct Block;

    const char* m_text = "";
    Block* m_block = nullptr;
};
