#include "tests/zelidom/Documents.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMStreamError.h>
#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>
#include <zelidom/ZELIDOM_NodeList.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

using korva::test::parseDocument;
using korva::test::textOf;

std::string nested(std::size_t depth) {
    std::string xml;
    for (std::size_t i = 0; i < depth; ++i)
        xml += "<e>";
    xml += "<e/>";
    for (std::size_t i = 0; i < depth; ++i)
        xml += "</e>";
    return xml;
}

TEST(DocumentParsing, GivesTheTree) {
    const ZELIDOM_Document document =
        parseDocument("<?xml version='1.0'?>\n<r xmlns='urn:r'><a>x &amp; y</a> <b/></r>");
    const ZELIDOM_Element root = document.getDocumentElement();
    EXPECT_EQ(root.getNamespaceURI(), "urn:r");
    ASSERT_EQ(root.getChildNodes().getLength(), 3u);
    EXPECT_EQ(root.getFirstChild().getFirstChild().getNodeValue(), "x & y");
    EXPECT_EQ(root.getChildNodes().item(1).getNodeValue(), " ");
    EXPECT_EQ(root.getChildNodes().item(2).getNodeName(), "b");
}

TEST(DocumentParsing, TellsWhereADocumentIsNotWellFormed) {
    const std::string text = textOf<ZELIDOM_Error>([] { parseDocument("<r>\n<a></b>\n</r>"); });
    EXPECT_NE(text.find("line 2"), std::string::npos) << text;
    EXPECT_THROW(parseDocument(""), ZELIDOM_Error);
    EXPECT_THROW(parseDocument("<r>"), ZELIDOM_Error);
    EXPECT_THROW(parseDocument("<p:r/>"), ZELIDOM_Error);
    EXPECT_THROW(parseDocument("<r a='1' a='2'/>"), ZELIDOM_Error);
    EXPECT_THROW(parseDocument("<r>\xC3</r>"), ZELIDOM_Error);
}

TEST(DocumentParsing, CutsTheNamesOfTheDocumentInWhatItTells) {
    const std::string text =
        textOf<ZELIDOM_Error>([] { parseDocument("<" + std::string(100'000, 'n') + "></b>"); });
    EXPECT_NE(text.find("nnn ... (cut, "), std::string::npos) << text;
    EXPECT_NE(text.find("line 1"), std::string::npos) << text;
    EXPECT_LT(text.size(), 600U);
}

TEST(DocumentParsing, NamesTheOperationInTheTrace) {
    try {
        parseDocument("<r>");
        FAIL();
    } catch (const ZELIDOM_Error& error) {
        const std::string line = error.getBackTrace()[0];
        EXPECT_NE(line.find(" ZELIDOM_Document::parse ZEL_THROW"), std::string::npos) << line;
        EXPECT_STREQ(error.getThrowableName(), "ZELIDOM_Error");
    }
}

TEST(DocumentParsing, RefusesADocumentType) {
    constexpr const char* refusal = "The document has a document type.";
    EXPECT_EQ(textOf<ZELIDOM_Error>([] { parseDocument("<!DOCTYPE r><r/>"); }), refusal);
    EXPECT_EQ(textOf<ZELIDOM_Error>([] {
                  parseDocument("<!DOCTYPE r [<!ENTITY e SYSTEM 'file:///etc/passwd'>]><r>&e;</r>");
              }),
              refusal);
    EXPECT_EQ(textOf<ZELIDOM_Error>(
                  [] { parseDocument("<!DOCTYPE r SYSTEM 'file:///no/such.dtd'><r/>"); }),
              refusal);
    // Before anything of it is read.
    EXPECT_EQ(textOf<ZELIDOM_Error>([] {
                  parseDocument("<!DOCTYPE r [<!ENTITY % e '<!x'>%e; no declaration]><r/>");
              }),
              refusal);
}

TEST(DocumentParsing, RefusesElementsThatAreNestedTooDeep) {
    EXPECT_NO_THROW(parseDocument(nested(4), 5));
    EXPECT_EQ(textOf<ZELIDOM_Error>([] { parseDocument(nested(5), 5); }),
              "The elements are nested deeper than 5.");
    // What ends counts no more.
    EXPECT_NO_THROW(parseDocument("<r><a><b/></a><a><b/></a><a><b/></a></r>", 3));
    EXPECT_NO_THROW(parseDocument(nested(ZELIDOM_Document::defaultMaximumDepth - 1)));
    EXPECT_THROW(parseDocument(nested(ZELIDOM_Document::defaultMaximumDepth)), ZELIDOM_Error);
}

std::string withAttributes(std::size_t count) {
    std::string xml = "<r";
    for (std::size_t i = 0; i != count; ++i)
        xml += " a" + std::to_string(i) + "=''";
    return xml + "/>";
}

TEST(DocumentParsing, RefusesTooManyAttributes) {
    constexpr const char* refusal = "A start tag has more than 1000 attributes.";
    const ZELIDOM_Document document = parseDocument(withAttributes(1000));
    EXPECT_EQ(document.getDocumentElement().getAttributes().getLength(), 1000U);
    EXPECT_EQ(textOf<ZELIDOM_Error>([] { parseDocument(withAttributes(1001)); }), refusal);
}

TEST(DocumentParsing, RefusesAStartTagBeforeItsEnd) {
    const std::string xml = withAttributes(100'000);
    class Counting : public BRIMInputStream {
    public:
        explicit Counting(const std::string& text) : m_bytes(text.data(), text.size()) {}
        long long read(char* buffer, std::size_t size) override {
            const long long length = m_bytes.read(buffer, size);
            count += static_cast<std::size_t>(length);
            return length;
        }
        std::size_t count = 0;

    private:
        BRIMMemoryInputStream m_bytes;
    };
    Counting stream(xml);
    EXPECT_EQ(textOf<ZELIDOM_Error>([&] { ZELIDOM_Document::parse(stream); }),
              "A start tag has more than 1000 attributes.");
    EXPECT_LT(stream.count, xml.size() / 4);
}

TEST(DocumentParsing, CountsWhatOneStartTagNeedsAlone) {
    std::string xml = "<r>";
    for (int i = 0; i != 20'000; ++i)
        xml += "<!--a--><?b c?><d e=''/>f<![CDATA[g]]>";
    const ZELIDOM_Document document = parseDocument(xml + "</r>");
    EXPECT_EQ(document.getDocumentElement().getChildNodes().getLength(), 100'000U);
}

TEST(DocumentParsing, LetsTheStreamsFailureThrough) {
    class Broken : public BRIMInputStream {
    public:
        long long read(char*, std::size_t) override { throw BRIMStreamError("no connection"); }
    };
    Broken stream;
    EXPECT_EQ(textOf<BRIMStreamError>([&] { ZELIDOM_Document::parse(stream); }), "no connection");
}

}  // namespace
