// What is told behind the first message, where that alone would mislead.
#include "tests/soap/HostileText.h"
#include "tests/support/ExpectThrow.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::document;
using korva::test::DocumentReader;
using korva::test::envelope;
using korva::test::operation;
using korva::test::readRequest;
using korva::test::traceOf;

constexpr unsigned foundInstead = 0xEA4F0023;
constexpr const char* htmlPage = "an HTML page, as a proxy or a wrong address answers with";

/// What is told to have been found in place of an envelope.
#define EXPECT_FOUND(text, what) EXPECT_ADVICE(readRequest(text), foundInstead, what)

TEST(ReadingAdvice, TellsWhatIsNoXml) {
    EXPECT_FOUND("<!DOCTYPE html><html><br></html>", htmlPage);
    EXPECT_FOUND("\n<!doctype HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\"><p>", htmlPage);
    EXPECT_FOUND("<HTML><BODY>502<BR></HTML>", htmlPage);
    EXPECT_FOUND(std::string("\x1F\x8B\x08\0\0", 5), "compressed by gzip");
    EXPECT_FOUND("\xEF\xBB\xBF \r\n\t{\"error\": 1}", "a JSON text");
    EXPECT_FOUND("[1]", "a JSON text");
    EXPECT_FOUND("--b\r\nContent-Type: text/xml\r\n\r\n<a/>\r\n--b--",
                 "a multipart message, of which the envelope is a part");
    EXPECT_FOUND("HTTP/1.1 200 OK\r\n\r\n" + envelope(""),
                 "an HTTP response with its header, behind which the envelope stands");
    EXPECT_FOUND("MIME-Version: 1.0\r\n\r\n" + envelope(""),
                 "a message with its header, behind which the envelope stands");
}

TEST(ReadingAdvice, TellsWhichRootWasFound) {
    EXPECT_FOUND("<s:Envelope xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\"/>",
                 "an envelope of SOAP 1.2");
    EXPECT_FOUND("<html xmlns=\"http://www.w3.org/1999/xhtml\"/>", htmlPage);
    EXPECT_FOUND("<Html/>", htmlPage);
    EXPECT_FOUND("<Envelope/>", "the element \"Envelope\" of no namespace");
    EXPECT_FOUND("<a:b xmlns:a=\"urn:a\"/>", "the element \"b\" of the namespace \"urn:a\"");
}

TEST(ReadingAdvice, SaysNothingOfXmlThatIsMalformed) {
    for (const char* const text : {"", " ", "<", "<?xml version='1.0'?><a", "plain text"}) {
        try {
            readRequest(text);
            ADD_FAILURE() << text;
        } catch (const KORVAException& error) {
            EXPECT_EQ(error.getMessages().size(), 1U) << error.toString();
        }
    }
}

TEST(ReadingAdvice, TellsOfAnotherBus) {
    const std::string text =
        envelope("<r:run xmlns:r=\"https://other.example:9300/schemas/reportService/1\"/>");
    EXPECT_ADVICE(readRequest(text), 0xEA4F0024, "reportService", "https://other.example:9300",
                  KORVA_TEST_AUTHORITY);
    // Another service, or no bus at all, is no other bus.
    for (const char* const uri :
         {KORVA_TEST_AUTHORITY "/schemas/dispatcher/1", "urn:other", "/schemas/"}) {
        try {
            readRequest(envelope("<r:run xmlns:r=\"" + std::string(uri) + "\"/>"));
            ADD_FAILURE() << uri;
        } catch (const KORVAException& error) {
            EXPECT_EQ(error.getMessages().size(), 1U) << error.toString();
        }
    }
}

TEST(ReadingAdvice, NamesTheParameterThatIsUnknown) {
    EXPECT_ADVICE(readRequest(operation("run", "<objectPaht xsi:type=\"xs:string\"/>")), 0xEA4F0021,
                  "run", "\"objectPaht\" (nearest: \"objectPath\")");
}

TEST(ReadingAdvice, RepeatsATextThatIsNoNumber) {
    DocumentReader reader;
    EXPECT_ADVICE(reader.read(document("bus:intProp", "<value> 12x\n</value>")), 0xEA4F0025, "12x");
    EXPECT_ADVICE(reader.read(document("bus:booleanProp", "<value>maybe</value>")), 0xEA4F0025,
                  "maybe");
    EXPECT_ADVICE(
        reader.read(document("bus:intProp", "<value>" + std::string(1000, 'x') + "</value>")),
        0xEA4F0025, std::string(512, 'x') + " ... (cut, 1000 bytes)");
}

TEST(ReadingAdvice, SaysWhatAnAttachmentNeeds) {
    const auto trace = traceOf([] {
        readRequest(operation("run",
                              "<objectPath xsi:type=\"bus:searchPathSingleObject\" "
                              "href=\"cid:a\"/>"));
    });
    ASSERT_EQ(trace.size(), 3U);
    EXPECT_EQ(korva::test::placeIn(trace[1]),
              "the value is in an attachment, so call setAttachmentHandler() before the parse");
}

}  // namespace
