// What is promised of every input, tried on inputs of many kinds.
#include "tests/soap/Reading.h"

#include <zel/ZELThrowable.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::DocumentReader;
using korva::test::envelope;
using korva::test::operation;

const std::vector<std::string>& badEnvelopes() {
    static const auto& all = *new std::vector<std::string>{
        "",
        "text",
        "<a>",
        "<a></b>",
        "<!DOCTYPE a SYSTEM 'none'>" + operation("run", "<a/>"),
        "<!DOCTYPE a [<!ENTITY b SYSTEM 'none'>]>" +
            operation("run", "<objectPath>&b;</objectPath>"),
        operation("run", "<objectPath>&none;</objectPath>"),
        operation("run", "<objectPath xsi:type=\"bus:none\"/>"),
        operation("run", "<objectPath xsi:type=\"none:none\"/>"),
        operation("none", ""),
        envelope("<e:Fault><faultcode>a</faultcode></e:Fault>"),
        envelope("\xFF"),
        std::string(1000, '<'),
        "<?xml version=\"1.0\" encoding=\"none\"?>" + operation("run", "<a/>"),
    };
    return all;
}

TEST(Promise, NothingIsPrinted) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    int refused = 0;
    for (const std::string& text : badEnvelopes()) {
        try {
            korva::test::readRequest(text);
        } catch (const ZELThrowable& refusal) {
            refused += *refusal.toString() != '\0';
        }
        try {
            DocumentReader().read(text);
        } catch (const ZELThrowable& refusal) {
            refused += *refusal.toString() != '\0';
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_GT(refused, static_cast<int>(badEnvelopes().size()));
}

}  // namespace
