// The configuration of the services, and where their settings stand again.

#include "tests/support/SchemaScan.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVAAuditLevelEnum.h>
#include <korva/KORVAAuditLevelEnumProp.h>
#include <korva/KORVAConfiguration.h>
#include <korva/KORVADispatcher.h>
#include <korva/KORVAReportService.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childTypeOf;
using korva::test::make;
using korva::test::SchemaField;

std::map<std::string, std::string> ownFields(const std::string& name) {
    std::map<std::string, std::string> out;
    for (const SchemaField& field : builtSchema().at(name).fields)
        out.emplace(field.name, field.type);
    return out;
}

std::vector<std::string> ownNames(const std::string& name) {
    std::vector<std::string> out;
    for (const SchemaField& field : builtSchema().at(name).fields)
        out.push_back(field.name);
    return out;
}

/// The classes that have the two fields which all services have in common.
std::vector<std::string> services() {
    std::vector<std::string> out;
    for (const std::string& name : builtSchema().derivedFrom("uiClass")) {
        const auto fields = ownFields(name);
        if (name != "dispatcher" && fields.count("advancedSettings") != 0 &&
            fields.count("runningState") != 0)
            out.push_back(name);
    }
    return out;
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool withoutRegardToCase(const std::string& left, const std::string& right) {
    return lowered(left) < lowered(right);
}

TEST(Service, ThereAreForty) {
    EXPECT_EQ(services().size(), 40U);
}

TEST(Service, IsAnInstalledComponentUnderItsName) {
    const std::vector<std::string>& words = builtSchema().at("installedComponentEnum").words;
    std::vector<std::string> expected = services();
    std::vector<std::string> sorted = words;
    std::sort(expected.begin(), expected.end());
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, expected);
    EXPECT_EQ(words.size() +
                  static_cast<std::size_t>(builtSchema().at("installedComponentEnum").openWords),
              55U);
}

TEST(Service, ConfigurationFolderHas201FieldsOfItsOwn) {
    EXPECT_EQ(builtSchema().at("configurationFolder").fields.size(), 201U);
    EXPECT_EQ(make("configurationFolder")->getChildObjectCount(), 201U + 29U);
}

TEST(Service, DispatcherHas205FieldsOfItsOwn) {
    EXPECT_EQ(builtSchema().at("dispatcher").fields.size(), 205U);
    EXPECT_EQ(make("dispatcher")->getChildObjectCount(), 205U + 29U);
}

TEST(Service, ConfigurationHas236FieldsOfItsOwn) {
    EXPECT_EQ(builtSchema().at("configuration").fields.size(), 236U);
    EXPECT_EQ(make("configuration")->getChildObjectCount(), 236U + 29U);
}

TEST(Service, SettingsStandAgainInTheThreeClassesAboveWithTheirTypes) {
    std::map<std::string, std::string> expected = {
        {"advancedSettings", "bus:anyTypeProp"},
        {"capacity", "bus:floatProp"},
        {"dispatcherAuditLevel", "bus:auditLevelEnumProp"},
        {"loadBalancingMode", "bus:loadBalancingModeEnumProp"},
        {"nonPeakDemandBeginHour", "bus:nonNegativeIntegerProp"},
        {"peakDemandBeginHour", "bus:nonNegativeIntegerProp"},
        {"serverGroup", "bus:stringProp"},
    };
    for (const std::string& service : services())
        for (const auto& [name, type] : ownFields(service))
            if (name != "runningState" && name != "startAsActive") {
                EXPECT_EQ(expected.emplace(name, type).first->second, type) << name;
            }
    EXPECT_EQ(ownFields("configurationFolder"), expected);
    for (const char* const above : {"dispatcher", "configuration"}) {
        const auto fields = ownFields(above);
        for (const auto& [name, type] : expected) {
            ASSERT_EQ(fields.count(name), 1U) << above << ' ' << name;
            EXPECT_EQ(fields.at(name), type) << above << ' ' << name;
        }
    }
}

TEST(Service, FieldsAreInAlphabeticalOrderWithoutRegardToCase) {
    std::vector<std::string> classes = services();
    classes.insert(classes.end(), {"configurationFolder", "dispatcher"});
    for (const std::string& name : classes) {
        const std::vector<std::string> names = ownNames(name);
        EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), withoutRegardToCase)) << name;
    }
}

TEST(Service, ConfigurationHasOneFieldOutOfOrder) {
    std::vector<std::string> names = ownNames("configuration");
    const auto field = std::find(names.begin(), names.end(), "cookieWardenPassportHttpOnly");
    ASSERT_NE(field, names.end());
    EXPECT_EQ(*(field + 1), "cookieDomain");
    names.erase(field);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), withoutRegardToCase));
}

TEST(Service, OneSettingStandsOnFourClassesWithOneType) {
    for (const char* const name :
         {"reportService", "dispatcher", "configurationFolder", "configuration"})
        EXPECT_EQ(childTypeOf(*make(name), "rsAuditLevel"), "bus:auditLevelEnumProp") << name;
}

TEST(Service, SettingOnOneClassSaysNothingOfTheOthers) {
    KORVAAuditLevelEnum level;
    level.setValue("trace");
    KORVAAuditLevelEnumProp setting;
    setting.setValue(&level);
    KORVAReportService service;
    service.setRsAuditLevel(&setting);
    EXPECT_EQ(service.getChildObject("rsAuditLevel", false), &setting);
    EXPECT_EQ(KORVADispatcher().getRsAuditLevel(), nullptr);
    EXPECT_EQ(KORVAConfiguration().getRsAuditLevel(), nullptr);
    EXPECT_EQ(make("configurationFolder")->getChildObject("rsAuditLevel", false), nullptr);
}

TEST(Service, PlanningDataServiceHasFieldsBesideTheCommonOnes) {
    const auto service = make("planningDataService");
    EXPECT_EQ(childTypeOf(*service, "pdsEListAccessCacheLimit"), "bus:intProp");
    EXPECT_EQ(childTypeOf(*service, "pdsShowCellAnnotations"), "bus:booleanProp");
    EXPECT_EQ(childTypeOf(*service, "pdsConnections"), "bus:intProp");
}

TEST(Service, LogAndRestBridgeServicesHaveTheCommonFieldsOnly) {
    for (const char* const name : {"logService", "restBridgeService"})
        EXPECT_EQ(ownNames(name), (std::vector<std::string>{"advancedSettings", "runningState"}));
}

TEST(Service, AuditLevelStandsInEveryOtherService) {
    for (const std::string& service : services()) {
        const std::vector<std::string> names = ownNames(service);
        const auto levels = std::count_if(names.begin(), names.end(), [](const std::string& name) {
            return name.ends_with("AuditLevel");
        });
        const bool has = service != "logService" && service != "restBridgeService";
        EXPECT_EQ(levels, has ? 1 : 0) << service;
    }
}

TEST(Service, AbbreviationsThatAreAlikeBelongToTheirServices) {
    const struct {
        const char* service;
        const char* field;
    } rows[] = {
        {"agentService", "asConnections"},
        {"monitorService", "msPeakDemandBeginHour"},
        {"deliveryService", "dsConnections"},
        {"dataMovementService", "dmsConnections"},
    };
    for (const auto& owner : rows)
        for (const auto& row : rows) {
            const bool has = &owner == &row;
            EXPECT_EQ(make(owner.service)->getChildType(row.field) != KORVASchemaTypeI::e_Unknown,
                      has)
                << owner.service << ' ' << row.field;
        }
}

TEST(Service, StartAsActiveHasNoPrefixAndStandsInNoClassAbove) {
    EXPECT_EQ(childTypeOf(*make("contentManagerService"), "startAsActive"), "bus:booleanProp");
    for (const char* const name : {"dispatcher", "configurationFolder", "configuration"})
        EXPECT_EQ(make(name)->getChildType("startAsActive"), KORVASchemaTypeI::e_Unknown) << name;
}

}  // namespace
