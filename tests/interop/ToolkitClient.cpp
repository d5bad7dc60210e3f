#include "tests/interop/ToolkitClient.h"

#include "tests/interop/ChildProcess.h"

#include <utility>

namespace korva::test {

ToolkitClient::ToolkitClient(std::vector<std::string> command, const std::string& name,
                             Service service, std::string attachment)
    : m_server(std::move(service), std::move(attachment)) {
    command.insert(command.end(),
                   {KORVA_TEST_SCHEMA_DIR, KORVA_TEST_AUTHORITY, m_server.location(), name});
    ChildProcess client(std::move(command));
    m_printed = client.readAll();
    if (const int status = client.wait(); status != 0)
        throw std::runtime_error("the client ended with " + std::to_string(status) + ":\n" +
                                 m_printed);
}

const Exchange& ToolkitClient::exchange() const {
    if (exchanges().size() != 1)
        throw std::logic_error(std::to_string(exchanges().size()) + " calls came in");
    return exchanges().front();
}

KORVAPortTypeBinding& ToolkitClient::binding() const {
    if (exchange().binding == nullptr)
        throw std::runtime_error("the call was refused: " + m_printed);
    return *exchange().binding;
}

}  // namespace korva::test
