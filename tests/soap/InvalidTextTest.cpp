// Text that no XML document can hold, on its way into one.
#include "tests/soap/ElementWriting.h"
#include "tests/soap/SampleMessages.h"
#include "tests/support/ExpectThrow.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMXmlEncodeOutputStream.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

using korva::test::Call;
using korva::test::CollectingStream;
using korva::test::element;
using korva::test::TextStreamable;

constexpr unsigned invalidText = 0xEA4F0004U;
constexpr const char* setter = "setReplaceInvalidText";
const std::string replacement = "\xEF\xBF\xBD";

std::string stringElement(const char* text, bool replace = false) {
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(false);
    serializer.setReplaceInvalidText(replace);
    CollectingStream stream;
    serializer.serialize(text, KORVASchemaTypeI::eString, "bus:value", stream);
    return stream.text;
}

/// What stands between the tags.
std::string content(const std::string& element) {
    const std::size_t start = element.find('>') + 1;
    return element.substr(start, element.rfind("</") - start);
}

std::string replaced(const std::string& text) {
    return content(stringElement(text.c_str(), true));
}

std::string encoded(const std::string& text) {
    BRIMMemoryOutputStream out;
    BRIMXmlEncodeOutputStream(out).write(text.data(), text.size());
    return {out.str(), out.pcount()};
}

TEST(InvalidText, ControlCharactersAreRefusedButForThoseThatXmlHas) {
    for (int code = 1; code < 0x20; ++code) {
        const std::string text = std::string("a") + static_cast<char>(code) + "b";
        if (code == '\t' || code == '\n' || code == '\r') {
            EXPECT_EQ(content(stringElement(text.c_str())), encoded(text));
            continue;
        }
        char found[32];
        std::snprintf(found, sizeof found, "the character U+%04X", code);
        EXPECT_NUMBERED(stringElement(text.c_str()), invalidText, nullptr, "/value", found, setter);
        EXPECT_EQ(replaced(text), "a" + replacement + "b");
    }
}

TEST(InvalidText, DeleteAndTheControlCharactersBeyondAsciiPass) {
    const std::string text = "\x7F\xC2\x80\xC2\x9F\xC2\xA0";
    EXPECT_EQ(content(stringElement(text.c_str())), text);
}

TEST(InvalidText, TheTwoCharactersBehindThePrivateOnesAreRefused) {
    EXPECT_NUMBERED(stringElement("x\xEF\xBF\xBE"), invalidText, nullptr, "/value",
                    "the character U+FFFE", setter);
    EXPECT_NUMBERED(stringElement("x\xEF\xBF\xBF"), invalidText, nullptr, "/value",
                    "the character U+FFFF", setter);
    EXPECT_EQ(replaced("\xEF\xBF\xBEz"), replacement + "z");
    EXPECT_EQ(replaced("\xEF\xBF\xBD"), replacement);
}

TEST(InvalidText, WhatIsNoUtf8IsRefusedAndReplacedByteByByte) {
    struct Row {
        const char* text;
        const char* byte;
        int replacements;
    };
    const Row rows[] = {
        {"\x80", "0x80", 1},              // nothing that it continues
        {"\xC3", "0xC3", 1},              // cut
        {"\xE2\x82", "0xE2", 2},          // cut
        {"\xF0\x9F\x98", "0xF0", 3},      // cut
        {"\xC0\xAF", "0xC0", 2},          // longer than needed
        {"\xC1\xBF", "0xC1", 2},          //
        {"\xE0\x9F\xBF", "0xE0", 3},      //
        {"\xF0\x8F\xBF\xBF", "0xF0", 4},  //
        {"\xED\xA0\x80", "0xED", 3},      // a surrogate
        {"\xED\xBF\xBF", "0xED", 3},      //
        {"\xF4\x90\x80\x80", "0xF4", 4},  // beyond the last character
        {"\xF5\x80\x80\x80", "0xF5", 4},  //
        {"\xFE", "0xFE", 1},
        {"\xC3\xC3\xA9", "0xC3", 1},  // the second of the leads has its byte
    };
    for (const Row& row : rows) {
        const std::string found = std::string("invalid UTF-8, the byte ") + row.byte;
        EXPECT_NUMBERED(stringElement(row.text), invalidText, nullptr, "/value", found, setter);
        const std::string text = std::string("a") + row.text;
        const std::string result = replaced(text);
        int count = 0;
        for (std::size_t at = 0; (at = result.find(replacement, at)) != std::string::npos; ++at)
            ++count;
        EXPECT_EQ(count, row.replacements) << row.byte;
    }
    EXPECT_EQ(replaced("\xC3\xC3\xA9"), replacement + "\xC3\xA9");
    EXPECT_EQ(replaced("\xE2\x82<"), replacement + replacement + "&lt;");
}

TEST(InvalidText, TheEdgesOfWhatIsUtf8Pass) {
    const std::string text =
        "\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD\xF0\x90\x80\x80"
        "\xF4\x8F\xBF\xBF";
    EXPECT_EQ(content(stringElement(text.c_str())), text);
}

TEST(InvalidText, IsFoundAtEveryPlaceOfATextOfEveryLength) {
    const std::string bad[] = {"\x01", "\xFF", "\xE2\x82", "\xEF\xBF\xBF"};
    for (std::size_t length = 0; length < 70; ++length) {
        const std::string clean(length, 'x');
        EXPECT_EQ(content(stringElement(clean.c_str())), clean);
        for (std::size_t at = 0; at <= length; ++at) {
            for (const std::string& piece : bad) {
                std::string text = clean;
                text.insert(at, piece);
                EXPECT_THROW(stringElement(text.c_str()), KORVAException) << text;
            }
        }
    }
}

TEST(InvalidText, ValidTextIsEncodedAsEver) {
    const std::string pieces[] = {"a",
                                  "bc",
                                  "&",
                                  "<",
                                  ">",
                                  "\"",
                                  "'",
                                  "\r",
                                  "\n",
                                  "\t",
                                  "defgh",
                                  "ijklmnopqrstuvwxyz",
                                  " ",
                                  "\xC3\xA9",
                                  "\xE2\x82\xAC",
                                  "\xF0\x9F\x98\x80"};
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        const auto count = random() % 40;
        // Some texts have much markup, some none, some are ASCII.
        const auto first = random() % std::size(pieces);
        const auto span = 1 + random() % std::size(pieces);
        for (unsigned i = 0; i < count; ++i)
            text += pieces[(first + random() % span) % std::size(pieces)];
        ASSERT_EQ(content(stringElement(text.c_str())), encoded(text)) << text;
        ASSERT_EQ(replaced(text), encoded(text)) << text;
    }
}

TEST(InvalidText, StreamsMayCutCharactersAnywhere) {
    const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80<\xE2\x82x\xEF\xBF\xBE\xC3";
    const std::string expected = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80&lt;" + replacement +
                                 replacement + "x" + replacement + replacement;
    /// Writes itself in pieces.
    class Pieces : public TextStreamable {
    public:
        Pieces(std::string bytes, std::size_t piece)
            : TextStreamable(bytes), m_text(bytes), m_size(piece) {}
        BRIMOutputStream& operator>>(BRIMOutputStream& out) const override {
            for (std::size_t at = 0; at < m_text.size(); at += m_size)
                out.write(m_text.data() + at, std::min(m_size, m_text.size() - at));
            return out;
        }

    private:
        std::string m_text;
        std::size_t m_size;
    };
    for (std::size_t piece = 1; piece <= text.size(); ++piece) {
        const Pieces source(text, piece);
        KORVA_CharStreamable value;
        value.initialize(source, false);
        EXPECT_EQ(content(stringElement(value.asCharStar(), true)), expected) << piece;
        EXPECT_THROW(stringElement(value.asCharStar()), KORVAException) << piece;
    }
    const Pieces cut("abc\xE2\x82", 4);
    KORVA_CharStreamable value;
    value.initialize(cut, false);
    EXPECT_NUMBERED(stringElement(value.asCharStar()), invalidText, nullptr, "/value",
                    "invalid UTF-8, the byte 0xE2", setter);
}

TEST(InvalidText, WhatStandsBeforeItStaysInTheStream) {
    KORVAStringArray array;
    array.push_back("fine");
    array.push_back("b\x01");
    CollectingStream stream;
    KORVASOAPSerializer serializer;
    EXPECT_THROW(serializer.serialize(&array, array.getObjectType(), "bus:a", stream),
                 KORVAException);
    EXPECT_NE(stream.text.find(">fine</item>\n"), std::string::npos);
    EXPECT_EQ(stream.text.find('\x01'), std::string::npos);
}

TEST(InvalidText, ThePathTellsNamesAndPlacesInArrays) {
    const Call call = korva::test::makeRunCall();
    auto& request = static_cast<KORVAAsynchRun_Request&>(call->getInputMessage());
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    KORVAParameterValueArray& values = *request.getParameterValues(registry);
    const char* const names[] = {"one", "two", "thr\x02"};
    for (const char* const name : names) {
        auto* const value = registry->make<KORVAParameterValue>();
        value->setName(name);
        values.push_back(value);
    }
    CollectingStream stream;
    KORVASOAPMessageISerializer serializer;
    EXPECT_NUMBERED(serializer.serialize(*call, request, stream), invalidText, nullptr,
                    "/run/parameterValues/item[3]/name", "the character U+0002", setter);

    serializer.setReplaceInvalidText(true);
    CollectingStream replacing;
    serializer.serialize(*call, request, replacing);
    EXPECT_NE(replacing.text.find(">thr" + replacement + "</bus:name>"), std::string::npos);

    values.clear();
    request.getObjectPath(registry)->setValue("\x03");
    serializer.setReplaceInvalidText(false);
    EXPECT_NUMBERED(serializer.serialize(*call, request, stream), invalidText, nullptr,
                    "/run/objectPath", "the character U+0003", setter);
}

TEST(InvalidText, NamesAndIdsThatACallerGaveAreLookedAt) {
    KORVASOAPSerializer serializer;
    CollectingStream stream;
    EXPECT_NUMBERED(serializer.serialize("x", KORVASchemaTypeI::eString, "bus:a\x01", stream),
                    invalidText, nullptr, "", "the character U+0001", setter);

    KORVAXSBase64Binary id("i\x01", 2);
    id.setIsContentId(true);
    EXPECT_NUMBERED(serializer.serialize(&id, KORVASchemaTypeI::eBase64Binary, "bus:a", stream),
                    invalidText, nullptr, "/a", "the character U+0001", setter);
    KORVA_CharStreamable text;
    text.initialize("i\xFF", false);
    text.setIsContentId(true);
    EXPECT_NUMBERED(
        serializer.serialize(text.asCharStar(), KORVASchemaTypeI::eString, "bus:a", stream),
        invalidText, nullptr, "/a", "invalid UTF-8, the byte 0xFF", setter);
    serializer.setReplaceInvalidText(true);
    serializer.setWriteNamespaceDeclarations(false);
    CollectingStream replacing;
    serializer.serialize(&id, KORVASchemaTypeI::eBase64Binary, "bus:a", replacing);
    EXPECT_EQ(replacing.text,
              "<bus:a xsi:type=\"xs:base64Binary\" href=\"cid:i" + replacement + "\"></bus:a>\n");
}

TEST(InvalidText, NameAndNamespaceOfTheOperationAreLookedAt) {
    KORVASOAPSerializer serializer;
    CollectingStream stream;
    EXPECT_NUMBERED(serializer.serializeEnvelope({}, {}, "run\x01", "urn:x", stream), invalidText,
                    nullptr, "/run\\u{1}", "the character U+0001", setter);
    EXPECT_NUMBERED(serializer.serializeEnvelope({}, {}, "run", "urn:\x80", stream), invalidText,
                    nullptr, "/run", "invalid UTF-8, the byte 0x80", setter);
    serializer.setReplaceInvalidText(true);
    CollectingStream replacing;
    serializer.serializeEnvelope({}, {}, "run", "urn:\x01", replacing);
    EXPECT_NE(replacing.text.find("<rns1:run xmlns:rns1=\"urn:" + replacement + "\">"),
              std::string::npos);
}

}  // namespace
