// docs/vocabulary.md, which is kept in the tree and made from the schema.

#include "tests/vocabulary/CompilerRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using korva::test::contentOf;
using korva::test::runCompiler;
using korva::test::sourceSchema;
using korva::test::TemporaryDirectory;

/// What the schema compiler writes now.
std::string currentDocs() {
    const TemporaryDirectory out;
    const std::string file = out.path() + "/vocabulary.md";
    const auto outcome = runCompiler(sourceSchema(), {"--docs", file});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    return contentOf(file);
}

/// The first line in which the texts differ, so that a failure does not print both.
std::string firstDifference(const std::string& left, const std::string& right) {
    std::size_t line = 1;
    std::size_t start = 0;
    for (std::size_t i = 0; i < left.size() || i < right.size(); ++i) {
        if (i >= left.size() || i >= right.size() || left[i] != right[i])
            return "line " + std::to_string(line) + ": \"" +
                   left.substr(start, left.find('\n', start) - start) + "\", now \"" +
                   right.substr(start, right.find('\n', start) - start) + '"';
        if (left[i] != '\n') continue;
        ++line;
        start = i + 1;
    }
    return {};
}

TEST(Docs, AreWhatTheSchemaCompilesTo) {
    const std::string kept = contentOf(KORVA_TEST_SOURCE_DIR "/docs/vocabulary.md");
    ASSERT_FALSE(kept.empty());
    EXPECT_EQ(firstDifference(kept, currentDocs()), "")
        << "renew docs/vocabulary.md with the target \"vocabulary\"";
}

TEST(Docs, TellTheCounts) {
    const std::string text = contentOf(KORVA_TEST_SOURCE_DIR "/docs/vocabulary.md");
    for (const char* const line :
         {"- [590 classes](#classes)", "- [129 properties](#properties)", "- [108 arrays](#arrays)",
          "- [97 enumerations](#enumerations)", "- [9 restricted strings](#restricted-strings)",
          "- [476 messages](#messages)", "- [10 services with 293 operations](#services)",
          "Classes whose fields are not known (14):",
          "Enumerations with values whose words are not known (69):"})
        EXPECT_NE(text.find(std::string(line) + '\n'), std::string::npos) << line;
}

TEST(Docs, TellOfASuppliedWordAndOfAnOpenClassWhereTheyStandAndInTheirLists) {
    const std::string text = contentOf(KORVA_TEST_SOURCE_DIR "/docs/vocabulary.md");
    EXPECT_NE(text.find("- [`accessEnum`](#accessenum): `deny`, `grant`\n"), std::string::npos);
    EXPECT_NE(text.find("| `deny` | *Supplied.* |\n"), std::string::npos);
    EXPECT_NE(text.find("- [`tenantInfo`](#tenantinfo)\n"), std::string::npos);
    EXPECT_NE(text.find("\n### tenantInfo\n\n`KORVATenantInfo`\n\nWhat is known about a tenant.\n\n"
                        "*Open: its fields are not known.*\n"),
              std::string::npos);
}

}  // namespace
