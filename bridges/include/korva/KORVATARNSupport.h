/// The types of the platform's two object models, each by the other.
#pragma once

#include <korva/KORVAExport.h>
#include <korva/KORVASchemaTypeI.h>
#include <tarn/TARNSchemaTypeI.h>

/// Finds the type of the same name in the other model. Any number of threads may use it at once.
class KORVA_EXPORT KORVATARNSupport {
public:
    /// @return e_Unknown for e_Unknown, and for a type that the other model has no type of this
    ///     name for
    /// @throws ZELAssertError `type` has no XSI type text
    static TARNSchemaTypeI::ObjectType getObjectType(KORVASchemaTypeI::ObjectType type);

    /// @return as above
    /// @throws ZELAssertError as above; `type` is 15
    static KORVASchemaTypeI::ObjectType getObjectType(TARNSchemaTypeI::ObjectType type);
};
