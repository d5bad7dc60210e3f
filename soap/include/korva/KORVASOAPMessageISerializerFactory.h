/// Where message serializers come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVASOAPMessageISerializerI;

/// The singleton that makes serializers for SOAP envelopes. It has no state; any thread may use it.
class KORVA_EXPORT KORVASOAPMessageISerializerFactory {
public:
    static KORVASOAPMessageISerializerFactory& getInstance();

    /// A new KORVASOAPMessageISerializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVASOAPMessageISerializerI* create();

    /// Deletes the serializer. Null is ignored.
    virtual void destroy(KORVASOAPMessageISerializerI* serializer);

    KORVASOAPMessageISerializerFactory(const KORVASOAPMessageISerializerFactory&) = delete;
    KORVASOAPMessageISerializerFactory& operator=(const KORVASOAPMessageISerializerFactory&) =
        delete;

private:
    constexpr KORVASOAPMessageISerializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVASOAPMessageISerializerFactory() = default;

    KORVA_LOCAL static KORVASOAPMessageISerializerFactory g_instance;
};
