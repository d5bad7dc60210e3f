// What happens to exceptions, buffers and texts when memory runs out at any point.

#include "tests/support/AllocationFailure.h"

#include <zel/I18NConverter.h>
#include <zel/I18NString.h>
#include <zel/ZELAssert.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELException.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

using korva::test::failEachAllocation;
using korva::test::liveAllocations;
using korva::test::NoMemory;

/// Checks that a test leaves nothing allocated.
class ZelAllocation : public testing::Test {
protected:
    void SetUp() override { m_live = liveAllocations(); }
    void TearDown() override { EXPECT_EQ(liveAllocations(), m_live); }

private:
    std::size_t m_live = 0;
};

TEST_F(ZelAllocation, OutOfMemoryErrorIsThrownWithoutMemory) {
    bool caught = false;
    {
        const NoMemory noMemory;
        try {
            ZEL_THROW(ZELOutOfMemoryError(0, nullptr), "f");
        } catch (const ZELOutOfMemoryError& error) {
            caught = error.getBackTrace().empty() && *error.getText() == '\0';
        }
    }
    EXPECT_TRUE(caught);
}

TEST_F(ZelAllocation, AssertionKeepsItsTextWithoutMemory) {
    bool caught = false;
    {
        const NoMemory noMemory;
        try {
            ZEL_ASSERT(false);
        } catch (const ZELAssertError& error) {
            caught =
                std::char_traits<char>::compare(error.getText(), "ZEL_ASSERT(false);", 19) == 0;
        }
    }
    EXPECT_TRUE(caught);
}

TEST_F(ZelAllocation, ComposedAssertionIsRaisedWithoutMemory) {
    const NoMemory noMemory;
    try {
        zel::assertionFailed("ZEL_ASSERT(composed);", ZEL_LOCATION);
    } catch (const ZELAssertError& error) {
        const std::string_view text(error.getText());
        EXPECT_TRUE(text == "(text lost: out of memory)");
    }
}

TEST_F(ZelAllocation, FrameTurnsBadAllocIntoOutOfMemoryErrorWithoutMemory) {
    bool caught = false;
    {
        const NoMemory noMemory;
        try {
            ZEL_TRY {
                delete new int(1);
                throw std::bad_alloc();
            }
            ZEL_CATCH("f");
        } catch (const ZELOutOfMemoryError&) {
            caught = true;
        }
    }
    EXPECT_TRUE(caught);
}

TEST_F(ZelAllocation, TraceLineIsDroppedWhenItCannotBeStored) {
    const std::size_t allocations = failEachAllocation([] {
        ZELOutOfMemoryError error;
        error.addBackTrace(ZEL_LOCATION, "a", "m");
        error.addBackTrace(ZEL_LOCATION, "b", "m");
        const ZELOutOfMemoryError copy(error);
        EXPECT_LE(copy.getBackTrace().size(), error.getBackTrace().size());
    });
    EXPECT_GE(allocations, 4u);
}

TEST_F(ZelAllocation, EveryExceptionIsThrownAsItselfWhateverFails) {
    const std::size_t allocations = failEachAllocation([] {
        EXPECT_THROW(ZEL_THROW(ZELException(3), "f"), ZELException);
        EXPECT_THROW(ZEL_THROW(ZELException("code"), "f"), ZELException);
        EXPECT_THROW(ZEL_THROW(ZELAssertError(0, 0, "text"), "f"), ZELAssertError);
        try {
            ZEL_TRY {
                throw std::range_error("x");
            }
            ZEL_CATCH("f");
        } catch (const ZELStdExceptionError&) {
        } catch (const std::bad_alloc&) {
            // std::range_error itself could not be made.
        } catch (const ZELOutOfMemoryError&) {
        }
    });
    EXPECT_GE(allocations, 4u);
}

TEST_F(ZelAllocation, MessageIsAddedWholeOrNotAtAll) {
    bool everComplete = false;
    failEachAllocation([&] {
        ZELException error(0);
        try {
            ZEL_TRY {
                ZELMessage message("A component name that is longer than a short string", 1);
                message << ZELMessageParm("a parameter that is longer than a short string is");
                error << message;
            }
            ZEL_CATCH("f");
        } catch (const ZELOutOfMemoryError&) {
            EXPECT_EQ(error.getMessages().size(), 0u);
            return;
        }
        ASSERT_EQ(error.getMessages().size(), 1u);
        EXPECT_EQ(error.getMessages()[0].getParms().size(), 1u);
        everComplete = true;
    });
    EXPECT_TRUE(everComplete);
}

TEST_F(ZelAllocation, MessagesSurviveTheThrowWithoutMemory) {
    bool kept = false;
    ZELException error(0);
    error << (ZELMessage("C", 5) << ZELMessageParm("p"));
    {
        const NoMemory noMemory;
        try {
            ZEL_THROW(error, "f");
        } catch (const ZELException& caught) {
            kept = caught.getMessages().size() == 1 && caught.getMessages()[0].getId() == 5;
        }
    }
    EXPECT_TRUE(kept);
}

TEST_F(ZelAllocation, ToStringNeverFails) {
    ZELException error("a code that is longer than what a short string holds by itself");
    error.addBackTrace(ZEL_LOCATION, "f", "m");
    failEachAllocation([&] { EXPECT_NE(std::string_view(error.toString()), ""); });
    const NoMemory noMemory;
    EXPECT_STREQ(error.toString(), "ZELException");
}

TEST_F(ZelAllocation, CloneRaisesOutOfMemoryError) {
    const ZELException error("code");
    unsigned failures = 0;
    failEachAllocation([&] {
        try {
            const std::unique_ptr<ZELThrowable> copy(error.clone());
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
    });
    EXPECT_EQ(failures, 1u);
}

TEST_F(ZelAllocation, ByteBufferStaysAsItWas) {
    unsigned failures = 0;
    failEachAllocation([&] {
        ZELByteBuffer buffer(1, 4, 0);
        std::size_t appended = 0;
        try {
            for (; appended < 100; ++appended)
                buffer.appendChars("x", 1);
            const ZELByteBuffer copy(buffer);
            ZELByteBuffer assigned;
            assigned = buffer;
            assigned.reserve(1000);
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
        const std::string_view text(buffer.str());
        EXPECT_EQ(text.size(), appended);
        EXPECT_EQ(text.find_first_not_of('x'), std::string_view::npos);
        EXPECT_EQ(buffer.pcount(), appended);
    });
    EXPECT_GE(failures, 8u);
}

TEST_F(ZelAllocation, ShrinkToFitKeepsTheBytesWithoutMemory) {
    ZELByteBuffer buffer(1, 100, 0);
    buffer.appendChars("abc", 3);
    {
        const NoMemory noMemory;
        buffer.shrinkToFit();
    }
    EXPECT_STREQ(buffer.str(), "abc");
    EXPECT_EQ(buffer.capacity(), 99u);
}

TEST_F(ZelAllocation, ConverterAppendsWholePiecesOnly) {
    const std::u16string ascii(300, u'x');
    const std::u16string mixed = ascii + u"\u00FC\u20AC\xD83D";
    unsigned failures = 0;
    failEachAllocation([&] {
        I18NConverter converter;
        ZELByteBuffer buffer(1, 16, 0);
        std::size_t before = 0;
        try {
            for (int i = 0; i < 4; ++i) {
                before = buffer.pcount();
                converter.reset();
                converter.append(mixed.data(), mixed.size(), buffer);
                before = buffer.pcount();
                converter.append(u"\xDE00", 1, buffer);
            }
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
            EXPECT_EQ(buffer.pcount(), before);
            EXPECT_EQ(std::string_view(buffer.str()).size(), before);
        }
    });
    EXPECT_GE(failures, 3u);
}

TEST_F(ZelAllocation, ConverterAndStringRaiseOutOfMemoryError) {
    const std::string narrow(100, 'x');
    unsigned failures = 0;
    failEachAllocation([&] {
        try {
            ZEL_TRY {
                I18NConverter converter;
                const I18NString text(narrow.data(), narrow.size());
                const std::unique_ptr<char[]> back(
                    converter.toUtf8(text.wide(), text.wideLength()));
                const std::unique_ptr<char16_t[]> wide(
                    I18NConverter::toUtf16(narrow.data(), narrow.size()));
                const I18NString second(wide.get(), narrow.size());
                EXPECT_EQ(second.utf8Length(), narrow.size());
            }
            ZEL_CATCH("f");
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
    });
    EXPECT_GE(failures, 5u);
}

}  // namespace
