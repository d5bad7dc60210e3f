// All port types, and what each offers, without knowing one.

#include "tests/messages/PortTypes.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/Tables.h"
#include "tests/vocabulary/Types.h"

#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVA_PortType.h>
#include <korva/KORVA_PortTypes.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace {

using korva::test::crcOf;
using korva::test::Operation;
using korva::test::PortTypeTable;
using korva::test::portTypeTables;
using korva::test::withAuthority;

KORVAMessageI::MessageType messageTypeOf(const std::string& name) {
    return static_cast<KORVAMessageI::MessageType>(crcOf(name));
}

std::vector<KORVA_Operation> versionsOf(const char* portType, const std::string& name) {
    std::vector<KORVA_Operation> versions;
    for (const KORVA_Operation operation : KORVA_PortTypes::find(portType)->getOperations())
        if (operation.getName() == name) versions.push_back(operation);
    return versions;
}

TEST(PortTypeList, HasEachPortTypeOnce) {
    std::multiset<std::string> listed;
    for (const KORVAPortTypeI* const portType : KORVA_PortTypes::all())
        listed.insert(portType->getName());
    std::multiset<std::string> known;
    for (const PortTypeTable& table : portTypeTables())
        known.insert(table.name);
    EXPECT_EQ(listed, known);
}

TEST(PortTypeList, HoldsTheInstances) {
    EXPECT_EQ(KORVA_PortTypes::all().front(), &KORVABatchReportServicePortType::getInstance());
    EXPECT_EQ(KORVA_PortTypes::all().back(), &KORVAVelmoraTabulonPortType::getInstance());
    EXPECT_EQ(&KORVA_PortTypes::all(), &KORVA_PortTypes::all());
}

TEST(PortTypeList, FindsByName) {
    EXPECT_EQ(KORVA_PortTypes::find("dispatcher"), &KORVADispatcherPortType::getInstance());
    EXPECT_EQ(KORVA_PortTypes::find("Dispatcher"), nullptr);
    EXPECT_ASSERTION(KORVA_PortTypes::find(nullptr), "ZEL_ASSERT(name);");
}

TEST(OperationList, HasTheRowsOfTheTable) {
    using Row = std::tuple<std::string, KORVAMessageI::MessageType, KORVAMessageI::MessageType,
                           std::string>;
    for (const PortTypeTable& table : portTypeTables()) {
        std::multiset<Row> expected;
        for (const Operation& row : table.operations)
            expected.emplace(row.name, messageTypeOf(row.request), messageTypeOf(row.reply),
                             withAuthority(row.action.c_str()));
        const KORVA_Operations operations =
            KORVA_PortTypes::find(table.name.c_str())->getOperations();
        std::multiset<Row> listed;
        for (const KORVA_Operation operation : operations)
            listed.emplace(operation.getName(), operation.getRequestType(),
                           operation.getReplyType(), operation.getSOAPAction());
        EXPECT_EQ(listed, expected) << table.name;
        EXPECT_EQ(operations.size(), table.operations.size());
    }
}

TEST(OperationList, CountsVersionsOfOneName) {
    std::vector<int> numbers;
    for (const KORVA_Operation& version : versionsOf("VelmoraTabulonPortType", "execute"))
        numbers.push_back(version.getVersion());
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(versionsOf("dispatcher", "run").front().getVersion(), 1);
}

TEST(OperationList, TellsParametersOfBothMessages) {
    const KORVA_Operation run = versionsOf("dispatcher", "run").front();
    std::vector<std::string> names;
    for (const auto& parameter : run.getParameters())
        names.emplace_back(parameter.name);
    EXPECT_EQ(names, (std::vector<std::string>{"objectPath", "parameterValues", "options"}));
    ASSERT_EQ(run.getReplyParameters().size(), 1U);
    EXPECT_STREQ(run.getReplyParameters().front().name, "result");
    EXPECT_EQ(run.getReplyParameters().front().type, KORVASchemaTypeI::eKORVAAsynchReply);
}

TEST(OperationList, BindsEachOperation) {
    for (KORVAPortTypeI* const portType : KORVA_PortTypes::all())
        for (const KORVA_Operation operation :
             static_cast<const KORVA_PortType*>(portType)->getOperations()) {
            const ZELSmartPointer<KORVAPortTypeBinding> binding = operation.createBinding();
            EXPECT_EQ(&binding->getBoundPortType(), &operation.getPortType());
            EXPECT_STREQ(binding->getOperationName(), operation.getName());
            EXPECT_STREQ(binding->getOperationNamespace(), operation.getNamespace());
            EXPECT_STREQ(binding->getSOAPAction(), operation.getSOAPAction());
            EXPECT_EQ(binding->getInputMessage().getMessageType(), operation.getRequestType());
            EXPECT_EQ(binding->getOutputMessage().getMessageType(), operation.getReplyType());
        }
}

}  // namespace
