// Accessors and names reach the same fields.

#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAsynchDetailEventRecord.h>
#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVADateTimeProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAHdrSession.h>
#include <korva/KORVAMoat.h>
#include <korva/KORVANmtokenProp.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAPositiveIntegerProp.h>
#include <korva/KORVAPromptOption.h>
#include <korva/KORVARolapMetricNumber.h>
#include <korva/KORVARoutingInfo.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVASetCookieVar.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAWardenProtect.h>
#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

/// A text child, through its accessors and by its name.
template <class X>
void expectText(X& object, const char* name, const char* (X::*get)() const,
                void (X::*set)(const char*)) {
    SCOPED_TRACE(name);
    EXPECT_EQ((object.*get)(), nullptr);
    const char first[] = "by accessor";
    (object.*set)(first);
    EXPECT_EQ(object.getChildObject(name, false), first);
    TextBuffer second("by name");
    object.setChildObject(name, &second, Object::eString, nullptr);
    EXPECT_EQ((object.*get)(), second.str());
    (object.*set)(nullptr);
    EXPECT_EQ(object.getChildObject(name, false), nullptr);
}

/// A value child, through its accessors and by its name.
template <class X, class Value>
void expectValue(X& object, const char* name, Object::ObjectType type, Value* (X::*get)() const,
                 void (X::*set)(Value), void (X::*reset)(), Value first, Value second) {
    SCOPED_TRACE(name);
    EXPECT_EQ((object.*get)(), nullptr);
    (object.*set)(first);
    ASSERT_NE(object.getChildObject(name, false), nullptr);
    EXPECT_EQ(*static_cast<Value*>(object.getChildObject(name, false)), first);
    object.setChildObject(name, &second, type, nullptr);
    ASSERT_NE((object.*get)(), nullptr);
    EXPECT_EQ(*(object.*get)(), second);
    (object.*reset)();
    EXPECT_EQ((object.*get)(), nullptr);
    EXPECT_EQ(object.getChildObject(name, false), nullptr);
}

/// An object child, through its accessors and by its name.
template <class X, class Child>
void expectObject(X& object, const char* name, Child* (X::*get)() const,
                  Child* (X::*create)(KORVAObjectRegistryI*), void (X::*set)(Child*)) {
    SCOPED_TRACE(name);
    const Registry registry = makeRegistry();
    EXPECT_EQ((object.*get)(), nullptr);
    Child* const made = (object.*create)(registry.get());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(registry->size(), 1u);
    EXPECT_EQ(object.getChildObject(name, false), made);
    EXPECT_EQ(object.getChildType(name), made->getObjectType());
    Child other;
    object.setChildObject(name, &other, other.getObjectType(), nullptr);
    EXPECT_EQ((object.*get)(), &other);
    (object.*set)(made);
    EXPECT_EQ(object.getChildObject(name, false), made);
    (object.*set)(nullptr);
    EXPECT_EQ((object.*get)(), nullptr);
}

TEST(Accessor, ConversationContext) {
    using X = KORVAConversationContext;
    X object;
    expectValue(object, "affinityStrength", Object::eInt, &X::getAffinityStrength,
                &X::setAffinityStrength, &X::resetAffinityStrength, 3, -4);
    expectText(object, "id", &X::getId, &X::setId);
    expectText(object, "nodeID", &X::getNodeID, &X::setNodeID);
    expectValue(object, "processID", Object::eInt, &X::getProcessID, &X::setProcessID,
                &X::resetProcessID, 0, 1);
    expectText(object, "status", &X::getStatus, &X::setStatus);
}

TEST(Accessor, WardenPassport) {
    using X = KORVAWardenPassport;
    X object;
    expectText(object, "authOrigin", &X::getAuthOrigin, &X::setAuthOrigin);
    expectValue(object, "canCallLogon", Object::eBoolean, &X::getCanCallLogon, &X::setCanCallLogon,
                &X::resetCanCallLogon, true, false);
    expectValue(object, "generation", Object::eInt, &X::getGeneration, &X::setGeneration,
                &X::resetGeneration, 1, 2);
    expectText(object, "id", &X::getId, &X::setId);
    expectValue(object, "isAnonymous", Object::eBoolean, &X::getIsAnonymous, &X::setIsAnonymous,
                &X::resetIsAnonymous, false, true);
    expectValue(object, "logEnabled", Object::eBoolean, &X::getLogEnabled, &X::setLogEnabled,
                &X::resetLogEnabled, false, true);
    expectValue(object, "shareable", Object::eBoolean, &X::getShareable, &X::setShareable,
                &X::resetShareable, true, false);
}

TEST(Accessor, Warden) {
    using X = KORVAWarden;
    X object;
    expectText(object, "action", &X::getAction, &X::setAction);
    expectText(object, "WardenCredentialPath", &X::getWardenCredentialPath,
               &X::setWardenCredentialPath);
    expectObject<X, KORVAWardenPassport>(object, "WardenPassport", &X::getWardenPassport,
                                         &X::getWardenPassport, &X::setWardenPassport);
    KORVAXSBase64Binary first("first", 5);
    KORVAXSBase64Binary second("second", 6);
    object.setSecurityBlob(&first);
    EXPECT_EQ(object.getChildObject("securityBlob", false), &first);
    object.setChildObject("securityBlob", &second, Object::eBase64Binary, nullptr);
    EXPECT_EQ(object.getSecurityBlob(), &second);
    EXPECT_EQ(object.getUserSessionID(), nullptr);
    EXPECT_EQ(object.getAuthenticityToken(), nullptr);
    object.getRoles().push_back("role");
    const auto* const roles =
        static_cast<const KORVAStringArray*>(object.getChildObject("roles", false));
    EXPECT_STREQ(roles->at(0), "role");
}

TEST(Accessor, HalyardHeader) {
    using X = KORVAHalyardHeader;
    X object;
    expectObject<X, KORVAMoat>(object, "Moat", &X::getMoat, &X::getMoat, &X::setMoat);
    expectObject<X, KORVAWarden>(object, "Warden", &X::getWarden, &X::getWarden, &X::setWarden);
    expectObject<X, KORVAWardenProtect>(object, "WardenProtect", &X::getWardenProtect,
                                        &X::getWardenProtect, &X::setWardenProtect);
    expectObject<X, KORVAHdrSession>(object, "hdrSession", &X::getHdrSession, &X::getHdrSession,
                                     &X::setHdrSession);
    expectObject<X, KORVARoutingInfo>(object, "routing", &X::getRouting, &X::getRouting,
                                      &X::setRouting);
    expectObject<X, KORVATracking>(object, "tracking", &X::getTracking, &X::getTracking,
                                   &X::setTracking);
}

TEST(Accessor, Schedule) {
    using X = KORVASchedule;
    X object;
    expectObject<X, KORVABooleanProp>(object, "active", &X::getActive, &X::getActive,
                                      &X::setActive);
    expectObject<X, KORVANmtokenProp>(object, "dailyPeriod", &X::getDailyPeriod, &X::getDailyPeriod,
                                      &X::setDailyPeriod);
    expectObject<X, KORVADateTimeProp>(object, "endDate", &X::getEndDate, &X::getEndDate,
                                       &X::setEndDate);
    expectObject<X, KORVAPositiveIntegerProp>(object, "everyNPeriods", &X::getEveryNPeriods,
                                              &X::getEveryNPeriods, &X::setEveryNPeriods);
    expectObject<KORVAUiClass, KORVABooleanProp>(object, "hidden", &KORVAUiClass::getHidden,
                                                 &KORVAUiClass::getHidden,
                                                 &KORVAUiClass::setHidden);
}

TEST(Accessor, AsynchReply) {
    using X = KORVAAsynchReply;
    X object;
    expectObject<X, KORVAAsynchRequest>(object, "primaryRequest", &X::getPrimaryRequest,
                                        &X::getPrimaryRequest, &X::setPrimaryRequest);
    expectObject<X, KORVAAsynchReplyStatusEnum>(object, "status", &X::getStatus, &X::getStatus,
                                                &X::setStatus);
}

TEST(Accessor, AsynchDetailEventRecord) {
    using X = KORVAAsynchDetailEventRecord;
    X object;
    expectText(object, "duration", &X::getDuration, &X::setDuration);
    expectText(object, "eventID", &X::getEventID, &X::setEventID);
    expectValue(object, "priority", Object::eInt, &X::getPriority, &X::setPriority,
                &X::resetPriority, 5, 6);
    expectText(object, "requestedStartTime", &X::getRequestedStartTime, &X::setRequestedStartTime);
    expectText(object, "scheduleTriggerName", &X::getScheduleTriggerName,
               &X::setScheduleTriggerName);
    expectText(object, "tenantID", &X::getTenantID, &X::setTenantID);
    KORVAFolder folder;
    object.getUser().push_back(&folder);
    const auto* const user =
        static_cast<const KORVABaseClassArray*>(object.getChildObject("user", false));
    EXPECT_EQ(user->at(0), &folder);
    EXPECT_EQ(object.getHistory().size(), 0u);
}

TEST(Accessor, ParameterValue) {
    using X = KORVAParameterValue;
    X object;
    expectText(object, "name", &X::getName, &X::setName);
    KORVASimpleParmValueItem item;
    object.getValue().push_back(&item);
    const auto* const value =
        static_cast<const KORVAParmValueItemArray*>(object.getChildObject("value", false));
    EXPECT_EQ(value->at(0), &item);
}

TEST(Accessor, NumbersOfOtherTypes) {
    KORVAAsynchDetailMIMEAttachment attachment;
    expectValue(attachment, "dataSize", Object::eInteger,
                &KORVAAsynchDetailMIMEAttachment::getDataSize,
                &KORVAAsynchDetailMIMEAttachment::setDataSize,
                &KORVAAsynchDetailMIMEAttachment::resetDataSize, 1 << 30, -1);
    KORVARolapMetricNumber metric;
    expectValue(metric, "value", Object::eFloat, &KORVARolapMetricNumber::getValue,
                &KORVARolapMetricNumber::setValue, &KORVARolapMetricNumber::resetValue, 1.5F,
                -2.5F);
    KORVASetCookieVar cookie;
    expectValue(cookie, "maxAge", Object::eInt, &KORVASetCookieVar::getMaxAge,
                &KORVASetCookieVar::setMaxAge, &KORVASetCookieVar::resetMaxAge, 60, 0);
    expectValue(cookie, "secure", Object::eBoolean, &KORVASetCookieVar::getSecure,
                &KORVASetCookieVar::setSecure, &KORVASetCookieVar::resetSecure, true, false);
}

TEST(Accessor, NameThatIsAKeywordOfTheLanguage) {
    KORVAPromptOption option;
    expectValue(option, "default", Object::eBoolean, &KORVAPromptOption::getDefault,
                &KORVAPromptOption::setDefault, &KORVAPromptOption::resetDefault, true, false);
}

}  // namespace
