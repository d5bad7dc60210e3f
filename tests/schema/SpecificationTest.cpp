#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchSpecification.h>
#include <korva/KORVAAsynchSpecificationArray.h>
#include <korva/KORVAReportServiceQuerySpecification.h>
#include <korva/KORVAReportServiceReportSpecification.h>
#include <korva/KORVAReportSpecification.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASpecification.h>

#include <gtest/gtest.h>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

TEST(Specification, FamiliesCannotBeCreated) {
    const auto& factory = KORVASchemaTypesFactory::getInstance();
    const char* const function = "KORVASchemaTypesFactory::create()";
    EXPECT_NUMBERED(factory.create(Object::eKORVAReportServiceSpecification), 0xEA47EC7BU, function,
                    "bus:reportServiceSpecification");
    EXPECT_NUMBERED(factory.create(Object::eKORVAAsynchSpecification), 0xEA47EC7BU, function,
                    "bus:asynchSpecification");
    EXPECT_NUMBERED(factory.create(Object::eKORVAMetadataServiceSpecification), 0xEA47EC7BU,
                    function, "bus:metadataServiceSpecification");
}

TEST(Specification, ClassesDifferOnlyInType) {
    const Registry registry = makeRegistry();
    KORVAReportServiceQuerySpecification query;
    KORVAReportServiceReportSpecification report;
    query.getValue(registry.get())->setValue("<a/>");
    report.getValue(registry.get())->setValue("<a/>");
    EXPECT_EQ(query.getChildObjectCount(), 1u);
    EXPECT_EQ(report.getChildType("value"), Object::eKORVASpecification);
    EXPECT_TRUE(query.isa(Object::eKORVAReportServiceSpecification));
    EXPECT_TRUE(query.isa(Object::eKORVAAsynchSpecification));
    EXPECT_FALSE(query == report);
}

TEST(Specification, RequestHoldsAnyOfThem) {
    const Registry registry = makeRegistry();
    KORVAAsynchRequest request;
    KORVAReportServiceQuerySpecification query;
    query.getValue(registry.get())->setValue("if (a < b) & \"c\"");
    request.getSpecification().push_back(&query);
    const KORVAAsynchRequest copy(request, *registry);
    const KORVAAsynchSpecification* const element = copy.getSpecification().at(0);
    EXPECT_EQ(element->getObjectType(), Object::eKORVAReportServiceQuerySpecification);
    EXPECT_STREQ(element->getValue()->getValue(), "if (a < b) & \"c\"");
}

TEST(Specification, OlderFormHasNoTieToTheFamily) {
    KORVAReportSpecification specification;
    EXPECT_FALSE(specification.isa(Object::eKORVAAsynchSpecification));
    specification.setSpecification("text");
    EXPECT_EQ(specification.getChildType("specification"), Object::eString);
    EXPECT_STREQ(static_cast<const char*>(specification.getChildObject("specification", false)),
                 "text");
}

}  // namespace
