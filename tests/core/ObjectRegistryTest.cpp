#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/TestStreams.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentContainerI.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_RefCount_ConstChar.h>
#include <korva/KORVA_String.h>
#include <zel/I18NString.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using korva::test::AllocationFailure;
using korva::test::liveAllocations;
using Registry = ZELSmartPointer<KORVAObjectRegistry>;

/// Adds its number to a list when it ends.
template <class Base>
class Recorder : public Base {
public:
    Recorder(std::vector<int>& log, int number) : m_log(&log), m_number(number) {}
    ~Recorder() override { m_log->push_back(m_number); }

private:
    std::vector<int>* m_log;
    int m_number;
};

class Attachment : public KORVA_AttachmentContainerI {
public:
    void append(const char*, std::size_t) override {}
    const char* getData() override { return nullptr; }
    KORVA_Streamable* getStreamable() override { return nullptr; }
};

/// A text whose last holder can't let go.
class StubbornText : public KORVA_RefCount_ConstChar {
public:
    StubbornText() : KORVA_RefCount_ConstChar(static_cast<char*>(nullptr)) {}
    void removeReference() override { throw 7; }
};

/// Registers something else while it is being freed.
class LateRegistrar : public KORVAUnknownSchemaType {
public:
    LateRegistrar(KORVAObjectRegistry& registry, KORVASchemaTypeI& late)
        : m_registry(&registry), m_late(&late) {}
    ~LateRegistrar() override { m_registry->registerPointer(m_late); }

private:
    KORVAObjectRegistry* m_registry;
    KORVASchemaTypeI* m_late;
};

void registerNull(KORVAObjectRegistry& registry) {
    registry.registerPointer(static_cast<KORVASchemaTypeI*>(nullptr));
}

TEST(ObjectRegistry, StartsEmptyWithRoomForAHundredEntriesAndNoReference) {
    KORVAObjectRegistry* const registry = KORVAObjectRegistry::create();
    EXPECT_EQ(registry->getReferenceCount(), 0u);
    EXPECT_EQ(registry->size(), 0u);
    EXPECT_EQ(registry->capacity(), 100u);
    delete registry;
}

TEST(ObjectRegistry, FirstHundredEntriesAllocateNothing) {
    const Registry registry(KORVAObjectRegistry::create());
    const std::size_t before = korva::test::allocationsSoFar();
    for (int i = 0; i < 100; ++i)
        registerNull(*registry);
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
}

TEST(ObjectRegistry, GrowsByHalfWithEntry101) {
    const Registry registry(KORVAObjectRegistry::create());
    for (int i = 0; i < 100; ++i)
        registerNull(*registry);
    EXPECT_EQ(registry->capacity(), 100u);
    registerNull(*registry);
    EXPECT_EQ(registry->size(), 101u);
    EXPECT_EQ(registry->capacity(), 150u);
    for (int i = 0; i < 50; ++i)
        registerNull(*registry);
    EXPECT_EQ(registry->size(), 151u);
    EXPECT_EQ(registry->capacity(), 225u);
}

TEST(ObjectRegistry, CleanOfAnEmptyRegistryDoesNothing) {
    const Registry registry(KORVAObjectRegistry::create());
    registry->clean();
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
    EXPECT_EQ(registry->capacity(), 100u);
}

TEST(ObjectRegistry, CleanLeavesItEmptyUsableAndWithItsCapacity) {
    std::vector<int> log;
    const Registry registry(KORVAObjectRegistry::create());
    for (int i = 0; i < 120; ++i)
        registerNull(*registry);
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
    EXPECT_EQ(registry->capacity(), 150u);
    registry->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 1));
    registry->clean();
    EXPECT_EQ(log, std::vector{1});
    registry->clean();
    EXPECT_EQ(log, std::vector{1});
}

TEST(ObjectRegistry, FreesInRegistrationOrder) {
    std::vector<int> log;
    const Registry registry(KORVAObjectRegistry::create());
    registry->registerPointer(
        static_cast<KORVASchemaTypeI*>(new Recorder<KORVAUnknownSchemaType>(log, 1)));
    registry->registerPointer(
        static_cast<KORVAXSBase64Binary*>(new Recorder<KORVAXSBase64Binary>(log, 2)));
    registry->registerPointer(
        static_cast<BRIMOutputStream*>(new Recorder<korva::test::CollectingStream>(log, 3)));
    registry->registerPointer(static_cast<KORVA_String*>(new Recorder<KORVA_String>(log, 4)));
    registry->registerPointer(
        static_cast<KORVA_AttachmentContainerI*>(new Recorder<Attachment>(log, 5)));
    registry->registerPointer(static_cast<KORVASchemaTypeI*>(new Recorder<KORVASchedule>(log, 6)));
    registry->clean();
    EXPECT_EQ(log, (std::vector{1, 2, 3, 4, 5, 6}));
}

TEST(ObjectRegistry, FreesEveryKind) {
    const std::size_t live = liveAllocations();
    {
        const Registry registry(KORVAObjectRegistry::create());
        const std::size_t registryOnly = liveAllocations();
        auto* const text = new KORVAStringProp;
        text->setValue("x");
        registry->registerPointer(text);
        registry->registerPointer(new std::string(100, 'x'));
        auto* const buffer = new KORVA_String;
        buffer->appendChars("text", 4);
        registry->registerPointer(buffer);
        registry->registerPointer(new I18NString(std::string(100, 'x')));
        auto* const stream = new korva::test::CollectingStream;
        stream->write(std::string(100, 'x').c_str(), 100);
        registry->registerPointer(static_cast<BRIMOutputStream*>(stream));
        registry->registerPointer(new KORVAXSBase64Binary("bytes", 5));
        registry->registerPointer(new KORVA_CharStreamable);
        registry->registerPointer(static_cast<KORVA_AttachmentContainerI*>(new Attachment));
        registry->registerPointer(new bool(true), KORVAObjectRegistryI::eKORVADelete);
        registry->registerPointer(new char('x'), KORVAObjectRegistryI::eKORVADeleteScalar);
        registry->registerPointer(new float(1), KORVAObjectRegistryI::eKORVADeleteObject);
        registry->registerPointer(new int[3], KORVAObjectRegistryI::eKORVADeleteArray);
        registry->registerPointer(new char[30], KORVAObjectRegistryI::eKORVADeleteArray);
        registry->registerPointer(new ZELSmartPointer<KORVA_RefCount_ConstChar>(
            new KORVA_RefCount_ConstChar(new char[20])));
        EXPECT_EQ(registry->size(), 14u);
        EXPECT_GT(liveAllocations(), registryOnly);
        registry->clean();
        EXPECT_EQ(liveAllocations(), registryOnly);
    }
    EXPECT_EQ(liveAllocations(), live);
}

TEST(ObjectRegistry, FreesWithTheCLibraryWhatIsRegisteredWithModeFree) {
    const Registry registry(KORVAObjectRegistry::create());
    const std::size_t live = liveAllocations();
    auto* const text = static_cast<char*>(std::malloc(10));
    registry->registerPointer(text, KORVAObjectRegistryI::eKORVAFree);
    registry->clean();
    // A delete in place of free would count one block less.
    EXPECT_EQ(liveAllocations(), live);
}

TEST(ObjectRegistry, DropsTheReferenceOfASharedText) {
    const ZELSmartPointer<KORVA_RefCount_ConstChar> text(
        new KORVA_RefCount_ConstChar(new char[4]{'a', 'b', 'c', '\0'}));
    const Registry registry(KORVAObjectRegistry::create());
    registry->registerPointer(new ZELSmartPointer<KORVA_RefCount_ConstChar>(text));
    registry->registerPointer(new ZELSmartPointer<KORVA_RefCount_ConstChar>);
    EXPECT_EQ(text->getReferenceCount(), 2u);
    registry->clean();
    EXPECT_EQ(text->getReferenceCount(), 1u);
    EXPECT_STREQ(text->ptr(), "abc");
}

TEST(ObjectRegistry, SkipsNullOfEveryKind) {
    const Registry registry(KORVAObjectRegistry::create());
    registry->registerPointer(static_cast<KORVASchemaTypeI*>(nullptr));
    registry->registerPointer(static_cast<std::string*>(nullptr));
    registry->registerPointer(static_cast<KORVA_String*>(nullptr));
    registry->registerPointer(static_cast<I18NString*>(nullptr));
    registry->registerPointer(static_cast<BRIMOutputStream*>(nullptr));
    registry->registerPointer(static_cast<KORVAXSBase64Binary*>(nullptr));
    registry->registerPointer(static_cast<KORVA_CharStreamable*>(nullptr));
    registry->registerPointer(static_cast<KORVA_AttachmentContainerI*>(nullptr));
    registry->registerPointer(static_cast<ZELSmartPointer<KORVA_RefCount_ConstChar>*>(nullptr));
    std::size_t expected = 9;
    for (int mode = 0; mode < 5; ++mode) {
        const auto deleteMode = static_cast<KORVAObjectRegistryI::KORVADeleteMode>(mode);
        registry->registerPointer(static_cast<bool*>(nullptr), deleteMode);
        registry->registerPointer(static_cast<char*>(nullptr), deleteMode);
        registry->registerPointer(static_cast<float*>(nullptr), deleteMode);
        registry->registerPointer(static_cast<int*>(nullptr), deleteMode);
        expected += 4;
    }
    EXPECT_EQ(registry->size(), expected);
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
}

TEST(ObjectRegistry, RefusesAnUnknownDeleteModeAndAppendsNothing) {
    const Registry registry(KORVAObjectRegistry::create());
    const auto mode = static_cast<KORVAObjectRegistryI::KORVADeleteMode>(5);
    bool flag = false;
    char byte = 'x';
    float number = 0;
    int integer = 0;
    EXPECT_ASSERTION(registry->registerPointer(&flag, mode), "ZEL_ASSERT(false);");
    EXPECT_ASSERTION(registry->registerPointer(&byte, mode), "ZEL_ASSERT(false);");
    EXPECT_ASSERTION(registry->registerPointer(&number, mode), "ZEL_ASSERT(false);");
    EXPECT_ASSERTION(registry->registerPointer(&integer, mode), "ZEL_ASSERT(false);");
    EXPECT_ASSERTION(
        registry->registerPointer(&integer, static_cast<KORVAObjectRegistryI::KORVADeleteMode>(-1)),
        "ZEL_ASSERT(false);");
    EXPECT_EQ(registry->size(), 0u);
}

TEST(ObjectRegistry, FreesAChildBeforeItsParentHarmlessly) {
    const Registry registry(KORVAObjectRegistry::create());
    auto* const child = new KORVABooleanProp;
    auto* const parent = new KORVASchedule;
    registry->registerPointer(child);
    registry->registerPointer(parent);
    parent->setActive(child);
    const std::size_t live = liveAllocations();
    registry->clean();
    EXPECT_EQ(liveAllocations(), live - 4);  // two objects, each with its record
}

TEST(ObjectRegistry, CopiesInTwoRegistriesAreFreedIndependently) {
    KORVASchedule source;
    KORVABooleanProp active;
    active.setValue(true);
    source.setActive(&active);
    const Registry first(KORVAObjectRegistry::create());
    const Registry second(KORVAObjectRegistry::create());
    const auto& factory = KORVASchemaTypesFactory::getInstance();
    factory.createCopy(source, *first);
    const auto& kept = static_cast<KORVASchedule&>(factory.createCopy(source, *second));
    EXPECT_EQ(first->size(), 2u);
    EXPECT_EQ(second->size(), 2u);
    first->clean();
    ASSERT_NE(kept.getActive(), nullptr);
    EXPECT_TRUE(*kept.getActive()->getValue());
}

TEST(ObjectRegistry, DropsWhatIsRegisteredWhileItCleans) {
    const Registry registry(KORVAObjectRegistry::create());
    std::vector<int> log;
    Recorder<KORVAUnknownSchemaType> late(log, 1);
    registry->registerPointer(new LateRegistrar(*registry, late));
    registry->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 2));
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
    EXPECT_EQ(log, std::vector{2});
}

TEST(ObjectRegistry, DropsWhatIsRegisteredWhileItCleansAlsoWhenTheListGrows) {
    const Registry registry(KORVAObjectRegistry::create());
    std::vector<int> log;
    Recorder<KORVAUnknownSchemaType> late(log, 1);
    for (int i = 0; i < 99; ++i)
        registry->registerPointer(new LateRegistrar(*registry, late));
    registry->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 2));
    registry->clean();
    EXPECT_EQ(registry->size(), 0u);
    EXPECT_EQ(registry->capacity(), 225u);
    EXPECT_EQ(log, std::vector{2});
}

TEST(ObjectRegistry, KeepsItsEntriesWhenCleanIsLeftByAnException) {
    const Registry registry(KORVAObjectRegistry::create());
    std::vector<int> log;
    auto* const holder = new ZELSmartPointer<KORVA_RefCount_ConstChar>(new StubbornText);
    registry->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 1));
    registry->registerPointer(holder);
    registry->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 2));
    EXPECT_THROW(registry->clean(), int);
    EXPECT_EQ(log, std::vector{1});
    EXPECT_EQ(registry->size(), 3u);
    // What was freed, or refused to go, is not touched again.
    registry->clean();
    EXPECT_EQ(log, (std::vector{1, 2}));
    EXPECT_EQ(registry->size(), 0u);
    delete holder->get();
    ::operator delete(holder);
}

TEST(ObjectRegistry, DestructorDropsTheExceptionAndWhatIsLeft) {
    std::vector<int> log;
    auto* const holder = new ZELSmartPointer<KORVA_RefCount_ConstChar>(new StubbornText);
    Recorder<KORVAUnknownSchemaType> left(log, 2);
    {
        const Registry registry(KORVAObjectRegistry::create());
        registry->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 1));
        registry->registerPointer(holder);
        registry->registerPointer(&left);
    }
    EXPECT_EQ(log, std::vector{1});
    delete holder->get();
    ::operator delete(holder);
}

TEST(ObjectRegistry, LastReferenceFreesAll) {
    std::vector<int> log;
    Registry first(KORVAObjectRegistry::create());
    first->registerPointer(new Recorder<KORVAUnknownSchemaType>(log, 1));
    Registry second(first);
    EXPECT_EQ(first->getReferenceCount(), 2u);
    first = nullptr;
    EXPECT_TRUE(log.empty());
    second = nullptr;
    EXPECT_EQ(log, std::vector{1});
}

TEST(ObjectRegistry, EntryIsNotAddedWhenTheListCannotGrow) {
    const Registry registry(KORVAObjectRegistry::create());
    for (int i = 0; i < 100; ++i)
        registerNull(*registry);
    std::string text("the caller's");
    {
        const AllocationFailure failure(1);
        EXPECT_THROW(registry->registerPointer(&text), std::bad_alloc);
    }
    EXPECT_EQ(registry->size(), 100u);
    EXPECT_EQ(registry->capacity(), 100u);
    registerNull(*registry);
    EXPECT_EQ(registry->size(), 101u);
}

TEST(ObjectRegistry, MakesWhatItOwnsFromTheArgumentsOfItsConstructor) {
    std::vector<int> log;
    const std::size_t live = liveAllocations();
    {
        const Registry registry(KORVAObjectRegistry::create());
        auto* const binary = registry->make<KORVAXSBase64Binary>("bytes", 5);
        EXPECT_EQ(std::string(binary->str(), binary->pcount()), "bytes");
        EXPECT_EQ(*registry->make<std::string>(3, 'x'), "xxx");
        EXPECT_EQ(*registry->make<bool>(), false);
        EXPECT_EQ(*registry->make<char>('c'), 'c');
        EXPECT_EQ(*registry->make<float>(1.5F), 1.5F);
        EXPECT_EQ(*registry->make<int>(7), 7);
        registry->make<I18NString>();
        registry->make<KORVA_String>();
        registry->make<KORVA_CharStreamable>();
        registry->make<BRIMMemoryOutputStream>();
        registry->make<Attachment>();
        registry->make<ZELSmartPointer<KORVA_RefCount_ConstChar>>(
            new KORVA_RefCount_ConstChar(static_cast<char*>(nullptr)));
        registry->make<Recorder<KORVASchedule>>(log, 1);
        registry->make<Recorder<KORVAUnknownSchemaType>>(log, 2);
        EXPECT_EQ(registry->size(), 14u);
        EXPECT_TRUE(log.empty());
    }
    EXPECT_EQ(log, (std::vector{1, 2}));
    log = {};
    log.shrink_to_fit();
    EXPECT_EQ(liveAllocations(), live);
}

TEST(ObjectRegistry, KeepsACopyOfAText) {
    const Registry registry(KORVAObjectRegistry::create());
    std::string text("a text that is longer than a string holds in place");
    const char* const whole = registry->keep(text);
    const char* const part = registry->keep(std::string_view(text).substr(2, 4));
    const char* const plain = registry->keep(text.c_str());
    const std::string original = text;
    text.assign(text.size(), '-');
    EXPECT_EQ(whole, original);
    EXPECT_STREQ(part, "text");
    EXPECT_EQ(plain, original);
    EXPECT_STREQ(registry->keep(""), "");
    EXPECT_EQ(registry->size(), 4u);
}

TEST(ObjectRegistry, KeepsNothingForANullText) {
    const Registry registry(KORVAObjectRegistry::create());
    EXPECT_EQ(registry->keep(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(registry->size(), 0u);
}

TEST(ObjectRegistry, KeepsAStreamedTextAsOneThatSharesItsPieces) {
    const Registry registry(KORVAObjectRegistry::create());
    const char* kept = nullptr;
    {
        KORVA_CharStreamable streamed;
        streamed.initialize("piece", false);
        kept = registry->keep(streamed.asCharStar());
        EXPECT_NE(kept, streamed.asCharStar());
    }
    ASSERT_TRUE(KORVA_CharStreamable::isCharStreamable(kept));
    EXPECT_STREQ(reinterpret_cast<const KORVA_CharStreamable*>(kept)->getData(), "piece");
}

TEST(ObjectRegistry, TakesOverWhatAnOwnerHolds) {
    std::vector<int> log;
    {
        const Registry registry(KORVAObjectRegistry::create());
        auto first = std::make_unique<Recorder<KORVASchedule>>(log, 1);
        ZELOwner<KORVASchemaTypeI> second(new Recorder<KORVASchedule>(log, 2));
        const auto* const object = first.get();
        EXPECT_EQ(registry->own(std::move(first)), object);
        registry->own(std::move(second));
        registry->own(std::unique_ptr<char[]>(new char[30]),
                      KORVAObjectRegistryI::eKORVADeleteArray);
        EXPECT_EQ(registry->size(), 3u);
        EXPECT_TRUE(log.empty());
    }
    EXPECT_EQ(log, (std::vector{1, 2}));
}

TEST(ObjectRegistry, NothingIsLeftOfWhatItCannotRegister) {
    const auto inFullRegistry = [](auto action) {
        const Registry registry(KORVAObjectRegistry::create());
        for (int i = 0; i < 100; ++i)
            registerNull(*registry);
        ZEL_TRY {
            action(*registry);
            return;
        }
        ZEL_CATCH(nullptr);
    };
    using korva::test::forEachFailingAllocation;
    // Beside the registry and its first list: what is made, what that needs, and the longer list.
    EXPECT_EQ(forEachFailingAllocation([&] {
                  inFullRegistry(
                      [](auto& registry) { registry.template make<KORVAUnknownSchemaType>(); });
              }),
              4u);
    EXPECT_EQ(forEachFailingAllocation(
                  [&] { inFullRegistry([](auto& registry) { registry.template make<int>(1); }); }),
              4u);
    EXPECT_EQ(forEachFailingAllocation(
                  [&] { inFullRegistry([](auto& registry) { registry.keep("a text"); }); }),
              4u);
    EXPECT_EQ(forEachFailingAllocation([&] {
                  inFullRegistry([](auto& registry) {
                      registry.own(ZELOwner<KORVASchemaTypeI>(new KORVASchedule));
                  });
              }),
              5u);
}

TEST(ObjectRegistry, WhatItCannotRegisterIsFreedAtOnce) {
    const Registry registry(KORVAObjectRegistry::create());
    for (int i = 0; i < 100; ++i)
        registerNull(*registry);
    std::vector<int> log;
    log.reserve(1);
    {
        const AllocationFailure failure(2);
        EXPECT_THROW(registry->make<Recorder<KORVAUnknownSchemaType>>(log, 1), std::bad_alloc);
    }
    EXPECT_EQ(log, std::vector{1});
    EXPECT_EQ(registry->size(), 100u);
}

TEST(ObjectRegistry, CreateRaisesOutOfMemoryErrorAndLeavesNothing) {
    EXPECT_EQ(korva::test::forEachFailingAllocation([] { delete KORVAObjectRegistry::create(); }),
              2u);
}

}  // namespace
