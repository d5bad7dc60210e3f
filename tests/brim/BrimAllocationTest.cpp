// What happens to the streams when memory runs out at any point.

#include "tests/support/AllocationFailure.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMGZIPInputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <brim/BRIMXmlEncodeOutputStream.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <string>
#include <string_view>

namespace {

using korva::test::failEachAllocation;
using korva::test::liveAllocations;

TEST(StreamAllocationFailure, MemoryOutputKeepsWhatWasWritten) {
    const std::size_t live = liveAllocations();
    int failures = 0;
    failEachAllocation([&] {
        BRIMMemoryOutputStream out(4);
        std::size_t written = 0;
        try {
            for (; written < 100; ++written)
                out.write("x", 1);
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
        EXPECT_EQ(std::string_view(out.str()).size(), written);
    });
    EXPECT_GE(failures, 5);
    EXPECT_EQ(liveAllocations(), live);
}

TEST(StreamAllocationFailure, FiltersAllocateNothingThemselves) {
    BRIMMemoryOutputStream out(200000);
    out.write("", 1);
    const std::string text(100000, '<');
    const std::size_t before = korva::test::allocationsSoFar();
    {
        BRIMBase64OutputStream base64(out);
        base64.write(text.data(), text.size());
        base64.close();
        out.reset();
        BRIMXmlEncodeOutputStream xml(out);
        xml.write(text.data(), 1000);
        BRIMMemoryInputStream in("Zm9v", 4);
        BRIMBase64InputStream decoder(in);
        char bytes[8];
        EXPECT_EQ(decoder.read(bytes, sizeof bytes), 3);
    }
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
}

TEST(StreamAllocationFailure, GzipRaisesOutOfMemoryError) {
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += std::to_string(i);
    uLongf size = compressBound(static_cast<uLong>(text.size()));
    std::string data(size + 64, '\0');
    z_stream zip{};
    ASSERT_EQ(deflateInit2(&zip, 6, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY), Z_OK);
    zip.next_in = reinterpret_cast<Bytef*>(text.data());
    zip.avail_in = static_cast<uInt>(text.size());
    zip.next_out = reinterpret_cast<Bytef*>(data.data());
    zip.avail_out = static_cast<uInt>(data.size());
    ASSERT_EQ(deflate(&zip, Z_FINISH), Z_STREAM_END);
    data.resize(zip.total_out);
    deflateEnd(&zip);

    const std::size_t live = liveAllocations();
    int failures = 0;
    failEachAllocation([&] {
        try {
            BRIMMemoryInputStream in(data.data(), data.size());
            BRIMGZIPInputStream gzip(in);
            char bytes[1000];
            std::size_t total = 0;
            for (long long count; (count = gzip.read(bytes, sizeof bytes)) > 0;) {
                total += static_cast<std::size_t>(count);
            }
            EXPECT_EQ(total, text.size());
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
    });
    EXPECT_GE(failures, 3);
    EXPECT_EQ(liveAllocations(), live);
}

TEST(StreamAllocationFailure, BadBase64IsAlwaysAFailureOfOneOfTheTwoKinds) {
    const std::size_t live = liveAllocations();
    int outOfMemory = 0;
    int streamErrors = 0;
    failEachAllocation([&] {
        BRIMMemoryInputStream in("*", 1);
        BRIMBase64InputStream decoder(in);
        char bytes[8];
        try {
            decoder.read(bytes, sizeof bytes);
        } catch (const BRIMStreamError&) {
            ++streamErrors;
        } catch (const ZELOutOfMemoryError&) {
            ++outOfMemory;
        }
    });
    EXPECT_GE(outOfMemory, 1);
    EXPECT_GE(streamErrors, 1);
    EXPECT_EQ(liveAllocations(), live);
}

}  // namespace
