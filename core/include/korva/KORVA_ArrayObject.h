/// What the schema's arrays have in common.
#pragma once

#include <korva/KORVASchemaTypeArrayI.h>

class KORVAObjectRegistryI;

namespace korva {
class ArrayAccess;
}

/// The implementation behind every array of the schema: it answers the reflective contract through
/// the typed storage of the class derived from it. An array owns its storage, not its elements.
class KORVA_EXPORT KORVA_ArrayObject : public KORVASchemaTypeArrayI {
public:
    ~KORVA_ArrayObject() override;
    KORVA_ArrayObject(const KORVA_ArrayObject&) = delete;
    KORVA_ArrayObject& operator=(const KORVA_ArrayObject&) = delete;

    /// The element with the one-based number that `name` carries: the stored pointer of an object
    /// or text, the address of a value.
    /// @throws ZELAssertError `name` is null
    /// @throws std::out_of_range there is no such element
    void* getChildObject(const char* name, bool forWrite) override;
    /// The type of the elements, for any `name`.
    ObjectType getChildType(const char* name) const override;
    /// Appends an element, or replaces the one at `*idx`; `name` is any text but the empty one.
    /// @throws ZELAssertError `name` or `obj` is null, or there is no element at `*idx`
    /// @throws KORVAException 0xEA47C21F: the element does not fit
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    /// True for the array's own identity only.
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// Whether `other` is of this class and has equal elements in the same order.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

protected:
    KORVA_ArrayObject() = default;

    /// @throws std::out_of_range always
    [[noreturn]] static void throwInvalidSubscript();

    /// Makes an object, registers it and appends it.
    KORVASchemaTypeI* appendNew(KORVASchemaTypeI* (*create)(), KORVAObjectRegistryI& registry);

    /// Replaces the elements by deep copies of those of `other`, an array of the same class.
    void copyElements(const KORVA_ArrayObject& other, KORVAObjectRegistryI& registry);

private:
    friend class korva::ArrayAccess;

    // The storage, seen without its type: what an element is follows from elementType().
    virtual void* slot(std::size_t position) const = 0;
    virtual void setSlot(std::size_t position, void* element) = 0;
    virtual void resizeSlots(std::size_t count) = 0;
    virtual ObjectType elementType() const = 0;
};
