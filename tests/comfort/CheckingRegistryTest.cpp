#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_CheckingRegistry.h>
#include <korva/KORVA_Children.h>
#include <korva/KORVA_Equal.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <version>

namespace {

using Registry = ZELSmartPointer<KORVA_CheckingRegistry>;
using Object = KORVASchemaTypeI;

constexpr unsigned registeredTwice = 0xEA4F0033U;
constexpr unsigned usedAfterSweep = 0xEA4F0034U;
constexpr unsigned notRegistered = 0xEA4F0035U;
constexpr const char* thrower = "KORVA_CheckingRegistry";

Registry makeRegistry() {
    return KORVA_CheckingRegistry::create();
}

TEST(CheckingRegistry, OwnsWhatAnyRegistryOwns) {
    const Registry registry = makeRegistry();
    registry->make<bool>(true);
    registry->registerPointer(new char[3], KORVAObjectRegistryI::eKORVADeleteArray);
    registry->registerPointer(new float(1), KORVAObjectRegistryI::eKORVADeleteScalar);
    registry->registerPointer(static_cast<int*>(std::malloc(sizeof(int))),
                              KORVAObjectRegistryI::eKORVAFree);
    registry->make<KORVAXSBase64Binary>();
    registry->make<KORVA_CharStreamable>();
    registry->make<std::string>("a text");
    registry->make<KORVAReport>();
    registry->registerPointer(static_cast<Object*>(nullptr));
    registry->registerPointer(static_cast<std::string*>(nullptr));
    EXPECT_EQ(registry->size(), 8u);
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
    registry->make<KORVAReport>();
    EXPECT_EQ(registry->size(), 1u);
}

TEST(CheckingRegistry, StandsInForTheRegistryOfAMessage) {
    const Registry registry = makeRegistry();
    const ZELSmartPointer<KORVAAsynchRun_Request> run = new KORVAAsynchRun_Request;
    run->setObjectRegistry(registry.get());
    run->getObjectPath(run->getObjectRegistry())->setValue("/content");
    EXPECT_EQ(registry->size(), 1u);
    registry->check(*run->getObjectPath());
}

TEST(CheckingRegistry, TellsADoubleRegistrationByTypeAndPlaces) {
    const Registry registry = makeRegistry();
    registry->make<KORVAFolder>();
    registry->mark(ZELFileLocation("fill.cpp", 12));
    auto* const report = registry->make<KORVAReport>();
    registry->mark(ZELFileLocation("send.cpp", 7));
    EXPECT_NUMBERED(registry->registerPointer(report), registeredTwice, thrower, "KORVAReport",
                    "number 2, behind fill.cpp(12)", "number 3, behind send.cpp(7)");
    EXPECT_EQ(registry->size(), 2u);
}

TEST(CheckingRegistry, TellsADoubleRegistrationOfAnythingElse) {
    const Registry registry = makeRegistry();
    auto* const text = registry->make<std::string>("a text");
    EXPECT_NUMBERED(registry->registerPointer(text), registeredTwice, thrower, "std::string",
                    "number 1", "number 2");
    auto* const number = registry->make<int>(7);
    EXPECT_NUMBERED(registry->registerPointer(number, KORVAObjectRegistryI::eKORVADelete),
                    registeredTwice, thrower, "int", "number 2", "number 3");
}

TEST(CheckingRegistry, TakesAnAddressAgainBehindTheSweep) {
    const Registry registry = makeRegistry();
    for (int round = 0; round != 3; ++round) {
        for (int i = 0; i != 50; ++i) {
            registry->make<std::string>("a text");
            registry->make<KORVAReport>();
        }
        registry->clean();
    }
}

TEST(CheckingRegistry, TellsTheUseOfAnObjectThatWasSwept) {
    const Registry registry = makeRegistry();
    registry->mark(ZELFileLocation("fill.cpp", 12));
    auto* const report = registry->make<KORVAReport>();
    registry->clean();
    Object* const object = report;
    const std::string registration = "number 1, behind fill.cpp(12)";
    const auto expectTold = [&](auto use) {
        EXPECT_NUMBERED(use(), usedAfterSweep, thrower, "KORVAReport", registration);
    };
    expectTold([&] { return object->getObjectType(); });
    expectTold([&] { return object->getGeneratedObjectName(); });
    expectTold([&] { return object->generatedObjectName(); });
    expectTold([&] { return object->isa(Object::eKORVAReport); });
    expectTold([&] { return object->getChildObject("defaultName", false); });
    expectTold([&] { return object->getChildType("defaultName"); });
    expectTold([&] { return object->setChildObject("x", object, Object::eString, nullptr); });
    expectTold([&] { return object->getChildObjectCount(); });
    expectTold([&] { return korva::children(*object).size(); });
    expectTold([&] { return korva::equal(*object, KORVAFolder()); });
    const ZELSmartPointer<KORVAObjectRegistryI> other =
        KORVAObjectRegistryFactory::getInstance().create();
    expectTold([&] { KORVASchemaTypesFactory::getInstance().createCopy(*object, *other); });
}

TEST(CheckingRegistry, TellsTheUseOfASweptChild) {
    const Registry registry = makeRegistry();
    const Registry inner = makeRegistry();
    auto* const report = registry->make<KORVAReport>();
    report->setHidden(inner->make<KORVABooleanProp>());
    inner->clean();
    EXPECT_NUMBERED(registry->check(*report), usedAfterSweep, thrower, "KORVABooleanProp",
                    "number 1");
}

TEST(CheckingRegistry, TellsEachOfTheObjectsOfTwoRegistriesByItsOwn) {
    const Registry first = makeRegistry();
    Registry second = makeRegistry();
    Object* const folder = first->make<KORVAFolder>();
    Object* const report = second->make<KORVAReport>();
    first->clean();
    second->clean();
    EXPECT_NUMBERED(report->getObjectType(), usedAfterSweep, thrower, "KORVAReport", "number 1");
    second = nullptr;
    EXPECT_NUMBERED(folder->getObjectType(), usedAfterSweep, thrower, "KORVAFolder", "number 1");
}

TEST(CheckingRegistry, FindsAnObjectThatWasNeverRegistered) {
    const Registry registry = makeRegistry();
    auto* const report = registry->make<KORVAReport>();
    auto* const parents = registry->make<KORVABaseClassArrayProp>();
    report->setParent(parents);
    parents->getValue().push_back(registry->make<KORVAFolder>());
    registry->check(*report);
    KORVAFolder lost;
    parents->getValue().push_back(&lost);
    EXPECT_NUMBERED(registry->check(*report), notRegistered, "KORVA_CheckingRegistry::check",
                    "KORVAFolder", "parent/value/1");
    const KORVAReport root;
    EXPECT_NUMBERED(registry->check(root), notRegistered, "KORVA_CheckingRegistry::check",
                    "KORVAReport", "");
}

TEST(CheckingRegistry, FindsABinaryThatWasNeverRegistered) {
    const Registry registry = makeRegistry();
    auto* const warden = registry->make<KORVAWarden>();
    auto* const kept = registry->make<KORVAXSBase64Binary>("bytes", 5U);
    warden->setSecurityBlob(kept);
    registry->check(*warden);
    KORVAXSBase64Binary lost("bytes", 5);
    warden->setUserSessionID(&lost);
    EXPECT_NUMBERED(registry->check(*warden), notRegistered, "KORVA_CheckingRegistry::check",
                    "KORVAXSBase64Binary", "userSessionID");
}

TEST(CheckingRegistry, ChecksObjectsThatHoldThemselves) {
    const Registry registry = makeRegistry();
    auto* const report = registry->make<KORVAReport>();
    auto* const parents = registry->make<KORVABaseClassArrayProp>();
    report->setParent(parents);
    parents->getValue().push_back(report);
    registry->check(*report);
}

TEST(CheckingRegistry, ChecksAFaultDownToWhatCannotBeWalked) {
    const Registry registry = makeRegistry();
    auto* const fault = registry->make<KORVASOAPFault>();
    auto* const details = registry->make<KORVAUndocumentedFaultDetailArray>();
    details->push_back(registry->make<KORVAUndocumentedFaultDetail>());
    fault->setDetail(details);
    registry->check(*fault);
}

#if defined(__cpp_lib_source_location)

TEST(CheckingRegistry, MarksThePlaceOfTheCall) {
    const Registry registry = makeRegistry();
    registry->mark();
    const unsigned line = __LINE__ - 1;
    Object* const report = registry->make<KORVAReport>();
    const std::string place =
        "number 1, behind " + std::string(__FILE__) + '(' + std::to_string(line) + ')';
    registry->clean();
    EXPECT_NUMBERED(report->getObjectType(), usedAfterSweep, thrower, "KORVAReport", place);
}

#endif

}  // namespace
