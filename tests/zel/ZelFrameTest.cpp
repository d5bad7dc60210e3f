#include <zel/ZELAssert.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELException.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>

namespace {

template <class Action>
int framed(Action action) {
    ZEL_TRY {
        return action();
    }
    ZEL_CATCH("Class::framed");
}

/// Calls `action` from within as many frames.
int framedDeeply(unsigned depth, const std::function<int()>& action) {
    ZEL_TRY {
        if (depth == 1) return action();
        return framedDeeply(depth - 1, action);
    }  // namespace
    ZEL_CATCH(nullptr);
}

TEST(ZelFrame, GoodPathReturnsItsValue) {
    EXPECT_EQ(framed([] { return 5; }), 5);
}

TEST(ZelFrame, ThrowableGoesOnAsTheSameObjectWithOneMoreLine) {
    const ZELThrowable* thrown = nullptr;
    try {
        framed([&]() -> int {
            try {
                ZEL_THROW(ZELException(1), "origin");
            } catch (ZELThrowable& error) {
                thrown = &error;
                throw;
            }
        });
        FAIL();
    } catch (ZELException& error) {
        EXPECT_EQ(&error, thrown);
        ASSERT_EQ(error.getBackTrace().size(), 2u);
        const std::string line = error.getBackTrace()[1];
        EXPECT_NE(line.find("FrameTest.cpp("), std::string::npos);
        EXPECT_NE(line.find(") Class::framed ZEL_RETHROW"), std::string::npos);
    }
}

TEST(ZelFrame, PassingManyFramesAddsAsManyLines) {
    try {
        framedDeeply(10, []() -> int { ZEL_THROW(ZELException(1)); });
        FAIL();
    } catch (const ZELException& error) {
        EXPECT_EQ(error.getBackTrace().size(), 1u + 10u);
        EXPECT_NE(std::string(error.getBackTrace()[10]).find(") ZEL_RETHROW"), std::string::npos);
    }
}

TEST(ZelFrame, BadAllocBecomesOutOfMemoryError) {
    try {
        framed([]() -> int { throw std::bad_alloc(); });
        FAIL();
    } catch (const ZELOutOfMemoryError& error) {
        ASSERT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_NE(std::string(error.getBackTrace()[0]).find(") Class::framed ZEL_THROW"),
                  std::string::npos);
        EXPECT_STREQ(error.getErrorCodeString(), "0");
    }
    EXPECT_THROW(framed([]() -> int { throw std::bad_array_new_length(); }), ZELOutOfMemoryError);
}

TEST(ZelFrame, OtherStdExceptionBecomesStdExceptionErrorWithItsText) {
    try {
        framed([]() -> int { throw std::runtime_error("the text"); });
        FAIL();
    } catch (const ZELStdExceptionError& error) {
        EXPECT_STREQ(error.getText(), "the text");
        ASSERT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_NE(std::string(error.getBackTrace()[0]).find(") Class::framed ZEL_THROW"),
                  std::string::npos);
    }
    EXPECT_THROW(framed([]() -> int { throw std::length_error(""); }), ZELStdExceptionError);
}

TEST(ZelFrame, ExceptionOfNeitherFamilyPassesUnchanged) {
    struct Foreign {
        int value;
    };
    const Foreign* thrown = nullptr;
    try {
        framed([&]() -> int {
            try {
                throw Foreign{7};
            } catch (const Foreign& foreign) {
                thrown = &foreign;
                throw;
            }
        });
        FAIL();
    } catch (const Foreign& foreign) {
        EXPECT_EQ(&foreign, thrown);
        EXPECT_EQ(foreign.value, 7);
    }
    EXPECT_THROW(framed([]() -> int { throw 3; }), int);
}

TEST(ZelFrame, AssertionKeepsItsType) {
    EXPECT_THROW(framed([]() -> int {
                     ZEL_ASSERT(false);
                     return 0;
                 }),
                 ZELAssertError);
}

TEST(ZelFrame, WorksInAConstructorsFunctionBlock) {
    struct Thing {
        explicit Thing(bool fail) ZEL_TRY : value(fail ? throw std::bad_alloc() : 1) {}
        ZEL_CATCH("Thing::Thing");
        int value;
    };
    EXPECT_EQ(Thing(false).value, 1);
    EXPECT_THROW(Thing(true), ZELOutOfMemoryError);
}

}  // namespace
