#include "tests/brim/Streams.h"

#include <brim/BRIMTemporaryFile.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#if !defined(_WIN32)
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

using korva::test::streamErrorOf;

std::string contents(const BRIMTemporaryFile& file, unsigned long long offset, std::size_t size) {
    std::string bytes(size, '?');
    bytes.resize(file.read(offset, bytes.data(), size));
    return bytes;
}

TEST(TemporaryFile, HoldsWhatWasAppended) {
    BRIMTemporaryFile file;
    EXPECT_EQ(file.size(), 0u);
    EXPECT_EQ(contents(file, 0, 10), "");
    const std::string bytes("a\0b", 3);
    file.append(bytes.data(), bytes.size());
    file.append(nullptr, 0);
    file.append("cd", 2);
    EXPECT_EQ(file.size(), 5u);
    EXPECT_EQ(contents(file, 0, 10), bytes + "cd");
}

TEST(TemporaryFile, IsReadAnywhereAndAgain) {
    BRIMTemporaryFile file;
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += std::to_string(i) + ' ';
    file.append(text.data(), text.size());
    EXPECT_EQ(contents(file, 50000, 10), text.substr(50000, 10));
    EXPECT_EQ(contents(file, 3, 90000), text.substr(3, 90000));
    EXPECT_EQ(contents(file, 0, text.size()), text);
    EXPECT_EQ(contents(file, text.size() - 2, 10), text.substr(text.size() - 2));
    EXPECT_EQ(contents(file, text.size(), 10), "");
    EXPECT_EQ(contents(file, text.size() + 1000, 10), "");
}

TEST(TemporaryFile, GrowsAtItsEndAfterReading) {
    BRIMTemporaryFile file;
    file.append("abc", 3);
    EXPECT_EQ(contents(file, 1, 1), "b");
    file.append("def", 3);
    EXPECT_EQ(contents(file, 0, 6), "abcdef");
}

TEST(TemporaryFile, FilesAreApart) {
    BRIMTemporaryFile one;
    BRIMTemporaryFile other;
    one.append("one", 3);
    other.append("other", 5);
    EXPECT_EQ(contents(one, 0, 10), "one");
    EXPECT_EQ(contents(other, 0, 10), "other");
}

#if !defined(_WIN32)

/// Sets TMPDIR while it lives.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const char* folder) {
        if (const char* const before = std::getenv("TMPDIR"))
            m_before = std::make_unique<std::string>(before);
        ::setenv("TMPDIR", folder, 1);
    }
    ~TemporaryFolder() {
        if (m_before)
            ::setenv("TMPDIR", m_before->c_str(), 1);
        else
            ::unsetenv("TMPDIR");
    }

private:
    std::unique_ptr<std::string> m_before;
};

TEST(TemporaryFile, HasNoNameInTheFolder) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("brim-test-" + std::to_string(::rand()));
    std::filesystem::create_directory(folder);
    {
        const TemporaryFolder set(folder.c_str());
        BRIMTemporaryFile file;
        file.append("abc", 3);
        EXPECT_TRUE(std::filesystem::is_empty(folder));
        EXPECT_EQ(contents(file, 0, 10), "abc");
    }
    EXPECT_TRUE(std::filesystem::remove(folder));
}

TEST(TemporaryFile, StandsInTheUsualFolderIfNoneIsSet) {
    const TemporaryFolder set("");
    BRIMTemporaryFile file;
    file.append("abc", 3);
    EXPECT_EQ(contents(file, 0, 10), "abc");
}

TEST(TemporaryFile, AFolderThatCannotBeUsedIsTold) {
    {
        const TemporaryFolder set("/no/such/folder");
        EXPECT_EQ(streamErrorOf([] { BRIMTemporaryFile file; }),
                  "opening a temporary file: No such file or directory");
    }
    const std::string longName(5000, 'x');
    const TemporaryFolder set(longName.c_str());
    EXPECT_EQ(streamErrorOf([] { BRIMTemporaryFile file; }),
              "opening a temporary file: File name too long");
}

TEST(TemporaryFile, AFailureToAppendLeavesWhatWasThere) {
    BRIMTemporaryFile file;
    file.append("abc", 3);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{5, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string error = streamErrorOf([&] { file.append("defghi", 6); });
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, "writing to a temporary file: File too large");
    EXPECT_EQ(file.size(), 3u);
    file.append("xyz", 3);
    EXPECT_EQ(contents(file, 0, 10), "abcxyz");
}

#endif

}  // namespace
