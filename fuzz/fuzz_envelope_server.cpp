// Envelopes at a server that offers every service: what was read can be written, and read again.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

void korva::fuzz::attack(std::string_view input) {
    KORVA_AttachmentHandler attachments;
    const Binding binding = readRequest(input, &attachments);
    std::string envelope = written(*binding, binding->getInputMessage());
    const auto readAndWrite = [&] {
        const Binding again = readRequest(envelope, nullptr);
        return written(*again, again->getInputMessage());
    };
    // An array that was missing comes back empty; from then on nothing changes.
    envelope = mustTake(readAndWrite, "a request that was written is read");
    requireSame(readAndWrite(), envelope, "a request is written as it is read");
}
