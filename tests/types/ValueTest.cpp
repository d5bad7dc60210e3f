// Values as each other and as text, in whatever locale the program runs.
#include "types/Numbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using types::FieldKind;

template <class To, class From>
To as(From from, FieldKind kind) {
    To to{};
    EXPECT_TRUE(types::readAs(&from, kind, to));
    return to;
}

TEST(ValueConversion, SaturatesFloatsThatHaveNoInt) {
    using Int = std::numeric_limits<int>;
    using Float = std::numeric_limits<float>;
    EXPECT_EQ(as<int>(2147483648.0F, FieldKind::Float), Int::max());
    EXPECT_EQ(as<int>(Float::infinity(), FieldKind::Float), Int::max());
    EXPECT_EQ(as<int>(2147483520.0F, FieldKind::Float), 2147483520);
    EXPECT_EQ(as<int>(-2147483648.0F, FieldKind::Float), Int::min());
    EXPECT_EQ(as<int>(-Float::infinity(), FieldKind::Float), Int::min());
    EXPECT_EQ(as<int>(Float::quiet_NaN(), FieldKind::Float), 0);
    EXPECT_EQ(as<int>(-1.9F, FieldKind::Float), -1);
}

TEST(ValueConversion, TakesAnyByteButZeroForTrue) {
    EXPECT_TRUE(as<bool>(static_cast<unsigned char>(2), FieldKind::Boolean));
    EXPECT_EQ(as<int>(static_cast<unsigned char>(0x80), FieldKind::Boolean), 1);
    EXPECT_FALSE(as<bool>(static_cast<unsigned char>(0), FieldKind::Boolean));
    EXPECT_TRUE(as<bool>(std::numeric_limits<float>::quiet_NaN(), FieldKind::Float));
    EXPECT_TRUE(as<bool>(-7, FieldKind::Int));
}

TEST(ValueConversion, LeavesTheTargetAloneForWhatIsNoValue) {
    const int from = 5;
    int to = 7;
    EXPECT_FALSE(types::readAs(&from, FieldKind::Object, to));
    EXPECT_FALSE(types::readAs(&from, FieldKind::Text, to));
    EXPECT_EQ(to, 7);
}

template <class Value>
std::string printed(Value value) {
    types::ValueText text;
    return std::string(types::print(value, text));
}

TEST(ValueText, HasRoomForTheLongest) {
    using Float = std::numeric_limits<float>;
    EXPECT_EQ(printed(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(printed(Float::lowest()), "-340282346638528859811704183484516925440.00 ");
    EXPECT_EQ(printed(0.5F), "0.50 ");
    EXPECT_EQ(printed(true), "true");
    EXPECT_EQ(printed(false), "false");
}

TEST(ValueText, IsReadBackAsItWasPrinted) {
    const auto goAndCome = [](auto value) {
        decltype(value) back{};
        EXPECT_TRUE(types::parse(types::trimmed(printed(value)), back));
        return back;
    };
    for (const int value : {0, -1, 2147483647, -2147483647 - 1})
        EXPECT_EQ(goAndCome(value), value);
    for (const float value : {0.0F, -0.25F, 1234.5F, std::numeric_limits<float>::max()})
        EXPECT_EQ(goAndCome(value), value);
    EXPECT_TRUE(goAndCome(true));
    EXPECT_FALSE(goAndCome(false));
}

TEST(ValueText, OfAnotherTypeIsRefused) {
    int integer = 1;
    float real = 1;
    bool flag = true;
    EXPECT_FALSE(types::parse("1x", integer));
    EXPECT_FALSE(types::parse("1,5", real));
    EXPECT_FALSE(types::parse("1e39", real));
    EXPECT_FALSE(types::parse("yes", flag));
    EXPECT_EQ(integer, 1);
    EXPECT_EQ(real, 1);
}

}  // namespace
