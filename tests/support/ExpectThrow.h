/// Expectations on what leaves the library: broken assertions and numbered messages, with their
/// exact texts.
#pragma once

#include <korva/KORVAException.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <exception>
#include <initializer_list>
#include <string>
#include <string_view>

namespace korva::test {

/// The oldest line of the back trace: where the exception was thrown.
inline std::string firstTraceLine(const ZELThrowable& throwable) {
    return throwable.getBackTrace().empty() ? std::string() : throwable.getBackTrace()[0];
}

/// Whether the exception was thrown by `function` (null: by a place without a name), told as
/// "file(line) function ZEL_THROW".
inline testing::AssertionResult isThrownBy(const ZELThrowable& throwable, const char* function) {
    const std::string line = firstTraceLine(throwable);
    std::string end = ")";
    if (function != nullptr) {
        end += ' ';
        end += function;
    }
    end += " ZEL_THROW";
    if (line.size() > end.size() && line.compare(line.size() - end.size(), end.size(), end) == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "the trace starts with \"" << line << "\", not with \"..." << end << "\"";
}

/// Runs `action` and tells whether a `Throwable` leaves it that satisfies `check`.
template <class Throwable, class Action, class Check>
testing::AssertionResult raises(const char* what, Action action, Check check) {
    try {
        action();
    } catch (const Throwable& throwable) {
        return check(throwable);
    } catch (const ZELThrowable& throwable) {
        return testing::AssertionFailure()
               << "expected " << what << ", got " << throwable.toString();
    } catch (const std::exception& exception) {
        return testing::AssertionFailure() << "expected " << what << ", got " << exception.what();
    }
    return testing::AssertionFailure() << "expected " << what << ", nothing was thrown";
}

/// Whether `action` ends in the assertion with this text.
template <class Action>
testing::AssertionResult raisesAssertion(Action action, std::string_view text) {
    return raises<ZELAssertError>(
        "an assertion", action, [text](const ZELAssertError& error) -> testing::AssertionResult {
            if (error.getText() != text)
                return testing::AssertionFailure()
                       << "the text is \"" << error.getText() << "\", not \"" << text << "\"";
            return isThrownBy(error, nullptr);
        });
}

/// Whether a message has this id and exactly these parameters.
inline testing::AssertionResult isMessage(const ZELMessage& message, unsigned id,
                                          std::initializer_list<std::string_view> parameters) {
    if (message.getId() != id)
        return testing::AssertionFailure()
               << std::hex << "the id is " << message.getId() << ", not " << id;
    if (message.getParms().size() != parameters.size())
        return testing::AssertionFailure() << message.getParms().size() << " parameters";
    std::size_t position = 0;
    for (const std::string_view parameter : parameters) {
        const char* const text = message.getParms()[position++].getText();
        if (text != parameter)
            return testing::AssertionFailure() << "parameter " << position << " is \"" << text
                                               << "\", not \"" << parameter << '"';
    }
    return testing::AssertionSuccess();
}

/// Whether `action` ends in a KORVAException whose first message has this id and exactly these
/// parameters, from this function. What follows the first message is advice.
template <class Action>
testing::AssertionResult raisesNumbered(Action action, unsigned id, const char* function,
                                        std::initializer_list<std::string_view> parameters) {
    return raises<KORVAException>(
        "a KORVAException", action, [&](const KORVAException& error) -> testing::AssertionResult {
            if (error.getMessages().empty())
                return testing::AssertionFailure() << "no message in " << error.toString();
            testing::AssertionResult result = isMessage(error.getMessages()[0], id, parameters);
            if (!result) return result << " in " << error.toString();
            return isThrownBy(error, function);
        });
}

/// Whether `action` ends in a KORVAException whose second and last message has this id and exactly
/// these parameters.
template <class Action>
testing::AssertionResult raisesAdvice(Action action, unsigned id,
                                      std::initializer_list<std::string_view> parameters) {
    return raises<KORVAException>(
        "a KORVAException", action, [&](const KORVAException& error) -> testing::AssertionResult {
            if (error.getMessages().size() != 2)
                return testing::AssertionFailure() << "no advice in " << error.toString();
            testing::AssertionResult result = isMessage(error.getMessages()[1], id, parameters);
            return result ? result : result << " in " << error.toString();
        });
}

}  // namespace korva::test

/// Expects the assertion with exactly this text:
/// `EXPECT_ASSERTION(object.getChildType(nullptr), "ZEL_ASSERT(name);");`
#define EXPECT_ASSERTION(statement, text) \
    EXPECT_TRUE(::korva::test::raisesAssertion([&] { static_cast<void>(statement); }, text))

/// Expects a KORVAException with the message `id`, thrown by `function`, with the parameters that
/// follow: `EXPECT_NUMBERED(Enum::stringToEnum("x"), 0xEA45DC29, "_stringToEnum()", "enum:x");`
#define EXPECT_NUMBERED(statement, id, function, ...)                                              \
    EXPECT_TRUE(::korva::test::raisesNumbered([&] { static_cast<void>(statement); }, id, function, \
                                              {__VA_ARGS__}))

/// Expects a KORVAException with advice behind what is wrong: the message `id`, with the parameters
/// that follow.
#define EXPECT_ADVICE(statement, id, ...) \
    EXPECT_TRUE(                          \
        ::korva::test::raisesAdvice([&] { static_cast<void>(statement); }, id, {__VA_ARGS__}))

/// Expects the type error with class name, child name, expected and actual type.
#define EXPECT_TYPE_ERROR(statement, className, childName, expectedType, actualType)           \
    EXPECT_NUMBERED(statement, 0xEA47C21FU, "KORVASchemaTypesFactory::typeError()", className, \
                    childName, expectedType, actualType)
