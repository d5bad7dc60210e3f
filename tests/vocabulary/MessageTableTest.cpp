// The messages and their parameters.

#include "tests/support/Tables.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageI.h>
#include <zel/ZELSmartPointer.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using korva::test::crcOf;
using korva::test::Parameter;
using korva::test::Signature;
using korva::test::signatures;

using Message = ZELSmartPointer<KORVAMessageI>;

KORVAMessageI::MessageType messageTypeOf(const std::string& name) {
    return static_cast<KORVAMessageI::MessageType>(crcOf(name));
}

/// The list of parameters in the form of signatures.txt.
std::vector<Parameter> parametersOf(const std::string& message) {
    std::vector<Parameter> out;
    const KORVAMessageFactory::KORVAParamDescriptor* row =
        KORVAMessageFactory::getInstance().getParameterTypes(messageTypeOf(message));
    EXPECT_NE(row, nullptr) << message;
    for (; row != nullptr && row->name != nullptr; ++row) {
        std::string type = KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(row->type);
        type.erase(0, type.find(':') + 1);
        out.push_back({row->name, type == "base64Binary" ? "base64" : type});
    }
    return out;
}

void expectParameters(const std::string& name, const std::vector<Parameter>& expected) {
    const std::vector<Parameter> found = parametersOf(name);
    ASSERT_EQ(found.size(), expected.size()) << name;
    const Message message(KORVAMessageFactory::getInstance().create(messageTypeOf(name)));
    std::vector<const char*> children;
    message->getChildObjectNames(children);
    ASSERT_EQ(children.size(), expected.size()) << name;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(found[i].name, expected[i].name) << name;
        EXPECT_EQ(found[i].type, expected[i].type) << name << ' ' << expected[i].name;
        EXPECT_EQ(children[i], expected[i].name) << name;
    }
}

TEST(MessageVocabulary, Has238PairsBesideTheNullMessages) {
    EXPECT_EQ(signatures().size(), 238U);
    for (const Signature& signature : signatures())
        for (const char* const suffix : {"_Request", "_Reply"}) {
            const std::string name = signature.stem + suffix;
            const Message message(KORVAMessageFactory::getInstance().create(messageTypeOf(name)));
            ASSERT_TRUE(message) << name;
            EXPECT_EQ(message->getMessageName(), name);
            EXPECT_EQ(message->getMessageType(), messageTypeOf(name)) << name;
        }
}

TEST(MessageVocabulary, RequestHasItsParametersInOrder) {
    for (const Signature& signature : signatures())
        expectParameters(signature.stem + "_Request", signature.request);
}

TEST(MessageVocabulary, ReplyHasItsParametersInOrder) {
    for (const Signature& signature : signatures())
        expectParameters(signature.stem + "_Reply", signature.reply);
}

TEST(MessageVocabulary, CountsOfParametersAreThoseOfTheBus) {
    std::map<std::size_t, int> messages;
    for (const Signature& signature : signatures()) {
        ++messages[parametersOf(signature.stem + "_Request").size()];
        ++messages[parametersOf(signature.stem + "_Reply").size()];
    }
    EXPECT_EQ(messages,
              (std::map<std::size_t, int>{{0, 72}, {1, 263}, {2, 44}, {3, 78}, {4, 18}, {5, 1}}));
    EXPECT_EQ(parametersOf("agentValidateAgent_Request").size(), 5U);
}

}  // namespace
