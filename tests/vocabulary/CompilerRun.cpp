#include "tests/vocabulary/CompilerRun.h"

#include "generator/Compiler.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace korva::test {

TemporaryDirectory::TemporaryDirectory() {
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    m_path = testing::TempDir() + "korva-" + test->test_suite_name() + "-" + test->name();
    std::filesystem::remove_all(m_path);
    std::filesystem::create_directories(m_path);
}

TemporaryDirectory::~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string sourceSchema() {
    return KORVA_TEST_SOURCE_DIR "/schema";
}

std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in) << path;
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

Outcome runCompiler(const std::string& schema, const std::vector<std::string>& more) {
    std::vector<std::string> arguments = {"--schema", schema + "/bus.xsd", "--hand-written",
                                          KORVA_TEST_HAND_WRITTEN};
    std::istringstream names(KORVA_TEST_WSDL_FILES);
    for (std::string name; names >> name;) {
        arguments.push_back("--wsdl");
        arguments.push_back(schema + "/" + name);
    }
    arguments.insert(arguments.end(), more.begin(), more.end());
    std::ostringstream output;
    std::ostringstream errors;
    Outcome outcome;
    outcome.status = schemac::run(arguments, output, errors);
    outcome.errors = errors.str();
    return outcome;
}

}  // namespace korva::test
