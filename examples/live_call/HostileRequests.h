/// Requests that nobody should send, and that a service on a network gets.
#pragma once

#include <string>
#include <vector>

namespace live_call {

struct HostileRequest {
    const char* title;
    std::string envelope;
};

/// The file that one of the requests tries to read.
constexpr const char* foreignFile = "/etc/passwd";

/// Each is made from the envelope of a request that `marker` occurs in, as a value.
std::vector<HostileRequest> hostileRequests(const std::string& envelope, const std::string& marker);

}  // namespace live_call
