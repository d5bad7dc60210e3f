#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAValidate_3_Request.h>
#include <korva/KORVA_MessageAccess.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr unsigned noSuchPath = 0xEA4F0030U;
using Request = ZELSmartPointer<KORVAAsynchRun_Request>;

Request makeRun() {
    return new KORVAAsynchRun_Request;
}

TEST(MessageAccess, WalksTheParametersInTheirOrder) {
    const Request run = makeRun();
    run->getObjectPath(run->getObjectRegistry())->setValue("/content");
    std::vector<std::string> found;
    for (const KORVA_Child& child : korva::children(*run))
        found.push_back(child.name() + '=' + child.describe());
    EXPECT_EQ(found, (std::vector<std::string>{"objectPath=/content", "parameterValues=null",
                                               "options=null"}));
}

TEST(MessageAccess, SetsAndReadsByPath) {
    const Request run = makeRun();
    korva::set(*run, "objectPath", "/content");
    korva::set(*run, "parameterValues/0/name", "region");
    korva::set(*run, "parameterValues/1/name", "year");
    EXPECT_STREQ(run->getObjectPath()->getValue(), "/content");
    ASSERT_NE(run->getParameterValues(), nullptr);
    ASSERT_EQ(run->getParameterValues()->size(), 2u);
    EXPECT_STREQ(run->getParameterValues()->at(0)->getName(), "region");
    EXPECT_EQ(korva::get(*run, "parameterValues/1/name").asText(), "year");
    EXPECT_EQ(korva::findAll(*run, "parameterValues/*/name").size(), 2u);
    EXPECT_EQ(korva::get(*run, "objectPath").asText(), "/content");
}

TEST(MessageAccess, SetsValuesAndUnsetsThem) {
    const ZELSmartPointer<KORVAValidate_3_Request> validate = new KORVAValidate_3_Request;
    korva::set(*validate, "obj", "<a/>");
    korva::set(*validate, "arrayBase", 1);
    EXPECT_STREQ(validate->getObj(), "<a/>");
    EXPECT_EQ(korva::get(*validate, "arrayBase").asInt(), 1);
    korva::set(*validate, "obj", nullptr);
    korva::set(*validate, "arrayBase", nullptr);
    EXPECT_EQ(validate->getObj(), nullptr);
    EXPECT_EQ(validate->getArrayBase(), nullptr);
}

TEST(MessageAccess, ReplacesAnArrayThatIsAParameter) {
    const Request run = makeRun();
    KORVAParameterValueArray values;
    const korva::test::Registry registry = korva::test::makeRegistry();
    korva::set(*run, "parameterValues", &values, *registry);
    EXPECT_EQ(run->getParameterValues(), &values);
    korva::set(*run, "parameterValues", nullptr, *registry);
    EXPECT_EQ(run->getParameterValues(), nullptr);
    EXPECT_EQ(registry->size(), 0u);
}

TEST(MessageAccess, ThatLeadsNowhereTellsTheParameters) {
    const Request run = makeRun();
    const char* const parameters = "asynchRun_Request with objectPath, parameterValues, options";
    EXPECT_NUMBERED(korva::get(*run, "objectpath"), noSuchPath, "KORVA_Path", "objectpath",
                    "objectpath", parameters);
    EXPECT_NUMBERED(korva::set(*run, "parameterValue/0/name", "x"), noSuchPath, "KORVA_Path",
                    "parameterValue/0/name", "parameterValue",
                    "asynchRun_Request with parameterValues, objectPath, options");
    EXPECT_NUMBERED(korva::set(*run, "parameterValues/0/naem", "x"), noSuchPath, "KORVA_Path",
                    "parameterValues/0/naem", "parameterValues/0/naem",
                    "KORVAParameterValue with name, value");
    EXPECT_EQ(run->getParameterValues(), nullptr);
    EXPECT_FALSE(korva::find(*run, "objectpath").has_value());
    EXPECT_TRUE(korva::findAll(*run, "parameterValues/*").empty());
}

TEST(MessageAccess, IsNoObjectItself) {
    const Request run = makeRun();
    EXPECT_NUMBERED(korva::get(*run, ""), 0xEA4F0031U, "KORVA_Path", "",
                    "a message has parameters, and is none");
}

}  // namespace
