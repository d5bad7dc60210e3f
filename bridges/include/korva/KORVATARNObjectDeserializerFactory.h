/// Where deserializers of the second object model come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVATARNObjectDeserializerI;

/// The singleton that makes deserializers of the second object model. It has no state; any thread
/// may use it.
class KORVA_EXPORT KORVATARNObjectDeserializerFactory {
public:
    static KORVATARNObjectDeserializerFactory& getInstance();

    /// A new KORVATARNObjectDeserializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVATARNObjectDeserializerI* create();

    /// Deletes the deserializer. Null is ignored.
    virtual void destroy(KORVATARNObjectDeserializerI* deserializer);

    KORVATARNObjectDeserializerFactory(const KORVATARNObjectDeserializerFactory&) = delete;
    KORVATARNObjectDeserializerFactory& operator=(const KORVATARNObjectDeserializerFactory&) =
        delete;

private:
    constexpr KORVATARNObjectDeserializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVATARNObjectDeserializerFactory() = default;

    KORVA_LOCAL static KORVATARNObjectDeserializerFactory g_instance;
};
