/// Where object serializers come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVAObjectSerializerI;

/// The singleton that makes serializers for the SOAP encoding. It has no state; any thread may use
/// it.
class KORVA_EXPORT KORVAObjectSerializerFactory {
public:
    static KORVAObjectSerializerFactory& getInstance();

    /// A new KORVASOAPSerializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAObjectSerializerI* create();

    /// Deletes the serializer. Null is ignored.
    virtual void destroy(KORVAObjectSerializerI* serializer);

    KORVAObjectSerializerFactory(const KORVAObjectSerializerFactory&) = delete;
    KORVAObjectSerializerFactory& operator=(const KORVAObjectSerializerFactory&) = delete;

private:
    constexpr KORVAObjectSerializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVAObjectSerializerFactory() = default;

    KORVA_LOCAL static KORVAObjectSerializerFactory g_instance;
};
