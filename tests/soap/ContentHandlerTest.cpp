// The handlers themselves, fed by hand: their preconditions, and what they do when no parser
// guarantees the order of events.
#include "tests/soap/Reading.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAMessageIContentHandler.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <zel/I18NConverter.h>
#include <zel/ZELByteBuffer.h>

#include <gtest/gtest.h>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/util/XMLString.hpp>

#include <string>
#include <vector>

namespace {

using xercesc::XMLString;

/// Attributes as text.
class TextAttributes : public xercesc::Attributes {
public:
    struct Attribute {
        std::u16string uri;
        std::u16string localName;
        std::u16string qName;
        std::u16string value;
    };

    TextAttributes(std::vector<Attribute> attributes = {}) : m_attributes(std::move(attributes)) {}

    XMLSize_t getLength() const override { return m_attributes.size(); }
    const XMLCh* getURI(const XMLSize_t i) const override { return m_attributes[i].uri.c_str(); }
    const XMLCh* getLocalName(const XMLSize_t i) const override {
        return m_attributes[i].localName.c_str();
    }
    const XMLCh* getQName(const XMLSize_t i) const override {
        return m_attributes[i].qName.c_str();
    }
    const XMLCh* getType(const XMLSize_t) const override { return u"CDATA"; }
    const XMLCh* getValue(const XMLSize_t i) const override {
        return m_attributes[i].value.c_str();
    }
    bool getIndex(const XMLCh* const, const XMLCh* const, XMLSize_t&) const override {
        return false;
    }
    int getIndex(const XMLCh* const, const XMLCh* const) const override { return -1; }
    bool getIndex(const XMLCh* const, XMLSize_t&) const override { return false; }
    int getIndex(const XMLCh* const) const override { return -1; }
    const XMLCh* getType(const XMLCh* const, const XMLCh* const) const override { return nullptr; }
    const XMLCh* getType(const XMLCh* const) const override { return nullptr; }
    const XMLCh* getValue(const XMLCh* const, const XMLCh* const) const override { return nullptr; }
    const XMLCh* getValue(const XMLCh* const) const override { return nullptr; }

private:
    std::vector<Attribute> m_attributes;
};

class ContentHandler : public testing::Test {
protected:
    ContentHandler() : registry(KORVAObjectRegistryFactory::getInstance().create()) {}

    KORVASchemaTypeIContentHandler element(const XMLCh* name, KORVASchemaTypeI::ObjectType type) {
        return {name, TextAttributes(), &mapping, registry.get(), converter, type};
    }

    void start(KORVAContentHandler& handler, const XMLCh* name, const XMLCh* uri = u"") {
        handler.startElement(uri, name, name, TextAttributes());
    }
    void end(KORVAContentHandler& handler, const XMLCh* name) {
        handler.endElement(u"", name, name);
    }
    void text(KORVAContentHandler& handler, std::u16string_view characters) {
        handler.characters(characters.data(), characters.size());
    }

    KORVANamespaceMapping mapping;
    ZELSmartPointer<KORVAObjectRegistryI> registry;
    I18NConverter converter;
};

TEST_F(ContentHandler, AnElementOfUnknownTypeIsSkippedWhole) {
    auto handler = element(u"x", KORVASchemaTypeI::e_Unknown);
    EXPECT_EQ(handler.getParamType(), KORVASchemaTypeI::e_Unknown);
    EXPECT_EQ(handler.getParamValue(), nullptr);
    start(handler, u"inner");
    text(handler, u"text");
    end(handler, u"inner");
    EXPECT_EQ(handler.getParamType(), KORVASchemaTypeI::e_Unknown);
    EXPECT_EQ(handler.getParamValue(), nullptr);
}

TEST_F(ContentHandler, TheValueIsFinishedWhenItIsAskedFor) {
    auto handler = element(u"x", KORVASchemaTypeI::eInt);
    text(handler, u" 4");
    text(handler, u"2 ");
    EXPECT_EQ(handler.getParamType(), KORVASchemaTypeI::eInt);
    ASSERT_NE(handler.getParamValue(), nullptr);
    EXPECT_EQ(*static_cast<int*>(handler.getParamValue()), 0) << "asked again, the text is gone";

    auto number = element(u"x", KORVASchemaTypeI::eInteger);
    text(number, u"42");
    EXPECT_EQ(*static_cast<int*>(number.getParamValue()), 42);
    auto real = element(u"x", KORVASchemaTypeI::eFloat);
    text(real, u"1.5");
    EXPECT_EQ(*static_cast<float*>(real.getParamValue()), 1.5F);
    auto flag = element(u"x", KORVASchemaTypeI::eBoolean);
    text(flag, u"1");
    EXPECT_TRUE(*static_cast<bool*>(flag.getParamValue()));
    auto string = element(u"x", KORVASchemaTypeI::eTime);
    text(string, u"a\u00E4");
    void* const value = string.getParamValue();
    EXPECT_STREQ(static_cast<ZELByteBuffer*>(value)->str(), "a\xC3\xA4");
    EXPECT_EQ(static_cast<ZELByteBuffer*>(value)->pcount(), 3U);
    EXPECT_EQ(string.getParamValue(), value);
}

TEST_F(ContentHandler, AHalfSurrogatePairWaitsForTheNextPiece) {
    auto handler = element(u"x", KORVASchemaTypeI::eString);
    text(handler, u"a\xD83D");
    text(handler, u"\xDE00z");
    EXPECT_STREQ(static_cast<ZELByteBuffer*>(handler.getParamValue())->str(), "a\xF0\x9F\x98\x80z");
    auto half = element(u"x", KORVASchemaTypeI::eString);
    text(half, u"a\xD83D");
    EXPECT_STREQ(static_cast<ZELByteBuffer*>(half.getParamValue())->str(), "a\xEF\xBF\xBD");
    auto next = element(u"x", KORVASchemaTypeI::eString);
    text(next, u"\xDE00");
    EXPECT_STREQ(static_cast<ZELByteBuffer*>(next.getParamValue())->str(), "\xEF\xBF\xBD");
}

TEST_F(ContentHandler, AnEmptyNameIsAnAssertion) {
    const char* const assertion = "ZEL_ASSERT((localname != NULL) && (strlen( localname ) > 0));";
    EXPECT_ASSERTION(element(u"", KORVASchemaTypeI::eString), assertion);
    EXPECT_ASSERTION(element(nullptr, KORVASchemaTypeI::eString), assertion);
}

TEST_F(ContentHandler, AMissingMappingIsAnAssertion) {
    EXPECT_ASSERTION(KORVASchemaTypeIContentHandler(u"x", TextAttributes(), nullptr, registry.get(),
                                                    converter, KORVASchemaTypeI::eString),
                     "ZEL_ASSERT(m_inScopePrefixesToNamespaceMappings);");
}

TEST_F(ContentHandler, PrefixesMustHaveAName) {
    auto handler = element(u"x", KORVASchemaTypeI::eString);
    EXPECT_ASSERTION(handler.startPrefixMapping(nullptr, u"u"), "ZEL_ASSERT(xmlPrefix);");
    EXPECT_ASSERTION(handler.endPrefixMapping(nullptr), "ZEL_ASSERT(xmlPrefix);");
    handler.startPrefixMapping(u"p", nullptr);
    EXPECT_EQ(mapping.size(), 1U);
    EXPECT_EQ(mapping.getNamespace("p"), nullptr);
    const std::u16string longPrefix(1000, u'p');
    handler.startPrefixMapping(longPrefix.c_str(), u"u");
    handler.endPrefixMapping(longPrefix.c_str());
    handler.endPrefixMapping(u"p");
    EXPECT_EQ(mapping.size(), 0U);
}

TEST_F(ContentHandler, ADocumentThatEndsTooEarlyIsAnAssertion) {
    void* result = nullptr;
    KORVASchemaTypeIContentHandler handler(&result, &mapping, registry.get(), converter);
    handler.startDocument();
    handler.startPrefixMapping(u"p", u"u");
    EXPECT_ASSERTION(handler.endDocument(),
                     "ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, \"There are namespace "
                     "prefixes left on the mapping stack.\");");
    handler.endPrefixMapping(u"p");
    handler.endDocument();

    auto open = element(u"x", KORVASchemaTypeI::eString);
    EXPECT_ASSERTION(open.endDocument(),
                     "ZEL_ASSERT_NAMED(m_objStack.size() == 0, \"There are objects left on the "
                     "object stack.\");");
}

TEST_F(ContentHandler, AnEndWithoutAStartIsAnAssertion) {
    void* result = nullptr;
    KORVASchemaTypeIContentHandler handler(&result, &mapping, registry.get(), converter);
    EXPECT_ASSERTION(end(handler, u"x"), "ZEL_ASSERT(m_objStack.size() > 0);");
    EXPECT_ASSERTION(handler.getParamType(), "ZEL_ASSERT(m_objStack.size() > 0);");
    EXPECT_EQ(handler.getParamValue(), nullptr);
}

TEST_F(ContentHandler, ASecondRootOfAnElementIsAnAssertion) {
    auto handler = element(u"x", KORVASchemaTypeI::eKORVAProvider);
    end(handler, u"x");
    EXPECT_ASSERTION(start(handler, u"y"), "ZEL_ASSERT(m_objStack.size() > 0);");
}

TEST_F(ContentHandler, AMissingRegistryIsAnAssertion) {
    void* result = nullptr;
    KORVASchemaTypeIContentHandler handler(&result, &mapping, nullptr, converter);
    EXPECT_ASSERTION(handler.startDocument(), "ZEL_ASSERT(m_objectRegistry);");
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    KORVAMessageIContentHandler message(offered, converter);
    EXPECT_ASSERTION(message.startDocument(), "ZEL_ASSERT(m_objectRegistry);");
    EXPECT_ASSERTION(start(message, u"Envelope"), "ZEL_ASSERT(m_objectRegistry);");
}

TEST_F(ContentHandler, AMessageHandlerChecksItsPrefixes) {
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    KORVAMessageIContentHandler handler(offered, converter);
    EXPECT_ASSERTION(handler.startPrefixMapping(nullptr, u"u"),
                     "ZEL_ASSERT_NAMED(xmlPrefix != NULL, \"Received NULL xmlPrefix in "
                     "KORVAMessageIContentHandler::startPrefixMapping()\");");
    EXPECT_ASSERTION(handler.endPrefixMapping(nullptr),
                     "ZEL_ASSERT_NAMED(xmlPrefix != NULL, \"Received NULL xmlPrefix in "
                     "KORVAMessageIContentHandler::endPrefixMapping()\");");
    handler.setObjectRegistry(registry.get());
    handler.startPrefixMapping(u"p", u"u");
    EXPECT_ASSERTION(handler.endDocument(),
                     "ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, \"There are namespace "
                     "prefixes left on the mapping stack.\");");
}

TEST_F(ContentHandler, AMessageHandlerNeedsPortTypesOrAMessage) {
    const std::vector<KORVAPortTypeI*> none;
    EXPECT_ASSERTION(KORVAMessageIContentHandler(none, converter),
                     "ZEL_ASSERT(m_supportedPortTypes->size() > 0);");
    const korva::test::Binding call = korva::test::makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_ASSERTION(KORVAMessageIContentHandler(*call, nullptr, converter),
                     "ZEL_ASSERT(m_msgObj);");
    KORVAMessageIContentHandler handler(*call, &call->getOutputMessage(), converter);
    EXPECT_EQ(handler.getBinding(), call.get());
    EXPECT_EQ(handler.getHeader(), nullptr);
}

TEST_F(ContentHandler, AMessageHandlerWithoutAValueInTheWorksIsAnAssertion) {
    const std::u16string envelope(korva::test::envelopeNamespace.begin(),
                                  korva::test::envelopeNamespace.end());
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    KORVAMessageIContentHandler handler(offered, converter);
    handler.setObjectRegistry(registry.get());
    start(handler, u"Envelope", envelope.c_str());
    start(handler, u"Header", envelope.c_str());
    // An entry whose start failed leaves none behind.
    EXPECT_THROW(start(handler, u""), ZELAssertError);
    EXPECT_ASSERTION(end(handler, u""), "ZEL_ASSERT(m_schemaTypeContentHandler != NULL);");
    EXPECT_ASSERTION(start(handler, u"child"), "ZEL_ASSERT(m_schemaTypeContentHandler);");
    EXPECT_ASSERTION(end(handler, u"child"), "ZEL_ASSERT(m_schemaTypeContentHandler != NULL);");
}

}  // namespace
