#include "tests/support/TestStreams.h"

#include <brim/BRIMBase64OutputStream.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <zel/ZELThrowable.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace {

using korva::test::CollectingStream;
using korva::test::TextStreamable;

std::string gzip(const std::string& data) {
    z_stream stream{};
    constexpr int gzipHeader = 16;
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + gzipHeader, 8,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("deflateInit2");
    std::string packed(deflateBound(&stream, data.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    if (deflate(&stream, Z_FINISH) != Z_STREAM_END) throw std::runtime_error("deflate");
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

std::string base64(const std::string& data) {
    CollectingStream out;
    BRIMBase64OutputStream encoder(out);
    encoder.write(data.data(), data.size());
    encoder.close();
    return out.text;
}

std::string written(const KORVAXSBase64Binary& value) {
    CollectingStream out;
    value.serialize(out);
    return out.text;
}

/// Data that neither fit into one piece nor compress to nothing.
std::string longData() {
    std::string data;
    unsigned number = 1;
    while (data.size() < 100000) {
        number = number * 1103515245u + 12345u;
        data += std::to_string(number);
    }
    return data;
}

TEST(Base64Compressed, GzipDataIsExpandedOnTheWayOut) {
    const std::string data = longData();
    const TextStreamable source(gzip(data));
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    EXPECT_TRUE(value.isCompressed());
    EXPECT_EQ(written(value), base64(data));
}

TEST(Base64Compressed, SourceMayBeReadInSmallPieces) {
    const std::string data = longData();
    const TextStreamable source(gzip(data), 7);
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    EXPECT_EQ(written(value), base64(data));
}

/// Gives its bytes again when it is rewound, and never writes itself.
class RewoundStreamable : public TextStreamable {
public:
    using TextStreamable::TextStreamable;

    BRIMOutputStream& operator>>(BRIMOutputStream&) const override {
        throw std::logic_error("held as a whole");
    }
    bool rewind() override {
        restart();
        return true;
    }
};

TEST(Base64Compressed, MayBeWrittenAgain) {
    const std::string data = longData();
    const TextStreamable source(gzip(data), 1000);
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(written(value), base64(data));
}

TEST(Base64Compressed, ARewoundSourceIsNeverHeldAsAWhole) {
    const std::string data = longData();
    const RewoundStreamable source(gzip(data), 1000);
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(written(value), base64(data));
}

TEST(Base64Compressed, MayBeWrittenAgainAfterAFailureInTheMiddle) {
    /// Fails at the second write.
    class FailingStream : public BRIMOutputStream {
    public:
        void write(const char*, std::size_t) override {
            if (++m_writes == 2) throw std::runtime_error("full");
        }

    private:
        int m_writes = 0;
    };
    const std::string data = longData();
    const RewoundStreamable source(gzip(data), 1000);
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    FailingStream out;
    EXPECT_THROW(value.serialize(out), ZELThrowable);
    EXPECT_EQ(written(value), base64(data));
}

TEST(Base64Compressed, ACopyOfAValueThatWasWrittenIsWritten) {
    const TextStreamable source(gzip("text"));
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    EXPECT_EQ(written(value), base64("text"));
    KORVAXSBase64Compressed other;
    other.reference(source, true);
    EXPECT_EQ(written(other), base64("text"));
}

TEST(Base64Compressed, PlainStreamIsOnlyEncoded) {
    const std::string packed = gzip("text");
    const TextStreamable source(packed);
    KORVAXSBase64Compressed value;
    value.reference(source, false);
    EXPECT_FALSE(value.isCompressed());
    EXPECT_EQ(written(value), base64(packed));
}

TEST(Base64Compressed, WithoutAStreamItIsAnOrdinaryValue) {
    KORVAXSBase64Compressed value;
    EXPECT_FALSE(value.isCompressed());
    EXPECT_EQ(written(value), "");
    value.append("abc", 3);
    EXPECT_EQ(written(value), "YWJj");
    value.setIsContentId(true);
    EXPECT_EQ(written(value), "abc");
}

TEST(Base64Compressed, BytesThatTakeTheStreamsPlaceAreNotExpanded) {
    const TextStreamable source(gzip("text"));
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    value.reference("abc", 3);
    EXPECT_EQ(written(value), "YWJj");
}

TEST(Base64Compressed, EmptyGzipDataWriteNothing) {
    const TextStreamable source(gzip(""));
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    EXPECT_EQ(written(value), "");
}

TEST(Base64Compressed, DamagedDataRaise) {
    std::string packed = gzip(longData());
    packed[packed.size() / 2] = static_cast<char>(~packed[packed.size() / 2]);
    const TextStreamable damaged(packed);
    const TextStreamable noGzip("this is no gzip data");
    const TextStreamable truncated(gzip(longData()).substr(0, 1000));
    for (const TextStreamable* const source : {&damaged, &noGzip, &truncated}) {
        KORVAXSBase64Compressed value;
        value.reference(*source, true);
        EXPECT_THROW(written(value), ZELThrowable);
    }
}

}  // namespace
