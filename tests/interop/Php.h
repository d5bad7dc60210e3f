/// PHP's SOAP extension as a client and as a server.
#pragma once

#include "tests/interop/ToolkitClient.h"
#include "tests/interop/ToolkitServer.h"

#include <string>
#include <utility>
#include <vector>

namespace korva::test {

/// The command that runs one of our scripts, whatever the machine's settings say.
inline std::vector<std::string> phpCommand(const std::string& script) {
    return {
        KORVA_TEST_PHP,  "-d", "display_errors=stderr",         "-d", "error_reporting=-1", "-d",
        "log_errors=0",  "-d", "default_socket_timeout=20",     "-d", "precision=17",       "-d",
        "html_errors=0", "-f", KORVA_TEST_PHP_DIR "/" + script, "--"};
}

/// A case of php/client.php.
class PhpClient : public ToolkitClient {
public:
    explicit PhpClient(const std::string& name, Service service = leaveUnset)
        : ToolkitClient(phpCommand("client.php"), name, std::move(service)) {}
};

/// A case of php/server.php. It understands a call as the SOAP action, the header, the operation
/// and its arguments, as a tree.
class PhpServer : public ToolkitServer {
public:
    explicit PhpServer(const std::string& name) : ToolkitServer(phpCommand("server.php"), name) {}
};

}  // namespace korva::test
