/// The objects of the second object model that have children of their own names.
#pragma once

#include <tarn/TARNSchemaTypeI.h>

namespace tarn {
struct FieldRow;
union Slot;
struct TypeRow;
}  // namespace tarn
class TARN_ArrayObject;

/// An object of any class or property of the schema: it answers the reflective interface from the
/// tables of its type. Its children stand in one block of memory with it.
class TARN_EXPORT TARN_ClassObject : public TARNSchemaTypeI {
public:
    ~TARN_ClassObject() override;

    ObjectType getObjectType() const override;
    std::size_t setChildObject(const char* name, void* value, const ObjectType& type,
                               std::size_t* index) override;
    void* getChildObject(const char* name, bool forWrite) override;
    ObjectType getChildType(const char* name) const override;
    void getChildObjectNames(std::vector<const char*>& names, bool includeNull) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    static void operator delete(void* p) noexcept;

    /// A new object of a class or property, empty. For TARNSchemaTypesFactory.
    TARN_LOCAL static TARNSchemaTypeI* create(const tarn::TypeRow& type);

protected:
    /// Of an object that stands at the start of a block with room for its children.
    explicit TARN_ClassObject(const tarn::TypeRow& type);

    /// The child of this name, as getChildObject(name, false) gives it.
    void* child(const char* name) const;

private:
    TARN_LOCAL tarn::Slot& slot(const tarn::FieldRow& field) const;
    TARN_LOCAL TARN_ArrayObject* arrays() const;
    TARN_LOCAL void* read(const tarn::FieldRow& field) const;
    TARN_LOCAL void* write(const tarn::FieldRow& field);
    TARN_LOCAL void appendNames(const tarn::TypeRow& level, std::vector<const char*>& names,
                                bool includeNull) const;

    const tarn::TypeRow& m_type;
};
