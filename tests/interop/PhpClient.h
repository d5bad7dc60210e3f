// PHP as the client of the library's server.
#pragma once

#include "tests/interop/HttpServer.h"

#include <stdexcept>
#include <string>

namespace korva::test {

/// One case of php/client.php, run against a server that lives as long as this object.
class PhpClient {
public:
    using Service = HttpServer::Service;

    /// Leaves the reply as it was made: its parameters are null.
    static void leaveUnset(KORVAPortTypeBinding&) {}

    /// Runs the case to its end.
    /// @throws std::runtime_error the script failed
    explicit PhpClient(const std::string& name, Service service = leaveUnset);

    /// What the script printed: the reply as PHP understood it.
    const std::string& printed() const { return m_printed; }

    const std::vector<Exchange>& exchanges() const { return m_server.exchanges(); }

    /// The only call of the case.
    /// @throws std::logic_error there was none, or more
    const Exchange& exchange() const;

    /// The request of that call as PHP wrote it.
    const std::string& envelope() const { return exchange().envelope; }

    /// The answer to that call as we wrote it.
    const std::string& answer() const { return exchange().answer; }

    /// The number of the message with which it was refused; 0 if it was not.
    unsigned refusal() const { return exchange().refusal; }

    KORVAPortTypeBinding& binding() const;

    /// The request as the library read it.
    /// @throws std::bad_cast it is another
    template <class Request>
    Request& request() const {
        return dynamic_cast<Request&>(binding().getInputMessage());
    }

private:
    HttpServer m_server;
    std::string m_printed;
};

}  // namespace korva::test
