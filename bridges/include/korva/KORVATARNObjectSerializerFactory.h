/// Where serializers into the second object model come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVATARNObjectSerializerI;

/// The singleton that makes serializers into the second object model. It has no state; any thread
/// may use it.
class KORVA_EXPORT KORVATARNObjectSerializerFactory {
public:
    static KORVATARNObjectSerializerFactory& getInstance();

    /// A new KORVATARNObjectSerializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVATARNObjectSerializerI* create();

    /// Deletes the serializer. Null is ignored.
    virtual void destroy(KORVATARNObjectSerializerI* serializer);

    KORVATARNObjectSerializerFactory(const KORVATARNObjectSerializerFactory&) = delete;
    KORVATARNObjectSerializerFactory& operator=(const KORVATARNObjectSerializerFactory&) = delete;

private:
    constexpr KORVATARNObjectSerializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVATARNObjectSerializerFactory() = default;

    KORVA_LOCAL static KORVATARNObjectSerializerFactory g_instance;
};
