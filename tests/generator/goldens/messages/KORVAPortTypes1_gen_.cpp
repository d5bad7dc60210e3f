// Made by korva-schemac from sample/service.wsdl; do not edit.
#include "messages/MessageDescriptor.h"
#include "messages/PortTypeSingleton.h"

#include <korva/KORVAServicePortType.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

namespace {
constexpr korva::OperationRow serviceOperations[] = {
    {"",
     KORVAMessageI::eKORVA_Null_Request,
     KORVAMessageI::eKORVA_Null_Reply,
     "http://bus.korva.example/service/.session"},
    {"add",
     KORVAMessageI::eKORVAAdd_Request,
     KORVAMessageI::eKORVAAdd_Reply,
     "http://bus.korva.example/service/"},
    {"query",
     KORVAMessageI::eKORVAQuery_1_Request,
     KORVAMessageI::eKORVAQuery_1_Reply,
     "http://bus.korva.example/service/.session"},
    {"query",
     KORVAMessageI::eKORVACMS_query_2_Request,
     KORVAMessageI::eKORVACMS_query_2_Reply,
     "http://bus.korva.example/service/"},
};
constexpr korva::OperationParameterRow serviceParameters[] = {
    {"query-accounts", KORVASchemaTypeI::eKORVAAccountArray},
    {"query-all", KORVASchemaTypeI::eBoolean},
    {"query-below", KORVASchemaTypeI::eKORVABaseClass},
    {"query-cookie", KORVASchemaTypeI::eBase64Binary},
    {"query-filter", KORVASchemaTypeI::eString},
    {"query-id", KORVASchemaTypeI::eKORVAGuid},
    {"query-most", KORVASchemaTypeI::eInt},
};
constinit const korva::PortTypeDescriptor serviceDescriptor = {
    "KORVAServicePortType",
    "service",
    "http://bus.korva.example/schemas/service/1",
    serviceOperations,
    4,
    serviceParameters,
    7,
};
} // namespace

KORVAServicePortType::KORVAServicePortType() : KORVA_PortType(serviceDescriptor) {}
KORVAServicePortType& KORVAServicePortType::getInstance() {
    static constinit korva::PortTypeSingleton<KORVAServicePortType> singleton;
    return singleton.get([] { return new KORVAServicePortType; });
}
