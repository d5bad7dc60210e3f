#include "generator/Compiler.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace korva::schemac {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;
};

Outcome runWith(const std::vector<std::string>& arguments) {
    std::ostringstream output;
    std::ostringstream errors;
    Outcome outcome;
    outcome.status = run(arguments, output, errors);
    outcome.output = output.str();
    outcome.errors = errors.str();
    return outcome;
}

std::vector<std::string> sampleArguments(const std::vector<std::string>& more) {
    std::vector<std::string> out = {"--schema",       testFile("sample/sample.xsd"),
                                    "--wsdl",         testFile("sample/service.wsdl"),
                                    "--hand-written", KORVA_TEST_HAND_WRITTEN};
    out.insert(out.end(), more.begin(), more.end());
    return out;
}

class CompilerRun : public testing::Test {
protected:
    void SetUp() override {
        const testing::TestInfo* info = testing::UnitTest::GetInstance()->current_test_info();
        out = testing::TempDir() + "korva-schemac-" + info->name();
        fs::remove_all(out);
    }
    void TearDown() override { fs::remove_all(out); }

    std::set<std::string> written() const {
        std::set<std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(out)) {
            if (entry.is_regular_file()) {
                files.insert(entry.path().lexically_relative(out).generic_string());
            }
        }
        return files;
    }

    std::string out;
};

TEST_F(CompilerRun, WritesExactlyWhatItLists) {
    const Outcome listed = runWith(sampleArguments({"--out", out, "--list-outputs"}));
    ASSERT_EQ(listed.status, 0) << listed.errors;
    EXPECT_FALSE(fs::exists(out)) << "--list-outputs writes nothing";
    const Outcome made = runWith(sampleArguments({"--out", out}));
    ASSERT_EQ(made.status, 0) << made.errors;
    EXPECT_EQ(made.output, "");
    std::string files;
    for (const std::string& file : written())
        files += file + "\n";
    EXPECT_EQ(listed.output, files);
}

TEST_F(CompilerRun, LeavesFilesThatAreRightUntouched) {
    ASSERT_EQ(runWith(sampleArguments({"--out", out})).status, 0);
    const std::string kept = out + "/include/korva/KORVAAccount.h";
    const std::string changed = out + "/include/korva/KORVAGuid.h";
    const std::string content = contentOf(changed);
    std::ofstream(changed, std::ios::app) << "// edited\n";
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(kept, longAgo);
    fs::last_write_time(changed, longAgo);
    ASSERT_EQ(runWith(sampleArguments({"--out", out})).status, 0);
    EXPECT_EQ(fs::last_write_time(kept), longAgo);
    EXPECT_NE(fs::last_write_time(changed), longAgo);
    EXPECT_EQ(contentOf(changed), content);
}

TEST_F(CompilerRun, WritesTheVocabularyAsAText) {
    const std::string docs = out + "/docs/vocabulary.md";
    ASSERT_EQ(runWith(sampleArguments({"--docs", docs})).status, 0);
    EXPECT_EQ(written(), std::set<std::string>{"docs/vocabulary.md"});
    const std::string text = contentOf(docs);
    EXPECT_NE(text.find("- [`accessEnum`](#accessenum): `deny`\n"), std::string::npos);
    EXPECT_NE(text.find("- [`accessEnum`](#accessenum): 2 words, beside "), std::string::npos);
}

TEST_F(CompilerRun, TellsWhenAFileCannotBeWritten) {
    std::ofstream(out) << "a file where the directory should be";
    const Outcome outcome = runWith(sampleArguments({"--out", out}));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find(": error: it cannot be written\n"), std::string::npos);
}

TEST_F(CompilerRun, TellsWhenASchemaCannotBeRead) {
    const std::string missing = testFile("sample/nowhere.xsd");
    const Outcome outcome = runWith({"--schema", missing, "--docs", out});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              missing + ":0: error: file: it cannot be read; expected an existing file\n");
}

TEST_F(CompilerRun, TellsWhenTheListOfHandWrittenHeadersCannotBeRead) {
    const std::string missing = testFile("sample/nowhere.txt");
    const Outcome outcome = runWith(sampleArguments({"--hand-written", missing, "--out", out}));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              missing + ":0: error: file: it cannot be read; expected an existing file\n");
    EXPECT_FALSE(fs::exists(out));
}

TEST_F(CompilerRun, OpensNoExternalEntity) {
    fs::create_directories(out);
    std::ofstream(out + "/secret.txt") << "secret";
    std::ofstream(out + "/entity.xsd")
        << "<!DOCTYPE xs:schema [<!ENTITY e SYSTEM \"file://" << out << "/secret.txt\">]>\n"
        << "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" targetNamespace=\"urn:x\">\n"
        << "<xs:simpleType name=\"guid\"><xs:annotation><xs:documentation>&e;</xs:documentation>"
        << "</xs:annotation><xs:restriction base=\"xs:string\"/></xs:simpleType></xs:schema>\n";
    const Outcome outcome = runWith({"--schema", out + "/entity.xsd", "--docs", out + "/docs.md"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors,
              out + "/entity.xsd:3: error: XML: unable to open external entity 'file://" + out +
                  "/secret.txt'; expected a well-formed document\n");
    EXPECT_FALSE(fs::exists(out + "/docs.md"));
}

TEST_F(CompilerRun, RefusesAFileThatIsNestedTooDeep) {
    fs::create_directories(out);
    {
        std::ofstream file(out + "/deep.xsd");
        for (int i = 0; i < 100000; ++i)
            file << "<a>";
        for (int i = 0; i < 100000; ++i)
            file << "</a>";
    }
    const Outcome outcome = runWith({"--schema", out + "/deep.xsd", "--list-outputs"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("nested too deep; expected fewer than 64 levels\n"),
              std::string::npos);
}

TEST(CommandLine, IsRefusedWithTheUsage) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"--out", "x"},
        {"--schema"},
        {"--schema", "x.xsd"},
        {"--schema", "x.xsd", "--out"},
        {"--schema", "x.xsd", "--out", "y"},
        {"--schema", "x.xsd", "--out", "y", "--hand-written"},
        {"--schema", "x.xsd", "--out", "y", "--hand-written", "z", "--quiet"},
        {"x.xsd"},
    };
    for (const auto& arguments : wrong) {
        const Outcome outcome = runWith(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_TRUE(outcome.errors.starts_with("korva-schemac: ")) << outcome.errors;
        EXPECT_NE(outcome.errors.find("usage: korva-schemac"), std::string::npos);
        EXPECT_EQ(outcome.output, "");
    }
}

TEST(CommandLine, TellsItsUsage) {
    const Outcome outcome = runWith({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.output.starts_with("usage: korva-schemac"));
    EXPECT_EQ(outcome.errors, "");
}

}  // namespace
}  // namespace korva::schemac
