// Files that do not tell what is on the wire, as those of before do not.
#include "generator/Compiler.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace korva::schemac {
namespace {

namespace fs = std::filesystem;

std::string replaced(const std::string& text, const char* pattern, const char* by) {
    const std::string result = std::regex_replace(text, std::regex(pattern), by);
    EXPECT_NE(result, text) << pattern;
    return result;
}

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string withoutForm(const std::string& text) {
    return replaced(text, "\\s+elementFormDefault=\"qualified\"", "");
}

/// What a vocabulary compiles to: its files one after the other, and its documentation.
std::string compiled(const fs::path& directory) {
    const fs::path out = directory / "out";
    std::ostringstream output;
    std::ostringstream errors;
    const int status =
        run({"--schema", (directory / "sample.xsd").string(), "--wsdl",
             (directory / "service.wsdl").string(), "--hand-written", KORVA_TEST_HAND_WRITTEN,
             "--out", out.string(), "--docs", (directory / "out.md").string()},
            output, errors);
    EXPECT_EQ(status, 0) << errors.str();
    std::set<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(out))
        if (entry.is_regular_file()) files.insert(entry.path());
    EXPECT_GT(files.size(), 50U);
    std::string text;
    for (const fs::path& file : files)
        text += file.lexically_relative(out).string() + "\n" + contentOf(file.string());
    return text + contentOf((directory / "out.md").string());
}

class OlderFiles : public testing::Test {
protected:
    void SetUp() override {
        // Generated files tell the last folder.
        m_now = m_root / "now" / "sample";
        m_before = m_root / "before" / "sample";
        fs::remove_all(m_root);
        for (const fs::path& directory : {m_now, m_before}) {
            fs::create_directories(directory.parent_path());
            fs::copy(testFile("sample"), directory);
        }
    }
    void TearDown() override { fs::remove_all(m_root); }

    /// Changes a file of the copy that becomes an older one.
    template <class Change>
    void change(const char* name, Change change) const {
        const fs::path path = m_before / name;
        writeFile(path, change(contentOf(path.string())));
    }

    void expectTheSame() const {
        const std::string before = compiled(m_before);
        const std::string now = compiled(m_now);
        const auto at = std::mismatch(before.begin(), before.end(), now.begin(), now.end()).second;
        EXPECT_TRUE(before == now) << "from here: " << std::string(at, now.end()).substr(0, 200);
    }

private:
    /// One for each test, as tests run side by side.
    const fs::path m_root = fs::path(testing::TempDir()) /
                            (std::string("korva-older-files-") +
                             testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::path m_now;
    fs::path m_before;
};

TEST_F(OlderFiles, CompileToTheSame) {
    change("sample.xsd", [](const std::string& text) {
        return replaced(withoutForm(text), "<xs:element name=\"halyardHeader\".*?/>", "");
    });
    change("values.xsd", [](const std::string& text) {
        const std::string items =
            "<xs:sequence>\\s*<xs:element name=\"item\"[^>]*>\\s*"
            "</xs:sequence>\\s*";
        return replaced(withoutForm(text), items.c_str(), "");
    });
    change("messages.wsdl", [](const std::string& text) {
        return replaced(text, "element=\"bus:halyardHeader\"", "type=\"bus:folder\"");
    });
    expectTheSame();
}

TEST_F(OlderFiles, MayTellTheFormOfEachElementInstead) {
    change("sample.xsd", withoutForm);
    change("values.xsd", withoutForm);
    for (const char* const name : {"sample.xsd", "values.xsd"})
        change(name, [](const std::string& text) {
            return replaced(text, "( type=\"[^\"]*\" minOccurs=\"0\" nillable=\"true\")",
                            "$1 form=\"qualified\"");
        });
    expectTheSame();
}

}  // namespace
}  // namespace korva::schemac
