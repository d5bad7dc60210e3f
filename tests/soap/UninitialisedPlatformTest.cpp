// Reading in a program that has not started the XML platform.
#include "tests/soap/Reading.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAProvider.h>
#include <korva/KORVA_XmlPlatform.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::document;
using korva::test::DocumentReader;
using korva::test::operation;
using korva::test::readRequest;

constexpr const char* assertion =
    "ZEL_ASSERT_NAMED(xercesc::XMLPlatformUtils::fgMemoryManager != nullptr, \"This document needs "
    "XMLPlatformUtils::Initialize() before it is read.\");";

TEST(UninitialisedPlatform, IsNotNeededForWhatIsOrdinary) {
    DocumentReader reader;
    EXPECT_STREQ(reader
                     .read<KORVAProvider>("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" +
                                          document("bus:provider", "<name>n\xC3\xA4</name>"))
                     .getName(),
                 "n\xC3\xA4");
    EXPECT_STREQ(readRequest(operation("run", ""))->getOperationName(), "run");
}

TEST(UninitialisedPlatform, FailuresAreToldAsEver) {
    for (const std::string& text : {std::string(), std::string("no document"), std::string("<a"),
                                    std::string("GET / HTTP/1.1\r\n\r\n")}) {
        try {
            readRequest(text);
            ADD_FAILURE() << text;
        } catch (const KORVAException& exception) {
            EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU) << text;
        }
    }
}

TEST(UninitialisedPlatform, IsAskedForByAnAssertionWhereItIsNeeded) {
    const std::string request = operation("run", "");
    EXPECT_ASSERTION(readRequest("<!DOCTYPE e>" + request), assertion);
    EXPECT_ASSERTION(readRequest("<?xml version=\"1.1\"?>" + request), assertion);
    EXPECT_ASSERTION(readRequest(std::string("\xFF\xFE<\0", 4)), assertion);
    DocumentReader reader;
    EXPECT_ASSERTION(reader.read("<!DOCTYPE e><e/>"), assertion);
}

TEST(UninitialisedPlatform, IsThereWhileAnXmlPlatformLives) {
    const std::string request = "<!DOCTYPE e>" + operation("run", "");
    for (int i = 0; i != 2; ++i) {
        const KORVA_XmlPlatform platform;
        { const KORVA_XmlPlatform another; }
        EXPECT_STREQ(readRequest(request)->getOperationName(), "run");
    }
    EXPECT_ASSERTION(readRequest(request), assertion);
}

}  // namespace
