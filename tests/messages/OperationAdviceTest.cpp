// What is told beside "no such operation".
#include "tests/messages/PortTypes.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAFolder.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVAPortTypeBinding.h>

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace {

using Params = std::vector<KORVAMessageParam*>;
using Type = KORVASchemaTypeI;

void ask(const char* operation, const Params& parameters = {}) {
    const ZELSmartPointer<KORVAPortTypeBinding> binding =
        KORVADispatcherPortType::getInstance().createPortTypeBinding(operation, parameters);
}

constexpr const char* versions =
    "(objectPath: bus:searchPathSingleObject, parameterValues: bus:parameterValueArray, options: "
    "bus:optionArray)";

TEST(OperationAdvice, NamesTheOperationThatComesNearest) {
    EXPECT_ADVICE(ask("stopServce"), 0xEA4F0020, "stopServce", "dispatcher", "stopService");
    EXPECT_ADVICE(ask("RUN"), 0xEA4F0020, "RUN", "dispatcher", "run");
    EXPECT_NUMBERED(ask("stopServce"), 0xEA4112C6, "KORVADispatcherPortType::createPortTypeBinding",
                    "stopServce", "dispatcher");
}

TEST(OperationAdvice, IsSilentWhereNothingComesNear) {
    for (const std::string name : {"x", "bakeACakeAndEatIt"}) {
        SCOPED_TRACE(name);
        try {
            ask(name.c_str());
            ADD_FAILURE();
        } catch (const KORVAException& error) {
            EXPECT_EQ(error.getMessages().size(), 1U) << error.toString();
        }
    }
}

TEST(OperationAdvice, NamesTheParametersThatNoVersionHas) {
    KORVAMessageParam misspelt("objectPaht", Type::eKORVASearchPathSingleObject);
    KORVAMessageParam right("options", Type::eKORVAOptionArray);
    KORVAMessageParam unknown("zzz", Type::eString);
    EXPECT_ADVICE(ask("run", {&misspelt, &right, &unknown}), 0xEA4F0021, "run",
                  "\"objectPaht\" (nearest: \"objectPath\"), \"zzz\"");
}

TEST(OperationAdvice, TellsOfTenUnknownParametersAtMost) {
    const Type::ObjectType type = Type::eString;
    std::deque<KORVAMessageParam> many;
    Params parameters;
    for (int i = 0; i != 50'000; ++i)
        parameters.push_back(&many.emplace_back("zzz", type));
    std::string told = "\"zzz\"";
    for (int i = 1; i != 10; ++i)
        told += ", \"zzz\"";
    told += ", ...";
    EXPECT_ADVICE(ask("run", parameters), 0xEA4F0021, "run", told);
}

TEST(OperationAdvice, TellsTheVersionsWhereTheParametersAreKnown) {
    KORVAMessageParam options("options", Type::eKORVAOptionArray);
    KORVAMessageParam path("objectPath", Type::eKORVASearchPathSingleObject);
    EXPECT_ADVICE(ask("run", {&options, &path}), 0xEA4F0022, "run",
                  "options: bus:optionArray, objectPath: bus:searchPathSingleObject", versions);
    KORVAFolder folder;
    KORVAMessageParam wrong("objectPath", Type::eKORVAFolder, &folder);
    EXPECT_ADVICE(ask("run", {&wrong}), 0xEA4F0022, "run", "objectPath: bus:folder", versions);
}

TEST(OperationAdvice, TellsAParameterAloneWhoseTypeHasNoName) {
    KORVAMessageParam stream("objectPath", Type::eCharStreamable);
    EXPECT_ADVICE(ask("run", {&stream}), 0xEA4F0022, "run", "objectPath", versions);
}

}  // namespace
