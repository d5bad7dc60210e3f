/// What becomes of text that no document can hold.
#pragma once

#include <string>
#include <string_view>

namespace korva {

/// Who knows where in a document a text is to stand.
class TextPlace {
public:
    /// The names of the elements from the outermost to the one that has the text, each behind a
    /// slash: "/run/options/item[2]".
    virtual std::string path() const = 0;

protected:
    ~TextPlace() = default;
};

/// The rule for characters that XML 1.0 has not, and for what is no UTF-8.
class InvalidText {
public:
    /// @param replace write U+FFFD instead of raising
    explicit InvalidText(bool replace) : m_place(nullptr), m_replace(replace) {}

    /// Who is asked for the place of a text that is refused. Outlives what is written.
    void setPlace(const TextPlace& place) { m_place = &place; }

    /// What goes out in the place of a character, whose code is `character`.
    /// @throws KORVAException 0xEA4F0004: nothing does
    std::string_view replaceCharacter(unsigned character) const;

    /// The same for a byte that is part of no character.
    std::string_view replaceByte(unsigned char byte) const;

private:
    void refuse(const std::string& found) const;

    const TextPlace* m_place;
    bool m_replace;
};

}  // namespace korva
