/// The errors of a fault that no schema describes, in the second object model.
#pragma once

#include <tarn/TARN_ArrayObject.h>

class TARNUndocumentedFaultDetail;

/// Made by TARNSchemaTypesFactory as an object of the type eTARNUndocumentedFaultDetailArray.
class TARN_EXPORT TARNUndocumentedFaultDetailArray final : public TARN_ArrayObject {
public:
    ~TARNUndocumentedFaultDetailArray() override;

    /// The element at the zero-based `position`.
    /// @throws ZELStdExceptionError there is none
    TARNUndocumentedFaultDetail* at(std::size_t position) const;

private:
    friend class TARN_ArrayObject;

    using TARN_ArrayObject::TARN_ArrayObject;
};
