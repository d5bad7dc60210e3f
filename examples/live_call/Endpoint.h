/// From a request's envelope to its answer, whatever carries them.
#pragma once

#include "examples/live_call/Answer.h"

#include <korva/KORVAMessageI.h>

#include <map>
#include <string>
#include <vector>

class KORVAPortTypeBinding;
class KORVAPortTypeI;

namespace live_call {

/// Reads the input message of a call and fills its output message. What the reply refers to as an
/// attachment is added to the list. Whatever is thrown becomes a fault.
using Operation = void (*)(KORVAPortTypeBinding& call, std::vector<Attachment>& attachments);

/// The operations of a service, by the type of their request.
using Operations = std::map<KORVAMessageI::MessageType, Operation>;

/// Answers requests. Threads may share it: each request is read into messages of its own, and what
/// was allocated for it goes with them.
class Endpoint {
public:
    /// The port types are those of the library, which live as long as the process.
    Endpoint(std::vector<KORVAPortTypeI*> services, Operations operations);

    /// What `envelope` asks for, or a fault that tells why it can't be had. `action` is the
    /// SOAPAction header as it came, with or without quotes.
    Answer answer(const std::string& envelope, const std::string& action) const;

    /// A fault for a request that is not looked into.
    Answer refuse(const std::string& reason) const;

private:
    Answer perform(KORVAPortTypeBinding& call) const;

    std::vector<KORVAPortTypeI*> m_services;
    Operations m_operations;
};

}  // namespace live_call
