#include <brim/BRIMCopy.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

/// Gives its text in pieces of these sizes.
class PiecewiseStream final : public BRIMInputStream {
public:
    PiecewiseStream(std::string text, std::vector<std::size_t> sizes)
        : m_text(std::move(text)), m_sizes(std::move(sizes)) {}

    long long read(char* buffer, std::size_t size) override {
        if (m_next == m_sizes.size()) return 0;
        const std::size_t count = std::min(size, m_sizes[m_next++]);
        m_text.copy(buffer, count, m_position);
        m_position += count;
        return static_cast<long long>(count);
    }

private:
    std::string m_text;
    std::vector<std::size_t> m_sizes;
    std::size_t m_next = 0;
    std::size_t m_position = 0;
};

/// Takes some bytes, and no more.
class FullStream final : public BRIMOutputStream {
public:
    void write(const char*, std::size_t) override {
        if (++writes == 2) ZEL_THROW(BRIMStreamError("full"));
    }

    int writes = 0;
};

std::string large() {
    std::string text;
    for (unsigned i = 0; text.size() < 100'000; ++i)
        text += std::to_string(i * i) + '\0';
    return text;
}

std::string copied(BRIMInputStream& in) {
    BRIMMemoryOutputStream out;
    brim::copy(in, out);
    return {out.str(), out.pcount()};
}

}  // namespace

TEST(StreamCopy, WritesAllThatIsLeft) {
    const std::string text = large();
    BRIMMemoryInputStream in(text.data(), text.size());
    char begin[10];
    ASSERT_EQ(in.read(begin, sizeof begin), 10);
    EXPECT_EQ(copied(in), text.substr(10));
}

TEST(StreamCopy, TakesPiecesAsTheyCome) {
    PiecewiseStream in("one, two, three", {1, 4, 10});
    EXPECT_EQ(copied(in), "one, two, three");
}

TEST(StreamCopy, OfNothingWritesNothing) {
    PiecewiseStream in("", {});
    FullStream out;
    brim::copy(in, out);
    EXPECT_EQ(out.writes, 0);
}

TEST(StreamCopy, LetsThroughWhatAStreamThrows) {
    const std::string text = large();
    BRIMMemoryInputStream in(text.data(), text.size());
    FullStream out;
    EXPECT_THROW(brim::copy(in, out), BRIMStreamError);
    EXPECT_EQ(out.writes, 2);
}
