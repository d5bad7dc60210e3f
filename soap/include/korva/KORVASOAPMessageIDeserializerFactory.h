/// Where message deserializers come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVASOAPMessageIDeserializerI;

/// The singleton that makes deserializers for SOAP envelopes. It has no state; any thread may use
/// it.
class KORVA_EXPORT KORVASOAPMessageIDeserializerFactory {
public:
    static KORVASOAPMessageIDeserializerFactory& getInstance();

    /// A new KORVASOAPMessageIDeserializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVASOAPMessageIDeserializerI* create();

    /// Deletes the deserializer. Null is ignored.
    virtual void destroy(KORVASOAPMessageIDeserializerI* deserializer);

    KORVASOAPMessageIDeserializerFactory(const KORVASOAPMessageIDeserializerFactory&) = delete;
    KORVASOAPMessageIDeserializerFactory& operator=(const KORVASOAPMessageIDeserializerFactory&) =
        delete;

private:
    constexpr KORVASOAPMessageIDeserializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVASOAPMessageIDeserializerFactory() = default;

    KORVA_LOCAL static KORVASOAPMessageIDeserializerFactory g_instance;
};
