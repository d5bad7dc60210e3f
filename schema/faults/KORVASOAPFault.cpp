#include "korva/KORVASOAPFault.h"

#include "core/Descriptor.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "core/ObjectCreation.h"
#include "core/ObjectName.h"
#include "core/TextValue.h"

#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <iterator>
#include <string_view>
#include <type_traits>

using Factory = KORVASchemaTypesFactory;

struct KORVASOAPFault_PrivateData : korva::Record {
    void copy(const KORVASOAPFault_PrivateData& source, KORVAObjectRegistryI& registry);

    const char* faultActor = nullptr;
    const char* faultCode = nullptr;
    const char* faultString = nullptr;
    KORVAFaultDetailArray* detail = nullptr;
    KORVAUndocumentedFaultDetailArray* undocumentedDetail = nullptr;
    const char* detailText = nullptr;
};

namespace {

constexpr KORVAI18NRes::Number childNames[] = {KORVAI18NRes::eFaultCode, KORVAI18NRes::eFaultString,
                                               KORVAI18NRes::eFaultActor,
                                               KORVAI18NRes::eFaultDetail};

[[noreturn]] void noSuchChild(const char* name, const char* function) {
    KORVA_RAISE(eKORVA_NoSuchChild, function, name, "Fault");
}

/// The field of a child that is a text, or null.
const char* KORVASOAPFault_PrivateData::*textField(std::string_view name) {
    if (name == KORVAI18NRes::getView(KORVAI18NRes::eFaultCode))
        return &KORVASOAPFault_PrivateData::faultCode;
    if (name == KORVAI18NRes::getView(KORVAI18NRes::eFaultString))
        return &KORVASOAPFault_PrivateData::faultString;
    if (name == KORVAI18NRes::getView(KORVAI18NRes::eFaultActor))
        return &KORVASOAPFault_PrivateData::faultActor;
    return nullptr;
}

bool isDetail(std::string_view name) {
    return name == KORVAI18NRes::getView(KORVAI18NRes::eFaultDetail);
}

template <class X>
X& make(KORVAObjectRegistryI& registry) {
    return static_cast<X&>(*korva::createRegistered(&korva::createObject<X>, registry));
}

template <class X>
X* copyObject(const X* source, KORVAObjectRegistryI& registry) {
    if (source == nullptr) return nullptr;
    return static_cast<X*>(&Factory::getInstance().createCopy(*source, registry));
}

template <class X>
bool equalOrNull(const X* left, const X* right) {
    return left == right || (left != nullptr && right != nullptr && left->operator==(*right));
}

void append(std::string& out, const char* text) {
    if (text != nullptr) out += KORVA_CharStreamable::toText(text);
}

void appendMessages(std::string& out, const KORVAFaultDetail& detail) {
    for (const KORVAFaultDetailMessage* const message : detail.getMessage())
        if (message != nullptr) append(out, message->getMessage());
}

void appendMessages(std::string& out, const KORVAUndocumentedFaultDetail& detail) {
    for (const KORVAMessage* const message : detail.getMessage())
        if (message != nullptr) append(out, message->getMessageString());
}

/// Appends the messages of the first detail, if there is one.
template <class Array>
void appendFirst(std::string& out, const Array& details) {
    if (!details.empty() && details.front() != nullptr) appendMessages(out, *details.front());
}

KORVAUndocumentedFaultDetail& convert(const KORVAFaultDetail& source,
                                      KORVAObjectRegistryI& registry) {
    auto& target = make<KORVAUndocumentedFaultDetail>(registry);
    if (KORVASeverityEnum* const severity = source.getSeverity())
        target.setSeverity(severity->toString());
    target.setErrorCodeString(source.getErrorCode());
    for (const KORVAFaultDetailMessage* const pMessage : source.getMessage()) {
        ZEL_ASSERT(pMessage);
        const int* const pNestingLevel = pMessage->getNestingLevel();
        ZEL_ASSERT(pNestingLevel);
        auto& message = make<KORVAMessage>(registry);
        message.setMessageString(pMessage->getMessage());
        message.setNestingLevel(*pNestingLevel);
        target.getMessage().push_back(&message);
    }
    return target;
}

KORVAFaultDetail& convert(const KORVAUndocumentedFaultDetail& source,
                          KORVAObjectRegistryI& registry) {
    auto& target = make<KORVAFaultDetail>(registry);
    // Of an empty text an enumeration would have no value, and could not be written.
    if (source.getSeverity() != nullptr && *source.getSeverity() != '\0')
        target.getSeverity(&registry)->setValue(source.getSeverity());
    target.setErrorCode(source.getErrorCodeString());
    for (const KORVAMessage* const pMessage : source.getMessage()) {
        ZEL_ASSERT(pMessage);
        auto& message = make<KORVAFaultDetailMessage>(registry);
        message.setMessage(pMessage->getMessageString());
        if (const int* const nestingLevel = pMessage->getNestingLevel())
            message.setNestingLevel(*nestingLevel);
        target.getMessage().push_back(&message);
    }
    return target;
}

}  // namespace

void KORVASOAPFault_PrivateData::copy(const KORVASOAPFault_PrivateData& source,
                                      KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        faultActor = korva::copyText(source.faultActor, korva::TextCopy::Array, registry);
        faultCode = korva::copyText(source.faultCode, korva::TextCopy::Array, registry);
        faultString = korva::copyText(source.faultString, korva::TextCopy::Array, registry);
        detail = copyObject(source.detail, registry);
        undocumentedDetail = copyObject(source.undocumentedDetail, registry);
        detailText = korva::copyText(source.detailText, korva::TextCopy::Array, registry);
    }
    ZEL_CATCH(nullptr);
}

KORVASOAPFault::KORVASOAPFault() : m_pPrivateData(new KORVASOAPFault_PrivateData) {}

KORVASOAPFault::KORVASOAPFault(const KORVASOAPFault& other, KORVAObjectRegistryI& registry)
    : KORVASOAPFault() {
    m_pPrivateData->copy(*other.m_pPrivateData, registry);
}

KORVASOAPFault::~KORVASOAPFault() = default;

// ----- fields -----

const char* KORVASOAPFault::getFaultCode() const {
    return m_pPrivateData->faultCode;
}

void KORVASOAPFault::setFaultCode(const char* value) {
    m_pPrivateData->faultCode = value;
}

const char* KORVASOAPFault::getFaultString() const {
    return m_pPrivateData->faultString;
}

void KORVASOAPFault::setFaultString(const char* value) {
    m_pPrivateData->faultString = value;
}

const char* KORVASOAPFault::getFaultActor() const {
    return m_pPrivateData->faultActor;
}

void KORVASOAPFault::setFaultActor(const char* value) {
    m_pPrivateData->faultActor = value;
}

KORVAFaultDetailArray* KORVASOAPFault::getDetail() const {
    return m_pPrivateData->detail;
}

KORVAUndocumentedFaultDetailArray* KORVASOAPFault::getUndocumentedDetail() const {
    return m_pPrivateData->undocumentedDetail;
}

void KORVASOAPFault::setDetail(KORVAFaultDetailArray* value) {
    m_pPrivateData->detail = value;
}

void KORVASOAPFault::setDetail(KORVAUndocumentedFaultDetailArray* value) {
    m_pPrivateData->undocumentedDetail = value;
}

void KORVASOAPFault::setDetail(std::nullptr_t) {
    m_pPrivateData->detail = nullptr;
    m_pPrivateData->undocumentedDetail = nullptr;
}

const char* KORVASOAPFault::getDetailText() const {
    return m_pPrivateData->detailText;
}

void KORVASOAPFault::setDetailText(const char* value) {
    m_pPrivateData->detailText = value;
}

// ----- the two shapes of details -----

void KORVASOAPFault::convertFaultDetail(KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        KORVASOAPFault_PrivateData& data = *m_pPrivateData;
        if (data.undocumentedDetail == nullptr)
            data.undocumentedDetail = &make<KORVAUndocumentedFaultDetailArray>(registry);
        if (data.detail == nullptr || data.detail->empty()) return;
        for (const KORVAFaultDetail* const pFaultDetail : *data.detail) {
            ZEL_ASSERT(pFaultDetail);
            data.undocumentedDetail->push_back(&convert(*pFaultDetail, registry));
        }
        data.detail = nullptr;
    }
    ZEL_CATCH("KORVASOAPFault::convertFaultDetail");
}

void KORVASOAPFault::convertUndocumentedFaultDetail(KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        KORVASOAPFault_PrivateData& data = *m_pPrivateData;
        if (data.detail == nullptr) data.detail = &make<KORVAFaultDetailArray>(registry);
        if (data.undocumentedDetail == nullptr || data.undocumentedDetail->empty()) return;
        for (const KORVAUndocumentedFaultDetail* const pUndocumentedFaultDetail :
             *data.undocumentedDetail) {
            ZEL_ASSERT(pUndocumentedFaultDetail);
            data.detail->push_back(&convert(*pUndocumentedFaultDetail, registry));
        }
        data.undocumentedDetail = nullptr;
    }
    ZEL_CATCH("KORVASOAPFault::convertUndocumentedFaultDetail");
}

void KORVASOAPFault::getMessages(std::string& text) const {
    ZEL_TRY {
        text.clear();
        if (m_pPrivateData->detail != nullptr)
            appendFirst(text, *m_pPrivateData->detail);
        else if (m_pPrivateData->undocumentedDetail != nullptr)
            appendFirst(text, *m_pPrivateData->undocumentedDetail);
    }
    ZEL_CATCH("KORVASOAPFault::getMessages");
}

// ----- the reflective interface -----

KORVASchemaTypeI::ObjectType KORVASOAPFault::getObjectType() const {
    return eKORVASOAPFault;
}

const char* KORVASOAPFault::generatedObjectName() const {
    return "KORVASOAPFault";
}

const std::string& KORVASOAPFault::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName(generatedObjectName());
    return name;
}

void* KORVASOAPFault::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    if (const auto field = textField(name)) return const_cast<char*>((*m_pPrivateData).*field);
    if (!isDetail(name)) noSuchChild(name, "KORVASOAPFault::getChildObject");
    if (m_pPrivateData->detail != nullptr) return m_pPrivateData->detail;
    return m_pPrivateData->undocumentedDetail;
}

KORVASchemaTypeI::ObjectType KORVASOAPFault::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    if (textField(name) != nullptr) return eString;
    if (!isDetail(name)) noSuchChild(name, "KORVASOAPFault::getChildType");
    return eKORVAFaultDetailArray;
}

std::size_t KORVASOAPFault::setChildObject(const char* name, void* obj, const ObjectType& type,
                                           std::size_t*) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    ZEL_ASSERT(obj != NULL);
    if (const auto field = textField(name)) {
        if (type != eString)
            Factory::typeError(korva::xmlName(getObjectType()), name, eString, type);
        (*m_pPrivateData).*field = static_cast<ZELByteBuffer*>(obj)->str();
        return 0;
    }
    // The type only says what the object should be.
    const auto store = [&](auto*& detail) {
        auto* const object = static_cast<KORVASchemaTypeI*>(obj);
        detail = nullptr;
        if (!object->isa(type))
            Factory::typeError(korva::xmlName(getObjectType()), name, type,
                               object->getObjectType());
        detail = static_cast<std::remove_reference_t<decltype(detail)>>(object);
    };
    if (isDetail(name) && type == eKORVAFaultDetailArray)
        store(m_pPrivateData->detail);
    else if (isDetail(name) && type == eKORVAUndocumentedFaultDetailArray)
        store(m_pPrivateData->undocumentedDetail);
    else
        noSuchChild(name, "KORVASOAPFault::setChildObject");
    return 0;
}

void KORVASOAPFault::getChildObjectNames(std::vector<const char*>& names, bool reserve) const {
    ZEL_TRY {
        if (reserve) names.reserve(getChildObjectCount());
        for (const KORVAI18NRes::Number name : childNames)
            names.push_back(KORVAI18NRes::getChar(name));
    }
    ZEL_CATCH(nullptr);
}

bool KORVASOAPFault::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t KORVASOAPFault::getChildObjectCount() const {
    return std::size(childNames);
}

bool KORVASOAPFault::operator==(const KORVASchemaTypeI& other) const {
    if (this == &other) return true;
    if (!other.isa(getObjectType())) return false;
    const KORVASOAPFault_PrivateData& left = *m_pPrivateData;
    const KORVASOAPFault_PrivateData& right =
        *static_cast<const KORVASOAPFault&>(other).m_pPrivateData;
    return korva::equalTexts(left.faultActor, right.faultActor) &&
           korva::equalTexts(left.faultCode, right.faultCode) &&
           korva::equalTexts(left.faultString, right.faultString) &&
           korva::equalTexts(left.detailText, right.detailText) &&
           equalOrNull(left.detail, right.detail) &&
           equalOrNull(left.undocumentedDetail, right.undocumentedDetail);
}

bool KORVASOAPFault::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
