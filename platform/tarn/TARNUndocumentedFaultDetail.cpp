#include "tarn/TARNUndocumentedFaultDetail.h"

TARNUndocumentedFaultDetail::~TARNUndocumentedFaultDetail() = default;

const char* TARNUndocumentedFaultDetail::getSeverity() const {
    return static_cast<const char*>(child("severity"));
}

const char* TARNUndocumentedFaultDetail::getErrorCode() const {
    return static_cast<const char*>(child("errorCode"));
}

TARNSchemaTypeI& TARNUndocumentedFaultDetail::getMessage() const {
    return *static_cast<TARNSchemaTypeI*>(child("message"));
}
