// Each operation that allocates, with each of its allocations failing in turn.

#include "tests/support/AllocationFailure.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanArray.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADeploymentObjectInformation.h>
#include <korva/KORVAException.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAScheduleArray.h>
#include <korva/KORVASchemaInfo.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace {

using korva::test::AllocationFailure;
using korva::test::forEachFailingAllocation;
using korva::test::liveAllocations;
using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

/// A schedule with a child of each kind, in levels, that lives as long as this.
struct Sample {
    Sample() {
        active.setValue(true);
        schedule.setActive(&active);
        name.setValue("a text");
        name.setSchemaInfo(&info);
        schedule.setTriggerName(&name);
        guid.setValue("an identifier");
        guidProp.setValue(&guid);
        schedule.setStoreID(&guidProp);
        streamable.initialize("streamed", false);
        streamed.setValue(streamable.asCharStar());
        schedule.setTimeZoneID(&streamed);
        folder.setHidden(&hidden);
        parents.getValue().push_back(&folder);
        parents.getValue().push_back(nullptr);
        schedule.setParent(&parents);
        data.append("bytes", 5);
        warden.setSecurityBlob(&data);
        warden.setAction("action");
        warden.getRoles().push_back("role");
        warden.setWardenPassport(&passport);
        array.push_back(&schedule);
        array.push_back(&schedule);
    }

    KORVABooleanProp active;
    KORVABooleanProp hidden;
    KORVASchemaInfo info;
    KORVAStringProp name;
    KORVA_CharStreamable streamable;
    KORVAStringProp streamed;
    KORVAGuid guid;
    KORVAGuidProp guidProp;
    KORVAFolder folder;
    KORVABaseClassArrayProp parents;
    KORVAXSBase64Binary data;
    KORVAWardenPassport passport;
    KORVAWarden warden;
    KORVASchedule schedule;
    KORVAScheduleArray array;
};

TEST(ObjectAllocation, ConstructorsRaiseOutOfMemoryError) {
    EXPECT_EQ(forEachFailingAllocation([] { KORVASchedule object; }), 1u);
    EXPECT_EQ(forEachFailingAllocation([] { KORVAStringProp object; }), 1u);
    EXPECT_EQ(forEachFailingAllocation([] { KORVADeploymentObjectInformation object; }), 1u);
    EXPECT_EQ(forEachFailingAllocation([] { KORVAScheduleArray object; }), 0u);
    EXPECT_EQ(forEachFailingAllocation([] { KORVASeverityEnum object; }), 0u);
    EXPECT_EQ(forEachFailingAllocation([] { KORVAGuid object; }), 0u);
}

TEST(ObjectAllocation, NameObjectsAreMadeByALaterCall) {
    const KORVADeploymentObjectInformation object;
    for (std::size_t n = 1; n <= 2; ++n) {  // the text object, and its characters
        const AllocationFailure failure(n);
        EXPECT_THROW(object.getGeneratedObjectName(), ZELOutOfMemoryError) << n;
    }
    EXPECT_EQ(object.getGeneratedObjectName(), "KORVADeploymentObjectInformation");
}

TEST(ObjectAllocation, CreatingGettersLeaveTheChildUnset) {
    const std::size_t count = forEachFailingAllocation([] {
        const Registry registry = makeRegistry();
        KORVASchedule schedule;
        try {
            schedule.getActive(registry.get());
        } catch (...) {
            EXPECT_EQ(schedule.getActive(), nullptr);
            EXPECT_EQ(registry->size(), 0u);
            throw;
        }
        EXPECT_EQ(registry->size(), 1u);
    });
    EXPECT_EQ(count, 5u);  // the registry with its list, the schedule's record, the child's two
}

TEST(ObjectAllocation, GetterWhoseRegistryCannotGrowLeavesNothing) {
    const Registry registry = makeRegistry();
    for (int i = 0; i < 100; ++i)
        registry->registerPointer(static_cast<Object*>(nullptr));
    KORVASchedule schedule;
    const std::size_t live = liveAllocations();
    {
        const AllocationFailure third(3);  // behind the object and its record: the list
        EXPECT_THROW(schedule.getActive(registry.get()), ZELOutOfMemoryError);
        EXPECT_TRUE(third.happened());
    }
    EXPECT_EQ(liveAllocations(), live);
    EXPECT_EQ(schedule.getActive(), nullptr);
    EXPECT_EQ(registry->size(), 100u);
}

TEST(ObjectAllocation, PropertyGettersRaiseOutOfMemoryError) {
    forEachFailingAllocation([] {
        const Registry registry = makeRegistry();
        KORVAGuidProp prop;
        prop.getValue(registry.get());
        prop.getSchemaInfo(registry.get());
    });
}

TEST(ObjectAllocation, CopyConstructorsRaiseOutOfMemoryError) {
    const Sample sample;
    EXPECT_GT(forEachFailingAllocation([&] {
                  const Registry registry = makeRegistry();
                  const KORVASchedule copy(sample.schedule, *registry);
              }),
              20u);
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVAWarden copy(sample.warden, *registry);
    });
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVAGuid copy(sample.guid, *registry);
    });
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVABaseClassArrayProp copy(sample.parents, *registry);
    });
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVAScheduleArray copy(sample.array, *registry);
    });
}

TEST(ObjectAllocation, CreateCopyRaisesOutOfMemoryError) {
    const Sample sample;
    const auto& factory = KORVASchemaTypesFactory::getInstance();
    for (const Object* const object :
         {static_cast<const Object*>(&sample.schedule), static_cast<const Object*>(&sample.warden),
          static_cast<const Object*>(&sample.guid), static_cast<const Object*>(&sample.array),
          static_cast<const Object*>(&sample.name)})
        EXPECT_GT(forEachFailingAllocation([&] {
                      const Registry registry = makeRegistry();
                      factory.createCopy(*object, *registry);
                  }),
                  3u);
}

TEST(ObjectAllocation, CopyThatOutgrowsItsRegistryRaisesOutOfMemoryError) {
    KORVASchedule element;
    KORVAScheduleArray array;
    for (int i = 0; i < 120; ++i)
        array.push_back(&element);
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVAScheduleArray copy(array, *registry);
        EXPECT_EQ(registry->size(), 120u);
    });
}

TEST(ObjectAllocation, FailedArrayCopyLeavesTheArrayEmpty) {
    const Sample sample;
    const Registry registry = makeRegistry();
    KORVASchedule former;
    std::size_t failures = 0;
    korva::test::failEachAllocation([&] {
        KORVAScheduleArray target;
        bool filled = false;
        try {
            target.push_back(&former);
            filled = true;
            target.copy(sample.array, *registry);
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(target.size(), 0u);
            ++failures;
        } catch (const std::bad_alloc&) {
            EXPECT_FALSE(filled);
        }
    });
    EXPECT_GT(failures, 10u);
}

TEST(ObjectAllocation, TextArrayCopyRaisesOutOfMemoryError) {
    KORVAStringArray source;
    for (int i = 0; i < 120; ++i)
        source.push_back("text");
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVAStringArray copy(source, *registry);
    });
    KORVAIntArray numbers;
    numbers.push_back(1);
    forEachFailingAllocation([&] {
        const Registry registry = makeRegistry();
        const KORVAIntArray copy(numbers, *registry);
    });
}

TEST(ObjectAllocation, ComparisonRaisesOutOfMemoryError) {
    const Sample left;
    const Sample right;
    // The streamed texts share nothing but their content.
    KORVA_CharStreamable same(left.streamable.asCharStar());
    KORVAStringProp streamed;
    streamed.setValue(same.asCharStar());
    const_cast<KORVASchedule&>(right.schedule).setTimeZoneID(&streamed);
    EXPECT_GT(forEachFailingAllocation([&] { EXPECT_TRUE(left.schedule == right.schedule); }), 0u);
    forEachFailingAllocation([&] { EXPECT_TRUE(left.array == right.array); });
    forEachFailingAllocation([&] { EXPECT_TRUE(left.warden == right.warden); });
}

TEST(ObjectAllocation, SetOnAnArrayRaisesOutOfMemoryErrorAndKeepsTheArray) {
    KORVASchedule element;
    EXPECT_EQ(forEachFailingAllocation([&] {
                  KORVAScheduleArray array;
                  try {
                      array.setChildObject("item", &element, Object::eKORVASchedule, nullptr);
                      array.setChildObject("item", &element, Object::eKORVASchedule, nullptr);
                  } catch (...) {
                      for (const KORVASchedule* const kept : array)
                          EXPECT_EQ(kept, &element);
                      throw;
                  }
                  EXPECT_EQ(array.size(), 2u);
              }),
              2u);
    TextBuffer text("text");
    forEachFailingAllocation([&] {
        KORVAStringArray array;
        array.setChildObject("item", &text, Object::eString, nullptr);
    });
    int number = 1;
    forEachFailingAllocation([&] {
        KORVAIntArray array;
        array.setChildObject("item", &number, Object::eInt, nullptr);
    });
    forEachFailingAllocation([&] {
        KORVABooleanArray array;
        array.setChildObject("item", &number, Object::eInt, nullptr);
    });
}

TEST(ObjectAllocation, ChildNamesRaiseOutOfMemoryError) {
    const Sample sample;
    for (const Object* const object :
         {static_cast<const Object*>(&sample.schedule), static_cast<const Object*>(&sample.array),
          static_cast<const Object*>(&sample.guid)})
        for (const bool reserve : {true, false})
            EXPECT_GE(forEachFailingAllocation([&] {
                          std::vector<const char*> names;
                          object->getChildObjectNames(names, reserve);
                      }),
                      1u);
    const KORVASeverityEnum severity;
    forEachFailingAllocation([&] {
        std::vector<const char*> names;
        severity.getChildObjectNames(names, false);
    });
}

TEST(ObjectAllocation, ErrorsThatCannotBeMadeBecomeOutOfMemoryError) {
    KORVASeverityEnum severity;
    KORVADeploymentObjectInformation information;
    KORVASchedule schedule;
    KORVAStringProp text;
    const auto expectOutOfMemory = [](auto action) {
        std::size_t failures = 0;
        korva::test::failEachAllocation([&] {
            try {
                action();
                ADD_FAILURE() << "nothing was thrown";
            } catch (const KORVAException&) {
            } catch (const ZELAssertError&) {
            } catch (const ZELOutOfMemoryError&) {
                ++failures;
            }
        });
        EXPECT_GT(failures, 0u);
    };
    expectOutOfMemory([&] { severity.setValue("a word that no enumeration has, and a long one"); });
    expectOutOfMemory([&] { severity.getChildObject("", false); });
    expectOutOfMemory([&] {
        information.setChildObject("ancestors", &text, Object::eKORVAAncestorInfoArray, nullptr);
    });
    expectOutOfMemory(
        [&] { schedule.setChildObject("active", &text, Object::eKORVAStringProp, nullptr); });
    const Registry registry = makeRegistry();
    schedule.setActive(reinterpret_cast<KORVABooleanProp*>(&text));
    expectOutOfMemory([&] { KORVASchedule(schedule, *registry); });
}

}  // namespace
