#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVABaseClass.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABooleanArray.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAChildIndex.h>
#include <korva/KORVADateTimeArray.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVAIntegerArray.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAScheduleArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using korva::test::liveAllocations;
using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

/// Whether `action` leaves with the exception of a vector that was asked for too much.
template <class Action>
testing::AssertionResult isOutOfRange(Action action) {
    try {
        action();
    } catch (const std::out_of_range& error) {
        if (std::string(error.what()) == "invalid vector<T> subscript")
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << error.what();
    }
    return testing::AssertionFailure() << "nothing was thrown";
}

const char* index(std::size_t i) {
    return KORVAChildIndex::toName(i);
}

TEST(Array, StartsEmpty) {
    KORVAScheduleArray array;
    EXPECT_TRUE(array.empty());
    EXPECT_EQ(array.size(), 0u);
    EXPECT_EQ(array.getChildObjectCount(), 0u);
    EXPECT_EQ(array.begin(), array.end());
    std::vector<const char*> names;
    array.getChildObjectNames(names, true);
    EXPECT_TRUE(names.empty());
}

TEST(Array, ForwardsToItsVector) {
    KORVASchedule first;
    KORVASchedule second;
    KORVASchedule third;
    KORVAScheduleArray array;
    array.reserve(3);
    array.push_back(&first);
    array.push_back(&second);
    array.push_back(&third);
    EXPECT_FALSE(array.empty());
    EXPECT_EQ(array.size(), 3u);
    EXPECT_EQ(array.at(1), &second);
    const KORVAScheduleArray& view = array;
    EXPECT_EQ(view.at(2), &third);
    EXPECT_EQ(array.front(), &first);
    EXPECT_EQ(view.front(), &first);
    EXPECT_EQ(*(view.begin() + 1), &second);
    EXPECT_EQ(view.end() - view.begin(), 3);
    array.front() = &third;
    EXPECT_EQ(array.at(0), &third);
    const auto behind = array.erase(array.begin() + 1);
    EXPECT_EQ(*behind, &third);
    EXPECT_EQ(array.size(), 2u);
    EXPECT_EQ(array.at(1), &third);
}

TEST(Array, ElementOfAConstantArrayIsConstant) {
    const KORVAScheduleArray objects;
    EXPECT_TRUE((std::is_same_v<decltype(objects.at(0)), const KORVASchedule*>));
    const KORVAStringArray texts;
    EXPECT_TRUE((std::is_same_v<decltype(texts.at(0)), const char*>));
    const KORVAIntArray numbers;
    EXPECT_TRUE((std::is_same_v<decltype(numbers.at(0)), int>));
    const KORVABooleanArray flags;
    EXPECT_TRUE((std::is_same_v<decltype(flags.at(0)), bool>));
}

TEST(Array, FrontTestsTheBound) {
    KORVAScheduleArray objects;
    KORVAStringArray texts;
    KORVAIntArray numbers;
    KORVABooleanArray flags;
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(objects.front()); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(std::as_const(objects).front()); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(texts.front()); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(numbers.front()); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(flags.front()); }));
    numbers.push_back(1);
    numbers.clear();
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(numbers.front()); }));
}

TEST(Array, GivesSlotsByIndexAndAtTheBack) {
    KORVASchedule first;
    KORVASchedule second;
    KORVAScheduleArray objects;
    EXPECT_EQ(objects.emplace_back(&first), &first);
    objects.push_back(&second);
    EXPECT_EQ(objects[1], &second);
    EXPECT_EQ(objects.back(), &second);
    objects[1] = &first;
    EXPECT_EQ(std::as_const(objects)[1], &first);
    objects.back() = &second;
    EXPECT_EQ(std::as_const(objects).back(), &second);
    KORVAIntArray numbers;
    numbers.emplace_back(7)++;
    EXPECT_EQ(numbers[0], 8);
    KORVABooleanArray flags;
    flags.push_back(false);
    flags[0] = true;
    EXPECT_TRUE(flags.at(0));
}

TEST(Array, IndexAndBackTestTheBound) {
    KORVAScheduleArray objects;
    KORVAIntArray numbers;
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(objects[0]); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(objects.back()); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(std::as_const(objects).back()); }));
    numbers.push_back(1);
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(numbers[1]); }));
    EXPECT_TRUE(isOutOfRange([&] { static_cast<void>(std::as_const(numbers)[1]); }));
}

TEST(Array, InsertsElementsAndRanges) {
    KORVAIntArray numbers;
    const auto one = numbers.insert(numbers.end(), 1);
    EXPECT_EQ(*one, 1);
    const int more[] = {2, 3};
    const auto two = numbers.insert(numbers.begin(), std::begin(more), std::end(more));
    EXPECT_EQ(*two, 2);
    EXPECT_EQ(std::vector<int>(numbers.begin(), numbers.end()), (std::vector<int>{2, 3, 1}));
    KORVASchedule first;
    KORVASchedule second;
    KORVAScheduleArray objects;
    objects.push_back(&second);
    objects.insert(objects.begin(), &first);
    EXPECT_EQ(objects[0], &first);
    EXPECT_EQ(objects[1], &second);
}

TEST(Array, MakesObjectsAndTextsThatBelongToARegistry) {
    const Registry registry = makeRegistry();
    KORVABaseClassArray objects;
    KORVAFolder* const folder = objects.emplace_back<KORVAFolder>(*registry);
    EXPECT_EQ(objects.back(), folder);
    KORVAScheduleArray schedules;
    KORVASchedule* const schedule = schedules.emplace_back(*registry);
    EXPECT_EQ(schedules.at(0), schedule);
    KORVAStringArray texts;
    std::string source = "a text";
    const char* const text = texts.emplace_back(source, *registry);
    source.assign(source.size(), '-');
    EXPECT_STREQ(text, "a text");
    EXPECT_EQ(texts.at(0), text);
    EXPECT_EQ(registry->size(), 3u);
}

TEST(Array, AtTestsTheBound) {
    KORVAScheduleArray objects;
    const KORVAScheduleArray constant;
    KORVAStringArray texts;
    KORVAIntArray numbers;
    KORVABooleanArray flags;
    EXPECT_TRUE(isOutOfRange([&] { objects.at(0); }));
    EXPECT_TRUE(isOutOfRange([&] { constant.at(0); }));
    EXPECT_TRUE(isOutOfRange([&] { texts.at(0); }));
    numbers.push_back(1);
    EXPECT_EQ(numbers.at(0), 1);
    EXPECT_TRUE(isOutOfRange([&] { numbers.at(1); }));
    EXPECT_TRUE(isOutOfRange([&] { flags.at(static_cast<std::size_t>(-1)); }));
}

TEST(Array, ClearKeepsElementsAndCapacity) {
    const Registry registry = makeRegistry();
    auto* const element = registry->make<KORVASchedule>();
    KORVAScheduleArray array;
    array.push_back(element);
    const std::size_t live = liveAllocations();
    array.clear();
    EXPECT_EQ(array.size(), 0u);
    EXPECT_EQ(liveAllocations(), live);
    EXPECT_EQ(element->getObjectType(), Object::eKORVASchedule);
    const std::size_t before = korva::test::allocationsSoFar();
    array.push_back(element);
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
}

TEST(Array, ChildIsFetchedByItsOneBasedNumber) {
    KORVASchedule first;
    KORVASchedule second;
    KORVAScheduleArray array;
    array.push_back(&first);
    array.push_back(&second);
    EXPECT_EQ(array.getChildObject(index(1), false), &first);
    EXPECT_EQ(array.getChildObject(index(2), true), &second);
    KORVAStringArray texts;
    const char* const text = "text";
    texts.push_back(text);
    EXPECT_EQ(texts.getChildObject(index(1), false), text);
    KORVAIntArray numbers;
    numbers.push_back(5);
    int* const number = static_cast<int*>(numbers.getChildObject(index(1), false));
    EXPECT_EQ(*number, 5);
    *number = 6;
    EXPECT_EQ(numbers.at(0), 6);
    KORVABooleanArray flags;
    flags.push_back(false);
    flags.push_back(true);
    bool* const flag = static_cast<bool*>(flags.getChildObject(index(2), false));
    EXPECT_TRUE(*flag);
    *flag = false;
    EXPECT_FALSE(flags.at(1));
}

TEST(Array, ChildNumberIsTested) {
    KORVAScheduleArray array;
    EXPECT_TRUE(isOutOfRange([&] { array.getChildObject(index(1), false); }));
    EXPECT_ASSERTION(array.getChildObject(index(0), false), "ZEL_ASSERT(name);");
    array.push_back(nullptr);
    EXPECT_EQ(array.getChildObject(index(1), false), nullptr);
    EXPECT_TRUE(isOutOfRange([&] { array.getChildObject(index(2), false); }));
    EXPECT_TRUE(isOutOfRange([&] { array.getChildObject("a text", false); }));
}

TEST(Array, ChildTypeIsThatOfTheElementsForAnyName) {
    const KORVAScheduleArray objects;
    for (const char* const name : {index(0), index(1), index(99)})
        EXPECT_EQ(objects.getChildType(name), Object::eKORVASchedule);
    EXPECT_EQ(objects.getChildType("text"), Object::eKORVASchedule);
    EXPECT_EQ(KORVAStringArray().getChildType(index(7)), Object::eString);
    EXPECT_EQ(KORVADateTimeArray().getChildType(index(7)), Object::eDateTime);
    EXPECT_EQ(KORVAIntArray().getChildType(index(7)), Object::eInt);
    EXPECT_EQ(KORVAIntegerArray().getChildType(index(7)), Object::eInteger);
    EXPECT_EQ(KORVABooleanArray().getChildType(index(7)), Object::eBoolean);
}

TEST(Array, SetAppendsWithoutAnIndexAndReplacesWithOne) {
    KORVASchedule elements[4];
    KORVAScheduleArray array;
    array.push_back(&elements[0]);
    array.push_back(&elements[1]);
    EXPECT_EQ(array.setChildObject("schedule", &elements[2], Object::eKORVASchedule, nullptr), 3u);
    EXPECT_EQ(array.at(2), &elements[2]);
    std::size_t position = 2;
    EXPECT_EQ(array.setChildObject("schedule", &elements[3], Object::eKORVASchedule, &position),
              2u);
    EXPECT_EQ(position, 2u);
    EXPECT_EQ(array.size(), 3u);
    EXPECT_EQ(array.at(1), &elements[3]);
}

TEST(Array, SetRefusesAPositionThatDoesNotExist) {
    const char* const text = "ZEL_ASSERT(*idx > 0 && m_vector.size() >= *idx);";
    KORVASchedule element;
    KORVAScheduleArray array;
    array.push_back(nullptr);
    array.push_back(nullptr);
    for (std::size_t position : {std::size_t{0}, std::size_t{3}, static_cast<std::size_t>(-1)})
        EXPECT_ASSERTION(
            array.setChildObject("schedule", &element, Object::eKORVASchedule, &position), text);
    EXPECT_EQ(array.size(), 2u);
    EXPECT_EQ(array.at(0), nullptr);
    EXPECT_EQ(array.at(1), nullptr);
    // The type is tested first.
    std::size_t position = 9;
    KORVAGuid guid;
    EXPECT_THROW(array.setChildObject("schedule", &guid, Object::eKORVAGuid, &position),
                 KORVAException);
}

TEST(Array, SetTakesASubclass) {
    KORVAFolder folder;
    KORVAReport report;
    KORVABaseClassArray array;
    EXPECT_EQ(array.setChildObject("item", &folder, Object::eKORVAFolder, nullptr), 1u);
    EXPECT_EQ(array.setChildObject("item", &report, Object::eKORVAReport, nullptr), 2u);
    KORVABaseClass* const element = array.at(0);
    EXPECT_EQ(element, &folder);
    EXPECT_EQ(element->getObjectType(), Object::eKORVAFolder);
}

TEST(Array, SetRefusesOtherObjectsAndTypes) {
    KORVAScheduleArray array;
    KORVAFolder folder;
    int number = 1;
    EXPECT_TYPE_ERROR(array.setChildObject("schedule", &folder, Object::eKORVAFolder, nullptr),
                      "scheduleArray", "<index>", "bus:schedule", "bus:folder");
    EXPECT_TYPE_ERROR(array.setChildObject("schedule", &number, Object::eInt, nullptr),
                      "scheduleArray", "<index>", "bus:schedule", "xs:int");
    EXPECT_EQ(array.size(), 0u);
}

TEST(Array, TextIsTakenFromABuffer) {
    KORVAStringArray array;
    TextBuffer text("text");
    EXPECT_EQ(array.setChildObject("item", &text, Object::eString, nullptr), 1u);
    EXPECT_EQ(array.setChildObject("item", &text, Object::eDateTime, nullptr), 2u);
    EXPECT_EQ(array.at(0), text.str());
    EXPECT_EQ(array.at(1), text.str());
    int number = 1;
    EXPECT_TYPE_ERROR(array.setChildObject("item", &number, Object::eInt, nullptr), "stringArray",
                      "<index>", "xs:string", "xs:int");
    KORVADateTimeArray dates;
    EXPECT_TYPE_ERROR(dates.setChildObject("item", &number, Object::eInt, nullptr), "dateTimeArray",
                      "<index>", "xs:dateTime", "xs:int");
}

TEST(Array, TextArrayTakesNoCharStreamable) {
    KORVAStringArray array;
    KORVA_CharStreamable streamable;
    // The type has no text to tell in a type error.
    EXPECT_ASSERTION(
        array.setChildObject("item", &streamable, Object::eCharStreamable, nullptr),
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");");
    EXPECT_EQ(array.size(), 0u);
}

TEST(Array, ValuesAreReadThroughThePointerAndConverted) {
    KORVAIntArray numbers;
    int number = 5;
    float fraction = 6.9F;
    bool flag = true;
    EXPECT_EQ(numbers.setChildObject("item", &number, Object::eInt, nullptr), 1u);
    EXPECT_EQ(numbers.setChildObject("item", &fraction, Object::eFloat, nullptr), 2u);
    EXPECT_EQ(numbers.setChildObject("item", &flag, Object::eBoolean, nullptr), 3u);
    EXPECT_EQ(numbers.at(0), 5);
    EXPECT_EQ(numbers.at(1), 6);
    EXPECT_EQ(numbers.at(2), 1);
    std::size_t position = 1;
    number = 7;
    EXPECT_EQ(numbers.setChildObject("item", &number, Object::eInteger, &position), 1u);
    EXPECT_EQ(numbers.at(0), 7);
    KORVABooleanArray flags;
    EXPECT_EQ(flags.setChildObject("item", &flag, Object::eBoolean, nullptr), 1u);
    EXPECT_EQ(flags.setChildObject("item", &number, Object::eInt, nullptr), 2u);
    EXPECT_TRUE(flags.at(0));
    EXPECT_TRUE(flags.at(1));
}

TEST(Array, ValueArraysRefuseOtherTypes) {
    KORVAIntegerArray numbers;
    KORVABooleanArray flags;
    KORVAGuid guid;
    TextBuffer text("1");
    EXPECT_TYPE_ERROR(numbers.setChildObject("item", &guid, Object::eKORVAGuid, nullptr),
                      "integerArray", "<index>", "xs:integer", "bus:guid");
    EXPECT_TYPE_ERROR(numbers.setChildObject("item", &text, Object::eString, nullptr),
                      "integerArray", "<index>", "xs:integer", "xs:string");
    EXPECT_TYPE_ERROR(flags.setChildObject("item", &guid, Object::eKORVAGuid, nullptr),
                      "booleanArray", "<index>", "xs:boolean", "bus:guid");
    EXPECT_EQ(numbers.size(), 0u);
    EXPECT_EQ(flags.size(), 0u);
}

TEST(Array, ComparesElementByElementInOrder) {
    KORVABooleanProp active;
    KORVASchedule plain;
    KORVASchedule other;
    other.setActive(&active);
    KORVAScheduleArray left;
    KORVAScheduleArray right;
    EXPECT_TRUE(left == right);
    left.push_back(&plain);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    left.push_back(&other);
    right.push_back(&other);
    right.push_back(&plain);
    EXPECT_FALSE(left == right);  // the same elements in another order
    KORVAScheduleArray same;
    KORVASchedule alike;
    same.push_back(&alike);
    same.push_back(&other);
    EXPECT_TRUE(left == same);
    EXPECT_FALSE(left != same);
}

TEST(Array, NullEqualsNullOnly) {
    KORVASchedule element;
    KORVAScheduleArray left;
    KORVAScheduleArray right;
    left.push_back(nullptr);
    right.push_back(nullptr);
    EXPECT_TRUE(left == right);
    right.front() = &element;
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    KORVAStringArray texts;
    KORVAStringArray others;
    texts.push_back(nullptr);
    others.push_back("");
    EXPECT_FALSE(texts == others);
    EXPECT_FALSE(others == texts);
}

TEST(Array, TextsCompareByContentAndValuesByValue) {
    const std::string first("text");
    const std::string second("text");
    KORVAStringArray left;
    KORVAStringArray right;
    left.push_back(first.c_str());
    right.push_back(second.c_str());
    EXPECT_TRUE(left == right);
    right.front() = "Text";
    EXPECT_FALSE(left == right);
    KORVAIntArray numbers;
    KORVAIntArray others;
    numbers.push_back(1);
    others.push_back(1);
    EXPECT_TRUE(numbers == others);
    others.front() = 2;
    EXPECT_FALSE(numbers == others);
    KORVABooleanArray flags;
    KORVABooleanArray otherFlags;
    flags.push_back(true);
    otherFlags.push_back(true);
    EXPECT_TRUE(flags == otherFlags);
    otherFlags.front() = false;
    EXPECT_TRUE(flags != otherFlags);
    KORVAIntegerArray integers;
    integers.push_back(1);
    EXPECT_FALSE(numbers == integers);
}

TEST(Array, CopyReplacesWhatStoodThere) {
    const Registry registry = makeRegistry();
    KORVASchedule element;
    KORVASchedule former;
    KORVAScheduleArray source;
    source.push_back(&element);
    source.push_back(nullptr);
    KORVAScheduleArray target;
    for (int i = 0; i < 3; ++i)
        target.push_back(&former);
    target.copy(source, *registry);
    ASSERT_EQ(target.size(), 2u);
    EXPECT_NE(target.at(0), &element);
    EXPECT_NE(target.at(0), &former);
    EXPECT_EQ(target.at(1), nullptr);
    EXPECT_TRUE(target == source);
    EXPECT_EQ(registry->size(), 1u);
}

TEST(Array, CopiedTextsSurviveTheirSourceAndAreFreedWithTheCLibrary) {
    const Registry registry = makeRegistry();
    KORVAStringArray target;
    // Copied texts of arrays come from malloc.
    const std::size_t texts = korva::test::countsMalloc() ? 2 : 0;
    {
        const Registry sourceRegistry = makeRegistry();
        KORVAStringArray source;
        source.push_back(sourceRegistry->keep("text"));
        source.push_back(nullptr);
        source.push_back("");
        const std::size_t live = liveAllocations();
        target.copy(source, *registry);
        EXPECT_EQ(liveAllocations(), live + 1 + texts);  // the slots and the texts
    }
    ASSERT_EQ(target.size(), 3u);
    EXPECT_STREQ(target.at(0), "text");
    EXPECT_EQ(target.at(1), nullptr);
    EXPECT_STREQ(target.at(2), "");
    EXPECT_EQ(registry->size(), 2u);
    const std::size_t live = liveAllocations();
    registry->clean();
    EXPECT_EQ(liveAllocations(), live - texts);
}

TEST(Array, CopiedValuesNeedNoRegistry) {
    const Registry registry = makeRegistry();
    KORVAIntArray numbers;
    numbers.push_back(1);
    numbers.push_back(-2);
    const KORVAIntArray copy(numbers, *registry);
    ASSERT_EQ(copy.size(), 2u);
    EXPECT_EQ(copy.at(0), 1);
    EXPECT_EQ(copy.at(1), -2);
    KORVABooleanArray flags;
    flags.push_back(true);
    flags.push_back(false);
    const KORVABooleanArray copiedFlags(flags, *registry);
    EXPECT_TRUE(copiedFlags == flags);
    EXPECT_EQ(registry->size(), 0u);
}

TEST(Array, CopyKeepsTheClassOfEachElement) {
    const Registry registry = makeRegistry();
    KORVAFolder folder;
    KORVAReport report;
    KORVABaseClassArray array;
    array.push_back(&folder);
    array.push_back(&report);
    const KORVABaseClassArray copy(array, *registry);
    ASSERT_EQ(copy.size(), 2u);
    EXPECT_EQ(copy.at(0)->getObjectType(), Object::eKORVAFolder);
    EXPECT_EQ(copy.at(1)->getObjectType(), Object::eKORVAReport);
}

TEST(Array, CopyRefusesAnElementOfAnotherType) {
    // An element that the array's type does not promise, put there behind its back.
    const Registry registry = makeRegistry();
    KORVAFolder folder;
    KORVAScheduleArray array;
    array.push_back(reinterpret_cast<KORVASchedule*>(&folder));
    KORVAScheduleArray target;
    KORVASchedule former;
    target.push_back(&former);
    EXPECT_ASSERTION(target.copy(array, *registry), "ZEL_ASSERT(pCastedCopy);");
    EXPECT_EQ(target.size(), 0u);
}

}  // namespace
