#include "tests/bridges/Conversions.h"
#include "tests/bridges/EventRecorder.h"
#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/zelidom/Documents.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVADOMObjectDeserializerFactory.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVA_AttachmentHandler.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::EventParser;
using korva::test::EventRecorder;
using korva::test::liveAllocations;
using korva::test::makeRegistry;
using korva::test::parseDocument;
using korva::test::Registry;

std::string declare(const std::string& prefix, KORVAI18NRes::Number uri) {
    return " xmlns:" + prefix + "=\"" + KORVAI18NRes::getChar(uri) + "\"";
}

const std::string xsi = declare("xsi", KORVAI18NRes::eSchemaInstanceNamespace);
const std::string bus = declare("bus", KORVAI18NRes::eBusNamespace);
const std::string xs = declare("xs", KORVAI18NRes::eSchemaNamespace);
const std::string all = xsi + bus + xs + declare("SOAP-ENC", KORVAI18NRes::eSoapEncodingNamespace);

class DocumentDeserializer : public testing::Test {
protected:
    /// The root of a document, which stays in memory.
    ZELIDOM_Element root(const std::string& xml) {
        document = parseDocument(xml);
        return document.getDocumentElement();
    }

    /// The object of the root, which must be an X.
    template <class X>
    X& read(const ZELIDOM_Element& element) {
        KORVASchemaTypeI* const object = deserializer.deserialize(element);
        if (object == nullptr || object->getObjectType() != X().getObjectType())
            throw std::runtime_error("the document holds another object");
        return static_cast<X&>(*object);
    }

    ZELIDOM_Document document;
    KORVADOMObjectDeserializer deserializer;
};

TEST_F(DocumentDeserializer, ReadsAnObject) {
    const auto& provider = read<KORVAProvider>(
        root("<p" + all + " xsi:type=\"bus:provider\"><name>n</name><patch>1</patch></p>"));
    EXPECT_STREQ(provider.getName(), "n");
}

TEST_F(DocumentDeserializer, ANullElementIsAnAssertion) {
    EXPECT_ASSERTION(deserializer.deserialize(ZELIDOM_Element()), "ZEL_ASSERT(!domIn.isNull());");
}

TEST_F(DocumentDeserializer, APlainValueIsAnAssertion) {
    constexpr const char* text =
        "ZEL_ASSERT_NAMED(KORVASchemaTypesFactory::getInstance().isGeneratedType( "
        "contentHandler.getObjectType() ), \"Only generated classes can be deserialized.\");";
    EXPECT_ASSERTION(deserializer.deserialize(root("<x" + all + " xsi:type=\"xs:string\">a</x>")),
                     text);
    EXPECT_ASSERTION(deserializer.deserialize(root("<x" + all + " xsi:type=\"xs:int\">1</x>")),
                     text);
}

TEST_F(DocumentDeserializer, WhatTellsNoTypeAndWhatIsNilIsNull) {
    EXPECT_EQ(deserializer.deserialize(root("<x><name>n</name></x>")), nullptr);
    EXPECT_EQ(
        deserializer.deserialize(root("<x" + xsi + " xmlns:o=\"urn:o\" xsi:type=\"o:provider\"/>")),
        nullptr);
    EXPECT_EQ(deserializer.deserialize(
                  root("<x" + all + " xsi:type=\"bus:provider\" xsi:nil=\"true\"/>")),
              nullptr);
}

TEST_F(DocumentDeserializer, PassesOverCommentsAndTextsInTheRoot) {
    const auto& provider = read<KORVAProvider>(
        root("<p" + all +
             " xsi:type=\"bus:provider\">text<!-- comment --><?pi?><name>n</name>"
             "<![CDATA[more]]></p>"));
    EXPECT_STREQ(provider.getName(), "n");
    // Where the text counted it would be a failure.
    EXPECT_EQ(deserializer.deserialize(
                  root("<x" + all + " xsi:type=\"bus:provider\" xsi:nil=\"true\">text</x>")),
              nullptr);
}

TEST_F(DocumentDeserializer, TheTextOfARootThatIsMadeOfItIsItsValue) {
    const auto& severity = read<KORVASeverityEnum>(
        root("<s" + all + " xsi:type=\"bus:severityEnum\">in<!-- comment -->fo</s>"));
    EXPECT_EQ(severity.getValue(), KORVASeverityEnum::eKORVAInfo);
    const auto& path = read<KORVASearchPathSingleObject>(
        root("<s" + all + " xsi:type=\"bus:searchPathSingleObject\">/a<![CDATA[<b>]]></s>"));
    EXPECT_STREQ(path.getValue(), "/a<b>");
}

TEST_F(DocumentDeserializer, JoinsTheTextsOfAValue) {
    const auto& provider = read<KORVAProvider>(root(
        "<p" + all + " xsi:type=\"bus:provider\"><name>a<!-- x -->b<![CDATA[&]]>c</name></p>"));
    EXPECT_STREQ(provider.getName(), "ab&c");
}

TEST_F(DocumentDeserializer, ReadsElementsWithoutALocalNameByTheirNodeName) {
    document = ZELIDOM_Document::create();
    ZELIDOM_Element element = document.createElement("provider");
    element.setAttribute("xmlns:bus", KORVAI18NRes::getChar(KORVAI18NRes::eBusNamespace));
    element.setAttributeNS(KORVAI18NRes::getChar(KORVAI18NRes::eSchemaInstanceNamespace),
                           "xsi:type", "bus:provider");
    ZELIDOM_Element name = document.createElement("name");
    name.appendChild(document.createTextNode("n"));
    element.appendChild(name);
    EXPECT_TRUE(name.getLocalName().empty());
    EXPECT_STREQ(read<KORVAProvider>(element).getName(), "n");
}

TEST_F(DocumentDeserializer, NamespacesOfTheElementsAboveAreInScope) {
    const ZELIDOM_Element outer =
        root("<a" + bus + "><b" + xsi + "><p xsi:type=\"bus:provider\"><name>n</name></p></b></a>");
    const ZELIDOM_Element element(outer.getFirstChild().getFirstChild());
    EXPECT_STREQ(read<KORVAProvider>(element).getName(), "n");
}

TEST_F(DocumentDeserializer, InnerDeclarationsHideOuterOnes) {
    const ZELIDOM_Element outer = root("<a" + xsi + " xmlns:bus=\"urn:other\"><p" + bus +
                                       " xsi:type=\"bus:provider\"><name>n</name></p>"
                                       "<q xsi:type=\"bus:provider\"/></a>");
    const ZELIDOM_Element element(outer.getFirstChild());
    EXPECT_STREQ(read<KORVAProvider>(element).getName(), "n");
    EXPECT_EQ(deserializer.deserialize(ZELIDOM_Element(element.getNextSibling())), nullptr);
}

TEST_F(DocumentDeserializer, DeclarationsInsideTheElementEndWithTheirElement) {
    const std::string other = declare("o", KORVAI18NRes::eSchemaNamespace);
    const std::string start = "<p" + all + " xsi:type=\"bus:provider\">";
    const std::string name = "<name" + other + " xsi:type=\"o:string\">n</name>";
    // Outside its element the prefix means nothing, and the schema's type counts; inside it would
    // be the wrong one.
    const auto& provider =
        read<KORVAProvider>(root(start + name + "<build xsi:type=\"o:int\">b</build></p>"));
    EXPECT_STREQ(provider.getName(), "n");
    EXPECT_STREQ(provider.getBuild(), "b");
}

TEST_F(DocumentDeserializer, DeclarationsByPlainAttributesAreInScope) {
    document = ZELIDOM_Document::create();
    ZELIDOM_Element outer = document.createElement("outer");
    outer.setAttribute("xmlns:b", KORVAI18NRes::getChar(KORVAI18NRes::eBusNamespace));
    ZELIDOM_Element element = document.createElement("provider");
    element.setAttributeNS(KORVAI18NRes::getChar(KORVAI18NRes::eSchemaInstanceNamespace),
                           "xsi:type", "b:provider");
    outer.appendChild(element);
    read<KORVAProvider>(element);
}

TEST_F(DocumentDeserializer, PutsTheObjectIntoTheRegistryThatItIsGiven) {
    const Registry registry = makeRegistry();
    const ZELIDOM_Element element =
        root("<p" + all + " xsi:type=\"bus:provider\"><name>n</name></p>");
    auto* const object =
        static_cast<KORVAProvider*>(deserializer.deserialize(element, registry.get()));
    // The next call must not take it along.
    deserializer.deserialize(element);
    EXPECT_STREQ(object->getName(), "n");
    EXPECT_EQ(registry->getReferenceCount(), 1u);
}

TEST_F(DocumentDeserializer, KeepsAnObjectWithoutRegistryUntilTheNextCall) {
    const ZELIDOM_Element element =
        root("<p" + all + " xsi:type=\"bus:provider\"><name>n</name></p>");
    KORVASchemaTypeI* object = deserializer.deserialize(element);
    EXPECT_STREQ(static_cast<KORVAProvider*>(object)->getName(), "n");
    const std::size_t live = liveAllocations();
    object = deserializer.deserialize(element);
    EXPECT_EQ(liveAllocations(), live);
    EXPECT_STREQ(static_cast<KORVAProvider*>(object)->getName(), "n");
    EXPECT_EQ(deserializer.deserialize(root("<x/>")), nullptr);
}

TEST_F(DocumentDeserializer, TakesNoNoticeOfTheFlags) {
    const Registry registry = makeRegistry();
    const ZELIDOM_Element element = root("<p" + all + " xsi:type=\"bus:provider\"/>");
    EXPECT_NE(deserializer.deserialize(element, registry.get(), ~0U), nullptr);
}

TEST_F(DocumentDeserializer, FailuresOfTheReaderPassThroughAndLeaveNothingBehind) {
    const ZELIDOM_Element wrong =
        root("<p" + all + " xsi:type=\"bus:provider\"><name>a</name><name>b</name></p>");
    const ZELIDOM_Document kept = document;
    EXPECT_NUMBERED(deserializer.deserialize(wrong), 0xEA4B8476U,
                    "KORVASchemaTypeIContentHandler::startElement", "p", "name");
    const std::size_t live = liveAllocations();
    EXPECT_ANY_THROW(deserializer.deserialize(wrong));
    EXPECT_EQ(liveAllocations(), live);
    EXPECT_STREQ(
        read<KORVAProvider>(root("<p" + all + " xsi:type=\"bus:provider\"><name>n</name></p>"))
            .getName(),
        "n");
}

TEST_F(DocumentDeserializer, AnUnknownTypeOfTheBusIsAFailure) {
    EXPECT_NUMBERED(deserializer.deserialize(root("<p" + all + " xsi:type=\"bus:nobody\"/>")),
                    0xEA48385CU, nullptr, "bus:nobody", "p");
}

TEST_F(DocumentDeserializer, ReferencesToAttachmentsAreToldToTheHandler) {
    const std::string text = "<p" + all + " xsi:type=\"bus:provider\"><name href=\"cid:7\"/></p>";
    EXPECT_THROW(deserializer.deserialize(root(text)), ZELAssertError);
    KORVA_AttachmentHandler attachments;
    deserializer.setAttachmentHandler(&attachments);
    read<KORVAProvider>(root(text));
    EXPECT_EQ(attachments.getReferenceCount(), 1U);
    // Each call begins with none.
    read<KORVAProvider>(root(text));
    EXPECT_EQ(attachments.getReferenceCount(), 1U);
}

TEST_F(DocumentDeserializer, ManyAttributesAndDeclarationsEndAtALimit) {
    std::string attributes;
    std::string nested;
    std::string ends;
    for (int i = 0; i != 300; ++i) {
        attributes += " a" + std::to_string(i) + "=\"\"";
        nested += "<a xmlns:p" + std::to_string(i) + "=\"urn:p\">";
        ends += "</a>";
    }
    const std::string start = "<p" + all + " xsi:type=\"bus:provider\">";
    EXPECT_NUMBERED(deserializer.deserialize(root(start + "<name" + attributes + "/></p>")),
                    0xEA4F0001, "KORVAContentHandler", "attributes of a start tag", "256",
                    "setMaximumAttributes");
    deserializer.setMaximumAttributes(300);
    EXPECT_NE(deserializer.deserialize(root(start + "<name" + attributes + "/></p>")), nullptr);
    EXPECT_NE(deserializer.deserialize(root(start + nested + ends + "</p>")), nullptr);
    deserializer.setMaximumDeclarations(100);
    EXPECT_NUMBERED(deserializer.deserialize(root(start + nested + ends + "</p>")), 0xEA4F0001,
                    "KORVAContentHandler", "namespace declarations in scope", "100",
                    "setMaximumDeclarations");
}

TEST_F(DocumentDeserializer, ReplayOfWhatIsNoElementIsAnAssertion) {
    xercesc::DefaultHandler handler;
    const ZELIDOM_Element element = root("<p>text</p>");
    constexpr const char* text = "ZEL_ASSERT(nodeIn.getNodeType() == ZELIDOM_Node::ELEMENT_NODE);";
    EXPECT_ASSERTION(KORVADOMObjectDeserializer::replay(element.getFirstChild(), handler), text);
    EXPECT_ASSERTION(KORVADOMObjectDeserializer::replay(document, handler), text);
    EXPECT_ASSERTION(KORVADOMObjectDeserializer::replay(ZELIDOM_Node(), handler),
                     "ZEL_ASSERT(!isNull());");
}

TEST_F(DocumentDeserializer, ReplaysWhatAParserReports) {
    EventParser parser;
    for (const std::string& xml :
         {std::string("<a/>"), std::string("<a>text</a>"),
          std::string(
              "<a xmlns='urn:d' xmlns:p='urn:p' x='1' p:y='2'><p:b z='3'/>t<c>u<d xmlns=''/>"
              "</c>v<!-- note --><p:e xmlns:p='urn:q'><p:f>w</p:f></p:e></a>"),
          "<a" + all + "><b>x</b><b/><b><c/><c><d/></c></b></a>"}) {
        EventRecorder recorder;
        KORVADOMObjectDeserializer::replay(root(xml), recorder);
        EXPECT_EQ(recorder.events(), parser.eventsOf(xml)) << xml;
    }
}

TEST_F(DocumentDeserializer, ReplayStaysInsideItsElement) {
    EventRecorder recorder;
    const ZELIDOM_Element outer = root("<a><b>x</b><c/></a>");
    KORVADOMObjectDeserializer::replay(outer.getFirstChild(), recorder);
    EXPECT_EQ(recorder.events(), (std::vector<std::string>{"start {}b b", "text x", "end {}b b"}));
}

TEST(DocumentDeserializerFactory, MakesAndDestroysDeserializers) {
    KORVADOMObjectDeserializerFactory& factory = KORVADOMObjectDeserializerFactory::getInstance();
    EXPECT_EQ(&factory, &KORVADOMObjectDeserializerFactory::getInstance());
    KORVADOMObjectDeserializerI* const one = factory.create();
    KORVADOMObjectDeserializerI* const other = factory.create();
    EXPECT_NE(one, other);
    const ZELIDOM_Document document = parseDocument("<x/>");
    EXPECT_EQ(one->deserialize(document.getDocumentElement()), nullptr);
    factory.destroy(one);
    factory.destroy(other);
    factory.destroy(nullptr);
}

}  // namespace
