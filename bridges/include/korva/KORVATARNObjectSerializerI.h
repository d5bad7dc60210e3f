/// How schema objects become objects of the platform's second object model.
#pragma once

#include <korva/KORVAExport.h>

class KORVASchemaTypeI;
class TARNObjectRegistryI;
class TARNSchemaTypeI;

/// Makes deep copies in the second model. A serializer keeps nothing between calls.
class KORVA_EXPORT KORVATARNObjectSerializerI {
public:
    virtual ~KORVATARNObjectSerializerI();

    /// A copy of `object` with all that it holds. It shares nothing with it and belongs to
    /// `registry`, as does all that it consists of; what was made before a failure stays there too.
    ///
    /// Null children and null entries of arrays are left out, and so are children that the second
    /// model does not know. Streamed texts and binaries are read out, compressed ones expanded. Of
    /// a fault, details of both shapes are copied; a KORVAUndocumentedFaultDetail outside a fault
    /// cannot be.
    /// @throws ZELAssertError `object` is null; a type is not known in one of the models; an
    ///     enumeration has no value; an undocumented fault detail stands outside a fault
    /// @throws TARNTypeError a child does not fit the one of this name in the second model
    /// @throws ZELOutOfMemoryError no memory is left
    virtual TARNSchemaTypeI* serialize(const KORVASchemaTypeI* object,
                                       TARNObjectRegistryI& registry) = 0;

    KORVATARNObjectSerializerI(const KORVATARNObjectSerializerI&) = delete;
    KORVATARNObjectSerializerI& operator=(const KORVATARNObjectSerializerI&) = delete;

protected:
    KORVATARNObjectSerializerI() = default;
};
