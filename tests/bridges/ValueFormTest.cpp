// The forms that documents in memory and events have in common.
#include "tests/bridges/Outline.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/FreeObject.h"
#include "tests/support/TestStreams.h"

#include <brim/BRIMGZIPOutputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADecimalProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAHalyardHeaderExtension1.h>
#include <korva/KORVAHierarchicalParmValueItem.h>
#include <korva/KORVAHierarchicalParmValueItemArray.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVATimeProp.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using korva::test::FreeObject;
using korva::test::TextStreamable;
using korva::test::ToDocument;
using korva::test::ToEvents;
using korva::test::write;
using ObjectType = KORVASchemaTypeI::ObjectType;

void* text(const char* value) {
    return const_cast<char*>(value);
}

/// Writes byte by byte, so that every character beyond ASCII is cut.
class ByteWise : public KORVA_Streamable {
public:
    explicit ByteWise(std::string bytes) : m_bytes(std::move(bytes)) {}

    long long read(char*, std::size_t) override { return 0; }
    BRIMOutputStream& operator>>(BRIMOutputStream& out) const override {
        for (const char& byte : m_bytes)
            out.write(&byte, 1);
        return out;
    }

private:
    std::string m_bytes;
};

template <class Bridge>
class ValueForm : public testing::Test {
protected:
    static std::string form(const void* object, ObjectType type, const char* name = "value") {
        return Bridge::write(object, type, name);
    }
    static std::string form(const KORVASchemaTypeI& object) { return write<Bridge>(object); }
};

using Bridges = testing::Types<ToDocument, ToEvents>;
TYPED_TEST_SUITE(ValueForm, Bridges);

#define FORM(...) (TestFixture::form(__VA_ARGS__))

TYPED_TEST(ValueForm, TextsStandAsTheyAre) {
    const std::string longText(10000, 'x');
    EXPECT_EQ(FORM("a<b \r\n\t", KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">a<b \r\n\t</bus:value>");
    EXPECT_EQ(FORM("", KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\"></bus:value>");
    EXPECT_EQ(FORM("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80</bus:value>");
    EXPECT_EQ(FORM(longText.c_str(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">" + longText + "</bus:value>");
}

TYPED_TEST(ValueForm, TimesDatesAndQualifiedNamesAreTexts) {
    for (const auto& [type, name] : {std::pair{KORVASchemaTypeI::eTime, "time"},
                                     {KORVASchemaTypeI::eDateTime, "dateTime"},
                                     {KORVASchemaTypeI::eQName, "QName"}})
        EXPECT_EQ(FORM("11:20", type),
                  std::string("<bus:value xsi:type=\"xs:") + name + "\">11:20</bus:value>");
    KORVATimeProp time;
    time.setValue("11:20:31");
    EXPECT_EQ(FORM(time),
              "<bus:value xsi:type=\"bus:timeProp\"><bus:value xsi:type=\"xs:time\">11:20:31"
              "</bus:value></bus:value>");
}

TYPED_TEST(ValueForm, IntegersAreDecimalDigits) {
    const int values[] = {42, -2147483647 - 1};
    EXPECT_EQ(FORM(&values[0], KORVASchemaTypeI::eInt),
              "<bus:value xsi:type=\"xs:int\">42</bus:value>");
    EXPECT_EQ(FORM(&values[1], KORVASchemaTypeI::eInteger),
              "<bus:value xsi:type=\"xs:integer\">-2147483648</bus:value>");
}

TYPED_TEST(ValueForm, AFloatHasTwoDecimalsAndABlankBehindIt) {
    const float value = 1.5F;
    EXPECT_EQ(FORM(&value, KORVASchemaTypeI::eFloat),
              "<bus:value xsi:type=\"xs:float\">1.50 </bus:value>");
    KORVADecimalProp decimal;
    decimal.setValue(-1234.567F);
    EXPECT_EQ(FORM(decimal),
              "<bus:value xsi:type=\"bus:decimalProp\"><bus:value xsi:type=\"xs:decimal\">-1234.57 "
              "</bus:value></bus:value>");
}

TYPED_TEST(ValueForm, BooleansAreWords) {
    const bool yes = true;
    const bool no = false;
    EXPECT_EQ(FORM(&yes, KORVASchemaTypeI::eBoolean),
              "<bus:value xsi:type=\"xs:boolean\">true</bus:value>");
    EXPECT_EQ(FORM(&no, KORVASchemaTypeI::eBoolean),
              "<bus:value xsi:type=\"xs:boolean\">false</bus:value>");
    const unsigned char byte = 2;
    EXPECT_EQ(FORM(&byte, KORVASchemaTypeI::eBoolean),
              "<bus:value xsi:type=\"xs:boolean\">true</bus:value>");
}

TYPED_TEST(ValueForm, CompressedBinariesAreExpandedAsOftenAsTheyAreWritten) {
    BRIMMemoryOutputStream packed;
    BRIMGZIPOutputStream gzip(packed);
    gzip.write("hello", 5);
    gzip.close();
    const TextStreamable source(std::string(packed.str(), packed.pcount()));
    KORVAXSBase64Compressed value;
    value.reference(source, true);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(FORM(&value, KORVASchemaTypeI::eBase64Binary),
                  "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>");
        korva::test::CollectingStream wire;
        KORVASOAPSerializer serializer;
        serializer.setWriteNamespaceDeclarations(false);
        serializer.serialize(&value, KORVASchemaTypeI::eBase64Binary, "bus:value", wire);
        EXPECT_EQ(wire.text, "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>\n");
    }
}

TYPED_TEST(ValueForm, BinariesAreTheirTextInBase64) {
    const KORVAXSBase64Binary value("hello", 5);
    EXPECT_EQ(FORM(&value, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>");
    const KORVAXSBase64Binary empty;
    EXPECT_EQ(FORM(&empty, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\"></bus:value>");
    const TextStreamable source("hello");
    KORVAXSBase64Binary streamed;
    streamed.reference(source);
    EXPECT_EQ(FORM(&streamed, KORVASchemaTypeI::eBase64Binary),
              "<bus:value xsi:type=\"xs:base64Binary\">aGVsbG8=</bus:value>");
}

TYPED_TEST(ValueForm, StreamedTextsAreReadOut) {
    const std::string pieces = "a<\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80.";
    const ByteWise source(pieces);
    KORVA_CharStreamable first;
    first.initialize(source, false);
    KORVA_CharStreamable second;
    second.initialize("end", false);
    first.append(second);
    EXPECT_EQ(FORM(first.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">" + pieces + "end</bus:value>");
}

TYPED_TEST(ValueForm, StreamedTextsInBase64AreEncoded) {
    KORVA_CharStreamable streamable;
    streamable.initialize("hello", true);
    EXPECT_EQ(FORM(streamable.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value xsi:type=\"xs:string\">aGVsbG8=</bus:value>");
}

TYPED_TEST(ValueForm, ACharacterThatIsCutOffIsReplacedOnDemandAndRefusedOtherwise) {
    const auto replaced = [](const char* text) {
        return TypeParam::write(text, KORVASchemaTypeI::eString, "value", true);
    };
    for (const char* const cut : {"\xC3", "\xE2\x82", "\xF0\x9F\x98"}) {
        const std::string text = std::string("a") + cut;
        const ByteWise source(text);
        KORVA_CharStreamable streamable;
        streamable.initialize(source, false);
        const std::string whole = replaced(text.c_str());
        EXPECT_EQ(replaced(streamable.asCharStar()), whole);
        EXPECT_NE(whole.find("a\xEF\xBF\xBD"), std::string::npos) << whole;
        EXPECT_THROW(FORM(text.c_str(), KORVASchemaTypeI::eString), KORVAException);
        EXPECT_THROW(FORM(streamable.asCharStar(), KORVASchemaTypeI::eString), KORVAException);
    }
    const ByteWise source("\xE2\x82x\x80\xC3\xC3\xA4");
    KORVA_CharStreamable streamable;
    streamable.initialize(source, false);
    EXPECT_EQ(replaced(streamable.asCharStar()), replaced("\xE2\x82x\x80\xC3\xC3\xA4"));
}

TYPED_TEST(ValueForm, AContentIdIsAReferenceWithoutText) {
    KORVA_CharStreamable streamable;
    streamable.initialize("a&b", false);
    streamable.setIsContentId(true);
    EXPECT_EQ(FORM(streamable.asCharStar(), KORVASchemaTypeI::eString),
              "<bus:value href=\"cid:a&b\" xsi:type=\"xs:string\"></bus:value>");
    KORVASearchPathSingleObject path;
    path.setValue(streamable.asCharStar());
    EXPECT_EQ(FORM(path),
              "<bus:value href=\"cid:a&b\" xsi:type=\"bus:searchPathSingleObject\"></bus:value>");
    KORVAXSBase64Binary binary("abc", 3);
    binary.setIsContentId(true);
    EXPECT_EQ(FORM(&binary, KORVASchemaTypeI::eBase64Binary),
              "<bus:value href=\"cid:abc\" xsi:type=\"xs:base64Binary\"></bus:value>");
    KORVAXSBase64Binary empty;
    empty.setIsContentId(true);
    EXPECT_EQ(FORM(&empty, KORVASchemaTypeI::eBase64Binary),
              "<bus:value href=\"cid:\" xsi:type=\"xs:base64Binary\"></bus:value>");
}

TYPED_TEST(ValueForm, UnsetChildrenAreLeftOut) {
    KORVAPermission permission;
    EXPECT_EQ(FORM(permission), "<bus:value xsi:type=\"bus:permission\"></bus:value>");
    permission.setName("read");
    EXPECT_EQ(FORM(permission),
              "<bus:value xsi:type=\"bus:permission\"><bus:name xsi:type=\"xs:string\">read"
              "</bus:name></bus:value>");
}

TYPED_TEST(ValueForm, ObjectsWithoutChildNamesAreEmpty) {
    EXPECT_EQ(FORM(KORVAHalyardHeaderExtension1()),
              "<bus:value xsi:type=\"bus:halyardHeaderExtension1\"></bus:value>");
    EXPECT_EQ(FORM(KORVAUnknownSchemaType()), "<bus:value xsi:type=\"_unknown\"></bus:value>");
}

TYPED_TEST(ValueForm, EnumerationsAndRestrictedStringsAreTheirText) {
    KORVASeverityEnum severity;
    severity.setValue(KORVASeverityEnum::eKORVAInfo);
    EXPECT_EQ(FORM(severity), "<bus:value xsi:type=\"bus:severityEnum\">info</bus:value>");
    KORVASearchPathSingleObject path;
    EXPECT_EQ(FORM(path), "<bus:value xsi:type=\"bus:searchPathSingleObject\"></bus:value>");
    path.setValue("/content");
    EXPECT_EQ(FORM(path),
              "<bus:value xsi:type=\"bus:searchPathSingleObject\">/content</bus:value>");
}

TYPED_TEST(ValueForm, ArraysTellTypeAndNumberOfTheirEntries) {
    KORVAPermission permission;
    permission.setName("read");
    KORVAPermissionArray array;
    EXPECT_EQ(FORM(array),
              "<bus:value SOAP-ENC:arrayType=\"bus:permission[0]\" "
              "xsi:type=\"SOAP-ENC:Array\"></bus:value>");
    array.push_back(&permission);
    EXPECT_EQ(FORM(array),
              "<bus:value SOAP-ENC:arrayType=\"bus:permission[1]\" xsi:type=\"SOAP-ENC:Array\">"
              "<item xsi:type=\"bus:permission\"><bus:name xsi:type=\"xs:string\">read</bus:name>"
              "</item></bus:value>");
}

TYPED_TEST(ValueForm, NullEntriesCountButHaveNoElement) {
    KORVAStringArray array;
    array.push_back("a");
    array.push_back(nullptr);
    array.push_back("c");
    EXPECT_EQ(FORM(array),
              "<bus:value SOAP-ENC:arrayType=\"xs:string[3]\" xsi:type=\"SOAP-ENC:Array\">"
              "<item xsi:type=\"xs:string\">a</item><item xsi:type=\"xs:string\">c</item>"
              "</bus:value>");
}

TYPED_TEST(ValueForm, ANullArrayIsAnArrayWithoutSizeAndWithoutNil) {
    EXPECT_EQ(FORM(nullptr, KORVASchemaTypeI::eKORVAPermissionArray),
              "<bus:value SOAP-ENC:arrayType=\"bus:permission[]\" "
              "xsi:type=\"SOAP-ENC:Array\"></bus:value>");
    const FreeObject object({{"policies", KORVASchemaTypeI::eKORVAPolicyArray, nullptr}});
    EXPECT_EQ(FORM(object),
              "<bus:value xsi:type=\"bus:folder\"><bus:policies "
              "SOAP-ENC:arrayType=\"bus:policy[]\" xsi:type=\"SOAP-ENC:Array\"></bus:policies>"
              "</bus:value>");
}

TYPED_TEST(ValueForm, ADerivedObjectHasItsOwnType) {
    KORVAFolder folder;
    KORVABaseClassArrayProp prop;
    prop.getValue().push_back(&folder);
    EXPECT_NE(FORM(prop).find("<item xsi:type=\"bus:folder\">"), std::string::npos) << FORM(prop);
}

TYPED_TEST(ValueForm, TheTopElementHasTheTypeThatTheCallerNames) {
    const KORVAFolder folder;
    EXPECT_EQ(FORM(&folder, KORVASchemaTypeI::eKORVABaseClass)
                  .rfind("<bus:value xsi:type=\"bus:baseClass\">", 0),
              0u);
}

TYPED_TEST(ValueForm, TextsAndChildrenKeepTheirOrder) {
    int number = 7;
    const FreeObject mixed(
        {{"", KORVASchemaTypeI::eString, text("a<b")}, {"count", KORVASchemaTypeI::eInt, &number}});
    EXPECT_EQ(FORM(mixed),
              "<bus:value xsi:type=\"bus:folder\">a<b<bus:count xsi:type=\"xs:int\">7</bus:count>"
              "</bus:value>");
    const FreeObject missing(
        {{"", KORVASchemaTypeI::eString, nullptr}, {"count", KORVASchemaTypeI::eInt, &number}});
    EXPECT_EQ(FORM(missing),
              "<bus:value xsi:type=\"bus:folder\"><bus:count xsi:type=\"xs:int\">7</bus:count>"
              "</bus:value>");
}

TYPED_TEST(ValueForm, TextContentOfAnotherTypeThanStringIsAnAssertion) {
    int number = 1;
    const FreeObject object({{"", KORVASchemaTypeI::eInt, &number}});
    EXPECT_ASSERTION(FORM(object),
                     "ZEL_ASSERT_NAMED(childObjType == KORVASchemaTypeI::eString, "
                     "\"Conversion of text not currently supported.\");");
}

TYPED_TEST(ValueForm, ANullObjectIsAnAssertion) {
    EXPECT_ASSERTION(FORM(nullptr, KORVASchemaTypeI::eKORVAFolder), "ZEL_ASSERT(obj);");
    EXPECT_ASSERTION(FORM(nullptr, KORVASchemaTypeI::eString), "ZEL_ASSERT(obj);");
}

TYPED_TEST(ValueForm, ANullNameIsAnAssertion) {
    EXPECT_ASSERTION(FORM("a", KORVASchemaTypeI::eString, nullptr), "ZEL_ASSERT(name);");
}

TYPED_TEST(ValueForm, ATypeWithoutATextIsAnAssertion) {
    constexpr const char* unknown =
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");";
    EXPECT_ASSERTION(FORM("a", KORVASchemaTypeI::eCharStreamable), unknown);
    const KORVAFolder folder;
    EXPECT_ASSERTION(FORM(&folder, static_cast<ObjectType>(4711)), unknown);
}

TYPED_TEST(ValueForm, AnEnumerationWithoutAValueIsAnAssertion) {
    EXPECT_ASSERTION(FORM(KORVASeverityEnum()),
                     "ZEL_ASSERT_NAMED(m_value != KORVASeverityEnum::eKOVRAUninitialized, "
                     "\"Enum not initialized.\");");
}

}  // namespace
