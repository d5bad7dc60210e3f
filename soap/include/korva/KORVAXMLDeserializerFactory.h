/// Where document deserializers come from.
#pragma once

#include <korva/KORVAExport.h>

class KORVAXMLDeserializerI;

/// The singleton that makes deserializers for plain XML documents. It has no state; any thread may
/// use it.
class KORVA_EXPORT KORVAXMLDeserializerFactory {
public:
    static KORVAXMLDeserializerFactory& getInstance();

    /// A new KORVAXMLDeserializer, to be given back to `destroy`.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAXMLDeserializerI* create();

    /// Deletes the deserializer. Null is ignored.
    virtual void destroy(KORVAXMLDeserializerI* deserializer);

    KORVAXMLDeserializerFactory(const KORVAXMLDeserializerFactory&) = delete;
    KORVAXMLDeserializerFactory& operator=(const KORVAXMLDeserializerFactory&) = delete;

private:
    constexpr KORVAXMLDeserializerFactory() = default;
    // Not virtual: the one instance is never destroyed.
    ~KORVAXMLDeserializerFactory() = default;

    KORVA_LOCAL static KORVAXMLDeserializerFactory g_instance;
};
