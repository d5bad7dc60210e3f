#include "korva/KORVATARNSupport.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <tarn/TARNSchemaTypesFactory.h>
#include <zel/ZELAssert.h>

#include <cstring>

namespace {

/// What stands behind the first colon, or all if there is none.
const char* localName(const char* xsiType) {
    const char* const colon = std::strchr(xsiType, ':');
    return colon != nullptr ? colon + 1 : xsiType;
}

}  // namespace

TARNSchemaTypeI::ObjectType KORVATARNSupport::getObjectType(KORVASchemaTypeI::ObjectType type) {
    switch (type) {
        case KORVASchemaTypeI::e_Unknown: return TARNSchemaTypeI::e_Unknown;
        case KORVASchemaTypeI::eCharStreamable: return TARNSchemaTypeI::eCharStreamable;
        case KORVASchemaTypeI::eKORVAUndocumentedFaultDetail:
            return TARNSchemaTypeI::eTARNUndocumentedFaultDetail;
        case KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray:
            return TARNSchemaTypeI::eTARNUndocumentedFaultDetailArray;
        case KORVASchemaTypeI::eKORVASOAPFault: return TARNSchemaTypeI::eTARNSOAPFault;
        default: break;
    }
    const char* const korvaXsiType =
        KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(type);
    ZEL_ASSERT(korvaXsiType);
    return TARNSchemaTypesFactory::getInstance().stringToObjectType(localName(korvaXsiType));
}

KORVASchemaTypeI::ObjectType KORVATARNSupport::getObjectType(TARNSchemaTypeI::ObjectType type) {
    switch (type) {
        case TARNSchemaTypeI::e_Unknown: return KORVASchemaTypeI::e_Unknown;
        case TARNSchemaTypeI::eCharStreamable: return KORVASchemaTypeI::eCharStreamable;
        case TARNSchemaTypeI::eTARNUndocumentedFaultDetail:
            return KORVASchemaTypeI::eKORVAUndocumentedFaultDetail;
        case TARNSchemaTypeI::eTARNUndocumentedFaultDetailArray:
            return KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray;
        case TARNSchemaTypeI::eTARNSOAPFault: return KORVASchemaTypeI::eKORVASOAPFault;
        case TARNSchemaTypeI::eTARNReserved:
            ZEL_ASSERT(false);
            return KORVASchemaTypeI::eCharStreamable;
        default: break;
    }
    const char* const tarnXsiType = TARNSchemaTypesFactory::getInstance().objectTypeToXSIType(type);
    ZEL_ASSERT(tarnXsiType);
    return KORVASchemaTypesFactory::getInstance().stringToObjectType(localName(tarnXsiType));
}
