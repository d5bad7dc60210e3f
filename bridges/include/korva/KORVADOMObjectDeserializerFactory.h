/// Where readers of documents in memory come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVADOMObjectDeserializerI;

/// The singleton that makes readers of documents in memory. It has no state; any thread
/// may use it.
class KORVA_EXPORT KORVADOMObjectDeserializerFactory {
public:
    static KORVADOMObjectDeserializerFactory& getInstance();

    /// A new KORVADOMObjectDeserializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVADOMObjectDeserializerI* create();

    /// Deletes the deserializer. Null is ignored.
    virtual void destroy(KORVADOMObjectDeserializerI* deserializer);

    KORVADOMObjectDeserializerFactory(const KORVADOMObjectDeserializerFactory&) = delete;
    KORVADOMObjectDeserializerFactory& operator=(const KORVADOMObjectDeserializerFactory&) = delete;

private:
    constexpr KORVADOMObjectDeserializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVADOMObjectDeserializerFactory() = default;

    KORVA_LOCAL static KORVADOMObjectDeserializerFactory g_instance;
};
