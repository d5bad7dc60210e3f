// Envelopes at a client, as the reply to the call that they seem to answer.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

void korva::fuzz::attack(std::string_view input) {
    KORVA_AttachmentHandler attachments;
    const Binding call = callFor(input);
    readReply(input, *call, &attachments);
    const std::string first = written(*call, call->getOutputMessage());
    const Binding again =
        call->getBoundPortType().createPortTypeBinding(call->getOperationName(), {});
    readReply(first, *again, nullptr);
    requireSame(written(*again, again->getOutputMessage()), first,
                "a reply is written as it is read");
}
