#include "tests/brim/Streams.h"

#include <brim/BRIMFileInputStream.h>
#include <brim/BRIMFileOutputStream.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using korva::test::readAll;
using korva::test::streamErrorOf;

class FileStream : public testing::Test {
protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        m_directory = std::filesystem::path(testing::TempDir()) /
                      (std::string("korva_file_stream_") + test->name());
        std::filesystem::remove_all(m_directory);
        std::filesystem::create_directories(m_directory);
    }
    void TearDown() override { std::filesystem::remove_all(m_directory); }

    std::string path(const char* name) const { return (m_directory / name).string(); }

    static std::string contents(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::filesystem::path m_directory;
};

TEST_F(FileStream, WritesAndReadsAnyBytes) {
    std::string bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i * 7);
    {
        BRIMFileOutputStream out(path("file").c_str());
        out.write(bytes.data(), 10);
        out.write(nullptr, 0);
        out.write(bytes.data() + 10, bytes.size() - 10);
    }
    EXPECT_EQ(contents(path("file")), bytes);
    BRIMFileInputStream in(path("file").c_str());
    EXPECT_EQ(readAll(in, 777), bytes);
    char byte;
    EXPECT_EQ(in.read(&byte, 1), 0);
}

TEST_F(FileStream, ReplacesOrAppends) {
    BRIMFileOutputStream(path("file").c_str()).write("first", 5);
    BRIMFileOutputStream(path("file").c_str(), BRIMFileOutputStream::eAppend).write("+", 1);
    EXPECT_EQ(contents(path("file")), "first+");
    BRIMFileOutputStream(path("file").c_str(), BRIMFileOutputStream::eReplace).write("new", 3);
    EXPECT_EQ(contents(path("file")), "new");
}

TEST_F(FileStream, FlushShowsWhatWasWritten) {
    BRIMFileOutputStream out(path("file").c_str());
    out.write("abc", 3);
    out.flush();
    EXPECT_EQ(contents(path("file")), "abc");
}

TEST_F(FileStream, CloseEndsTheStream) {
    BRIMFileOutputStream out(path("file").c_str());
    out.write("abc", 3);
    out.close();
    EXPECT_EQ(contents(path("file")), "abc");
    out.close();
    out.flush();
    EXPECT_THROW(out.write("d", 1), ZELAssertError);
}

TEST_F(FileStream, PathIsUtf8) {
    const std::string name = path(
        "gr\xC3\xBC\xC3\x9F"
        "e");
    BRIMFileOutputStream(name.c_str()).write("x", 1);
    BRIMFileInputStream in(name.c_str());
    EXPECT_EQ(readAll(in), "x");
}

TEST_F(FileStream, MissingFileIsToldWithItsPathAndTheSystemsText) {
    const std::string missing = path("missing");
    EXPECT_EQ(streamErrorOf([&] { BRIMFileInputStream in(missing.c_str()); }),
              missing + ": No such file or directory");
    const std::string deep = path("missing") + "/file";
    EXPECT_EQ(streamErrorOf([&] { BRIMFileOutputStream out(deep.c_str()); }),
              deep + ": No such file or directory");
}

TEST_F(FileStream, NullPathIsAnAssertion) {
    EXPECT_THROW(BRIMFileInputStream(nullptr), ZELAssertError);
    EXPECT_THROW(BRIMFileOutputStream(nullptr), ZELAssertError);
}

TEST_F(FileStream, ReadingADirectoryFails) {
    const std::string error = streamErrorOf([&] {
        BRIMFileInputStream in(path(".").c_str());
        readAll(in);
    });
    EXPECT_NE(error, "no error");
}

TEST_F(FileStream, FullDeviceIsToldAtTheLatestByClose) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    BRIMFileOutputStream small("/dev/full");
    small.write("x", 1);
    EXPECT_EQ(streamErrorOf([&] { small.close(); }), "closing a file: No space left on device");
    BRIMFileOutputStream flushed("/dev/full");
    flushed.write("x", 1);
    EXPECT_EQ(streamErrorOf([&] { flushed.flush(); }), "writing a file: No space left on device");
    const std::string much(1 << 20, 'x');
    BRIMFileOutputStream large("/dev/full");
    EXPECT_EQ(streamErrorOf([&] { large.write(much.data(), much.size()); }),
              "writing a file: No space left on device");
    BRIMFileOutputStream dropped("/dev/full");
    dropped.write("x", 1);  // its destructor drops the failure
}

}  // namespace
