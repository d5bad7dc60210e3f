// Faults at a client: they are told, converted either way, and written.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPFaultSerializer.h>

void korva::fuzz::attack(std::string_view input) {
    const Binding call = callFor(input);
    try {
        KORVA_AttachmentHandler attachments;
        readReply(input, *call, &attachments);
    } catch (const KORVASOAPFaultException& exception) {
        std::string messages;
        exception.getSOAPFaultMessages(messages);
        require(exception.toString() != nullptr, "a fault has a text");
        KORVASOAPFault& fault = exception.getSOAPFault();
        const KORVASOAPFault copy(fault, *exception.getObjectRegistry());
        require(copy == fault, "a copy is equal");
        BRIMMemoryOutputStream out;
        KORVASOAPFaultSerializer().serialize(exception.getHalyardHeader(), fault, out, true, false);
        fault.convertFaultDetail(*exception.getObjectRegistry());
        KORVASOAPFaultSerializer().serialize(nullptr, fault, out, false, true);
        fault.convertUndocumentedFaultDetail(*exception.getObjectRegistry());
    }
}
