#include "tests/bridges/Conversions.h"
#include "tests/bridges/EventRecorder.h"
#include "tests/bridges/Vocabulary.h"
#include "tests/support/ExpectThrow.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASAXObjectSerializerFactory.h>
#include <zel/ZELStdExceptionError.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using korva::test::EventRecorder;
using korva::test::makeRegistry;
using korva::test::narrow;
using korva::test::replay;
using Events = std::vector<std::string>;

std::string fixed(KORVAI18NRes::Number number) {
    return KORVAI18NRes::getChar(number);
}

/// Counts events, and the elements that declare namespaces.
class Counter : public xercesc::DefaultHandler {
public:
    void startElement(const XMLCh*, const XMLCh*, const XMLCh*,
                      const xercesc::Attributes& attributes) override {
        ++starts;
        for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
            if (narrow(attributes.getQName(i)).rfind("xmlns:", 0) == 0)
                declarations.push_back(starts);
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { ++ends; }
    void startDocument() override { ++documents; }
    void endDocument() override { ++documents; }

    int starts = 0;
    int ends = 0;
    int documents = 0;
    std::vector<int> declarations;
};

TEST(EventSerializer, EachObjectStartsAndEndsOnce) {
    KORVAPermission permissions[3];
    KORVAPermissionArray array;
    for (KORVAPermission& permission : permissions) {
        permission.setName("read");
        array.push_back(&permission);
    }
    Counter counter;
    replay(array, counter);
    EXPECT_EQ(counter.starts, 7);
    EXPECT_EQ(counter.ends, 7);
    EXPECT_EQ(counter.documents, 0);
}

TEST(EventSerializer, TheDeclarationsAppearOnTheFirstElementAlone) {
    KORVAPermission permission;
    permission.setName("read");
    Counter counter;
    replay(permission, counter);
    EXPECT_EQ(counter.declarations, (std::vector<int>{1, 1, 1, 1}));
}

TEST(EventSerializer, TellsOfAnObjectAsAParserWould) {
    KORVAPermission permission;
    permission.setName("read");
    EventRecorder recorder;
    replay(permission, recorder);
    const std::string bus = "{" + fixed(KORVAI18NRes::eBusNamespace) + "}";
    const std::string type =
        "\n  {" + fixed(KORVAI18NRes::eSchemaInstanceNamespace) + "}type xsi:type CDATA ";
    const std::string declaration = "\n  {http://www.w3.org/2000/xmlns/}";
    EXPECT_EQ(
        recorder.events(),
        (Events{"map SOAP-ENC " + fixed(KORVAI18NRes::eSoapEncodingNamespace),
                "map bus " + fixed(KORVAI18NRes::eBusNamespace),
                "map xs " + fixed(KORVAI18NRes::eSchemaNamespace),
                "map xsi " + fixed(KORVAI18NRes::eSchemaInstanceNamespace),
                "start " + bus + "value bus:value" + declaration +
                    "SOAP-ENC xmlns:SOAP-ENC CDATA " + fixed(KORVAI18NRes::eSoapEncodingNamespace) +
                    declaration + "bus xmlns:bus CDATA " + fixed(KORVAI18NRes::eBusNamespace) +
                    declaration + "xs xmlns:xs CDATA " + fixed(KORVAI18NRes::eSchemaNamespace) +
                    declaration + "xsi xmlns:xsi CDATA " +
                    fixed(KORVAI18NRes::eSchemaInstanceNamespace) + type + "bus:permission",
                "start " + bus + "name bus:name" + type + "xs:string", "text read",
                "end " + bus + "name bus:name", "end " + bus + "value bus:value", "unmap SOAP-ENC",
                "unmap bus", "unmap xs", "unmap xsi"}));
}

TEST(EventSerializer, DeclaresAndMapsThePrefixesInOrder) {
    class Order : public xercesc::DefaultHandler {
    public:
        void startPrefixMapping(const XMLCh* prefix, const XMLCh*) override {
            order += "+" + narrow(prefix) + " ";
        }
        void endPrefixMapping(const XMLCh* prefix) override { order += "-" + narrow(prefix) + " "; }
        void startElement(const XMLCh*, const XMLCh*, const XMLCh*,
                          const xercesc::Attributes& attributes) override {
            for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
                order += narrow(attributes.getQName(i)) + " ";
        }
        void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { order += "end "; }
        std::string order;
    };
    Order handler;
    replay(KORVAPermissionArray(), handler);
    EXPECT_EQ(handler.order,
              "+xs +xsi +SOAP-ENC +bus "
              "xmlns:xs xmlns:xsi xmlns:SOAP-ENC xmlns:bus xsi:type SOAP-ENC:arrayType "
              "end -bus -SOAP-ENC -xsi -xs ");
}

TEST(EventSerializer, AFalseBooleanIsTheText20) {
    KORVABooleanProp prop;
    prop.setValue(false);
    EventRecorder recorder;
    replay(prop, recorder);
    EXPECT_EQ(recorder.pieces, Events{fixed(KORVAI18NRes::eFalse)});
}

TEST(EventSerializer, AShortTextIsOnePieceAndAnEmptyOneNone) {
    KORVAProvider provider;
    provider.setName("Gr\xC3\xBC\xC3\x9F");
    provider.setBuild("");
    EventRecorder recorder;
    replay(provider, recorder);
    EXPECT_EQ(recorder.pieces, Events{"Gr\xC3\xBC\xC3\x9F"});
}

TEST(EventSerializer, NoCharacterOfALongTextIsCut) {
    for (const char* const character : {"x", "\xC3\xA4", "\xE6\x97\xA5", "\xF0\x9F\x98\x80"}) {
        for (const char* const start : {"", "a", "ab", "abc"}) {
            std::string text = start;
            for (int i = 0; i < 10000; ++i)
                text += character;
            KORVAProvider provider;
            provider.setName(text.c_str());
            EventRecorder recorder;
            replay(provider, recorder);
            EXPECT_GT(recorder.pieces.size(), 1u);
            std::string joined;
            for (const std::string& piece : recorder.pieces) {
                EXPECT_LE(piece.size(), 2048u * 3);
                joined += piece;
            }
            EXPECT_EQ(joined, text);
        }
    }
}

TEST(EventSerializer, ItsAttributesAreFoundByName) {
    class Searcher : public xercesc::DefaultHandler {
    public:
        void startElement(const XMLCh*, const XMLCh*, const XMLCh*,
                          const xercesc::Attributes& attributes) override {
            const XMLSize_t length = attributes.getLength();
            ASSERT_EQ(length, 6u);
            for (XMLSize_t i = 0; i < length; ++i) {
                XMLSize_t index = 99;
                EXPECT_TRUE(attributes.getIndex(attributes.getQName(i), index));
                EXPECT_EQ(index, i);
                EXPECT_TRUE(
                    attributes.getIndex(attributes.getURI(i), attributes.getLocalName(i), index));
                EXPECT_EQ(index, i);
                EXPECT_EQ(attributes.getIndex(attributes.getQName(i)), static_cast<int>(i));
                EXPECT_EQ(attributes.getIndex(attributes.getURI(i), attributes.getLocalName(i)),
                          static_cast<int>(i));
                EXPECT_EQ(attributes.getValue(attributes.getQName(i)), attributes.getValue(i));
                EXPECT_EQ(attributes.getValue(attributes.getURI(i), attributes.getLocalName(i)),
                          attributes.getValue(i));
                EXPECT_EQ(narrow(attributes.getType(attributes.getQName(i))), "CDATA");
                EXPECT_EQ(
                    narrow(attributes.getType(attributes.getURI(i), attributes.getLocalName(i))),
                    "CDATA");
            }
            XMLSize_t index = 99;
            EXPECT_FALSE(attributes.getIndex(u"type", index));
            EXPECT_FALSE(attributes.getIndex(u"", u"type", index));
            EXPECT_EQ(attributes.getIndex(u"type"), -1);
            EXPECT_EQ(attributes.getIndex(u"", u"type"), -1);
            EXPECT_EQ(attributes.getValue(u"type"), nullptr);
            EXPECT_EQ(attributes.getType(u"", u"type"), nullptr);
            EXPECT_EQ(attributes.getURI(length), nullptr);
            EXPECT_EQ(attributes.getLocalName(length), nullptr);
            EXPECT_EQ(attributes.getQName(length), nullptr);
            EXPECT_EQ(attributes.getType(length), nullptr);
            EXPECT_EQ(attributes.getValue(length), nullptr);
            ++elements;
        }
        int elements = 0;
    };
    Searcher searcher;
    replay(KORVAPermissionArray(), searcher);
    EXPECT_EQ(searcher.elements, 1);
}

TEST(EventSerializer, ADerivedSerializerMayTellOfNullAsNil) {
    class NilSerializer : public KORVASAXObjectSerializer {
    public:
        NilSerializer() { m_writeNil = true; }
    };
    EventRecorder recorder;
    NilSerializer().serialize(nullptr, KORVASchemaTypeI::eKORVAFolder, "value", recorder);
    const std::string& start = recorder.events().at(4);
    EXPECT_NE(
        start.find("{" + fixed(KORVAI18NRes::eSchemaInstanceNamespace) + "}nil xsi:nil CDATA true"),
        std::string::npos)
        << start;
    EXPECT_EQ(recorder.events().size(), 10u);
}

/// Throws from the n-th event on.
template <class Exception>
class Thrower : public xercesc::DefaultHandler {
public:
    Thrower(int left, Exception exception) : m_left(left), m_exception(std::move(exception)) {}

    void startElement(const XMLCh*, const XMLCh*, const XMLCh*,
                      const xercesc::Attributes&) override {
        count();
    }
    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { count(); }
    void characters(const XMLCh*, XMLSize_t) override { count(); }
    void startPrefixMapping(const XMLCh*, const XMLCh*) override { count(); }
    void endPrefixMapping(const XMLCh*) override { count(); }

private:
    void count() {
        if (--m_left < 0) throw m_exception;
    }

    int m_left;
    Exception m_exception;
};

TEST(EventSerializer, WhatTheHandlerThrowsPassesThrough) {
    struct Stop {};
    KORVAPermission permission;
    permission.setName("read");
    KORVASAXObjectSerializer serializer;
    const auto serialize = [&](xercesc::ContentHandler& handler) {
        serializer.serialize(&permission, permission.getObjectType(), "value", handler);
    };
    constexpr int events = 13;
    for (int n = 0; n < events; ++n) {
        Thrower<Stop> thrower(n, {});
        EXPECT_THROW(serialize(thrower), Stop);
        Thrower<std::runtime_error> standard(n, std::runtime_error("no more"));
        EXPECT_THROW(serialize(standard), ZELStdExceptionError);
        Thrower<ZELAssertError> own(n, ZELAssertError(0, 0, "mine"));
        EXPECT_THROW(serialize(own), ZELAssertError);
    }
    Thrower<Stop> patient(events, {});
    EXPECT_NO_THROW(serialize(patient));
}

TEST(EventSerializerFactory, MakesAndDestroysSerializers) {
    KORVASAXObjectSerializerFactory& factory = KORVASAXObjectSerializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVASAXObjectSerializerFactory::getInstance());
    KORVASAXObjectSerializerI* const one = factory.create();
    KORVASAXObjectSerializerI* const other = factory.create();
    EXPECT_NE(one, other);
    const KORVAFolder folder;
    Counter counter;
    one->serialize(&folder, folder.getObjectType(), "folder", counter);
    other->serialize(&folder, folder.getObjectType(), "folder", counter);
    EXPECT_EQ(counter.declarations.size(), 8u);
    factory.destroy(one);
    factory.destroy(other);
    factory.destroy(nullptr);
}

}  // namespace
