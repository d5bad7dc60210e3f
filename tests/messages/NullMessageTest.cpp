// The two messages without parameters or operation name.

#include "tests/support/ExpectThrow.h"

#include <korva/KORVA_Null_Reply.h>
#include <korva/KORVA_Null_Request.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using ObjectType = KORVASchemaTypeI::ObjectType;

const ObjectType text = KORVASchemaTypeI::eString;

TEST(NullMessage, HasItsFixedTypeAndName) {
    EXPECT_EQ(KORVA_Null_Request().getMessageType(), 1);
    EXPECT_STREQ(KORVA_Null_Request().getMessageName(), "[Null]_Request");
    EXPECT_EQ(KORVA_Null_Reply().getMessageType(), 2);
    EXPECT_STREQ(KORVA_Null_Reply().getMessageName(), "[Null]_Reply");
}

TEST(NullMessage, HasNoChildren) {
    KORVA_Null_Request request;
    KORVA_Null_Reply reply;
    for (KORVAMessageI* const message : std::initializer_list<KORVAMessageI*>{&request, &reply}) {
        std::vector<const char*> names = {"before"};
        message->getChildObjectNames(names);
        EXPECT_EQ(names, std::vector<const char*>{"before"});
        for (const char* const name : {"", "objectPath"}) {
            EXPECT_EQ(message->getChildObject(name, false), nullptr);
            EXPECT_EQ(message->getChildObject(name, true), nullptr);
            EXPECT_EQ(message->getChildType(name), KORVASchemaTypeI::e_Unknown);
        }
    }
}

TEST(NullMessage, IgnoresTheEmptyName) {
    EXPECT_NO_THROW(KORVA_Null_Request().setChildObject("", nullptr, text));
    EXPECT_NO_THROW(KORVA_Null_Reply().setChildObject("", nullptr, text));
}

TEST(NullMessage, RefusesEveryOtherName) {
    KORVA_Null_Request request;
    EXPECT_NUMBERED(request.setChildObject("options", nullptr, text), 0xEA41BF21U,
                    "KORVA_Null_Request::setChildObject", "options", "[Null]_Request");
    KORVA_Null_Reply reply;
    EXPECT_NUMBERED(reply.setChildObject("result", nullptr, text), 0xEA41BF21U,
                    "KORVA_Null_Reply::setChildObject", "result", "[Null]_Reply");
}

TEST(NullMessage, AssertsOnNullNames) {
    KORVA_Null_Request request;
    KORVA_Null_Reply reply;
    for (KORVAMessageI* const message : std::initializer_list<KORVAMessageI*>{&request, &reply}) {
        EXPECT_ASSERTION(message->getChildObject(nullptr, false), "ZEL_ASSERT(name);");
        EXPECT_ASSERTION(message->getChildType(nullptr), "ZEL_ASSERT(name);");
        EXPECT_ASSERTION(message->setChildObject(nullptr, nullptr, text), "ZEL_ASSERT(name);");
    }
}

TEST(NullMessage, HasAHeaderAndARegistryAsEveryMessage) {
    KORVA_Null_Request request;
    EXPECT_EQ(request.getHalyardHeader(nullptr), nullptr);
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    ASSERT_NE(registry, nullptr);
    EXPECT_NE(request.getHalyardHeader(registry), nullptr);
}

}  // namespace
