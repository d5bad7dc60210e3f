/// A foreign toolkit as the client of the library's server.
#pragma once

#include "tests/interop/HttpServer.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace korva::test {

/// One case of a toolkit's client, run against a server that lives as long as this object.
class ToolkitClient {
public:
    using Service = HttpServer::Service;

    /// Leaves the reply as it was made: its parameters are null.
    static void leaveUnset(KORVAPortTypeBinding&) {}

    /// Runs the program `command` to its end. Its further arguments are the folder of the schema,
    /// the address of the bus, the location of the server and the case.
    /// @param attachment what HttpServer sends beside each reply
    /// @throws std::runtime_error the program failed
    ToolkitClient(std::vector<std::string> command, const std::string& name, Service service,
                  std::string attachment = {});

    /// What the program printed: the reply as the toolkit understood it.
    const std::string& printed() const { return m_printed; }

    const std::vector<Exchange>& exchanges() const { return m_server.exchanges(); }

    /// The only call of the case.
    /// @throws std::logic_error there was none, or more
    const Exchange& exchange() const;

    /// The request of that call as the toolkit wrote it.
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
