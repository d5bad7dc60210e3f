/// Where serializers into documents come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVADOMObjectSerializerI;

/// The singleton that makes serializers that build documents in memory. It has no state; any thread
/// may use it.
class KORVA_EXPORT KORVADOMObjectSerializerFactory {
public:
    static KORVADOMObjectSerializerFactory& getInstance();

    /// A new KORVADOMObjectSerializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVADOMObjectSerializerI* create();

    /// Deletes the serializer. Null is ignored.
    virtual void destroy(KORVADOMObjectSerializerI* serializer);

    KORVADOMObjectSerializerFactory(const KORVADOMObjectSerializerFactory&) = delete;
    KORVADOMObjectSerializerFactory& operator=(const KORVADOMObjectSerializerFactory&) = delete;

private:
    constexpr KORVADOMObjectSerializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVADOMObjectSerializerFactory() = default;

    KORVA_LOCAL static KORVADOMObjectSerializerFactory g_instance;
};
