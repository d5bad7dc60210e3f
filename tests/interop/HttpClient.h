/// The sending half of a transport, which the library leaves to its users.
#pragma once

#include <string>

namespace korva::test {

struct HttpReply {
    long status = 0;
    std::string body;
};

/// Sends an envelope with its SOAP action and gives the answer.
/// @throws std::runtime_error there is no answer
HttpReply post(const std::string& location, const std::string& action, const std::string& envelope);

/// @throws std::runtime_error there is no answer
HttpReply get(const std::string& location);

}  // namespace korva::test
