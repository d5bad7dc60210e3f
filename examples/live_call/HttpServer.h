/// The receiving half of the transport.
#pragma once

#include <memory>

namespace live_call {

class Endpoint;

/// Answers POST requests through an Endpoint, on several threads; GET /status tells the peak memory
/// of the process in KB.
///
/// A request is held in memory, up to 4 MB. An answer with attachments is not: it is sent as it is
/// made, in pieces of 64 KB.
class HttpServer {
public:
    /// Listens at `port` of the loopback interface, 0 for any that is free. The endpoint must live
    /// as long as the server.
    /// @throws std::runtime_error the port can't be had
    HttpServer(const Endpoint& endpoint, int port);

    /// Takes no more calls, and waits for those under way.
    ~HttpServer();

    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    int port() const;

private:
    class Listener;
    std::unique_ptr<Listener> m_listener;
};

}  // namespace live_call
