// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "core/ObjectCreation.h"
#include "core/ObjectName.h"
#include "schema/KORVADescriptors_gen_.h"
#include "schema/KORVARecords_gen_.h"

#include <korva/KORVAAccessEnum.h>
#include <korva/KORVAAccount.h>
#include <korva/KORVAGuid.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

#if defined(__GNUC__)
// The records derive from one another, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

// account -----------------------------------------------------------------------------------------
namespace {
constexpr korva::FieldDescriptor accountFields[] = {
    // access
    {0x06692B54U, KORVASchemaTypeI::eKORVAAccessEnum,
     offsetof(KORVAAccount_PrivateData, access),
     0, korva::FieldKind::Object},
    // active
    {0x4B1EFC02U, KORVASchemaTypeI::eBoolean,
     offsetof(KORVAAccount_PrivateData, active),
     offsetof(KORVAAccount_PrivateData, activeIsNull), korva::FieldKind::Boolean},
    // born
    {0x44E33BA2U, KORVASchemaTypeI::eDateTime,
     offsetof(KORVAAccount_PrivateData, born),
     0, korva::FieldKind::Text},
    // class
    {0xED4B199FU, KORVASchemaTypeI::eQName,
     offsetof(KORVAAccount_PrivateData, class_),
     0, korva::FieldKind::Text},
    // default
    {0xE35E00DFU, KORVASchemaTypeI::eInt,
     offsetof(KORVAAccount_PrivateData, default_),
     offsetof(KORVAAccount_PrivateData, default_IsNull), korva::FieldKind::Int},
    // friends
    {0x21EE7069U, KORVASchemaTypeI::eKORVAAccountArray,
     offsetof(KORVAAccount_PrivateData, friends),
     0, korva::FieldKind::EmbeddedArray},
    // id
    {0xBF396750U, KORVASchemaTypeI::eKORVAGuid,
     offsetof(KORVAAccount_PrivateData, id),
     0, korva::FieldKind::Object},
    // picture
    {0x16DB4F89U, KORVASchemaTypeI::eBase64Binary,
     offsetof(KORVAAccount_PrivateData, picture),
     0, korva::FieldKind::Binary},
    // quota
    {0x6C1C0FEDU, KORVASchemaTypeI::eInteger,
     offsetof(KORVAAccount_PrivateData, quota),
     offsetof(KORVAAccount_PrivateData, quotaIsNull), korva::FieldKind::Int},
    // rate
    {0xDFEC3F39U, KORVASchemaTypeI::eFloat,
     offsetof(KORVAAccount_PrivateData, rate),
     offsetof(KORVAAccount_PrivateData, rateIsNull), korva::FieldKind::Float},
    // share
    {0xEF069D5AU, KORVASchemaTypeI::eDecimal,
     offsetof(KORVAAccount_PrivateData, share),
     offsetof(KORVAAccount_PrivateData, shareIsNull), korva::FieldKind::Float},
    // tags
    {0x6FBC9426U, KORVASchemaTypeI::eKORVAStringArray,
     offsetof(KORVAAccount_PrivateData, tags),
     0, korva::FieldKind::EmbeddedArray},
    // text
    {0x3B8BA7C7U, KORVASchemaTypeI::eString,
     offsetof(KORVAAccount_PrivateData, text),
     0, korva::FieldKind::Text},
    // wake
    {0x2568C195U, KORVASchemaTypeI::eTime,
     offsetof(KORVAAccount_PrivateData, wake),
     0, korva::FieldKind::Text},
};
constexpr std::uint16_t accountHashes[] = {
    5, 0, 2, 3, 0, 0, 12, 13, 0, 6, 8, 0, 0, 9, 0, 0, 7, 0, 0, 0, 1, 14, 0, 0, 0, 10, 11, 0, 0, 0,
    0, 4,
};
} // namespace
constinit const korva::ClassDescriptor korva::descriptors::KORVAAccount = {
    "KORVAAccount",
    KORVASchemaTypeI::eKORVAAccount,
    &korva::descriptors::KORVAFolder,
    accountFields,
    accountHashes,
    31,
    14,
    2,
};

inline KORVAAccount_PrivateData* KORVAAccount::data() const {
    return static_cast<KORVAAccount_PrivateData*>(m_pPrivateData);
}

KORVAAccount::KORVAAccount() : KORVAFolder(new KORVAAccount_PrivateData) {}
KORVAAccount::KORVAAccount(korva::Record* record) noexcept : KORVAFolder(record) {}
KORVAAccount::KORVAAccount(const KORVAAccount& other, KORVAObjectRegistryI& registry)
    : KORVAFolder(new KORVAAccount_PrivateData) {
    korva::copyFields(korva::descriptors::KORVAAccount, other, *this, registry);
}
KORVAAccount::~KORVAAccount() = default;
const korva::ClassDescriptor& KORVAAccount::descriptor() const {
    return korva::descriptors::KORVAAccount;
}
KORVAAccount::ObjectType KORVAAccount::getObjectType() const { return eKORVAAccount; }
const char* KORVAAccount::generatedObjectName() const { return "KORVAAccount"; }
const std::string& KORVAAccount::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAAccount");
    return name;
}

KORVAAccessEnum* KORVAAccount::getAccess() const { return data()->access; }
KORVAAccessEnum* KORVAAccount::getAccess(KORVAObjectRegistryI* registry) {
    return korva::createOnGet(data()->access, registry);
}
void KORVAAccount::setAccess(KORVAAccessEnum* value) { data()->access = value; }

bool* KORVAAccount::getActive() const {
    return data()->activeIsNull ? nullptr : &data()->active;
}
void KORVAAccount::setActive(bool value) {
    data()->active = value;
    data()->activeIsNull = false;
}
void KORVAAccount::resetActive() { data()->activeIsNull = true; }

const char* KORVAAccount::getBorn() const { return data()->born; }
void KORVAAccount::setBorn(const char* value) { data()->born = value; }

const char* KORVAAccount::getClass() const { return data()->class_; }
void KORVAAccount::setClass(const char* value) { data()->class_ = value; }

int* KORVAAccount::getDefault() const {
    return data()->default_IsNull ? nullptr : &data()->default_;
}
void KORVAAccount::setDefault(int value) {
    data()->default_ = value;
    data()->default_IsNull = false;
}
void KORVAAccount::resetDefault() { data()->default_IsNull = true; }

KORVAAccountArray& KORVAAccount::getFriends() const { return data()->friends; }

KORVAGuid* KORVAAccount::getId() const { return data()->id; }
KORVAGuid* KORVAAccount::getId(KORVAObjectRegistryI* registry) {
    return korva::createOnGet(data()->id, registry);
}
void KORVAAccount::setId(KORVAGuid* value) { data()->id = value; }

KORVAXSBase64Binary* KORVAAccount::getPicture() const { return data()->picture; }
void KORVAAccount::setPicture(KORVAXSBase64Binary* value) { data()->picture = value; }

int* KORVAAccount::getQuota() const {
    return data()->quotaIsNull ? nullptr : &data()->quota;
}
void KORVAAccount::setQuota(int value) {
    data()->quota = value;
    data()->quotaIsNull = false;
}
void KORVAAccount::resetQuota() { data()->quotaIsNull = true; }

float* KORVAAccount::getRate() const {
    return data()->rateIsNull ? nullptr : &data()->rate;
}
void KORVAAccount::setRate(float value) {
    data()->rate = value;
    data()->rateIsNull = false;
}
void KORVAAccount::resetRate() { data()->rateIsNull = true; }

float* KORVAAccount::getShare() const {
    return data()->shareIsNull ? nullptr : &data()->share;
}
void KORVAAccount::setShare(float value) {
    data()->share = value;
    data()->shareIsNull = false;
}
void KORVAAccount::resetShare() { data()->shareIsNull = true; }

KORVAStringArray& KORVAAccount::getTags() const { return data()->tags; }

const char* KORVAAccount::getText() const { return data()->text; }
void KORVAAccount::setText(const char* value) { data()->text = value; }

const char* KORVAAccount::getWake() const { return data()->wake; }
void KORVAAccount::setWake(const char* value) { data()->wake = value; }
