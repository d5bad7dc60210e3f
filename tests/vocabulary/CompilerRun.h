/// Runs the schema compiler over the whole vocabulary.
#pragma once

#include <string>
#include <vector>

namespace korva::test {

/// A directory of its own for one test, removed with all that it holds.
class TemporaryDirectory {
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

struct Outcome {
    int status = 0;
    std::string errors;
};

/// The directory of the schema files in the source tree.
std::string sourceSchema();

std::string contentOf(const std::string& path);

/// Compiles the schema files of a directory, with further arguments.
Outcome runCompiler(const std::string& schema, const std::vector<std::string>& more);

}  // namespace korva::test
