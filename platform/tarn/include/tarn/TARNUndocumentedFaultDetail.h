/// One error of a fault that no schema describes, in the second object model.
#pragma once

#include <tarn/TARN_ClassObject.h>

/// Its children are the texts "severity" and "errorCode" and the array "message". Made by
/// TARNSchemaTypesFactory as an object of the type eTARNUndocumentedFaultDetail.
class TARN_EXPORT TARNUndocumentedFaultDetail final : public TARN_ClassObject {
public:
    ~TARNUndocumentedFaultDetail() override;

    /// Null while unset.
    const char* getSeverity() const;
    /// Null while unset.
    const char* getErrorCode() const;
    /// The messages, an array inside this object.
    TARNSchemaTypeI& getMessage() const;

private:
    friend class TARN_ClassObject;

    using TARN_ClassObject::TARN_ClassObject;
};
