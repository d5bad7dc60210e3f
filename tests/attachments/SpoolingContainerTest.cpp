#include "tests/attachments/ScriptedReader.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/TestStreams.h"

#include <brim/BRIMStreamError.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

using korva::test::gzipped;
using korva::test::readAll;
using korva::test::streamErrorOf;
using korva::test::written;

/// `size` bytes, with NULs among them.
std::string bytes(std::size_t size) {
    std::string result(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        result[i] = static_cast<char>(i * i >> 5U);
    return result;
}

void append(KORVA_SpoolingAttachmentContainer& container, const std::string& content,
            std::size_t piece) {
    for (std::size_t at = 0; at < content.size(); at += piece)
        container.append(content.data() + at, std::min(piece, content.size() - at));
}

TEST(SpoolingContainer, StreamsWhatWasAppended) {
    for (const std::size_t size : {0ul, 1ul, 99ul, 100ul, 101ul, 200ul, 5000ul}) {
        for (const std::size_t piece : {1ul, 33ul, 99ul, 100ul, 101ul, 2048ul}) {
            KORVA_SpoolingAttachmentContainer container(100);
            const std::string content = bytes(size);
            append(container, content, piece);
            EXPECT_EQ(container.isSpooled(), size > 100) << size << " " << piece;
            EXPECT_EQ(container.size(), size);
            EXPECT_EQ(container.getData(), nullptr);
            ASSERT_NE(container.getStreamable(), nullptr);
            ASSERT_EQ(written(*container.getStreamable()), content) << size << " " << piece;
            ASSERT_EQ(readAll(*container.getStreamable(), 64), content) << size << " " << piece;
        }
    }
}

TEST(SpoolingContainer, KeepsSmallContentInMemory) {
    KORVA_SpoolingAttachmentContainer container;
    append(container, bytes(65536), 2048);
    EXPECT_FALSE(container.isSpooled());
    container.append("", 1);
    EXPECT_TRUE(container.isSpooled());
    EXPECT_EQ(container.size(), 65537u);
    EXPECT_EQ(written(*container.getStreamable()), bytes(65536) + '\0');
}

TEST(SpoolingContainer, IsWrittenAnyNumberOfTimes) {
    KORVA_SpoolingAttachmentContainer container(10);
    append(container, bytes(50000), 2048);
    const KORVA_Streamable& streamable = *container.getStreamable();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(written(streamable), bytes(50000));
    // Reading moves nothing that writing sees.
    char some[100];
    EXPECT_EQ(container.getStreamable()->read(some, sizeof some), 100);
    EXPECT_EQ(written(streamable), bytes(50000));
    EXPECT_EQ(readAll(*container.getStreamable()), bytes(50000).substr(100));
}

TEST(SpoolingContainer, IsReadAgainAfterRewind) {
    for (const std::size_t threshold : {10ul, 100000ul}) {
        KORVA_SpoolingAttachmentContainer container(threshold);
        append(container, bytes(5000), 2048);
        KORVA_Streamable& streamable = *container.getStreamable();
        EXPECT_EQ(readAll(streamable), bytes(5000));
        char byte = 0;
        EXPECT_EQ(streamable.read(&byte, 1), 0);
        EXPECT_EQ(streamable.read(&byte, 1), 0);
        container.rewind();
        EXPECT_EQ(readAll(streamable), bytes(5000));
    }
}

TEST(SpoolingContainer, WhatIsAppendedWhileItIsReadIsReadToo) {
    KORVA_SpoolingAttachmentContainer container(10);
    std::string expected;
    std::string read;
    for (int i = 0; i < 100; ++i) {
        const std::string piece = std::to_string(i);
        append(container, piece, 100);
        expected += piece;
        read += readAll(*container.getStreamable());
    }
    EXPECT_EQ(read, expected);
}

TEST(SpoolingContainer, CarriesBinaryValues) {
    KORVA_SpoolingAttachmentContainer container(10);
    append(container, bytes(3000), 2048);
    KORVAXSBase64Binary value;
    value.reference(*container.getStreamable());
    KORVAXSBase64Binary same(bytes(3000).data(), 3000);
    for (int i = 0; i < 2; ++i) {
        korva::test::CollectingStream out;
        korva::test::CollectingStream expected;
        value.serialize(out);
        same.serialize(expected);
        EXPECT_EQ(out.text, expected.text);
    }
}

TEST(SpoolingContainer, CarriesCompressedValues) {
    KORVA_SpoolingAttachmentContainer container(10);
    append(container, gzipped("some text"), 2048);
    KORVAXSBase64Compressed value;
    value.reference(*container.getStreamable(), true);
    for (int i = 0; i < 2; ++i) {
        korva::test::CollectingStream out;
        value.serialize(out);
        EXPECT_EQ(out.text, "c29tZSB0ZXh0");
        container.rewind();
    }
}

TEST(SpoolingContainer, ContainersThatShareAFileKeepTheirBytesApart) {
    constexpr std::size_t count = 5;
    std::vector<std::unique_ptr<KORVA_SpoolingAttachmentContainer>> containers;
    std::vector<std::string> expected(count);
    for (std::size_t i = 0; i < count; ++i) {
        containers.push_back(std::make_unique<KORVA_SpoolingAttachmentContainer>(10));
        if (i != 0) containers[i]->shareFile(*containers[0]);
    }
    // Turn and turn about, in pieces of every size.
    for (std::size_t turn = 0; turn < 200; ++turn) {
        const std::size_t i = turn * 7 % count;
        const std::string piece(turn % 23, static_cast<char>('a' + turn % 26));
        containers[i]->append(piece.data(), piece.size());
        expected[i] += piece;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (i % 2 == 0) containers[i]->finish(0);
        EXPECT_TRUE(containers[i]->isSpooled());
        EXPECT_EQ(containers[i]->size(), expected[i].size());
        EXPECT_EQ(written(*containers[i]->getStreamable()), expected[i]);
        EXPECT_EQ(readAll(*containers[i]->getStreamable(), 64), expected[i]);
    }
    // The file is there as long as one of them.
    containers.erase(containers.begin(), containers.begin() + 4);
    EXPECT_EQ(written(*containers[0]->getStreamable()), expected[4]);
    KORVA_SpoolingAttachmentContainer late(10);
    EXPECT_ASSERTION(containers[0]->shareFile(late), "ZEL_ASSERT(m_extents.empty());");
}

TEST(SpoolingContainer, WhatIsFinishedStaysInMemoryAsLongAsThereIsRoom) {
    KORVA_SpoolingAttachmentContainer first;
    KORVA_SpoolingAttachmentContainer second;
    KORVA_SpoolingAttachmentContainer third;
    second.shareFile(first);
    third.shareFile(first);
    append(first, bytes(600), 600);
    append(second, bytes(500), 500);
    first.finish(1000);
    second.finish(1000);
    EXPECT_FALSE(first.isSpooled());
    EXPECT_TRUE(second.isSpooled());
    // What is appended behind is no longer finished, and leaves its room.
    append(first, bytes(1), 1);
    append(third, bytes(1000), 1000);
    third.finish(1000);
    EXPECT_FALSE(third.isSpooled());
    first.finish(1000);
    EXPECT_TRUE(first.isSpooled());
    EXPECT_EQ(written(*first.getStreamable()), bytes(600) + bytes(1));
    EXPECT_EQ(written(*second.getStreamable()), bytes(500));
    EXPECT_EQ(written(*third.getStreamable()), bytes(1000));
}

TEST(SpoolingContainer, NeedsAThreshold) {
    EXPECT_ASSERTION(KORVA_SpoolingAttachmentContainer(0), "ZEL_ASSERT(threshold > 0);");
}

TEST(SpoolingContainer, TheFactoryMakesOne) {
    const std::unique_ptr<KORVA_AttachmentContainerI> container(
        KORVA_SpoolingAttachmentContainer::create());
    EXPECT_NE(dynamic_cast<KORVA_SpoolingAttachmentContainer*>(container.get()), nullptr);
}

#if !defined(_WIN32)
TEST(SpoolingContainer, LeavesNoFileBehind) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("korva-test-" + std::to_string(::rand()));
    std::filesystem::create_directory(folder);
    ::setenv("TMPDIR", folder.c_str(), 1);
    {
        KORVA_SpoolingAttachmentContainer container(10);
        append(container, bytes(100000), 2048);
        EXPECT_TRUE(container.isSpooled());
        EXPECT_TRUE(std::filesystem::is_empty(folder));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_TRUE(std::filesystem::remove(folder));
    KORVA_SpoolingAttachmentContainer container(10);
    EXPECT_EQ(streamErrorOf([&] { append(container, bytes(11), 11); }),
              "opening a temporary file: No such file or directory");
    ::unsetenv("TMPDIR");
}
#endif

}  // namespace
