/// What the schema's enumerations have in common.
#pragma once

#include <korva/KORVASchemaTypeI.h>

namespace korva {
struct EnumDescriptor;
}

/// The implementation behind every enumeration of the schema: one number, the CRC-32 of the word
/// that it stands for, 0 while nothing is set. Its one child, under the empty name, is the word.
class KORVA_EXPORT KORVA_EnumObject : public KORVASchemaTypeI {
public:
    ~KORVA_EnumObject() override;
    KORVA_EnumObject(const KORVA_EnumObject&) = delete;
    KORVA_EnumObject& operator=(const KORVA_EnumObject&) = delete;

    /// The word of the value, which lives as long as the process; the empty text while nothing is
    /// set.
    /// @throws ZELAssertError the value is none of this enumeration
    const char* toString() const;

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

    int m_value = 0;
};
