#include "tests/support/ExpectThrow.h"
#include "tests/tarn/TarnObjects.h"

#include <tarn/TARNSOAPFault.h>
#include <tarn/TARNTypeError.h>
#include <tarn/TARNUndocumentedFaultDetail.h>
#include <tarn/TARNUndocumentedFaultDetailArray.h>
#include <zel/ZELStdExceptionError.h>

#include <gtest/gtest.h>

namespace {

using namespace korva::test;
using Type = TARNSchemaTypeI;

class TarnSOAPFault : public testing::Test {
protected:
    TARNSchemaTypeI& makeDetail(const char* severity) {
        TARNSchemaTypeI& detail = tarn.make(Type::eTARNUndocumentedFaultDetail);
        tarn.setText(detail, "severity", severity);
        return detail;
    }

    TarnObjects tarn;
    TARNSOAPFault& fault = dynamic_cast<TARNSOAPFault&>(tarn.make(Type::eTARNSOAPFault));
};

TEST_F(TarnSOAPFault, StartsEmpty) {
    EXPECT_EQ(fault.getFaultCode(), nullptr);
    EXPECT_EQ(fault.getFaultString(), nullptr);
    EXPECT_EQ(fault.getFaultActor(), nullptr);
    EXPECT_EQ(fault.getDetail(), nullptr);
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
    EXPECT_TRUE(namesOf(fault, false).empty());
}

TEST_F(TarnSOAPFault, NamesItsChildrenButForTheUndocumentedDetails) {
    EXPECT_EQ(namesOf(fault, true),
              (std::vector<std::string>{"faultcode", "faultstring", "faultactor", "detail"}));
    EXPECT_EQ(fault.getChildObjectCount(), 4u);
    fault.getChildObject("undocumentedDetail", true);
    EXPECT_TRUE(namesOf(fault, false).empty());
}

TEST_F(TarnSOAPFault, KeepsItsTexts) {
    tarn.setText(fault, "faultcode", "Server");
    tarn.setText(fault, "faultstring", "It failed.");
    tarn.setText(fault, "faultactor", "me");
    EXPECT_STREQ(fault.getFaultCode(), "Server");
    EXPECT_STREQ(fault.getFaultString(), "It failed.");
    EXPECT_STREQ(fault.getFaultActor(), "me");
    EXPECT_EQ(fault.getChildType("faultcode"), Type::eString);
}

TEST_F(TarnSOAPFault, MakesItsDetailsForWriting) {
    EXPECT_EQ(fault.getChildObject("detail", false), nullptr);
    auto* const detail = static_cast<TARNSchemaTypeI*>(fault.getChildObject("detail", true));
    ASSERT_NE(detail, nullptr);
    EXPECT_EQ(fault.getDetail(), detail);
    EXPECT_EQ(fault.getChildObject("detail", true), detail);
    EXPECT_EQ(detail->getObjectType(), tarnType("faultDetailArray"));
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
    EXPECT_EQ(namesOf(fault, false), std::vector<std::string>{"detail"});

    const void* const undocumented = fault.getChildObject("undocumentedDetail", true);
    EXPECT_EQ(static_cast<TARNSchemaTypeI*>(fault.getUndocumentedDetail()), undocumented);
    EXPECT_EQ(fault.getUndocumentedDetail()->getObjectType(),
              fault.getChildType("undocumentedDetail"));
    // What it makes is its own.
    EXPECT_EQ(tarn.registry->size(), 1u);
}

TEST_F(TarnSOAPFault, TakesDetailsThatAreMadeElsewhere) {
    fault.getChildObject("detail", true);
    TARNSchemaTypeI& details = tarn.addChild(fault, "detail", tarnType("faultDetailArray"));
    EXPECT_EQ(fault.getDetail(), &details);
    TARNSchemaTypeI& undocumented =
        tarn.addChild(fault, "undocumentedDetail", Type::eTARNUndocumentedFaultDetailArray);
    EXPECT_EQ(static_cast<TARNSchemaTypeI*>(fault.getUndocumentedDetail()), &undocumented);
    EXPECT_THROW(tarn.addChild(fault, "detail", Type::eTARNUndocumentedFaultDetailArray),
                 TARNTypeError);
    EXPECT_THROW(tarn.addChild(fault, "undocumentedDetail", tarnType("faultDetailArray")),
                 TARNTypeError);
}

TEST_F(TarnSOAPFault, UndocumentedDetailsAreTextsAndMessages) {
    auto& detail = dynamic_cast<TARNUndocumentedFaultDetail&>(makeDetail("error"));
    EXPECT_EQ(namesOf(detail, true),
              (std::vector<std::string>{"severity", "errorCode", "message"}));
    EXPECT_STREQ(detail.getSeverity(), "error");
    EXPECT_EQ(detail.getErrorCode(), nullptr);
    tarn.setText(detail, "errorCode", "E1");
    EXPECT_STREQ(detail.getErrorCode(), "E1");
    EXPECT_EQ(detail.getMessage().getObjectType(), tarnType("messageArray"));
    tarn.addChild(detail.getMessage(), "any", tarnType("message"));
    EXPECT_EQ(detail.getMessage().getChildObjectCount(), 1u);
}

TEST_F(TarnSOAPFault, UndocumentedDetailsStandInAnArray) {
    auto& array = dynamic_cast<TARNUndocumentedFaultDetailArray&>(
        tarn.make(Type::eTARNUndocumentedFaultDetailArray));
    TARNSchemaTypeI& detail = makeDetail("warn");
    array.setChildObject("any", &detail, detail.getObjectType(), nullptr);
    ASSERT_EQ(array.size(), 1u);
    EXPECT_STREQ(array.at(0)->getSeverity(), "warn");
    EXPECT_THROW(array.at(1), ZELStdExceptionError);
    EXPECT_THROW(tarn.addChild(array, "any", tarnType("message")), TARNTypeError);
}

TEST_F(TarnSOAPFault, IsEqualWithAllItsDetails) {
    auto& other = dynamic_cast<TARNSOAPFault&>(tarn.make(Type::eTARNSOAPFault));
    EXPECT_TRUE(fault == other);
    fault.getChildObject("undocumentedDetail", true);
    EXPECT_FALSE(fault == other);
    other.getChildObject("undocumentedDetail", true);
    EXPECT_TRUE(fault == other);
    TARNSchemaTypeI& detail = makeDetail("error");
    fault.getUndocumentedDetail()->setChildObject("any", &detail, detail.getObjectType(), nullptr);
    EXPECT_FALSE(fault == other);
}

}  // namespace
