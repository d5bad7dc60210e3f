// Made by korva-schemac from sample/messages.wsdl; do not edit.
#include "core/ObjectCreation.h"
#include "messages/MessageDescriptor.h"

#include <korva/KORVAAccountArray.h>
#include <korva/KORVAAdd_Reply.h>
#include <korva/KORVAQuery_1_Request.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

#if defined(__GNUC__)
// The records derive from korva::Record, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

struct KORVAAdd_Reply_PrivateData : korva::Record {
};
namespace {
constinit const korva::MessageDescriptor add_ReplyDescriptor = {
    "add_Reply", KORVAMessageI::eKORVAAdd_Reply, &typeid(KORVAAdd_Reply), nullptr, 0};
} // namespace

inline KORVAAdd_Reply_PrivateData* KORVAAdd_Reply::data() const {
    return static_cast<KORVAAdd_Reply_PrivateData*>(m_pPrivateData);
}
KORVAAdd_Reply::KORVAAdd_Reply()
    : KORVA_MessageObject(new KORVAAdd_Reply_PrivateData) {}
KORVAAdd_Reply::~KORVAAdd_Reply() = default;
const korva::MessageDescriptor& KORVAAdd_Reply::descriptor() const {
    return add_ReplyDescriptor;
}

struct KORVAQuery_1_Request_PrivateData : korva::Record {
    KORVABaseClass* below = nullptr;
    KORVAAccountArray* accounts = nullptr;
    int most = 0;
    bool mostIsNull = true;
    bool all = false;
    bool allIsNull = true;
    const char* filter = nullptr;
    KORVAXSBase64Binary* cookie = nullptr;
};
namespace {
constexpr korva::FieldDescriptor query_1_RequestParams[] = {
    // below
    {0x44E175B2U, KORVASchemaTypeI::eKORVABaseClass,
     offsetof(KORVAQuery_1_Request_PrivateData, below),
     0, korva::FieldKind::Object},
    // accounts
    {0xCAC89EACU, KORVASchemaTypeI::eKORVAAccountArray,
     offsetof(KORVAQuery_1_Request_PrivateData, accounts),
     0, korva::FieldKind::Object},
    // most
    {0xF8F9E3CFU, KORVASchemaTypeI::eInt,
     offsetof(KORVAQuery_1_Request_PrivateData, most),
     offsetof(KORVAQuery_1_Request_PrivateData, mostIsNull), korva::FieldKind::Int},
    // all
    {0x3B1871DDU, KORVASchemaTypeI::eBoolean,
     offsetof(KORVAQuery_1_Request_PrivateData, all),
     offsetof(KORVAQuery_1_Request_PrivateData, allIsNull), korva::FieldKind::Boolean},
    // filter
    {0x7FC45F1DU, KORVASchemaTypeI::eString,
     offsetof(KORVAQuery_1_Request_PrivateData, filter),
     0, korva::FieldKind::Text},
    // cookie
    {0x8AE0BA66U, KORVASchemaTypeI::eBase64Binary,
     offsetof(KORVAQuery_1_Request_PrivateData, cookie),
     0, korva::FieldKind::Binary},
};
constinit const korva::MessageDescriptor query_1_RequestDescriptor = {
    "query_1_Request", KORVAMessageI::eKORVAQuery_1_Request, &typeid(KORVAQuery_1_Request), query_1_RequestParams, 6};
} // namespace

inline KORVAQuery_1_Request_PrivateData* KORVAQuery_1_Request::data() const {
    return static_cast<KORVAQuery_1_Request_PrivateData*>(m_pPrivateData);
}
KORVAQuery_1_Request::KORVAQuery_1_Request()
    : KORVA_MessageObject(new KORVAQuery_1_Request_PrivateData) {}
KORVAQuery_1_Request::~KORVAQuery_1_Request() = default;
const korva::MessageDescriptor& KORVAQuery_1_Request::descriptor() const {
    return query_1_RequestDescriptor;
}
KORVABaseClass* KORVAQuery_1_Request::getBelow() const { return data()->below; }
KORVABaseClass* KORVAQuery_1_Request::getBelow(KORVAObjectRegistryI* registry) {
    return korva::refuseCreation(data()->below, registry);
}
void KORVAQuery_1_Request::setBelow(KORVABaseClass* value) { data()->below = value; }
KORVAAccountArray* KORVAQuery_1_Request::getAccounts() const { return data()->accounts; }
KORVAAccountArray* KORVAQuery_1_Request::getAccounts(KORVAObjectRegistryI* registry) {
    return korva::createOnGet(data()->accounts, registry);
}
void KORVAQuery_1_Request::setAccounts(KORVAAccountArray* value) { data()->accounts = value; }
int* KORVAQuery_1_Request::getMost() const {
    return data()->mostIsNull ? nullptr : &data()->most;
}
void KORVAQuery_1_Request::setMost(int value) {
    data()->most = value;
    data()->mostIsNull = false;
}
void KORVAQuery_1_Request::resetMost() { data()->mostIsNull = true; }
bool* KORVAQuery_1_Request::getAll() const {
    return data()->allIsNull ? nullptr : &data()->all;
}
void KORVAQuery_1_Request::setAll(bool value) {
    data()->all = value;
    data()->allIsNull = false;
}
void KORVAQuery_1_Request::resetAll() { data()->allIsNull = true; }
const char* KORVAQuery_1_Request::getFilter() const { return data()->filter; }
void KORVAQuery_1_Request::setFilter(const char* value) { data()->filter = value; }
KORVAXSBase64Binary* KORVAQuery_1_Request::getCookie() const { return data()->cookie; }
void KORVAQuery_1_Request::setCookie(KORVAXSBase64Binary* value) { data()->cookie = value; }
