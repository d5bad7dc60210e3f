#include "tests/soap/ElementWriting.h"
#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/FreeObject.h"

#include <korva/KORVAAccessEnum.h>
#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailCount.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADecimalProp.h>
#include <korva/KORVAFloatProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAHalyardHeaderExtension1.h>
#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVAIntProp.h>
#include <korva/KORVAObjectSerializerFactory.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <korva/KORVAPolicy.h>
#include <korva/KORVAPolicyArray.h>
#include <korva/KORVAPolicyArrayProp.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATimeProp.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using korva::test::CollectingStream;
using korva::test::element;
using korva::test::FreeObject;
using korva::test::Maker;
using korva::test::TextStreamable;
using ObjectType = KORVASchemaTypeI::ObjectType;

void* text(const char* value) {
    return const_cast<char*>(value);
}

std::string severity(const char* word) {
    KORVASeverityEnum value;
    value.setValue(word);
    return element(value);
}

// The forms of plain values.

TEST(ObjectSerializer, WritesTextEncoded) {
    EXPECT_EQ(element("a<b", KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">a&lt;b</bus:value>\n");
}

TEST(ObjectSerializer, WritesAnEmptyTextBetweenTwoTags) {
    EXPECT_EQ(element("", KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\"></bus:value>\n");
}

TEST(ObjectSerializer, EncodesAllMarkupAndTheCarriageReturn) {
    EXPECT_EQ(element("<&>\"'\r\n\t", KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">&lt;&amp;&gt;&quot;&apos;&#xD;\n\t</bus:value>\n");
}

TEST(ObjectSerializer, PassesBytesBeyondAsciiUnchanged) {
    EXPECT_EQ(
        element("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", KORVASchemaTypeI::eString),
        "<bus:value xsi:type=\"xs:string\">\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80</bus:value>\n");
}

TEST(ObjectSerializer, WritesIntegers) {
    const int values[] = {42, -2147483647 - 1, 2147483647, 0};
    EXPECT_EQ(element(&values[0], KORVASchemaTypeI::eInt),
              "<bus:value xsi:type=\"xs:int\">42</bus:value>\n");
    EXPECT_EQ(element(&values[1], KORVASchemaTypeI::eInt),
              "<bus:value xsi:type=\"xs:int\">-2147483648</bus:value>\n");
    EXPECT_EQ(element(&values[2], KORVASchemaTypeI::eInteger),
              "<bus:value xsi:type=\"xs:integer\">2147483647</bus:value>\n");
    EXPECT_EQ(element(&values[3], KORVASchemaTypeI::eInteger),
              "<bus:value xsi:type=\"xs:integer\">0</bus:value>\n");
}

TEST(ObjectSerializer, WritesDecimalsAndFloatsWithTwoDigitsAndABlank) {
    const float values[] = {1.5F, 1.0F, 2.5F};
    EXPECT_EQ(element(&values[0], KORVASchemaTypeI::eDecimal),
              "<bus:value xsi:type=\"xs:decimal\">1.50 </bus:value>\n");
    EXPECT_EQ(element(&values[1], KORVASchemaTypeI::eDecimal),
              "<bus:value xsi:type=\"xs:decimal\">1.00 </bus:value>\n");
    EXPECT_EQ(element(&values[2], KORVASchemaTypeI::eFloat),
              "<bus:value xsi:type=\"xs:float\">2.50 </bus:value>\n");
}

TEST(ObjectSerializer, WritesTheNumberThatAPropertyWasSetTo) {
    KORVADecimalProp decimal;
    decimal.setValue(-1234.567F);
    EXPECT_NE(element(decimal).find("<bus:value xsi:type=\"xs:decimal\">-1234.57 </bus:value>\n"),
              std::string::npos);
    KORVAFloatProp number;
    number.setValue(0.125F);
    EXPECT_NE(element(number).find("<bus:value xsi:type=\"xs:float\">0.12 </bus:value>\n"),
              std::string::npos);
}

TEST(ObjectSerializer, WritesBooleansAsWords) {
    const bool yes = true;
    const bool no = false;
    EXPECT_EQ(element(&yes, KORVASchemaTypeI::eBoolean),
              "<bus:value xsi:type=\"xs:boolean\">true</bus:value>\n");
    EXPECT_EQ(element(&no, KORVASchemaTypeI::eBoolean),
              "<bus:value xsi:type=\"xs:boolean\">false</bus:value>\n");
}

TEST(ObjectSerializer, ABooleanByteOf2IsTrue) {
    const unsigned char byte = 2;
    EXPECT_EQ(element(&byte, KORVASchemaTypeI::eBoolean),
              "<bus:value xsi:type=\"xs:boolean\">true</bus:value>\n");
}

TEST(ObjectSerializer, WritesTimesDatesAndQualifiedNamesAsEncodedText) {
    EXPECT_EQ(element("11:20:31", KORVASchemaTypeI::eTime),
              "<bus:value xsi:type=\"xs:time\">11:20:31</bus:value>\n");
    EXPECT_EQ(element("2026-03-09T11:20:31.104Z", KORVASchemaTypeI::eDateTime),
              "<bus:value xsi:type=\"xs:dateTime\">2026-03-09T11:20:31.104Z</bus:value>\n");
    EXPECT_EQ(element("bus:a&b", KORVASchemaTypeI::eQName),
              "<bus:value xsi:type=\"xs:QName\">bus:a&amp;b</bus:value>\n");
}

TEST(ObjectSerializer, WritesTheValueOfATimeProperty) {
    KORVATimeProp time;
    time.setValue("11:20:31");
    EXPECT_EQ(element(time, "bus:startTime"),
              "<bus:startTime xsi:type=\"bus:timeProp\">\n"
              "\t<bus:value xsi:type=\"xs:time\">11:20:31</bus:value>\n"
              "</bus:startTime>\n");
}

TEST(ObjectSerializer, WritesBinaryInBase64) {
    const KORVAXSBase64Binary value("hello", 5);
    EXPECT_EQ(element(&value, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>\n");
}

TEST(ObjectSerializer, WritesAnEmptyBinaryBetweenTwoTags) {
    const KORVAXSBase64Binary value;
    EXPECT_EQ(element(&value, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\"></bus:value>\n");
}

TEST(ObjectSerializer, StreamsBinary) {
    const TextStreamable source("hello");
    KORVAXSBase64Binary value;
    value.reference(source);
    EXPECT_EQ(element(&value, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>\n");
    KORVAXSBase64Compressed plain;
    plain.reference(source, false);
    EXPECT_EQ(element(&plain, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>\n");
}

// Texts that are streamed.

TEST(ObjectSerializer, StreamsEveryTextTypeThroughTheEncoder) {
    const TextStreamable source("a<b");
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    first.initialize(source, false);
    second.initialize("&c", false);
    first.append(second);
    for (const auto& [type, name] : {std::pair{KORVASchemaTypeI::eString, "string"},
                                     {KORVASchemaTypeI::eTime, "time"},
                                     {KORVASchemaTypeI::eDateTime, "dateTime"},
                                     {KORVASchemaTypeI::eQName, "QName"}})
        EXPECT_EQ(element(first.asCharStar(), type), std::string("<bus:value xsi:type=\"xs:") +
                                                         name + "\">a&lt;b&amp;c</bus:value>\n");
}

TEST(ObjectSerializer, StreamsTextInBase64WhereItIsAskedTo) {
    KORVA_CharStreamable streamable;
    streamable.initialize("hello", true);
    EXPECT_EQ(element(streamable.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">aGVsbG8=</bus:value>\n");
}

TEST(ObjectSerializer, HandsAStreamableOnWithoutHoldingItsText) {
    static constexpr std::size_t pieces = 64;
    /// Writes many pieces, far more than could be meant to be kept.
    class Endless : public KORVA_Streamable {
    public:
        long long read(char*, std::size_t) override { return 0; }
        BRIMOutputStream& operator>>(BRIMOutputStream& out) const override {
            const std::string piece(1 << 20, 'x');
            for (std::size_t i = 0; i < pieces; ++i)
                out.write(piece.data(), piece.size());
            return out;
        }
    };
    class Counter : public BRIMOutputStream {
    public:
        void write(const char*, std::size_t length) override {
            bytes += length;
            longest = std::max(longest, length);
        }
        std::size_t bytes = 0;
        std::size_t longest = 0;
    };
    const Endless source;
    KORVA_CharStreamable streamable;
    streamable.initialize(source, false);
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(false);
    Counter counter;
    serializer.serialize(streamable.asCharStar(), KORVASchemaTypeI::eString, "bus:value", counter);
    EXPECT_EQ(counter.longest, std::size_t{1} << 20);
    EXPECT_EQ(
        counter.bytes,
        (pieces << 20) + std::string("<bus:value xsi:type=\"xs:string\"></bus:value>\n").size());
}

// References to attachments.

TEST(ObjectSerializer, WritesAReferenceToAnAttachmentForBinary) {
    KORVAXSBase64Binary value("abc", 3);
    value.setIsContentId(true);
    EXPECT_EQ(element(&value, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\" href=\"cid:abc\"></bus:value>\n");
}

TEST(ObjectSerializer, WritesAReferenceToAnAttachmentForText) {
    KORVA_CharStreamable streamable;
    streamable.initialize("abc", false);
    streamable.setIsContentId(true);
    EXPECT_EQ(element(streamable.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\" href=\"cid:abc\"></bus:value>\n");
    EXPECT_EQ(element(streamable.asCharStar(), KORVASchemaTypeI::eDateTime),
              "<bus:value xsi:type=\"xs:dateTime\" href=\"cid:abc\"></bus:value>\n");
}

TEST(ObjectSerializer, EncodesTextButNoContentId) {
    KORVA_CharStreamable streamable;
    streamable.initialize("a&b<c", false);
    EXPECT_EQ(element(streamable.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">a&amp;b&lt;c</bus:value>\n");
    streamable.setIsContentId(true);
    EXPECT_EQ(element(streamable.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\" href=\"cid:a&b<c\"></bus:value>\n");
    KORVAXSBase64Binary binary("a&b", 3);
    binary.setIsContentId(true);
    EXPECT_EQ(element(&binary, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\" href=\"cid:a&b\"></bus:value>\n");
}

TEST(ObjectSerializer, AnEmptyContentIdGivesAnEmptyReference) {
    KORVAXSBase64Binary value;
    value.setIsContentId(true);
    EXPECT_EQ(element(&value, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\" href=\"cid:\"></bus:value>\n");
}

// Objects whose content is text.

TEST(ObjectSerializer, WritesTheWordOfAnEnumeration) {
    EXPECT_EQ(severity("warn"), "<bus:value xsi:type=\"bus:severityEnum\">warn</bus:value>\n");
}

TEST(ObjectSerializer, WritesTheTextOfARestrictedString) {
    KORVASearchPathSingleObject path;
    path.setValue("/content/report[@name='a&b']");
    EXPECT_EQ(element(path),
              "<bus:value xsi:type=\"bus:searchPathSingleObject\">"
              "/content/report[@name=&apos;a&amp;b&apos;]</bus:value>\n");
}

TEST(ObjectSerializer, StreamsTheTextOfARestrictedString) {
    KORVA_CharStreamable streamable;
    streamable.initialize("a<b", false);
    KORVASearchPathSingleObject path;
    path.setValue(streamable.asCharStar());
    EXPECT_EQ(element(path),
              "<bus:value xsi:type=\"bus:searchPathSingleObject\">a&lt;b</bus:value>\n");
}

TEST(ObjectSerializer, WritesAReferenceToAnAttachmentForARestrictedString) {
    KORVA_CharStreamable streamable;
    streamable.initialize("abc", false);
    streamable.setIsContentId(true);
    KORVASearchPathSingleObject path;
    path.setValue(streamable.asCharStar());
    EXPECT_EQ(element(path),
              "<bus:value xsi:type=\"bus:searchPathSingleObject\" "
              "href=\"cid:abc\"></bus:value>\n");
}

TEST(ObjectSerializer, ClosesTheTagOfATextObjectWithoutText) {
    const KORVASearchPathSingleObject path;
    EXPECT_EQ(element(path), "<bus:value xsi:type=\"bus:searchPathSingleObject\"></bus:value>\n");
    EXPECT_EQ(element(path, "bus:value", true),
              "<bus:value xsi:type=\"bus:searchPathSingleObject\"></bus:value>\n");
}

TEST(ObjectSerializer, AnEnumerationWithoutAValueIsAnAssertion) {
    const KORVASeverityEnum unset;
    EXPECT_ASSERTION(element(unset),
                     "ZEL_ASSERT_NAMED(m_value != KORVASeverityEnum::eKOVRAUninitialized, "
                     "\"Enum not initialized.\");");
}

TEST(ObjectSerializer, TextContentOfAnotherTypeThanStringIsAnAssertion) {
    int number = 1;
    const FreeObject object({{"", KORVASchemaTypeI::eInt, &number}});
    EXPECT_ASSERTION(element(object),
                     "ZEL_ASSERT_NAMED(childObjType == KORVASchemaTypeI::eString, "
                     "\"Conversion of text not currently supported.\");");
}

TEST(ObjectSerializer, WritesChildrenBehindAnObjectsOwnText) {
    int number = 7;
    const FreeObject object({{"", KORVASchemaTypeI::eString, text("a<b")},
                             {"count", KORVASchemaTypeI::eInt, &number},
                             {"name", KORVASchemaTypeI::eString, nullptr}});
    EXPECT_EQ(element(object, "bus:folder"),
              "<bus:folder xsi:type=\"bus:folder\">a&lt;b"
              "\t<bus:count xsi:type=\"xs:int\">7</bus:count>\n"
              "</bus:folder>\n");
}

TEST(ObjectSerializer, ClosesTheTagBeforeAChildThatFollowsAMissingText) {
    int number = 7;
    const FreeObject object(
        {{"", KORVASchemaTypeI::eString, nullptr}, {"count", KORVASchemaTypeI::eInt, &number}});
    EXPECT_EQ(element(object, "bus:folder"),
              "<bus:folder xsi:type=\"bus:folder\">"
              "\t<bus:count xsi:type=\"xs:int\">7</bus:count>\n"
              "</bus:folder>\n");
}

// Null.

TEST(ObjectSerializer, WritesATopLevelNullAsNil) {
    EXPECT_EQ(element(nullptr, KORVASchemaTypeI::eKORVABaseClass, "bus:result"),
              "<bus:result xsi:type=\"bus:baseClass\" xsi:nil=\"true\"/>\n");
    EXPECT_EQ(element(nullptr, KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\" xsi:nil=\"true\"/>\n");
}

TEST(ObjectSerializer, LeavesOutAnUnsetChildWithItsIndentation) {
    KORVAPermission permission;
    permission.setName("read");
    EXPECT_EQ(element(permission, "bus:permission"),
              "<bus:permission xsi:type=\"bus:permission\">\n"
              "\t<bus:name xsi:type=\"xs:string\">read</bus:name>\n"
              "</bus:permission>\n");
}

TEST(ObjectSerializer, WritesAnUnsetChildAsNilWhereNullElementsAreAskedFor) {
    const KORVAPermission permission;
    EXPECT_EQ(element(permission, "bus:permission", true),
              "<bus:permission xsi:type=\"bus:permission\">\n"
              "\t<bus:access xsi:type=\"bus:accessEnum\" xsi:nil=\"true\"/>\n"
              "\t<bus:name xsi:type=\"xs:string\" xsi:nil=\"true\"/>\n"
              "</bus:permission>\n");
}

TEST(ObjectSerializer, AnObjectWithNothingSetIsTwoTagsOnTwoLines) {
    const KORVAPermission permission;
    EXPECT_EQ(element(permission, "bus:permission"),
              "<bus:permission xsi:type=\"bus:permission\">\n</bus:permission>\n");
}

TEST(ObjectSerializer, AnObjectWithoutChildNamesIsAnEmptyTag) {
    const KORVAHalyardHeaderExtension1 extension;
    EXPECT_EQ(element(extension, "bus:extension"),
              "<bus:extension xsi:type=\"bus:halyardHeaderExtension1\"/>\n");
}

TEST(ObjectSerializer, AnUnknownTypeIsAnEmptyTag) {
    const KORVAUnknownSchemaType unknown;
    EXPECT_EQ(element(unknown), "<bus:value xsi:type=\"_unknown\"/>\n");
}

// Arrays.

TEST(ObjectSerializer, WritesANullArrayWithoutSizeAndWithoutNil) {
    const char* const expected =
        "<bus:value xsi:type=\"SOAP-ENC:Array\" "
        "SOAP-ENC:arrayType=\"bus:permission[]\"/>\n";
    EXPECT_EQ(element(nullptr, KORVASchemaTypeI::eKORVAPermissionArray), expected);
    EXPECT_EQ(element(nullptr, KORVASchemaTypeI::eKORVAPermissionArray, "bus:value", true),
              expected);
}

TEST(ObjectSerializer, NeverLeavesOutANullArray) {
    const FreeObject object({{"policies", KORVASchemaTypeI::eKORVAPolicyArray, nullptr},
                             {"name", KORVASchemaTypeI::eString, nullptr}});
    EXPECT_EQ(element(object, "bus:folder"),
              "<bus:folder xsi:type=\"bus:folder\">\n"
              "\t<bus:policies xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:policy[]\"/>\n"
              "</bus:folder>\n");
}

TEST(ObjectSerializer, WritesAnEmptyArrayAsAnEmptyTagOfSize0) {
    const KORVAPermissionArray array;
    EXPECT_EQ(element(array),
              "<bus:value xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:permission[0]\"/>\n");
}

TEST(ObjectSerializer, WritesTheElementsOfAnArrayAsItems) {
    const Maker maker;
    KORVAPermissionArray array;
    for (const char* const name : {"read", "write"}) {
        auto* const permission = maker.make<KORVAPermission>();
        permission->setName(name);
        permission->getAccess(maker.registry())->setValue("grant");
        array.push_back(permission);
    }
    EXPECT_EQ(element(array),
              "<bus:value xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:permission[2]\">\n"
              "\t<item xsi:type=\"bus:permission\">\n"
              "\t\t<bus:access xsi:type=\"bus:accessEnum\">grant</bus:access>\n"
              "\t\t<bus:name xsi:type=\"xs:string\">read</bus:name>\n"
              "\t</item>\n"
              "\t<item xsi:type=\"bus:permission\">\n"
              "\t\t<bus:access xsi:type=\"bus:accessEnum\">grant</bus:access>\n"
              "\t\t<bus:name xsi:type=\"xs:string\">write</bus:name>\n"
              "\t</item>\n"
              "</bus:value>\n");
}

TEST(ObjectSerializer, WritesTheTextsOfAnArrayAsItems) {
    KORVAStringArray array;
    array.push_back("a&b");
    array.push_back("");
    EXPECT_EQ(element(array, "bus:roles"),
              "<bus:roles xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"xs:string[2]\">\n"
              "\t<item xsi:type=\"xs:string\">a&amp;b</item>\n"
              "\t<item xsi:type=\"xs:string\"></item>\n"
              "</bus:roles>\n");
}

TEST(ObjectSerializer, CountsANullElementButWritesNoItemForIt) {
    KORVAStringArray array;
    array.push_back("a");
    array.push_back("b");
    array.push_back(nullptr);
    EXPECT_EQ(element(array, "bus:roles"),
              "<bus:roles xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"xs:string[3]\">\n"
              "\t<item xsi:type=\"xs:string\">a</item>\n"
              "\t<item xsi:type=\"xs:string\">b</item>\n"
              "</bus:roles>\n");
}

TEST(ObjectSerializer, WritesANilItemForANullElementWhereNullElementsAreAskedFor) {
    const KORVAPermission permission;
    KORVAPermissionArray array;
    array.push_back(nullptr);
    array.push_back(nullptr);
    EXPECT_EQ(element(array, "bus:permissions"),
              "<bus:permissions xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:permission[2]\">\n"
              "</bus:permissions>\n");
    EXPECT_EQ(element(array, "bus:permissions", true),
              "<bus:permissions xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:permission[2]\">\n"
              "\t<item xsi:type=\"bus:permission\" xsi:nil=\"true\"/>\n"
              "\t<item xsi:type=\"bus:permission\" xsi:nil=\"true\"/>\n"
              "</bus:permissions>\n");
}

TEST(ObjectSerializer, WritesArraysInsideProperties) {
    const Maker maker;
    KORVAPolicyArrayProp property;
    auto* const policy = maker.make<KORVAPolicy>();
    property.getValue().push_back(policy);
    EXPECT_EQ(element(property, "bus:policies"),
              "<bus:policies xsi:type=\"bus:policyArrayProp\">\n"
              "\t<bus:value xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:policy[1]\">\n"
              "\t\t<item xsi:type=\"bus:policy\">\n"
              "\t\t\t<bus:permissions xsi:type=\"SOAP-ENC:Array\" "
              "SOAP-ENC:arrayType=\"bus:permission[0]\"/>\n"
              "\t\t</item>\n"
              "\t</bus:value>\n"
              "</bus:policies>\n");
}

// Order and types of children.

TEST(ObjectSerializer, WritesInheritedChildrenFirstAndTheRestInDeclaredOrder) {
    const Maker maker;
    KORVAFolder folder;
    folder.getServerGroup(maker.registry())->setValue("g");
    folder.getContactEMail(maker.registry())->setValue("c");
    folder.getSearchPath(maker.registry())->setValue("s");
    folder.getHidden(maker.registry())->setValue(true);
    folder.getDisabled(maker.registry())->setValue(false);
    EXPECT_EQ(element(folder, "bus:folder"),
              "<bus:folder xsi:type=\"bus:folder\">\n"
              "\t<bus:disabled xsi:type=\"bus:booleanProp\">\n"
              "\t\t<bus:value xsi:type=\"xs:boolean\">false</bus:value>\n"
              "\t</bus:disabled>\n"
              "\t<bus:searchPath xsi:type=\"bus:stringProp\">\n"
              "\t\t<bus:value xsi:type=\"xs:string\">s</bus:value>\n"
              "\t</bus:searchPath>\n"
              "\t<bus:hidden xsi:type=\"bus:booleanProp\">\n"
              "\t\t<bus:value xsi:type=\"xs:boolean\">true</bus:value>\n"
              "\t</bus:hidden>\n"
              "\t<bus:contactEMail xsi:type=\"bus:stringProp\">\n"
              "\t\t<bus:value xsi:type=\"xs:string\">c</bus:value>\n"
              "\t</bus:contactEMail>\n"
              "\t<bus:serverGroup xsi:type=\"bus:stringProp\">\n"
              "\t\t<bus:value xsi:type=\"xs:string\">g</bus:value>\n"
              "\t</bus:serverGroup>\n"
              "</bus:folder>\n");
}

TEST(ObjectSerializer, WritesADerivedObjectWithItsOwnType) {
    const Maker maker;
    KORVAPolicy policy;
    policy.setSecurityObject(maker.make<KORVAFolder>());
    const std::string written = element(policy, "bus:policy");
    EXPECT_NE(written.find("\t<bus:securityObject xsi:type=\"bus:folder\">\n"
                           "\t</bus:securityObject>\n"),
              std::string::npos)
        << written;
}

TEST(ObjectSerializer, WritesDerivedElementsWithTheirOwnTypes) {
    const Maker maker;
    KORVAAsynchDetailArray array;
    auto* const count = maker.make<KORVAAsynchDetailCount>();
    count->setCount(3);
    array.push_back(count);
    array.push_back(maker.make<KORVAAsynchDetailReportOutput>());
    EXPECT_EQ(
        element(array, "bus:details"),
        "<bus:details xsi:type=\"SOAP-ENC:Array\" SOAP-ENC:arrayType=\"bus:asynchDetail[2]\">\n"
        "\t<item xsi:type=\"bus:asynchDetailCount\">\n"
        "\t\t<bus:count xsi:type=\"xs:int\">3</bus:count>\n"
        "\t</item>\n"
        "\t<item xsi:type=\"bus:asynchDetailReportOutput\">\n"
        "\t\t<bus:outputObjects xsi:type=\"SOAP-ENC:Array\" "
        "SOAP-ENC:arrayType=\"bus:baseClass[0]\"/>\n"
        "\t\t<bus:outputPages xsi:type=\"SOAP-ENC:Array\" "
        "SOAP-ENC:arrayType=\"xs:string[0]\"/>\n"
        "\t</item>\n"
        "</bus:details>\n");
}

TEST(ObjectSerializer, GivesTheTopElementTheTypeThatTheCallerNames) {
    const KORVAFolder folder;
    EXPECT_EQ(element(&folder, KORVASchemaTypeI::eKORVABaseClass, "bus:result"),
              "<bus:result xsi:type=\"bus:baseClass\">\n</bus:result>\n");
}

// Layout and settings.

TEST(ObjectSerializer, ATopLevelElementHasNoTabsAndItsChildrenHaveOne) {
    KORVAIntProp property;
    property.setValue(1);
    EXPECT_EQ(element(property, "bus:size"),
              "<bus:size xsi:type=\"bus:intProp\">\n"
              "\t<bus:value xsi:type=\"xs:int\">1</bus:value>\n"
              "</bus:size>\n");
}

TEST(ObjectSerializer, RepeatsTheNameInTheEndTagAsGiven) {
    EXPECT_EQ(element("x", KORVASchemaTypeI::eString, "q:n\xC3\xA4me"),
              "<q:n\xC3\xA4me xsi:type=\"xs:string\">x</q:n\xC3\xA4me>\n");
}

TEST(ObjectSerializer, DeclaresTheNamespacesOnTheTopElementOnly) {
    KORVAIntProp property;
    property.setValue(1);
    KORVASOAPSerializer serializer;
    CollectingStream stream;
    serializer.serialize(&property, property.getObjectType(), "bus:size", stream);
    EXPECT_EQ(stream.text,
              "<bus:size xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "
              "xmlns:bus=\"" KORVA_TEST_AUTHORITY
              "/schemas/halyardns/3/\" "
              "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
              "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" xsi:type=\"bus:intProp\">\n"
              "\t<bus:value xsi:type=\"xs:int\">1</bus:value>\n"
              "</bus:size>\n");
}

TEST(ObjectSerializer, WritesNoXmlDeclarationBeforeASingleElement) {
    KORVASOAPSerializer serializer;
    serializer.setWriteXmlDeclaration(true);
    serializer.setWriteNamespaceDeclarations(false);
    CollectingStream stream;
    serializer.serialize("x", KORVASchemaTypeI::eString, "a", stream);
    EXPECT_EQ(stream.text, "<a xsi:type=\"xs:string\">x</a>\n");
}

TEST(ObjectSerializer, WritesOneObjectAfterTheOther) {
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(false);
    KORVAIntProp property;
    property.setValue(1);
    CollectingStream stream;
    for (int i = 0; i < 2; ++i)
        serializer.serialize(&property, property.getObjectType(), "a", stream);
    const std::string once =
        "<a xsi:type=\"bus:intProp\">\n"
        "\t<bus:value xsi:type=\"xs:int\">1</bus:value>\n"
        "</a>\n";
    EXPECT_EQ(stream.text, once + once);
    EXPECT_FALSE(stream.closed);
}

TEST(ObjectSerializer, CanBeUsedAgainAfterAFailure) {
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(false);
    CollectingStream stream;
    EXPECT_ASSERTION(serializer.serialize("x", KORVASchemaTypeI::eString, nullptr, stream),
                     "ZEL_ASSERT_NAMED(qName != NULL, \"NULL qname\");");
    EXPECT_EQ(stream.text, "");
    serializer.serialize("x", KORVASchemaTypeI::eString, "a", stream);
    EXPECT_EQ(stream.text, "<a xsi:type=\"xs:string\">x</a>\n");
}

// Depth.

/// Counts what would not fit into memory.
class CountingStream : public BRIMOutputStream {
public:
    void write(const char* bytes, std::size_t length) override {
        size += length;
        // No piece goes on behind the end of a line.
        if (length != 0 && bytes[length - 1] == '\n') ++lines;
    }
    unsigned long long size = 0;
    unsigned long long lines = 0;
};

TEST(ObjectSerializer, Writes200000LevelsWithoutRecursion) {
    constexpr unsigned long long depth = 100000;  // objects, each inside the array of another
    const Maker maker;
    KORVAHierarchicalParmValueItem root;
    KORVAHierarchicalParmValueItem* parent = &root;
    for (unsigned long long i = 1; i < depth; ++i) {
        auto* const child = maker.make<KORVAHierarchicalParmValueItem>();
        parent->getSubNodes().push_back(child);
        parent = child;
    }
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(false);
    CountingStream stream;
    serializer.serialize(&root, root.getObjectType(), "bus:root", stream);

    const auto length = [](const char* text) { return std::string_view(text).size(); };
    // Two lines for each array but the innermost, which is empty, and for each object.
    const unsigned long long levels = 2 * depth - 1;
    const unsigned long long arrays = depth - 1;
    unsigned long long expected = levels * (levels - 1) + levels;  // tabs; one line for the last
    expected += length("<bus:root xsi:type=\"bus:hierarchicalParmValueItem\">\n</bus:root>\n");
    expected += arrays * length("<item xsi:type=\"bus:hierarchicalParmValueItem\">\n</item>\n");
    expected += arrays * length(
                             "<bus:subNodes xsi:type=\"SOAP-ENC:Array\" "
                             "SOAP-ENC:arrayType=\"bus:hierarchicalParmValueItem[1]\">\n"
                             "</bus:subNodes>\n");
    expected += length(
        "<bus:subNodes xsi:type=\"SOAP-ENC:Array\" "
        "SOAP-ENC:arrayType=\"bus:hierarchicalParmValueItem[0]\"/>\n");
    EXPECT_EQ(stream.size, expected);
    EXPECT_EQ(stream.lines, 2 * levels + 1);
}

TEST(ObjectSerializer, IndentsByOneTabForEachLevelHoweverDeep) {
    const Maker maker;
    KORVAHierarchicalParmValueItem root;
    KORVAHierarchicalParmValueItem* parent = &root;
    for (int i = 1; i < 1300; ++i) {
        auto* const child = maker.make<KORVAHierarchicalParmValueItem>();
        parent->getSubNodes().push_back(child);
        parent = child;
    }
    const std::string written = element(root, "bus:root");
    std::size_t line = 0;
    std::size_t start = 0;
    std::size_t innermost = 0;
    while (start != written.size()) {
        const std::size_t tabs = written.find_first_not_of('\t', start) - start;
        innermost = std::max(innermost, tabs);
        const std::size_t lines = 2599;  // down to the innermost and up again, less one
        ASSERT_EQ(tabs, line < 2600 ? line : 2 * lines - line) << "line " << line;
        start = written.find('\n', start) + 1;
        ++line;
    }
    EXPECT_EQ(innermost, 2599u);
    EXPECT_EQ(line, 2 * 2599u + 1);
}

// Types that cannot be written.

TEST(ObjectSerializer, ATypeWithoutATextIsAnAssertion) {
    const char* const expected =
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");";
    const KORVA_CharStreamable streamable;
    EXPECT_ASSERTION(element(&streamable, KORVASchemaTypeI::eCharStreamable), expected);
    EXPECT_ASSERTION(element(nullptr, static_cast<ObjectType>(123456789)), expected);
}

// Factory.

TEST(ObjectSerializerFactory, MakesASoapSerializerWithItsDefaults) {
    KORVAObjectSerializerFactory& factory = KORVAObjectSerializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVAObjectSerializerFactory::getInstance());
    KORVAObjectSerializerI* const serializer = factory.create();
    EXPECT_NE(dynamic_cast<KORVASOAPSerializer*>(serializer), nullptr);
    CollectingStream stream;
    const KORVAPermission permission;
    serializer->serialize(&permission, permission.getObjectType(), "bus:permission", stream);
    EXPECT_NE(stream.text.find("<bus:permission xmlns:SOAP-ENC="), std::string::npos);
    EXPECT_EQ(stream.text.find("xsi:nil"), std::string::npos);
    factory.destroy(serializer);
}

TEST(ObjectSerializerFactory, IgnoresNull) {
    const std::size_t live = korva::test::liveAllocations();
    EXPECT_NO_THROW(KORVAObjectSerializerFactory::getInstance().destroy(nullptr));
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

}  // namespace
