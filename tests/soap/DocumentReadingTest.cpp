// The entry point for plain XML documents.
#include "tests/soap/Reading.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAProvider.h>
#include <korva/KORVAXMLDeserializerFactory.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::declarations;
using korva::test::document;
using korva::test::DocumentReader;
using korva::test::placeIn;
using korva::test::traceOf;

TEST(DocumentReading, GivesTheRootObject) {
    DocumentReader reader;
    EXPECT_STREQ(reader.read<KORVAProvider>(document("bus:provider", "<name>n</name>")).getName(),
                 "n");
}

TEST(DocumentReading, ADocumentTypeIsRefusedBeforeAnyOfItTakesEffect) {
    DocumentReader reader;
    const std::string provider = document("bus:provider", "<name>n</name>");
    const std::vector<std::string> doctypes = {
        "<!DOCTYPE root>", "<!DOCTYPE root SYSTEM \"file:///etc/passwd\">",
        "<!DOCTYPE root [<!ENTITY e 'text'>]>", "<!DOCTYPE", "<!DOCTYPE !!!>"};
    for (const std::string& doctype : doctypes) {
        EXPECT_NUMBERED(reader.read(doctype + provider), 0xEA4EB50B, "KORVAXMLDeserializer::parse")
            << doctype;
        EXPECT_NUMBERED(reader.read("<?xml version=\"1.0\"?>\n<!-- c -->\n" + doctype + provider),
                        0xEA4EB50B, "KORVAXMLDeserializer::parse")
            << doctype;
    }
    const auto trace =
        traceOf([&] { reader.read("<?xml version=\"1.0\"?>\n<!DOCTYPE root>" + provider); });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_NE(trace[1].find("KORVAXMLDeserializer::parse() ZEL_RETHROW: line 2, column "),
              std::string::npos)
        << trace[1];
}

TEST(DocumentReading, AnUnknownRootGivesNull) {
    DocumentReader reader;
    EXPECT_EQ(reader.read("<root><a><b/></a>text</root>"), nullptr);
    EXPECT_EQ(reader.read("<root" + declarations() + " xmlns:u=\"urn:u\" xsi:type=\"u:thing\"/>"),
              nullptr);
}

TEST(DocumentReading, ANilRootGivesNull) {
    DocumentReader reader;
    EXPECT_EQ(
        reader.read("<root" + declarations() + " xsi:type=\"bus:provider\" xsi:nil=\"true\"/>"),
        nullptr);
    EXPECT_NUMBERED(reader.read("<root" + declarations() +
                                " xsi:type=\"bus:provider\" xsi:nil=\"true\"><a/></root>"),
                    0xEA41D35C, "KORVASchemaTypeIContentHandler::startElement", "root");
}

TEST(DocumentReading, AnEscapedAmpersandOfAnAttributeIsOneCharacter) {
    DocumentReader reader;
    for (const char* const escaped : {"&amp;", "&#38;", "&#x26;"})
        EXPECT_NUMBERED(reader.read(document(std::string("bus:a") + escaped + "b", "")), 0xEA48385C,
                        "KORVASchemaTypeIContentHandler::getObjectType()", "bus:a&b", "root");
}

TEST(DocumentReading, AnAttributeWithoutANamespaceTellsNothingOfTheRoot) {
    DocumentReader reader;
    EXPECT_EQ(reader.read("<root nil=\"true\"><a/></root>"), nullptr);
    EXPECT_EQ(reader.read("<root" + declarations() + " type=\"bus:provider\"/>"), nullptr);
}

TEST(DocumentReading, ANumberOrBooleanAsRootGivesNull) {
    DocumentReader reader;
    EXPECT_EQ(reader.read(document("xs:int", "1")), nullptr);
    EXPECT_EQ(reader.read(document("xs:boolean", "true")), nullptr);
    EXPECT_EQ(reader.read(document("xs:float", "1.5")), nullptr);
    EXPECT_NUMBERED(reader.read(document("xs:int", "x")), 0xEA407F89,
                    "KORVASchemaTypeIContentHandler::characters", "root", "int");
}

TEST(DocumentReading, ATextOrBinaryAsRootEndsInTheAssertionOnTheStack) {
    DocumentReader reader;
    for (const char* const type : {"xs:string", "xs:dateTime", "xs:time", "xs:QName"})
        EXPECT_ASSERTION(reader.read(document(type, "text")), "ZEL_ASSERT(m_objStack.size() > 0);");
    EXPECT_ASSERTION(reader.read(document("xs:base64Binary", "AAEC")),
                     "ZEL_ASSERT(m_objStack.size() > 0);");
}

TEST(DocumentReading, ANullRegistryIsAnAssertion) {
    KORVAXMLDeserializer deserializer;
    const std::string text = document("bus:provider", "");
    BRIMMemoryInputStream stream(text.data(), text.size());
    EXPECT_ASSERTION(deserializer.parse(stream, nullptr), "ZEL_ASSERT(m_objectRegistry);");
}

TEST(DocumentReading, WhatIsNotWellFormedIsToldInTheParsersWords) {
    DocumentReader reader;
    const auto check = [&](const std::string& text, const std::string& words,
                           const std::string& place) {
        try {
            reader.read(text);
            ADD_FAILURE() << "accepted: " << text;
        } catch (const KORVAException& exception) {
            ASSERT_EQ(exception.getMessages().size(), 1U);
            EXPECT_EQ(exception.getMessages()[0].getId(), 0xEA441F8BU);
            ASSERT_EQ(exception.getMessages()[0].getParms().size(), 1U);
            EXPECT_EQ(exception.getMessages()[0].getParms()[0].getText(), words);
            ASSERT_EQ(exception.getBackTrace().size(), 1U);
            const std::string line = exception.getBackTrace()[0];
            EXPECT_NE(line.find(") KORVAXMLDeserializer::parse ZEL_THROW: "), std::string::npos)
                << line;
            EXPECT_EQ(placeIn(line), place);
        }
    };
    check("<root>\n<a></b></root>", "Opening and ending tag mismatch: a line 2 and b",
          "line 2, column 8, element /root/a");
    check("no document", "Start tag expected, '<' not found", "line 1, column 1");
    check("", "Document is empty", "line 1, column 1");
    check("<root>", "Premature end of data in tag root line 1", "line 1, column 7, element /root");
    check("<root>&nothing;</root>", "Entity 'nothing' not defined",
          "line 1, column 16, element /root");
    check("<p:root/>", "Namespace prefix p on root is not defined", "line 1, column 8");
    // The other parser's.
    check("<?xml version=\"1.1\"?><root>\n<a></b></root>", "expected end of tag 'a'",
          "line 2, column 6, element /root/a");
}

TEST(DocumentReading, TheDeserializerServesFurtherCallsAfterAnyFailure) {
    DocumentReader reader;
    const std::string good = document("bus:provider", "<name>n</name>");
    for (const std::string& bad :
         {std::string("<root"), std::string("<root" + declarations() + "><a xmlns:q='u'><"),
          document("bus:provider", "<patch>x</patch>"), document("xs:string", "half \xF0\x9F"),
          "<!DOCTYPE root>" + good, document("bus:noSuchType", "<x xmlns:bus='urn:x'/>")}) {
        EXPECT_THROW(reader.read(bad), ZELThrowable) << bad;
        EXPECT_STREQ(reader.read<KORVAProvider>(good).getName(), "n");
    }
}

TEST(DocumentReading, TheFactoryMakesAndDestroysDeserializers) {
    KORVAXMLDeserializerFactory& factory = KORVAXMLDeserializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVAXMLDeserializerFactory::getInstance());
    KORVAXMLDeserializerI* const deserializer = factory.create();
    ZELSmartPointer<KORVAObjectRegistryI> registry(
        KORVAObjectRegistryFactory::getInstance().create());
    const std::string text = document("bus:provider", "");
    BRIMMemoryInputStream stream(text.data(), text.size());
    EXPECT_NE(deserializer->parse(stream, registry.get()), nullptr);
    factory.destroy(deserializer);
    factory.destroy(nullptr);
}

}  // namespace
