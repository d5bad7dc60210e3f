#include "tests/interop/HttpClient.h"

#include <curl/curl.h>
#include <memory>
#include <stdexcept>

namespace korva::test {

namespace {

constexpr long answerTimeout = 20;  // seconds

struct EndHandle {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};

struct FreeList {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

std::size_t append(char* bytes, std::size_t, std::size_t count, void* body) {
    static_cast<std::string*>(body)->append(bytes, count);
    return count;
}

HttpReply perform(CURL* handle, const std::string& location) {
    HttpReply reply;
    curl_easy_setopt(handle, CURLOPT_URL, location.c_str());
    curl_easy_setopt(handle, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT, answerTimeout);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &reply.body);
    const CURLcode code = curl_easy_perform(handle);
    if (code != CURLE_OK) throw std::runtime_error(location + ": " + curl_easy_strerror(code));
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &reply.status);
    return reply;
}

}  // namespace

HttpReply post(const std::string& location, const std::string& action,
               const std::string& envelope) {
    const std::unique_ptr<CURL, EndHandle> handle(curl_easy_init());
    std::unique_ptr<curl_slist, FreeList> headers(
        curl_slist_append(nullptr, "Content-Type: text/xml; charset=utf-8"));
    curl_slist_append(headers.get(), ("SOAPAction: \"" + action + '"').c_str());
    curl_easy_setopt(handle.get(), CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(handle.get(), CURLOPT_POSTFIELDS, envelope.data());
    curl_easy_setopt(handle.get(), CURLOPT_POSTFIELDSIZE, static_cast<long>(envelope.size()));
    return perform(handle.get(), location);
}

HttpReply get(const std::string& location) {
    const std::unique_ptr<CURL, EndHandle> handle(curl_easy_init());
    return perform(handle.get(), location);
}

}  // namespace korva::test
