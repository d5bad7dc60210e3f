#include <brim/BRIMStreamError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

TEST(StreamError, IsAnExceptionWithAText) {
    const BRIMStreamError error("what went wrong");
    EXPECT_STREQ(error.getText(), "what went wrong");
    EXPECT_STREQ(error.getThrowableName(), "BRIMStreamError");
    EXPECT_EQ(error.getSeverity(), eZELError);
    EXPECT_STREQ(error.toString(), "BRIMStreamError: what went wrong");
}

TEST(StreamError, IsThrownAndClonedAsItself) {
    try {
        ZEL_THROW(BRIMStreamError("text"), "f");
        FAIL();
    } catch (const ZELException& error) {
        const std::unique_ptr<ZELThrowable> copy(error.clone());
        ASSERT_NE(dynamic_cast<BRIMStreamError*>(copy.get()), nullptr);
        EXPECT_EQ(copy->getBackTrace().size(), 1u);
        EXPECT_THROW(ZEL_THROW(*copy), BRIMStreamError);
    }
}

}  // namespace
