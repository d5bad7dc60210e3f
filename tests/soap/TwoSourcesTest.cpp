// What both parsers make of the same bytes is the same.
#include "bench/Corpus.h"
#include "fuzz/EnvelopeMutator.h"
#include "fuzz/TwoSources.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAException.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAXMLDeserializer.h>
#include <zel/ZELSmartPointer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t pieces[] = {1, 3, 1000, 4096, std::size_t{1} << 20U};

/// A text that may hold NULs.
template <std::size_t size>
std::string bytes(const char (&literal)[size]) {
    return {literal, size - 1};
}

/// As a C++ literal, its end if it is long.
std::string shown(std::string_view document) {
    constexpr std::size_t longest = 600;
    const std::size_t from = document.size() - std::min(document.size(), longest);
    return testing::PrintToString(std::string(document.substr(from)));
}

/// Whether both parsers agree on a document, however the stream divides it.
void expectSame(const std::string& document) {
    for (const std::size_t piece : pieces) {
        const std::string difference = korva::fuzz::differenceOfSources(document, piece);
        if (difference.empty()) continue;
        ADD_FAILURE() << difference << "of " << document.size() << " bytes, " << piece
                      << " a read: " << shown(document);
        return;
    }
}

void expectSame(const Texts& documents) {
    for (const std::string& document : documents)
        expectSame(document);
}

/// All envelopes that tests and examples have.
Texts envelopes() {
    Texts texts;
    for (const char* const folder : {"tests", "examples", "fuzz/corpus/document"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator(
                 std::filesystem::path(KORVA_TEST_SOURCE_DIR) / folder)) {
            if (entry.path().extension() != ".xml") continue;
            std::ifstream stream(entry.path(), std::ios::binary);
            texts.emplace_back(std::istreambuf_iterator<char>(stream),
                               std::istreambuf_iterator<char>());
        }
    return texts;
}

/// The envelopes that are measured, in small.
Texts benchEnvelopes() {
    return {inputEnvelope(*makeRunRequest()), outputEnvelope(*makeContentReply(20'000)),
            inputEnvelope(*makeTextRequest(20'000)), outputEnvelope(*makeBinaryReply(20'000))};
}

constexpr std::string_view envelopeStart =
    "<e:Envelope xmlns:e='http://schemas.xmlsoap.org/soap/envelope/' "
    "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
    "xmlns:xs='http://www.w3.org/2001/XMLSchema' "
    "xmlns:SOAP-ENC='http://schemas.xmlsoap.org/soap/encoding/' "
    "xmlns:bus='" KORVA_TEST_AUTHORITY "/schemas/halyardns/3/'><e:Body>";
constexpr std::string_view envelopeEnd = "</e:Body></e:Envelope>";

/// A document that has `content` where texts, elements and all else may stand, alone and as the
/// value of a parameter.
Texts around(std::string_view content) {
    const std::string text(content);
    return {"<a>" + text + "</a>", std::string(envelopeStart) +
                                       "<r:activate xmlns:r='" KORVA_TEST_AUTHORITY
                                       "/schemas/reportService/1'><contentManagerURI "
                                       "xsi:type='xs:string'>" +
                                       text + "</contentManagerURI></r:activate>" +
                                       std::string(envelopeEnd)};
}

/// What may stand in an element.
Texts oddContents() {
    return {
        "",
        "<![CDATA[]]>",
        "<![CDATA[x]]>y<![CDATA[<z>&amp;]]>",
        "<![CDATA[]]]]><![CDATA[>]]>",
        "<![CDATA[]]]>",
        "<![CDATA[]]]]>",
        "<![CDATA[ ]] > ]>]]>",
        "a<!-- b -->c",
        "a<!--> b -->c",
        "a<!---> b -->c",
        "<!---->",
        "<!-- - -->",
        "a<?b c?>d",
        "a<?b?>d",
        "a<?b ?\?>d",
        "a<?b  c ? > ?>d",
        "a<?xml-a b?>d",
        "&#65;&#x42;&#x10FFFF;&#xFFFD;&#xE000;&#xD7FF;&#x9;&#xA;&#xD;",
        "&lt;&gt;&amp;&apos;&quot;",
        "&#00000000000000000065;",
        "&#x0000000000000000000042;",
        "\r",
        "\r\n",
        "\n\r",
        "a\rb\r\nc\n\rd\r\r\ne",
        "<![CDATA[a\rb\r\nc\r]]>\n",
        "<!-- \r -->\r<?a \r?>\n",
        "\t \n \r",
        "<b c=' d\te\nf\r\ng\rh&#9;i&#10;j&#13;k  '/>",
        "<b c='&lt;'/>",
        "<b c='d&amp;e'/>",
        "<b c='&amp;lt;'/>",
        "<b c='&#38;lt; &#x26;amp;'/>",
        "<b c='&quot;&apos;&gt;&#60;'/>",
        "&amp;lt;&#38;amp;",
        "<b c='>'/>",
        "<b c='\"' d=\"'\"/>",
        "<b c = 'd'\n\te\r=\r\n'f' />",
        "<b\r\nc='d'\r/>",
        "<b ></b >",
        "<b xmlns='urn:a'><c/><d xmlns=''><e/></d></b>",
        "<p:b xmlns:p='urn:a'><p:b xmlns:p='urn:b'><p:c/></p:b><p:d/></p:b>",
        "<p:b xmlns:p='urn:a' xmlns:q='urn:a' p:c='1'/>",
        "<b xmlns='urn:a' xmlns:p='urn:b' c='1' p:c='2'/>",
        "<b xml:space='preserve'> c </b>",
        "<b xml:space='other'> c </b>",
        "<b xml:lang='de'/>",
        "<b xml:lang=''/>",
        "<b xml:lang='!'/>",
        "<b xml:id='1'/>",
        "<b xml:id='a'/><b xml:id='a'/>",
        "<b xml:base='%%'/>",
        "<b xmlns:xml='http://www.w3.org/XML/1998/namespace'/>",
        "<b xmlns:p='a b'/>",
        "<b xmlns:p=' urn:a '><p:c/></b>",
        "<b xmlns:p='urn:a&#10;b'/>",
        "<b xmlns:p='%zz'/>",
        "<b xmlns:p=':'/>",
        "<b xmlns='relative'/>",
        "<b xmlns='a&amp;b' xmlns:p='&lt;'/>",
        "<b xmlns:a='urn:1' xmlns:A='urn:2' a:c='1' A:c='2'/>",
        "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEF\xBF\xBD\xEE\x80\x80",
        "\xF4\x8F\xBF\xBD",
        "\xF4\x8F\xBF\xBF",
        "\xF0\x9F\xBF\xBE",
        "\xC2\x85\xE2\x80\xA8",
        "\x7F\xC2\x80\xC2\x9F",
        "<\xC3\xA9 \xC3\xA8='\xC3\xA0'/>",
        "<_ _a='' b.c-d1=''/>",
        "<b-.1\xC2\xB7/>",
        "\xEF\xBB\xBF",
        "a]]b]>c>",
        "]",
        "]]",
        "<b/>\xEF\xBB\xBF<c/>",
    };
}

/// What may not.
Texts badContents() {
    Texts texts = {
        "]]>",
        "a]]>b",
        "]]]>",
        "<![CDATA[a]]>]]>",
        "&#0;",
        "&#x0;",
        "&#1;",
        "&#x1F;",
        "&#xD800;",
        "&#xDFFF;",
        "&#xFFFE;",
        "&#xFFFF;",
        "&#x110000;",
        "&#x100000041;",
        "&#4294967361;",
        "&#18446744073709551681;",
        "&#x10000000000000041;",
        "&#;",
        "&#x;",
        "&#X41;",
        "&# 65;",
        "&#65 ;",
        "&#6a;",
        "&#65",
        "&",
        "& ",
        "&;",
        "&amp",
        "& amp;",
        "&amp ;",
        "&none;",
        "&a:b;",
        "&1;",
        "<b c='&none;'/>",
        "<b c='&'/>",
        "<b c='&#0;'/>",
        "<b c='&#xFFFE;'/>",
        "<b c='d<e'/>",
        "<b c=\"d<e\"/>",
        "<b c=d/>",
        "<b c/>",
        "<b c='d' c='e'/>",
        "<b c='d'e='f'/>",
        "<b xmlns:p='urn:a' xmlns:q='urn:a' p:c='1' q:c='2'/>",
        "<b xmlns:p='urn:a' xmlns:p='urn:b'/>",
        "<b xmlns='urn:a' xmlns='urn:b'/>",
        "<b xmlns:p=''/>",
        "<p:b/>",
        "<b p:c=''/>",
        "<p:b p:c=''/>",
        "<b><p:c xmlns:p='urn:a'/><p:d/></b>",
        "<a:b:c xmlns:a='urn:a' xmlns:b='urn:b'/>",
        "<a:b: xmlns:a='urn:a'/>",
        "<a::b xmlns:a='urn:a'/>",
        "<:a/>",
        "<a:/>",
        "<:/>",
        "<a: xmlns:a='urn:a'/>",
        "<b :c=''/>",
        "<b c:=''/>",
        "<b c:d:e='' xmlns:c='urn:a' xmlns:d='urn:b'/>",
        "<b :=''/>",
        "<b xmlns:=''/>",
        "<b xmlns:='urn:a'/>",
        "<b xmlns:a:b='urn:a'/>",
        "<b xmlns::a='urn:a'/>",
        "<p:1 xmlns:p='urn:a'/>",
        "<p:-b xmlns:p='urn:a'/>",
        "<b xmlns:p='urn:a' p:1=''/>",
        "<b xmlns:1='urn:a'/>",
        "<b xmlns:-='urn:a'/>",
        "<b xmlns:p='http://www.w3.org/XML/1998/namespace'/>",
        "<b xmlns='http://www.w3.org/XML/1998/namespace'/>",
        "<b xmlns:xml='urn:a'/>",
        "<b xmlns:xml=''/>",
        "<b xmlns:xmlns='urn:a'/>",
        "<b xmlns:xmlns='http://www.w3.org/2000/xmlns/'/>",
        "<b xmlns:p='http://www.w3.org/2000/xmlns/'/>",
        "<b xmlns='http://www.w3.org/2000/xmlns/'/>",
        "<xmlns:b/>",
        "<xmlns:b xmlns:xmlns='urn:a'/>",
        "<xmlns:b xmlns:p='urn:a'/>",
        "<xmlns/>",
        "<xml/>",
        "<xml:b/>",
        "<b xmlns:xmlfoo='urn:a' xmlfoo:c=''/>",
        "<b xmlnsa='c'/>",
        "<b xmlns.a='c'/>",
        "<b></c>",
        "<b></B>",
        "<b>",
        "</b>",
        "<b></b c='d'>",
        "<b></ b>",
        "< b/>",
        "<b / >",
        "<b/ >",
        "<1/>",
        "<-/>",
        "<.b/>",
        "<b/",
        "<",
        "<!>",
        "<!b>",
        "<!DOCTYPE b>",
        "<![cdata[x]]>",
        "<! [CDATA[x]]>",
        "<![CDATA [x]]>",
        "<![CDATA[x",
        "<![CDATA[x]]",
        "<!-- -- -->",
        "<!-- --->",
        "<!--->",
        "<!-->",
        "<!-- ",
        "<!- -->",
        "<!ELEMENT b ANY>",
        "<?\?>",
        "<? a?>",
        "<?a",
        "<?a ?",
        "<?1?>",
        "<?a?b?>",
        "<?xml?>",
        "<?XML a?>",
        "<?xMl version='1.0'?>",
        "<?xml version='1.0'?>",
        "<?a:b c?>",
        "<?:a?>",
        "<?a: c?>",
        "\xEF\xBF\xBE",
        "\xEF\xBF\xBF",
        "\x01",
        "\x08",
        "\x0B",
        "\x0C",
        "\x1F",
        bytes("\0"),
        bytes("a\0b"),
        bytes("<b\0/>"),
        bytes("<b c='\0'/>"),
        bytes("<!--\0-->"),
        bytes("<?a \0?>"),
        bytes("<![CDATA[\0]]>"),
        "<b c='\x01'/>",
        "<!--\x01-->",
        "<?a \x01?>",
        "<![CDATA[\x01]]>",
        "<b\xC2\xA0/>",
        "<b\xE2\x80\xA8/>",
        "<b\xC2\x85/>",
        "<\xC3\x97/>",
        "<\xF0\x9F\x98\x80/>",
    };
    // Bytes that are no UTF-8, wherever a character may stand.
    for (const char* const bad : {"\x80",
                                  "\xBF",
                                  "\xC0\x80",
                                  "\xC1\xBF",
                                  "\xC0\xAF",
                                  "\xC3",
                                  "\xC3(",
                                  "\xE0\x80\x80",
                                  "\xE0\x9F\xBF",
                                  "\xE2\x82",
                                  "\xE2(\xA1",
                                  "\xED\xA0\x80",
                                  "\xED\xBF\xBF",
                                  "\xF0\x80\x80\x80",
                                  "\xF0\x8F\xBF\xBF",
                                  "\xF0\x9F\x98",
                                  "\xF4\x90\x80\x80",
                                  "\xF5\x80\x80\x80",
                                  "\xF8\x88\x80\x80\x80",
                                  "\xFC\x84\x80\x80\x80\x80",
                                  "\xFE",
                                  "\xFF"})
        for (const char* const place :
             {"x", "<![CDATA[x]]>", "<b c='x'/>", "<!--x-->", "<?b x?>", "<x/>", "<bx/>",
              "<b x=''/>", "<b cx=''/>", "<b></bx>", "<?x?>", "&x;", "&#x;"}) {
            std::string text(place);
            text.replace(text.find('x'), 1, bad);
            texts.push_back(text);
        }
    return texts;
}

/// Whole documents, good and bad.
Texts oddDocuments() {
    Texts texts = {
        "",
        " ",
        "\n",
        "a",
        "<",
        "<a",
        "<a/",
        "<a>",
        "<a/>",
        " <a/>",
        "\r\n<a/>\r\n",
        "<a/><a/>",
        "<a/>b",
        "<a/>&amp;",
        "<a/>&#32;",
        "<a/><![CDATA[]]>",
        "<a/><![CDATA[ ]]>",
        "<a/><!--b--><?c d?> \n",
        "<a/><!--",
        "<a/><!-- -- -->",
        "<a/><?xml version='1.0'?>",
        "<a/></a>",
        "<a/><",
        "<a/>]]>",
        "<a/>\xC3\xA9",
        "<a/>\xC3",
        "<a/>\xFF",
        "<a/>\x01",
        "<a/>\xEF\xBB\xBF",
        bytes("<a/>\0"),
        bytes("<a/>\0\0\0\0"),
        bytes("<a/> \0<b/>"),
        bytes("<a/><!--b-->\0"),
        bytes("\0<a/>"),
        bytes("<\0a/>"),
        bytes("<a\0/>"),
        bytes("<a/\0>"),
        bytes("<a>\0</a>"),
        "<a/><!DOCTYPE a>",
        "b<a/>",
        "&#32;<a/>",
        "<![CDATA[]]><a/>",
        "]]><a/>",
        "\xEF\xBB\xBF<a/>",
        "\xEF\xBB\xBF",
        "\xEF\xBB",
        "\xEF",
        "\xEF\xBB\xBF\xEF\xBB\xBF<a/>",
        "\xEF\xBB\xBF <a/>",
        "\xEF\xBB\xBF<?xml version='1.0'?><a/>",
        "\xEF\xBB\xBF <?xml version='1.0'?><a/>",
        "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><a>\xC3\xA9</a>",
        "\xEF\xBB\xBF<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3\xA9</a>",
        "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-16'?><a/>",
        "<!--b--><a/>",
        "<!----><a/>",
        "<!-->--><a/>",
        "<!--->--><a/>",
        "<!--><a/>-->",
        "<!---><a/>-->",
        "<!-- - --><a/>",
        "<!-- --><?b?><!-- --> <?c d?>\n<a/>",
        "<?b c='?>'?><a/>",
        "<!--><!DOCTYPE a>--><a/>",
        "<!---><!DOCTYPE a>--><a/>",
        "<!--> --><!DOCTYPE a><a/>",
        "<!---> --><!DOCTYPE a><a/>",
        "<!-- <!DOCTYPE a> --><a/>",
        "<?b <!DOCTYPE a> ?><a/>",
        "<?b?><!DOCTYPE a><a/>",
        "<?b --><!DOCTYPE a><?><a/>",
        "<!DOCTYPE a><a/>",
        "<!DOCTYPE a><!DOCTYPE a><a/>",
        "<!doctype a><a/>",
        "<!DOCTYP a><a/>",
        "<!DOCTYPEa><a/>",
        "<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>",
        "<!DOCTYPE a [<!ATTLIST a b CDATA 'c'>]><a/>",
        "<!ELEMENT a ANY><a/>",
        "<?xml version='1.0'?><a/>",
        "<?xml version='1.0' ?><a/>",
        "<?xml version=\"1.0\"?><a/>",
        "<?xml version = '1.0'?><a/>",
        "<?xml\tversion\n=\r'1.0'\r\n?><a/>",
        "<?xml version='1.0'?> <a/>",
        "<?xml version='1.0'?><?xml version='1.0'?><a/>",
        "<?xml version='1.0'?>\n<?xml version='1.0'?><a/>",
        "<!--b--><?xml version='1.0'?><a/>",
        " <?xml version='1.0'?><a/>",
        "<?xml version='1.1'?><a/>",
        "<?xml version='1.2'?><a/>",
        "<?xml version='1.00'?><a/>",
        "<?xml version='1'?><a/>",
        "<?xml version='2.0'?><a/>",
        "<?xml version=''?><a/>",
        "<?xml version=1.0?><a/>",
        "<?xml version='1.0\"?><a/>",
        "<?xml version='1.0?><a/>",
        "<?xml version ='1.0' encoding?><a/>",
        "<?xml encoding='UTF-8'?><a/>",
        "<?xml?><a/>",
        "<?xml ?><a/>",
        "<?XML version='1.0'?><a/>",
        "<?Xml version='1.0'?><a/>",
        "<?xml-a b?><a/>",
        "<?xmla version='1.0'?><a/>",
        "<?xml:a b?><a/>",
        "<?xml version='1.0' encoding='UTF-8'?><a/>",
        "<?xml version='1.0' encoding='utf-8'?><a/>",
        "<?xml version='1.0' encoding='Utf-8'?><a>\xC3\xA9</a>",
        "<?xml version='1.0' encoding='UTF8'?><a>\xC3\xA9</a>",
        "<?xml version='1.0' encoding='UTF_8'?><a/>",
        "<?xml version='1.0' encoding=' UTF-8'?><a/>",
        "<?xml version='1.0' encoding='UTF-8 '?><a/>",
        "<?xml version='1.0' encoding=''?><a/>",
        "<?xml version='1.0' encoding='none'?><a/>",
        "<?xml version='1.0' encoding='-'?><a/>",
        "<?xml version='1.0' encoding='US-ASCII'?><a/>",
        "<?xml version='1.0' encoding='US-ASCII'?><a>\xC3\xA9</a>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3\xA9</a>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>",
        "<?xml version='1.0' encoding='windows-1252'?><a>\x80</a>",
        "<?xml version='1.0' encoding='UTF-16'?><a/>",
        "<?xml version='1.0' encoding='UTF-16LE'?><a/>",
        "<?xml version='1.0' encoding='UTF-16BE'?><a/>",
        "<?xml version='1.0' encoding='UCS-4'?><a/>",
        "<?xml version='1.0' encoding='ebcdic-cp-us'?><a/>",
        "<?xml version='1.0' encoding='UTF-7'?><a/>",
        "<?xml version='1.0' encoding='UTF-8'standalone='yes'?><a/>",
        "<?xml version='1.0'encoding='UTF-8'?><a/>",
        "<?xml version='1.0'standalone='yes'?><a/>",
        "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><a/>",
        "<?xml version='1.0' standalone='yes'?><a/>",
        "<?xml version='1.0' standalone='no'?><a/>",
        "<?xml version='1.0' standalone='YES'?><a/>",
        "<?xml version='1.0' standalone='maybe'?><a/>",
        "<?xml version='1.0' standalone=''?><a/>",
        "<?xml version='1.0' standalone='yes' encoding='UTF-8'?><a/>",
        "<?xml version='1.0' version='1.0'?><a/>",
        "<?xml version='1.0' encoding='UTF-8' encoding='UTF-8'?><a/>",
        "<?xml version='1.0' a='b'?><a/>",
        "<?xml version='1.0'",
        "<?xml version='1.0'?",
        "<?xml version='1.0'?>",
        "<?xml version='1.0'><a/>",
        "<?xml version='1.0' encoding='UTF-8' ? ><a/>",
        "<?xml version='1.0' encoding='\xC3\xA9'?><a/>",
        bytes("\xFF\xFE<\0a\0/\0>\0"),
        bytes("\xFE\xFF\0<\0a\0/\0>"),
        bytes("<\0a\0/\0>\0"),
        bytes("\0<\0a\0/\0>"),
        bytes("\xFF\xFE\0\0<\0\0\0a\0\0\0/\0\0\0>\0\0\0"),
        bytes("\0\0\xFE\xFF\0\0\0<\0\0\0a\0\0\0/\0\0\0>"),
        bytes("\0\0\0<\0\0\0a\0\0\0/\0\0\0>"),
        bytes("\xFF\xFE<\0a"),
        bytes("\xFF\xFE"),
        "\xFE\xFF",
        "\x4C\x6F\xA7\x94",
    };
    // All that starts a document, cut off.
    const std::string whole =
        "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><!-- b --><?c d?><a "
        "xmlns='urn:a' xmlns:p='urn:b' p:e='f&lt;&#x10FFFF;'>g&amp;<![CDATA[h]]>\xC3\xA9"
        "<!-- i --><p:j/></a><!-- k --><?l m?>\n";
    for (std::size_t length = 0; length != whole.size(); ++length)
        texts.push_back(whole.substr(0, length));
    return texts;
}

/// Documents that have `content` where pieces of a stream and of a parser's buffers meet.
Texts atBoundaries(const std::string& content) {
    Texts texts;
    constexpr std::string_view start = "<a>";
    for (const std::size_t boundary : {300, 1000, 4000, 4094, 4096, 8188, 16384})
        for (std::size_t before = 0; before <= content.size() + 5; ++before) {
            const std::size_t filled = boundary + 3 - before - start.size();
            texts.push_back(std::string(start) + std::string(filled, 'x') + content + "</a>");
            // The same behind a reference.
            texts.push_back(std::string(start) + "&lt;" + std::string(filled - 4, 'x') + content +
                            "</a>");
        }
    return texts;
}

/// Changes documents in their bytes, always in the same way for the same seed.
class ByteMutator {
public:
    explicit ByteMutator(std::uint64_t seed) : m_random(seed) {}

    std::string mutate(std::string document) {
        for (std::size_t count = 1 + below(3); count != 0; --count)
            change(document);
        return document;
    }

    std::size_t below(std::size_t count) { return static_cast<std::size_t>(m_random() % count); }

private:
    const std::string& any(const Texts& texts) { return texts[below(texts.size())]; }
    std::size_t anyPlace(const std::string& text) { return below(text.size() + 1); }

    void change(std::string& text) {
        static const Texts good = oddContents();
        static const Texts bad = badContents();
        const std::size_t place = anyPlace(text);
        switch (below(14)) {
            case 0:
                if (place != text.size()) text[place] = static_cast<char>(below(256));
                break;
            case 1: text.insert(place, 1, static_cast<char>(below(256))); break;
            case 2: text.erase(place, 1 + below(6)); break;
            case 3: text.resize(place); break;
            case 4: text.insert(place, any(bad)); break;
            case 5: text.insert(place, any(good)); break;
            case 6: text.insert(behind(text, '>'), any(bad)); break;
            case 7: text.insert(behind(text, '>'), any(good)); break;
            case 8: text.insert(behind(text, ' '), any(attributes)); break;
            case 9: changeStart(text); break;
            case 10: changeEncoding(text); break;
            case 11: text += any(ends); break;
            case 12:
                // So that what follows comes to another place in the parser's buffers.
                text.insert(behind(text, '>'), std::string(below(9000), "x \n"[below(3)]));
                break;
            default: text.insert(place, text.substr(anyPlace(text), below(60))); break;
        }
    }

    /// A place behind such a character.
    std::size_t behind(const std::string& text, char c) {
        const std::size_t place = text.find(c, anyPlace(text));
        return place != std::string::npos ? place + 1 : anyPlace(text);
    }

    void changeStart(std::string& text) {
        if (text.starts_with("<?xml"))
            text.erase(0, text.find('>') == std::string::npos ? 0 : text.find('>') + 1);
        text.insert(0, any(starts));
    }

    void changeEncoding(std::string& text) {
        std::string wide;
        const std::size_t form = below(6);
        if (form < 4) {
            const bool isLittle = form % 2 == 0;
            if (form < 2) wide = isLittle ? "\xFF\xFE" : "\xFE\xFF";
            for (const char c : text)
                (wide += isLittle ? c : '\0') += isLittle ? '\0' : c;
        } else {
            for (const char c : text)
                if (c == '\n')
                    wide += form == 4 ? "\r\n" : "\r";
                else
                    wide += c;
        }
        text = wide;
    }

    const Texts attributes{"a='b' ",
                           "a = \"b\"\n",
                           "xml:lang='a' ",
                           "xml:space='preserve' ",
                           "xmlns='' ",
                           "xmlns:p='urn:a' ",
                           "p:a='' ",
                           "xmlns:p='' ",
                           "xmlns:xml='http://www.w3.org/XML/1998/namespace' ",
                           "xmlns:p='http://www.w3.org/XML/1998/namespace' ",
                           "xmlns:p='http://www.w3.org/2000/xmlns/' ",
                           "xmlns='a&amp;b' ",
                           "id='&#13;&#10;&#9;' ",
                           "href=' #a\tb\r\n' ",
                           "a='<' ",
                           "a:b:c='' ",
                           "xsi:type='xs:string' ",
                           "xsi:nil='1' ",
                           "xsi:type='xml:string' "};
    const Texts starts{"",
                       " ",
                       "\xEF\xBB\xBF",
                       "<?xml version='1.0'?>",
                       "<?xml version='1.0' encoding='UTF-8'?>",
                       "<?xml version='1.0' encoding='utf-8' standalone='yes' ?>\r\n",
                       "<?xml version='1.0' encoding='UTF-8'standalone='yes'?>",
                       "<?xml version='1.1'?>",
                       "<?xml version='1.0' encoding='ISO-8859-1'?>",
                       "<?xml version='1.0' encoding='US-ASCII'?>",
                       "<?xml version='1.0' encoding='UTF-16'?>",
                       "<?xml version='1.0' encoding='UTF-16LE'?>",
                       "<?xml version='1.0' encoding='none'?>",
                       "<?xml version='1.0'?><?xml version='1.0'?>",
                       "<!-->--><?a b?>",
                       "<!---><!DOCTYPE a>-->",
                       "<!-- a --><!DOCTYPE a>",
                       "<!DOCTYPE a [<!ENTITY b 'c'>]>"};
    const Texts ends{" ",     "\n\r", "<a/>",         "<!-- -->",    "<?a?>",     "x",
                     "&#32;", "]]>",  "\xFF",         "\xC3",        bytes("\0"), "<!DOCTYPE a>",
                     "<",     "</a>", "\xEF\xBB\xBF", "<![CDATA[]]>"};

    std::mt19937_64 m_random;
};

/// A number that the environment gives, or `otherwise`.
std::uint64_t setting(const char* name, std::uint64_t otherwise) {
    const char* const value = std::getenv(name);
    return value != nullptr ? std::strtoull(value, nullptr, 10) : otherwise;
}

/// What the parser says of a document that has no end, if start tags may be so long.
std::string wordingOf(std::size_t startTag) {
    constexpr std::string_view document = "<a>";
    BRIMMemoryInputStream stream(document.data(), document.size());
    KORVAXMLDeserializer deserializer;
    deserializer.setMaximumStartTag(startTag);
    const ZELSmartPointer<KORVAObjectRegistryI> registry(
        KORVAObjectRegistryFactory::getInstance().create());
    std::string wording;
    try {
        deserializer.parse(stream, registry.get());
    } catch (const KORVAException& error) {
        error.getMessages()[0].fill("{0}", wording);
    }
    return wording;
}

}  // namespace

TEST(TwoSources, AreTwo) {
    const std::string ofLibxml = wordingOf(korva::fuzz::startTagOfXerces - 1);
    const std::string ofXerces = wordingOf(korva::fuzz::startTagOfXerces);
    EXPECT_NE(ofLibxml, "");
    EXPECT_NE(ofXerces, "");
    EXPECT_NE(ofLibxml, ofXerces);
}

TEST(TwoSources, ReadTheEnvelopesOfAllTests) {
    const Texts texts = envelopes();
    ASSERT_GT(texts.size(), 100U);
    expectSame(texts);
}

TEST(TwoSources, ReadTheEnvelopesThatAreMeasured) {
    expectSame(benchEnvelopes());
}

TEST(TwoSources, ReadOddContents) {
    for (const std::string& content : oddContents())
        expectSame(around(content));
}

TEST(TwoSources, RefuseBadContents) {
    for (const std::string& content : badContents())
        expectSame(around(content));
}

TEST(TwoSources, ReadOddDocuments) {
    expectSame(oddDocuments());
}

TEST(TwoSources, AgreeWherePiecesMeet) {
    for (const char* const content :
         {"]]>", "]]]]>", "<![CDATA[a]]]]>", "<![CDATA[a]]]]><![CDATA[>b]]>", "a\r\nb", "a\r\rb",
          "&#x10FFFF;", "&amp;", "<!-- a -->", "<!-- a -- b -->", "<?b c?>", "\xF0\x9F\x98\x80",
          "\xC0\x80", "\xED\xA0\x80", "\xEF\xBF\xBF", "<b c='d'/>", "<b></b>", "</b>"})
        expectSame(atBoundaries(content));
}

TEST(TwoSources, AgreeOnLongTexts) {
    const Texts good = oddContents();
    const Texts bad = badContents();
    const Texts common = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;",       "\xC3\xA4",
                          "]",     "]]",   "\n",   "\r\n",   "\xEF\xBF\xBD", "\xEF\xBB\xBF"};
    for (std::uint64_t seed = 1; seed != 200; ++seed) {
        ByteMutator random(seed);
        std::string text = "<a>&amp;";
        while (text.size() < 15'000) {
            text.append(random.below(300), 'x');
            text += common[random.below(common.size())];
            if (random.below(8) == 0) text += good[random.below(good.size())];
            if (random.below(200) == 0) text += bad[random.below(bad.size())];
        }
        expectSame(text + "</a>");
    }
}

// KORVA_TEST_MUTATIONS sets their number, KORVA_TEST_SEED the first of as many seeds.
TEST(TwoSources, AgreeOnChangedEnvelopes) {
    Texts originals = envelopes();
    for (const Texts& more : {benchEnvelopes(), around("a")})
        originals.insert(originals.end(), more.begin(), more.end());
    const std::uint64_t first = setting("KORVA_TEST_SEED", 1);
    const std::uint64_t count = setting("KORVA_TEST_MUTATIONS", 1500);
    for (std::uint64_t seed = first; seed != first + count; ++seed) {
        ByteMutator mutator(seed);
        std::string document = originals[mutator.below(originals.size())];
        if (seed % 3 != 0) document = korva::fuzz::EnvelopeMutator(seed).mutate(document);
        if (seed % 3 != 1) document = mutator.mutate(document);
        const std::size_t piece = pieces[mutator.below(std::size(pieces))];
        EXPECT_EQ(korva::fuzz::differenceOfSources(document, piece), "")
            << "seed " << seed << ", of " << document.size() << " bytes, " << piece
            << " a read: " << shown(document);
    }
}
