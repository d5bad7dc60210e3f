/// What the tests with several toolkits share: a row for each toolkit.
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
    /// What stands for a null item in what it sends.
    std::string nullItem;
    /// The cases of which the toolkit sends, or understands, another thing than they hold.
    std::map<std::string, std::string> otherSent = {};
    std::map<std::string, std::string> otherRequests = {};
    std::map<std::string, std::string> otherReplies = {};

    std::string sends(const std::string& caseName) const {
        return find(otherSent, caseName, requestOf);
    }
    std::string understandsRequest(const std::string& caseName) const {
        return find(otherRequests, caseName, requestOf);
    }
    std::string understandsReply(const std::string& caseName) const {
        return find(otherReplies, caseName, replyOf);
    }

    friend std::ostream& operator<<(std::ostream& stream, const Toolkit& toolkit) {
        return stream << toolkit.name;
    }

private:
    static std::string find(const std::map<std::string, std::string>& others,
                            const std::string& caseName, std::string (*rule)(const std::string&)) {
        const auto other = others.find(caseName);
        return other != others.end() ? other->second : rule(caseName);
    }
};

/// Those that were found when the build was configured.
std::vector<Toolkit> toolkits();

inline std::string toolkitName(const testing::TestParamInfo<Toolkit>& info) {
    return info.param.name;
}

}  // namespace korva::test
