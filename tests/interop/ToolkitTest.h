// What the tests with several toolkits share: a row for each toolkit.
#pragma once

#include "tests/toolkits/Cases.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace korva::test {

/// The programs of a toolkit, one that calls and one that answers. They print what they understood
/// as describe() tells it.
struct Toolkit {
    const char* name;
    std::vector<std::string> client;
    std::vector<std::string> server;
    /// The cases of which the toolkit understands another thing than they hold: what it reads.
    std::map<std::string, std::string> otherRequests;
    std::map<std::string, std::string> otherReplies;

    std::string understandsRequest(const std::string& caseName) const {
        const auto other = otherRequests.find(caseName);
        return other != otherRequests.end() ? other->second : requestOf(caseName);
    }
    std::string understandsReply(const std::string& caseName) const {
        const auto other = otherReplies.find(caseName);
        return other != otherReplies.end() ? other->second : replyOf(caseName);
    }

    friend std::ostream& operator<<(std::ostream& stream, const Toolkit& toolkit) {
        return stream << toolkit.name;
    }
};

/// Those that were found when the build was configured.
std::vector<Toolkit> toolkits();

inline std::string toolkitName(const testing::TestParamInfo<Toolkit>& info) {
    return info.param.name;
}

}  // namespace korva::test
