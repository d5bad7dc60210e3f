// Fills a request, binds it to an operation and prints its envelope.
#include <brim/BRIMDescriptorOutputStream.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <zel/ZELSmartPointer.h>

int main() {
    const ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();

    request->getObjectPath(registry)->setValue("/content/report[@name='Orders']");
    request->getHalyardHeader(registry)->getWarden(registry)->getWardenPassport(registry)->setId(
        "MTsx");

    const KORVAPortTypeI& service = KORVAReportServicePortType::getInstance();
    const ZELSmartPointer<KORVAPortTypeBinding> call = service.createPortTypeBinding(request.get());

    BRIMDescriptorOutputStream out(1);  // standard output
    KORVASOAPMessageISerializer().serialize(*call, call->getInputMessage(), out);
}
