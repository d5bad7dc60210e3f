// Deep copies: what is copied, what is shared, and who owns it.

#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TestStreams.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVAPolicy.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVASchemaInfo.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_String.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using korva::test::liveAllocations;
using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using korva::test::TextStreamable;
using Object = KORVASchemaTypeI;

template <class X>
X& copyOf(const X& source, const Registry& registry) {
    return static_cast<X&>(KORVASchemaTypesFactory::getInstance().createCopy(source, *registry));
}

TEST(Copy, SurvivesCleanOfTheSourcesRegistry) {
    const Registry first = makeRegistry();
    const Registry second = makeRegistry();
    auto* const schedule = first->make<KORVASchedule>();
    schedule->getActive(first.get())->setValue(true);
    auto* const buffer = first->make<KORVA_String>();
    buffer->appendChars("from a buffer", 13);
    schedule->getTriggerName(first.get())
        ->setChildObject("value", buffer->buffer(), Object::eString, nullptr);
    schedule->getTriggerName()->getSchemaInfo(first.get());
    KORVASchedule& copy = copyOf(*schedule, second);
    EXPECT_TRUE(copy == *schedule);
    EXPECT_TRUE(*schedule == copy);
    first->clean();
    EXPECT_TRUE(*copy.getActive()->getValue());
    EXPECT_STREQ(copy.getTriggerName()->getValue(), "from a buffer");
    EXPECT_NE(copy.getTriggerName()->getSchemaInfo(), nullptr);
    EXPECT_EQ(copy.getCredential(), nullptr);
}

TEST(Copy, RegistersEachPartOnce) {
    const Registry registry = makeRegistry();
    KORVASchedule schedule;
    KORVABooleanProp active;
    KORVAStringProp name;
    name.setValue("text");
    schedule.setActive(&active);
    schedule.setTriggerName(&name);
    const KORVASchedule copy(schedule, *registry);
    // Two properties and a text; the object itself is the caller's.
    EXPECT_EQ(registry->size(), 3u);
    copyOf(schedule, registry);
    EXPECT_EQ(registry->size(), 7u);
}

TEST(Copy, OfAnEmptyObjectRegistersNothing) {
    const Registry registry = makeRegistry();
    const KORVASchedule source;
    const KORVASchedule copy(source, *registry);
    EXPECT_EQ(registry->size(), 0u);
    EXPECT_TRUE(copy == source);
}

TEST(Copy, IsIndependentOfItsSource) {
    const Registry registry = makeRegistry();
    KORVASchedule source;
    KORVABooleanProp active;
    active.setValue(true);
    source.setActive(&active);
    KORVASchedule copy(source, *registry);
    EXPECT_NE(copy.getActive(), &active);
    active.setValue(false);
    EXPECT_TRUE(*copy.getActive()->getValue());
    copy.setActive(nullptr);
    EXPECT_EQ(source.getActive(), &active);
}

TEST(Copy, TakesValuesWithTheirFlags) {
    const Registry registry = makeRegistry();
    KORVAConversationContext source;
    source.setAffinityStrength(3);
    source.setProcessID(99);
    source.resetProcessID();
    source.setStatus("status");
    KORVAConversationContext copy(source, *registry);
    EXPECT_EQ(*copy.getAffinityStrength(), 3);
    EXPECT_EQ(copy.getProcessID(), nullptr);
    EXPECT_EQ(*static_cast<int*>(copy.getChildObject("processID", true)), 99);
    EXPECT_STREQ(copy.getStatus(), "status");
    EXPECT_NE(copy.getStatus(), source.getStatus());
    EXPECT_EQ(copy.getId(), nullptr);
}

TEST(Copy, SharedChildBecomesTwoChildren) {
    const Registry registry = makeRegistry();
    KORVABooleanProp shared;
    KORVASchedule source;
    source.setActive(&shared);
    source.setWeeklyFriday(&shared);
    const KORVASchedule copy(source, *registry);
    EXPECT_NE(copy.getActive(), copy.getWeeklyFriday());
    EXPECT_EQ(registry->size(), 2u);
}

TEST(Copy, KeepsTheClassOfAnAbstractChild) {
    const Registry registry = makeRegistry();
    KORVAPolicy source;
    KORVAFolder folder;
    source.setSecurityObject(&folder);
    const KORVAPolicy copy(source, *registry);
    ASSERT_NE(copy.getSecurityObject(), nullptr);
    EXPECT_EQ(copy.getSecurityObject()->getObjectType(), Object::eKORVAFolder);
}

TEST(Copy, ReachesThroughArraysInPropertiesInObjects) {
    const Registry registry = makeRegistry();
    KORVAFolder grandparent;
    KORVAStringProp name;
    name.setValue("grandparent");
    grandparent.setSearchPath(&name);
    KORVABaseClassArrayProp parents;
    parents.getValue().push_back(&grandparent);
    KORVAFolder folder;
    folder.setParent(&parents);
    KORVAFolder& copy = copyOf(folder, registry);
    ASSERT_EQ(copy.getParent()->getValue().size(), 1u);
    const auto* const parent = static_cast<const KORVAFolder*>(copy.getParent()->getValue().at(0));
    EXPECT_NE(parent, &grandparent);
    EXPECT_STREQ(parent->getSearchPath()->getValue(), "grandparent");
}

TEST(Copy, OfACharStreamableIsACharStreamableWithTheSamePieces) {
    const Registry registry = makeRegistry();
    const TextStreamable stream("streamed");
    KORVA_CharStreamable streamable;
    streamable.initialize(stream, true);
    streamable.setIsContentId(true);
    KORVAStringProp source;
    source.setValue(streamable.asCharStar());
    const KORVAStringProp copy(source, *registry);
    EXPECT_EQ(registry->size(), 1u);
    ASSERT_TRUE(KORVA_CharStreamable::isCharStreamable(copy.getValue()));
    EXPECT_NE(copy.getValue(), source.getValue());
    const auto& value = *reinterpret_cast<const KORVA_CharStreamable*>(copy.getValue());
    EXPECT_EQ(value.getStreamable(), &stream);
    EXPECT_TRUE(value.getIsContentId());
    EXPECT_TRUE(copy == source);
    KORVAGuid guid;
    guid.setValue(streamable.asCharStar());
    const KORVAGuid guidCopy(guid, *registry);
    EXPECT_TRUE(guidCopy == guid);
    KORVAStringArray array;
    array.push_back(streamable.asCharStar());
    const KORVAStringArray arrayCopy(array, *registry);
    EXPECT_TRUE(arrayCopy == array);
    EXPECT_NE(arrayCopy.at(0), array.at(0));
}

TEST(Copy, OfABinaryHasBytesOfItsOwnAndKeepsTheContentIdFlag) {
    const Registry registry = makeRegistry();
    char bytes[] = {'a', '\0', 'b'};
    KORVAXSBase64Binary data;
    data.reference(bytes, 3);
    data.setIsContentId(true);
    KORVABase64BinaryProp source;
    source.setValue(&data);
    const KORVABase64BinaryProp copy(source, *registry);
    EXPECT_EQ(registry->size(), 1u);
    ASSERT_NE(copy.getValue(), nullptr);
    EXPECT_TRUE(*copy.getValue() == data);
    EXPECT_TRUE(copy.getValue()->getIsContentId());
    EXPECT_NE(copy.getValue()->str(), data.str());
    bytes[0] = 'x';
    EXPECT_EQ(copy.getValue()->str()[0], 'a');
    KORVAXSBase64Binary empty;
    source.setValue(&empty);
    const KORVABase64BinaryProp emptyCopy(source, *registry);
    EXPECT_EQ(emptyCopy.getValue()->pcount(), 0u);
    EXPECT_FALSE(emptyCopy.getValue()->getIsContentId());
}

TEST(Copy, OfAStreamedBinarySharesTheStream) {
    const Registry registry = makeRegistry();
    const TextStreamable stream("streamed");
    KORVAXSBase64Binary data;
    data.reference(stream);
    data.setIsContentId(true);
    KORVAAsynchDetailMIMEAttachment source;
    source.setData(&data);
    const KORVAAsynchDetailMIMEAttachment copy(source, *registry);
    ASSERT_NE(copy.getData(), nullptr);
    EXPECT_EQ(copy.getData()->streamable(), &stream);
    EXPECT_EQ(copy.getData()->pcount(), static_cast<std::size_t>(-1));
    EXPECT_TRUE(copy.getData()->getIsContentId());
}

TEST(Copy, OfACompressedBinaryStaysCompressed) {
    const Registry registry = makeRegistry();
    const TextStreamable stream("gzip data, as far as the copy knows");
    KORVAXSBase64Compressed data;
    data.reference(stream, true);
    KORVABase64BinaryProp source;
    source.setValue(&data);
    const KORVABase64BinaryProp copy(source, *registry);
    const auto* const value = dynamic_cast<const KORVAXSBase64Compressed*>(copy.getValue());
    ASSERT_NE(value, nullptr);
    EXPECT_TRUE(value->isCompressed());
    EXPECT_EQ(value->streamable(), &stream);
}

TEST(Copy, ChildOfAnotherTypeIsAnAssertion) {
    const Registry registry = makeRegistry();
    KORVAStringProp wrong;
    KORVASchedule source;
    source.setActive(reinterpret_cast<KORVABooleanProp*>(&wrong));
    EXPECT_ASSERTION(KORVASchedule(source, *registry),
                     "ZEL_ASSERT(copy.isa(KORVASchemaTypeI::eKORVABooleanProp));");
    KORVAGuid guid;
    KORVAPolicy policy;
    policy.setSecurityObject(reinterpret_cast<KORVABaseClass*>(&guid));
    EXPECT_ASSERTION(KORVAPolicy(policy, *registry),
                     "ZEL_ASSERT(copy.isa(KORVASchemaTypeI::eKORVABaseClass));");
    KORVASchemaInfo info;
    KORVABaseClassArrayProp parents;
    parents.setSchemaInfo(reinterpret_cast<KORVASchemaInfo*>(&guid));
    EXPECT_ASSERTION(KORVABaseClassArrayProp(parents, *registry),
                     "ZEL_ASSERT(copy.isa(KORVASchemaTypeI::eKORVASchemaInfo));");
}

TEST(Copy, WhatAFailedCopyMadeIsFreedWithTheRegistry) {
    const std::size_t live = liveAllocations();
    {
        const Registry registry = makeRegistry();
        KORVABooleanProp active;
        KORVAStringProp wrong;
        KORVASchedule source;
        source.setActive(&active);
        source.setWeeklyFriday(reinterpret_cast<KORVABooleanProp*>(&wrong));
        EXPECT_THROW(KORVASchedule(source, *registry), ZELAssertError);
    }
    EXPECT_EQ(liveAllocations(), live);
}

TEST(Copy, OfAClassThatAUserDerivedIsOfTheGeneratedClass) {
    class Derived : public KORVASchedule {};
    const Registry registry = makeRegistry();
    Derived source;
    KORVABooleanProp active;
    source.setActive(&active);
    const KORVASchemaTypeI& copy =
        KORVASchemaTypesFactory::getInstance().createCopy(source, *registry);
    EXPECT_EQ(typeid(copy), typeid(KORVASchedule));
    EXPECT_TRUE(source == copy);
    KORVABaseClassArray array;
    array.push_back(&source);
    const KORVABaseClassArray arrayCopy(array, *registry);
    const KORVASchemaTypeI& element = *arrayCopy.at(0);
    EXPECT_EQ(typeid(element), typeid(KORVASchedule));
    EXPECT_NE(static_cast<const KORVASchedule&>(element).getActive(), nullptr);
    EXPECT_NE(static_cast<const KORVASchedule&>(element).getActive(), &active);
}

}  // namespace
