// The text of numbers is that of printf in the "C" locale, in whatever locale the program runs.
#include "tests/soap/ElementWriting.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace {

using korva::test::element;

/// Switches to the "C" locale for as long as it lives.
class CLocale {
public:
    CLocale() : m_before(std::setlocale(LC_ALL, nullptr)) { std::setlocale(LC_ALL, "C"); }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;
    ~CLocale() { std::setlocale(LC_ALL, m_before.c_str()); }

private:
    std::string m_before;
};

std::string printed(const char* format, auto value) {
    const CLocale locale;
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string floatElement(float value) {
    return element(&value, KORVASchemaTypeI::eFloat, "n");
}

std::string expectedFloat(float value) {
    return "<n xsi:type=\"xs:float\">" + printed("%.2f ", static_cast<double>(value)) + "</n>\n";
}

TEST(NumberForm, FloatsOfEverySizeAreWrittenInFull) {
    using Limits = std::numeric_limits<float>;
    for (const float value : {0.0F, -0.0F, 0.005F, 0.015F, 0.125F, 0.375F, 0.995F, 1.0F, -1.005F,
                              123456.789F, 1e10F, 16777216.0F, 3.4e38F, -3.4e38F, Limits::max(),
                              Limits::lowest(), Limits::min(), Limits::denorm_min()})
        EXPECT_EQ(floatElement(value), expectedFloat(value));
}

TEST(NumberForm, FloatsThatAreNoNumbersAreWordsWithABlank) {
    using Limits = std::numeric_limits<float>;
    EXPECT_EQ(floatElement(Limits::infinity()), "<n xsi:type=\"xs:float\">inf </n>\n");
    EXPECT_EQ(floatElement(-Limits::infinity()), "<n xsi:type=\"xs:float\">-inf </n>\n");
    EXPECT_EQ(floatElement(Limits::quiet_NaN()), "<n xsi:type=\"xs:float\">nan </n>\n");
    EXPECT_EQ(floatElement(-Limits::quiet_NaN()), expectedFloat(-Limits::quiet_NaN()));
}

TEST(NumberForm, FloatsAreRoundedAsPrintfRoundsThem) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto numerator = static_cast<float>(static_cast<int>(random()));
        const float value = numerator / static_cast<float>(1u << (random() % 32));
        ASSERT_EQ(floatElement(value), expectedFloat(value));
    }
}

TEST(NumberForm, IntegersHaveNoGrouping) {
    for (const int value : {0, 7, -7, 1234567, -1234567, std::numeric_limits<int>::min(),
                            std::numeric_limits<int>::max()})
        EXPECT_EQ(element(&value, KORVASchemaTypeI::eInteger, "n"),
                  "<n xsi:type=\"xs:integer\">" + printed("%d", value) + "</n>\n");
}

TEST(NumberForm, IsTheSameUnderALocaleWithADecimalComma) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no locale de_DE.UTF-8";
    char comma[16];
    std::snprintf(comma, sizeof comma, "%.2f", 1.5);
    const std::string number = floatElement(-1234567.5F);
    const int integer = 1234567;
    const std::string count = element(&integer, KORVASchemaTypeI::eInt, "n");
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_STREQ(comma, "1,50");
    EXPECT_EQ(number, "<n xsi:type=\"xs:float\">-1234567.50 </n>\n");
    EXPECT_EQ(count, "<n xsi:type=\"xs:int\">1234567</n>\n");
}

}  // namespace
