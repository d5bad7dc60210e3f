// The operations of the ten port types.

#include "tests/messages/PortTypes.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Tables.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVA_Null_Reply.h>
#include <korva/KORVA_Null_Request.h>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::crcOf;
using korva::test::Operation;
using korva::test::Parameter;
using korva::test::PortTypeCase;
using korva::test::PortTypeTable;
using korva::test::portTypeTables;
using korva::test::Signature;
using korva::test::signatures;
using korva::test::withAuthority;

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;

const KORVAPortTypeI& portTypeOf(const std::string& name) {
    for (const PortTypeCase& port : korva::test::portTypes())
        if (name == port.portType.getName()) return port.portType;
    ADD_FAILURE() << name;
    return KORVADispatcherPortType::getInstance();
}

KORVAMessageI::MessageType messageTypeOf(const std::string& name) {
    return static_cast<KORVAMessageI::MessageType>(crcOf(name));
}

bool binds(const KORVAPortTypeI& portType, const std::string& request) {
    try {
        const Binding binding(portType.createPortTypeBinding(messageTypeOf(request)));
        return true;
    } catch (const ZELAssertError&) {
        return false;
    }
}

const Signature& signatureOf(const std::string& request) {
    for (const Signature& signature : signatures())
        if (signature.stem + "_Request" == request) return signature;
    ADD_FAILURE() << request;
    return signatures().front();
}

TEST(OperationVocabulary, PortTypesHaveTheirNumbersOfOperations) {
    std::vector<std::size_t> counts;
    std::size_t total = 0;
    for (const PortTypeTable& table : portTypeTables()) {
        std::size_t count = 0;
        for (const Signature& signature : signatures())
            count += binds(portTypeOf(table.name), signature.stem + "_Request") ? 1 : 0;
        EXPECT_EQ(count, table.operations.size()) << table.name;
        counts.push_back(count);
        total += count;
    }
    EXPECT_EQ(counts, (std::vector<std::size_t>{49, 49, 91, 12, 8, 13, 34, 1, 31, 5}));
    EXPECT_EQ(total, 293U);
}

TEST(OperationVocabulary, Uses203Requests) {
    std::set<std::string> requests;
    for (const PortTypeTable& table : portTypeTables())
        for (const Operation& operation : table.operations)
            requests.insert(operation.request);
    EXPECT_EQ(requests.size(), 203U);
}

TEST(OperationVocabulary, Leaves35StemsWithoutAPortType) {
    std::vector<std::string> unlisted;
    for (const Signature& signature : signatures()) {
        bool isBound = false;
        for (const PortTypeTable& table : portTypeTables())
            isBound = isBound || binds(portTypeOf(table.name), signature.stem + "_Request");
        if (!isBound) unlisted.push_back(signature.stem);
    }
    EXPECT_EQ(unlisted, (std::vector<std::string>{"agentDeleteHotList",
                                                  "agentValidateAgent",
                                                  "indexDataAdd",
                                                  "indexDataDelete",
                                                  "indexDataGet",
                                                  "indexTermAddTermAssociation",
                                                  "indexTermDeleteTermAssociation",
                                                  "indexUpdateAdd",
                                                  "indexUpdateDelete",
                                                  "indexUpdateGet",
                                                  "metadataQueryMetadata",
                                                  "metadataUpdateMetadata",
                                                  "rolapCubeAdministrationClearCubeWorkload",
                                                  "rolapCubeAdministrationGetCubeMessages",
                                                  "rolapCubeAdministrationGetCubeMetrics",
                                                  "rolapCubeAdministrationGetCubeState",
                                                  "rolapCubeAdministrationIncrementallyLoadCubes",
                                                  "rolapCubeAdministrationPauseCubes",
                                                  "rolapCubeAdministrationRefreshCubeDataCache",
                                                  "rolapCubeAdministrationRefreshCubeMemberCache",
                                                  "rolapCubeAdministrationRefreshCubeSecurity",
                                                  "rolapCubeAdministrationRestartCubes",
                                                  "rolapCubeAdministrationStartCubes",
                                                  "rolapCubeAdministrationStopCubes",
                                                  "standaloneWardenGetIdentity",
                                                  "standaloneWardenRetrieveCredential",
                                                  "standaloneWardenTerminateSessions",
                                                  "systemGetConfiguration",
                                                  "systemGetFormatSamples",
                                                  "systemMapContentLocale",
                                                  "systemMapProductLocale",
                                                  "systemNormalizeLocale",
                                                  "systemValidateContentLocale",
                                                  "systemValidateProductLocale",
                                                  "testDataSourceConnectionWithInfo"}));
    EXPECT_EQ(unlisted.size(), 35U);
}

TEST(OperationVocabulary, PortTypeHasTheNamespaceOfTheTable) {
    EXPECT_EQ(portTypeTables().size(), 10U);
    for (const PortTypeTable& table : portTypeTables())
        EXPECT_EQ(portTypeOf(table.name).getBoundNamespace(),
                  withAuthority(table.boundNamespace.c_str()));
}

TEST(OperationVocabulary, EveryRowBindsAsTheTableHasIt) {
    for (const PortTypeTable& table : portTypeTables()) {
        const KORVAPortTypeI& portType = portTypeOf(table.name);
        for (const Operation& row : table.operations) {
            const Binding binding(portType.createPortTypeBinding(messageTypeOf(row.request)));
            EXPECT_EQ(binding->getOperationName(), row.name) << row.request;
            EXPECT_EQ(binding->getOperationNamespace(),
                      withAuthority(table.boundNamespace.c_str()));
            EXPECT_EQ(binding->getSOAPAction(), withAuthority(row.action.c_str())) << row.request;
            EXPECT_EQ(binding->getInputMessage().getMessageName(), row.request);
            EXPECT_EQ(binding->getOutputMessage().getMessageName(), row.reply);
            EXPECT_EQ(&binding->getBoundPortType(), &portType);
        }
    }
}

TEST(OperationVocabulary, NameWithoutParametersBindsTheFirstVersion) {
    for (const PortTypeTable& table : portTypeTables()) {
        std::set<std::string> seen;
        for (const Operation& row : table.operations) {
            if (!seen.insert(row.name).second) continue;
            const Binding binding(
                portTypeOf(table.name).createPortTypeBinding(row.name.c_str(), {}));
            EXPECT_EQ(binding->getInputMessage().getMessageName(), row.request) << table.name;
        }
    }
}

TEST(OperationVocabulary, ParametersResolveToTheirTypesInTheFirstVersionThatHasThem) {
    for (const PortTypeTable& table : portTypeTables()) {
        std::map<std::string, std::string> types;
        for (const Operation& row : table.operations)
            for (const Parameter& parameter : signatureOf(row.request).request)
                types.emplace(row.name + ' ' + parameter.name, parameter.type);
        for (const auto& [key, type] : types) {
            const std::size_t space = key.find(' ');
            EXPECT_EQ(portTypeOf(table.name)
                          .resolveOperationParamType(key.substr(0, space).c_str(),
                                                     key.substr(space + 1).c_str()),
                      KORVASchemaTypesFactory::getInstance().stringToObjectType(
                          type == "base64" ? "base64Binary" : type.c_str()))
                << table.name << ' ' << key;
        }
    }
}

TEST(OperationVocabulary, NullMessagesBindEverywhereWithTheActionOfTheFirstOperation) {
    std::size_t rows = 0;
    for (const PortTypeTable& table : portTypeTables()) {
        const ZELSmartPointer<KORVAMessageI> request(new KORVA_Null_Request);
        const ZELSmartPointer<KORVAMessageI> reply(new KORVA_Null_Reply);
        const Binding binding(portTypeOf(table.name).createPortTypeBinding(*request, *reply));
        EXPECT_STREQ(binding->getOperationName(), "");
        EXPECT_EQ(binding->getSOAPAction(), withAuthority(table.operations.front().action.c_str()));
        ++rows;
    }
    EXPECT_EQ(rows, 10U);
}

TEST(OperationVocabulary, RunOfTheDispatcherHasTheActionOfAnotherService) {
    const Binding binding(KORVADispatcherPortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAAsynchRun_Request));
    EXPECT_STREQ(binding->getOperationName(), "run");
    EXPECT_EQ(binding->getOperationNamespace(), withAuthority("/schemas/dispatcher/1"));
    EXPECT_EQ(binding->getSOAPAction(),
              withAuthority("/xmlns/prod/velmora/burstDistributionService/202004/.session"));
}

TEST(OperationVocabulary, SameRequestHasAnotherActionOnAnotherPortType) {
    KORVAPortTypeBinding* const made =
        KORVAMobileServicePortType::getInstance().createPortTypeBinding(new KORVAAsynchRun_Request);
    const Binding binding(made);
    EXPECT_EQ(binding->getSOAPAction(),
              withAuthority("/xmlns/prod/velmora/mobileService/202004/.session"));
    EXPECT_EQ(binding->getOperationNamespace(), withAuthority("/schemas/mobileService/1"));
}

TEST(OperationVocabulary, NullRowOfThePortTypeWithoutAPlainActionHasAQualifiedOne) {
    const ZELSmartPointer<KORVAMessageI> request(new KORVA_Null_Request);
    const ZELSmartPointer<KORVAMessageI> reply(new KORVA_Null_Reply);
    const Binding binding(
        KORVAMobileServicePortType::getInstance().createPortTypeBinding(*request, *reply));
    EXPECT_EQ(binding->getSOAPAction(),
              withAuthority("/xmlns/prod/velmora/mobileService/202004/.control"));
}

TEST(OperationVocabulary, NoPortTypeListsARequestTwice) {
    for (const PortTypeTable& table : portTypeTables()) {
        std::set<std::string> requests;
        for (const Operation& operation : table.operations)
            EXPECT_TRUE(requests.insert(operation.request).second) << operation.request;
    }
}

}  // namespace
