// Documents that are made to do harm.
#include "tests/soap/HostileText.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAStringArray.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

namespace {

using korva::test::Binding;
using korva::test::declarations;
using korva::test::document;
using korva::test::DocumentReader;
using korva::test::envelope;
using korva::test::operation;
using korva::test::pathOf;
using korva::test::placeIn;
using korva::test::readRequest;
using korva::test::repeated;
using korva::test::soapParse;
using korva::test::traceOf;
using korva::test::xmlParse;

// ----- depth -----

TEST(HostileInput, NestingOfAHundredThousandLevelsEndsAtTheLimit) {
    DocumentReader reader;
    const std::string text = document("bus:provider", repeated("<a>", 100'000));
    EXPECT_NUMBERED(reader.read(text), 0xEA4F0001, xmlParse, "depth", "10000", "setMaximumDepth");
    EXPECT_NUMBERED(readRequest(operation("run", repeated("<a>", 100'000))), 0xEA4F0001, soapParse,
                    "depth", "10000", "setMaximumDepth");
}

TEST(HostileInput, TheDepthLimitCountsTheRootAndCanBeSet) {
    DocumentReader reader;
    reader.deserializer.setMaximumDepth(3);
    EXPECT_NE(reader.read(document("bus:provider", "<a><b/><b/></a><a><b/></a>")), nullptr);
    EXPECT_NUMBERED(reader.read(document("bus:provider", "<a><b><c/></b></a>")), 0xEA4F0001,
                    xmlParse, "depth", "3", "setMaximumDepth");
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setMaximumDepth(4);
    readRequest(deserializer, operation("run", "<objectPath/>"));
    EXPECT_NUMBERED(readRequest(deserializer, operation("run", "<objectPath><a/></objectPath>")),
                    0xEA4F0001, soapParse, "depth", "4", "setMaximumDepth");
}

TEST(HostileInput, TheLimitComesBeforeAnythingElseIsLookedAt) {
    DocumentReader reader;
    reader.deserializer.setMaximumDepth(1);
    EXPECT_NUMBERED(reader.read(document("bus:provider", "<name xsi:type=\"bus:noSuchType\"/>")),
                    0xEA4F0001, xmlParse, "depth", "1", "setMaximumDepth");
}

// ----- text -----

TEST(HostileInput, TextIsLimitedInAll) {
    DocumentReader reader;
    reader.deserializer.setMaximumText(10);
    EXPECT_STREQ(
        reader
            .read<KORVAProvider>(document("bus:provider", "<name>12345</name><build>67890</build>"))
            .getName(),
        "12345");
    EXPECT_NUMBERED(
        reader.read(document("bus:provider", "<name>12345</name><build>678901</build>")),
        0xEA4F0001, xmlParse, "text", "10", "setMaximumText");
    // Skipped text counts, too.
    EXPECT_NUMBERED(reader.read(document("bus:provider", "<unknown>12345678901</unknown>")),
                    0xEA4F0001, xmlParse, "text", "10", "setMaximumText");
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setMaximumText(10);
    EXPECT_NUMBERED(
        readRequest(deserializer, operation("run", "<objectPath>12345678901</objectPath>")),
        0xEA4F0001, soapParse, "text", "10", "setMaximumText");
}

TEST(HostileInput, ATextInAnAttributeIsLimitedToo) {
    // The parser expands the attribute before any handler sees it.
    const std::string text = "<!DOCTYPE e [<!ENTITY a '" + std::string(10'000, 'a') + "'>]>" +
                             operation("run", "<objectPath x=\"" + repeated("&a;", 2000) + "\"/>");
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setMaximumText(100'000);
    EXPECT_NUMBERED(readRequest(deserializer, text), 0xEA4F0001, soapParse, "text", "100000",
                    "setMaximumText");
    readRequest(deserializer, operation("run", ""));
}

// ----- entities -----

TEST(HostileInput, EntitiesThatExpandEntitiesEndAtTheLimit) {
    std::string doctype = "<!DOCTYPE e [<!ENTITY l0 'ha'>";
    for (int i = 1; i != 10; ++i)
        doctype += "<!ENTITY l" + std::to_string(i) + " '" +
                   repeated("&l" + std::to_string(i - 1) + ";", 10) + "'>";
    const std::string text = doctype + "]>" + operation("run", "<objectPath>&l9;</objectPath>");
    KORVASOAPMessageIDeserializer deserializer;
    EXPECT_NUMBERED(readRequest(deserializer, text), 0xEA4F0001, soapParse, "entity expansions",
                    "10000", "setMaximumEntityExpansions");
    const auto trace = traceOf([&] { readRequest(deserializer, text); });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_NE(placeIn(trace[1]).find("element /Envelope/Body/run/objectPath"), std::string::npos)
        << trace[1];
    // In an attribute, too.
    EXPECT_NUMBERED(
        readRequest(deserializer, doctype + "]>" + operation("run", "<objectPath x='&l9;'/>")),
        0xEA4F0001, soapParse, "entity expansions", "10000", "setMaximumEntityExpansions");
}

TEST(HostileInput, PredefinedEntitiesAreNoExpansions) {
    const std::string text = repeated("&amp;", 60'000);
    const std::string request = operation("run", "<objectPath>" + text + "</objectPath>");
    EXPECT_EQ(pathOf(readRequest(request)), std::string(60'000, '&'));
    EXPECT_EQ(pathOf(readRequest("<!DOCTYPE e>" + request)), std::string(60'000, '&'));
    EXPECT_EQ(pathOf(readRequest("<!--" + std::string(2000, ' ') + "-->" + request)),
              std::string(60'000, '&'));
}

TEST(HostileInput, TheLimitOnEntityExpansionsCanBeSet) {
    const std::string text =
        "<!DOCTYPE e [<!ENTITY a 'x'>]>" + operation("run", "<objectPath>&a;&a;&a;</objectPath>");
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setMaximumEntityExpansions(3);
    EXPECT_STREQ(pathOf(readRequest(deserializer, text)), "xxx");
    deserializer.setMaximumEntityExpansions(2);
    EXPECT_NUMBERED(readRequest(deserializer, text), 0xEA4F0001, soapParse, "entity expansions",
                    "2", "setMaximumEntityExpansions");
}

TEST(HostileInput, NoExternalEntityIsOpened) {
    const std::string path = testing::TempDir() + "korva_secret.txt";
    std::ofstream(path) << "secret";
    for (const std::string& doctype :
         {"<!DOCTYPE e [<!ENTITY x SYSTEM 'file://" + path + "'>]>",
          "<!DOCTYPE e [<!ENTITY x SYSTEM '" + path + "'>]>",
          "<!DOCTYPE e [<!ENTITY x PUBLIC 'p' 'file://" + path + "'>]>"})
        EXPECT_STREQ(
            pathOf(readRequest(doctype + operation("run", "<objectPath>[&x;]</objectPath>"))), "[]")
            << doctype;
    std::remove(path.c_str());
}

TEST(HostileInput, NoExternalDocumentTypeIsOpened) {
    const std::string path = testing::TempDir() + "korva_secret.dtd";
    std::ofstream(path) << "<!ENTITY x 'secret'>";
    const std::string content = operation("run", "<objectPath>[&x;]</objectPath>");
    // The entity stays undeclared, which the parser tells or passes over.
    for (const std::string& doctype :
         {"<!DOCTYPE e SYSTEM 'file://" + path + "'>", "<!DOCTYPE e SYSTEM '" + path + "'>",
          "<!DOCTYPE e [<!ENTITY % p SYSTEM 'file://" + path + "'> %p;]>"}) {
        try {
            EXPECT_STREQ(pathOf(readRequest(doctype + content)), "[]") << doctype;
        } catch (const KORVAException& exception) {
            EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU) << doctype;
        }
    }
    EXPECT_STREQ(pathOf(readRequest("<!DOCTYPE e SYSTEM 'http://127.0.0.1:1/e.dtd'>" +
                                    operation("run", "<objectPath>a</objectPath>"))),
                 "a");
    std::remove(path.c_str());
}

// ----- counts -----

TEST(HostileInput, NothingIsReservedForAnAnnouncedCount) {
    DocumentReader reader;
    auto& array = static_cast<KORVAParmValueItemArray&>(*reader.read(
        "<root" + declarations() +
        " xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:parmValueItem[4000000000]\">"
        "<item xsi:type=\"bus:simpleParmValueItem\"/></root>"));
    EXPECT_EQ(array.size(), 1U);
}

// ----- damage -----

TEST(HostileInput, AnEnvelopeCutAnywhereFails) {
    const std::string text = operation(
        "run",
        "<objectPath xsi:type=\"bus:searchPathSingleObject\">/a&amp;b</objectPath><options/>",
        "<bus:halyardHeader><Warden><roles><item>r</item></roles></Warden></bus:halyardHeader>");
    KORVASOAPMessageIDeserializer deserializer;
    for (std::size_t length = 0; length != text.size(); ++length) {
        try {
            readRequest(deserializer, text.substr(0, length));
            ADD_FAILURE() << "accepted at " << length;
        } catch (const KORVAException& exception) {
            EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU) << length;
        }
    }
    EXPECT_STREQ(pathOf(readRequest(deserializer, text)), "/a&b");
}

TEST(HostileInput, WhatIsNoXmlFails) {
    for (const std::string& text :
         {std::string("GET / HTTP/1.1\r\n\r\n"), std::string(1000, '\0'), std::string("\xFF\xFE"),
          std::string("\x1F\x8B\x08\x00", 4), std::string("<"), std::string("<<<<"),
          std::string("\xEF\xBB\xBF"), std::string(5000, ' '), std::string(5000, '<')}) {
        try {
            readRequest(text);
            ADD_FAILURE() << "accepted: " << text;
        } catch (const KORVAException& exception) {
            EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU) << text;
        }
    }
}

TEST(HostileInput, NulBytesFail) {
    const std::string good = operation("run", "<objectPath>/a</objectPath>");
    for (const std::size_t at : {std::size_t{0}, good.find("run"), good.find("/a") + 1,
                                 good.find("</"), good.size() - 1}) {
        std::string text = good;
        text.insert(at, 1, '\0');
        EXPECT_THROW(readRequest(text), KORVAException) << at;
    }
    EXPECT_THROW(readRequest(operation("run", "<objectPath>&#0;</objectPath>")), KORVAException);
}

TEST(HostileInput, ManyNamesAndManyTypesAreReadLikeFew) {
    std::string content;
    for (int i = 0; i != 5000; ++i) {
        const std::string name = "n" + std::to_string(i);
        content += "<" + name + " xmlns:p" + std::to_string(i) + "=\"urn:u\" xsi:type=\"p" +
                   std::to_string(i) + ":t\">" + std::to_string(i) + "</" + name + ">";
    }
    DocumentReader reader;
    auto& array = reader.read<KORVAStringArray>(document("bus:stringArray", content));
    ASSERT_EQ(array.size(), 5000U);
    EXPECT_STREQ(array.at(4999), "4999");
}

// ----- streams -----

/// Gives a text, then does something else.
class BrokenStream : public BRIMInputStream {
public:
    BrokenStream(std::string text, std::function<void()> then)
        : m_text(std::move(text)), m_then(std::move(then)) {}

    long long read(char* buffer, std::size_t size) override {
        if (m_position == m_text.size()) m_then();
        const std::size_t count = std::min({size, std::size_t{50}, m_text.size() - m_position});
        m_text.copy(buffer, count, m_position);
        m_position += count;
        return static_cast<long long>(count);
    }

private:
    std::string m_text;
    std::function<void()> m_then;
    std::size_t m_position = 0;
};

struct OwnFailure {};

TEST(HostileInput, TheExceptionOfAStreamSurfaces) {
    // The failure comes in the prolog, which is looked at first, and in the parse.
    for (const std::string& start :
         {std::string(), "<root" + declarations() + ">" + std::string(2000, ' ') + "<a>"}) {
        DocumentReader reader;
        BrokenStream throwable(start, [] { ZEL_THROW(KORVAException(7), "stream"); });
        try {
            reader.read(throwable);
            ADD_FAILURE();
        } catch (const KORVAException& exception) {
            EXPECT_STREQ(exception.getErrorCodeString(), "7");
            ASSERT_EQ(exception.getBackTrace().size(), 2U);
            EXPECT_NE(std::string(exception.getBackTrace()[1])
                          .find(") KORVAXMLDeserializer::parse() ZEL_RETHROW"),
                      std::string::npos);
        }
        BrokenStream standard(start, [] { throw std::runtime_error("line is down"); });
        try {
            reader.read(standard);
            ADD_FAILURE();
        } catch (const ZELStdExceptionError& error) {
            EXPECT_STREQ(error.getText(), "line is down");
            ASSERT_EQ(error.getBackTrace().size(), 1U);
            EXPECT_NE(std::string(error.getBackTrace()[0])
                          .find(") KORVAXMLDeserializer::parse() ZEL_THROW"),
                      std::string::npos);
        }
        BrokenStream memory(start, [] { throw std::bad_alloc(); });
        EXPECT_THROW(reader.read(memory), ZELOutOfMemoryError);
        BrokenStream other(start, [] { throw OwnFailure(); });
        EXPECT_TRUE(korva::test::raises<KORVAException>(
            "a KORVAException", [&] { reader.read(other); },
            [](const KORVAException& exception) -> testing::AssertionResult {
                if (exception.getMessages()[0].getId() == 0xEA49BA8DU &&
                    exception.getMessages()[0].getParms().size() == 0)
                    return testing::AssertionSuccess();
                return testing::AssertionFailure() << exception.toString();
            }));
        EXPECT_NE(reader.read(document("bus:provider", "")), nullptr);
    }
}

TEST(HostileInput, AStreamThatEndsInTheMiddleIsATruncatedDocument) {
    DocumentReader reader;
    BrokenStream stream("<root>" + std::string(3000, ' '), [] {});
    try {
        reader.read(stream);
        ADD_FAILURE();
    } catch (const KORVAException& exception) {
        EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU);
    }
}

}  // namespace
