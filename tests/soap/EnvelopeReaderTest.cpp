// Envelopes of which the reader is told nothing.

#include "tests/soap/Tolerant.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVADispatcherPortType.h>
#include <korva/KORVAEventManagementServicePortType.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_PortType.h>
#include <korva/KORVA_PortTypes.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

using namespace korva::test;

namespace {

KORVA_Envelope readAny(const std::string& text) {
    BRIMMemoryInputStream stream(text.data(), text.size());
    return KORVA_EnvelopeReader().read(stream);
}

std::vector<int> versionsOf(const KORVA_Envelope& envelope) {
    std::vector<int> versions;
    for (const KORVA_Operation& candidate : envelope.getCandidates())
        versions.push_back(candidate.getVersion());
    return versions;
}

/// A reply of the service for everything.
std::string tabulonReply(const std::string& name, const std::string& parameters) {
    return envelope("<bus:" + name + ">" + parameters + "</bus:" + name + ">");
}

TEST(EnvelopeReader, ReadsARequest) {
    const KORVA_Envelope read =
        readAny(run("<objectPath>/a</objectPath>", {},
                    "<bus:halyardHeader><tracking><hopCount>1</hopCount></tracking>"
                    "</bus:halyardHeader>"));
    EXPECT_EQ(read.getKind(), KORVA_Envelope::eRequest);
    EXPECT_STREQ(read.getBinding()->getOperationName(), "run");
    EXPECT_EQ(&read.getBinding()->getBoundPortType(), &KORVAReportServicePortType::getInstance());
    EXPECT_EQ(read.getMessage(), &read.getBinding()->getInputMessage());
    EXPECT_NE(read.getHeader(), nullptr);
    EXPECT_EQ(read.getFault(), nullptr);
    EXPECT_TRUE(read.getCandidates().empty());
}

TEST(EnvelopeReader, ReadsAReply) {
    const KORVA_Envelope read = readAny(operation(
        "runResponse", "<result xsi:type=\"bus:asynchReply\"><status>complete</status></result>",
        "<bus:halyardHeader/>"));
    EXPECT_EQ(read.getKind(), KORVA_Envelope::eReply);
    EXPECT_STREQ(read.getBinding()->getOperationName(), "run");
    EXPECT_EQ(read.getMessage(), &read.getBinding()->getOutputMessage());
    EXPECT_EQ(describe(*read.getMessage()),
              "header: halyardHeader\nresult: asynchReply\n  status: \"complete\"\n");
    EXPECT_EQ(versionsOf(read), (std::vector<int>{1}));
}

TEST(EnvelopeReader, ReadsAFault) {
    const KORVA_Envelope read = readAny(
        envelope("<e:Fault><faultcode>e:Server</faultcode></e:Fault>", "<bus:halyardHeader/>"));
    EXPECT_EQ(read.getKind(), KORVA_Envelope::eFault);
    EXPECT_STREQ(read.getFault()->getFaultCode(), "e:Server");
    EXPECT_EQ(read.getBinding(), nullptr);
    EXPECT_EQ(read.getMessage(), nullptr);
    EXPECT_NE(read.getHeader(), nullptr);
}

TEST(EnvelopeReader, ReadsABodyInTheDefaultNamespace) {
    const KORVA_Envelope read =
        readAny("<Envelope xmlns=\"" + envelopeNamespace + "\"><Body><runResponse xmlns=\"" +
                reportNamespace +
                "\"><result><status>complete</status></result></runResponse>"
                "</Body></Envelope>");
    EXPECT_EQ(describe(*read.getMessage()), "result: asynchReply\n  status: \"complete\"\n");
}

TEST(EnvelopeReader, ReadsWhatIsDeclaredFurtherUp) {
    const KORVA_Envelope read =
        readAny("<e:Envelope xmlns:e=\"" + envelopeNamespace + "\" xmlns:r=\"" + reportNamespace +
                "\"><e:Body><r:runResponse><result><status>complete</status></result>"
                "</r:runResponse></e:Body></e:Envelope>");
    EXPECT_EQ(read.getKind(), KORVA_Envelope::eReply);
    EXPECT_EQ(describe(*read.getMessage()), "result: asynchReply\n  status: \"complete\"\n");
}

TEST(EnvelopeReader, KeepsWhatWasReadAlive) {
    KORVA_Envelope copy = readAny(run("<objectPath>/a</objectPath>"));
    copy = readAny(run("<objectPath>/b</objectPath>"));
    const KORVA_Envelope another = copy;
    EXPECT_EQ(describe(*another.getMessage()),
              "objectPath: \"/b\"\nparameterValues: null\noptions: null\n");
    EXPECT_EQ(another.getMessage()->getObjectRegistry(), &another.getObjectRegistry());
}

TEST(EnvelopeReader, FindsEveryOperationOfTheSchema) {
    for (KORVAPortTypeI* const portType : KORVA_PortTypes::all())
        for (const KORVA_Operation operation :
             static_cast<const KORVA_PortType*>(portType)->getOperations()) {
            const std::string name = operation.getName();
            const std::string declaration =
                " xmlns:o=\"" + std::string(operation.getNamespace()) + "\"/>";
            const KORVA_Envelope request = readAny(envelope("<o:" + name + declaration));
            EXPECT_EQ(request.getKind(), KORVA_Envelope::eRequest) << name;
            EXPECT_STREQ(request.getBinding()->getOperationName(), name.c_str());
            const KORVA_Envelope reply = readAny(envelope("<o:" + name + "Response" + declaration));
            EXPECT_EQ(reply.getKind(), KORVA_Envelope::eReply) << name;
            EXPECT_STREQ(reply.getBinding()->getOperationName(), name.c_str());
            EXPECT_EQ(&reply.getBinding()->getBoundPortType(), portType);
            bool isListed = false;
            for (const KORVA_Operation& candidate : reply.getCandidates())
                isListed = isListed || candidate == operation;
            EXPECT_TRUE(isListed) << name;
        }
}

TEST(EnvelopeReader, TellsTheOperationsThatShareAReply) {
    const KORVA_Envelope read = readAny(tabulonReply("executeResponse", ""));
    EXPECT_EQ(versionsOf(read), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(read.getBinding()->getInputMessage().getMessageType(),
              read.getCandidates().front().getRequestType());
}

TEST(EnvelopeReader, LeavesOutOperationsWhoseReplyHasAnotherType) {
    const std::vector<int> all = versionsOf(readAny(tabulonReply("queryResponse", "")));
    EXPECT_EQ(all, (std::vector<int>{1, 2, 3, 4}));
    const KORVA_Envelope read = readAny(
        tabulonReply("queryResponse",
                     "<queryResult xsi:type=\"SOAP-ENC:Array\" "
                     "SOAP-ENC:arrayType=\"bus:baseClass[1]\"><item xsi:type=\"bus:output\"/>"
                     "</queryResult>"));
    ASSERT_EQ(read.getCandidates().size(), 1U);
    EXPECT_EQ(read.getCandidates().front().getReplyParameters().front().type,
              KORVASchemaTypeI::eKORVABaseClassArray);
    EXPECT_EQ(describe(*read.getMessage()), "queryResult: array of 1\n  [1]: output\n");
}

TEST(EnvelopeReader, NamesAReplyByItsMessage) {
    EXPECT_EQ(readAny(envelope("<x:eventTrigger_Reply xmlns:x=\"" +
                               std::string(KORVAEventManagementServicePortType::getInstance()
                                               .getBoundNamespace()) +
                               "\"><result>42</result></x:eventTrigger_Reply>"))
                  .getKind(),
              KORVA_Envelope::eReply);
}

TEST(EnvelopeReader, TellsWhatWasPassedOver) {
    const KORVA_Envelope read =
        readAny(run("<objectPath>/a</objectPath><options><item xsi:type=\"bus:runOptionInt\">"
                    "<n:new xmlns:n=\"urn:n\"><a/></n:new></item></options>",
                    "<x/>"));
    ASSERT_EQ(read.getSkipped().size(), 2U);
    EXPECT_EQ(read.getSkippedCount(), 2U);
    EXPECT_EQ(read.getSkipped()[0].path, "/Envelope/Body/run/options/item/new");
    EXPECT_EQ(read.getSkipped()[0].namespaceUri, "urn:n");
    EXPECT_EQ(read.getSkipped()[0].name, "new");
    EXPECT_EQ(read.getSkipped()[0].line, 1U);
    EXPECT_EQ(read.getSkipped()[0].reason, "what it stands in has no such child");
    EXPECT_EQ(read.getSkipped()[1].name, "x");
}

TEST(EnvelopeReader, KeepsAThousandOfWhatWasPassedOver) {
    std::string many;
    for (int i = 0; i < 1500; ++i)
        many += "<x/>";
    const KORVA_Envelope read = readAny(run("<objectPath>/a</objectPath>", many));
    EXPECT_EQ(read.getSkipped().size(), 1000U);
    EXPECT_EQ(read.getSkippedCount(), 1500U);
}

TEST(EnvelopeReader, TellsItsCallersObserverToo) {
    const std::string text = run("<objectPath>/a</objectPath>", "<x/>");
    BRIMMemoryInputStream stream(text.data(), text.size());
    FindingList list;
    KORVA_EnvelopeReader reader;
    reader.deserializer().setObserver(&list);
    reader.read(stream);
    EXPECT_EQ(list.findings.size(), 1U);
}

TEST(EnvelopeReader, ReadsOfWhatIsOffered) {
    const std::string text = run("<objectPath>/a</objectPath>");
    BRIMMemoryInputStream stream(text.data(), text.size());
    KORVA_EnvelopeReader reader({&KORVADispatcherPortType::getInstance()});
    EXPECT_NUMBERED(reader.read(stream), 0xEA456BB1, "KORVAMessageIContentHandler::characters",
                    "run", reportNamespace);
    BRIMMemoryInputStream again(text.data(), text.size());
    KORVA_EnvelopeReader others(
        {&KORVADispatcherPortType::getInstance(), &KORVAReportServicePortType::getInstance()});
    EXPECT_EQ(others.read(again).getKind(), KORVA_Envelope::eRequest);
    EXPECT_ASSERTION(KORVA_EnvelopeReader(std::vector<KORVAPortTypeI*>()),
                     "ZEL_ASSERT(!portTypes.empty());");
}

TEST(EnvelopeReader, RefusesOperationsThatNobodyHas) {
    EXPECT_NUMBERED(readAny(operation("noSuchThing", "")), 0xEA4112C6,
                    "KORVAReportServicePortType::createPortTypeBinding", "noSuchThing",
                    "reportService");
    EXPECT_NUMBERED(readAny(operation("noSuchResponse", "")), 0xEA4112C6,
                    "KORVAReportServicePortType::createPortTypeBinding", "noSuchResponse",
                    "reportService");
    EXPECT_ASSERTION(readAny(envelope("")), "ZEL_ASSERT(m_boundPortType);");
    EXPECT_NUMBERED(readAny("<a/>"), 0xEA46D8C9, "KORVAMessageIContentHandler::startElement",
                    "Envelope");
}

TEST(EnvelopeReader, ServesAgainAfterAFailure) {
    KORVA_EnvelopeReader reader;
    for (int i = 0; i < 2; ++i) {
        const std::string bad = "<a/>";
        BRIMMemoryInputStream failing(bad.data(), bad.size());
        EXPECT_THROW(reader.read(failing), KORVAException);
        const std::string good = run("<objectPath>/a</objectPath>");
        BRIMMemoryInputStream stream(good.data(), good.size());
        EXPECT_EQ(reader.read(stream).getKind(), KORVA_Envelope::eRequest);
    }
}

TEST(EnvelopeReader, HasTheLimitsOfItsDeserializer) {
    const std::string text = run("<objectPath>/a</objectPath>");
    BRIMMemoryInputStream stream(text.data(), text.size());
    KORVA_EnvelopeReader reader;
    reader.deserializer().setMaximumDepth(2);
    EXPECT_NUMBERED(reader.read(stream), 0xEA4F0001, "KORVASOAPMessageIDeserializer::parse",
                    "depth", "2", "setMaximumDepth");
}

TEST(EnvelopeReader, SurvivesEachAllocationThatFails) {
    const std::string texts[] = {run("<objectPath>/a</objectPath>", "<x/>"),
                                 tabulonReply("queryResponse",
                                              "<queryResult xsi:type=\"bus:baseClassArray\"><item "
                                              "xsi:type=\"bus:output\"/></queryResult>"),
                                 envelope("<e:Fault><faultcode>e:Server</faultcode></e:Fault>")};
    for (const std::string& text : texts)
        forEachFailingAllocation(
            [&] {
                BRIMMemoryInputStream stream(text.data(), text.size());
                const KORVA_Envelope read = KORVA_EnvelopeReader().read(stream);
                EXPECT_EQ(read.getFault() == nullptr, read.getMessage() != nullptr);
            },
            Absorbed::Harmless);
}

}  // namespace
