#include <zel/ZELException.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

/// An exception with a catalogue, as a library that uses this one has it.
class CatalogueException : public ZELException {
public:
    using ZELException::ZELException;

    void hurl(ZELFileLocation location, const char* function, const char* macro) override {
        addBackTrace(location, function, macro);
        throw CatalogueException(*this);
    }
    CatalogueException* clone() const override { return new CatalogueException(*this); }
    const char* getThrowableName() const noexcept override { return "CatalogueException"; }

protected:
    const char* findMessageText(const ZELMessage& message) const override {
        return message.getId() == 1 ? "{1} follows {0}." : nullptr;
    }
};

ZELMessage message(unsigned id, const char* first, const char* second) {
    ZELMessage result("ROOM", id);
    result << ZELMessageParm(first) << ZELMessageParm(second);
    return result;
}

TEST(ZelException, MadeFromANumber) {
    EXPECT_STREQ(ZELException(17).getErrorCodeString(), "17");
    EXPECT_EQ(ZELException(17).getSeverity(), eZELError);
    EXPECT_STREQ(ZELException(eZELInfo, 17).getErrorCodeString(), "17");
    EXPECT_EQ(ZELException(eZELInfo, 17).getSeverity(), eZELInfo);
    EXPECT_STREQ(ZELException(0).getErrorCodeString(), "0");
}

TEST(ZelException, MadeFromAText) {
    EXPECT_STREQ(ZELException("ABC-1").getErrorCodeString(), "ABC-1");
    EXPECT_EQ(ZELException("ABC-1").getSeverity(), eZELError);
    EXPECT_EQ(ZELException(eZELFatal, "ABC-1").getSeverity(), eZELFatal);
    EXPECT_STREQ(ZELException(eZELFatal, "ABC-1").getErrorCodeString(), "ABC-1");
    EXPECT_STREQ(ZELException(static_cast<const char*>(nullptr)).getErrorCodeString(), "");
    EXPECT_STREQ(ZELException("ABC-1").toString(), "ZELException: ABC-1");
}

TEST(ZelException, TextIsCopied) {
    auto text = std::make_unique<std::string>(100, 'x');
    const ZELException error(text->c_str());
    text.reset();
    EXPECT_EQ(error.getErrorCodeString(), std::string(100, 'x'));
}

TEST(ZelException, CatcherReadsIdsAndParameters) {
    try {
        CatalogueException error(0);
        error << message(1, "a", "b") << message(0xEA4112C6u, "c", "d");
        ZEL_THROW(error, "f");
    } catch (const ZELMessageSet& caught) {
        ASSERT_EQ(caught.getMessages().size(), 2u);
        const ZELMessage& second = caught.getMessages()[1];
        EXPECT_EQ(second.getId(), 0xEA4112C6u);
        EXPECT_STREQ(second.getComponent(), "ROOM");
        ASSERT_EQ(second.getParms().size(), 2u);
        EXPECT_STREQ(second.getParms()[0].getText(), "c");
        EXPECT_STREQ(second.getParms()[1].getText(), "d");
    }
}

TEST(ZelException, HasNoMessagesAtFirst) {
    EXPECT_EQ(ZELException(0).getMessages().size(), 0u);
}

TEST(ZelException, MessagesOfACopyAreIndependent) {
    CatalogueException error(0);
    error << message(1, "a", "b");
    CatalogueException copy(error);
    copy << message(2, "c", "d");
    EXPECT_EQ(error.getMessages().size(), 1u);
    EXPECT_EQ(copy.getMessages().size(), 2u);
    error = copy;
    EXPECT_EQ(error.getMessages().size(), 2u);
}

TEST(ZelException, ToStringFillsInTheCataloguesTexts) {
    CatalogueException error(0);
    error << message(1, "one", "two");
    EXPECT_STREQ(error.toString(), "CatalogueException: two follows one.");
}

TEST(ZelException, ToStringOfAnUnknownMessageGivesItsNumberAndParameters) {
    CatalogueException error(0);
    error << message(1, "a", "b") << message(0xEA4112C6u, "c", "d");
    EXPECT_STREQ(error.toString(),
                 "CatalogueException: b follows a.\nROOM message 0xea4112c6: c, d");
}

}  // namespace
