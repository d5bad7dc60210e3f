#include "tests/interop/HttpServer.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <halyard/HALYARDTKMultipartWriter.h>
#include <korva/KORVAException.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVA_PortTypes.h>

#include <cstdio>
#include <httplib.h>
#include <stdexcept>
#include <thread>
#include <utility>

namespace korva::test {

namespace {

constexpr const char* loopback = "127.0.0.1";
constexpr const char* contentType = "text/xml; charset=utf-8";

std::string faultEnvelope(const KORVASOAPFault& fault) {
    BRIMMemoryOutputStream bytes;
    KORVASOAPFaultSerializer().serialize(nullptr, fault, bytes, true, true);
    return {bytes.str(), bytes.pcount()};
}

/// An envelope that tells the caller why its request was refused.
std::string faultEnvelope(const ZELMessage& message) {
    char number[16];
    std::snprintf(number, sizeof number, "0x%08X", message.getId());
    std::string text;
    message.fill(nullptr, text);
    KORVAFaultDetailMessage line;
    line.setMessage(text.c_str());
    KORVAFaultDetail detail;
    detail.setErrorCode(number);
    detail.getMessage().push_back(&line);
    KORVAFaultDetailArray details;
    details.push_back(&detail);
    KORVASOAPFault fault;
    fault.setFaultCode("SOAP-ENV:Client");
    fault.setFaultString("The request cannot be read.");
    fault.setDetail(&details);
    return faultEnvelope(fault);
}

std::string write(KORVAPortTypeBinding& binding) {
    BRIMMemoryOutputStream bytes;
    KORVASOAPMessageISerializer().serialize(binding, binding.getOutputMessage(), bytes);
    return {bytes.str(), bytes.pcount()};
}

}  // namespace

class HttpServer::Listener {
public:
    Listener(Service service, std::string attachment)
        : m_service(std::move(service)), m_attachment(std::move(attachment)) {
        // One thread: calls come one after the other.
        m_server.new_task_queue = [] { return new httplib::ThreadPool(1); };
        m_server.Post(".*", [this](const httplib::Request& request, httplib::Response& response) {
            answer(request, response);
        });
        m_port = m_server.bind_to_any_port(loopback);
        if (m_port <= 0) throw std::runtime_error("there is no port to listen at");
        m_thread = std::thread([this] { m_server.listen_after_bind(); });
        // A server that does not run yet would not notice that it is told to stop.
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
    const std::vector<Exchange>& exchanges() const { return m_exchanges; }

private:
    void answer(const httplib::Request& request, httplib::Response& response) {
        Exchange& exchange = m_exchanges.emplace_back();
        exchange.action = request.get_header_value("SOAPAction");
        exchange.envelope = request.body;
        try {
            read(exchange);
            m_service(*exchange.binding);
            exchange.answer = write(*exchange.binding);
        } catch (const KORVAException& error) {
            exchange.binding = {};
            exchange.refusal = error.getMessages()[0].getId();
            exchange.answer = faultEnvelope(error.getMessages()[0]);
            response.status = 500;
        } catch (const KORVASOAPFaultException& fault) {
            exchange.answer = faultEnvelope(fault.getSOAPFault());
            response.status = 500;
        }
        if (response.status < 500 && !m_attachment.empty())
            setMultipart(response, exchange.answer);
        else
            response.set_content(exchange.answer, contentType);
    }

    void setMultipart(httplib::Response& response, const std::string& envelope) const {
        BRIMMemoryOutputStream bytes;
        HALYARDTKMultipartWriter message(bytes);
        message.beginRoot().write(envelope.data(), envelope.size());
        BRIMMemoryInputStream part(m_attachment.data(), m_attachment.size());
        message.writePart(attachmentId, "application/octet-stream", part);
        message.close();
        response.set_content({bytes.str(), bytes.pcount()}, message.getContentType());
    }

    static void read(Exchange& exchange) {
        BRIMMemoryInputStream stream(exchange.envelope.data(), exchange.envelope.size());
        KORVASOAPMessageIDeserializer().parse(stream, KORVA_PortTypes::all(), exchange.binding);
    }

    Service m_service;
    std::string m_attachment;
    httplib::Server m_server;
    std::thread m_thread;
    int m_port = 0;
    std::vector<Exchange> m_exchanges;
};

HttpServer::HttpServer(Service service, std::string attachment)
    : m_listener(std::make_unique<Listener>(std::move(service), std::move(attachment))) {}

HttpServer::~HttpServer() = default;

std::string HttpServer::location() const {
    return std::string("http://") + loopback + ':' + std::to_string(m_listener->port()) + '/';
}

const std::vector<Exchange>& HttpServer::exchanges() const {
    return m_listener->exchanges();
}

}  // namespace korva::test
