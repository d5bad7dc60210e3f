// From the second model into this library's one, case by case.
#include "tests/bridges/Conversions.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/tarn/TarnObjects.h"

#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <korva/KORVAPolicy.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringArrayProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATARNObjectDeserializerFactory.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <tarn/TARN_Streamable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using namespace korva::test;

/// The deserializer with its parts open.
class Deserializer : public KORVATARNObjectDeserializer {
public:
    using KORVATARNObjectDeserializer::copyArrayType;
    using KORVATARNObjectDeserializer::copyBase64Type;
    using KORVATARNObjectDeserializer::copyCharStreamable;
    using KORVATARNObjectDeserializer::copyChild;
    using KORVATARNObjectDeserializer::copyChildren;
    using KORVATARNObjectDeserializer::copyGeneratedType;
    using KORVATARNObjectDeserializer::copyNativeType;
    using KORVATARNObjectDeserializer::copyStringType;
    using KORVATARNObjectDeserializer::copyStringValue;
    using KORVATARNObjectDeserializer::copyUndocumentedFaultDetail;
    using KORVATARNObjectDeserializer::createKORVAFromTARN;
    using KORVATARNObjectDeserializer::createKORVAObject;
    using KORVATARNObjectDeserializer::getChildObject;
    using KORVATARNObjectDeserializer::getKORVATypeFromTARN;
};

class StreamedBytes : public TARN_Streamable {
public:
    explicit StreamedBytes(std::string bytes) : m_bytes(std::move(bytes)) {}
    BRIMOutputStream& operator>>(BRIMOutputStream& out) const override {
        out.write(m_bytes.data(), m_bytes.size());
        return out;
    }

private:
    const std::string m_bytes;
};

class TarnDeserializer : public testing::Test {
protected:
    template <class X>
    X& read(const TARNSchemaTypeI& object) {
        return dynamic_cast<X&>(*fromTarn(object, *registry));
    }

    void copyNative(int type, void* value) {
        KORVAStringProp target;
        Deserializer().copyNativeType(target, "value", static_cast<TarnType>(type), value,
                                      *registry);
    }

    TarnObjects tarn;
    const Registry registry = makeRegistry();
};

TEST_F(TarnDeserializer, ANullObjectIsAnAssertion) {
    EXPECT_ASSERTION(KORVATARNObjectDeserializer().deserialize(nullptr, *registry),
                     "ZEL_ASSERT(object);");
}

TEST_F(TarnDeserializer, AnUnsetChildIsNotCopied) {
    const auto& copy = read<KORVAPermission>(tarn.make("permission"));
    EXPECT_EQ(copy.getName(), nullptr);
    EXPECT_EQ(copy.getAccess(), nullptr);
    EXPECT_EQ(registry->size(), 1u);
}

TEST_F(TarnDeserializer, WhatIsCopiedOutlivesTheSourcesRegistry) {
    TARNSchemaTypeI& source = tarn.make("base64BinaryProp");
    std::string bytes("a\0b", 3);
    source.setChildObject("value", &tarn.binary(bytes), TARNSchemaTypeI::eBase64Binary, nullptr);
    TARNSchemaTypeI& text = tarn.make("permission");
    tarn.setText(text, "name", "read");
    const KORVAXSBase64Binary& value = *read<KORVABase64BinaryProp>(source).getValue();
    const char* const name = read<KORVAPermission>(text).getName();
    tarn.registry->clean();
    std::fill(bytes.begin(), bytes.end(), '-');
    EXPECT_EQ(std::string(value.str(), value.pcount()), std::string("a\0b", 3));
    EXPECT_STREQ(name, "read");
}

TEST_F(TarnDeserializer, AnArrayAsTheSourceIsFilled) {
    TARNSchemaTypeI& source = tarn.make("permissionArray");
    tarn.setText(tarn.addChild(source, "any", tarnType("permission")), "name", "a");
    tarn.setText(tarn.addChild(source, "any", tarnType("permission")), "name", "b");
    const auto& copy = read<KORVAPermissionArray>(source);
    ASSERT_EQ(copy.size(), 2u);
    EXPECT_STREQ(copy.at(0)->getName(), "a");
    EXPECT_STREQ(copy.at(1)->getName(), "b");
}

TEST_F(TarnDeserializer, ArraysOfValuesAndTextsAreFilled) {
    TARNSchemaTypeI& numbers = tarn.make("intArray");
    for (int number : {-1, 7})
        numbers.setChildObject("any", &number, TARNSchemaTypeI::eInt, nullptr);
    const auto& copy = read<KORVAIntArray>(numbers);
    ASSERT_EQ(copy.size(), 2u);
    EXPECT_EQ(copy.at(0), -1);
    EXPECT_EQ(copy.at(1), 7);
    TARNSchemaTypeI& texts = tarn.make("stringArray");
    tarn.setText(texts, "any", "a");
    EXPECT_STREQ(read<KORVAStringArray>(texts).at(0), "a");
}

TEST_F(TarnDeserializer, NullEntriesOfArraysAreSkipped) {
    int seven = 7;
    const FreeTarnObject source(tarnType("intArray"), {{"1", TARNSchemaTypeI::eInt, nullptr},
                                                       {"2", TARNSchemaTypeI::eInt, &seven}});
    const auto& copy = read<KORVAIntArray>(source);
    ASSERT_EQ(copy.size(), 1u);
    EXPECT_EQ(copy.at(0), 7);
}

TEST_F(TarnDeserializer, NullChildrenAreSkippedAndUnknownOnesIgnored) {
    TARNSchemaTypeI& entries = tarn.make("permissionArray");
    int number = 1;
    const FreeTarnObject source(tarnType("permission"),
                                {{"name", TARNSchemaTypeI::eString, nullptr},
                                 {"nobody knows", TARNSchemaTypeI::eInt, &number},
                                 {"nobody knows either", tarnType("permissionArray"), &entries}});
    EXPECT_EQ(read<KORVAPermission>(source).getName(), nullptr);
}

TEST_F(TarnDeserializer, StreamedTextIsReadOutAndStaysStreamed) {
    TARNSchemaTypeI& source = tarn.make("stringProp");
    TARN_CharStreamable& id = tarn.streamed("part-1");
    id.setIsContentId(true);
    source.setChildObject("value", &id, TARNSchemaTypeI::eCharStreamable, nullptr);
    const char* const copy = read<KORVAStringProp>(source).getValue();
    ASSERT_TRUE(KORVA_CharStreamable::isCharStreamable(copy));
    const KORVA_CharStreamable streamable(copy);
    EXPECT_STREQ(streamable.getData(), "part-1");
    EXPECT_NE(streamable.getData(), id.getData());
    EXPECT_TRUE(streamable.getIsContentId());
}

TEST_F(TarnDeserializer, StreamedTextInAnArrayIsRefused) {
    TARNSchemaTypeI& source = tarn.make("stringArrayProp");
    auto& texts = *static_cast<TARNSchemaTypeI*>(source.getChildObject("value", true));
    texts.setChildObject("item", &tarn.streamed("text"), TARNSchemaTypeI::eCharStreamable, nullptr);
    EXPECT_THROW(read<KORVAStringArrayProp>(source), ZELAssertError);
}

TEST_F(TarnDeserializer, AValueDeclaredAsStreamedTextTakesThePathOfTexts) {
    KORVAStringProp target;
    Deserializer().copyNativeType(target, "value", TARNSchemaTypeI::eCharStreamable,
                                  const_cast<char*>("plain"), *registry);
    EXPECT_STREQ(target.getValue(), "plain");
}

TEST_F(TarnDeserializer, AStreamedBinaryIsReadOut) {
    const StreamedBytes streamed(std::string(5000, 'x'));
    TARNBase64Binary& bytes = tarn.binary("");
    bytes.reference(streamed);
    TARNSchemaTypeI& source = tarn.make("base64BinaryProp");
    source.setChildObject("value", &bytes, TARNSchemaTypeI::eBase64Binary, nullptr);
    const KORVAXSBase64Binary& copy = *read<KORVABase64BinaryProp>(source).getValue();
    EXPECT_EQ(std::string(copy.str(), copy.pcount()), std::string(5000, 'x'));
}

TEST_F(TarnDeserializer, AnEmptyBinaryRefersToNothing) {
    TARNSchemaTypeI& source = tarn.make("base64BinaryProp");
    source.setChildObject("value", &tarn.binary(""), TARNSchemaTypeI::eBase64Binary, nullptr);
    const KORVAXSBase64Binary& copy = *read<KORVABase64BinaryProp>(source).getValue();
    EXPECT_EQ(copy.str(), nullptr);
    EXPECT_EQ(copy.pcount(), 0u);
}

TEST_F(TarnDeserializer, ABinarysContentIdFlagIsCopied) {
    TARNBase64Binary& id = tarn.binary("part-1");
    id.setIsContentId(true);
    TARNSchemaTypeI& source = tarn.make("base64BinaryProp");
    source.setChildObject("value", &id, TARNSchemaTypeI::eBase64Binary, nullptr);
    EXPECT_TRUE(read<KORVABase64BinaryProp>(source).getValue()->getIsContentId());
}

TEST_F(TarnDeserializer, AnUnknownWordOfAnEnumerationIsRefused) {
    TARNSchemaTypeI& source = tarn.make("severityEnum");
    tarn.setText(source, "", "dreadful");
    EXPECT_NUMBERED(read<KORVASeverityEnum>(source), 0xEA45DC29U, "_stringToEnum()",
                    "severityEnum:dreadful");
    EXPECT_EQ(registry->size(), 2u);
}

TEST_F(TarnDeserializer, AnEnumerationWithoutAWordStaysWithoutAValue) {
    EXPECT_EQ(read<KORVASeverityEnum>(tarn.make("severityEnum")).getValue(),
              KORVASeverityEnum().getValue());
}

TEST_F(TarnDeserializer, AnUnknownTypeIsAnAssertion) {
    const FreeTarnObject unknown(TARNSchemaTypeI::e_Unknown, {});
    EXPECT_ASSERTION(fromTarn(unknown, *registry),
                     "ZEL_ASSERT(tarnType != TARNSchemaTypeI::e_Unknown);");
    EXPECT_ASSERTION(Deserializer().getKORVATypeFromTARN(unknown),
                     "ZEL_ASSERT(tarnType != TARNSchemaTypeI::e_Unknown);");
    const FreeTarnObject without(static_cast<TarnType>(4711), {});
    EXPECT_ASSERTION(fromTarn(without, *registry), "ZEL_ASSERT(tarnXsiType);");
}

TEST_F(TarnDeserializer, TheReservedTypeIsAnAssertion) {
    const FreeTarnObject reserved(TARNSchemaTypeI::eTARNReserved, {});
    EXPECT_ASSERTION(fromTarn(reserved, *registry), "ZEL_ASSERT(false);");
    int value = 0;
    const FreeTarnObject holder(tarnType("permission"),
                                {{"name", TARNSchemaTypeI::eTARNReserved, &value}});
    EXPECT_ASSERTION(fromTarn(holder, *registry), "ZEL_ASSERT_NAMED(false, \"Unexpectd type\");");
}

TEST_F(TarnDeserializer, AFaultClassAsANativeValueIsAnAssertion) {
    int value = 0;
    for (const int type : {12, 13, 14})
        EXPECT_ASSERTION(copyNative(type, &value), "ZEL_ASSERT_NAMED(false, \"Not implemented\");");
}

TEST_F(TarnDeserializer, AnyOtherTypeAsANativeValueIsAnAssertion) {
    int value = 0;
    // 11 is no type of the second model.
    for (const int type : {0, 11, 15, 4711})
        EXPECT_ASSERTION(copyNative(type, &value), "ZEL_ASSERT_NAMED(false, \"Unexpectd type\");");
}

TEST_F(TarnDeserializer, EachPartCanBeUsedByItself) {
    const Deserializer deserializer;
    TARNSchemaTypeI& permission = tarn.make("permission");
    tarn.setText(permission, "name", "a");
    TARNSchemaTypeI& permissions = tarn.make("permissionArray");
    permissions.setChildObject("any", &permission, tarnType("permission"), nullptr);

    EXPECT_EQ(deserializer.getKORVATypeFromTARN(permission), KORVASchemaTypeI::eKORVAPermission);
    EXPECT_STREQ(
        static_cast<KORVAPermission*>(deserializer.createKORVAFromTARN(permission, *registry))
            ->getName(),
        "a");
    auto& target = static_cast<KORVAPermission&>(
        *deserializer.createKORVAObject(KORVASchemaTypeI::eKORVAPermission, *registry));
    deserializer.copyChildren(permission, target, *registry);
    EXPECT_STREQ(target.getName(), "a");
    deserializer.copyStringType(target, "name", "b", *registry);
    EXPECT_STREQ(target.getName(), "b");
    KORVASchemaTypeI::ObjectType type{};
    deserializer.copyStringValue("c", type, *registry);
    EXPECT_EQ(type, KORVASchemaTypeI::eString);
    EXPECT_TRUE(KORVA_CharStreamable::isCharStreamable(
        deserializer.copyCharStreamable(tarn.streamed("d").asCharStar(), *registry)));

    KORVAPolicy policy;
    deserializer.copyArrayType(policy, "permissions", &permissions, *registry);
    deserializer.copyChild(policy, "permissions", tarnType("permissionArray"), &permissions,
                           *registry);
    ASSERT_EQ(policy.getPermissions().size(), 2u);
    EXPECT_STREQ(policy.getPermissions().at(1)->getName(), "a");
    deserializer.copyGeneratedType(policy.getPermissions(), "any", &permission, *registry);
    EXPECT_EQ(policy.getPermissions().size(), 3u);

    KORVABase64BinaryProp prop;
    deserializer.copyBase64Type(prop, "value", &tarn.binary("xyz"), *registry);
    EXPECT_EQ(prop.getValue()->pcount(), 3u);
}

TEST_F(TarnDeserializer, OnlyAFaultMakesArraysForDetails) {
    const Deserializer deserializer;
    KORVASOAPFault fault;
    KORVASchemaTypeI* const detail = deserializer.getChildObject(fault, "detail", *registry);
    EXPECT_EQ(static_cast<KORVASchemaTypeI*>(
                  static_cast<KORVA_ArrayObject*>(fault.getChildObject("detail", false))),
              detail);
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
    // The same texts at another place are the same names.
    const std::string name = "undocumentedDetail";
    const KORVASchemaTypeI* const undocumented =
        deserializer.getChildObject(fault, name.c_str(), *registry);
    EXPECT_EQ(fault.getUndocumentedDetail(), undocumented);
    EXPECT_EQ(registry->size(), 2u);
    EXPECT_NUMBERED(deserializer.getChildObject(fault, "undocumentedDetails", *registry),
                    0xEA41BF21U, "KORVASOAPFault::getChildObject", "undocumentedDetails", "Fault");

    KORVAPolicy policy;
    EXPECT_EQ(deserializer.getChildObject(policy, "permissions", *registry),
              &policy.getPermissions());
    EXPECT_EQ(deserializer.getChildObject(policy, "detail", *registry), nullptr);
    EXPECT_EQ(registry->size(), 2u);
}

TEST_F(TarnDeserializer, AnUndocumentedDetailMayStandAlone) {
    TARNSchemaTypeI& source = tarn.make(TARNSchemaTypeI::eTARNUndocumentedFaultDetail);
    tarn.setText(source, "severity", "error");
    tarn.setText(tarn.addChild(*childOf(source, "message"), "any", tarnType("message")),
                 "messageString", "It failed.");
    const auto& copy = read<KORVAUndocumentedFaultDetail>(source);
    EXPECT_STREQ(copy.getSeverity(), "error");
    EXPECT_EQ(copy.getErrorCodeString(), nullptr);
    ASSERT_EQ(copy.getMessage().size(), 1u);
    EXPECT_STREQ(copy.getMessage().at(0)->getMessageString(), "It failed.");

    KORVAUndocumentedFaultDetail target;
    Deserializer().copyUndocumentedFaultDetail(source, target, *registry);
    EXPECT_TRUE(target == copy);

    TARNSchemaTypeI& array = tarn.make(TARNSchemaTypeI::eTARNUndocumentedFaultDetailArray);
    array.setChildObject("any", &source, source.getObjectType(), nullptr);
    const auto& copies = read<KORVAUndocumentedFaultDetailArray>(array);
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_TRUE(*copies.at(0) == copy);
}

TEST_F(TarnDeserializer, TheFactoryMakesOne) {
    auto& factory = KORVATARNObjectDeserializerFactory::getInstance();
    KORVATARNObjectDeserializerI* const deserializer = factory.create();
    EXPECT_EQ(deserializer->deserialize(&tarn.make("permission"), *registry)->getObjectType(),
              KORVASchemaTypeI::eKORVAPermission);
    factory.destroy(deserializer);
    factory.destroy(nullptr);
}

}  // namespace
