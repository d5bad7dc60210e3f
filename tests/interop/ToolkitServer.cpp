#include "tests/interop/ToolkitServer.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAException.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>

#include <utility>

namespace korva::test {

namespace {

std::vector<std::string> withArguments(std::vector<std::string> command, const std::string& name) {
    command.insert(command.end(), {KORVA_TEST_SCHEMA_DIR, KORVA_TEST_AUTHORITY, name});
    return command;
}

}  // namespace

ToolkitServer::ToolkitServer(std::vector<std::string> command, const std::string& name)
    : m_server(withArguments(std::move(command), name)), m_location(m_server.readLine()) {
    if (m_location.empty()) throw std::runtime_error("the server does not listen");
}

void ToolkitServer::call(KORVAPortTypeBinding& binding) {
    BRIMMemoryOutputStream request;
    KORVASOAPMessageISerializer().serialize(binding, binding.getInputMessage(), request);
    m_reply = post(m_location, binding.getSOAPAction(), {request.str(), request.pcount()});

    BRIMMemoryInputStream stream(m_reply.body.data(), m_reply.body.size());
    try {
        KORVASOAPMessageIDeserializer().parse(stream, binding, &binding.getOutputMessage());
    } catch (const KORVAException& error) {
        throw Refusal(error.getMessages()[0].getId(), error.toString());
    }
}

std::string ToolkitServer::understood() const {
    return get(m_location).body;
}

}  // namespace korva::test
