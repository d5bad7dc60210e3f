#include "tests/messages/MessageStems.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAgentValidateAgent_Request.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <zel/ZELByteBuffer.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

using korva::test::messageStems;
using MessageType = KORVAMessageI::MessageType;
using ParamDescriptor = KORVAMessageFactory::KORVAParamDescriptor;

const KORVAMessageFactory& factory() {
    return KORVAMessageFactory::getInstance();
}

/// Begins in lower case, unless a capital tag begins it.
std::string messageName(std::string stem, const char* suffix) {
    constexpr const char* tags[] = {"CMS_", "DISP_", "JSM_", "Many_CMS_", "RS_"};
    const bool tagged = std::any_of(std::begin(tags), std::end(tags),
                                    [&](const char* tag) { return stem.rfind(tag, 0) == 0; });
    if (!tagged) stem[0] = static_cast<char>(stem[0] - 'A' + 'a');
    return stem + suffix;
}

MessageType typeOf(const std::string& name) {
    const auto* const bytes = reinterpret_cast<const Bytef*>(name.data());
    return static_cast<MessageType>(crc32(0, bytes, static_cast<uInt>(name.size())));
}

std::vector<std::string> messageNames() {
    std::vector<std::string> names;
    for (const char* const stem : messageStems)
        for (const char* const suffix : {"_Request", "_Reply"})
            names.push_back(messageName(stem, suffix));
    return names;
}

std::vector<ParamDescriptor> rowsOf(const ParamDescriptor* list) {
    std::vector<ParamDescriptor> rows;
    for (; list->name != nullptr; ++list)
        rows.push_back(*list);
    return rows;
}

TEST(MessageFactory, IsASingleton) {
    EXPECT_EQ(&KORVAMessageFactory::getInstance(), &KORVAMessageFactory::getInstance());
}

TEST(MessageFactory, AssertsOnTheUnknownType) {
    EXPECT_ASSERTION(factory().create(KORVAMessageI::e_Unknown),
                     "ZEL_ASSERT(msgType != KORVAMessageI::e_Unknown);");
    EXPECT_ASSERTION(factory().getParameterTypes(KORVAMessageI::e_Unknown),
                     "ZEL_ASSERT(msgType != KORVAMessageI::e_Unknown);");
}

TEST(MessageFactory, GivesNullForTypesThatAreNoMessages) {
    for (const long long number : {3LL, -1LL, 2147483647LL, -2147483648LL, 0x205E290ELL}) {
        const auto type = static_cast<MessageType>(number);
        EXPECT_EQ(factory().create(type), nullptr) << number;
        EXPECT_EQ(factory().getParameterTypes(type), nullptr) << number;
    }
    // An object type is no message type.
    const auto type = static_cast<MessageType>(KORVASchemaTypeI::eKORVAAsynchRequest);
    EXPECT_EQ(factory().create(type), nullptr);
}

TEST(MessageFactory, MakesNoNullMessages) {
    for (const MessageType type :
         {KORVAMessageI::eKORVA_Null_Request, KORVAMessageI::eKORVA_Null_Reply}) {
        EXPECT_EQ(factory().create(type), nullptr);
        EXPECT_EQ(factory().getParameterTypes(type), nullptr);
    }
}

TEST(MessageFactory, MakesAMessageWithoutReferences) {
    const std::unique_ptr<KORVAMessageI> message(
        factory().create(KORVAMessageI::eKORVAAsynchRun_Request));
    ASSERT_NE(dynamic_cast<KORVAAsynchRun_Request*>(message.get()), nullptr);
    EXPECT_EQ(message->getReferenceCount(), 0U);
}

TEST(MessageFactory, ListsTheParametersInDeclaredOrder) {
    const auto rows = rowsOf(factory().getParameterTypes(KORVAMessageI::eKORVAAsynchRun_Request));
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_STREQ(rows[0].name, "objectPath");
    EXPECT_EQ(rows[0].type, KORVASchemaTypeI::eKORVASearchPathSingleObject);
    EXPECT_STREQ(rows[1].name, "parameterValues");
    EXPECT_EQ(rows[1].type, KORVASchemaTypeI::eKORVAParameterValueArray);
    EXPECT_STREQ(rows[2].name, "options");
    EXPECT_EQ(rows[2].type, KORVASchemaTypeI::eKORVAOptionArray);
    const ParamDescriptor& end =
        factory().getParameterTypes(KORVAMessageI::eKORVAAsynchRun_Request)[3];
    EXPECT_EQ(end.type, KORVASchemaTypeI::e_Unknown);
}

TEST(MessageFactory, ListsAreThePublishedOnes) {
    EXPECT_EQ(factory().getParameterTypes(KORVAMessageI::eKORVAAsynchRun_Request),
              KORVAMessageFactory::g_KORVAAsynchRun_RequestParamDescriptor);
    EXPECT_EQ(factory().getParameterTypes(KORVAMessageI::eKORVAAsynchRun_Reply),
              KORVAMessageFactory::g_KORVAAsynchRun_ReplyParamDescriptor);
}

TEST(MessageFactory, ListsTheEndRowAloneForAMessageWithoutParameters) {
    const ParamDescriptor* const list =
        factory().getParameterTypes(KORVAMessageI::eKORVAMapGetMapInfo_Request);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->name, nullptr);
    EXPECT_EQ(list->type, KORVASchemaTypeI::e_Unknown);
}

TEST(MessageFactory, KnowsEveryMessageByTheCrcOfItsName) {
    const std::vector<std::string> names = messageNames();
    EXPECT_EQ(names.size(), 476U);
    for (const std::string& name : names) {
        const std::unique_ptr<KORVAMessageI> message(factory().create(typeOf(name)));
        ASSERT_NE(message, nullptr) << name;
        EXPECT_EQ(message->getMessageName(), name);
        EXPECT_EQ(message->getMessageType(), typeOf(name)) << name;
    }
}

TEST(MessageFactory, ListsWhatEveryMessageHas) {
    for (const std::string& name : messageNames()) {
        SCOPED_TRACE(name);
        const auto rows = rowsOf(factory().getParameterTypes(typeOf(name)));
        const std::unique_ptr<KORVAMessageI> message(factory().create(typeOf(name)));
        std::vector<const char*> children;
        message->getChildObjectNames(children);
        ASSERT_EQ(children.size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_STREQ(children[i], rows[i].name);
            EXPECT_EQ(message->getChildType(rows[i].name), rows[i].type);
            EXPECT_EQ(message->getChildObject(rows[i].name, false), nullptr);
        }
    }
}

TEST(MessageFactory, HasAsManyParametersAsTheSchema) {
    std::array<unsigned, 6> messagesWith{};
    for (const std::string& name : messageNames())
        ++messagesWith.at(rowsOf(factory().getParameterTypes(typeOf(name))).size());
    EXPECT_EQ(messagesWith, (std::array<unsigned, 6>{72, 263, 44, 78, 18, 1}));
    EXPECT_EQ(
        rowsOf(factory().getParameterTypes(KORVAMessageI::eKORVAAgentValidateAgent_Request)).size(),
        5U);
}

/// Stores a value of the type in the parameter, reads it back, and takes it out again.
void fillAndClear(KORVAMessageI& message, const char* name, KORVASchemaTypeI::ObjectType type) {
    switch (type) {
        case KORVASchemaTypeI::eString: {
            ZELByteBuffer text;
            text.appendChars("text", 4);
            message.setChildObject(name, &text, type);
            EXPECT_EQ(message.getChildObject(name, false), text.str());
            break;
        }
        case KORVASchemaTypeI::eInt: {
            int value = 7;
            message.setChildObject(name, &value, type);
            EXPECT_EQ(*static_cast<int*>(message.getChildObject(name, false)), 7);
            break;
        }
        case KORVASchemaTypeI::eBoolean: {
            bool value = true;
            message.setChildObject(name, &value, type);
            EXPECT_TRUE(*static_cast<bool*>(message.getChildObject(name, false)));
            break;
        }
        case KORVASchemaTypeI::eBase64Binary: {
            KORVAXSBase64Binary value("abc", 3);
            message.setChildObject(name, &value, type);
            EXPECT_EQ(message.getChildObject(name, false), &value);
            break;
        }
        default: {
            std::unique_ptr<KORVASchemaTypeI> object;
            try {
                object.reset(KORVASchemaTypesFactory::getInstance().create(type));
            } catch (const KORVAException&) {
                return;  // abstract
            }
            message.setChildObject(name, object.get(), type);
            EXPECT_EQ(message.getChildObject(name, false), object.get());
            break;
        }
    }
    message.setChildObject(name, nullptr, type);
    EXPECT_EQ(message.getChildObject(name, false), nullptr);
}

TEST(MessageFactory, EveryParameterTakesItsTypeAndGivesItBack) {
    unsigned parameters = 0;
    for (const std::string& name : messageNames()) {
        const std::unique_ptr<KORVAMessageI> message(factory().create(typeOf(name)));
        for (const ParamDescriptor& row : rowsOf(factory().getParameterTypes(typeOf(name)))) {
            SCOPED_TRACE(name + ", " + row.name);
            fillAndClear(*message, row.name, row.type);
            ++parameters;
        }
    }
    EXPECT_EQ(parameters, 263U + 2 * 44 + 3 * 78 + 4 * 18 + 5);
}

}  // namespace
