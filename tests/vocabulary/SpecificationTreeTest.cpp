// The documents that say what a service is to run: one class for each service and kind.

#include "tests/support/SchemaScan.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childrenOf;
using korva::test::childTypeOf;
using korva::test::isAbstract;
using korva::test::make;

std::vector<std::string> specifications() {
    std::vector<std::string> out = builtSchema().derivedFrom("asynchSpecification");
    out.erase(std::remove(out.begin(), out.end(), "asynchSpecification"), out.end());
    return out;
}

TEST(SpecificationTree, ThereAre33UnderTheAbstractBase) {
    EXPECT_EQ(specifications().size(), 33U);
    EXPECT_TRUE(isAbstract("asynchSpecification"));
}

TEST(SpecificationTree, FourAreFamilies) {
    std::vector<std::string> families = specifications();
    families.erase(std::remove_if(families.begin(), families.end(),
                                  [](const std::string& name) { return !isAbstract(name); }),
                   families.end());
    EXPECT_EQ(families, (std::vector<std::string>{
                            "adaptiveAnalyticsServiceSpecification", "lumaraServiceSpecification",
                            "metadataServiceSpecification", "reportServiceSpecification"}));
}

TEST(SpecificationTree, HasOneFieldWhateverItsClass) {
    for (const std::string& name : specifications()) {
        if (isAbstract(name)) continue;
        const auto object = make(name);
        EXPECT_EQ(childrenOf(*object), std::vector<std::string>{"value"}) << name;
        EXPECT_EQ(childTypeOf(*object, "value"), "bus:specification") << name;
    }
}

TEST(SpecificationTree, OfTheOlderFormStandsApart) {
    const auto object = make("reportSpecification");
    EXPECT_FALSE(object->isa(KORVASchemaTypeI::eKORVAAsynchSpecification));
    EXPECT_EQ(childTypeOf(*object, "specification"), "xs:string");
}

}  // namespace
