/// Where fault serializers come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVASOAPFaultSerializerI;

/// The singleton that makes serializers for faults. It has no state; any thread may use it.
class KORVA_EXPORT KORVASOAPFaultSerializerFactory {
public:
    static KORVASOAPFaultSerializerFactory& getInstance();

    /// A new KORVASOAPFaultSerializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVASOAPFaultSerializerI* create();

    /// Deletes the serializer. Null is ignored.
    virtual void destroy(KORVASOAPFaultSerializerI* serializer);

    KORVASOAPFaultSerializerFactory(const KORVASOAPFaultSerializerFactory&) = delete;
    KORVASOAPFaultSerializerFactory& operator=(const KORVASOAPFaultSerializerFactory&) = delete;

private:
    constexpr KORVASOAPFaultSerializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVASOAPFaultSerializerFactory() = default;

    KORVA_LOCAL static KORVASOAPFaultSerializerFactory g_instance;
};
