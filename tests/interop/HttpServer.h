/// The receiving half of a transport, which the library leaves to its users, and the service above.
#pragma once

#include <korva/KORVAPortTypeBinding.h>
#include <zel/ZELSmartPointer.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace korva::test {

/// One request as it came in, and what the library made of it.
struct Exchange {
    std::string action;                             ///< the SOAPAction header, with its quotes
    std::string envelope;                           ///< the request as it was sent
    std::string answer;                             ///< the reply or the fault as it was sent
    ZELSmartPointer<KORVAPortTypeBinding> binding;  ///< null if the request was refused
    unsigned refusal = 0;                           ///< the number of the message that told why
};

/// A server of all services at a port of the loopback interface that the system chose. Requests are
/// read by the library and replies written by it, on a thread of the server's own.
class HttpServer {
public:
    /// Fills the output message of a call, or throws the fault to answer with.
    using Service = std::function<void(KORVAPortTypeBinding&)>;

    /// What follows each reply as a part of its message, under the id `attachmentId`.
    static constexpr const char* attachmentId = "picture";

    /// With an attachment, replies are multipart messages.
    /// @throws std::runtime_error there is no port
    explicit HttpServer(Service service, std::string attachment = {});
    ~HttpServer();

    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    std::string location() const;

    /// What came in, in its order. Read it when no call is under way.
    const std::vector<Exchange>& exchanges() const;

private:
    class Listener;
    std::unique_ptr<Listener> m_listener;
};

}  // namespace korva::test
