// Made by korva-schemac from sample/messages.wsdl; do not edit.
#include "messages/MessageCreation.h"
#include "messages/MessageDescriptor.h"

#include <korva/KORVAAdd_Reply.h>
#include <korva/KORVAAdd_Request.h>
#include <korva/KORVACMS_query_2_Reply.h>
#include <korva/KORVACMS_query_2_Request.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAQuery_1_Reply.h>
#include <korva/KORVAQuery_1_Request.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_KORVACMS_query_2_ReplyParamDescriptor[] = {
        {nullptr, KORVASchemaTypeI::e_Unknown},
};

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_KORVACMS_query_2_RequestParamDescriptor[] = {
        {"id", KORVASchemaTypeI::eKORVAGuid},
        {"most", KORVASchemaTypeI::eKORVAGuid},
        {nullptr, KORVASchemaTypeI::e_Unknown},
};

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_KORVAAdd_ReplyParamDescriptor[] = {
        {nullptr, KORVASchemaTypeI::e_Unknown},
};

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_KORVAAdd_RequestParamDescriptor[] = {
        {nullptr, KORVASchemaTypeI::e_Unknown},
};

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_KORVAQuery_1_ReplyParamDescriptor[] = {
        {"result", KORVASchemaTypeI::eKORVAAccountArray},
        {nullptr, KORVASchemaTypeI::e_Unknown},
};

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_KORVAQuery_1_RequestParamDescriptor[] = {
        {"below", KORVASchemaTypeI::eKORVABaseClass},
        {"accounts", KORVASchemaTypeI::eKORVAAccountArray},
        {"most", KORVASchemaTypeI::eInt},
        {"all", KORVASchemaTypeI::eBoolean},
        {"filter", KORVASchemaTypeI::eString},
        {"cookie", KORVASchemaTypeI::eBase64Binary},
        {nullptr, KORVASchemaTypeI::e_Unknown},
};

namespace korva {

constinit const MessageTypeRow messageTypes[] = {
    {KORVAMessageI::eKORVAAdd_Reply, &createMessage<::KORVAAdd_Reply>,
     KORVAMessageFactory::g_KORVAAdd_ReplyParamDescriptor},
    {KORVAMessageI::eKORVAAdd_Request, &createMessage<::KORVAAdd_Request>,
     KORVAMessageFactory::g_KORVAAdd_RequestParamDescriptor},
    {KORVAMessageI::eKORVAQuery_1_Request, &createMessage<::KORVAQuery_1_Request>,
     KORVAMessageFactory::g_KORVAQuery_1_RequestParamDescriptor},
    {KORVAMessageI::eKORVAQuery_1_Reply, &createMessage<::KORVAQuery_1_Reply>,
     KORVAMessageFactory::g_KORVAQuery_1_ReplyParamDescriptor},
    {KORVAMessageI::eKORVACMS_query_2_Reply, &createMessage<::KORVACMS_query_2_Reply>,
     KORVAMessageFactory::g_KORVACMS_query_2_ReplyParamDescriptor},
    {KORVAMessageI::eKORVACMS_query_2_Request, &createMessage<::KORVACMS_query_2_Request>,
     KORVAMessageFactory::g_KORVACMS_query_2_RequestParamDescriptor},
};

constinit const std::size_t messageTypeCount = 6;

} // namespace korva
