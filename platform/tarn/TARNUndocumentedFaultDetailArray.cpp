#include "tarn/TARNUndocumentedFaultDetailArray.h"

#include <tarn/TARNUndocumentedFaultDetail.h>
#include <zel/ZELFrame.h>

#include <stdexcept>

TARNUndocumentedFaultDetailArray::~TARNUndocumentedFaultDetailArray() = default;

TARNUndocumentedFaultDetail* TARNUndocumentedFaultDetailArray::at(std::size_t position) const {
    ZEL_TRY {
        if (position >= size()) throw std::out_of_range("no such element in the array");
        return static_cast<TARNUndocumentedFaultDetail*>(
            static_cast<TARNSchemaTypeI*>(element(position)));
    }
    ZEL_CATCH("TARNUndocumentedFaultDetailArray::at");
}
