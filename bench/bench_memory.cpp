// How much memory reading a reply of 10 MB takes, per byte of the reply.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVASOAPMessageIDeserializer.h>

#include <xercesc/util/PlatformUtils.hpp>

#include <string>
#include <sys/resource.h>

namespace {

/// The process's highest resident size so far, in bytes.
double peakBytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

void read(const std::string& envelope, const KORVAPortTypeI& portType,
          KORVAMessageI::MessageType request) {
    const Call call = portType.createPortTypeBinding(request);
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    KORVASOAPMessageIDeserializer().parse(stream, *call, &call->getOutputMessage());
}

}  // namespace

int main() {
    xercesc::XMLPlatformUtils::Initialize();
    std::string envelope;
    const KORVAPortTypeI* portType = nullptr;
    KORVAMessageI::MessageType request{};
    {
        // Made in parts, for what the objects of the source take would hide what reading takes.
        const Call call = makeContentReply(10 * 1000 * 1000 / 50);
        portType = &call->getBoundPortType();
        request = call->getInputMessage().getMessageType();
        const std::string part = outputEnvelope(*call);
        const std::size_t first = part.find("<item");
        const std::size_t last = part.rfind("</item>\n") + 8;
        // In one piece: memory that growing leaves behind would be there for the taking.
        envelope.reserve(first + 50 * (last - first) + part.size());
        envelope.append(part, 0, first);
        for (int i = 0; i < 50; ++i)
            envelope.append(part, first, last - first);
        envelope.append(part, last);
        read(part, *portType, request);
    }
    const double before = peakBytes();
    read(envelope, *portType, request);
    const double growth = peakBytes() - before;
    printHead("memory");
    const bool isMet = printFigure("peak growth while reading 10 MB, per input byte",
                                   growth / static_cast<double>(envelope.size()), 1.1, 0.9);
    return isMet ? 0 : 1;
}
