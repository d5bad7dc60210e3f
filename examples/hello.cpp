// Fills a request, binds it to an operation, prints its envelope and reads it back.
#include <korva/KORVA.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>

#include <iostream>

int main() {
    const ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();

    request->getObjectPath(registry)->setValue("/content/report[@name='Orders']");
    request->getHalyardHeader(registry)->getWarden(registry)->getWardenPassport(registry)->setId(
        "MTsx");

    const KORVAPortTypeI& service = KORVAReportServicePortType::getInstance();
    const ZELSmartPointer<KORVAPortTypeBinding> call = service.createPortTypeBinding(request.get());

    BRIMMemoryOutputStream sent;
    KORVASOAPMessageISerializer().serialize(*call, call->getInputMessage(), sent);
    std::cout << sent.str();

    BRIMMemoryInputStream received(sent.str(), sent.pcount());
    const KORVA_Envelope envelope = KORVA_EnvelopeReader().read(received);
    const auto& read = dynamic_cast<KORVAAsynchRun_Request&>(*envelope.getMessage());
    std::cerr << envelope.getBinding()->getOperationName() << " of "
              << read.getObjectPath()->getValue() << '\n';
}
