#include "tests/support/SampleFaults.h"

#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>

namespace korva::test {

std::vector<DetailTexts> sampleDetails() {
    return {{"error",
             "RPT-0042",
             {{"The data source <sales> & its replica can't be reached. ", 0},
              {"Connection refused.", 1}}},
            {"warn", nullptr, {{"It was tried twice.", 0}}}};
}

KORVAFaultDetail& makeDetail(const Maker& maker, const DetailTexts& texts) {
    auto* const detail = maker.make<KORVAFaultDetail>();
    if (texts.severity != nullptr) detail->getSeverity(maker.registry())->setValue(texts.severity);
    detail->setErrorCode(texts.errorCode);
    for (const MessageText& text : texts.messages) {
        auto* const message = maker.make<KORVAFaultDetailMessage>();
        message->setMessage(text.text);
        if (text.nestingLevel) message->setNestingLevel(*text.nestingLevel);
        detail->getMessage().push_back(message);
    }
    return *detail;
}

KORVAUndocumentedFaultDetail& makeUndocumentedDetail(const Maker& maker, const DetailTexts& texts) {
    auto* const detail = maker.make<KORVAUndocumentedFaultDetail>();
    detail->setSeverity(texts.severity);
    detail->setErrorCodeString(texts.errorCode);
    for (const MessageText& text : texts.messages) {
        auto* const message = maker.make<KORVAMessage>();
        message->setMessageString(text.text);
        if (text.nestingLevel) message->setNestingLevel(*text.nestingLevel);
        detail->getMessage().push_back(message);
    }
    return *detail;
}

void addDetails(const Maker& maker, KORVASOAPFault& fault,
                const std::vector<DetailTexts>& details) {
    if (fault.getDetail() == nullptr) fault.setDetail(maker.make<KORVAFaultDetailArray>());
    for (const DetailTexts& texts : details)
        fault.getDetail()->push_back(&makeDetail(maker, texts));
}

void addUndocumentedDetails(const Maker& maker, KORVASOAPFault& fault,
                            const std::vector<DetailTexts>& details) {
    if (fault.getUndocumentedDetail() == nullptr)
        fault.setDetail(maker.make<KORVAUndocumentedFaultDetailArray>());
    for (const DetailTexts& texts : details)
        fault.getUndocumentedDetail()->push_back(&makeUndocumentedDetail(maker, texts));
}

KORVASOAPFault& makeFault(const Maker& maker) {
    auto* const fault = maker.make<KORVASOAPFault>();
    fault->setFaultCode("SOAP-ENV:Server");
    fault->setFaultString("The report can't be run.");
    fault->setFaultActor("/content/report");
    return *fault;
}

KORVASOAPFault& makeDocumentedFault(const Maker& maker) {
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, sampleDetails());
    return fault;
}

KORVASOAPFault& makeUndocumentedFault(const Maker& maker) {
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, sampleDetails());
    return fault;
}

KORVAHalyardHeader& makeHeader(const Maker& maker) {
    auto* const header = maker.make<KORVAHalyardHeader>();
    header->getWarden(maker.registry())->getWardenPassport(maker.registry())->setId("101:7f3a");
    header->getTracking(maker.registry())->setSessionContext("s&1");
    return *header;
}

std::string written(const KORVASOAPFault& fault, const KORVAHalyardHeader* header, bool formatted,
                    bool writeXmlDeclaration) {
    CollectingStream stream;
    KORVASOAPFaultSerializer().serialize(header, fault, stream, writeXmlDeclaration, formatted);
    return stream.text;
}

}  // namespace korva::test
