/// Short ways to read faults that a test has as text.
#pragma once

#include "tests/soap/Reading.h"

#include <korva/KORVASOAPFaultException.h>

#include <stdexcept>
#include <string>

namespace korva::test {

/// An envelope with a fault that has these children.
inline std::string faultEnvelope(const std::string& children, const std::string& header = {}) {
    return envelope("<e:Fault>" + children + "</e:Fault>", header);
}

/// What reading the envelope as a reply throws.
inline KORVASOAPFaultException receiveFault(const std::string& text) {
    const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
    try {
        readReply(*call, text);
    } catch (const KORVASOAPFaultException& fault) {
        return fault;
    }
    throw std::runtime_error("there is no fault in the envelope");
}

/// The same at a server.
inline KORVASOAPFaultException receiveFaultAsServer(const std::string& text) {
    try {
        readRequest(text);
    } catch (const KORVASOAPFaultException& fault) {
        return fault;
    }
    throw std::runtime_error("there is no fault in the envelope");
}

}  // namespace korva::test
