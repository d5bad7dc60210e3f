#include "tests/interop/PhpClient.h"

#include "tests/interop/ChildProcess.h"
#include "tests/interop/Php.h"

#include <utility>

namespace korva::test {

PhpClient::PhpClient(const std::string& name, Service service) : m_server(std::move(service)) {
    ChildProcess php(phpCommand(
        "client.php", {KORVA_TEST_SCHEMA_DIR, KORVA_TEST_AUTHORITY, m_server.location(), name}));
    m_printed = php.readAll();
    if (const int status = php.wait(); status != 0)
        throw std::runtime_error("client.php ended with " + std::to_string(status) + ":\n" +
                                 m_printed);
}

const Exchange& PhpClient::exchange() const {
    if (exchanges().size() != 1)
        throw std::logic_error(std::to_string(exchanges().size()) + " calls came in");
    return exchanges().front();
}

KORVAPortTypeBinding& PhpClient::binding() const {
    if (exchange().binding == nullptr)
        throw std::runtime_error("the call was refused: " + m_printed);
    return *exchange().binding;
}

}  // namespace korva::test
