// The fields of the classes: which, in which order, of which type.

#include "tests/support/SchemaScan.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childrenOf;
using korva::test::childTypeOf;
using korva::test::Family;
using korva::test::isAbstract;
using korva::test::make;
using korva::test::namesOf;
using korva::test::SchemaField;

void expectDeclaredFields(const std::string& name) {
    if (isAbstract(name)) return;
    const auto object = make(name);
    const std::vector<std::string> children = childrenOf(*object);
    const std::vector<SchemaField> fields = allFields(builtSchema(), name);
    ASSERT_EQ(children.size(), fields.size()) << name;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(children[i], fields[i].name) << name;
        EXPECT_EQ(childTypeOf(*object, children[i]), fields[i].type) << name << '.' << children[i];
    }
}

TEST(Field, OfEachClassStandsInDeclaredOrderWithItsDeclaredType) {
    for (const std::string& name : namesOf(Family::Class))
        expectDeclaredFields(name);
}

TEST(Field, OfEachPropertyIsTheSchemaInfoAndTheValue) {
    for (const std::string& name : namesOf(Family::Property)) {
        expectDeclaredFields(name);
        if (isAbstract(name)) continue;
        EXPECT_EQ(childrenOf(*make(name)), (std::vector<std::string>{"schemaInfo", "value"}));
    }
}

TEST(Field, ThereAreTwentyOfEveryContentObject) {
    EXPECT_EQ(builtSchema().at("baseClass").fields.size(), 20U);
    EXPECT_EQ(make("nil")->getChildObjectCount(), 20U);
}

TEST(Field, ScheduleHas63Children) {
    EXPECT_EQ(make("schedule")->getChildObjectCount(), 63U);
}

TEST(Field, OfABaseIsFoundInADerivedClass) {
    const auto folder = make("folder");
    EXPECT_EQ(childTypeOf(*folder, "hidden"), "bus:booleanProp");
    EXPECT_EQ(childTypeOf(*folder, "searchPath"), "bus:stringProp");
    EXPECT_EQ(folder->getChildType("specification"), KORVASchemaTypeI::e_Unknown);
}

TEST(Field, SevenContentClassesHaveNoneOfTheirOwn) {
    for (const char* const name : {"tenants", "portal", "portalSkinFolder", "resourceFolder",
                                   "dataSetFolder", "modelView", "transientStateFolder"}) {
        EXPECT_TRUE(builtSchema().at(name).fields.empty()) << name;
        EXPECT_EQ(make(name)->getChildObjectCount(),
                  builtSchema().isA(name, "uiClass") ? 29U : 20U);
    }
}

TEST(Field, IsMissingInFourteenClassesThatAreOpen) {
    std::vector<std::string> open;
    for (const auto& [name, type] : builtSchema()) {
        if (!type.openFields) continue;
        open.push_back(name);
        EXPECT_TRUE(type.fields.empty()) << name;
    }
    EXPECT_EQ(open, (std::vector<std::string>{
                        "deploymentReference", "drillThroughAction", "drillThroughPath",
                        "lumaraDataBlock", "mapFeatureInfo", "mapInfo", "mapLayerInfo",
                        "notification", "notificationActiveContentManager", "rolapCubeMessages",
                        "rolapCubeMetrics", "rolapMessage", "tenantInfo", "validateResult"}));
}

TEST(Field, OfTheFaultDetailFollowsFromItsUse) {
    const auto detail = make("faultDetail");
    EXPECT_EQ(childrenOf(*detail), (std::vector<std::string>{"errorCode", "message", "severity"}));
    EXPECT_EQ(childTypeOf(*detail, "errorCode"), "xs:string");
    EXPECT_EQ(childTypeOf(*detail, "message"), "bus:faultDetailMessageArray");
    EXPECT_EQ(childTypeOf(*detail, "severity"), "bus:severityEnum");
    const auto message = make("faultDetailMessage");
    EXPECT_EQ(childrenOf(*message), (std::vector<std::string>{"message", "nestingLevel"}));
    EXPECT_EQ(childTypeOf(*message, "nestingLevel"), "xs:integer");
}

TEST(Field, OfGovernorsAndMetricsIsANameAndAValue) {
    const struct {
        const char* name;
        const char* nameType;
        const char* valueType;
    } rows[] = {
        {"governorBoolean", "bus:governorEnum", "xs:boolean"},
        {"governorInt", "bus:governorEnum", "xs:int"},
        {"rolapMetricDateTime", "xs:string", "xs:dateTime"},
        {"rolapMetricNumber", "xs:string", "xs:float"},
        {"rolapMetricString", "xs:string", "xs:string"},
        {"lumaraOptionBoolean", "bus:lumaraOptionEnum", "xs:boolean"},
        {"lumaraOptionData", "bus:lumaraOptionEnum", "bus:lumaraDataEnum"},
        {"lumaraOptionOutputFormat", "bus:lumaraOptionEnum", "bus:lumaraOutputFormatEnum"},
    };
    for (const auto& row : rows) {
        const auto object = make(row.name);
        EXPECT_EQ(childrenOf(*object), (std::vector<std::string>{"name", "value"})) << row.name;
        EXPECT_EQ(childTypeOf(*object, "name"), row.nameType) << row.name;
        EXPECT_EQ(childTypeOf(*object, "value"), row.valueType) << row.name;
    }
    for (const char* const base : {"governor", "rolapMetric", "lumaraOption"})
        EXPECT_TRUE(isAbstract(base)) << base;
}

}  // namespace
