#include <tarn/TARNTypeError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

TEST(TarnTypeError, IsThrownAsItself) {
    try {
        ZEL_THROW(TARNTypeError("It does not fit."), "test");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ZELException& error) {
        EXPECT_STREQ(error.getThrowableName(), "TARNTypeError");
        ASSERT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_NE(std::string(error.getBackTrace()[0]).find("test ZEL_THROW"), std::string::npos);
    }
}

TEST(TarnTypeError, IsClonedAsItself) {
    TARNTypeError error("It does not fit.");
    const std::unique_ptr<ZELThrowable> clone(error.clone());
    const auto& copy = dynamic_cast<const TARNTypeError&>(*clone);
    EXPECT_STREQ(copy.getText(), "It does not fit.");
    TARNTypeError other("else");
    other = copy;
    EXPECT_STREQ(other.getText(), "It does not fit.");
}

}  // namespace
