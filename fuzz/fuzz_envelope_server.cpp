// Envelopes at a server that offers every service: what was read can be written, and read again.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

void korva::fuzz::attack(std::string_view input) {
    KORVA_AttachmentHandler attachments;
    const Binding binding = readRequest(input, &attachments);
    const std::string first = written(*binding, binding->getInputMessage());
    const Binding again = readRequest(first, nullptr);
    requireSame(written(*again, again->getInputMessage()), first,
                "a request is written as it is read");
}
