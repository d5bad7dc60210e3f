#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAException.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAZELMessage.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELMessageParm.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>

namespace {

KORVAException withMessage() {
    KORVAException exception(eZELWarn, 42);
    KORVAZELMessage message(0xEA45DC29U);
    message << ZELMessageParm("severityEnum:x");
    exception << message;
    exception.addBackTrace(ZELFileLocation("file.cpp", 7), "place()", "ZEL_THROW");
    return exception;
}

void expectSame(const ZELThrowable& exception) {
    EXPECT_STREQ(exception.getThrowableName(), "KORVAException");
    EXPECT_EQ(exception.getSeverity(), eZELWarn);
    EXPECT_STREQ(exception.getErrorCodeString(), "42");
    ASSERT_EQ(exception.getBackTrace().size(), 1u);
    EXPECT_STREQ(exception.getBackTrace()[0], "file.cpp(7) place() ZEL_THROW");
    const auto* const set = dynamic_cast<const ZELMessageSet*>(&exception);
    ASSERT_NE(set, nullptr);
    ASSERT_EQ(set->getMessages().size(), 1u);
    EXPECT_EQ(set->getMessages()[0].getId(), 0xEA45DC29U);
    ASSERT_EQ(set->getMessages()[0].getParms().size(), 1u);
    EXPECT_STREQ(set->getMessages()[0].getParms()[0].getText(), "severityEnum:x");
}

TEST(KorvaException, IsMadeFromACodeOrATextWithOrWithoutASeverity) {
    EXPECT_STREQ(KORVAException(5).getErrorCodeString(), "5");
    EXPECT_EQ(KORVAException(5).getSeverity(), eZELError);
    EXPECT_STREQ(KORVAException(eZELFatal, -5).getErrorCodeString(), "-5");
    EXPECT_EQ(KORVAException(eZELFatal, -5).getSeverity(), eZELFatal);
    EXPECT_STREQ(KORVAException("text").getErrorCodeString(), "text");
    EXPECT_STREQ(KORVAException(eZELInfo, "text").getErrorCodeString(), "text");
    EXPECT_EQ(KORVAException(eZELInfo, "text").getSeverity(), eZELInfo);
}

TEST(KorvaException, IsNoStandardException) {
    EXPECT_FALSE((std::is_base_of_v<std::exception, KORVAException>));
    EXPECT_TRUE((std::is_base_of_v<ZELThrowable, KORVAException>));
}

TEST(KorvaException, TraceNamesFilesByTheirPathInTheTree) {
    try {
        KORVASeverityEnum().getChildObject(nullptr, false);
        FAIL();
    } catch (const ZELAssertError& error) {
        ASSERT_FALSE(error.getBackTrace().empty());
        EXPECT_TRUE(std::string(error.getBackTrace()[0]).starts_with("core/KORVA_EnumObject.cpp("))
            << error.getBackTrace()[0];
    }
}

TEST(KorvaException, AssignedToItselfIsUnchanged) {
    KORVAException exception = withMessage();
    KORVAException& same = exception;
    exception = same;
    expectSame(exception);
}

TEST(KorvaException, AssignmentTakesAll) {
    KORVAException exception(1);
    exception.addBackTrace(ZELFileLocation("other.cpp", 1), nullptr, nullptr);
    exception = withMessage();
    expectSame(exception);
}

TEST(KorvaException, CopyHasAllAndATraceOfItsOwn) {
    KORVAException exception = withMessage();
    const KORVAException copy(exception);
    exception.addBackTrace(ZELFileLocation("later.cpp", 1), nullptr, nullptr);
    expectSame(copy);
}

TEST(KorvaException, CloneIsAKORVAExceptionWithAll) {
    const KORVAException exception = withMessage();
    const ZELThrowable& base = exception;
    const std::unique_ptr<ZELThrowable> clone(base.clone());
    EXPECT_NE(dynamic_cast<KORVAException*>(clone.get()), nullptr);
    expectSame(*clone);
}

TEST(KorvaException, CloneCanBeCarriedToAnotherThread) {
    std::unique_ptr<ZELThrowable> carried;
    std::thread thrower([&carried] {
        try {
            ZEL_THROW(withMessage());
        } catch (const ZELThrowable& caught) {
            carried.reset(caught.clone());
        }
    });
    thrower.join();
    ASSERT_NE(carried, nullptr);
    EXPECT_STREQ(carried->getThrowableName(), "KORVAException");
    EXPECT_EQ(carried->getBackTrace().size(), 2u);
}

TEST(KorvaException, CloneWithoutMemoryRaisesOutOfMemoryError) {
    const KORVAException exception = withMessage();
    const korva::test::NoMemory noMemory;
    EXPECT_THROW(delete exception.clone(), ZELOutOfMemoryError);
}

TEST(KorvaException, HurlThrowsACopyWithThePlaceInItsTrace) {
    KORVAException exception(3);
    try {
        exception.hurl(ZELFileLocation("file.cpp", 12), "function()", "ZEL_THROW");
    } catch (const KORVAException& caught) {
        EXPECT_NE(&caught, &exception);
        ASSERT_EQ(caught.getBackTrace().size(), 1u);
        EXPECT_STREQ(caught.getBackTrace()[0], "file.cpp(12) function() ZEL_THROW");
        EXPECT_EQ(exception.getBackTrace().size(), 1u);
    }
}

TEST(KorvaException, ZelThrowThrowsItAsItself) {
    EXPECT_THROW(ZEL_THROW(KORVAException(1), "f"), KORVAException);
}

TEST(KorvaException, ToStringFillsInTheTextOfTheCatalogue) {
    try {
        KORVASeverityEnum::stringToEnum("unheard-of");
        FAIL();
    } catch (const KORVAException& error) {
        const std::string text = error.toString();
        EXPECT_EQ(text.rfind("KORVAException: ", 0), 0u) << text;
        EXPECT_NE(text.find("severityEnum:unheard-of"), std::string::npos) << text;
        EXPECT_NE(text.find("\n    at "), std::string::npos) << text;
        EXPECT_NE(text.find("_stringToEnum() ZEL_THROW"), std::string::npos) << text;
    }
}

TEST(KorvaMessage, HasTheLibrarysComponent) {
    const KORVAZELMessage message(0xEA47C21FU);
    EXPECT_EQ(message.getId(), 0xEA47C21FU);
    EXPECT_STREQ(message.getComponent(), "KORVA");
    EXPECT_EQ(message.getParms().size(), 0u);
}

}  // namespace
