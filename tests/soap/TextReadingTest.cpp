// Text on its way from the parser to the objects, however it is cut and written.
#include "tests/soap/Reading.h"

#include <korva/KORVAProvider.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace {

using korva::test::document;
using korva::test::DocumentReader;
using korva::test::TextStreamable;

std::string valueOf(const std::string& text, const std::string& prolog = {}) {
    DocumentReader reader;
    return reader
        .read<KORVAStringProp>(prolog + document("bus:stringProp", "<value>" + text + "</value>"))
        .getValue();
}

TEST(TextReading, EntitiesAndSectionsAreOneText) {
    EXPECT_EQ(valueOf("a&amp;b&lt;c&gt;d&quot;e&apos;f<![CDATA[<g>&amp;]]>h<!-- i -->j<?k l?>m"),
              "a&b<c>d\"e'f<g>&amp;hjm");
}

TEST(TextReading, CharacterReferencesBecomeUtf8) {
    EXPECT_EQ(valueOf("&#65;&#xE4;&#x20AC;&#x1F600;&#10;"),
              "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\n");
}

TEST(TextReading, TextBeyondAsciiIsKept) {
    const std::string text = "gr\xC3\xBC\xC3\x9F dich \xE2\x82\xAC \xF0\x9F\x98\x80 \xE6\x97\xA5";
    EXPECT_EQ(valueOf(text), text);
}

TEST(TextReading, LineEndsAreNormalised) {
    EXPECT_EQ(valueOf("a\r\nb\rc\nd&#13;e"), "a\nb\nc\nd\re");
}

TEST(TextReading, TheSameTextComesOutWhicheverWayTheParserIsSetUp) {
    // The parser is set up for a prolog that shows all there is, and for one that does not.
    const std::string text = "a&amp;<![CDATA[<b>]]>\xC3\xA4&#x1F600;\r\n";
    const std::string expected = "a&<b>\xC3\xA4\xF0\x9F\x98\x80\n";
    EXPECT_EQ(valueOf(text), expected);
    EXPECT_EQ(valueOf(text, "<!--" + std::string(2000, ' ') + "-->"), expected);
}

TEST(TextReading, SurrogatePairsSurviveEverySplit) {
    // The parser hands long text on in pieces; with a pair at every place some are cut.
    std::string text;
    for (int i = 0; i != 40'000; ++i) {
        text += "\xF0\x9F\x98\x80";
        if (i % 7 == 0) text += "x";
        if (i % 11 == 0) text += "\xC3\xA4";
    }
    EXPECT_EQ(valueOf(text), text);
    std::string references;
    std::string pairs;
    for (int i = 0; i != 1000; ++i) {
        references += "&#x1F600;";
        pairs += "\xF0\x9F\x98\x80";
    }
    EXPECT_EQ(valueOf(references), pairs);
}

TEST(TextReading, ADocumentMayArriveInPiecesOfAnySize) {
    const std::string text =
        document("bus:stringArray", "<i>\xC3\xA4 one</i><i>t\xF0\x9F\x98\x80wo</i><i/>");
    for (const std::size_t piece : {1U, 2U, 3U, 7U, 100U, 1024U, 1025U}) {
        DocumentReader reader;
        TextStreamable stream(text, piece);
        const auto* const array = static_cast<KORVAStringArray*>(reader.read(stream));
        ASSERT_NE(array, nullptr) << piece;
        ASSERT_EQ(array->size(), 3U) << piece;
        EXPECT_STREQ(array->at(0), "\xC3\xA4 one");
        EXPECT_STREQ(array->at(1), "t\xF0\x9F\x98\x80wo");
        EXPECT_STREQ(array->at(2), "");
    }
}

TEST(TextReading, LongTextsMayBeFullOfReferences) {
    std::string text;
    std::string expected;
    for (int i = 0; i != 20'000; ++i) {
        text += "word&amp;\xC3\xA4&lt;]\n&#x20AC;&gt; \r\n&quot;&apos;";
        expected += "word&\xC3\xA4<]\n\xE2\x82\xAC> \n\"'";
    }
    for (const std::size_t piece : {3U, 1000U, 4096U, 1'000'000U}) {
        DocumentReader reader;
        const std::string whole =
            document("bus:stringArray", "<i>" + text + "</i><i>&amp;</i><i>" + text + "</i>");
        TextStreamable stream(whole, piece);
        const auto& array = *static_cast<KORVAStringArray*>(reader.read(stream));
        ASSERT_EQ(array.size(), 3U) << piece;
        EXPECT_EQ(array.at(0), expected) << piece;
        EXPECT_STREQ(array.at(1), "&") << piece;
        EXPECT_EQ(array.at(2), expected) << piece;
    }
}

TEST(TextReading, AFailureBehindALongTextTellsItsPlace) {
    std::string lines;
    for (int i = 0; i != 5000; ++i)
        lines += "a &amp; b\n";
    for (const char* const bad : {"&none;", "]]>", "\x01", "\xEF\xBF\xBE", "</b>"}) {
        DocumentReader reader;
        const std::string text =
            document("bus:stringProp", "\n<value>" + lines + "&lt;de" + bad + "</value>");
        const std::vector<std::string> trace = korva::test::traceOf([&] { reader.read(text); });
        ASSERT_FALSE(trace.empty()) << bad;
        const std::string place = korva::test::placeIn(trace.back());
        EXPECT_EQ(place.substr(0, place.find(',')), "line 5002") << bad;
    }
}

TEST(TextReading, TextsOfEverySizeAreKept) {
    std::string content;
    for (std::size_t size = 0; size != 300; ++size)
        content += "<i>" + std::string(size, static_cast<char>('a' + size % 26)) + "</i>";
    for (const std::size_t size : {4000U, 4095U, 4096U, 4097U, 10'000U, 1'048'576U, 2'000'000U})
        content += "<i>" + std::string(size, 'z') + "</i>";
    DocumentReader reader;
    auto& array = reader.read<KORVAStringArray>(document("bus:stringArray", content));
    ASSERT_EQ(array.size(), 307U);
    for (std::size_t size = 0; size != 300; ++size)
        EXPECT_EQ(array.at(size), std::string(size, static_cast<char>('a' + size % 26)));
    EXPECT_EQ(array.at(300), std::string(4000, 'z'));
    EXPECT_EQ(array.at(301), std::string(4095, 'z'));
    EXPECT_EQ(array.at(302), std::string(4096, 'z'));
    EXPECT_EQ(array.at(303), std::string(4097, 'z'));
    EXPECT_EQ(array.at(304), std::string(10'000, 'z'));
    EXPECT_EQ(array.at(305), std::string(1'048'576, 'z'));
    EXPECT_EQ(array.at(306), std::string(2'000'000, 'z'));
}

TEST(TextReading, TheProlog) {
    const std::string bom = "\xEF\xBB\xBF";
    const std::string declared = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    const std::string text = "\xC3\xA4";
    EXPECT_EQ(valueOf(text, bom), text);
    EXPECT_EQ(valueOf(text, bom + declared), text);
    EXPECT_EQ(valueOf(text, declared + "\n<!-- <!DOCTYPE a> --><?pi <!DOCTYPE?>\n"), text);
    EXPECT_EQ(valueOf(text, "<?xml version='1.0' encoding='utf-8' standalone='yes'?>"), text);
    EXPECT_EQ(valueOf(text, declared + "<!--" + std::string(3000, ' ') + "-->"), text);
    EXPECT_EQ(valueOf("\xE4", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"), text);
    EXPECT_EQ(valueOf("\x80", "<?xml version=\"1.0\" encoding=\"windows-1252\"?>"), "\xE2\x82\xAC");
}

TEST(TextReading, Utf16WithAByteOrderMark) {
    const std::string narrow = document("bus:stringProp", "<value>text</value>");
    for (const bool bigEndian : {false, true}) {
        std::string wide = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
        for (const char c : narrow) {
            if (bigEndian) wide += '\0';
            wide += c;
            if (!bigEndian) wide += '\0';
        }
        DocumentReader reader;
        EXPECT_STREQ(reader.read<KORVAStringProp>(wide).getValue(), "text");
    }
}

TEST(TextReading, TextAfterAFailureInTheMiddleOfACharacterIsClean) {
    DocumentReader reader;
    EXPECT_THROW(reader.read(document("bus:stringProp", "<value>\xF0\x9F\x98</value>")),
                 ZELThrowable);
    EXPECT_STREQ(reader.read<KORVAProvider>(document("bus:provider", "<name>n</name>")).getName(),
                 "n");
}

}  // namespace
