/// The one place that knows all types by number and by name.
#pragma once

#include <korva/KORVASchemaTypeI.h>

class KORVAObjectRegistryI;
class KORVASchemaTypeArrayI;

/// Turns type names into identities and back, makes objects of a type given by number, and copies
/// objects into a registry. The singleton has no state; any number of threads may use it at once.
class KORVA_EXPORT KORVASchemaTypesFactory {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// One row of a name table.
    struct KORVATypeNameToType {
        const char* name;
        ObjectType type;
    };

    static KORVASchemaTypesFactory& getInstance();

    KORVASchemaTypesFactory(const KORVASchemaTypesFactory&) = delete;
    KORVASchemaTypesFactory& operator=(const KORVASchemaTypesFactory&) = delete;

    /// Whether `type` is none of the plain types 1 to 11.
    static constexpr bool isGeneratedType(ObjectType type) {
        return type < KORVASchemaTypeI::eString || type > KORVASchemaTypeI::eCharStreamable;
    }

    /// Whether values of `type` are kept as text: eString, eTime, eDateTime, eQName,
    /// eCharStreamable.
    static constexpr bool isString(ObjectType type) {
        return type == KORVASchemaTypeI::eString || type == KORVASchemaTypeI::eTime ||
               type == KORVASchemaTypeI::eDateTime || type == KORVASchemaTypeI::eQName ||
               type == KORVASchemaTypeI::eCharStreamable;
    }

    /// Whether `type` is eBase64Binary.
    static constexpr bool isBase64(ObjectType type) {
        return type == KORVASchemaTypeI::eBase64Binary;
    }

    /// Whether `type` is the identity of an array of the schema.
    static bool isArrayType(ObjectType type);

    /// Reports a child of the wrong type.
    /// @throws KORVAException always: 0xEA47C21F with class name, child name, expected and actual
    ///     XSI type
    /// @throws ZELAssertError one of the types has no XSI type text
    [[noreturn]] static void typeError(const char* className, const char* childName,
                                       ObjectType expectedType, ObjectType actualType);

    /// The identity of a type by its bare XML name, generated ("schedule") or plain ("string");
    /// e_Unknown for null, the empty text and an unknown name.
    ObjectType stringToObjectType(const char* name) const;

    /// The identity of a generated type by its bare XML name; e_Unknown if there is none.
    /// @throws ZELAssertError `busType` is null
    ObjectType busTypeToObjectType(const char* busType) const;

    /// The identity of an array by its element's bare XML name; e_Unknown if there is none.
    /// @throws ZELAssertError `arrayType` is null
    ObjectType busArrayTypeToObjectType(const char* arrayType) const;

    /// The identity of a plain type by its local name ("base64Binary"); e_Unknown if there is none.
    /// @throws ZELAssertError `xsiType` is null
    ObjectType xsiTypeToObjectType(const char* xsiType) const;

    /// The XSI type text ("bus:schedule", "xs:int"), a literal.
    /// @throws ZELAssertError `type` has none
    const char* objectTypeToXSIType(ObjectType type) const;

    /// Writes the SOAP array type ("bus:schedule[3]") to `out`; without an `array` the brackets are
    /// empty.
    /// @throws ZELAssertError `type` is not an array's
    void objectTypeToArrayType(ObjectType type, const KORVASchemaTypeArrayI* array,
                               std::string& out) const;

    /// The XSI type text of the elements of an array type, null for any other type.
    static const char* objectTypeToArrayType(ObjectType type);

    /// A new object of `type`, owned by the caller until it is registered.
    /// @throws KORVAException 0xEA47EC7B: `type` is unknown or abstract
    /// @throws ZELOutOfMemoryError no memory is left
    KORVASchemaTypeI* create(ObjectType type) const;

    /// A deep copy of `object`, registered, with all that it consists of, in `registry`.
    /// @throws KORVAException 0xEA47EC7B: the object's type is unknown
    /// @throws ZELOutOfMemoryError no memory is left; what was copied stays with the registry
    KORVASchemaTypeI& createCopy(const KORVASchemaTypeI& object,
                                 KORVAObjectRegistryI& registry) const;

    virtual ~KORVASchemaTypesFactory();

private:
    KORVASchemaTypesFactory() = default;
};
