/// What the schema's restricted strings have in common.
#pragma once

#include <korva/KORVASchemaTypeI.h>

class KORVAObjectRegistryI;

/// The implementation behind every restricted string of the schema: one text, stored as it comes
/// and never checked. Its one child stands under the empty name.
class KORVA_EXPORT KORVA_RestrictedString : public KORVASchemaTypeI {
public:
    ~KORVA_RestrictedString() override;
    KORVA_RestrictedString(const KORVA_RestrictedString&) = delete;
    KORVA_RestrictedString& operator=(const KORVA_RestrictedString&) = delete;

    /// The text, or null. May be a KORVA_CharStreamable.
    const char* getValue() const { return m_value; }
    /// Stores the pointer as it stands; the caller or a registry keeps the text alive.
    void setValue(const char* value) { m_value = value; }

    /// The text, whatever the arguments; null while unset.
    void* getChildObject(const char* name, bool forWrite) override;
    /// Always eString.
    ObjectType getChildType(const char* name) const override;
    /// Stores the text of the ZELByteBuffer `obj`, or `obj` itself with eCharStreamable.
    /// @throws ZELAssertError `obj` is null, and `type` is not eCharStreamable
    /// @throws KORVAException 0xEA47C21F: `type` is no text
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// Whether `other` is of this class and has the same text, byte by byte.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

protected:
    KORVA_RestrictedString() = default;
    /// Copies the text into `registry`.
    KORVA_RestrictedString(const KORVA_RestrictedString& other, KORVAObjectRegistryI& registry);

private:
    const char* m_value = nullptr;
};
