/// How objects of the platform's second object model become schema objects.
#pragma once

#include <korva/KORVAExport.h>

class KORVAObjectRegistryI;
class KORVASchemaTypeI;
class TARNSchemaTypeI;

/// Makes deep copies of objects of the second model. A deserializer keeps nothing between calls.
class KORVA_EXPORT KORVATARNObjectDeserializerI {
public:
    virtual ~KORVATARNObjectDeserializerI();

    /// A copy of `object` with all that it holds. It shares nothing with it and belongs to
    /// `registry`, as does all that it consists of; what was made before a failure stays there too.
    ///
    /// Null children are left out, and so are children that the schema here does not know. Streamed
    /// texts and binaries are read out.
    /// @throws ZELAssertError `object` is null; a type is not known in one of the models, or is the
    ///     one that the second model reserves; a streamed text stands in an array or in an
    ///     enumeration, which take none here
    /// @throws KORVAException 0xEA45DC29: an enumeration has no such word; 0xEA47C21F: a child does
    ///     not fit
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVASchemaTypeI* deserialize(const TARNSchemaTypeI* object,
                                          KORVAObjectRegistryI& registry) = 0;

    KORVATARNObjectDeserializerI(const KORVATARNObjectDeserializerI&) = delete;
    KORVATARNObjectDeserializerI& operator=(const KORVATARNObjectDeserializerI&) = delete;

protected:
    KORVATARNObjectDeserializerI() = default;
};
