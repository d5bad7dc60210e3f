/// Where object registries come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVAObjectRegistryI;

/// The singleton that makes object registries. It has no state; any thread may use it.
class KORVA_EXPORT KORVAObjectRegistryFactory {
public:
    static KORVAObjectRegistryFactory& getInstance();

    /// A new registry with a reference count of 0; hold it in a ZELSmartPointer.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAObjectRegistryI* create();

    /// Deletes the registry, and with it all that is registered, whatever its reference count.
    /// Null is ignored.
    virtual void destroy(KORVAObjectRegistryI* registry);

    KORVAObjectRegistryFactory(const KORVAObjectRegistryFactory&) = delete;
    KORVAObjectRegistryFactory& operator=(const KORVAObjectRegistryFactory&) = delete;

private:
    constexpr KORVAObjectRegistryFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVAObjectRegistryFactory() = default;

    KORVA_LOCAL static KORVAObjectRegistryFactory g_instance;
};
