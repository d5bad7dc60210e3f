#include "tests/attachments/ScriptedReader.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAStringProp.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::gzipped;
using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::ScriptedPart;
using korva::test::ScriptedReader;

class AttachmentLimit : public testing::Test {
protected:
    bool resolve(std::vector<ScriptedPart> parts) {
        ScriptedReader reader(std::move(parts));
        struct Check {
            const ScriptedReader& reader;
            ~Check() { EXPECT_EQ(reader.out, 0); }
        } const check{reader};
        return handler.resolveReferences(reader, *registry,
                                         KORVA_SpoolingAttachmentContainer::create);
    }

    const Registry registry = makeRegistry();
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
    std::vector<ScriptedPart> parts = {{"a", bombs, true}};
    std::size_t total = 0;
    static std::size_t* counter = nullptr;
    counter = &total;
    class Counting : public KORVA_AttachmentContainerI {
    public:
        void append(const char*, std::size_t length) override { *counter += length; }
        const char* getData() override { return ""; }
        KORVA_Streamable* getStreamable() override { return nullptr; }
    };
    ScriptedReader reader(std::move(parts));
    EXPECT_THROW(
        handler.resolveReferences(reader, *registry,
                                  []() -> KORVA_AttachmentContainerI* { return new Counting; }),
        KORVAException);
    EXPECT_LE(total, std::size_t{16 << 20} + 2048);
}

TEST_F(AttachmentLimit, SmallAttachmentsMayExpandAsTheyLike) {
    handler.setMaximumInflateRatio(1);
    EXPECT_TRUE(resolve({{"a", gzipped(std::string(16 << 20, '\0')), true}}));
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
