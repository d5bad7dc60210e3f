/// The one place that knows all types of the second object model, by number and by name.
#pragma once

#include <tarn/TARNSchemaTypeI.h>
#include <zel/ZELUtCrc32.h>

/// Makes objects, and turns type names into identities and back. The singleton has no state; any
/// number of threads may use it at once.
class TARN_EXPORT TARNSchemaTypesFactory {
public:
    using ObjectType = TARNSchemaTypeI::ObjectType;

    static TARNSchemaTypesFactory& getInstance();

    TARNSchemaTypesFactory(const TARNSchemaTypesFactory&) = delete;
    TARNSchemaTypesFactory& operator=(const TARNSchemaTypesFactory&) = delete;

    /// The identity of a type of the schema by its XML name, whether there is such a type or not:
    /// `identityOf("schedule")` is a constant.
    static constexpr ObjectType identityOf(const char* xmlName) {
        return static_cast<ObjectType>(ZELUtCrc32::crc32(xmlName, 0));
    }

    /// Whether `type` is none of the plain types and no char streamable.
    static constexpr bool isGeneratedType(ObjectType type) {
        return (type < TARNSchemaTypeI::eString || type > TARNSchemaTypeI::eQName) &&
               type != TARNSchemaTypeI::eCharStreamable && type != TARNSchemaTypeI::eTARNReserved;
    }

    /// Whether values of `type` are kept as text: eString, eTime, eDateTime, eQName,
    /// eCharStreamable.
    static constexpr bool isString(ObjectType type) {
        return type == TARNSchemaTypeI::eString || type == TARNSchemaTypeI::eTime ||
               type == TARNSchemaTypeI::eDateTime || type == TARNSchemaTypeI::eQName ||
               type == TARNSchemaTypeI::eCharStreamable;
    }

    /// Whether `type` is the identity of an array.
    static bool isArrayType(ObjectType type);

    /// A new empty object of `type`, the caller's until it is registered.
    /// @throws TARNTypeError `type` is unknown or abstract
    /// @throws ZELOutOfMemoryError no memory is left
    TARNSchemaTypeI* create(ObjectType type) const;

    /// The identity of a type by its name without prefix, of the schema ("schedule") or plain
    /// ("string"); e_Unknown for null, the empty text and an unknown name.
    ObjectType stringToObjectType(const char* text) const;

    /// The XSI type text ("bus:schedule", "xs:int"), which lives as long as the process; null for a
    /// type that has none.
    const char* objectTypeToXSIType(ObjectType type) const;

private:
    constexpr TARNSchemaTypesFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~TARNSchemaTypesFactory() = default;

    TARN_LOCAL static TARNSchemaTypesFactory g_instance;
};
