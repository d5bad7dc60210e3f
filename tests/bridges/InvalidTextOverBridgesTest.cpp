// Text that no document can hold, on its way into documents and events.
#include "tests/bridges/Conversions.h"
#include "tests/bridges/EventRecorder.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>

#include <gtest/gtest.h>
#include <xercesc/sax2/DefaultHandler.hpp>

#include <string>

namespace {

constexpr unsigned invalidText = 0xEA4F0004U;
constexpr const char* setter = "setReplaceInvalidText";

/// Keeps the text of all elements.
class TextHandler : public xercesc::DefaultHandler {
public:
    void characters(const XMLCh* characters, const XMLSize_t length) override {
        text.append(characters, length);
    }

    std::u16string text;
};

TEST(InvalidTextOverBridges, IsRefusedByDocumentsWithThePlace) {
    KORVAStringArray array;
    array.push_back("fine");
    array.push_back("a\x01");
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_NUMBERED(korva::test::toElement(array, document), invalidText, nullptr, "/value/item[2]",
                    "the character U+0001", setter);
}

TEST(InvalidTextOverBridges, IsRefusedByEventsWithThePlace) {
    KORVAStringProp prop;
    prop.setValue("\xE2\x82");
    xercesc::DefaultHandler handler;
    EXPECT_NUMBERED(korva::test::replay(prop, handler), invalidText, nullptr, "/value/value",
                    "invalid UTF-8, the byte 0xE2", setter);
}

TEST(InvalidTextOverBridges, IsReplacedOnDemand) {
    KORVAStringProp prop;
    prop.setValue("a\x01\xEF\xBF\xBF\xC3z\xC3\xA9");
    KORVASAXObjectSerializer events;
    events.setReplaceInvalidText(true);
    TextHandler handler;
    events.serialize(&prop, prop.getObjectType(), "value", handler);
    EXPECT_EQ(handler.text, u"a\uFFFD\uFFFD\uFFFDz\u00E9");

    KORVADOMObjectSerializer documents;
    documents.setReplaceInvalidText(true);
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    EXPECT_NO_THROW(documents.serialize(&prop, prop.getObjectType(), "bus:value", document));
}

}  // namespace
