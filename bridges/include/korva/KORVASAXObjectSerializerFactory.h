/// Where serializers into events come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVASAXObjectSerializerI;

/// The singleton that makes serializers that replay objects as events. It has no state; any thread
/// may use it.
class KORVA_EXPORT KORVASAXObjectSerializerFactory {
public:
    static KORVASAXObjectSerializerFactory& getInstance();

    /// A new KORVASAXObjectSerializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVASAXObjectSerializerI* create();

    /// Deletes the serializer. Null is ignored.
    virtual void destroy(KORVASAXObjectSerializerI* serializer);

    KORVASAXObjectSerializerFactory(const KORVASAXObjectSerializerFactory&) = delete;
    KORVASAXObjectSerializerFactory& operator=(const KORVASAXObjectSerializerFactory&) = delete;

private:
    constexpr KORVASAXObjectSerializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVASAXObjectSerializerFactory() = default;

    KORVA_LOCAL static KORVASAXObjectSerializerFactory g_instance;
};
