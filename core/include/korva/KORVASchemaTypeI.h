/// The reflective interface that every value of the bus's schema implements.
#pragma once

#include <korva/KORVAExport.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

/// A typed object of the bus's schema, walked and built by the names of its children.
///
/// Objects own nothing that they point at: what is allocated for a scope belongs to that scope's
/// KORVAObjectRegistryI. An object, and all that can be reached from it, is used by one thread at
/// a time.
class KORVA_EXPORT KORVASchemaTypeI {
public:
    /// The identity of a type: small numbers for the plain types, the CRC-32 of the XML name for
    /// every type of the schema.
    enum ObjectType : int {
        e_Unknown = 0,         ///< no type, or one that nobody knows
        eString = 1,           ///< text
        eInt = 2,              ///< 32-bit signed integer
        eInteger = 3,          ///< unbounded integer of the schema, kept as a 32-bit signed value
        eDecimal = 4,          ///< decimal, kept as a float
        eTime = 5,             ///< time of day, kept as text
        eDateTime = 6,         ///< date and time, kept as text
        eBoolean = 7,          ///< boolean
        eBase64Binary = 8,     ///< binary, carried by a KORVAXSBase64Binary
        eFloat = 9,            ///< single-precision float
        eQName = 10,           ///< qualified name, kept as text
        eCharStreamable = 11,  ///< a KORVA_CharStreamable that stands in for text
        eKORVAUndocumentedFaultDetail = 12,       ///< hand-written fault detail
        eKORVAUndocumentedFaultDetailArray = 13,  ///< its array
        eKORVASOAPFault = 14,                     ///< SOAP fault
#include <korva/KORVAObjectTypes_gen_.inc>
    };

    KORVASchemaTypeI() = default;
    virtual ~KORVASchemaTypeI();

    /// The identity of the most derived class.
    virtual ObjectType getObjectType() const = 0;

    /// The class name with its prefix ("KORVASchedule"), as a text object built on first use. The
    /// first call for a class must not race with another.
    virtual const std::string& getGeneratedObjectName() const = 0;

    /// The class name with its prefix, a literal.
    virtual const char* generatedObjectName() const = 0;

    /// The child called `name`: the stored pointer of an object, text or binary child (null while
    /// unset), the address of a value (null while there is none), or of an array.
    /// With `forWrite` a value child is first marked as having a value, and its address always
    /// comes back. An unknown name gives null. For arrays see KORVASchemaTypeArrayI.
    /// @throws ZELAssertError `name` is null
    virtual void* getChildObject(const char* name, bool forWrite) = 0;

    /// The declared type of the child called `name`, e_Unknown for an unknown name.
    /// @throws ZELAssertError `name` is null
    virtual ObjectType getChildType(const char* name) const = 0;

    /// Stores `obj` as the child called `name`; nothing is copied, registered or deleted.
    ///
    /// What `obj` points at follows from `type`: a KORVASchemaTypeI for generated types, a
    /// ZELByteBuffer for text kinds, a KORVA_CharStreamable or text for eCharStreamable, a
    /// KORVAXSBase64Binary for eBase64Binary, and an int, bool or float for the others.
    /// @param idx arrays only: null appends, otherwise the one-based position to replace
    /// @return for arrays the one-based position of the element, otherwise 0; 0 as well for an
    ///     empty or unknown name, which store nothing
    /// @throws ZELAssertError `name` or `obj` is null
    /// @throws KORVAException 0xEA47C21F: `type` or the object does not fit the child
    virtual std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                                       std::size_t* idx) = 0;

    /// Appends the names of all declared children, base class first, set or not. The texts live as
    /// long as the process. Arrays append the numbers 1 to size() (KORVAChildIndex).
    /// @param reserve raise the capacity of `names` to getChildObjectCount() first
    virtual void getChildObjectNames(std::vector<const char*>& names, bool reserve) const = 0;

    /// Whether this is an object of `type` or of a class derived from it.
    virtual bool isa(ObjectType type) const = 0;

    /// The number of declared children, set or not; for an array the number of its elements.
    virtual std::size_t getChildObjectCount() const = 0;

protected:
    KORVASchemaTypeI(const KORVASchemaTypeI&) = default;
    KORVASchemaTypeI& operator=(const KORVASchemaTypeI&) = default;
};

namespace korva {

/// The identity of a class, at compile time. Each class of the schema says which class it is, and
/// what its identity is, by two names: `using Self = KORVASchedule`, and `Identity`. What somebody
/// derives from it inherits both, and so is told by a Self of another name.
template <KORVASchemaTypeI::ObjectType type>
struct TypeIdentity {
    static constexpr KORVASchemaTypeI::ObjectType value = type;
};

}  // namespace korva

/// Compares two schema objects of known classes by the virtual operator of the left one. Exact for
/// both operands, so that `base == derived` stays unambiguous with rewritten comparisons.
template <class Left, class Right>
requires(std::is_base_of_v<KORVASchemaTypeI, Left>&&
             std::is_base_of_v<KORVASchemaTypeI, Right>&& requires(const Left& left,
                                                                   const KORVASchemaTypeI& right) {
                 left.operator==(right);
             }) bool
operator==(const Left& left, const Right& right) {
    return left.operator==(static_cast<const KORVASchemaTypeI&>(right));
}

/// The negation of operator== above.
template <class Left, class Right>
requires(std::is_base_of_v<KORVASchemaTypeI, Left>&&
             std::is_base_of_v<KORVASchemaTypeI, Right>&& requires(const Left& left,
                                                                   const KORVASchemaTypeI& right) {
                 left.operator!=(right);
             }) bool
operator!=(const Left& left, const Right& right) {
    return left.operator!=(static_cast<const KORVASchemaTypeI&>(right));
}
