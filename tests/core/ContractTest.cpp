// What every object of the schema answers, whatever its family.

#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVABooleanProp.h>
#include <korva/KORVAChildIndex.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVAIntProp.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAScheduleArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringProp.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELUtCrc32.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

TEST(Contract, IdentityIsTheCrcOfTheXmlName) {
    const KORVASchedule schedule;
    EXPECT_EQ(static_cast<std::uint32_t>(schedule.getObjectType()), 0x5A3811FBU);
    const auto* const bytes = reinterpret_cast<const Bytef*>("schedule");
    EXPECT_EQ(crc32(0, bytes, 8), 0x5A3811FBU);
    EXPECT_EQ(ZELUtCrc32::crc32("dailyPeriod", 0), 0xC80D96B0U);
    EXPECT_STREQ(tarnsymbols1::getChar(0xC80D96B0U), "dailyPeriod");
    EXPECT_STREQ(tarnsymbols1::getChar(0x1D775834U), "value");
}

TEST(Contract, NamesAreTheClassName) {
    const KORVASchedule schedule;
    const KORVAScheduleArray array;
    const KORVASeverityEnum severity;
    const KORVAGuid guid;
    const KORVAIntProp prop;
    EXPECT_STREQ(schedule.generatedObjectName(), "KORVASchedule");
    EXPECT_STREQ(array.generatedObjectName(), "KORVAScheduleArray");
    EXPECT_STREQ(severity.generatedObjectName(), "KORVASeverityEnum");
    EXPECT_STREQ(guid.generatedObjectName(), "KORVAGuid");
    EXPECT_STREQ(prop.generatedObjectName(), "KORVAIntProp");
    EXPECT_EQ(schedule.getGeneratedObjectName(), "KORVASchedule");
    const KORVASchedule another;
    EXPECT_EQ(&schedule.getGeneratedObjectName(), &another.getGeneratedObjectName());
}

TEST(Contract, NullNameIsAnAssertion) {
    KORVASchedule schedule;
    KORVAIntProp prop;
    KORVAScheduleArray array;
    KORVASeverityEnum severity;
    int number = 1;
    for (Object* const object : {static_cast<Object*>(&schedule), static_cast<Object*>(&prop)}) {
        EXPECT_ASSERTION(object->getChildObject(nullptr, false), "ZEL_ASSERT(name);");
        EXPECT_ASSERTION(object->getChildObject(nullptr, true), "ZEL_ASSERT(name);");
        EXPECT_ASSERTION(object->getChildType(nullptr), "ZEL_ASSERT(name);");
    }
    EXPECT_ASSERTION(array.getChildObject(nullptr, false), "ZEL_ASSERT(name);");
    for (Object* const object : {static_cast<Object*>(&schedule), static_cast<Object*>(&prop),
                                 static_cast<Object*>(&array), static_cast<Object*>(&severity)})
        EXPECT_ASSERTION(object->setChildObject(nullptr, &number, Object::eInt, nullptr),
                         "ZEL_ASSERT(name);");
}

TEST(Contract, EmptyNameStoresNothingAndIsLookedAtBeforeTheObject) {
    KORVASchedule schedule;
    KORVAIntProp prop;
    KORVAScheduleArray array;
    EXPECT_EQ(schedule.setChildObject("", nullptr, Object::eKORVABooleanProp, nullptr), 0u);
    EXPECT_EQ(prop.setChildObject("", nullptr, Object::eInt, nullptr), 0u);
    std::size_t index = 5;
    EXPECT_EQ(array.setChildObject("", nullptr, Object::eKORVASchedule, nullptr), 0u);
    EXPECT_EQ(array.setChildObject("", nullptr, Object::eKORVASchedule, &index), 0u);
    EXPECT_EQ(prop.getValue(), nullptr);
    EXPECT_EQ(array.size(), 0u);
}

TEST(Contract, NullObjectIsAnAssertion) {
    KORVASchedule schedule;
    KORVAIntProp prop;
    KORVAScheduleArray array;
    const char* const text = "ZEL_ASSERT(obj != NULL);";
    EXPECT_ASSERTION(schedule.setChildObject("active", nullptr, Object::eKORVABooleanProp, nullptr),
                     text);
    EXPECT_ASSERTION(schedule.setChildObject("no such", nullptr, Object::eInt, nullptr), text);
    EXPECT_ASSERTION(prop.setChildObject("value", nullptr, Object::eInt, nullptr), text);
    EXPECT_ASSERTION(array.setChildObject("schedule", nullptr, Object::eKORVASchedule, nullptr),
                     text);
}

TEST(Contract, NullPrivateDataIsAnAssertion) {
    class Hollow : public KORVASchedule {
    public:
        Hollow() : KORVASchedule(static_cast<korva::Record*>(nullptr)) {}
    } hollow;
    KORVABooleanProp prop;
    EXPECT_ASSERTION(hollow.getChildObject("active", false), "ZEL_ASSERT(m_pPrivateData);");
    EXPECT_ASSERTION(hollow.setChildObject("active", &prop, Object::eKORVABooleanProp, nullptr),
                     "ZEL_ASSERT(m_pPrivateData);");
    // The checks before it come first.
    EXPECT_ASSERTION(hollow.getChildObject(nullptr, false), "ZEL_ASSERT(name);");
    EXPECT_EQ(hollow.setChildObject("", nullptr, Object::eKORVABooleanProp, nullptr), 0u);
    EXPECT_EQ(hollow.getChildType("active"), Object::eKORVABooleanProp);
}

TEST(Contract, UnknownChildIsNoError) {
    KORVASchedule schedule;
    KORVAIntProp prop;
    KORVABooleanProp other;
    for (Object* const object : {static_cast<Object*>(&schedule), static_cast<Object*>(&prop)})
        for (const char* const name : {"no such child", "Active", "activ", " active", "\xFF"}) {
            EXPECT_EQ(object->getChildObject(name, false), nullptr) << name;
            EXPECT_EQ(object->getChildObject(name, true), nullptr) << name;
            EXPECT_EQ(object->getChildType(name), Object::e_Unknown) << name;
            EXPECT_EQ(object->setChildObject(name, &other, Object::eKORVABooleanProp, nullptr), 0u);
        }
    EXPECT_TRUE(schedule == KORVASchedule());
}

TEST(Contract, UnknownChildIsIgnoredWhateverTheType) {
    KORVASchedule schedule;
    int number = 1;
    EXPECT_EQ(schedule.setChildObject("no such child", &number, Object::eInt, nullptr), 0u);
    EXPECT_EQ(schedule.setChildObject("no such child", &number, Object::eCharStreamable, nullptr),
              0u);
}

TEST(Contract, ChildIsFoundByAnInternedAndByAForeignName) {
    KORVASchedule schedule;
    KORVABooleanProp prop;
    schedule.setActive(&prop);
    std::vector<const char*> names;
    schedule.getChildObjectNames(names, true);
    const char* interned = nullptr;
    for (const char* const name : names)
        if (std::strcmp(name, "active") == 0) interned = name;
    ASSERT_NE(interned, nullptr);
    const std::string foreign("active");
    EXPECT_EQ(schedule.getChildObject(interned, false), &prop);
    EXPECT_EQ(schedule.getChildObject(foreign.c_str(), false), &prop);
    // The tail of an interned name is a name of its own.
    EXPECT_EQ(schedule.getChildObject(interned + 1, false), nullptr);
    EXPECT_EQ(schedule.getChildType(interned + std::strlen(interned)), Object::e_Unknown);
}

TEST(Contract, NameOfABaseClassPassesToTheBase) {
    KORVAFolder folder;
    KORVABooleanProp hidden;
    EXPECT_EQ(folder.getChildType("hidden"), Object::eKORVABooleanProp);
    EXPECT_EQ(folder.setChildObject("hidden", &hidden, Object::eKORVABooleanProp, nullptr), 0u);
    EXPECT_EQ(folder.getChildObject("hidden", false), &hidden);
    EXPECT_EQ(folder.getHidden(), &hidden);
}

TEST(Contract, IsaKnowsTheWholeHierarchy) {
    const KORVASchedule schedule;
    EXPECT_TRUE(schedule.isa(Object::eKORVASchedule));
    EXPECT_TRUE(schedule.isa(Object::eKORVAUiClass));
    EXPECT_TRUE(schedule.isa(Object::eKORVABaseClass));
    EXPECT_FALSE(schedule.isa(Object::eKORVAFolder));
    EXPECT_FALSE(schedule.isa(Object::e_Unknown));
    EXPECT_FALSE(schedule.isa(Object::eKORVAScheduleArray));
    const KORVABooleanProp prop;
    EXPECT_TRUE(prop.isa(Object::eKORVABooleanProp));
    EXPECT_TRUE(prop.isa(Object::eKORVABaseProp));
    EXPECT_FALSE(prop.isa(Object::eKORVAIntProp));
}

TEST(Contract, IsaOfAnArrayIsItsOwnIdentityOnly) {
    KORVASchedule element;
    KORVAScheduleArray array;
    array.push_back(&element);
    EXPECT_TRUE(array.isa(Object::eKORVAScheduleArray));
    EXPECT_FALSE(array.isa(Object::eKORVASchedule));
    EXPECT_FALSE(array.isa(Object::eKORVABaseClassArray));
    EXPECT_TRUE(array.at(0)->isa(Object::eKORVASchedule));
}

TEST(Contract, ScalarWithoutAValueIsNullUntilItIsAskedForWriting) {
    KORVAIntProp prop;
    EXPECT_EQ(prop.getChildObject("value", false), nullptr);
    void* const value = prop.getChildObject("value", true);
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*static_cast<int*>(value), 0);
    ASSERT_NE(prop.getValue(), nullptr);
    EXPECT_EQ(*prop.getValue(), 0);
    *static_cast<int*>(value) = 7;
    EXPECT_EQ(*prop.getValue(), 7);
    EXPECT_EQ(prop.getChildObject("value", false), value);
}

TEST(Contract, WritingNeverCreatesAnObject) {
    KORVASchedule schedule;
    EXPECT_EQ(schedule.getChildObject("active", true), nullptr);
    KORVAStringProp text;
    EXPECT_EQ(text.getChildObject("value", true), nullptr);
}

TEST(Contract, DeclaredTypeIsNotTheTypeOfTheStoredObject) {
    KORVAReport report;
    KORVAFolder folder;
    EXPECT_EQ(report.getChildType("parent"), Object::eKORVABaseClassArrayProp);
    KORVAIntProp prop;
    EXPECT_EQ(prop.getChildType("value"), Object::eInt);
    EXPECT_EQ(prop.getChildType("schemaInfo"), Object::eKORVASchemaInfo);
}

TEST(Contract, ChildNamesStandBaseFirstInDeclaredOrder) {
    const KORVASchedule schedule;
    std::vector<const char*> names;
    schedule.getChildObjectNames(names, false);
    ASSERT_EQ(names.size(), 63u);
    EXPECT_EQ(schedule.getChildObjectCount(), 63u);
    // 20 of baseClass, 9 of uiClass, 34 of its own.
    const char* const own[] = {"active",  "credential", "dailyPeriod",
                               "endDate", "endType",    "everyNPeriods"};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_STREQ(names[29 + i], own[i]);
    EXPECT_STREQ(names.back(), "yearlyRelativeWeek");
    const KORVAFolder folder;
    std::vector<const char*> base;
    folder.getChildObjectNames(base, false);
    for (std::size_t i = 0; i < 29; ++i)
        EXPECT_EQ(names[i], base[i]) << i;  // the same text, wherever it is asked for
}

TEST(Contract, ChildNamesAreAppendedAndTheVectorIsNotCleared) {
    const KORVAIntProp prop;
    std::vector<const char*> names{"kept"};
    prop.getChildObjectNames(names, true);
    ASSERT_EQ(names.size(), 3u);
    EXPECT_STREQ(names[0], "kept");
    EXPECT_STREQ(names[1], "schemaInfo");
    EXPECT_STREQ(names[2], "value");
}

TEST(Contract, ReserveRaisesTheCapacityToTheCount) {
    const KORVASchedule schedule;
    std::vector<const char*> names;
    schedule.getChildObjectNames(names, true);
    EXPECT_EQ(names.capacity(), 63u);
}

TEST(Contract, ChildNamesOfAnArrayAreNumbersInPointers) {
    KORVAScheduleArray array;
    for (int i = 0; i < 3; ++i)
        array.push_back(nullptr);
    std::vector<const char*> names;
    array.getChildObjectNames(names, false);
    ASSERT_EQ(names.size(), 3u);
    EXPECT_EQ(names.capacity(), 3u);  // arrays reserve whatever the flag says
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(names[i]), i + 1);
}

TEST(Contract, SetChildObjectTakesNoOwnership) {
    const korva::test::Registry registry = korva::test::makeRegistry();
    KORVASchedule schedule;
    {
        KORVABooleanProp prop;
        schedule.setChildObject("active", &prop, Object::eKORVABooleanProp, nullptr);
        EXPECT_EQ(schedule.getActive(), &prop);
        schedule.setActive(nullptr);
    }
    EXPECT_EQ(registry->size(), 0u);
}

TEST(Contract, IndexIsPassedOnUnreadByClasses) {
    KORVASchedule schedule;
    KORVABooleanProp prop;
    std::size_t index = 99;
    EXPECT_EQ(schedule.setChildObject("active", &prop, Object::eKORVABooleanProp, &index), 0u);
    EXPECT_EQ(index, 99u);
    EXPECT_EQ(schedule.getActive(), &prop);
}

TEST(Contract, ComparisonBetweenBaseAndDerivedCompilesAndIsNotSymmetric) {
    // A generated class and one derived from it, as the static types see them.
    class Derived : public KORVASchedule {
    public:
        bool isa(ObjectType type) const override {
            return static_cast<int>(type) == 4711 || KORVASchedule::isa(type);
        }
        bool operator==(const KORVASchemaTypeI& other) const override {
            return other.isa(static_cast<ObjectType>(4711)) && KORVASchedule::operator==(other);
        }
    };
    const KORVASchedule base;
    const Derived derived;
    EXPECT_TRUE(base == derived);
    EXPECT_FALSE(base != derived);
    EXPECT_FALSE(derived == base);
    EXPECT_TRUE(derived != base);
    EXPECT_TRUE(derived == derived);
    const KORVASchemaTypeI& anything = base;
    EXPECT_TRUE(base == anything);
    EXPECT_FALSE(derived == anything);
}

TEST(Contract, ObjectsOfDifferentFamiliesCompareUnequal) {
    const KORVASchedule schedule;
    const KORVAScheduleArray array;
    const KORVASeverityEnum severity;
    const KORVAGuid guid;
    const KORVAIntProp prop;
    EXPECT_FALSE(schedule == array);
    EXPECT_FALSE(array == schedule);
    EXPECT_FALSE(severity == guid);
    EXPECT_FALSE(guid == severity);
    EXPECT_FALSE(prop == schedule);
    EXPECT_TRUE(prop != guid);
}

}  // namespace
