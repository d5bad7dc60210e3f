// What a value reader refuses, with the place that the trace tells.
#include "tests/soap/Reading.h"
#include "tests/support/ExpectThrow.h"

#include <brim/BRIMStreamError.h>
#include <korva/KORVAProvider.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::declarations;
using korva::test::document;
using korva::test::DocumentReader;
using korva::test::placeIn;
using korva::test::traceOf;

constexpr const char* startElement = "KORVASchemaTypeIContentHandler::startElement";
constexpr const char* characters = "KORVASchemaTypeIContentHandler::characters";
constexpr const char* checkType = "KORVASchemaTypeIContentHandler::checkType()";
constexpr const char* getObjectType = "KORVASchemaTypeIContentHandler::getObjectType()";

class ValueFailure : public testing::Test {
protected:
    KORVASchemaTypeI* read(const std::string& type, const std::string& content) {
        return reader.read(document(type, content));
    }

    DocumentReader reader;
};

TEST_F(ValueFailure, AChildOfANilElement) {
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:nil=\"true\"><x/></name>"), 0xEA41D35C,
                    startElement, "name");
}

TEST_F(ValueFailure, AChildOfAReference) {
    EXPECT_NUMBERED(read("bus:provider", "<name href=\"cid:id7\"><x/></name>"), 0xEA40320B,
                    startElement, "name", "id7");
}

TEST_F(ValueFailure, AChildOfASimpleValue) {
    EXPECT_NUMBERED(read("bus:provider", "<name><inner/></name>"), 0xEA4AA334, startElement,
                    "inner");
    EXPECT_NUMBERED(read("bus:intProp", "<value>1<inner/></value>"), 0xEA4AA334, startElement,
                    "inner");
}

TEST_F(ValueFailure, AChildOfAnEnumerationOrARestrictedString) {
    EXPECT_NUMBERED(read("bus:asynchReply", "<status>complete<inner/></status>"), 0xEA4AA334,
                    startElement, "inner");
    EXPECT_NUMBERED(read("bus:guidProp", "<value><inner>text</inner></value>"), 0xEA4AA334,
                    startElement, "inner");
}

TEST_F(ValueFailure, AnItemOfAWrongType) {
    EXPECT_NUMBERED(read("bus:parmValueItemArray", "<item xsi:type=\"bus:folder\"/>"), 0xEA4BCA5D,
                    startElement, "bus:folder", "bus:parmValueItem");
    EXPECT_NUMBERED(read("bus:stringArray", "<item xsi:type=\"bus:folder\"/>"), 0xEA4BCA5D,
                    startElement, "bus:folder", "xs:string");
    EXPECT_NUMBERED(read("bus:stringArray", "<item xsi:type=\"xs:int\"/>"), 0xEA4BCA5D,
                    startElement, "xs:int", "xs:string");
    EXPECT_NUMBERED(read("bus:parmValueItemArray", "<item xsi:type=\"xs:string\"/>"), 0xEA4BCA5D,
                    startElement, "xs:string", "bus:parmValueItem");
    EXPECT_NUMBERED(read("bus:intArray", "<item xsi:type=\"xs:integer\"/>"), 0xEA4BCA5D,
                    startElement, "xs:integer", "xs:int");
}

TEST_F(ValueFailure, APropertyThatOccursTwice) {
    EXPECT_NUMBERED(read("bus:provider", "<name>a</name><name>b</name>"), 0xEA4B8476, startElement,
                    "root", "name");
    EXPECT_NUMBERED(read("bus:provider", "<patch>1</patch><patch>1</patch>"), 0xEA4B8476,
                    startElement, "root", "patch");
    EXPECT_NUMBERED(read("bus:tracking", "<conversationContext/><conversationContext/>"),
                    0xEA4B8476, startElement, "root", "conversationContext");
    EXPECT_NUMBERED(read("bus:provider", "<name/><name>b</name>"), 0xEA4B8476, startElement, "root",
                    "name");
}

TEST_F(ValueFailure, AnArrayWithoutArrayType) {
    EXPECT_NUMBERED(read("SOAP-ENC:Array", ""), 0xEA4BA852, startElement, "root");
    EXPECT_NUMBERED(read("bus:Warden", "<roles xsi:type=\"SOAP-ENC:Array\"/>"), 0xEA4BA852,
                    startElement, "roles");
}

TEST_F(ValueFailure, AnArrayTypeWithoutPrefix) {
    EXPECT_NUMBERED(
        read("bus:Warden", "<roles xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"string[2]\"/>"),
        0xEA4CB90C, "KORVASchemaTypeIContentHandler::getBusXsiType()", "string[2]", "roles");
}

TEST_F(ValueFailure, AnUnknownTypeName) {
    EXPECT_NUMBERED(read("bus:noSuchType", ""), 0xEA48385C, getObjectType, "bus:noSuchType",
                    "root");
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:type=\"xs:noSuchType\"/>"), 0xEA48385C,
                    getObjectType, "xs:noSuchType", "name");
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:type=\"bus:\"/>"), 0xEA48385C, getObjectType,
                    "bus:", "name");
    EXPECT_NUMBERED(
        read("bus:Warden",
             "<roles xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:noSuchType[1]\"/>"),
        0xEA48385C, getObjectType, "SOAP-ENC:Array", "roles");
}

TEST_F(ValueFailure, TheTypeOfAKnownPropertyIsLookedAtWhereItPlaysNoPart) {
    EXPECT_NUMBERED(read("bus:intProp", "<value xsi:type=\"bus:noSuchType\">1</value>"), 0xEA48385C,
                    getObjectType, "bus:noSuchType", "value");
}

TEST_F(ValueFailure, AnObjectOfAnotherClass) {
    EXPECT_NUMBERED(read("bus:tracking", "<conversationContext xsi:type=\"bus:folder\"/>"),
                    0xEA4BD4DB, checkType, "conversationContext", "bus:conversationContext",
                    "bus:folder");
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:type=\"bus:folder\"/>"), 0xEA4BD4DB, checkType,
                    "name", "xs:string", "bus:folder");
}

TEST_F(ValueFailure, ASimpleValueOfAnotherType) {
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:type=\"xs:dateTime\"/>"), 0xEA487D84, checkType,
                    "name", "xs:string", "xs:dateTime");
    EXPECT_NUMBERED(read("bus:tracking", "<conversationContext xsi:type=\"xs:int\"/>"), 0xEA487D84,
                    checkType, "conversationContext", "bus:conversationContext", "xs:int");
}

TEST_F(ValueFailure, TextInANilElementEvenIfItIsABlank) {
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:nil=\"true\"> </name>"), 0xEA4152EA, characters,
                    "name");
}

TEST_F(ValueFailure, TextInAReferenceEvenIfItIsABlank) {
    EXPECT_NUMBERED(read("bus:provider", "<name href=\"cid:id7\"> </name>"), 0xEA4ACDA5, characters,
                    "name", "id7");
}

TEST_F(ValueFailure, TextThatDoesNotFitASimpleValue) {
    EXPECT_NUMBERED(read("bus:intProp", "<value>1e3</value>"), 0xEA407F89, characters, "value",
                    "int");
    EXPECT_NUMBERED(read("bus:positiveIntegerProp", "<value>1.5</value>"), 0xEA407F89, characters,
                    "value", "int");
    EXPECT_NUMBERED(read("bus:floatProp", "<value>1,5</value>"), 0xEA407F89, characters, "value",
                    "float");
    EXPECT_NUMBERED(read("bus:decimalProp", "<value>INF</value>"), 0xEA407F89, characters, "value",
                    "float");
    EXPECT_NUMBERED(read("bus:floatProp", "<value>1\n2</value>"), 0xEA407F89, characters, "value",
                    "float");
    EXPECT_NUMBERED(read("bus:booleanProp", "<value>yes</value>"), 0xEA407F89, characters, "value",
                    "boolean");
    EXPECT_NUMBERED(read("bus:booleanProp", "<value>True</value>"), 0xEA407F89, characters, "value",
                    "boolean");
    EXPECT_NUMBERED(read("bus:intArray", "<i>x</i>"), 0xEA407F89, characters, "i", "int");
}

TEST_F(ValueFailure, AFloatThatIsTooLarge) {
    for (const std::string& text :
         {std::string("1e39"), std::string("-1e39"), std::string("1e999"), std::string("-1E999"),
          std::string("1d400"), std::string("1D39"), std::string("+1e400"),
          std::string("0.0001e400"), std::string("1e99999999999999999999"),
          std::string("1e9223372036854775807"), std::string("10e9223372036854775807"),
          std::string("3.4028236e38"), "1" + std::string(400, '0'),
          "1" + std::string(400, '0') + ".0.1e-4500", std::string("1e999 5")}) {
        EXPECT_NUMBERED(read("bus:floatProp", "<value>" + text + "</value>"), 0xEA407F89,
                        characters, "value", "float");
        EXPECT_NUMBERED(read("bus:decimalProp", "<value>" + text + "</value>"), 0xEA407F89,
                        characters, "value", "float");
    }
}

TEST_F(ValueFailure, ATextFromTheWireForgesNoLineOfALog) {
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:type=\"bus:a&#10;b&#13;&#9;&#x202E;c\"/>"),
                    0xEA48385C, getObjectType, "bus:a\\nb\\r\\t\\u{202E}c", "name");
    try {
        read("bus:provider", "<name xsi:type=\"bus:a&#10;b\"/>");
        FAIL();
    } catch (const KORVAException& error) {
        EXPECT_EQ(std::string(error.toString()).find("a\nb"), std::string::npos)
            << error.toString();
    }
}

TEST_F(ValueFailure, ANameFromTheWireIsCut) {
    const std::string name(60'000, 'n');
    EXPECT_NUMBERED(read("bus:intProp", "<value><" + name + "/></value>"), 0xEA4AA334, startElement,
                    std::string(512, 'n') + " ... (cut, 60000 bytes)");
}

TEST_F(ValueFailure, AnEmptyBoolean) {
    EXPECT_NUMBERED(read("bus:booleanProp", "<value/>"), 0xEA407F89, characters, "value",
                    "boolean");
    EXPECT_NUMBERED(read("bus:booleanProp", "<value> </value>"), 0xEA407F89, characters, "value",
                    "boolean");
}

TEST_F(ValueFailure, BadBase64IsTheStreamsMatter) {
    EXPECT_THROW(read("bus:base64BinaryProp", "<value>A*==</value>"), BRIMStreamError);
    EXPECT_THROW(read("bus:base64BinaryProp", "<value>AAE</value>"), BRIMStreamError);
}

TEST_F(ValueFailure, ALargeBinaryIsRefusedByTheOffsetOfWhatIsBad) {
    const std::string large(1'000'000, 'A');
    const auto whatOf = [this](const std::string& text) -> std::string {
        try {
            read("bus:base64BinaryProp", "<value>" + text + "</value>");
        } catch (const BRIMStreamError& error) {
            return error.getText();
        }
        return {};
    };
    EXPECT_NE(whatOf(large + "*" + large).find("at offset 1000000"), std::string::npos);
    EXPECT_NE(whatOf(large + "AA==" + large).find("at offset 1000004"), std::string::npos);
    EXPECT_NE(whatOf(large + "AAE").find("at offset 1000003"), std::string::npos);
}

TEST_F(ValueFailure, AnUnknownWordOfAnEnumeration) {
    EXPECT_NUMBERED(read("bus:severityEnumProp", "<value>grave</value>"), 0xEA45DC29,
                    "_stringToEnum()", "severityEnum:grave");
    // White space is part of the word.
    EXPECT_NUMBERED(read("bus:severityEnumProp", "<value> warn</value>"), 0xEA45DC29,
                    "_stringToEnum()", "severityEnum: warn");
}

TEST_F(ValueFailure, AnElementOfAnAbstractClassThatTellsNoTypeOfItsOwn) {
    EXPECT_NUMBERED(read("bus:baseClassArray", "<item/>"), 0xEA47EC7B,
                    "KORVASchemaTypesFactory::create()", "bus:baseClass");
    EXPECT_NUMBERED(read("bus:baseClass", ""), 0xEA47EC7B, "KORVASchemaTypesFactory::create()",
                    "bus:baseClass");
}

TEST_F(ValueFailure, TooLongATypeIsAnAssertion) {
    const std::string local(252, 't');
    EXPECT_NUMBERED(read("bus:provider", "<name xsi:type=\"xs:" + local + "\"/>"), 0xEA48385C,
                    getObjectType, "xs:" + local, "name");
    EXPECT_ASSERTION(read("bus:provider", "<name xsi:type=\"xs:" + local + "t\"/>"),
                     "ZEL_ASSERT_NAMED(XMLString::stringLen( xsiTypeAttrValue ) < "
                     "DEFAULT_TMP_CHAR_BUFFER_SIZE, \"The default buffer size needs to be "
                     "increased.\");");
    EXPECT_ASSERTION(
        read("bus:Warden",
             "<roles xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:" + local + "\"/>"),
        "ZEL_ASSERT_NAMED(XMLString::stringLen( soapEncArrayTypeAttrValue ) < "
        "DEFAULT_TMP_CHAR_BUFFER_SIZE, \"The default buffer size needs to be "
        "increased.\");");
    // Without a colon it is no type at all.
    EXPECT_STREQ(static_cast<KORVAProvider*>(
                     read("bus:provider", "<name xsi:type=\"" + local + "tttt\">n</name>"))
                     ->getName(),
                 "n");
}

TEST_F(ValueFailure, AReferenceWithoutAnAttachmentHandlerIsAnAssertion) {
    const char* const atEnd =
        "ZEL_ASSERT_NAMED(m_attachmentHandler, \"KORVASchemaTypeIContentHandler::endElement - "
        "Handler not configured to process href attachments. );\");";
    const char* const inText =
        "ZEL_ASSERT_NAMED(m_attachmentHandler, "
        "\"KORVASchemaTypeIContentHandler::setCurrentCharacterData - Handler not configured to "
        "process href attachments. );\");";
    EXPECT_ASSERTION(read("bus:provider", "<name href=\"cid:7\"/>"), atEnd);
    EXPECT_ASSERTION(read("bus:base64BinaryProp", "<value href=\"cid:7\"/>"), atEnd);
    EXPECT_ASSERTION(read("bus:guidProp", "<value href=\"cid:7\"/>"), inText);
    EXPECT_ASSERTION(read("bus:severityEnumProp", "<value href=\"cid:7\"/>"), inText);
    EXPECT_ASSERTION(read("bus:tracking", "<conversationContext href=\"cid:7\"/>"), inText);
}

// ----- the place -----

TEST_F(ValueFailure, TheTraceHasTheThrowAndTheEntryPointAndNothingElse) {
    const auto trace = traceOf([&] { read("bus:intProp", "<value>x</value>"); });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_NE(trace[1].find(") KORVAXMLDeserializer::parse() ZEL_RETHROW: line 1, column "),
              std::string::npos)
        << trace[1];
}

TEST_F(ValueFailure, TheEntryPointTellsLineColumnAndElement) {
    const std::string text = "<root" + declarations() + " xsi:type=\"bus:tracking\">\n" +
                             "  <requestContext>r</requestContext>\n" +
                             "  <conversationContext>\n" +  //
                             "    <processID>many</processID>\n  </conversationContext>\n</root>";
    const auto trace = traceOf([&] { reader.read(text); });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_EQ(placeIn(trace[1]), "line 4, column 32, element /root/conversationContext/processID");
}

TEST_F(ValueFailure, AnAssertionToldByAnObjectHasAPlaceToo) {
    const auto trace = traceOf([&] { read("bus:provider", "<name href=\"cid:7\"/>"); });
    ASSERT_EQ(trace.size(), 3U);
    EXPECT_NE(placeIn(trace[2]).find("element /root/name"), std::string::npos) << trace[2];
}

TEST_F(ValueFailure, ThePathOfADeepElementIsShortened) {
    std::string text;
    for (int i = 0; i != 200; ++i)
        text += "<unknown" + std::to_string(i) + ">";
    reader.deserializer.setMaximumDepth(150);
    const auto trace = traceOf([&] { read("bus:provider", text); });
    ASSERT_EQ(trace.size(), 2U);
    const std::string place = placeIn(trace[1]);
    EXPECT_LT(place.size(), 500U);
    EXPECT_NE(place.find("element /root/unknown0/unknown1/"), std::string::npos) << place;
    EXPECT_NE(place.find("/.../unknown"), std::string::npos) << place;
    EXPECT_EQ(place.substr(place.rfind('/')), "/unknown148") << place;
}

TEST_F(ValueFailure, NamesBeyondAsciiAreToldInUtf8) {
    const auto trace = traceOf([&] {
        read("bus:intArray",
             "<gr\xC3\xB6\xC3\x9F"
             "e\xF0\x90\x8E\xA0>x</gr\xC3\xB6\xC3\x9F"
             "e\xF0\x90\x8E\xA0>");
    });
    ASSERT_EQ(trace.size(), 2U);
    EXPECT_NE(trace[1].find("element /root/gr\xC3\xB6\xC3\x9F"
                            "e\xF0\x90\x8E\xA0"),
              std::string::npos)
        << trace[1];
}

}  // namespace
