// Markup that is made to deceive, or to cost more than it weighs.
#include "tests/soap/HostileText.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAException.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <zel/I18NConverter.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::Binding;
using korva::test::declarations;
using korva::test::document;
using korva::test::DocumentReader;
using korva::test::envelope;
using korva::test::makeCall;
using korva::test::operation;
using korva::test::pathOf;
using korva::test::readReply;
using korva::test::readRequest;
using korva::test::repeated;
using korva::test::reportNamespace;
using korva::test::soapParse;
using korva::test::xmlParse;

std::string numbered(const std::string& before, int count, const std::string& behind) {
    std::string result;
    for (int i = 0; i != count; ++i)
        result += before + std::to_string(i) + behind;
    return result;
}

/// The first message of what reading the envelope throws, or 0.
unsigned refusalOf(const std::string& text) {
    try {
        readRequest(text);
        return 0;
    } catch (const KORVAException& exception) {
        return exception.getMessages()[0].getId();
    }
}

constexpr unsigned notWellFormed = 0xEA441F8B;

// ----- document types -----

TEST(HostileMarkup, NoCommentHidesADocumentType) {
    // All of these are one comment to a parser; the first two end early for who looks carelessly.
    for (const char* const comment :
         {"<!--><a>-->", "<!---><a>-->", "<!----><a>", "<!-- <a> -->", "<!---->"}) {
        DocumentReader reader;
        const std::string text = std::string(comment) + "<!DOCTYPE root [<!ENTITY e 'x'>]>" +
                                 document("bus:provider", "");
        EXPECT_THROW(reader.read(text), KORVAException) << comment;
    }
    DocumentReader reader;
    EXPECT_NUMBERED(reader.read("<!--><a>--><!DOCTYPE root>" + document("bus:provider", "")),
                    0xEA4EB50B, xmlParse);
    EXPECT_NUMBERED(reader.read("<!---><a>--><!DOCTYPE root>" + document("bus:provider", "")),
                    0xEA4EB50B, xmlParse);
    EXPECT_STREQ(pathOf(readRequest("<!--><a>--><!DOCTYPE e [<!ENTITY x 'y'>]>" +
                                    operation("run", "<objectPath>&x;</objectPath>"))),
                 "y");
}

TEST(HostileMarkup, AnEntityThatClosesAQuoteMakesNoSecondRoot) {
    const std::string text = "<!--><a>--><!DOCTYPE x [<!ENTITY e '\"><root xmlns=\"u\">'>]>" +
                             document("bus:provider", "<name>n</name>");
    DocumentReader reader;
    EXPECT_NUMBERED(reader.read(text), 0xEA4EB50B, xmlParse);
}

TEST(HostileMarkup, AServerMayRefuseDocumentTypes) {
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setRefuseDocumentType(true);
    const std::string request = operation("run", "<objectPath>/a</objectPath>");
    EXPECT_NUMBERED(readRequest(deserializer, "<!DOCTYPE e>" + request), 0xEA4EB50B, soapParse);
    EXPECT_NUMBERED(
        readRequest(deserializer, "<!--" + std::string(5000, ' ') + "--><!DOCTYPE e>" + request),
        0xEA4EB50B, soapParse);
    EXPECT_STREQ(pathOf(readRequest(deserializer, request)), "/a");
    deserializer.setRefuseDocumentType(false);
    EXPECT_STREQ(pathOf(readRequest(deserializer, "<!DOCTYPE e>" + request)), "/a");
}

// ----- elements behind the operation -----

std::string inBody(const std::string& name, const std::string& content) {
    return "<r:" + name + " xmlns:r=\"" + reportNamespace + "\">" + content + "</r:" + name + ">";
}

TEST(HostileMarkup, TheFirstElementOfTheBodyIsTheOperation) {
    const Binding binding =
        readRequest(envelope(inBody("run", "<objectPath>/a</objectPath>") +
                             inBody("getParameters", "<objectPath>/b</objectPath>") +
                             "<x xmlns=\"urn:nobody\"><y>text</y></x>"));
    EXPECT_STREQ(binding->getOperationName(), "run");
    EXPECT_STREQ(pathOf(binding), "/a");
}

TEST(HostileMarkup, AnElementBehindAReplyTakesNothingOfIt) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    readReply(*call, envelope(inBody("runResponse", "<result><status>complete</status></result>") +
                              "<multiRef id=\"id0\"><result xsi:nil=\"true\"/></multiRef>"));
    auto& reply = static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage());
    ASSERT_NE(reply.getResult(), nullptr);
    EXPECT_STREQ(reply.getResult()->getStatus()->toString(), "complete");
}

TEST(HostileMarkup, AFaultBehindAnOperationIsAFault) {
    const std::string fault =
        "<e:Fault><faultcode>e:Server</faultcode><faultstring>s</faultstring></e:Fault>";
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_THROW(readReply(*call, envelope(inBody("runResponse", "<result/>") + fault)),
                 KORVASOAPFaultException);
    EXPECT_THROW(readRequest(envelope(inBody("run", "") + fault)), KORVASOAPFaultException);
    // The first one counts.
    try {
        readReply(*call, envelope(fault + "<e:Fault><faultstring>t</faultstring></e:Fault>" +
                                  inBody("runResponse", "<result/>")));
        ADD_FAILURE();
    } catch (const KORVASOAPFaultException& exception) {
        EXPECT_STREQ(exception.getSOAPFault().getFaultString(), "s");
    }
}

TEST(HostileMarkup, ASecondBodyHasNoOperation) {
    const std::string first = envelope(inBody("run", "<objectPath>/a</objectPath>"));
    std::string text = first;
    text.insert(text.rfind("</e:Envelope>"),
                "<e:Body>" + inBody("getParameters", "<objectPath>/b</objectPath>") + "</e:Body>");
    EXPECT_STREQ(pathOf(readRequest(text)), "/a");
}

// ----- attributes and declarations -----

TEST(HostileMarkup, ManyAttributesEndAtALimit) {
    DocumentReader reader;
    for (const char* const doctype : {"", "<?xml version=\"1.1\"?>"}) {
        EXPECT_NUMBERED(
            reader.read(doctype + ("<root" + declarations() + " xsi:type=\"bus:provider\"><name" +
                                   numbered(" a", 300, "=\"\"") + "/></root>")),
            0xEA4F0001, xmlParse, "attributes of a start tag", "256", "setMaximumAttributes");
        EXPECT_NUMBERED(
            reader.read(doctype + ("<root" + declarations() + " xsi:type=\"bus:provider\"><name" +
                                   numbered(" xmlns:a", 300, "=\"u\"") + "/></root>")),
            0xEA4F0001, xmlParse, "attributes of a start tag", "256", "setMaximumAttributes");
    }
    reader.deserializer.setMaximumAttributes(300);
    EXPECT_NE(
        reader.read(document("bus:provider", "<name" + numbered(" a", 300, "=\"\"") + ">n</name>")),
        nullptr);
}

TEST(HostileMarkup, AStartTagHasALimit) {
    DocumentReader reader;
    EXPECT_NUMBERED(reader.read("<root" + numbered(" a", 100'000, "=\"\"") + "/>"), 0xEA4F0001,
                    xmlParse, "bytes of a start tag", "65536", "setMaximumStartTag");
    EXPECT_NUMBERED(reader.read("<root a='" + std::string(70'000, '>') + "'/>"), 0xEA4F0001,
                    xmlParse, "bytes of a start tag", "65536", "setMaximumStartTag");
    EXPECT_NUMBERED(
        reader.read("<?xml version=\"1.1\"?><root a='" + std::string(70'000, 'x') + "'/>"),
        0xEA4F0001, xmlParse, "bytes of a start tag", "65536", "setMaximumStartTag");
    EXPECT_NUMBERED(
        readRequest("<!DOCTYPE e>" +
                    operation("run", "<objectPath a='" + std::string(70'000, 'x') + "'/>")),
        0xEA4F0001, soapParse, "bytes of a start tag", "65536", "setMaximumStartTag");
    reader.deserializer.setMaximumStartTag(1000);
    EXPECT_NUMBERED(
        reader.read(document("bus:provider", "<name a='" + std::string(1100, 'x') + "'/>")),
        0xEA4F0001, xmlParse, "bytes of a start tag", "1000", "setMaximumStartTag");
    EXPECT_NE(reader.read(document("bus:provider", "<name a='" + std::string(900, 'x') + "'/>")),
              nullptr);
}

TEST(HostileMarkup, WhatIsNoStartTagIsNotLimitedAsOne) {
    const std::string large(200'000, 'x');
    for (const std::string& content :
         {"<!--" + large + "-->", "<?p " + large + "?>", "<![CDATA[" + large + "]]>", large,
          "<!--<a " + large + "-->", "<![CDATA[<a " + large + "]]>", std::string(200'000, '\n'),
          "<?p <a " + large + "?>"}) {
        const std::string text = operation("run", content + "<objectPath>/a</objectPath>");
        EXPECT_STREQ(pathOf(readRequest(text)), "/a") << content.substr(0, 20);
        EXPECT_STREQ(pathOf(readRequest("<!DOCTYPE e>" + text)), "/a") << content.substr(0, 20);
    }
    EXPECT_STREQ(pathOf(readRequest(std::string(100'000, ' ') +
                                    operation("run", "<objectPath>/a</objectPath>") +
                                    std::string(100'000, ' '))),
                 "/a");
}

TEST(HostileMarkup, DeclarationsInScopeHaveALimit) {
    std::string text;
    for (int i = 0; i != 1100; ++i)
        text += "<a xmlns:p" + std::to_string(i) + "=\"u\">";
    DocumentReader reader;
    EXPECT_NUMBERED(reader.read(document("bus:provider", text)), 0xEA4F0001, xmlParse,
                    "namespace declarations in scope", "1000", "setMaximumDeclarations");
    // One behind the other they are few at each place.
    EXPECT_NE(reader.read(document("bus:provider", numbered("<a xmlns:p", 3000, "=\"u\"/>"))),
              nullptr);
}

TEST(HostileMarkup, DifferentNamesHaveALimit) {
    DocumentReader reader;
    for (const char* const declaration : {"", "<?xml version=\"1.1\"?>"})
        EXPECT_NUMBERED(
            reader.read(declaration + document("bus:provider", numbered("<n", 51'000, "/>"))),
            0xEA4F0001, xmlParse, "different names", "50000", "setMaximumNames");
    reader.deserializer.setMaximumNames(60'000);
    EXPECT_NE(reader.read(document("bus:provider", numbered("<n", 51'000, "/>"))), nullptr);
}

TEST(HostileMarkup, TheHandlersHaveTheSameLimits) {
    KORVANamespaceMapping mapping;
    I18NConverter converter;
    const ZELSmartPointer<KORVAObjectRegistryI> registry(
        KORVAObjectRegistryFactory::getInstance().create());
    void* root = nullptr;
    KORVASchemaTypeIContentHandler handler(&root, &mapping, registry.get(), converter);
    handler.setMaximumDeclarations(2);
    handler.startPrefixMapping(u"a", u"u");
    handler.startPrefixMapping(u"b", u"u");
    EXPECT_NUMBERED(handler.startPrefixMapping(u"c", u"u"), 0xEA4F0001, "KORVAContentHandler",
                    "namespace declarations in scope", "2", "setMaximumDeclarations");
}

// ----- what expands -----

TEST(HostileMarkup, ParameterEntitiesAreCounted) {
    std::string doctype = "<!DOCTYPE e [<!ENTITY % p0 ''>";
    for (int i = 1; i != 30; ++i)
        doctype += "<!ENTITY % p" + std::to_string(i) + " '&#37;p" + std::to_string(i - 1) +
                   ";&#37;p" + std::to_string(i - 1) + ";'>";
    const std::string text = doctype + "%p29;]>" + operation("run", "");
    ASSERT_LT(text.size(), 2500U);
    EXPECT_NUMBERED(readRequest(text), 0xEA4F0001, soapParse, "entity expansions", "10000",
                    "setMaximumEntityExpansions");
}

TEST(HostileMarkup, EntitiesInAttributesAreCounted) {
    const std::string text = "<!DOCTYPE e [<!ENTITY a '" + std::string(10'000, 'a') + "'>]>" +
                             operation("run", repeated("<x y='&a;&a;&a;&a;'/>", 4000));
    EXPECT_NUMBERED(readRequest(text), 0xEA4F0001, soapParse, "text of expanded entities",
                    "1048576", "setMaximumExpandedText");
}

TEST(HostileMarkup, EntitiesInTextAreCounted) {
    const std::string text =
        "<!DOCTYPE e [<!ENTITY a '" + std::string(60'000, 'a') + "'>]>" +
        operation("run", "<objectPath>" + repeated("&a;", 15'000) + "</objectPath>");
    EXPECT_NUMBERED(readRequest(text), 0xEA4F0001, soapParse, "text of expanded entities",
                    "1048576", "setMaximumExpandedText");
}

TEST(HostileMarkup, EntitiesThatGiveNothingAreCounted) {
    const std::string text = "<!DOCTYPE e [<!ENTITY a '<!--" + std::string(60'000, 'a') +
                             "-->'>]>" + operation("run", repeated("&a;", 9000));
    EXPECT_NUMBERED(readRequest(text), 0xEA4F0001, soapParse, "text of expanded entities",
                    "1048576", "setMaximumExpandedText");
}

TEST(HostileMarkup, AModestEntityMayBeUsedOften) {
    const std::string text =
        "<!DOCTYPE e [<!ENTITY long '" + std::string(5000, 'l') + "'><!ENTITY co 'Korva'>]>" +
        operation("run", "<objectPath>" + repeated("&co;", 5000) + "&long;</objectPath>");
    EXPECT_EQ(std::string(pathOf(readRequest(text))),
              repeated("Korva", 5000) + std::string(5000, 'l'));
}

TEST(HostileMarkup, NestedEntitiesEndAtALimit) {
    std::string doctype = "<!DOCTYPE e [<!ENTITY e0 'x'>";
    for (int i = 1; i != 45'000; ++i)
        doctype += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
    EXPECT_NUMBERED(
        readRequest(doctype + "]>" + operation("run", "<objectPath>&e44999;</objectPath>")),
        0xEA4F0001, soapParse, "nesting of entities", "64", "setMaximumEntityNesting");
}

TEST(HostileMarkup, DefaultAttributesAreCounted) {
    const std::string attributes =
        "<!DOCTYPE e [<!ATTLIST x " + numbered("a", 200, " CDATA 'value' ") + ">]>";
    EXPECT_NUMBERED(readRequest(attributes + operation("run", repeated("<x/>", 20'000))),
                    0xEA4F0001, soapParse, "text of expanded entities", "1048576",
                    "setMaximumExpandedText");
    const std::string many =
        "<!DOCTYPE e [<!ATTLIST x " + numbered("a", 1000, " CDATA #IMPLIED ") + ">]>";
    EXPECT_NUMBERED(readRequest(many + operation("run", "")), 0xEA4F0001, soapParse,
                    "attributes of a start tag", "256", "setMaximumAttributes");
}

// ----- bytes and names -----

TEST(HostileMarkup, NothingMayFollowTheDocument) {
    const std::string good = operation("run", "<objectPath>/a</objectPath>");
    EXPECT_STREQ(pathOf(readRequest(good + "\r\n\t <!-- c --><?p?>\n")), "/a");
    for (const char* const doctype : {"", "<!DOCTYPE e>"})
        for (const std::string& behind :
             {std::string(1, '\0'), std::string("\0<x/>", 5), std::string(" \0 ", 3),
              std::string("x"), std::string("<x/>"), std::string("&amp;"), std::string("\xFF"),
              std::string("<![CDATA[]]>"), std::string("<!DOCTYPE e>"), std::string("\xC3"),
              std::string("<?xml version='1.0'?>")})
            EXPECT_EQ(refusalOf(doctype + good + behind), notWellFormed) << doctype + good + behind;
}

TEST(HostileMarkup, BytesThatAreNoUtf8AreRefusedEverywhere) {
    for (const char* const doctype : {"", "<!DOCTYPE e>", "<?xml version='1.0' encoding='utf-8'?>"})
        for (const std::string bad :
             {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
              "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF",
              "\xE2\x82", "\xF0\x9F\x98"})
            for (const std::string& content :
                 {"<objectPath>" + bad + "</objectPath>",
                  "<objectPath><![CDATA[" + bad + "]]></objectPath>",
                  "<objectPath a='" + bad + "'/>", "<!--" + bad + "-->", "<?p " + bad + "?>",
                  "<a" + bad + "/>"})
                EXPECT_EQ(refusalOf(doctype + operation("run", content)), notWellFormed)
                    << doctype + operation("run", content);
}

TEST(HostileMarkup, TheNamesThatXmlHasForItselfAreRefused) {
    for (const char* const doctype : {"", "<!DOCTYPE e>"})
        for (const char* const content :
             {"<x xmlns:p='http://www.w3.org/XML/1998/namespace'/>",
              "<x xmlns='http://www.w3.org/XML/1998/namespace'/>",
              "<x xmlns:p='http://www.w3.org/2000/xmlns/'/>",
              "<x xmlns='http://www.w3.org/2000/xmlns/'/>", "<x xmlns:xml='urn:u'/>",
              "<x xmlns:xmlns='urn:u'/>", "<xmlns:x/>", "<x xmlns:p=''/>", "<p:x/>", "<x p:y=''/>"})
            EXPECT_EQ(refusalOf(doctype + operation("run", content)), notWellFormed)
                << doctype + operation("run", content);
}

TEST(HostileMarkup, TheMarkThatEndsASectionIsNoText) {
    for (int length = 0; length < 9000; length += length < 40 || length % 4096 > 4056 ? 1 : 37) {
        const std::string text =
            operation("run", "<objectPath>" + std::string(static_cast<std::size_t>(length), 'x') +
                                 "]]></objectPath>");
        EXPECT_EQ(refusalOf(text), notWellFormed) << text;
    }
}

}  // namespace
