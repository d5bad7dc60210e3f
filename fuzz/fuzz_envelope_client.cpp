// Envelopes at a client, as the reply to the call that they seem to answer.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

void korva::fuzz::attack(std::string_view input) {
    KORVA_AttachmentHandler attachments;
    const Binding call = callFor(input);
    readReply(input, *call, &attachments);
    std::string envelope = written(*call, call->getOutputMessage());
    const auto readAndWrite = [&] {
        const Binding again =
            call->getBoundPortType().createPortTypeBinding(call->getOperationName(), {});
        readReply(envelope, *again, nullptr);
        return written(*again, again->getOutputMessage());
    };
    // An array that was missing comes back empty; from then on nothing changes.
    envelope = mustTake(readAndWrite, "a reply that was written is read");
    requireSame(readAndWrite(), envelope, "a reply is written as it is read");
}
