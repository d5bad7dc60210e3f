#include "examples/live_call/HttpCall.h"

#include <brim/BRIMStreamError.h>
#include <zel/ZELThrow.h>

#include <algorithm>
#include <cstring>
#include <curl/curl.h>

namespace live_call {

namespace {

// Seconds.
constexpr long connectTimeout = 10;
constexpr long silenceTimeout = 20;
constexpr long callTimeout = 300;

[[noreturn]] void fail(const std::string& text) {
    ZEL_THROW(BRIMStreamError(text.c_str()));
}

}  // namespace

struct HttpCall::Handles {
    Handles() : easy(curl_easy_init()), multi(curl_multi_init()) {
        if (easy == nullptr || multi == nullptr) fail("libcurl could not be started.");
    }
    ~Handles() {
        if (multi != nullptr && easy != nullptr) curl_multi_remove_handle(multi, easy);
        curl_easy_cleanup(easy);
        if (multi != nullptr) curl_multi_cleanup(multi);
        curl_slist_free_all(headers);
    }
    Handles(const Handles&) = delete;
    Handles& operator=(const Handles&) = delete;

    CURL* easy;
    CURLM* multi;
    curl_slist* headers = nullptr;
};

HttpCall::HttpCall(const std::string& url, const std::string& action, const std::string& envelope)
    : m_request(envelope), m_handles(std::make_unique<Handles>()) {
    CURL* const easy = m_handles->easy;
    for (const std::string& header :
         {std::string("Content-Type: text/xml; charset=utf-8"), "SOAPAction: \"" + action + '"'})
        m_handles->headers = curl_slist_append(m_handles->headers, header.c_str());
    curl_easy_setopt(easy, CURLOPT_URL, url.c_str());
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, m_handles->headers);
    curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(m_request.size()));
    curl_easy_setopt(easy, CURLOPT_POSTFIELDS, m_request.data());
    begin();
}

HttpCall::HttpCall(const std::string& url) : m_handles(std::make_unique<Handles>()) {
    curl_easy_setopt(m_handles->easy, CURLOPT_URL, url.c_str());
    begin();
}

HttpCall::~HttpCall() = default;

long HttpCall::status() const {
    long status = 0;
    curl_easy_getinfo(m_handles->easy, CURLINFO_RESPONSE_CODE, &status);
    return status;
}

const char* HttpCall::contentType() const {
    const char* type = nullptr;
    curl_easy_getinfo(m_handles->easy, CURLINFO_CONTENT_TYPE, &type);
    return type;
}

long long HttpCall::read(char* buffer, std::size_t size) {
    while (m_position == m_received.size() && !m_isComplete)
        fetch();
    const std::size_t count = std::min(size, m_received.size() - m_position);
    std::memcpy(buffer, m_received.data() + m_position, count);
    m_position += count;
    return static_cast<long long>(count);
}

std::size_t HttpCall::receive(char* bytes, std::size_t, std::size_t count, void* call) {
    auto& self = *static_cast<HttpCall*>(call);
    // What is refused here is offered again, and meanwhile nothing more is taken from the network.
    if (self.m_position != self.m_received.size()) {
        self.m_isPaused = true;
        return CURL_WRITEFUNC_PAUSE;
    }
    self.m_received.assign(bytes, count);
    self.m_position = 0;
    self.m_receivedBytes += count;
    return count;
}

/// Starts the call, and waits for the begin of the answer.
void HttpCall::begin() {
    CURL* const easy = m_handles->easy;
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy, CURLOPT_NOPROXY, "127.0.0.1");
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT, connectTimeout);
    curl_easy_setopt(easy, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(easy, CURLOPT_LOW_SPEED_TIME, silenceTimeout);
    curl_easy_setopt(easy, CURLOPT_TIMEOUT, callTimeout);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, receive);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl_multi_add_handle(m_handles->multi, easy);
    while (m_received.empty() && !m_isComplete)
        fetch();
    if (status() != 200 && status() != 500)
        fail("The server answered with the status " + std::to_string(status()) + '.');
}

/// Lets the transfer go on, until there is something to read or to wait for.
void HttpCall::fetch() {
    if (m_isPaused) {
        m_isPaused = false;
        curl_easy_pause(m_handles->easy, CURLPAUSE_CONT);
        if (m_position != m_received.size()) return;
    }
    int running = 0;
    curl_multi_perform(m_handles->multi, &running);
    int waiting = 0;
    while (const CURLMsg* const message = curl_multi_info_read(m_handles->multi, &waiting)) {
        if (message->msg != CURLMSG_DONE) continue;
        m_isComplete = true;
        if (message->data.result != CURLE_OK)
            fail(std::string("The call failed: ") + curl_easy_strerror(message->data.result));
    }
    if (m_position == m_received.size() && !m_isComplete)
        curl_multi_poll(m_handles->multi, nullptr, 0, 1000, nullptr);
}

}  // namespace live_call
