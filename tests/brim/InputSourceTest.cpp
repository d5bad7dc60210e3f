#include "tests/brim/Streams.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMStreamInputSource.h>
#include <zel/I18NString.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <memory>
#include <stdexcept>
#include <string>

namespace {

using korva::test::PiecewiseInput;

class Recorder : public xercesc::DefaultHandler {
public:
    void startElement(const XMLCh*, const XMLCh* local, const XMLCh*,
                      const xercesc::Attributes&) override {
        events += "<" + std::string(I18NString(local, length(local)).utf8());
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { events += ">"; }
    void characters(const XMLCh* text, const XMLSize_t size) override {
        events += I18NString(text, size).utf8();
    }
    void fatalError(const xercesc::SAXParseException& error) override { throw error; }

    std::string events;

private:
    static std::size_t length(const XMLCh* text) { return std::char_traits<XMLCh>::length(text); }
};

class InputSource : public testing::Test {
protected:
    static void SetUpTestSuite() { xercesc::XMLPlatformUtils::Initialize(); }
    static void TearDownTestSuite() { xercesc::XMLPlatformUtils::Terminate(); }

    static std::string parse(BRIMInputStream& stream) {
        const std::unique_ptr<xercesc::SAX2XMLReader> reader(
            xercesc::XMLReaderFactory::createXMLReader());
        Recorder recorder;
        reader->setContentHandler(&recorder);
        reader->setErrorHandler(&recorder);
        const BRIMStreamInputSource source(stream);
        reader->parse(source);
        return recorder.events;
    }
};

TEST_F(InputSource, IsParsedInEveryPiece) {
    const std::string text = "<?xml version='1.0' encoding='UTF-8'?><a>x<b>\xC3\xBC</b>y</a>";
    for (const std::size_t piece : {1ul, 2ul, 3ul, 1000ul}) {
        for (const long long end : {0ll, -1ll}) {
            PiecewiseInput in(text, piece, end);
            EXPECT_EQ(parse(in), "<ax<b\xC3\xBC>y>");
        }
    }
}

TEST_F(InputSource, TakesOtherEncodings) {
    const std::u16string text = u"\uFEFF<a>\u00FC</a>";
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    BRIMMemoryInputStream in(bytes.data(), bytes.size());
    EXPECT_EQ(parse(in), "<a\xC3\xBC>");
}

TEST_F(InputSource, MalformedTextIsTheParsersFailure) {
    BRIMMemoryInputStream in("<a><b></a>", 10);
    EXPECT_THROW(parse(in), xercesc::SAXParseException);
    BRIMMemoryInputStream empty("", 0);
    EXPECT_THROW(parse(empty), xercesc::SAXParseException);
}

/// Beginnings of documents, at whose end a stream may fail: in the parser's first read and in a
/// later one, in every kind of construct.
const std::string beginnings[] = {
    "",
    "<",
    "<?xml version='1.0'",
    "<?xml version='1.0'?>",
    "<!-- comment",
    "<!DOCTYPE a [ <!ENTITY e 'x'> ",
    "<a attribute='",
    "<a>text",
    "<a><![CDATA[",
    "<a>" + std::string(200000, 'x'),
    "<a/>",
};

template <class Exception, class Thrower>
void expectThatItPasses(BRIMInputStream& in, Thrower parse, const std::string& beginning) {
    EXPECT_THROW(parse(in), Exception) << beginning.substr(0, 40);
}

TEST_F(InputSource, FailureOfTheStreamLeavesTheParserAsItIs) {
    for (const std::string& beginning : beginnings) {
        for (const std::size_t piece : {1ul, 1000000ul}) {
            {
                PiecewiseInput in(beginning, piece);
                in.failAtEnd([] { ZEL_THROW(BRIMStreamError("connection lost"), "Origin::read"); });
                try {
                    parse(in);
                    ADD_FAILURE() << beginning.substr(0, 40);
                } catch (const BRIMStreamError& error) {
                    EXPECT_STREQ(error.getText(), "connection lost");
                    EXPECT_EQ(error.getBackTrace().size(), 1u);
                }
            }
            {
                PiecewiseInput in(beginning, piece);
                in.failAtEnd([] { ZEL_THROW(ZELOutOfMemoryError()); });
                expectThatItPasses<ZELOutOfMemoryError>(in, parse, beginning);
            }
            {
                PiecewiseInput in(beginning, piece);
                in.failAtEnd([] { throw std::runtime_error("x"); });
                expectThatItPasses<std::runtime_error>(in, parse, beginning);
            }
            {
                PiecewiseInput in(beginning, piece);
                in.failAtEnd([] { throw 7; });
                expectThatItPasses<int>(in, parse, beginning);
            }
        }
    }
}

}  // namespace
