/// The arrays of the second object model.
#pragma once

#include <tarn/TARNSchemaTypeI.h>

namespace tarn {
union Slot;
struct TypeRow;
}  // namespace tarn

/// An array of any type of the schema. It owns its storage, not its elements.
class TARN_EXPORT TARN_ArrayObject : public TARNSchemaTypeI {
public:
    ~TARN_ArrayObject() override;

    ObjectType getObjectType() const override;
    std::size_t setChildObject(const char* name, void* value, const ObjectType& type,
                               std::size_t* index) override;
    void* getChildObject(const char* name, bool forWrite) override;
    ObjectType getChildType(const char* name) const override;
    void getChildObjectNames(std::vector<const char*>& names, bool includeNull) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// The number of elements.
    std::size_t size() const;

    /// A new array, empty. For TARNSchemaTypesFactory.
    TARN_LOCAL static TARNSchemaTypeI* create(const tarn::TypeRow& type);

protected:
    friend class TARN_ClassObject;

    explicit TARN_ArrayObject(const tarn::TypeRow& type);

    /// The element at the zero-based `position`, which there must be.
    void* element(std::size_t position) const;

private:
    const tarn::TypeRow& m_type;
    std::vector<tarn::Slot> m_elements;
};
