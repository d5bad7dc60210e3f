#include "tests/interop/PhpServer.h"

#include "tests/interop/Php.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAException.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>

namespace korva::test {

PhpServer::PhpServer(const std::string& name)
    : m_php(phpCommand("server.php", {KORVA_TEST_SCHEMA_DIR, KORVA_TEST_AUTHORITY, name})),
      m_location(m_php.readLine()) {
    if (m_location.empty()) throw std::runtime_error("server.php does not listen");
}

void PhpServer::call(KORVAPortTypeBinding& binding) {
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

std::string PhpServer::understood() const {
    return get(m_location).body;
}

}  // namespace korva::test
