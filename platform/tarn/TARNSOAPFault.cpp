#include "tarn/TARNSOAPFault.h"

#include <tarn/TARNUndocumentedFaultDetailArray.h>

TARNSOAPFault::~TARNSOAPFault() = default;

const char* TARNSOAPFault::getFaultCode() const {
    return static_cast<const char*>(child(faultCodeName));
}

const char* TARNSOAPFault::getFaultString() const {
    return static_cast<const char*>(child(faultStringName));
}

const char* TARNSOAPFault::getFaultActor() const {
    return static_cast<const char*>(child(faultActorName));
}

TARNSchemaTypeI* TARNSOAPFault::getDetail() const {
    return static_cast<TARNSchemaTypeI*>(child(detailName));
}

TARNUndocumentedFaultDetailArray* TARNSOAPFault::getUndocumentedDetail() const {
    return static_cast<TARNUndocumentedFaultDetailArray*>(
        static_cast<TARNSchemaTypeI*>(child(undocumentedDetailName)));
}
