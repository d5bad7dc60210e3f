/// A foreign toolkit as the server of the library's client.
#pragma once

#include "tests/interop/ChildProcess.h"
#include "tests/interop/HttpClient.h"

#include <korva/KORVAPortTypeBinding.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace korva::test {

/// A reply that the library does not read.
class Refusal : public std::runtime_error {
public:
    Refusal(unsigned number, const std::string& text) : runtime_error(text), m_number(number) {}

    /// Of the message that tells why.
    unsigned number() const { return m_number; }

private:
    unsigned m_number;
};

/// A toolkit's server, which answers as one of its cases says, at a port that the system chose.
class ToolkitServer {
public:
    /// Starts the program `command` and waits until it tells its location. Its further arguments
    /// are the folder of the schema, the address of the bus and the case.
    /// @throws std::runtime_error it does not listen
    ToolkitServer(std::vector<std::string> command, const std::string& name);

    /// Sends the binding's input message, and reads the reply into its output message.
    /// @throws std::runtime_error there is no reply
    /// @throws KORVASOAPFaultException the reply is a fault
    /// @throws Refusal the library refuses the reply
    void call(KORVAPortTypeBinding& binding);

    /// The status and the envelope of the last reply.
    const HttpReply& reply() const { return m_reply; }

    /// The last call as the toolkit understood it.
    std::string understood() const;

private:
    ChildProcess m_server;
    std::string m_location;
    HttpReply m_reply;
};

}  // namespace korva::test
