// A program outside the project: it sees what is installed and nothing else. It writes an envelope
// and reads it again, so that whatever the library needs itself must be there.
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAVersion.h>
#include <zel/ZELSmartPointer.h>

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;

constexpr const char* path = "/content/report[@name='Orders']";

bool readsWhatItWrote() {
    KORVAReportServicePortType& service = KORVAReportServicePortType::getInstance();
    const ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    request->getObjectPath(request->getObjectRegistry())->setValue(path);
    const Binding call = service.createPortTypeBinding(request.get());
    BRIMMemoryOutputStream envelope;
    KORVASOAPMessageISerializer().serialize(*call, call->getInputMessage(), envelope);

    BRIMMemoryInputStream in(envelope.str(), envelope.pcount());
    const std::vector<KORVAPortTypeI*> offered = {&service};
    Binding read;
    KORVASOAPMessageIDeserializer().parse(in, offered, read);
    const auto* const again = dynamic_cast<KORVAAsynchRun_Request*>(&read->getInputMessage());
    return again && std::strcmp(again->getObjectPath()->getValue(), path) == 0;
}

bool isOfThisBuild() {
    std::printf("KorvaObjModel %s for %s\n", KORVAVersion::version(), KORVAVersion::busAuthority());
    return std::strcmp(KORVAVersion::version(), KORVA_VERSION_STRING) == 0 &&
           std::strcmp(KORVAVersion::busAuthority(), KORVA_BUS_AUTHORITY) == 0 &&
           std::strcmp(KORVAVersion::busAuthority(), EXPECTED_AUTHORITY) == 0;
}

}  // namespace

int main() {
    return isOfThisBuild() && readsWhatItWrote() ? 0 : 1;
}
