// How a port type chooses an operation by its name and a caller's parameters.

#include "tests/messages/PortTypes.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAsynchRunSpecification_Request.h>
#include <korva/KORVADispatcherStopService_Request.h>
#include <korva/KORVAExecute_1_Request.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServiceReportSpecification.h>
#include <korva/KORVARunOptionArray.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <zel/ZELByteBuffer.h>

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

namespace {

using korva::test::PortTypeCase;
using korva::test::portTypes;
using korva::test::withAuthority;
using Binding = ZELSmartPointer<KORVAPortTypeBinding>;
using Params = std::vector<KORVAMessageParam*>;
using Type = KORVASchemaTypeI;

constexpr unsigned noSuchOperation = 0xEA4112C6U;

const KORVAPortTypeI& dispatcher() {
    return KORVADispatcherPortType::getInstance();
}

const KORVAPortTypeI& velmora() {
    return KORVAVelmoraTabulonPortType::getInstance();
}

KORVAMessageI::MessageType chosen(const char* operation, const Params& params) {
    const Binding binding = velmora().createPortTypeBinding(operation, params);
    return binding->getInputMessage().getMessageType();
}

TEST(BindingByName, FillsTheRequestAndMakesTheReply) {
    KORVASearchPathSingleObject path;
    KORVAOptionArray options;
    KORVAMessageParam pathParam("objectPath", Type::eKORVASearchPathSingleObject, &path);
    KORVAMessageParam valuesParam("parameterValues", Type::eKORVAParameterValueArray);
    KORVAMessageParam optionsParam("options", Type::eKORVAOptionArray, &options);
    const Binding binding =
        dispatcher().createPortTypeBinding("run", {&pathParam, &valuesParam, &optionsParam});
    EXPECT_EQ(binding->getOperationNamespace(), withAuthority("/schemas/dispatcher/1"));
    EXPECT_EQ(binding->getSOAPAction(),
              withAuthority("/xmlns/prod/velmora/burstDistributionService/202004/.session"));
    EXPECT_EQ(&binding->getBoundPortType(), &dispatcher());
    KORVAMessageI& input = binding->getInputMessage();
    EXPECT_EQ(input.getMessageType(), KORVAMessageI::eKORVAAsynchRun_Request);
    EXPECT_EQ(input.getChildObject("objectPath", false), &path);
    EXPECT_EQ(input.getChildObject("parameterValues", false), nullptr);
    EXPECT_EQ(input.getChildObject("options", false), &options);
    EXPECT_EQ(input.getReferenceCount(), 1U);
    EXPECT_EQ(binding->getOutputMessage().getMessageType(), KORVAMessageI::eKORVAAsynchRun_Reply);
    EXPECT_EQ(binding->getOutputMessage().getReferenceCount(), 1U);
}

TEST(BindingByName, ComesWithoutReferences) {
    auto* const binding = dispatcher().createPortTypeBinding("run", {});
    EXPECT_EQ(binding->getReferenceCount(), 0U);
    const Binding holder = binding;
}

TEST(BindingByName, StoresPlainValues) {
    bool immediately = true;
    KORVAMessageParam param("immediately", Type::eBoolean, &immediately);
    const Binding stop = dispatcher().createPortTypeBinding("stopService", {&param});
    const auto& request =
        dynamic_cast<KORVADispatcherStopService_Request&>(stop->getInputMessage());
    ASSERT_NE(request.getImmediately(), nullptr);
    EXPECT_TRUE(*request.getImmediately());

    ZELByteBuffer text;
    text.appendChars("report", 6);
    KORVAMessageParam obj("obj", Type::eString, &text);
    const Binding execute = velmora().createPortTypeBinding("execute", {&obj});
    EXPECT_EQ(dynamic_cast<KORVAExecute_1_Request&>(execute->getInputMessage()).getObj(),
              text.str());
}

TEST(BindingByName, KeepsTheCallersPointerToTheName) {
    const std::string name = "run";
    const Binding binding = dispatcher().createPortTypeBinding(name.c_str(), {});
    EXPECT_EQ(binding->getOperationName(), name.c_str());
    // All other ways take the port type's own text.
    const Binding other = dispatcher().createPortTypeBinding(&binding->getInputMessage());
    EXPECT_NE(other->getOperationName(), name.c_str());
    EXPECT_STREQ(other->getOperationName(), "run");
}

TEST(BindingByName, EmptyListTakesTheOneRowOfTheName) {
    for (const PortTypeCase& port : portTypes()) {
        if (&port.portType == &KORVAContentManagerCacheServicePortType::getInstance()) continue;
        const Binding binding = port.portType.createPortTypeBinding(
            &port.portType == &velmora() ? "wait" : "cancel", {});
        EXPECT_NE(binding->getInputMessage().getMessageType(), KORVAMessageI::eKORVA_Null_Request);
    }
    const Binding binding = dispatcher().createPortTypeBinding("wait", {});
    EXPECT_EQ(binding->getInputMessage().getMessageType(), KORVAMessageI::eKORVAAsynchWait_Request);
}

TEST(BindingByName, EmptyListTakesTheFirstVersion) {
    EXPECT_EQ(chosen("execute", {}), KORVAMessageI::eKORVAExecute_1_Request);
    EXPECT_EQ(chosen("query", {}), KORVAMessageI::eKORVACMS_query_1_Request);
    EXPECT_EQ(chosen("validate", {}), KORVAMessageI::eKORVAValidate_1_Request);
}

TEST(BindingByName, RequestsAloneAreTheVersionOfQueryThatMayHaveOptions) {
    KORVAMessageParam requests("requests", Type::eKORVAQueryRequestArray);
    EXPECT_EQ(chosen("query", {&requests}), KORVAMessageI::eKORVACMS_query_2_Request);
    // The other is bound by its type.
    const Binding binding =
        velmora().createPortTypeBinding(KORVAMessageI::eKORVAMany_CMS_query_1_Request);
    EXPECT_EQ(binding->getOutputMessage().getMessageType(),
              KORVAMessageI::eKORVAMany_CMS_query_1_Reply);
    EXPECT_STREQ(binding->getOperationName(), "query");
}

TEST(BindingByName, TakesTheFirstVersionThatFits) {
    KORVAMessageParam obj("obj", Type::eString);
    KORVAMessageParam spec("spec", Type::eKORVAReportSpecification);
    KORVAMessageParam requestID("requestID", Type::eKORVAGuid);
    KORVAMessageParam parameters("parameters", Type::eKORVAParameterValueArray);
    KORVAMessageParam options("options", Type::eKORVARunOptionArray);
    const struct {
        Params params;
        KORVAMessageI::MessageType type;
    } rows[] = {
        {{&obj, &parameters, &options}, KORVAMessageI::eKORVAExecute_1_Request},
        {{&spec, &parameters, &options}, KORVAMessageI::eKORVAExecute_2_Request},
        {{&requestID, &spec, &parameters, &options}, KORVAMessageI::eKORVAExecute_3_Request},
        {{&obj}, KORVAMessageI::eKORVAExecute_1_Request},
        {{&options}, KORVAMessageI::eKORVAExecute_1_Request},
        {{&parameters, &options}, KORVAMessageI::eKORVAExecute_1_Request},
        {{&spec}, KORVAMessageI::eKORVAExecute_2_Request},
        {{&spec, &options}, KORVAMessageI::eKORVAExecute_2_Request},
        {{&requestID}, KORVAMessageI::eKORVAExecute_3_Request},
        {{&requestID, &options}, KORVAMessageI::eKORVAExecute_3_Request},
        // As many as the first two versions have, and yet the third's.
        {{&requestID, &parameters, &options}, KORVAMessageI::eKORVAExecute_3_Request},
    };
    for (const auto& row : rows)
        EXPECT_EQ(chosen("execute", row.params), row.type);
}

TEST(BindingByName, RefusesParametersInAnotherOrder) {
    KORVAMessageParam obj("obj", Type::eString);
    KORVAMessageParam options("options", Type::eKORVARunOptionArray);
    EXPECT_NUMBERED(velmora().createPortTypeBinding("execute", {&options, &obj}), noSuchOperation,
                    "KORVAVelmoraTabulonPortType::createPortTypeBinding", "execute",
                    "VelmoraTabulonPortType");
}

TEST(BindingByName, RefusesParametersThatNoVersionHas) {
    KORVAMessageParam wrongType("options", Type::eKORVAOptionArray);
    KORVAMessageParam wrongName("option", Type::eKORVAOptionArray);
    EXPECT_NUMBERED(velmora().createPortTypeBinding("execute", {&wrongType}), noSuchOperation,
                    "KORVAVelmoraTabulonPortType::createPortTypeBinding", "execute",
                    "VelmoraTabulonPortType");
    EXPECT_NUMBERED(dispatcher().createPortTypeBinding("run", {&wrongName}), noSuchOperation,
                    "KORVADispatcherPortType::createPortTypeBinding", "run", "dispatcher");
}

TEST(BindingByName, RefusesMoreParametersThanTheOperationHas) {
    KORVAMessageParam conversation("conversation", Type::eKORVAAsynchRequest);
    KORVAMessageParam options("options", Type::eKORVAOptionArray);
    EXPECT_NUMBERED(dispatcher().createPortTypeBinding("cancel", {&conversation, &options}),
                    noSuchOperation, "KORVADispatcherPortType::createPortTypeBinding", "cancel",
                    "dispatcher");
}

TEST(BindingByName, RefusesAnOperationThatItLacks) {
    for (const PortTypeCase& port : portTypes()) {
        const std::string stem =
            static_cast<char>(std::toupper(port.name[0])) + std::string(port.name + 1);
        const std::string className =
            "KORVA" + stem + (stem == "VelmoraTabulonPortType" ? "" : "PortType");
        for (const char* const name : {"no such operation", "Cancel", "cance", "cancell", "~"})
            EXPECT_NUMBERED(port.portType.createPortTypeBinding(name, {}), noSuchOperation,
                            (className + "::createPortTypeBinding").c_str(), name, port.name);
    }
}

TEST(BindingByName, EmptyNameIsThatOfTheNullMessagesWhichHaveNoList) {
    for (const PortTypeCase& port : portTypes())
        EXPECT_ASSERTION(port.portType.createPortTypeBinding("", {}),
                         "ZEL_ASSERT(expectedParamList);");
}

TEST(BindingByName, TakesAParameterOfADerivedClass) {
    KORVAReportServiceReportSpecification specification;
    KORVAMessageParam withValue("specification", Type::eKORVAReportServiceReportSpecification,
                                &specification);
    const Binding filled = dispatcher().createPortTypeBinding("runSpecification", {&withValue});
    EXPECT_EQ(dynamic_cast<KORVAAsynchRunSpecification_Request&>(filled->getInputMessage())
                  .getSpecification(),
              &specification);

    KORVAMessageParam withoutValue("specification", Type::eKORVAReportServiceReportSpecification);
    const Binding unset = dispatcher().createPortTypeBinding("runSpecification", {&withoutValue});
    EXPECT_EQ(dynamic_cast<KORVAAsynchRunSpecification_Request&>(unset->getInputMessage())
                  .getSpecification(),
              nullptr);

    KORVAMessageParam unrelated("specification", Type::eKORVAFolder);
    EXPECT_NUMBERED(dispatcher().createPortTypeBinding("runSpecification", {&unrelated}),
                    noSuchOperation, "KORVADispatcherPortType::createPortTypeBinding",
                    "runSpecification", "dispatcher");
}

TEST(BindingByName, ValueThatIsNotOfItsTypeIsRefusedByTheRequest) {
    KORVAFolder folder;
    KORVAMessageParam param("options", Type::eKORVAOptionArray, &folder);
    EXPECT_TYPE_ERROR(dispatcher().createPortTypeBinding("run", {&param}), "asynchRun_Request",
                      "options", "bus:optionArray", "bus:optionArray");
}

TEST(BindingByName, AssertsOnParametersThatAreNullOrUnnamed) {
    KORVAMessageParam unnamed(nullptr, Type::eKORVAOptionArray);
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding("run", {nullptr}), "ZEL_ASSERT(param2);");
    EXPECT_ASSERTION(dispatcher().createPortTypeBinding("run", {&unnamed}),
                     "ZEL_ASSERT(param2Name);");
}

}  // namespace
