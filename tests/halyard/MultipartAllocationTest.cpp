// What happens to messages when memory runs out at any point.
#include "tests/halyard/Messages.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <halyard/HALYARDTKMultipartWriter.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::forEachFailingAllocation;
using korva::test::lines;

TEST(MultipartAllocation, AFailureWhileReadingLeavesNothingBehind) {
    const std::string text = lines(
                                 "--b|Content-Type: text/xml; charset=UTF-8|Content-Encoding: "
                                 "gzip||") +
                             korva::test::gzipped("<e/>") +
                             lines(
                                 "|--b|Content-ID: <an-id-that-is-long-enough>|"
                                 "Content-Transfer-Encoding: base64||AAEC|--b--|");
    const std::string type = "multipart/related; start-info=\"a text of some length\"; boundary=b";
    EXPECT_GT(forEachFailingAllocation([&] {
                  BRIMMemoryInputStream in(text.data(), text.size());
                  HALYARDTKMultipartReader reader(in, type.c_str());
                  char bytes[100];
                  while (reader.getRoot().read(bytes, sizeof bytes) > 0) {
                  }
                  while (reader.hasNextPart()) {
                      HALYARDTKMessagePart* const part = reader.getNextPart();
                      while (part->getStream().read(bytes, sizeof bytes) > 0) {
                      }
                      reader.releasePart(part);
                  }
              }),
              5u);
}

TEST(MultipartAllocation, AFailureWhileWritingLeavesNothingBehind) {
    BRIMMemoryOutputStream out(10000);
    out.write("", 1);
    EXPECT_GT(forEachFailingAllocation([&] {
                  out.reset();
                  HALYARDTKMultipartWriter writer(out);
                  writer.beginRoot().write("<e/>", 4);
                  BRIMMemoryInputStream content("abc", 3);
                  writer.writePart("one", "text/plain", content, HALYARDTKMultipartWriter::eGzip);
                  writer.beginPart("two", "text/plain").write("abc", 3);
                  writer.close();
              }),
              5u);
}

TEST(MultipartAllocation, AFailureWhileAFailureIsToldLeavesNothingBehind) {
    // Either may come out: what was to be told, or that there is no memory for it.
    for (std::size_t n = 1;; ++n) {
        const std::size_t live = korva::test::liveAllocations();
        bool happened = false;
        {
            const std::string text = lines("--b|Content-Encoding: none||<e/>|--b--");
            BRIMMemoryInputStream in(text.data(), text.size());
            const korva::test::AllocationFailure failure(n);
            EXPECT_THROW(HALYARDTKMultipartReader(in, "multipart/related; boundary=b").getRoot(),
                         ZELThrowable);
            happened = failure.happened();
        }
        EXPECT_EQ(korva::test::liveAllocations(), live) << n;
        if (!happened) break;
    }
}

}  // namespace
