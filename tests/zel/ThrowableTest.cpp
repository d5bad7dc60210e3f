#include <zel/ZELAssertError.h>
#include <zel/ZELException.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>
#include <zel/ZELThrowable.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

constexpr ZELFileLocation place("dir/file.cpp", 42);

std::string lineOf(const ZELThrowable& throwable, std::size_t index) {
    return throwable.getBackTrace()[index];
}

template <class Error>
Error make();
template <>
ZELException make() {
    return ZELException(5);
}
template <>
ZELAssertError make() {
    return ZELAssertError(0, 5, "text");
}
template <>
ZELOutOfMemoryError make() {
    return ZELOutOfMemoryError(5);
}
template <>
ZELStdExceptionError make() {
    return ZELStdExceptionError(std::runtime_error("text"));
}

template <class Error>
class EveryThrowable : public testing::Test {};

using Errors =
    testing::Types<ZELException, ZELAssertError, ZELOutOfMemoryError, ZELStdExceptionError>;
TYPED_TEST_SUITE(EveryThrowable, Errors, );

TYPED_TEST(EveryThrowable, IsNoStdException) {
    EXPECT_FALSE((std::is_base_of_v<std::exception, TypeParam>));
}

TYPED_TEST(EveryThrowable, HurlThrowsACopyAsItsDynamicType) {
    TypeParam error = make<TypeParam>();
    ZELThrowable& base = error;
    try {
        base.hurl(place, "Class::function", "ZEL_THROW");
        FAIL();
    } catch (TypeParam& caught) {
        EXPECT_NE(&caught, &error);
        ASSERT_EQ(caught.getBackTrace().size(), 1u);
        EXPECT_EQ(lineOf(caught, 0), "dir/file.cpp(42) Class::function ZEL_THROW");
        EXPECT_STREQ(caught.getErrorCodeString(), error.getErrorCodeString());
        EXPECT_EQ(caught.getSeverity(), error.getSeverity());
    }
}

TYPED_TEST(EveryThrowable, CloneIsAnOwnCopyOfTheDynamicType) {
    TypeParam error = make<TypeParam>();
    error.addBackTrace(place, "f", "m");
    const ZELThrowable& base = error;
    const std::unique_ptr<ZELThrowable> copy(base.clone());
    EXPECT_NE(dynamic_cast<TypeParam*>(copy.get()), nullptr);
    EXPECT_STREQ(copy->getThrowableName(), error.getThrowableName());
    copy->addBackTrace(place, "g", "m");
    EXPECT_EQ(copy->getBackTrace().size(), 2u);
    EXPECT_EQ(error.getBackTrace().size(), 1u);
}

TYPED_TEST(EveryThrowable, CopyOwnsItsLines) {
    auto error = std::make_unique<TypeParam>(make<TypeParam>());
    error->addBackTrace(place, "f", "m");
    const TypeParam copy(*error);
    EXPECT_NE(copy.getBackTrace()[0], error->getBackTrace()[0]);
    error.reset();
    EXPECT_EQ(lineOf(copy, 0), "dir/file.cpp(42) f m");
}

TYPED_TEST(EveryThrowable, AssignmentReplacesLinesAndLeavesItselfAlone) {
    TypeParam error = make<TypeParam>();
    error.addBackTrace(place, "f", "m");
    TypeParam other = make<TypeParam>();
    other.addBackTrace(place, "1", nullptr);
    other.addBackTrace(place, "2", nullptr);
    other = error;
    ASSERT_EQ(other.getBackTrace().size(), 1u);
    EXPECT_EQ(lineOf(other, 0), "dir/file.cpp(42) f m");
    TypeParam& same = other;
    other = same;
    ASSERT_EQ(other.getBackTrace().size(), 1u);
    EXPECT_EQ(lineOf(other, 0), "dir/file.cpp(42) f m");
}

TYPED_TEST(EveryThrowable, CopyingCannotThrow) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<TypeParam>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<TypeParam>);
}

TEST(Throwable, NamesAreThoseOfTheClasses) {
    EXPECT_STREQ(make<ZELException>().getThrowableName(), "ZELException");
    EXPECT_STREQ(make<ZELAssertError>().getThrowableName(), "ZELAssertError");
    EXPECT_STREQ(make<ZELOutOfMemoryError>().getThrowableName(), "ZELOutOfMemoryError");
    EXPECT_STREQ(make<ZELStdExceptionError>().getThrowableName(), "ZELStdExceptionError");
}

TEST(Throwable, TraceLineLeavesOutWhatIsNull) {
    ZELException error(0);
    error.addBackTrace(place, nullptr, nullptr);
    error.addBackTrace(place, nullptr, "m");
    error.addBackTrace(place, "f", nullptr);
    error.addBackTrace(place, "f", "m", "line 3, column 9");
    error.addBackTrace(ZELFileLocation(nullptr, 0), nullptr, nullptr);
    EXPECT_EQ(lineOf(error, 0), "dir/file.cpp(42)");
    EXPECT_EQ(lineOf(error, 1), "dir/file.cpp(42) m");
    EXPECT_EQ(lineOf(error, 2), "dir/file.cpp(42) f");
    EXPECT_EQ(lineOf(error, 3), "dir/file.cpp(42) f m: line 3, column 9");
    EXPECT_EQ(lineOf(error, 4), "?(0)");
}

TEST(Throwable, TraceCanBeWalked) {
    ZELException error(0);
    error.addBackTrace(place, "a", nullptr);
    error.addBackTrace(place, "b", nullptr);
    std::string all;
    for (char* line : error.getBackTrace())
        all += line;
    EXPECT_EQ(all, "dir/file.cpp(42) adir/file.cpp(42) b");
}

TEST(Throwable, SeverityHasAName) {
    EXPECT_STREQ(ZELThrowable::getSeverityName(eZELDebug), "debug");
    EXPECT_STREQ(ZELThrowable::getSeverityName(eZELInfo), "info");
    EXPECT_STREQ(ZELThrowable::getSeverityName(eZELWarn), "warn");
    EXPECT_STREQ(ZELThrowable::getSeverityName(eZELError), "error");
    EXPECT_STREQ(ZELThrowable::getSeverityName(eZELFatal), "fatal");
    EXPECT_STREQ(ZELThrowable::getSeverityName(static_cast<ZELSeverity>(0)), "unknown");
}

TEST(Throwable, ErrorCodeIsDecimal) {
    EXPECT_STREQ(ZELException(-2147483647 - 1).getErrorCodeString(), "-2147483648");
    EXPECT_STREQ(ZELOutOfMemoryError(0, nullptr).getErrorCodeString(), "0");
}

TEST(Throwable, ThrowTakesAnExceptionAndPerhapsAFunction) {
    try {
        ZEL_THROW(ZELException(eZELWarn, 3), "Class::function");
        FAIL();
    } catch (const ZELException& error) {
        EXPECT_EQ(lineOf(error, 0), std::string(__FILE__) + "(" + std::to_string(__LINE__ - 3) +
                                        ") Class::function ZEL_THROW");
        EXPECT_EQ(error.getSeverity(), eZELWarn);
    }
    ZELException named(4);
    try {
        ZEL_THROW(named);
        FAIL();
    } catch (const ZELException& error) {
        EXPECT_EQ(lineOf(error, 0),
                  std::string(__FILE__) + "(" + std::to_string(__LINE__ - 4) + ") ZEL_THROW");
    }
}

TEST(Throwable, RethrowKeepsTheObjectAndAddsALine) {
    const ZELThrowable* first = nullptr;
    try {
        try {
            ZEL_THROW(ZELAssertError(0, 0, "text"));
        } catch (ZELThrowable& error) {
            first = &error;
            ZEL_RETHROW(error, "Class::function", "in element a/b");
        }
        FAIL();
    } catch (ZELAssertError& error) {
        EXPECT_EQ(&error, first);
        ASSERT_EQ(error.getBackTrace().size(), 2u);
        EXPECT_NE(lineOf(error, 1).find(" Class::function ZEL_RETHROW: in element a/b"),
                  std::string::npos);
    }
}

TEST(Throwable, StdExceptionErrorKeepsTheText) {
    const ZELStdExceptionError error(std::runtime_error("what went wrong"));
    EXPECT_STREQ(error.getText(), "what went wrong");
    EXPECT_STREQ(error.toString(), "ZELStdExceptionError: what went wrong");
}

TEST(Throwable, OutOfMemoryErrorMayTellWhatFor) {
    EXPECT_STREQ(ZELOutOfMemoryError(0, nullptr).toString(), "ZELOutOfMemoryError: out of memory");
    EXPECT_STREQ(ZELOutOfMemoryError(0, "attachment").toString(),
                 "ZELOutOfMemoryError: attachment");
    EXPECT_STREQ(ZELOutOfMemoryError(0, "attachment").getText(), "attachment");
}

TEST(Throwable, ToStringFollowsTheTrace) {
    ZELException error(12);
    EXPECT_STREQ(error.toString(), "ZELException: error 12");
    error.addBackTrace(place, "f", "m");
    EXPECT_STREQ(error.toString(), "ZELException: error 12\n    at dir/file.cpp(42) f m");
}

}  // namespace
