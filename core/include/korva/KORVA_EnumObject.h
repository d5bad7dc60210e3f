/// What the schema's enumerations have in common.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstdint>

class KORVAObjectRegistryI;

namespace korva {
class OpenWordTable;
struct EnumDescriptor;
}  // namespace korva

/// The implementation behind every enumeration of the schema: one number, the CRC-32 of the word
/// that it stands for, 0 while nothing is set. Its one child, under the empty name, is the word.
///
/// An open enumeration is known to have more words than the schema. Its objects can hold one of
/// those, too, as the text that it is.
class KORVA_EXPORT KORVA_EnumObject : public KORVASchemaTypeI {
public:
    /// The value of all words that neither the schema nor the program knows: what the enumerator
    /// eKORVA_OtherWord of an open enumeration is.
    static constexpr int otherWord = 1;

    ~KORVA_EnumObject() override;
    KORVA_EnumObject(const KORVA_EnumObject&) = delete;
    KORVA_EnumObject& operator=(const KORVA_EnumObject&) = delete;

    /// The word of the value, or the one that is held as it stands; the empty text while nothing is
    /// set.
    /// @throws ZELAssertError the value is none of this enumeration
    const char* toString() const;
    /// Sets the value of a word. A word that an open enumeration lacks is held as it stands, as a
    /// copy that belongs to `registry`.
    /// @return whether the enumeration has the word
    /// @throws ZELAssertError `word` is null
    /// @throws KORVAException 0xEA45DC29: unknown word, and the enumeration is not open
    /// @throws ZELOutOfMemoryError no memory is left
    bool setWord(const char* word, KORVAObjectRegistryI& registry);

    /// The word that the object holds as it stands; null if it holds none.
    const char* getOtherWord() const {
        return isHeld() ? reinterpret_cast<const char*>(static_cast<std::uintptr_t>(m_data ^ 1U))
                        : nullptr;
    }

    /// Whether the enumeration is known to have words that the schema lacks.
    bool isOpen() const;

    /// The word, whatever the arguments.
    /// @throws ZELAssertError nothing is set, or the value is none of this enumeration
    void* getChildObject(const char* name, bool forWrite) override;
    /// Always eString.
    ObjectType getChildType(const char* name) const override;
    /// Sets the value by the word in the ZELByteBuffer `obj`, whatever the name.
    /// @throws ZELAssertError `name` or `obj` is null
    /// @throws KORVAException 0xEA45DC29: unknown word, with a second message 0xEA4F0003 if the
    ///     enumeration is open; 0xEA47C21F: `type` is no text
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// Whether `other` is of this class and has the same value.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

protected:
    KORVA_EnumObject() = default;

    virtual const korva::EnumDescriptor& descriptor() const = 0;

    /// The value as it was stored; otherWord beside a word that is held as it stands.
    int value() const { return isHeld() ? otherWord : static_cast<int>(m_data >> 1U); }
    /// Stores a value unchecked.
    void assign(int value) {
        m_data = static_cast<std::uint64_t>(static_cast<std::uint32_t>(value)) << 1U;
    }
    /// Stores what `other` holds, a word that is held as it stands as a copy in `registry`.
    void copy(const KORVA_EnumObject& other, KORVAObjectRegistryI& registry);
    /// The word that is held, or that of the value.
    const char* word() const;

private:
    friend class korva::OpenWordTable;

    bool isHeld() const { return (m_data & 1U) != 0; }
    void hold(const char* word, KORVAObjectRegistryI& registry);

    /// Twice the value, or the address of a word plus one: a copy's address is even.
    std::uint64_t m_data = 0;
};
