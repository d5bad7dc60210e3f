#include "tests/roundtrip/Operations.h"
#include "tests/roundtrip/Wire.h"
#include "tests/roundtrip/WireForm.h"
#include "tests/support/Comparison.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ObjectFiller.h"
#include "tests/support/RandomValues.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"

#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_PortTypes.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using korva::test::areEqual;
using korva::test::areSameBytes;
using korva::test::Binding;
using korva::test::builtSchema;
using korva::test::makeRegistry;
using korva::test::messageTypeOf;
using korva::test::ObjectFiller;
using korva::test::operations;
using korva::test::PortTypeOperation;
using korva::test::RandomValues;
using korva::test::Registry;
using korva::test::WireForm;
using korva::test::writeEnvelope;
using Object = KORVASchemaTypeI;
using Factory = KORVASchemaTypesFactory;

/// The version of "query" that no reader finds: an earlier one has all of its parameters.
constexpr const char* hiddenRequest = "Many_CMS_query_1_Request";
constexpr const char* hidingRequest = "CMS_query_2_Request";

/// Whether the reader of a request takes the parameter for what the request's version declares:
/// the versions of an operation share one type for each name.
bool isToldAlike(const PortTypeOperation& operation,
                 const KORVAMessageFactory::KORVAParamDescriptor& row) {
    return operation.portType->resolveOperationParamType(operation.name.c_str(), row.name) ==
           row.type;
}

/// Runs whole calls between a client and a server.
class Calls {
public:
    Calls()
        : m_sources(makeRegistry()),
          m_filler(builtSchema(), m_sources, m_values),
          m_form(builtSchema()) {}

    /// How much a call carries.
    enum Load { eNothing, eParameters, eParametersAndHeader };

    /// Sends a request to the server and the server's reply to the client.
    void run(const PortTypeOperation& operation, Load load) {
        SCOPED_TRACE(std::string(operation.portType->getName()) + "." + operation.name + ", " +
                     operation.request);
        m_values.restart(static_cast<unsigned>(messageTypeOf(operation.request)) + load);
        const Binding client =
            operation.portType->createPortTypeBinding(messageTypeOf(operation.request));
        expectBinding(*client, operation);
        fill(client->getInputMessage(), operation, load);
        const Binding server = sendRequest(*client, operation);
        ASSERT_TRUE(server);
        fill(server->getOutputMessage(), operation, load);
        sendReply(*server, *client);
        m_sources->clean();
    }

    static void expectBinding(const KORVAPortTypeBinding& binding,
                              const PortTypeOperation& operation) {
        EXPECT_EQ(binding.getOperationName(), operation.name);
        EXPECT_STREQ(binding.getOperationNamespace(), operation.portType->getBoundNamespace());
        EXPECT_EQ(binding.getSOAPAction(), operation.action);
        EXPECT_EQ(&binding.getBoundPortType(), operation.portType);
        EXPECT_EQ(binding.getInputMessage().getMessageName(), operation.request);
        EXPECT_EQ(binding.getOutputMessage().getMessageName(), operation.reply);
    }

private:
    void fill(KORVAMessageI& message, const PortTypeOperation& operation, Load load) {
        if (load == eNothing) return;
        const bool isRequest = message.getMessageName() == operation.request;
        const auto* parameter =
            KORVAMessageFactory::getInstance().getParameterTypes(message.getMessageType());
        for (; parameter->name != nullptr; ++parameter) {
            if (isRequest && !isToldAlike(operation, *parameter)) continue;
            void* const value = m_filler.makeValue(parameter->name, parameter->type);
            ASSERT_NE(value, nullptr) << parameter->name;
            message.setChildObject(parameter->name, value, parameter->type);
            EXPECT_NE(message.getChildObject(parameter->name, false), nullptr);
        }
        if (load == eParametersAndHeader)
            message.setHalyardHeader(
                static_cast<KORVAHalyardHeader*>(&m_filler.make("halyardHeader")));
    }

    Binding sendRequest(KORVAPortTypeBinding& client, const PortTypeOperation& operation) {
        KORVAMessageI& sent = client.getInputMessage();
        const std::string xml = writeEnvelope(client, sent);
        m_form.expectEnvelope(xml, client, sent);
        const Binding server = korva::test::readRequest(m_deserializer, xml);
        KORVAMessageI& read = server->getInputMessage();
        if (operation.request == hiddenRequest) {
            EXPECT_STREQ(read.getMessageName(), hidingRequest);
            return operation.portType->createPortTypeBinding(sent.getMessageType());
        }
        expectBinding(*server, operation);
        expectArrived(sent, read);
        expectWrittenAlike(xml, *server, read);
        return server;
    }

    void sendReply(KORVAPortTypeBinding& server, KORVAPortTypeBinding& client) {
        KORVAMessageI& sent = server.getOutputMessage();
        const std::string xml = writeEnvelope(server, sent);
        m_form.expectEnvelope(xml, server, sent);
        korva::test::readReply(m_deserializer, client, xml);
        expectArrived(sent, client.getOutputMessage());
        expectWrittenAlike(xml, client, client.getOutputMessage());
    }

    static void expectArrived(KORVAMessageI& sent, KORVAMessageI& read) {
        ASSERT_EQ(read.getMessageType(), sent.getMessageType());
        std::vector<const char*> names;
        sent.getChildObjectNames(names);
        for (const char* const name : names) {
            SCOPED_TRACE(name);
            EXPECT_EQ(read.getChildType(name), sent.getChildType(name));
            const void* const value = read.getChildObject(name, false);
            if (sent.getChildObject(name, false) == nullptr &&
                Factory::isArrayType(sent.getChildType(name))) {
                // No array and an empty one are alike to a reader.
                ASSERT_NE(value, nullptr);
                EXPECT_EQ(static_cast<const KORVASchemaTypeArrayI*>(value)->size(), 0u);
                continue;
            }
            EXPECT_TRUE(areEqual(sent.getChildObject(name, false), value, sent.getChildType(name)));
        }
        EXPECT_TRUE(areEqual(sent.getHalyardHeader(nullptr), read.getHalyardHeader(nullptr),
                             Object::eKORVAHalyardHeader));
    }

    /// Expects `message` to be written as `xml`, in which no array and an empty one are alike.
    static void expectWrittenAlike(std::string xml, KORVAPortTypeBinding& binding,
                                   KORVAMessageI& message) {
        const std::string none = "[]\"/>";
        for (std::size_t at = 0; (at = xml.find(none, at)) != std::string::npos;)
            xml.insert(at + 1, "0");
        EXPECT_TRUE(areSameBytes(writeEnvelope(binding, message), xml));
    }

    Registry m_sources;
    RandomValues m_values;
    ObjectFiller m_filler;
    WireForm m_form;
    KORVASOAPMessageIDeserializer m_deserializer;
};

/// The operations of one port type.
class OperationsOnTheWire : public testing::TestWithParam<std::string> {
protected:
    void runAll(Calls::Load load) {
        Calls calls;
        std::size_t count = 0;
        for (const PortTypeOperation& operation : operations()) {
            if (operation.portType->getName() != GetParam()) continue;
            calls.run(operation, load);
            ++count;
        }
        EXPECT_GT(count, 0u);
    }
};

TEST_P(OperationsOnTheWire, EachGoesRoundWithParametersOnly) {
    runAll(Calls::eParameters);
}

TEST_P(OperationsOnTheWire, EachGoesRoundWithParametersAndHeader) {
    runAll(Calls::eParametersAndHeader);
}

TEST_P(OperationsOnTheWire, EachGoesRoundWithNothing) {
    runAll(Calls::eNothing);
}

std::vector<std::string> portTypeNames() {
    std::vector<std::string> names;
    for (const KORVAPortTypeI* const portType : KORVA_PortTypes::all())
        names.emplace_back(portType->getName());
    return names;
}

INSTANTIATE_TEST_SUITE_P(PortType, OperationsOnTheWire, testing::ValuesIn(portTypeNames()),
                         [](const auto& info) { return info.param; });

TEST(OperationVersions, AreAllThatTheListHas) {
    EXPECT_EQ(operations().size(), 293u);
    std::set<std::string> requests;
    std::set<const KORVAPortTypeI*> portTypes;
    for (const PortTypeOperation& operation : operations()) {
        requests.insert(operation.request);
        portTypes.insert(operation.portType);
    }
    EXPECT_EQ(requests.size(), 203u);
    EXPECT_EQ(portTypes.size(), 10u);
}

const PortTypeOperation& operationWith(const std::string& request) {
    const auto row = std::find_if(
        operations().begin(), operations().end(),
        [&request](const PortTypeOperation& operation) { return operation.request == request; });
    if (row == operations().end()) throw std::runtime_error("no operation has " + request);
    return *row;
}

TEST(OperationVersions, DisagreeOnTheTypeOfTheQueryOptionsAlone) {
    std::set<std::string> requests;
    for (const PortTypeOperation& operation : operations()) {
        const auto* parameter =
            KORVAMessageFactory::getInstance().getParameterTypes(messageTypeOf(operation.request));
        for (; parameter->name != nullptr; ++parameter)
            if (!isToldAlike(operation, *parameter))
                requests.insert(operation.request + "." + parameter->name);
    }
    EXPECT_EQ(requests,
              (std::set<std::string>{"CMS_query_2_Request.options", "RS_query_Request.options"}));
}

TEST(OperationVersions, ReaderRefusesTheOptionsOfALaterQuery) {
    const Registry sources = makeRegistry();
    ObjectFiller filler(builtSchema(), sources);
    const std::pair<const char*, const char*> requests[] = {
        {"CMS_query_2_Request", "queryMultipleOptions"},
        {"RS_query_Request", "queryReportOptions"},
    };
    for (const auto& [request, options] : requests) {
        const Binding client =
            operationWith(request).portType->createPortTypeBinding(messageTypeOf(request));
        KORVASchemaTypeI& value = filler.make(options);
        client->getInputMessage().setChildObject("options", &value, value.getObjectType());
        const std::string xml = writeEnvelope(*client, client->getInputMessage());
        KORVASOAPMessageIDeserializer deserializer;
        EXPECT_NUMBERED(korva::test::readRequest(deserializer, xml), 0xEA4BD4DBU,
                        "KORVASchemaTypeIContentHandler::checkType()", "options",
                        "bus:queryOptions", std::string("bus:") + options);
    }
}

TEST(OperationVersions, ParametersOfAHiddenVersionArriveInTheOneThatHidesIt) {
    const Registry sources = makeRegistry();
    ObjectFiller filler(builtSchema(), sources);
    const PortTypeOperation& hidden = operationWith(hiddenRequest);
    const Binding client = hidden.portType->createPortTypeBinding(messageTypeOf(hiddenRequest));
    KORVASchemaTypeI& requests = filler.make("queryRequestArray");
    client->getInputMessage().setChildObject("requests", &requests, requests.getObjectType());
    const std::string xml = writeEnvelope(*client, client->getInputMessage());

    KORVASOAPMessageIDeserializer deserializer;
    const Binding server = korva::test::readRequest(deserializer, xml);
    Calls::expectBinding(*server, operationWith(hidingRequest));
    KORVAMessageI& read = server->getInputMessage();
    EXPECT_TRUE(
        areEqual(&requests, read.getChildObject("requests", false), requests.getObjectType()));
    EXPECT_EQ(read.getChildObject("options", false), nullptr);
}

}  // namespace
