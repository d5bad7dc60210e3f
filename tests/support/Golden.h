/// Envelopes that tests compare with.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace korva::test {

/// The file of tests/data/envelopes, with the namespaces' authority that this build has.
inline std::string goldenEnvelope(const std::string& name) {
    const std::string path = KORVA_TEST_DATA_DIR "/envelopes/" + name + ".xml";
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << "cannot read " << path;
    std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::string authority = KORVA_TEST_DATA_AUTHORITY;
    const std::string ours = KORVA_TEST_AUTHORITY;
    for (std::size_t at = text.find(authority); at != std::string::npos;
         at = text.find(authority, at + ours.size()))
        text.replace(at, authority.size(), ours);
    return text;
}

}  // namespace korva::test
