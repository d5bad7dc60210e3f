#include <zel/ZELAssert.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <string>

namespace {

/// The text of the assertion that `action` breaks, or a text that says that it broke none.
template <class Action>
std::string assertionOf(Action action) {
    try {
        action();
    } catch (const ZELAssertError& error) {
        return error.getText();
    }
    return "no assertion";
}

TEST(Assert, TextIsTheMacroCallAsWritten) {
    const char* name = nullptr;
    EXPECT_EQ(assertionOf([&] { ZEL_ASSERT(name); }), "ZEL_ASSERT(name);");
    EXPECT_EQ(assertionOf([&] { ZEL_ASSERT((name != NULL) && (*name > 0)); }),
              "ZEL_ASSERT((name != NULL) && (*name > 0));");
    EXPECT_EQ(assertionOf([] { ZEL_ASSERT(false); }), "ZEL_ASSERT(false);");
}

TEST(Assert, NamedTextHasPlainQuotes) {
    EXPECT_EQ(assertionOf([] { ZEL_ASSERT_NAMED(false, "Not implemented"); }),
              "ZEL_ASSERT_NAMED(false, \"Not implemented\");");
    const char* qName = nullptr;
    EXPECT_EQ(assertionOf([&] { ZEL_ASSERT_NAMED(qName != NULL, "NULL qname"); }),
              "ZEL_ASSERT_NAMED(qName != NULL, \"NULL qname\");");
}

TEST(Assert, TrueConditionDoesNothing) {
    int evaluations = 0;
    ZEL_ASSERT(++evaluations == 1);
    ZEL_ASSERT_NAMED(++evaluations == 2, "counts");
    EXPECT_EQ(evaluations, 2);
}

TEST(Assert, FalseConditionIsEvaluatedOnce) {
    int evaluations = 0;
    EXPECT_THROW(ZEL_ASSERT(++evaluations == 0), ZELAssertError);
    EXPECT_EQ(evaluations, 1);
}

TEST(Assert, IsAnExpression) {
    const auto checked = [](int value) { return ZEL_ASSERT(value > 0), value; };
    EXPECT_EQ(checked(3), 3);
    EXPECT_THROW(checked(0), ZELAssertError);
}

TEST(Assert, FirstTraceLineIsThePlace) {
    try {
        const unsigned line = __LINE__ + 1;
        ZEL_ASSERT(line == 0);
        FAIL();
    } catch (const ZELAssertError& error) {
        ASSERT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_EQ(std::string(error.getBackTrace()[0]),
                  std::string(__FILE__) + "(" + std::to_string(__LINE__ - 5) + ") ZEL_THROW");
    }
}

TEST(Assert, IsFatalWithCodeZero) {
    try {
        ZEL_ASSERT(false);
        FAIL();
    } catch (const ZELAssertError& error) {
        EXPECT_EQ(error.getSeverity(), eZELFatal);
        EXPECT_STREQ(error.getErrorCodeString(), "0");
        EXPECT_STREQ(error.getThrowableName(), "ZELAssertError");
    }
}

TEST(Assert, ComposedTextIsCopied) {
    try {
        std::string text = "ZEL_ASSERT(" + std::string("composed") + ");";
        try {
            zel::assertionFailed(text.c_str(), ZEL_LOCATION);
        } catch (...) {
            text.assign(text.size(), '#');
            throw;
        }
    } catch (const ZELAssertError& error) {
        EXPECT_STREQ(error.getText(), "ZEL_ASSERT(composed);");
        ASSERT_EQ(error.getBackTrace().size(), 1u);
        EXPECT_NE(std::string(error.getBackTrace()[0]).find(") ZEL_THROW"), std::string::npos);
    }
}

TEST(Assert, ErrorMadeByHandTakesZeroAsSeverity) {
    EXPECT_EQ(ZELAssertError(0, 0, "x").getSeverity(), eZELFatal);
    EXPECT_EQ(ZELAssertError(eZELWarn, 7, "x").getSeverity(), eZELWarn);
    EXPECT_STREQ(ZELAssertError(eZELWarn, 7, "x").getErrorCodeString(), "7");
    EXPECT_STREQ(ZELAssertError(0, 0, "text").getText(), "text");
    EXPECT_STREQ(ZELAssertError(0, 0, nullptr).getText(), "");
}

TEST(Assert, ToStringTellsNameTextAndPlace) {
    try {
        ZEL_ASSERT(false);
        FAIL();
    } catch (const ZELThrowable& error) {
        const std::string text = error.toString();
        EXPECT_EQ(text.rfind("ZELAssertError: ZEL_ASSERT(false);\n    at ", 0), 0u) << text;
    }
}

}  // namespace
