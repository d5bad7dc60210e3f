#include <korva/KORVABooleanProp.h>
#include <korva/KORVAException.h>
#include <korva/KORVA_Format.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

template <class Value>
std::string streamed(const Value& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

TEST(Format, WritesAFailureToAStream) {
    const KORVAException error("a text");
    EXPECT_EQ(streamed(error), "KORVAException: a text");
    const ZELOutOfMemoryError memory;
    EXPECT_EQ(streamed(static_cast<const ZELThrowable&>(memory)),
              "ZELOutOfMemoryError: out of memory");
}

TEST(Format, WritesChildrenAndPathsToAStream) {
    KORVABooleanProp property;
    property.setValue(true);
    EXPECT_EQ(streamed(korva::get(property, "value")), "value: true");
    EXPECT_EQ(streamed(KORVA_Path("a/0/*")), "a/0/*");
}

#if defined(__cpp_lib_format)

TEST(Format, FormatsFailuresChildrenAndPaths) {
    KORVABooleanProp property;
    property.setValue(true);
    const KORVAException error("a text");
    EXPECT_EQ(std::format("{}", error), "KORVAException: a text");
    EXPECT_EQ(std::format("[{:>12}]", korva::get(property, "value")), "[ value: true]");
    EXPECT_EQ(std::format("{}", KORVA_Path("a/0")), "a/0");
}

#endif

}  // namespace
