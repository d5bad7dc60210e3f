#include "tests/attachments/ScriptedReader.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/DefaultAttachmentContainer.h>
#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

using korva::test::gzipped;
using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::ScriptedPart;
using korva::test::ScriptedReader;
using korva::test::textOf;
using korva::test::written;
using Object = KORVASchemaTypeI;

constexpr auto spooling = KORVA_SpoolingAttachmentContainer::create;

/// Keeps what it is given.
class Probe : public KORVAUnknownSchemaType {
public:
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override {
        if (failure) failure();
        ++calls;
        lastName = name;
        lastObject = obj;
        lastType = type;
        lastIndex = idx != nullptr ? *idx : 0;
        return 0;
    }

    int calls = 0;
    std::string lastName;
    void* lastObject = nullptr;
    ObjectType lastType = e_Unknown;
    std::size_t lastIndex = 0;
    std::function<void()> failure;
};

/// Counts what is made of it, and what it is given.
class CountingContainer : public DefaultAttachmentContainer {
public:
    void append(const char* bytes, std::size_t length) override {
        if (failure) failure();
        pieces.push_back(length);
        DefaultAttachmentContainer::append(bytes, length);
    }
    ~CountingContainer() override { --alive; }

    static KORVA_AttachmentContainerI* create() {
        ++made;
        ++alive;
        pieces.clear();
        return new CountingContainer;
    }

    static inline int made = 0;
    static inline int alive = 0;
    static inline std::vector<std::size_t> pieces;
    static inline std::function<void()> failure;
};

/// Has neither bytes nor a stream.
class HollowContainer : public KORVA_AttachmentContainerI {
public:
    void append(const char*, std::size_t) override {}
    const char* getData() override { return nullptr; }
    KORVA_Streamable* getStreamable() override { return nullptr; }
};

class AttachmentHandler : public testing::Test {
protected:
    void registerText(const char* id) {
        handler.registerHref(id, text, "value", Object::eString, 0);
    }
    void registerBinary(const char* id) {
        handler.registerHref(id, binary, "value", Object::eBase64Binary, 0);
    }
    bool resolve(std::vector<ScriptedPart> parts,
                 KORVA_AttachmentHandler::ContainerFactory factory = nullptr) {
        ScriptedReader reader(std::move(parts));
        const bool all = handler.resolveReferences(reader, *registry, factory);
        EXPECT_EQ(reader.out, 0);
        return all;
    }
    std::string binaryValue() const {
        const KORVAXSBase64Binary* const value = binary.getValue();
        if (value == nullptr) return "null";
        if (value->streamable() != nullptr) return "streamed:" + written(*value->streamable());
        return {value->str(), value->pcount()};
    }

    const Registry registry = makeRegistry();
    KORVAStringProp text;
    KORVABase64BinaryProp binary;
    KORVA_AttachmentHandler handler;
};

TEST_F(AttachmentHandler, APartIsFoundWithItsBracketsOrWithout) {
    for (const char* const id : {"<abc>", "abc", "<abc", "abc>"}) {
        text.setValue(nullptr);
        registerText("abc");
        EXPECT_TRUE(resolve({{id, "content"}})) << id;
        EXPECT_STREQ(text.getValue(), "content") << id;
    }
}

TEST_F(AttachmentHandler, OnlyOneBracketIsDroppedAtEachEnd) {
    registerText("<abc>");
    EXPECT_FALSE(resolve({{"<abc>", "wrong"}}));
    EXPECT_TRUE(resolve({{"<<abc>>", "content"}}));
    EXPECT_STREQ(text.getValue(), "content");
}

TEST_F(AttachmentHandler, IdsCompareExactly) {
    registerText("abc");
    EXPECT_FALSE(
        resolve({{"ABC", ""}, {"ab", ""}, {"abcd", ""}, {"", ""}, {"<>", ""}, {" abc", ""}}));
    EXPECT_EQ(text.getValue(), nullptr);
    EXPECT_EQ(handler.getReferenceCount(), 1u);
    EXPECT_TRUE(resolve({{"abc", "x"}}));
    EXPECT_EQ(handler.getReferenceCount(), 0u);
}

TEST_F(AttachmentHandler, WithoutAttachmentsTheResultTellsWhetherAnythingRefers) {
    EXPECT_TRUE(resolve({}));
    registerText("abc");
    EXPECT_FALSE(resolve({}));
    EXPECT_EQ(handler.getReferenceCount(), 1u);
}

TEST_F(AttachmentHandler, APartWithoutIdIsReadAndDropped) {
    registerText("abc");
    ScriptedReader reader{{std::nullopt, "dropped"}};
    EXPECT_FALSE(handler.resolveReferences(reader, *registry, nullptr));
    EXPECT_TRUE(reader.wasRead);
}

TEST_F(AttachmentHandler, APartThatNothingRefersToIsReadAndDropped) {
    ScriptedReader reader{{"other", std::string(5000, 'x')}};
    EXPECT_TRUE(handler.resolveReferences(reader, *registry, nullptr));
    EXPECT_TRUE(reader.wasRead);
    EXPECT_EQ(reader.out, 0);
}

TEST_F(AttachmentHandler, APartThatNothingRefersToIsNotExpanded) {
    ScriptedReader reader{{"other", "no gzip", true}};
    EXPECT_TRUE(handler.resolveReferences(reader, *registry, nullptr));
    EXPECT_TRUE(reader.wasRead);
}

TEST_F(AttachmentHandler, AsksTheReaderInOrder) {
    ScriptedReader none(std::vector<ScriptedPart>{});
    handler.resolveReferences(none, *registry, nullptr);
    EXPECT_EQ(none.events, "attachments? ");
    ScriptedReader two{{"a", "1"}, {"b", "2"}};
    handler.resolveReferences(two, *registry, nullptr);
    EXPECT_EQ(two.events, "attachments? next? get release next? get release next? ");
}

TEST_F(AttachmentHandler, EveryReferenceToAPartIsResolved) {
    KORVAStringProp other;
    registerText("abc");
    registerBinary("abc");
    handler.registerHref("abc", other, "value", Object::eString, 0);
    EXPECT_EQ(handler.getReferenceCount(), 3u);
    EXPECT_TRUE(resolve({{"abc", "content"}}));
    EXPECT_STREQ(text.getValue(), "content");
    EXPECT_EQ(other.getValue(), text.getValue());
    EXPECT_EQ(binaryValue(), "content");
}

TEST_F(AttachmentHandler, EveryReferenceGetsAStreamedFormOfItsOwn) {
    KORVAStringProp otherText;
    KORVABase64BinaryProp otherBinary;
    registerText("abc");
    registerBinary("abc");
    handler.registerHref("abc", otherText, "value", Object::eString, 0);
    handler.registerHref("abc", otherBinary, "value", Object::eBase64Binary, 0);
    EXPECT_TRUE(resolve({{"abc", "content"}}, spooling));
    EXPECT_EQ(textOf(text.getValue()), "streamed:content");
    EXPECT_EQ(textOf(otherText.getValue()), "streamed:content");
    EXPECT_NE(text.getValue(), otherText.getValue());
    EXPECT_NE(binary.getValue(), otherBinary.getValue());
    EXPECT_EQ(binary.getValue()->streamable(), otherBinary.getValue()->streamable());
    EXPECT_EQ(binaryValue(), "streamed:content");
}

TEST_F(AttachmentHandler, ReferencesAreResolvedInTheirOrder) {
    std::vector<int> order;
    Probe probes[3];
    for (int i = 0; i < 3; ++i) {
        probes[i].failure = [&order, i] { order.push_back(i); };
        handler.registerHref("abc", probes[i], "x", Object::eString, 0);
    }
    EXPECT_TRUE(resolve({{"abc", ""}}));
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2}));
}

TEST_F(AttachmentHandler, OfTwoPartsWithOneIdTheFirstCounts) {
    registerText("abc");
    EXPECT_TRUE(resolve({{"abc", "first"}, {"abc", "second"}}));
    EXPECT_STREQ(text.getValue(), "first");
}

TEST_F(AttachmentHandler, PartsComeInAnyOrder) {
    registerText("a");
    registerBinary("b");
    EXPECT_TRUE(resolve({{"x", ""}, {"b", "2"}, {"a", "1"}}));
    EXPECT_STREQ(text.getValue(), "1");
    EXPECT_EQ(binaryValue(), "2");
}

TEST_F(AttachmentHandler, TextIsSetAsACharStreamable) {
    for (const Object::ObjectType type :
         {Object::eString, Object::eDateTime, Object::eTime, Object::eQName}) {
        Probe probe;
        handler.registerHref("abc", probe, "child", type, 42);
        EXPECT_TRUE(resolve({{"abc", "content"}}));
        EXPECT_EQ(probe.calls, 1);
        EXPECT_EQ(probe.lastType, Object::eCharStreamable);
        EXPECT_EQ(probe.lastName, "child");
        EXPECT_EQ(probe.lastIndex, 42u);
        EXPECT_STREQ(static_cast<const char*>(probe.lastObject), "content");
    }
}

TEST_F(AttachmentHandler, BinaryIsSetAsBinary) {
    Probe probe;
    handler.registerHref("abc", probe, "", Object::eBase64Binary, 3);
    EXPECT_TRUE(resolve({{"abc", "content"}}));
    EXPECT_EQ(probe.lastType, Object::eBase64Binary);
    EXPECT_EQ(probe.lastName, "");
    EXPECT_EQ(probe.lastIndex, 3u);
    const auto* const value = static_cast<KORVAXSBase64Binary*>(probe.lastObject);
    EXPECT_EQ(std::string(value->str(), value->pcount()), "content");
    EXPECT_FALSE(value->getIsContentId());
}

TEST_F(AttachmentHandler, BinaryEndsAtItsFirstNulByteInTheDefaultContainer) {
    const std::string content("\1\2\0\3", 4);
    registerBinary("a");
    registerText("a");
    EXPECT_TRUE(resolve({{"a", content}}));
    EXPECT_EQ(binaryValue(), "\1\2");
    EXPECT_STREQ(text.getValue(), "\1\2");
}

TEST_F(AttachmentHandler, BinaryIsKeptWholeInAContainerThatStreams) {
    const std::string content("\1\2\0\3", 4);
    registerBinary("a");
    registerText("a");
    EXPECT_TRUE(resolve({{"a", content}}, spooling));
    EXPECT_EQ(binaryValue(), "streamed:" + content);
    EXPECT_EQ(textOf(text.getValue()), "streamed:" + content);
}

TEST_F(AttachmentHandler, EmptyPartsGiveEmptyValues) {
    registerBinary("a");
    registerText("a");
    EXPECT_TRUE(resolve({{"a", ""}}));
    EXPECT_STREQ(text.getValue(), "");
    ASSERT_NE(binary.getValue(), nullptr);
    EXPECT_EQ(binary.getValue()->pcount(), 0u);
}

TEST_F(AttachmentHandler, CompressedPartsAreExpanded) {
    const std::string content(100000, 'x');
    registerText("a");
    registerBinary("b");
    EXPECT_TRUE(resolve({{"a", gzipped(content), true}, {"b", gzipped("y"), true}}));
    EXPECT_EQ(textOf(text.getValue()), content);
    EXPECT_EQ(binaryValue(), "y");
}

TEST_F(AttachmentHandler, DamagedCompressedPartsAreTold) {
    registerText("a");
    ScriptedReader reader{{"a", "no gzip", true}};
    EXPECT_THROW(handler.resolveReferences(reader, *registry, nullptr), BRIMStreamError);
    EXPECT_EQ(reader.out, 0);
    EXPECT_EQ(text.getValue(), nullptr);
}

TEST_F(AttachmentHandler, AStreamMayEndWithEitherValue) {
    registerText("a");
    registerBinary("b");
    ScriptedPart ending{"a", "content"};
    ending.end = -1;
    EXPECT_TRUE(resolve({ending, {"b", "more"}}));
    EXPECT_STREQ(text.getValue(), "content");
    EXPECT_EQ(binaryValue(), "more");
}

TEST_F(AttachmentHandler, ContentIsPassedOnInPiecesOf2048Bytes) {
    registerText("a");
    EXPECT_TRUE(resolve({{"a", std::string(5000, 'x')}}, CountingContainer::create));
    EXPECT_EQ(CountingContainer::pieces, (std::vector<std::size_t>{2048, 2048, 904}));
}

TEST_F(AttachmentHandler, ThereIsOneContainerForEachPartThatIsReferredToAndTheRegistryOwnsIt) {
    CountingContainer::made = CountingContainer::alive = 0;
    registerText("b");
    registerText("c");
    EXPECT_TRUE(resolve({{"a", "1"}, {"b", "2"}, {std::nullopt, "3"}, {"b", "4"}, {"c", "5"}},
                        CountingContainer::create));
    EXPECT_EQ(CountingContainer::made, 2);
    EXPECT_EQ(CountingContainer::alive, 2);
    registry->clean();
    EXPECT_EQ(CountingContainer::alive, 0);
}

TEST_F(AttachmentHandler, BytesThatLookLikeACharStreamableAreNotTakenForOne) {
    for (const std::string& marker :
         {std::string("\xFF\xFF\xFF\0", 4), std::string("\xFF\xFE\xFF\0", 4)}) {
        registerText("a");
        EXPECT_TRUE(resolve({{"a", marker + std::string(100, 'A')}}));
        EXPECT_EQ(textOf(text.getValue()), "streamed:" + marker.substr(0, 3));
    }
}

TEST_F(AttachmentHandler, ItemsOfTextArraysAreReplaced) {
    KORVAStringArray array;
    char first[] = "first";
    char second[] = "second";
    array.push_back(first);
    array.push_back(second);
    handler.registerHref("a", array, "item", Object::eString, 2);
    EXPECT_TRUE(resolve({{"a", "content"}}));
    EXPECT_EQ(array.size(), 2u);
    EXPECT_STREQ(array.at(0), "first");
    EXPECT_STREQ(array.at(1), "content");
    handler.registerHref("b", array, "item", Object::eString, 1);
    EXPECT_TRUE(resolve({{"b", "content"}}, spooling));
    EXPECT_EQ(textOf(array.at(0)), "streamed:content");
}

TEST_F(AttachmentHandler, AnItemThatHasGoneIsAnAssertion) {
    KORVAStringArray array;
    handler.registerHref("a", array, "item", Object::eString, 1);
    EXPECT_ASSERTION(resolve({{"a", "content"}}),
                     "ZEL_ASSERT(*idx > 0 && m_vector.size() >= *idx);");
    EXPECT_EQ(handler.getReferenceCount(), 1u);
}

TEST_F(AttachmentHandler, AValueThatDoesNotFitLeavesItsReferenceAndThoseBehindIt) {
    KORVAStringProp other;
    registerText("a");
    // A binary for a text.
    handler.registerHref("a", other, "value", Object::eBase64Binary, 0);
    registerBinary("a");
    EXPECT_TYPE_ERROR(resolve({{"a", "content"}}), "stringProp", "value", "xs:string",
                      "xs:base64Binary");
    EXPECT_STREQ(text.getValue(), "content");
    EXPECT_EQ(handler.getReferenceCount(), 2u);
    EXPECT_EQ(binaryValue(), "null");
}

TEST_F(AttachmentHandler, OnlyTextAndBinaryCanBeReferredTo) {
    const char* const text = "ZEL_ASSERT(Factory::isString(type) || Factory::isBase64(type));";
    for (const Object::ObjectType type :
         {Object::eInt, Object::eBoolean, Object::e_Unknown, Object::eKORVASchedule})
        EXPECT_ASSERTION(handler.registerHref("a", binary, "value", type, 0), text);
    EXPECT_EQ(handler.getReferenceCount(), 0u);
}

TEST_F(AttachmentHandler, AContainerMustHaveOneForm) {
    const auto create = []() -> KORVA_AttachmentContainerI* { return new HollowContainer; };
    registerText("a");
    EXPECT_ASSERTION(resolve({{"a", "content"}}, create), "ZEL_ASSERT(pStreamable);");
    registerBinary("b");
    EXPECT_ASSERTION(resolve({{"b", "content"}}, create), "ZEL_ASSERT(pStreamable);");
    // Nobody asks for the content of other parts.
    EXPECT_FALSE(resolve({{"c", "content"}}, create));
}

TEST_F(AttachmentHandler, AFactoryMustMakeAContainer) {
    registerText("a");
    ScriptedReader reader{{"a", "content"}};
    EXPECT_ASSERTION(
        handler.resolveReferences(reader, *registry,
                                  []() -> KORVA_AttachmentContainerI* { return nullptr; }),
        "ZEL_ASSERT(made);");
    EXPECT_EQ(reader.events, "attachments? next? get release ");
}

TEST_F(AttachmentHandler, AReaderMustGiveAPart) {
    class WithoutParts : public HALYARDTKMessageReader {
    public:
        bool hasAttachments() override { return true; }
        bool hasNextPart() override { return true; }
        HALYARDTKMessagePart* getNextPart() override { return nullptr; }
        void releasePart(HALYARDTKMessagePart*) override { ADD_FAILURE(); }
    } reader;
    EXPECT_ASSERTION(handler.resolveReferences(reader, *registry, nullptr), "ZEL_ASSERT(m_part);");
}

TEST_F(AttachmentHandler, ForgetsWhatWasReferredToWithoutTouchingIt) {
    {
        KORVAStringProp gone;
        handler.registerHref("a", gone, "value", Object::eString, 0);
    }
    registerText("b");
    handler.clear();
    EXPECT_EQ(handler.getReferenceCount(), 0u);
    EXPECT_TRUE(resolve({{"a", "content"}, {"b", "content"}}));
    EXPECT_EQ(text.getValue(), nullptr);
    registerText("b");
    EXPECT_TRUE(resolve({{"b", "content"}}));
    EXPECT_STREQ(text.getValue(), "content");
}

TEST_F(AttachmentHandler, ResolvingByHandTakesTheIdAsItIs) {
    registerText("abc");
    DefaultAttachmentContainer container;
    container.append("content", 7);
    handler.resolveAttachment(nullptr, container, *registry);
    handler.resolveAttachment("<abc>", container, *registry);
    EXPECT_EQ(text.getValue(), nullptr);
    handler.resolveAttachment("abc", container, *registry);
    EXPECT_EQ(text.getValue(), container.getData());
}

// ----- failures on the way -----

TEST_F(AttachmentHandler, APartIsGivenBackWhenItsStreamFails) {
    registerText("a");
    ScriptedPart failing{"a", "content"};
    failing.failure = [] { throw 7; };
    ScriptedReader reader{failing, {"b", "more"}};
    EXPECT_THROW(handler.resolveReferences(reader, *registry, nullptr), int);
    EXPECT_EQ(reader.events, "attachments? next? get release ");
    EXPECT_EQ(reader.out, 0);
    EXPECT_EQ(text.getValue(), nullptr);
    EXPECT_EQ(handler.getReferenceCount(), 1u);
}

TEST_F(AttachmentHandler, APartIsGivenBackWhenItsContainerFails) {
    registerText("a");
    CountingContainer::failure = [] { throw 7; };
    ScriptedReader reader{{"a", "content"}};
    EXPECT_THROW(handler.resolveReferences(reader, *registry, CountingContainer::create), int);
    CountingContainer::failure = nullptr;
    EXPECT_EQ(reader.out, 0);
}

TEST_F(AttachmentHandler, APartIsGivenBackWhenItsObjectFails) {
    Probe probe;
    probe.failure = [] { throw 7; };
    handler.registerHref("a", probe, "x", Object::eString, 0);
    ScriptedReader reader{{"a", "content"}};
    EXPECT_THROW(handler.resolveReferences(reader, *registry, nullptr), int);
    EXPECT_EQ(reader.events, "attachments? next? get release ");
}

TEST_F(AttachmentHandler, AFailureToTakeAPartBackPassesOnce) {
    ScriptedReader reader{{"a", "content"}};
    reader.failureOfRelease = [] { throw 8; };
    EXPECT_THROW(handler.resolveReferences(reader, *registry, nullptr), int);
    EXPECT_EQ(reader.events, "attachments? next? get release ");
}

TEST_F(AttachmentHandler, TheFirstFailureIsTheOneThatIsTold) {
    ScriptedPart failing{"a", "content"};
    failing.failure = [] { throw 7; };
    ScriptedReader reader{failing};
    reader.failureOfRelease = [] { throw 8; };
    try {
        handler.resolveReferences(reader, *registry, nullptr);
        FAIL();
    } catch (int which) {
        EXPECT_EQ(which, 7);
    }
}

TEST_F(AttachmentHandler, ResolvingTakesTimeByTheNumberOfPartsAlone) {
    constexpr int count = 100000;
    std::vector<KORVAStringProp> objects(count);
    std::vector<ScriptedPart> parts;
    for (int i = 0; i < count; ++i)
        handler.registerHref(std::to_string(i).c_str(), objects[static_cast<std::size_t>(i)],
                             "value", Object::eString, 0);
    for (int i = count; i != 0; --i)
        parts.push_back({std::to_string(i - 1), "x"});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(resolve(std::move(parts)));
    // Searching all references for each part would take a hundred times as long.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
    EXPECT_STREQ(objects.back().getValue(), "x");
}

}  // namespace
