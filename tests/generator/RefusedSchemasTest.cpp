// Each file of refused/ is a vocabulary that must not compile; beside it stands what is told of it.
#include "generator/Compiler.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace korva::schemac {
namespace {

std::vector<std::string> refusedFiles() {
    std::vector<std::string> out;
    for (const auto& entry : std::filesystem::directory_iterator(testFile("refused"))) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".xsd" || extension == ".wsdl") {
            out.push_back(entry.path().filename().string());
        }
    }
    std::sort(out.begin(), out.end());
    return out;
}

struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;  ///< without the directory of the refused files
};

Outcome compile(const std::string& file, const std::string& outDirectory) {
    const std::string directory = testFile("refused/");
    std::vector<std::string> arguments = {"--schema"};
    if (file.ends_with(".wsdl")) {
        arguments.insert(arguments.end(), {directory + "included/base.xsd", "--wsdl"});
    }
    arguments.insert(arguments.end(), {directory + file, "--hand-written", KORVA_TEST_HAND_WRITTEN,
                                       "--out", outDirectory});
    std::ostringstream output;
    std::ostringstream errors;
    Outcome outcome;
    outcome.status = run(arguments, output, errors);
    outcome.output = output.str();
    outcome.errors = errors.str();
    for (std::size_t at; (at = outcome.errors.find(directory)) != std::string::npos;) {
        outcome.errors.erase(at, directory.size());
    }
    return outcome;
}

class RefusedSchemas : public testing::TestWithParam<std::string> {};

TEST_P(RefusedSchemas, AreToldWithFileLineElementAndWhatWasExpected) {
    const std::string expectedFile =
        testFile("refused/" + std::filesystem::path(GetParam()).stem().string() + ".expected");
    const std::string out = testing::TempDir() + "korva-refused-" + GetParam();
    std::filesystem::remove_all(out);
    const Outcome outcome = compile(GetParam(), out);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, contentOf(expectedFile));
    EXPECT_FALSE(std::filesystem::exists(out)) << "a refused vocabulary must write nothing";
}

std::string caseName(const testing::TestParamInfo<std::string>& info) {
    std::string out;
    for (const char c : info.param)
        out.push_back(c == '-' || c == '.' ? '_' : c);
    return out;
}

INSTANTIATE_TEST_SUITE_P(Files, RefusedSchemas, testing::ValuesIn(refusedFiles()), caseName);

TEST(RefusedSchemasDirectory, HasAnExpectationForEachFileAndNoOther) {
    std::size_t expectations = 0;
    for (const auto& entry : std::filesystem::directory_iterator(testFile("refused"))) {
        if (entry.path().extension() == ".expected") ++expectations;
    }
    EXPECT_EQ(expectations, refusedFiles().size());
    EXPECT_GT(expectations, 50U);
}

}  // namespace
}  // namespace korva::schemac
