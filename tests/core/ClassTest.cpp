#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAncestorInfoArray.h>
#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVABaseRoutingRule.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAClassEnum.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVADeploymentObjectInformation.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAFormFieldVar.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAPolicy.h>
#include <korva/KORVAQueryReportResult.h>
#include <korva/KORVAReport.h>
#include <korva/KORVAReportServiceRequest.h>
#include <korva/KORVARolapMetricNumber.h>
#include <korva/KORVARoutingTableEntry.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using korva::test::liveAllocations;
using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

TEST(Class, FreshObjectHasNoValues) {
    const KORVAConversationContext context;
    EXPECT_EQ(context.getAffinityStrength(), nullptr);
    EXPECT_EQ(context.getId(), nullptr);
    EXPECT_EQ(context.getNodeID(), nullptr);
    EXPECT_EQ(context.getProcessID(), nullptr);
    EXPECT_EQ(context.getStatus(), nullptr);
    const KORVAWarden warden;
    EXPECT_EQ(warden.getSecurityBlob(), nullptr);
    EXPECT_EQ(warden.getWardenPassport(), nullptr);
}

TEST(Class, PropertyCostsAPointerUntilItIsTouched) {
    const std::size_t live = liveAllocations();
    const KORVASchedule schedule;
    EXPECT_EQ(liveAllocations(), live + 1);  // one record for all levels
}

TEST(Class, GetterWithoutARegistryNeverAllocates) {
    KORVASchedule schedule;
    const std::size_t before = korva::test::allocationsSoFar();
    EXPECT_EQ(schedule.getActive(nullptr), nullptr);
    EXPECT_EQ(schedule.getActive(), nullptr);
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
}

TEST(Class, GetterWithARegistryCreatesOnceAndRegistersOnce) {
    const Registry registry = makeRegistry();
    KORVASchedule schedule;
    KORVABooleanProp* const active = schedule.getActive(registry.get());
    ASSERT_NE(active, nullptr);
    EXPECT_EQ(active->getObjectType(), Object::eKORVABooleanProp);
    EXPECT_EQ(registry->size(), 1u);
    EXPECT_EQ(schedule.getActive(registry.get()), active);
    EXPECT_EQ(schedule.getActive(), active);
    EXPECT_EQ(schedule.getActive(nullptr), active);
    EXPECT_EQ(registry->size(), 1u);
}

TEST(Class, GetterGivesWhatWasSetAndRegistersNothing) {
    const Registry registry = makeRegistry();
    KORVASchedule schedule;
    KORVABooleanProp prop;
    schedule.setActive(&prop);
    EXPECT_EQ(schedule.getActive(registry.get()), &prop);
    EXPECT_EQ(registry->size(), 0u);
}

TEST(Class, SettingNullUnsetsTheChild) {
    const Registry registry = makeRegistry();
    KORVASchedule schedule;
    schedule.getActive(registry.get());
    schedule.setActive(nullptr);
    EXPECT_EQ(schedule.getActive(), nullptr);
    EXPECT_EQ(schedule.getChildObject("active", false), nullptr);
    EXPECT_EQ(schedule.getChildObject("active", true), nullptr);
}

TEST(Class, ObjectChildrenAreCreatedOnGet) {
    const Registry registry = makeRegistry();
    KORVADeploymentObjectInformation information;
    KORVAClassEnum* const objectClass = information.getObjectClass(registry.get());
    KORVASearchPathSingleObject* const path = information.getSearchPath(registry.get());
    ASSERT_NE(objectClass, nullptr);
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(objectClass->getValue(), KORVAClassEnum::eKOVRAUninitialized);
    EXPECT_EQ(path->getValue(), nullptr);
    EXPECT_EQ(registry->size(), 2u);
}

TEST(Class, ChildOfAnAbstractTypeIsNotCreatedOnGet) {
    const char* const text =
        "ZEL_ASSERT_NAMED(false, \"Creation on get not supported on abstract types\");";
    const Registry registry = makeRegistry();
    KORVARoutingTableEntry entry;
    KORVAPolicy policy;
    KORVAQueryReportResult result;
    EXPECT_EQ(entry.getRule(nullptr), nullptr);
    EXPECT_ASSERTION(entry.getRule(registry.get()), text);
    EXPECT_EQ(policy.getSecurityObject(nullptr), nullptr);
    EXPECT_ASSERTION(policy.getSecurityObject(registry.get()), text);
    EXPECT_EQ(result.getQueryResult(nullptr), nullptr);
    EXPECT_ASSERTION(result.getQueryResult(registry.get()), text);
    EXPECT_EQ(registry->size(), 0u);
    KORVAFolder folder;
    policy.setSecurityObject(&folder);
    EXPECT_EQ(policy.getSecurityObject(registry.get()), &folder);
    EXPECT_EQ(policy.getSecurityObject(nullptr), &folder);
    KORVAReport report;
    result.setQueryResult(&report);
    EXPECT_EQ(result.getQueryResult(registry.get()), &report);
}

TEST(Class, TextIsStoredAsItStands) {
    KORVAConversationContext context;
    const char text[] = "the node";
    context.setNodeID(text);
    EXPECT_EQ(context.getNodeID(), text);
    EXPECT_EQ(context.getChildObject("nodeID", false), text);
    EXPECT_EQ(context.getChildObject("nodeID", true), text);
    context.setNodeID(nullptr);
    EXPECT_EQ(context.getNodeID(), nullptr);
    EXPECT_EQ(context.getChildObject("nodeID", false), nullptr);
}

TEST(Class, ValueIsReadAndWrittenThroughItsAddress) {
    KORVAConversationContext context;
    context.setProcessID(12);
    ASSERT_NE(context.getProcessID(), nullptr);
    EXPECT_EQ(*context.getProcessID(), 12);
    *context.getProcessID() = 13;
    EXPECT_EQ(*context.getProcessID(), 13);
    EXPECT_EQ(context.getChildObject("processID", false), context.getProcessID());
}

TEST(Class, ResetKeepsTheOldValueInPlace) {
    KORVAConversationContext context;
    context.setProcessID(4711);
    context.resetProcessID();
    EXPECT_EQ(context.getProcessID(), nullptr);
    EXPECT_EQ(context.getChildObject("processID", false), nullptr);
    const void* const value = context.getChildObject("processID", true);
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*static_cast<const int*>(value), 4711);
    ASSERT_NE(context.getProcessID(), nullptr);
    EXPECT_EQ(*context.getProcessID(), 4711);
}

TEST(Class, ZeroAndFalseAreValues) {
    KORVAConversationContext context;
    context.setProcessID(0);
    ASSERT_NE(context.getProcessID(), nullptr);
    EXPECT_EQ(*context.getProcessID(), 0);
    KORVAWardenPassport passport;
    EXPECT_EQ(passport.getIsAnonymous(), nullptr);
    passport.setIsAnonymous(false);
    ASSERT_NE(passport.getIsAnonymous(), nullptr);
    EXPECT_FALSE(*passport.getIsAnonymous());
    passport.resetIsAnonymous();
    EXPECT_EQ(passport.getIsAnonymous(), nullptr);
}

TEST(Class, FloatChildWorksAsTheOtherValues) {
    KORVARolapMetricNumber metric;
    EXPECT_EQ(metric.getValue(), nullptr);
    EXPECT_EQ(metric.getChildObject("value", false), nullptr);
    metric.setValue(1.5F);
    ASSERT_NE(metric.getValue(), nullptr);
    EXPECT_EQ(*metric.getValue(), 1.5F);
    EXPECT_EQ(metric.getChildType("value"), Object::eFloat);
    metric.resetValue();
    EXPECT_EQ(metric.getValue(), nullptr);
    EXPECT_EQ(*static_cast<float*>(metric.getChildObject("value", true)), 1.5F);
}

TEST(Class, BinaryIsStoredAsItStands) {
    KORVAAsynchDetailMIMEAttachment attachment;
    KORVAXSBase64Binary data("bytes", 5);
    attachment.setData(&data);
    EXPECT_EQ(attachment.getData(), &data);
    EXPECT_EQ(attachment.getChildObject("data", false), &data);
    EXPECT_EQ(attachment.getChildType("data"), Object::eBase64Binary);
    attachment.setData(nullptr);
    EXPECT_EQ(attachment.getChildObject("data", true), nullptr);
}

TEST(Class, EmbeddedArrayIsAlwaysThere) {
    KORVADeploymentObjectInformation information;
    EXPECT_EQ(information.getAncestors().size(), 0u);
    EXPECT_EQ(information.getChildObject("ancestors", false), &information.getAncestors());
    EXPECT_EQ(information.getChildObject("ancestors", true), &information.getAncestors());
    EXPECT_EQ(information.getChildType("ancestors"), Object::eKORVAAncestorInfoArray);
}

TEST(Class, EmbeddedArrayCannotBeSetByName) {
    KORVADeploymentObjectInformation information;
    KORVAAncestorInfoArray array;
    int number = 1;
    const char* const text =
        "ZEL_ASSERT_NAMED(false, \"The 'ancestors' element cannot be set through the "
        "'KORVADeploymentObjectInformation::setChildObject()' method.\");";
    EXPECT_ASSERTION(
        information.setChildObject("ancestors", &array, Object::eKORVAAncestorInfoArray, nullptr),
        text);
    EXPECT_ASSERTION(information.setChildObject("ancestors", &number, Object::eInt, nullptr), text);
    EXPECT_ASSERTION(
        information.setChildObject("ancestors", nullptr, Object::eKORVAAncestorInfoArray, nullptr),
        "ZEL_ASSERT(obj != NULL);");
}

TEST(Class, PropertyOfAnotherTypeIsRefused) {
    KORVASchedule schedule;
    KORVABooleanProp kept;
    KORVAStringProp text;
    schedule.setActive(&kept);
    EXPECT_TYPE_ERROR(schedule.setChildObject("active", &text, Object::eKORVAStringProp, nullptr),
                      "schedule", "active", "bus:booleanProp", "bus:stringProp");
    // The object decides; the type is only told.
    EXPECT_TYPE_ERROR(schedule.setChildObject("active", &text, Object::eKORVABooleanProp, nullptr),
                      "schedule", "active", "bus:booleanProp", "bus:booleanProp");
    EXPECT_EQ(schedule.getActive(), &kept);
    KORVABooleanProp other;
    EXPECT_EQ(schedule.setChildObject("active", &other, Object::eKORVAStringProp, nullptr), 0u);
    EXPECT_EQ(schedule.getActive(), &other);
}

TEST(Class, PlainTypeIsRefusedForAPropertyBeforeTheObjectIsLookedAt) {
    KORVASchedule schedule;
    // No object stands at this address.
    void* const nowhere = reinterpret_cast<void*>(1);
    EXPECT_TYPE_ERROR(schedule.setChildObject("active", nowhere, Object::eInt, nullptr), "schedule",
                      "active", "bus:booleanProp", "xs:int");
    EXPECT_ASSERTION(
        schedule.setChildObject("active", nowhere, Object::eCharStreamable, nullptr),
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");");
    EXPECT_EQ(schedule.getActive(), nullptr);
}

TEST(Class, TypeErrorNamesTheLevelThatDeclaresTheChild) {
    KORVASchedule schedule;
    KORVAStringProp text;
    EXPECT_TYPE_ERROR(schedule.setChildObject("hidden", &text, Object::eKORVAStringProp, nullptr),
                      "uiClass", "hidden", "bus:booleanProp", "bus:stringProp");
    EXPECT_TYPE_ERROR(schedule.setChildObject("parent", &text, Object::eKORVAStringProp, nullptr),
                      "baseClass", "parent", "bus:baseClassArrayProp", "bus:stringProp");
    KORVAWarden warden;
    EXPECT_TYPE_ERROR(
        warden.setChildObject("WardenPassport", &text, Object::eKORVAStringProp, nullptr), "Warden",
        "WardenPassport", "bus:WardenPassport", "bus:stringProp");
}

TEST(Class, SubclassOfTheDeclaredTypeIsTaken) {
    KORVAPolicy policy;
    KORVAFolder folder;
    EXPECT_EQ(policy.setChildObject("securityObject", &folder, Object::eKORVAFolder, nullptr), 0u);
    EXPECT_EQ(policy.getSecurityObject(), &folder);
    EXPECT_EQ(policy.getChildObject("securityObject", false), static_cast<Object*>(&folder));
    KORVAGuid guid;
    EXPECT_TYPE_ERROR(policy.setChildObject("securityObject", &guid, Object::eKORVAGuid, nullptr),
                      "policy", "securityObject", "bus:baseClass", "bus:guid");
}

TEST(Class, TextIsTakenFromABuffer) {
    KORVAConversationContext context;
    const TextBuffer buffer("a node");
    for (const Object::ObjectType type :
         {Object::eString, Object::eTime, Object::eDateTime, Object::eQName}) {
        context.setNodeID(nullptr);
        EXPECT_EQ(context.setChildObject("nodeID", const_cast<TextBuffer*>(&buffer), type, nullptr),
                  0u);
        EXPECT_EQ(context.getNodeID(), buffer.str());
    }
}

TEST(Class, CharStreamableIsStoredUnread) {
    KORVAConversationContext context;
    KORVA_CharStreamable streamable;
    EXPECT_EQ(context.setChildObject("nodeID", &streamable, Object::eCharStreamable, nullptr), 0u);
    EXPECT_EQ(context.getNodeID(), streamable.asCharStar());
    char plain[] = "text";
    context.setChildObject("nodeID", plain, Object::eCharStreamable, nullptr);
    EXPECT_EQ(context.getNodeID(), plain);
}

TEST(Class, TextRefusesWhatIsNoText) {
    KORVAConversationContext context;
    context.setNodeID("kept");
    int number = 1;
    EXPECT_TYPE_ERROR(context.setChildObject("nodeID", &number, Object::eInt, nullptr),
                      "conversationContext", "nodeID", "xs:string", "xs:int");
    EXPECT_TYPE_ERROR(context.setChildObject("nodeID", &number, Object::eBase64Binary, nullptr),
                      "conversationContext", "nodeID", "xs:string", "xs:base64Binary");
    KORVAGuid guid;
    EXPECT_TYPE_ERROR(context.setChildObject("nodeID", &guid, Object::eKORVAGuid, nullptr),
                      "conversationContext", "nodeID", "xs:string", "bus:guid");
    EXPECT_STREQ(context.getNodeID(), "kept");
    KORVAReportServiceRequest request;
    EXPECT_EQ(request.getChildType("name"), Object::eQName);
    EXPECT_TYPE_ERROR(request.setChildObject("name", &number, Object::eInt, nullptr),
                      "reportServiceRequest", "name", "xs:QName", "xs:int");
}

TEST(Class, ValueIsReadThroughThePointer) {
    KORVAConversationContext context;
    int number = 77;
    EXPECT_EQ(context.setChildObject("processID", &number, Object::eInt, nullptr), 0u);
    ASSERT_NE(context.getProcessID(), nullptr);
    EXPECT_EQ(*context.getProcessID(), 77);
    EXPECT_NE(context.getProcessID(), &number);
    KORVAWardenPassport passport;
    bool flag = true;
    passport.setChildObject("isAnonymous", &flag, Object::eBoolean, nullptr);
    ASSERT_NE(passport.getIsAnonymous(), nullptr);
    EXPECT_TRUE(*passport.getIsAnonymous());
}

TEST(Class, ValueClearsTheFlagAfterAReset) {
    KORVAConversationContext context;
    context.setProcessID(1);
    context.resetProcessID();
    int number = 2;
    context.setChildObject("processID", &number, Object::eInteger, nullptr);
    ASSERT_NE(context.getProcessID(), nullptr);
    EXPECT_EQ(*context.getProcessID(), 2);
}

TEST(Class, NumbersAreConvertedByTheTypeThatIsPassed) {
    KORVAConversationContext context;
    const auto asInt = [&context](auto value, Object::ObjectType type) {
        context.setChildObject("processID", &value, type, nullptr);
        return *context.getProcessID();
    };
    EXPECT_EQ(asInt(-3, Object::eInteger), -3);
    EXPECT_EQ(asInt(3.9F, Object::eFloat), 3);
    EXPECT_EQ(asInt(-3.9F, Object::eDecimal), -3);
    EXPECT_EQ(asInt(true, Object::eBoolean), 1);
    EXPECT_EQ(asInt(false, Object::eBoolean), 0);
    EXPECT_EQ(asInt(1e20F, Object::eFloat), std::numeric_limits<int>::max());
    EXPECT_EQ(asInt(-1e20F, Object::eFloat), std::numeric_limits<int>::min());
    EXPECT_EQ(asInt(2147483648.0F, Object::eFloat), std::numeric_limits<int>::max());
    EXPECT_EQ(asInt(-2147483648.0F, Object::eFloat), std::numeric_limits<int>::min());
    EXPECT_EQ(asInt(2147483520.0F, Object::eFloat), 2147483520);
    EXPECT_EQ(asInt(std::numeric_limits<float>::infinity(), Object::eFloat),
              std::numeric_limits<int>::max());
    EXPECT_EQ(asInt(std::numeric_limits<float>::quiet_NaN(), Object::eFloat), 0);
    KORVAWardenPassport passport;
    const auto asBool = [&passport](auto value, Object::ObjectType type) {
        passport.setChildObject("isAnonymous", &value, type, nullptr);
        return *passport.getIsAnonymous();
    };
    EXPECT_TRUE(asBool(2, Object::eInt));
    EXPECT_FALSE(asBool(0, Object::eInteger));
    EXPECT_TRUE(asBool(0.5F, Object::eFloat));
    EXPECT_FALSE(asBool(0.0F, Object::eDecimal));
    KORVARolapMetricNumber metric;
    const auto asFloat = [&metric](auto value, Object::ObjectType type) {
        metric.setChildObject("value", &value, type, nullptr);
        return *metric.getValue();
    };
    EXPECT_EQ(asFloat(7, Object::eInt), 7.0F);
    EXPECT_EQ(asFloat(-7, Object::eInteger), -7.0F);
    EXPECT_EQ(asFloat(2.25F, Object::eDecimal), 2.25F);
    EXPECT_EQ(asFloat(true, Object::eBoolean), 1.0F);
}

TEST(Class, ValueRefusesGeneratedTextAndBinaryTypes) {
    KORVAConversationContext context;
    context.setProcessID(5);
    KORVAGuid guid;
    const TextBuffer buffer("7");
    KORVAXSBase64Binary binary;
    EXPECT_TYPE_ERROR(context.setChildObject("processID", &guid, Object::eKORVAGuid, nullptr),
                      "conversationContext", "processID", "xs:int", "bus:guid");
    EXPECT_TYPE_ERROR(context.setChildObject("processID", const_cast<TextBuffer*>(&buffer),
                                             Object::eString, nullptr),
                      "conversationContext", "processID", "xs:int", "xs:string");
    EXPECT_TYPE_ERROR(context.setChildObject("processID", &binary, Object::eBase64Binary, nullptr),
                      "conversationContext", "processID", "xs:int", "xs:base64Binary");
    EXPECT_TYPE_ERROR(context.setChildObject("processID", &guid, Object::e_Unknown, nullptr),
                      "conversationContext", "processID", "xs:int", "_unknown");
    EXPECT_EQ(*context.getProcessID(), 5);
    KORVATracking tracking;
    EXPECT_EQ(tracking.getChildType("hopCount"), Object::eInteger);
    EXPECT_TYPE_ERROR(tracking.setChildObject("hopCount", &guid, Object::eKORVAGuid, nullptr),
                      "tracking", "hopCount", "xs:integer", "bus:guid");
    EXPECT_EQ(tracking.getHopCount(), nullptr);
}

TEST(Class, BinaryRefusesEveryOtherType) {
    KORVAAsynchDetailMIMEAttachment attachment;
    const TextBuffer buffer("text");
    EXPECT_TYPE_ERROR(attachment.setChildObject("data", const_cast<TextBuffer*>(&buffer),
                                                Object::eString, nullptr),
                      "asynchDetailMIMEAttachment", "data", "xs:base64Binary", "xs:string");
    EXPECT_EQ(attachment.getData(), nullptr);
    KORVAXSBase64Binary data;
    EXPECT_EQ(attachment.setChildObject("data", &data, Object::eBase64Binary, nullptr), 0u);
    EXPECT_EQ(attachment.getData(), &data);
}

TEST(Class, DestructorFreesItsRecordAndNothingThatItPointsAt) {
    const Registry registry = makeRegistry();
    KORVABooleanProp* active = nullptr;
    {
        KORVASchedule schedule;
        active = schedule.getActive(registry.get());
        active->setValue(true);
    }
    EXPECT_TRUE(*active->getValue());
}

}  // namespace
