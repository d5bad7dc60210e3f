#include "tests/attachments/ScriptedReader.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
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

/// Counts what containers are given, and drops it.
class CountingContainer : public KORVA_AttachmentContainerI {
public:
    void append(const char*, std::size_t length) override { total += length; }
    const char* getData() override { return ""; }
    KORVA_Streamable* getStreamable() override { return nullptr; }

    static KORVA_AttachmentContainerI* create() { return new CountingContainer; }

    static inline std::size_t total = 0;
};

#if !defined(_WIN32)
/// How many descriptors the process has open.
std::size_t openDescriptors() {
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}
#endif

class AttachmentLimit : public testing::Test {
protected:
    /// Refers to each part, and resolves.
    bool resolve(std::vector<ScriptedPart> parts) {
        handler.clear();
        for (const ScriptedPart& part : parts)
            handler.registerHref(part.id->c_str(), text, "value", KORVASchemaTypeI::eString, 0);
        ScriptedReader reader(std::move(parts));
        struct Check {
            const ScriptedReader& reader;
            ~Check() { EXPECT_EQ(reader.out, 0); }
        } const check{reader};
        return handler.resolveReferences(reader, *registry,
                                         KORVA_SpoolingAttachmentContainer::create);
    }

    const Registry registry = makeRegistry();
    KORVAStringProp text;
    KORVA_AttachmentHandler handler;
};

TEST_F(AttachmentLimit, BytesAreCountedOverAllParts) {
    handler.setMaximumBytes(5000);
    EXPECT_TRUE(resolve({{"a", std::string(2500, 'x')}, {"b", std::string(2500, 'x')}}));
    // Each message is counted by itself.
    EXPECT_TRUE(resolve({{"a", std::string(5000, 'x')}}));
    EXPECT_NUMBERED(resolve({{"a", std::string(2500, 'x')}, {"b", std::string(2501, 'x')}}),
                    0xEA4F0001, "KORVA_AttachmentHandler::resolveReferences",
                    "the bytes of all attachments", "5000",
                    "KORVA_AttachmentHandler::setMaximumBytes");
    handler.setMaximumBytes(0);
    EXPECT_TRUE(resolve({{"a", ""}}));
    EXPECT_THROW(resolve({{"a", "x"}}), KORVAException);
}

TEST_F(AttachmentLimit, CompressedBytesAreCountedExpanded) {
    handler.setMaximumBytes(5000);
    EXPECT_TRUE(resolve({{"a", gzipped(std::string(5000, 'x')), true}}));
    EXPECT_NUMBERED(resolve({{"a", gzipped(std::string(5001, 'x')), true}}), 0xEA4F0001,
                    "KORVA_AttachmentHandler::resolveReferences", "the bytes of all attachments",
                    "5000", "KORVA_AttachmentHandler::setMaximumBytes");
}

TEST_F(AttachmentLimit, AttachmentsThatExpandTooMuchAreGivenUp) {
    const std::string bomb = gzipped(std::string(32 << 20, '\0'));
    EXPECT_NUMBERED(resolve({{"a", bomb, true}}), 0xEA4F0001,
                    "KORVA_AttachmentHandler::resolveReferences",
                    "the ratio by which an attachment expands", "200",
                    "KORVA_AttachmentHandler::setMaximumInflateRatio");
    handler.setMaximumInflateRatio(2000);
    EXPECT_TRUE(resolve({{"a", bomb, true}}));
    handler.setMaximumInflateRatio(3);
    EXPECT_THROW(resolve({{"a", bomb, true}}), KORVAException);
    EXPECT_ASSERTION(handler.setMaximumInflateRatio(0), "ZEL_ASSERT(ratio > 0);");
}

TEST_F(AttachmentLimit, ABombIsGivenUpEarly) {
    // Members one behind the other: 1 GB in all.
    std::string bombs;
    const std::string member = gzipped(std::string(1 << 20, '\0'));
    for (int i = 0; i < 1024; ++i)
        bombs += member;
    handler.registerHref("a", text, "value", KORVASchemaTypeI::eString, 0);
    CountingContainer::total = 0;
    ScriptedReader reader{{"a", bombs, true}};
    EXPECT_THROW(handler.resolveReferences(reader, *registry, CountingContainer::create),
                 KORVAException);
    EXPECT_LE(CountingContainer::total, std::size_t{4 << 20} + 2048);
}

TEST_F(AttachmentLimit, ABombInManyPartsIsGivenUpAsEarly) {
    const std::string bomb = gzipped(std::string((4 << 20) - 1, '\0'));
    std::vector<ScriptedPart> parts;
    for (int i = 0; i < 60; ++i)
        parts.push_back({std::to_string(i), bomb, true});
    for (const ScriptedPart& part : parts)
        handler.registerHref(part.id->c_str(), text, "value", KORVASchemaTypeI::eString, 0);
    CountingContainer::total = 0;
    ScriptedReader reader(std::move(parts));
    EXPECT_NUMBERED(handler.resolveReferences(reader, *registry, CountingContainer::create),
                    0xEA4F0001, "KORVA_AttachmentHandler::resolveReferences",
                    "the ratio by which an attachment expands", "200",
                    "KORVA_AttachmentHandler::setMaximumInflateRatio");
    EXPECT_LE(CountingContainer::total, std::size_t{4 << 20} + 2048);
}

TEST_F(AttachmentLimit, OnePartOfPlainBytesMakesNoRoomForABomb) {
    // What was not compressed says nothing of how far the rest may expand.
    EXPECT_THROW(resolve({{"a", std::string(1 << 20, 'x')},
                          {"b", gzipped(std::string(8 << 20, '\0')), true}}),
                 KORVAException);
}

TEST_F(AttachmentLimit, PartsThatNobodyRefersToAreNeitherExpandedNorKept) {
    const std::string bomb = gzipped(std::string(32 << 20, '\0'));
    ScriptedReader reader{{"a", bomb, true}, {std::nullopt, bomb, true}};
    CountingContainer::total = 0;
    EXPECT_TRUE(handler.resolveReferences(reader, *registry, CountingContainer::create));
    EXPECT_EQ(CountingContainer::total, 0u);
    // They count as what they are.
    handler.setMaximumBytes(bomb.size());
    ScriptedReader again{{"a", bomb, true}, {"b", "x"}};
    EXPECT_THROW(handler.resolveReferences(again, *registry, nullptr), KORVAException);
}

TEST_F(AttachmentLimit, TheBytesOfAllAttachmentsAreLimitedToOneGigabyteAtFirst) {
    /// Has no end.
    class Endless : public HALYARDTKMessageReader, HALYARDTKMessagePart, BRIMInputStream {
    public:
        bool hasAttachments() override { return true; }
        bool hasNextPart() override { return true; }
        HALYARDTKMessagePart* getNextPart() override { return this; }
        void releasePart(HALYARDTKMessagePart*) override {}
        const char* getContentId() override { return nullptr; }
        bool isCompressed() override { return false; }
        BRIMInputStream& getStream() override { return *this; }
        long long read(char*, std::size_t size) override {
            given += size;
            return static_cast<long long>(size);
        }
        unsigned long long given = 0;
    } reader;
    EXPECT_NUMBERED(handler.resolveReferences(reader, *registry, nullptr), 0xEA4F0001,
                    "KORVA_AttachmentHandler::resolveReferences", "the bytes of all attachments",
                    "1073741824", "KORVA_AttachmentHandler::setMaximumBytes");
    EXPECT_EQ(reader.given, (1ULL << 30U) + 2048);
}

#if !defined(_WIN32)
TEST_F(AttachmentLimit, AllPartsOfAMessageTakeOneDescriptor) {
    constexpr std::size_t count = 1500;
    std::vector<ScriptedPart> parts;
    std::vector<KORVAStringProp> objects(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string id = std::to_string(i);
        parts.push_back({id, std::string(200, static_cast<char>('a' + i % 26)) + id});
        handler.registerHref(id.c_str(), objects[i], "value", KORVASchemaTypeI::eString, 0);
    }
    const std::vector<ScriptedPart> sent = parts;
    const std::size_t before = openDescriptors();
    ScriptedReader reader(std::move(parts));
    EXPECT_TRUE(handler.resolveReferences(reader, *registry, []() -> KORVA_AttachmentContainerI* {
        return new KORVA_SpoolingAttachmentContainer(100);
    }));
    EXPECT_EQ(openDescriptors(), before + 1);
    for (std::size_t i = 0; i < count; ++i)
        ASSERT_EQ(textOf(objects[i].getValue()), "streamed:" + sent[i].content);
    registry->clean();
    EXPECT_EQ(openDescriptors(), before);
}
#endif

TEST_F(AttachmentLimit, ManySmallPartsStayInBoundedMemory) {
    // 200 parts that each would stay in memory; no more than 4 MB of them do.
    constexpr std::size_t count = 200;
    std::vector<ScriptedPart> parts;
    std::vector<KORVABase64BinaryProp> objects(count);
    for (std::size_t i = 0; i < count; ++i) {
        parts.push_back({std::to_string(i), std::string(60'000, static_cast<char>(i))});
        handler.registerHref(std::to_string(i).c_str(), objects[i], "value",
                             KORVASchemaTypeI::eBase64Binary, 0);
    }
    static std::vector<KORVA_SpoolingAttachmentContainer*> made;
    made.clear();
    ScriptedReader reader(std::move(parts));
    EXPECT_TRUE(handler.resolveReferences(reader, *registry, []() -> KORVA_AttachmentContainerI* {
        made.push_back(new KORVA_SpoolingAttachmentContainer);
        return made.back();
    }));
    const auto inMemory = std::count_if(made.begin(), made.end(),
                                        [](const auto* each) { return !each->isSpooled(); });
    EXPECT_EQ(inMemory, (4 << 20) / 60'000);
    for (std::size_t i = 0; i < count; ++i)
        ASSERT_EQ(written(*objects[i].getValue()->streamable()),
                  std::string(60'000, static_cast<char>(i)));
}

TEST_F(AttachmentLimit, SmallAttachmentsMayExpandAsTheyLike) {
    handler.setMaximumInflateRatio(1);
    EXPECT_TRUE(resolve({{"a", gzipped(std::string(4 << 20, '\0')), true}}));
    EXPECT_THROW(resolve({{"a", gzipped(std::string((4 << 20) + 1, '\0')), true}}), KORVAException);
}

TEST_F(AttachmentLimit, TheMessageTellsWhatToDo) {
    handler.setMaximumBytes(1);
    try {
        resolve({{"a", "12"}});
        FAIL();
    } catch (const KORVAException& error) {
        EXPECT_NE(std::string(error.toString())
                      .find("The input exceeds the limit on the bytes of all attachments, which is "
                            "1. If its source can be trusted, raise the limit with "
                            "KORVA_AttachmentHandler::setMaximumBytes."),
                  std::string::npos)
            << error.toString();
    }
}

}  // namespace
