#include "tests/brim/Streams.h"

#include <brim/BRIMDescriptorInputStream.h>
#include <brim/BRIMDescriptorOutputStream.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>

#if !defined(_WIN32)

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace {

using korva::test::readAll;
using korva::test::streamErrorOf;

struct Pipe {
    Pipe() { EXPECT_EQ(::pipe(ends), 0); }
    ~Pipe() {
        for (const int end : ends) {
            if (end >= 0) ::close(end);
        }
    }
    int release(int index) {
        const int end = ends[index];
        ends[index] = -1;
        return end;
    }
    int ends[2];
};

bool isOpen(int descriptor) {
    return ::fcntl(descriptor, F_GETFD) != -1;
}

TEST(DescriptorStream, CarriesMoreThanAPipeHolds) {
    Pipe pipe;
    std::string bytes;
    for (int i = 0; i < 1000000; ++i)
        bytes += static_cast<char>(i * 13);
    std::thread writer([&] {
        BRIMDescriptorOutputStream out(pipe.release(1), BRIMDescriptorOutputStream::eOwned);
        std::size_t done = 0;
        for (std::size_t piece = 1; done < bytes.size(); piece = piece * 3 + 1) {
            const std::size_t count = std::min(piece, bytes.size() - done);
            out.write(bytes.data() + done, count);
            done += count;
        }
    });
    BRIMDescriptorInputStream in(pipe.ends[0]);
    EXPECT_EQ(readAll(in, 3000), bytes);
    writer.join();
}

TEST(DescriptorStream, HoldsSmallWritesBackUntilFlush) {
    Pipe pipe;
    ASSERT_EQ(::fcntl(pipe.ends[0], F_SETFL, O_NONBLOCK), 0);
    BRIMDescriptorOutputStream out(pipe.ends[1]);
    out.write("abc", 3);
    out.write("de", 2);
    char bytes[16];
    EXPECT_EQ(::read(pipe.ends[0], bytes, sizeof bytes), -1);
    out.flush();
    ASSERT_EQ(::read(pipe.ends[0], bytes, sizeof bytes), 5);
    EXPECT_EQ(std::string(bytes, 5), "abcde");
    out.flush();
    EXPECT_EQ(::read(pipe.ends[0], bytes, sizeof bytes), -1);
}

TEST(DescriptorStream, GivesWhatIsThereWithoutWaitingForMore) {
    Pipe pipe;
    ASSERT_EQ(::write(pipe.ends[1], "abc", 3), 3);
    BRIMDescriptorInputStream in(pipe.ends[0]);
    char bytes[16];
    EXPECT_EQ(in.read(bytes, sizeof bytes), 3);
}

TEST(DescriptorStream, BorrowedDescriptorStaysOpen) {
    Pipe pipe;
    {
        BRIMDescriptorOutputStream out(pipe.ends[1]);
        out.write("x", 1);
        out.close();
        out.close();
        EXPECT_THROW(out.write("y", 1), ZELAssertError);
        const BRIMDescriptorInputStream in(pipe.ends[0]);
    }
    EXPECT_TRUE(isOpen(pipe.ends[0]));
    EXPECT_TRUE(isOpen(pipe.ends[1]));
    char byte = 0;
    EXPECT_EQ(::read(pipe.ends[0], &byte, 1), 1);
    EXPECT_EQ(byte, 'x');
}

TEST(DescriptorStream, OwnedDescriptorIsClosed) {
    Pipe pipe;
    const int in = pipe.release(0);
    const int out = pipe.release(1);
    {
        BRIMDescriptorOutputStream stream(out, BRIMDescriptorOutputStream::eOwned);
        stream.close();
        EXPECT_FALSE(isOpen(out));
    }
    { const BRIMDescriptorInputStream stream(in, BRIMDescriptorInputStream::eOwned); }
    EXPECT_FALSE(isOpen(in));
}

TEST(DescriptorStream, DestructorWritesTheRest) {
    Pipe pipe;
    { BRIMDescriptorOutputStream(pipe.ends[1]).write("rest", 4); }
    char bytes[4];
    ASSERT_EQ(::read(pipe.ends[0], bytes, 4), 4);
    EXPECT_EQ(std::string(bytes, 4), "rest");
}

TEST(DescriptorStream, FailuresCarryTheSystemsText) {
    Pipe pipe;
    BRIMDescriptorInputStream in(pipe.ends[1]);
    EXPECT_EQ(streamErrorOf([&] { readAll(in); }),
              "reading from a descriptor: Bad file descriptor");
    BRIMDescriptorOutputStream out(pipe.ends[0]);
    out.write("x", 1);
    EXPECT_EQ(streamErrorOf([&] { out.flush(); }), "writing to a descriptor: Bad file descriptor");
    const std::string much(100000, 'x');
    EXPECT_EQ(streamErrorOf([&] { out.write(much.data(), much.size()); }),
              "writing to a descriptor: Bad file descriptor");
    out.write("x", 1);
    EXPECT_EQ(streamErrorOf([&] { out.close(); }), "writing to a descriptor: Bad file descriptor");
    out.close();
}

TEST(DescriptorStream, OwnedDescriptorIsClosedEvenIfTheRestCannotBeWritten) {
    Pipe pipe;
    const int wrongEnd = pipe.release(0);
    BRIMDescriptorOutputStream out(wrongEnd, BRIMDescriptorOutputStream::eOwned);
    out.write("x", 1);
    EXPECT_THROW(out.close(), BRIMStreamError);
    EXPECT_FALSE(isOpen(wrongEnd));
}

TEST(DescriptorStream, DestructorDropsAFailure) {
    Pipe pipe;
    BRIMDescriptorOutputStream(pipe.ends[0]).write("x", 1);
    EXPECT_TRUE(isOpen(pipe.ends[0]));
}

TEST(DescriptorStream, BrokenPipeIsAnError) {
    Pipe pipe;
    ::close(pipe.release(0));
    const auto before = ::signal(SIGPIPE, SIG_IGN);
    BRIMDescriptorOutputStream out(pipe.ends[1]);
    out.write("x", 1);
    EXPECT_EQ(streamErrorOf([&] { out.flush(); }), "writing to a descriptor: Broken pipe");
    ::signal(SIGPIPE, before);
}

}  // namespace

#endif
