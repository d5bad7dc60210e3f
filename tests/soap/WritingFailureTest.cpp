// What leaves the serializers when the stream or the memory fails in the middle.
#include "tests/soap/ElementWriting.h"
#include "tests/soap/SampleMessages.h"
#include "tests/support/AllocationFailure.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVAObjectSerializerFactory.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASOAPMessageISerializerFactory.h>
#include <korva/KORVAStringArray.h>
#include <zel/ZELException.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace {

using korva::test::Call;
using korva::test::forEachFailingAllocation;
using korva::test::liveAllocations;

/// Neither of the library's family nor of the standard's.
struct StreamFailure {};

/// Takes bytes until the n-th write, which fails; takes them again from then on.
class FailingStream : public BRIMOutputStream {
public:
    FailingStream(int failingWrite, std::function<void()> fail)
        : m_left(failingWrite), m_fail(std::move(fail)) {}

    void write(const char* bytes, std::size_t length) override {
        if (--m_left == 0) m_fail();
        text.append(bytes, length);
    }

    bool hasFailed() const { return m_left <= 0; }

    std::string text;

private:
    int m_left;
    std::function<void()> m_fail;
};

/// Counts bytes and keeps nothing, so that it needs no memory.
class CountingStream : public BRIMOutputStream {
public:
    void write(const char*, std::size_t length) override { bytes += length; }
    std::size_t bytes = 0;
};

Call makeFilledCall() {
    const Call call = korva::test::makeRunCall();
    korva::test::fillHeader(call->getInputMessage());
    korva::test::fillRunRequest(call->getInputMessage());
    korva::test::fillHeader(call->getOutputMessage());
    korva::test::fillRunReply(call->getOutputMessage());
    return call;
}

std::string written(KORVAPortTypeBinding& call, KORVAMessageI& message) {
    korva::test::CollectingStream stream;
    KORVASOAPMessageISerializer().serialize(call, message, stream);
    return stream.text;
}

/// Lets each write of an envelope fail in turn; `expectFailure` runs the writing and says what
/// should leave it. Returns the number of writes.
int failEachWrite(KORVAMessageI& message, KORVAPortTypeBinding& call,
                  const std::function<void()>& fail,
                  const std::function<void(const std::function<void()>&)>& expectFailure) {
    const std::string whole = written(call, message);
    for (int n = 1;; ++n) {
        const std::size_t live = liveAllocations();
        bool done = false;
        {
            FailingStream stream(n, fail);
            const auto write = [&] {
                KORVASOAPMessageISerializer().serialize(call, message, stream);
            };
            // Whether there are that many writes is known only afterwards.
            expectFailure([&] {
                write();
                done = true;
                fail();
            });
            if (done) {
                EXPECT_EQ(stream.text, whole);
            } else {
                EXPECT_TRUE(stream.hasFailed());
                // Nothing follows the failure, and nothing is taken back.
                EXPECT_LT(stream.text.size(), whole.size());
                EXPECT_EQ(whole.compare(0, stream.text.size(), stream.text), 0)
                    << "after failure of write " << n << ": " << stream.text;
            }
        }
        EXPECT_EQ(liveAllocations(), live) << "leak after failure of write " << n;
        if (done || testing::Test::HasFailure()) return n - 1;
    }
}

TEST(WritingFailure, AStreamsOwnExceptionPassesUnchanged) {
    const Call call = makeFilledCall();
    const auto fail = [] { throw StreamFailure(); };
    const auto expect = [](const std::function<void()>& write) {
        EXPECT_THROW(write(), StreamFailure);
    };
    EXPECT_GT(failEachWrite(call->getInputMessage(), *call, fail, expect), 100);
    EXPECT_GT(failEachWrite(call->getOutputMessage(), *call, fail, expect), 100);
}

TEST(WritingFailure, AnExceptionOfTheFamilyKeepsItsTypeAndGetsTraceLines) {
    const Call call = makeFilledCall();
    const auto fail = [] { ZEL_THROW(ZELException("the pipe is broken"), "pipe"); };
    const auto expect = [](const std::function<void()>& write) {
        try {
            write();
            ADD_FAILURE() << "nothing was thrown";
        } catch (const ZELException& exception) {
            EXPECT_STREQ(exception.getErrorCodeString(), "the pipe is broken");
        }
    };
    EXPECT_GT(failEachWrite(call->getInputMessage(), *call, fail, expect), 100);

    FailingStream stream(1, fail);
    try {
        KORVASOAPMessageISerializer().serialize(*call, call->getInputMessage(), stream);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ZELException& exception) {
        const auto& trace = exception.getBackTrace();
        ASSERT_EQ(trace.size(), 3u);
        EXPECT_NE(std::string(trace[0]).find("pipe"), std::string::npos) << trace[0];
        EXPECT_NE(std::string(trace[1]).find("KORVASOAPSerializer::serializeEnvelope()"),
                  std::string::npos)
            << trace[1];
        EXPECT_NE(std::string(trace[2]).find("KORVASOAPMessageISerializer::serialize()"),
                  std::string::npos)
            << trace[2];
    }
}

TEST(WritingFailure, AStandardExceptionBecomesOneOfTheFamily) {
    const Call call = makeFilledCall();
    FailingStream stream(5, [] { throw std::runtime_error("no space"); });
    try {
        KORVASOAPMessageISerializer().serialize(*call, call->getInputMessage(), stream);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ZELStdExceptionError& error) {
        EXPECT_STREQ(error.getText(), "no space");
    }
}

TEST(WritingFailure, ASingleElementGetsOneTraceLine) {
    FailingStream stream(2, [] { ZEL_THROW(ZELException("x")); });
    try {
        KORVASOAPSerializer().serialize("a", KORVASchemaTypeI::eString, "bus:a", stream);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ZELException& exception) {
        ASSERT_EQ(exception.getBackTrace().size(), 2u);
        EXPECT_NE(std::string(exception.getBackTrace()[1]).find("KORVASOAPSerializer::serialize()"),
                  std::string::npos);
    }
}

TEST(WritingFailure, EachAllocationOfAnEnvelopeMayFail) {
    const Call call = makeFilledCall();
    CountingStream stream;
    EXPECT_GE(forEachFailingAllocation([&] {
                  KORVASOAPMessageISerializer().serialize(*call, call->getInputMessage(), stream);
              }),
              1u);
    EXPECT_GE(forEachFailingAllocation([&] {
                  KORVASOAPMessageISerializer().serialize(*call, call->getOutputMessage(), stream);
              }),
              1u);
    EXPECT_GT(stream.bytes, 0u);
}

TEST(WritingFailure, EachAllocationOfASingleElementMayFail) {
    KORVAStringArray array;
    array.push_back("a");
    CountingStream stream;
    EXPECT_GE(forEachFailingAllocation([&] {
                  KORVASOAPSerializer().serialize(&array, array.getObjectType(), "bus:a", stream);
              }),
              1u);
}

TEST(WritingFailure, APlainValueNeedsNoMemory) {
    const int number = 7;
    CountingStream stream;
    EXPECT_EQ(forEachFailingAllocation([&] {
                  KORVASOAPSerializer().serialize(&number, KORVASchemaTypeI::eInt, "n", stream);
                  KORVASOAPSerializer().serialize("a&b", KORVASchemaTypeI::eString, "s", stream);
              }),
              0u);
}

TEST(WritingFailure, EachAllocationOfTheFactoriesMayFail) {
    EXPECT_EQ(forEachFailingAllocation([] {
                  KORVAObjectSerializerFactory& factory =
                      KORVAObjectSerializerFactory::getInstance();
                  factory.destroy(factory.create());
              }),
              1u);
    EXPECT_EQ(forEachFailingAllocation([] {
                  KORVASOAPMessageISerializerFactory& factory =
                      KORVASOAPMessageISerializerFactory::getInstance();
                  factory.destroy(factory.create());
              }),
              1u);
}

}  // namespace
