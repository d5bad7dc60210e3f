#include "korva/KORVAUndocumentedFaultDetail.h"

#include "core/Descriptor.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "core/ObjectName.h"
#include "core/TextValue.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <string_view>

using Factory = KORVASchemaTypesFactory;

struct KORVAUndocumentedFaultDetail_PrivateData : korva::Record {
    void copy(const KORVAUndocumentedFaultDetail_PrivateData& source,
              KORVAObjectRegistryI& registry) {
        ZEL_TRY {
            severity = korva::copyText(source.severity, korva::TextCopy::Array, registry);
            errorCode = korva::copyText(source.errorCode, korva::TextCopy::Array, registry);
            message.copy(source.message, registry);
        }
        ZEL_CATCH(nullptr);
    }

    const char* severity = nullptr;
    const char* errorCode = nullptr;
    KORVAMessageArray message;
};

namespace {

constexpr std::size_t childCount = 3;

[[noreturn]] void noSuchChild(const char* name, const char* function) {
    // The name is as published.
    KORVA_RAISE(eKORVA_NoSuchChild, function, name, "UndocumentFaultDetail");
}

}  // namespace

KORVAUndocumentedFaultDetail::KORVAUndocumentedFaultDetail()
    : m_pPrivateData(new KORVAUndocumentedFaultDetail_PrivateData) {}

KORVAUndocumentedFaultDetail::KORVAUndocumentedFaultDetail(
    const KORVAUndocumentedFaultDetail& other, KORVAObjectRegistryI& registry)
    : KORVAUndocumentedFaultDetail() {
    m_pPrivateData->copy(*other.m_pPrivateData, registry);
}

KORVAUndocumentedFaultDetail::~KORVAUndocumentedFaultDetail() = default;

const char* KORVAUndocumentedFaultDetail::getSeverity() const {
    return m_pPrivateData->severity;
}

void KORVAUndocumentedFaultDetail::setSeverity(const char* value) {
    m_pPrivateData->severity = value;
}

const char* KORVAUndocumentedFaultDetail::getErrorCodeString() const {
    return m_pPrivateData->errorCode;
}

void KORVAUndocumentedFaultDetail::setErrorCodeString(const char* value) {
    m_pPrivateData->errorCode = value;
}

KORVAMessageArray& KORVAUndocumentedFaultDetail::getMessage() const {
    return m_pPrivateData->message;
}

KORVASchemaTypeI::ObjectType KORVAUndocumentedFaultDetail::getObjectType() const {
    return eKORVAUndocumentedFaultDetail;
}

const char* KORVAUndocumentedFaultDetail::generatedObjectName() const {
    return "KORVAUndocumentedFaultDetail";
}

const std::string& KORVAUndocumentedFaultDetail::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName(generatedObjectName());
    return name;
}

void* KORVAUndocumentedFaultDetail::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    const std::string_view child = name;
    if (child == "severity") return const_cast<char*>(m_pPrivateData->severity);
    if (child == "errorCode") return const_cast<char*>(m_pPrivateData->errorCode);
    if (child == "message") return &m_pPrivateData->message;
    noSuchChild(name, "KORVAUndocumentedFaultDetail::getChildObject");
}

KORVASchemaTypeI::ObjectType KORVAUndocumentedFaultDetail::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    const std::string_view child = name;
    if (child == "severity" || child == "errorCode") return eString;
    if (child == "message") return eKORVAMessageArray;
    noSuchChild(name, "KORVAUndocumentedFaultDetail::getChildType");
}

std::size_t KORVAUndocumentedFaultDetail::setChildObject(const char* name, void* obj,
                                                         const ObjectType& type, std::size_t*) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    ZEL_ASSERT(obj != NULL);
    const std::string_view child = name;
    if (child == "message") {
        if (!Factory::isGeneratedType(type) ||
            !static_cast<KORVASchemaTypeI*>(obj)->isa(eKORVAMessage))
            Factory::typeError(korva::xmlName(getObjectType()), name, eKORVAMessage, type);
        ZEL_TRY {
            m_pPrivateData->message.push_back(
                static_cast<KORVAMessage*>(static_cast<KORVASchemaTypeI*>(obj)));
        }
        ZEL_CATCH(nullptr);
        return 0;
    }
    const bool isSeverity = child == "severity";
    if (!isSeverity && child != "errorCode")
        noSuchChild(name, "KORVAUndocumentedFaultDetail::setChildObject");
    if (!Factory::isString(type))
        Factory::typeError(korva::xmlName(getObjectType()), name, eString, type);
    const char* const text = type == eCharStreamable ? static_cast<const char*>(obj)
                                                     : static_cast<ZELByteBuffer*>(obj)->str();
    (isSeverity ? m_pPrivateData->severity : m_pPrivateData->errorCode) = text;
    return 0;
}

void KORVAUndocumentedFaultDetail::getChildObjectNames(std::vector<const char*>&, bool) const {
    ZEL_ASSERT_NAMED(false, "Unsupported.  KORVAUndocumentedFaultDetail objects are serialized in doc/literal style.");
}

bool KORVAUndocumentedFaultDetail::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t KORVAUndocumentedFaultDetail::getChildObjectCount() const {
    return childCount;
}

bool KORVAUndocumentedFaultDetail::operator==(const KORVASchemaTypeI& other) const {
    if (this == &other) return true;
    if (!other.isa(getObjectType())) return false;
    const KORVAUndocumentedFaultDetail_PrivateData& left = *m_pPrivateData;
    const KORVAUndocumentedFaultDetail_PrivateData& right =
        *static_cast<const KORVAUndocumentedFaultDetail&>(other).m_pPrivateData;
    return korva::equalTexts(left.severity, right.severity) &&
           korva::equalTexts(left.errorCode, right.errorCode) && left.message == right.message;
}

bool KORVAUndocumentedFaultDetail::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
