// From this library's model into the second one, case by case.
#include "tests/bridges/Conversions.h"
#include "tests/soap/ElementWriting.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/FreeObject.h"
#include "tests/tarn/TarnObjects.h"

#include <brim/BRIMGZIPOutputStream.h>
#include <korva/KORVAAccessEnum.h>
#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATARNObjectSerializerFactory.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_CharStreamable.h>
#include <tarn/TARNTypeError.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>
#include <thread>

namespace {

using namespace korva::test;

/// The serializer with its parts open.
class Serializer : public KORVATARNObjectSerializer {
public:
    using KORVATARNObjectSerializer::copyArrayType;
    using KORVATARNObjectSerializer::copyBase64Type;
    using KORVATARNObjectSerializer::copyCharStreamable;
    using KORVATARNObjectSerializer::copyChild;
    using KORVATARNObjectSerializer::copyChildren;
    using KORVATARNObjectSerializer::copyGeneratedType;
    using KORVATARNObjectSerializer::copyNativeType;
    using KORVATARNObjectSerializer::copyStringType;
    using KORVATARNObjectSerializer::copyStringValue;
    using KORVATARNObjectSerializer::createTARNFromKORVA;
    using KORVATARNObjectSerializer::createTARNObject;
    using KORVATARNObjectSerializer::getTarnTypeFromKORVA;
};

class TarnSerializer : public testing::Test {
protected:
    TARNSchemaTypeI& serialize(const KORVASchemaTypeI& object) {
        return *toTarn(object, tarn.registry);
    }

    void copyNative(int type, void* value) {
        Serializer().copyNativeType(tarn.make("stringProp"), "value",
                                    static_cast<KORVASchemaTypeI::ObjectType>(type), value,
                                    *tarn.registry);
    }

    TarnObjects tarn;
};

TEST_F(TarnSerializer, ANullObjectIsAnAssertion) {
    EXPECT_ASSERTION(KORVATARNObjectSerializer().serialize(nullptr, *tarn.registry),
                     "ZEL_ASSERT(object);");
}

TEST_F(TarnSerializer, AnUnsetChildIsNotCopied) {
    const KORVAPermission source;
    TARNSchemaTypeI& copy = serialize(source);
    EXPECT_EQ(copy.getChildObject("name", false), nullptr);
    EXPECT_EQ(copy.getChildObject("access", false), nullptr);
    EXPECT_EQ(tarn.registry->size(), 1u);
}

TEST_F(TarnSerializer, TextsAreCopied) {
    std::string name = "read";
    KORVAPermission source;
    source.setName(name.c_str());
    TARNSchemaTypeI& copy = serialize(source);
    std::fill(name.begin(), name.end(), '-');
    EXPECT_STREQ(textOf(copy, "name"), "read");
}

TEST_F(TarnSerializer, EverythingBelongsToTheRegistry) {
    KORVAPermission source;
    source.setName("read");
    const Maker maker;
    source.getAccess(maker.registry())->setValue("grant");
    serialize(source);
    // Two objects and two texts.
    EXPECT_EQ(tarn.registry->size(), 4u);
}

TEST_F(TarnSerializer, AnArrayAsTheSourceIsFilled) {
    KORVAPermission one;
    KORVAPermission other;
    one.setName("a");
    other.setName("b");
    KORVAPermissionArray source;
    source.push_back(&one);
    source.push_back(&other);
    TARNSchemaTypeI& copy = serialize(source);
    EXPECT_EQ(copy.getObjectType(), tarnType("permissionArray"));
    ASSERT_EQ(copy.getChildObjectCount(), 2u);
    EXPECT_STREQ(textOf(*childOf(copy, elementName(2)), "name"), "b");
}

TEST_F(TarnSerializer, NullEntriesOfArraysAreSkipped) {
    KORVAPermission permission;
    permission.setName("a");
    KORVAPermissionArray objects;
    objects.push_back(nullptr);
    objects.push_back(&permission);
    objects.push_back(nullptr);
    EXPECT_EQ(serialize(objects).getChildObjectCount(), 1u);
    KORVAStringArray texts;
    texts.push_back(nullptr);
    texts.push_back("b");
    TARNSchemaTypeI& copy = serialize(texts);
    ASSERT_EQ(copy.getChildObjectCount(), 1u);
    EXPECT_STREQ(textOf(copy, elementName(1)), "b");
}

TEST_F(TarnSerializer, EntriesAreWhatTheyAre) {
    KORVAFolder folder;
    KORVABaseClassArrayProp source;
    source.getValue().push_back(&folder);
    TARNSchemaTypeI& array = *childOf(serialize(source), "value");
    EXPECT_EQ(childOf(array, elementName(1))->getObjectType(), tarnType("folder"));
}

TEST_F(TarnSerializer, AnyByteButZeroIsTrue) {
    unsigned char two = 2;
    TARNSchemaTypeI& target = tarn.make("booleanProp");
    Serializer().copyNativeType(target, "value", KORVASchemaTypeI::eBoolean, &two, *tarn.registry);
    EXPECT_TRUE(*static_cast<bool*>(target.getChildObject("value", false)));
}

TEST_F(TarnSerializer, StreamedTextIsReadOutAndStaysStreamed) {
    const Maker maker;
    KORVA_CharStreamable tail;
    tail.initialize("end", false);
    auto& head = *maker.make<KORVA_CharStreamable>();
    const TextStreamable streamed("begin, ");
    head.initialize(streamed, false);
    head.append(tail);
    KORVAStringProp source;
    source.setValue(head.asCharStar());
    const char* const copy = textOf(serialize(source), "value");
    ASSERT_TRUE(TARN_CharStreamable::isCharStreamable(copy));
    const auto& read = *reinterpret_cast<const TARN_CharStreamable*>(copy);
    EXPECT_STREQ(read.getData(), "begin, end");
    EXPECT_FALSE(read.getIsContentId());
}

TEST_F(TarnSerializer, StreamedTextInBase64IsCopiedAsItIsWritten) {
    KORVA_CharStreamable source;
    source.initialize("abc", true);
    const auto& copy = *reinterpret_cast<const TARN_CharStreamable*>(
        Serializer().copyCharStreamable(source.asCharStar(), *tarn.registry));
    EXPECT_STREQ(copy.getData(), "YWJj");
    CollectingStream out;
    copy >> out;
    EXPECT_EQ(out.text, "YWJj");
}

TEST_F(TarnSerializer, ATextsContentIdFlagIsCopied) {
    KORVA_CharStreamable id;
    id.initialize("part-1", false);
    id.setIsContentId(true);
    KORVAStringProp source;
    source.setValue(id.asCharStar());
    const char* const copy = textOf(serialize(source), "value");
    EXPECT_TRUE(reinterpret_cast<const TARN_CharStreamable*>(copy)->getIsContentId());
}

TEST_F(TarnSerializer, ACopiedTextSaysWhatItIs) {
    TARNSchemaTypeI::ObjectType type{};
    void* const text = Serializer().copyStringValue("plain", type, *tarn.registry);
    EXPECT_EQ(type, TARNSchemaTypeI::eString);
    EXPECT_STREQ(static_cast<ZELByteBuffer*>(text)->str(), "plain");
    KORVA_CharStreamable empty;
    EXPECT_TRUE(TARN_CharStreamable::isCharStreamable(static_cast<char*>(
        Serializer().copyStringValue(empty.asCharStar(), type, *tarn.registry))));
    EXPECT_EQ(type, TARNSchemaTypeI::eCharStreamable);
}

TEST_F(TarnSerializer, BinaryBytesOutliveTheSourcesRegistry) {
    TARNSchemaTypeI* copy = nullptr;
    {
        const Maker maker;
        auto& bytes = *maker.make<KORVAXSBase64Binary>("a\0b", 3);
        KORVABase64BinaryProp source;
        source.setValue(&bytes);
        copy = &serialize(source);
    }
    const auto& value = *static_cast<TARNBase64Binary*>(copy->getChildObject("value", false));
    EXPECT_EQ(std::string(value.str(), value.pcount()), std::string("a\0b", 3));
}

TEST_F(TarnSerializer, AnEmptyBinaryRefersToNothing) {
    KORVAXSBase64Binary empty;
    KORVABase64BinaryProp source;
    source.setValue(&empty);
    const auto& value =
        *static_cast<TARNBase64Binary*>(serialize(source).getChildObject("value", false));
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), 0u);
}

TEST_F(TarnSerializer, AStreamedBinaryIsReadOut) {
    const TextStreamable streamed(std::string(5000, 'x'));
    KORVAXSBase64Binary bytes;
    bytes.reference(streamed);
    KORVABase64BinaryProp source;
    source.setValue(&bytes);
    const auto& value =
        *static_cast<TARNBase64Binary*>(serialize(source).getChildObject("value", false));
    EXPECT_EQ(value.streamable(), nullptr);
    EXPECT_EQ(std::string(value.str(), value.pcount()), std::string(5000, 'x'));
}

TEST_F(TarnSerializer, ACompressedBinaryIsExpandedEachTime) {
    CollectingStream compressed;
    BRIMGZIPOutputStream gzip(compressed);
    gzip.write("plain bytes", 11);
    gzip.close();
    const TextStreamable streamed(compressed.text);
    KORVAXSBase64Compressed bytes;
    bytes.reference(streamed, true);
    KORVABase64BinaryProp source;
    source.setValue(&bytes);
    for (int i = 0; i < 2; ++i) {
        const auto& value =
            *static_cast<TARNBase64Binary*>(serialize(source).getChildObject("value", false));
        EXPECT_EQ(std::string(value.str(), value.pcount()), "plain bytes");
    }
}

TEST_F(TarnSerializer, ABinarysContentIdFlagIsCopied) {
    KORVAXSBase64Binary id("part-1", 6);
    id.setIsContentId(true);
    KORVABase64BinaryProp source;
    source.setValue(&id);
    const auto& value =
        *static_cast<TARNBase64Binary*>(serialize(source).getChildObject("value", false));
    EXPECT_TRUE(value.getIsContentId());
    EXPECT_EQ(std::string(value.str(), value.pcount()), "part-1");
}

TEST_F(TarnSerializer, AClassThatStandsForAGeneratedOneIsAskedByName) {
    KORVAPermissionArray entries;
    KORVAPermission entry;
    entries.push_back(&entry);
    int number = 1;
    const FreeObject source(
        {{"policies", KORVASchemaTypeI::eKORVAPolicyArrayProp, nullptr},
         {"nobody knows", KORVASchemaTypeI::eInt, &number},
         {"nobody knows either", KORVASchemaTypeI::eKORVAPermissionArray, &entries}});
    TARNSchemaTypeI& copy = serialize(source);
    EXPECT_EQ(copy.getObjectType(), tarnType("folder"));
    EXPECT_EQ(copy.getChildObject("policies", false), nullptr);
}

TEST_F(TarnSerializer, AnUnknownTypeIsAnAssertion) {
    const KORVAUnknownSchemaType unknown;
    EXPECT_ASSERTION(serialize(unknown), "ZEL_ASSERT(korvaType != KORVASchemaTypeI::e_Unknown);");
    EXPECT_ASSERTION(Serializer().getTarnTypeFromKORVA(unknown),
                     "ZEL_ASSERT(korvaType != KORVASchemaTypeI::e_Unknown);");
    EXPECT_EQ(tarn.registry->size(), 0u);
}

TEST_F(TarnSerializer, AnEnumerationWithoutAValueIsAnAssertion) {
    EXPECT_ASSERTION(serialize(KORVASeverityEnum()),
                     "ZEL_ASSERT_NAMED(m_value != KORVASeverityEnum::eKOVRAUninitialized, "
                     "\"Enum not initialized.\");");
}

TEST_F(TarnSerializer, AFaultClassAsANativeValueIsAnAssertion) {
    int value = 0;
    for (const int type : {12, 13, 14})
        EXPECT_ASSERTION(copyNative(type, &value), "ZEL_ASSERT_NAMED(false, \"Not implemented\");");
}

TEST_F(TarnSerializer, AnyOtherTypeAsANativeValueIsAnAssertion) {
    int value = 0;
    for (const int type : {0, 15, 4711})
        EXPECT_ASSERTION(copyNative(type, &value), "ZEL_ASSERT_NAMED(false, \"Unexpectd type\");");
}

TEST_F(TarnSerializer, AnUndocumentedDetailIsNotWalkedOutsideItsFault) {
    EXPECT_ASSERTION(serialize(KORVAUndocumentedFaultDetail()),
                     "ZEL_ASSERT_NAMED(false, \"Unsupported.  KORVAUndocumentedFaultDetail objects "
                     "are serialized in doc/literal style.\");");
    EXPECT_ASSERTION(serialize(KORVAUndocumentedFaultDetailArray()),
                     "ZEL_ASSERT_NAMED(false, \"Unsupported.  KORVAUndocumentedFaultDetailArray "
                     "objects are serialized in doc/literal style.\");");
}

TEST_F(TarnSerializer, WhatWasMadeBeforeAFailureBelongsToTheRegistry) {
    KORVAPermission one;
    one.setName("a");
    const FreeObject source({{"owner", KORVASchemaTypeI::eKORVAPermission, &one}});
    // The child does not fit: a folder's owner is a property.
    EXPECT_THROW(serialize(source), TARNTypeError);
    EXPECT_EQ(tarn.registry->size(), 2u);
}

TEST_F(TarnSerializer, EachPartCanBeUsedByItself) {
    Serializer serializer;
    TARNObjectRegistryI& registry = *tarn.registry;
    KORVAPermission permission;
    permission.setName("a");
    KORVAPermissionArray permissions;
    permissions.push_back(&permission);

    EXPECT_EQ(serializer.getTarnTypeFromKORVA(permission), tarnType("permission"));
    EXPECT_STREQ(textOf(*serializer.createTARNFromKORVA(permission, registry), "name"), "a");
    TARNSchemaTypeI& target = *serializer.createTARNObject(tarnType("permission"), registry);
    serializer.copyChildren(permission, target, registry);
    EXPECT_STREQ(textOf(target, "name"), "a");
    serializer.copyStringType(target, "name", "b", registry);
    EXPECT_STREQ(textOf(target, "name"), "b");

    TARNSchemaTypeI& policy = tarn.make("policy");
    serializer.copyArrayType(policy, "permissions", &permissions, registry);
    serializer.copyChild(policy, "permissions", KORVASchemaTypeI::eKORVAPermissionArray,
                         &permissions, registry);
    TARNSchemaTypeI& array = *childOf(policy, "permissions");
    ASSERT_EQ(array.getChildObjectCount(), 2u);
    EXPECT_STREQ(textOf(*childOf(array, elementName(2)), "name"), "a");
    serializer.copyGeneratedType(array, "any", &permission, registry);
    EXPECT_EQ(array.getChildObjectCount(), 3u);

    KORVAXSBase64Binary bytes("xyz", 3);
    TARNSchemaTypeI& prop = tarn.make("base64BinaryProp");
    serializer.copyBase64Type(prop, "value", &bytes, registry);
    EXPECT_EQ(static_cast<TARNBase64Binary*>(prop.getChildObject("value", false))->pcount(), 3u);
}

TEST_F(TarnSerializer, OneServesSeveralThreads) {
    Serializer serializer;
    const auto serializeMany = [&serializer](const char* name, int& right) {
        KORVAPermission permission;
        permission.setName(name);
        KORVAPermissionArray source;
        source.push_back(&permission);
        for (int i = 0; i < 200; ++i) {
            const TarnRegistry registry = makeTarnRegistry();
            TARNSchemaTypeI& copy = *serializer.serialize(&source, *registry);
            right += std::strcmp(textOf(*childOf(copy, elementName(1)), "name"), name) == 0;
        }
    };
    int right[2] = {};
    std::thread other(serializeMany, "a", std::ref(right[0]));
    serializeMany("b", right[1]);
    other.join();
    EXPECT_EQ(right[0], 200);
    EXPECT_EQ(right[1], 200);
}

TEST_F(TarnSerializer, TheFactoryMakesOne) {
    auto& factory = KORVATARNObjectSerializerFactory::getInstance();
    KORVATARNObjectSerializerI* const serializer = factory.create();
    const KORVAPermission source;
    EXPECT_EQ(serializer->serialize(&source, *tarn.registry)->getObjectType(),
              tarnType("permission"));
    factory.destroy(serializer);
    factory.destroy(nullptr);
}

}  // namespace
