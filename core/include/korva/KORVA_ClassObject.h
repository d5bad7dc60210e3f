/// What the schema's classes and properties have in common.
#pragma once

#include <korva/KORVASchemaTypeI.h>

namespace korva {
struct ClassDescriptor;
struct Record;
}  // namespace korva

/// The implementation behind every class and property of the schema: it answers the reflective
/// contract from the class's table of fields. The fields themselves, base class first, stand in one
/// record that the object holds.
class KORVA_EXPORT KORVA_ClassObject : public KORVASchemaTypeI {
public:
    ~KORVA_ClassObject() override;
    KORVA_ClassObject(const KORVA_ClassObject&) = delete;
    KORVA_ClassObject& operator=(const KORVA_ClassObject&) = delete;

    void* getChildObject(const char* name, bool forWrite) override;
    ObjectType getChildType(const char* name) const override;
    /// @throws ZELAssertError also for a child that is an array: such children are filled through
    ///     getChildObject and the array's own operations
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// Whether `other` is of this object's class, or of one derived from it, and equal in all
    /// fields of this object's class. Not symmetric: a derived object differs from a base object.
    /// The last value of a field that was reset takes part.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

protected:
    /// Takes the record of the most derived class.
    explicit KORVA_ClassObject(korva::Record* record) noexcept : m_pPrivateData(record) {}

    /// The fields of the most derived class and its bases.
    virtual const korva::ClassDescriptor& descriptor() const = 0;

    korva::Record* m_pPrivateData;

private:
    friend struct korva::ClassDescriptor;
};
