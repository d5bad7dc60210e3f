// Bindings, and how port types make them from messages.

#include "tests/messages/PortTypes.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAgentDeleteHotList_Request.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAAsynchWait_Reply.h>
#include <korva/KORVADispatcherNotify_Request.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVA_Null_Reply.h>
#include <korva/KORVA_Null_Request.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::PortTypeCase;
using korva::test::portTypes;
using korva::test::withAuthority;
using Binding = ZELSmartPointer<KORVAPortTypeBinding>;
using Message = ZELSmartPointer<KORVAMessageI>;

constexpr char noBinding[] =
    "ZEL_ASSERT_NAMED(false, \"There is no binding for the requested input/output message.\");";
constexpr char noPair[] =
    "ZEL_ASSERT_NAMED(pOperationMetadata->outputMessageType == outputMessage.getMessageType(), "
    "\"There is no defined binding between the requested input and output messages.\");";

const KORVAPortTypeI& dispatcher() {
    return KORVADispatcherPortType::getInstance();
}

// Made directly

TEST(PortTypeBinding, ByReferenceKeepsWhatItIsGivenAndHoldsNoReference) {
    const char name[] = "run";
    const char space[] = "urn:x";
    const char action[] = "action";
    KORVAAsynchRun_Request input;
    KORVAAsynchRun_Reply output;
    const Binding binding =
        KORVAPortTypeBinding::create(name, space, action, dispatcher(), input, output);
    EXPECT_EQ(binding->getOperationName(), name);
    EXPECT_EQ(binding->getOperationNamespace(), space);
    EXPECT_EQ(binding->getSOAPAction(), action);
    EXPECT_EQ(&binding->getBoundPortType(), &dispatcher());
    EXPECT_EQ(&binding->getInputMessage(), &input);
    EXPECT_EQ(&binding->getOutputMessage(), &output);
    EXPECT_EQ(input.getReferenceCount(), 0U);
    EXPECT_EQ(output.getReferenceCount(), 0U);
}

TEST(PortTypeBinding, ByPointerHoldsReferencesUntilItEnds) {
    const Message input = new KORVAAsynchRun_Request;
    const Message output = new KORVAAsynchRun_Reply;
    {
        const Binding binding = KORVAPortTypeBinding::create("run", "urn:x", "action", dispatcher(),
                                                             input.get(), output.get());
        EXPECT_EQ(&binding->getInputMessage(), input.get());
        EXPECT_EQ(&binding->getOutputMessage(), output.get());
        EXPECT_EQ(input->getReferenceCount(), 2U);
        EXPECT_EQ(output->getReferenceCount(), 2U);
    }
    EXPECT_EQ(input->getReferenceCount(), 1U);
    EXPECT_EQ(output->getReferenceCount(), 1U);
}

TEST(PortTypeBinding, StartsWithoutReferences) {
    KORVAAsynchRun_Request input;
    KORVAAsynchRun_Reply output;
    auto* const binding = KORVAPortTypeBinding::create("", "", "", dispatcher(), input, output);
    EXPECT_EQ(binding->getReferenceCount(), 0U);
    binding->addReference();
    binding->removeReference();
}

TEST(PortTypeBinding, AssertsOnNullTexts) {
    KORVAAsynchRun_Request input;
    KORVAAsynchRun_Reply output;
    const struct {
        const char* name;
        const char* space;
        const char* action;
        const char* text;
    } rows[] = {{nullptr, nullptr, nullptr, "ZEL_ASSERT(m_pOperationName);"},
                {"", nullptr, nullptr, "ZEL_ASSERT(m_pOperationNamespace);"},
                {"", "", nullptr, "ZEL_ASSERT(m_pSOAPAction);"}};
    for (const auto& row : rows) {
        EXPECT_ASSERTION(KORVAPortTypeBinding::create(row.name, row.space, row.action, dispatcher(),
                                                      input, output),
                         row.text);
        EXPECT_ASSERTION(KORVAPortTypeBinding::create(row.name, row.space, row.action, dispatcher(),
                                                      &input, &output),
                         row.text);
    }
}

TEST(PortTypeBinding, AssertsOnNullMessages) {
    const Message message = new KORVAAsynchRun_Request;
    EXPECT_ASSERTION(KORVAPortTypeBinding::create("", "", "", dispatcher(), nullptr, message.get()),
                     "ZEL_ASSERT(&m_inputMessage);");
    EXPECT_ASSERTION(KORVAPortTypeBinding::create("", "", "", dispatcher(), message.get(), nullptr),
                     "ZEL_ASSERT(&m_outputMessage);");
    EXPECT_EQ(message->getReferenceCount(), 1U);
}

// By two messages

TEST(BindingOfMessages, TakesTheRowOfTheRequest) {
    KORVAAsynchRun_Request input;
    KORVAAsynchRun_Reply output;
    const Binding binding = dispatcher().createPortTypeBinding(input, output);
    EXPECT_STREQ(binding->getOperationName(), "run");
    EXPECT_EQ(binding->getOperationNamespace(), withAuthority("/schemas/dispatcher/1"));
    EXPECT_EQ(binding->getSOAPAction(),
              withAuthority("/xmlns/prod/velmora/burstDistributionService/202004/.session"));
    EXPECT_EQ(&binding->getBoundPortType(), &dispatcher());
    EXPECT_EQ(&binding->getInputMessage(), &input);
    EXPECT_EQ(&binding->getOutputMessage(), &output);
    EXPECT_EQ(input.getReferenceCount(), 0U);
    EXPECT_EQ(output.getReferenceCount(), 0U);
}

TEST(BindingOfMessages, AssertsWithoutARow) {
    KORVAAgentDeleteHotList_Request listedNowhere;
    KORVADispatcherNotify_Request listedElsewhere;
    KORVAAsynchRun_Reply output;
    for (const PortTypeCase& port : portTypes())
        EXPECT_ASSERTION(port.portType.createPortTypeBinding(listedNowhere, output), noBinding);
    EXPECT_ASSERTION(
        KORVAMobileServicePortType::getInstance().createPortTypeBinding(listedElsewhere, output),
        noBinding);
    // A reply is no request.
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding(output, output), noBinding);
}

TEST(BindingOfMessages, AssertsOnTheReplyOfAnotherRequest) {
    KORVAAsynchRun_Request input;
    KORVAAsynchWait_Reply output;
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding(input, output), noPair);
    KORVA_Null_Reply null;
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding(input, null), noPair);
}

TEST(BindingOfMessages, NullPairHasTheEmptyNameAndTheFirstOperationsAction) {
    for (const PortTypeCase& port : portTypes()) {
        KORVA_Null_Request input;
        KORVA_Null_Reply output;
        const Binding binding = port.portType.createPortTypeBinding(input, output);
        EXPECT_STREQ(binding->getOperationName(), "");
        EXPECT_EQ(binding->getOperationNamespace(), withAuthority(port.boundNamespace));
        EXPECT_EQ(binding->getSOAPAction(), withAuthority(port.firstAction)) << port.name;
    }
}

TEST(BindingOfMessages, OneRequestBindsOnEveryPortTypeThatOffersIt) {
    const struct {
        const KORVAPortTypeI& portType;
        const char* boundNamespace;
        const char* action;
    } rows[] = {
        {KORVAReportServicePortType::getInstance(), "/schemas/reportService/1",
         "/xmlns/prod/velmora/reportService/202004/.session"},
        {KORVABatchReportServicePortType::getInstance(), "/schemas/batchReportService/1",
         "/xmlns/prod/velmora/batchReportService/202004/.session"},
        {KORVADeliveryServicePortType::getInstance(), "/schemas/deliveryService/1",
         "/xmlns/prod/velmora/deliveryService/202004/.session"},
        {KORVADispatcherPortType::getInstance(), "/schemas/dispatcher/1",
         "/xmlns/prod/velmora/burstDistributionService/202004/.session"},
        {KORVAMonitorServicePortType::getInstance(), "/schemas/monitorService/1",
         "/xmlns/prod/velmora/monitorService/202004/.session"},
        {KORVAContentManagerServicePortType::getInstance(), "/schemas/contentManagerService/1",
         "/xmlns/prod/velmora/contentManagerService/202004/.session"},
        {KORVAEventManagementServicePortType::getInstance(), "/schemas/eventManagementService/1",
         "/xmlns/prod/velmora/eventManagementService/202004/.session"},
        {KORVAMobileServicePortType::getInstance(), "/schemas/mobileService/1",
         "/xmlns/prod/velmora/mobileService/202004/.session"},
    };
    const Message input = new KORVAAsynchRun_Request;
    for (const auto& row : rows) {
        const Binding binding = row.portType.createPortTypeBinding(input.get());
        EXPECT_STREQ(binding->getOperationName(), "run");
        EXPECT_EQ(binding->getOperationNamespace(), withAuthority(row.boundNamespace));
        EXPECT_EQ(binding->getSOAPAction(), withAuthority(row.action));
    }
}

// By the request

TEST(BindingOfRequest, MakesTheReply) {
    const Message input = new KORVAAsynchRun_Request;
    {
        const Binding binding = dispatcher().createPortTypeBinding(input.get());
        EXPECT_EQ(&binding->getInputMessage(), input.get());
        EXPECT_EQ(binding->getOutputMessage().getMessageType(),
                  KORVAMessageI::eKORVAAsynchRun_Reply);
        EXPECT_EQ(binding->getOutputMessage().getReferenceCount(), 1U);
        EXPECT_EQ(input->getReferenceCount(), 2U);
    }
    EXPECT_EQ(input->getReferenceCount(), 1U);
}

TEST(BindingOfRequest, ComesWithoutReferencesAndHoldsTheLastOnTheRequest) {
    auto* const binding = dispatcher().createPortTypeBinding(new KORVAAsynchRun_Request);
    EXPECT_EQ(binding->getReferenceCount(), 0U);
    EXPECT_EQ(binding->getInputMessage().getReferenceCount(), 1U);
    const Binding holder = binding;
}

TEST(BindingOfRequest, AssertsOnNull) {
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding(nullptr), "ZEL_ASSERT(pInputMessage);");
}

TEST(BindingOfRequest, WithoutARowAssertsAndLeavesTheMessage) {
    KORVAAgentDeleteHotList_Request input;
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding(&input), noBinding);
    EXPECT_EQ(input.getReferenceCount(), 0U);
}

TEST(BindingOfRequest, NullRequestHasNoReplyThatCouldBeMade) {
    const Message input = new KORVA_Null_Request;
    for (const PortTypeCase& port : portTypes())
        EXPECT_ASSERTION(port.portType.createPortTypeBinding(input.get()),
                         "ZEL_ASSERT(&m_outputMessage);");
    EXPECT_EQ(input->getReferenceCount(), 1U);
}

// By the request's type

TEST(BindingOfType, MakesBothMessages) {
    const Binding binding =
        dispatcher().createPortTypeBinding(KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_STREQ(binding->getOperationName(), "run");
    EXPECT_EQ(binding->getInputMessage().getMessageType(), KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_EQ(binding->getOutputMessage().getMessageType(), KORVAMessageI::eKORVAAsynchRun_Reply);
    EXPECT_EQ(binding->getInputMessage().getReferenceCount(), 1U);
    EXPECT_EQ(binding->getOutputMessage().getReferenceCount(), 1U);
    EXPECT_EQ(binding->getReferenceCount(), 1U);
}

TEST(BindingOfType, TellsVersionsApart) {
    const KORVAPortTypeI& port = KORVAVelmoraTabulonPortType::getInstance();
    const struct {
        KORVAMessageI::MessageType type;
        const char* action;
    } rows[] = {
        {KORVAMessageI::eKORVAExecute_1_Request, "/schemas/halyardns/3#reportService"},
        {KORVAMessageI::eKORVAExecute_2_Request, "/schemas/halyardns/3#reportService"},
        {KORVAMessageI::eKORVAExecute_3_Request, "/schemas/halyardns/3#reportService.session"}};
    for (const auto& row : rows) {
        const Binding binding = port.createPortTypeBinding(row.type);
        EXPECT_STREQ(binding->getOperationName(), "execute");
        EXPECT_EQ(binding->getSOAPAction(), withAuthority(row.action));
        EXPECT_EQ(binding->getInputMessage().getMessageType(), row.type);
    }
}

TEST(BindingOfType, AssertsWithoutARow) {
    for (const KORVAMessageI::MessageType type :
         {KORVAMessageI::e_Unknown, KORVAMessageI::eKORVA_Null_Reply,
          KORVAMessageI::eKORVAAsynchRun_Reply, KORVAMessageI::eKORVAAgentDeleteHotList_Request,
          KORVAMessageI::eKORVAExecute_1_Request})
        EXPECT_ASSERTION(dispatcher().createPortTypeBinding(type), noBinding);
}

TEST(BindingOfType, NullRequestCannotBeMade) {
    for (const PortTypeCase& port : portTypes())
        EXPECT_ASSERTION(port.portType.createPortTypeBinding(KORVAMessageI::eKORVA_Null_Request),
                         "ZEL_ASSERT(&m_inputMessage);");
}

}  // namespace
