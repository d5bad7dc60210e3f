/// The reflective interface of the second object model.
#pragma once

#include <tarn/TARNExport.h>

#include <cstddef>
#include <vector>

/// An object of the bus's schema, without a class of its own in C++: it is walked and built by the
/// names of its children. TARNSchemaTypesFactory makes objects of each type.
///
/// Objects own nothing that they point at: what is allocated for a scope belongs to that scope's
/// TARNObjectRegistryI. An object, and all that can be reached from it, is used by one thread at a
/// time.
class TARN_EXPORT TARNSchemaTypeI {
public:
    /// The identity of a type: small numbers for the plain types, the CRC-32 of the XML name for
    /// every type of the schema (TARNSchemaTypesFactory::identityOf).
    enum ObjectType : int {
        e_Unknown = 0,      ///< no type, or one that nobody knows
        eString = 1,        ///< text
        eInt = 2,           ///< 32-bit signed integer
        eInteger = 3,       ///< unbounded integer of the schema, kept as a 32-bit signed value
        eDecimal = 4,       ///< decimal, kept as a float
        eTime = 5,          ///< time of day, kept as text
        eDateTime = 6,      ///< date and time, kept as text
        eBoolean = 7,       ///< boolean
        eBase64Binary = 8,  ///< binary, carried by a TARNBase64Binary
        eFloat = 9,         ///< single-precision float
        eQName = 10,        ///< qualified name, kept as text
        eTARNUndocumentedFaultDetail = 12,       ///< TARNUndocumentedFaultDetail
        eTARNUndocumentedFaultDetailArray = 13,  ///< its array
        eTARNSOAPFault = 14,                     ///< TARNSOAPFault
        eTARNReserved = 15,                      ///< not in use: no object and no value has it
        eCharStreamable = 0x116E90CF             ///< a TARN_CharStreamable in the place of text
    };

    TARNSchemaTypeI() = default;
    TARNSchemaTypeI(const TARNSchemaTypeI&) = delete;
    TARNSchemaTypeI& operator=(const TARNSchemaTypeI&) = delete;
    virtual ~TARNSchemaTypeI();

    /// The identity of the object's type.
    virtual ObjectType getObjectType() const = 0;

    /// Stores `value` as the child called `name`; nothing is copied, registered or deleted.
    ///
    /// What `value` points at follows from `type`: a TARNSchemaTypeI for generated types, a
    /// ZELByteBuffer for text kinds (for a TARN_String its `buffer()`), a TARN_CharStreamable or
    /// text for eCharStreamable, a TARNBase64Binary for eBase64Binary, and an int, bool or float
    /// for the others, which are converted into each other; out of range they saturate.
    ///
    /// The name of an array's child says nothing: the element is appended, or replaces the one at
    /// `*index`. An enumeration or restricted string takes its text under any name.
    /// @param index arrays only: null appends, otherwise the one-based position to replace
    /// @return for arrays the one-based position of the element, otherwise 0; 0 as well for an
    ///     empty or unknown name of a class's child, which store nothing
    /// @throws ZELAssertError `name` or `value` is null, or an array has no element at `*index`
    /// @throws TARNTypeError `type` or the object does not fit the child, or the child is an array
    ///     that stands inside the object
    /// @throws ZELOutOfMemoryError no memory is left; the array is unchanged
    virtual std::size_t setChildObject(const char* name, void* value, const ObjectType& type,
                                       std::size_t* index) = 0;

    /// The child called `name`: the stored pointer of an object, text or binary child (null while
    /// unset), the address of a value (null while there is none) or of an array. With `forWrite` a
    /// value child is first marked as having a value, and the details of a fault are made. An
    /// unknown name gives null. The elements of an array are named by their one-based number,
    /// carried in the pointer.
    /// @throws ZELAssertError `name` is null
    /// @throws ZELStdExceptionError an array has no element of this number
    virtual void* getChildObject(const char* name, bool forWrite) = 0;

    /// The declared type of the child called `name`, e_Unknown for an unknown name; the type of the
    /// elements of an array.
    /// @throws ZELAssertError `name` is null
    virtual ObjectType getChildType(const char* name) const = 0;

    /// Appends the names of the children, base class first. The texts live as long as the process;
    /// arrays append numbers. The one name of an enumeration or restricted string is empty.
    /// @param includeNull also of children that are null; arrays inside objects never are
    /// @throws ZELOutOfMemoryError no memory is left
    virtual void getChildObjectNames(std::vector<const char*>& names, bool includeNull) const = 0;

    /// Whether this is an object of `type` or of a type that extends it.
    virtual bool isa(ObjectType type) const = 0;

    /// The number of declared children, set or not; for an array the number of its elements.
    virtual std::size_t getChildObjectCount() const = 0;

    /// Whether `other` is of the same type and equal in all that can be reached. Char streamables
    /// are equal when they share their pieces, streamed binaries when they share their stream.
    /// @throws ZELOutOfMemoryError no memory is left
    bool isEqualTo(const TARNSchemaTypeI& other) const;
};

inline bool operator==(const TARNSchemaTypeI& left, const TARNSchemaTypeI& right) {
    return left.isEqualTo(right);
}
