#include "examples/live_call/HttpServer.h"

#include "examples/live_call/Endpoint.h"
#include "examples/live_call/PeakMemory.h"
#include "examples/live_call/SinkStream.h"

#include <zel/ZELThrowable.h>

#include <exception>
#include <httplib.h>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

namespace live_call {

namespace {

constexpr const char* loopback = "127.0.0.1";
constexpr std::size_t threads = 4;
constexpr time_t patience = 20;  // seconds without a byte read or written

constexpr std::size_t largestRequest = 4'000'000;
// A connection that is closed before its request was read may lose the answer on its way. So what
// is too large is read to its end and dropped, unless it never seems to end.
constexpr std::size_t endlessRequest = 16 * largestRequest;

constexpr const char* envelopeType = "text/xml; charset=utf-8";

/// An answer with attachments, on its way.
class Message {
public:
    explicit Message(Answer answer) : m_answer(std::move(answer)), m_writer(m_stream) {}

    const char* contentType() const { return m_writer.getContentType(); }

    /// Sends all. Whether that went well; without the end of the last chunk the client knows that
    /// it did not.
    bool send(httplib::DataSink& sink) {
        try {
            m_stream.open(sink);
            m_writer.beginRoot().write(m_answer.envelope.data(), m_answer.envelope.size());
            for (Attachment& part : m_answer.attachments)
                m_writer.writePart(part.id.c_str(), part.type.c_str(), *part.content,
                                   part.compression);
            m_writer.close();
            m_stream.close();
            return true;
        } catch (const ZELThrowable& error) {
            std::cerr << error.toString() << std::endl;
        } catch (const std::exception& error) {
            std::cerr << error.what() << std::endl;
        }
        return false;
    }

private:
    Answer m_answer;
    SinkStream m_stream;
    HALYARDTKMultipartWriter m_writer;
};

void respond(httplib::Response& response, Answer answer) {
    response.status = answer.status;
    if (answer.attachments.empty()) {
        response.set_content(answer.envelope, envelopeType);
        return;
    }
    const auto message = std::make_shared<Message>(std::move(answer));
    response.set_chunked_content_provider(
        message->contentType(),
        [message](std::size_t, httplib::DataSink& sink) { return message->send(sink); });
}

}  // namespace

class HttpServer::Listener {
public:
    Listener(const Endpoint& endpoint, int port) : m_endpoint(endpoint) {
        m_server.new_task_queue = [] { return new httplib::ThreadPool(threads); };
        m_server.set_read_timeout(patience);
        m_server.set_write_timeout(patience);
        // A connection carries one call, so that the rest of a request that was given up is never
        // taken for another.
        m_server.set_keep_alive_max_count(1);
        m_server.Post("/", [this](const httplib::Request& request, httplib::Response& response,
                                  const httplib::ContentReader& content) {
            respond(response, answer(request, content));
        });
        m_server.set_exception_handler([this](const httplib::Request&, httplib::Response& response,
                                              const std::exception_ptr&) {
            respond(response, m_endpoint.refuse("The request has a form that is not taken here."));
        });
        m_server.Get("/status", [](const httplib::Request&, httplib::Response& response) {
            response.set_content(std::to_string(peakMemory()), "text/plain");
        });

        m_port = port == 0 ? m_server.bind_to_any_port(loopback) : port;
        if (m_port <= 0 || (port != 0 && !m_server.bind_to_port(loopback, port)))
            throw std::runtime_error("There is no port to listen at.");
        m_thread = std::thread([this] { m_server.listen_after_bind(); });
        // A server that doesn't run yet would not notice that it is told to stop.
        while (!m_server.is_running())
            std::this_thread::yield();
    }

    ~Listener() {
        m_server.stop();
        m_thread.join();
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    int port() const { return m_port; }

private:
    Answer answer(const httplib::Request& request, const httplib::ContentReader& content) const {
        // Counted here, as a request in chunks doesn't say its size.
        std::string envelope;
        std::size_t size = 0;
        const bool isComplete = content([&](const char* bytes, std::size_t count) {
            size += count;
            if (size <= largestRequest) envelope.append(bytes, count);
            return size <= endlessRequest;
        });
        if (size > largestRequest)
            return m_endpoint.refuse("A request may have " + std::to_string(largestRequest) +
                                     " bytes.");
        if (!isComplete) return m_endpoint.refuse("The request is cut off.");
        return m_endpoint.answer(envelope, request.get_header_value("SOAPAction"));
    }

    const Endpoint& m_endpoint;
    httplib::Server m_server;
    std::thread m_thread;
    int m_port = 0;
};

HttpServer::HttpServer(const Endpoint& endpoint, int port)
    : m_listener(std::make_unique<Listener>(endpoint, port)) {}

HttpServer::~HttpServer() = default;

int HttpServer::port() const {
    return m_listener->port();
}

}  // namespace live_call
