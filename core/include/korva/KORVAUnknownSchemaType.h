/// What stands in an object tree for a type that is not in the vocabulary.
#pragma once

#include <korva/KORVASchemaTypeI.h>

/// An object without children that remembers the name of a type nobody knows.
class KORVA_EXPORT KORVAUnknownSchemaType : public KORVASchemaTypeI {
public:
    using Self = KORVAUnknownSchemaType;
    using Identity = korva::TypeIdentity<e_Unknown>;

    /// An empty name.
    KORVAUnknownSchemaType();
    /// Copies `name`.
    /// @throws ZELOutOfMemoryError no memory is left
    explicit KORVAUnknownSchemaType(const std::string& name);
    ~KORVAUnknownSchemaType() override;
    KORVAUnknownSchemaType(const KORVAUnknownSchemaType&) = delete;
    KORVAUnknownSchemaType& operator=(const KORVAUnknownSchemaType&) = delete;

    /// The name as it was set; valid until the next setName.
    const char* getName() const;
    /// Copies `name`.
    /// @throws ZELOutOfMemoryError no memory is left; the name is unchanged
    void setName(const std::string& name);

    ObjectType getObjectType() const override;
    /// The name as it was set.
    const std::string& getGeneratedObjectName() const override;
    /// The name as it was set.
    const char* generatedObjectName() const override;
    /// Always null.
    void* getChildObject(const char* name, bool forWrite) override;
    /// Always e_Unknown.
    ObjectType getChildType(const char* name) const override;
    /// Stores nothing and gives 0.
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    /// Appends nothing.
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    /// True for e_Unknown only.
    bool isa(ObjectType type) const override;
    /// Always 0.
    std::size_t getChildObjectCount() const override;

    /// Compares addresses only.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

private:
    std::string m_name;
};
