// The names that no type may take: those of the headers that are written by hand.
#include "generator/passes/Passes.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace korva::schemac {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string, std::less<>>;

Names listed() {
    std::ifstream list(KORVA_TEST_HAND_WRITTEN);
    Names out;
    for (std::string header; std::getline(list, header);)
        out.insert(fs::path(header).stem().string());
    return out;
}

// The headers as they lie in the tree, those that are configured (`.h.in`) with them.
Names present() {
    Names out;
    for (const char* room : {"core", "messages", "soap", "bridges"}) {
        const fs::path headers = fs::path(KORVA_TEST_SOURCE_DIR) / room / "include" / "korva";
        for (const auto& entry : fs::directory_iterator(headers)) {
            const std::string file = entry.path().filename().string();
            out.insert(file.substr(0, file.find('.')));
        }
    }
    return out;
}

TEST(HandWrittenHeaders, AreAllKnownToTheSchemaCompiler) {
    const Names known = listed();
    ASSERT_GT(present().size(), 70U);
    for (const std::string& name : present())
        EXPECT_TRUE(known.contains(name)) << name;
    EXPECT_TRUE(known.contains("KORVAMessageCatalogue")) << "of a platform library";
}

TEST(HandWrittenHeaders, GiveTheirNamesToNoType) {
    const std::string prefix = "KORVA";
    for (const std::string& name : listed()) {
        const bool couldBeMade =
            name.starts_with(prefix) && name.size() > prefix.size() && name[prefix.size()] != '_';
        if (!couldBeMade) continue;
        model::Schema schema;
        schema.handWritten = listed();
        model::Type& type = schema.types.emplace_back();
        type.at = {"types.xsd", 1};
        type.name = name.substr(prefix.size());
        Diagnostics diagnostics;
        passes::resolveReferences(schema, diagnostics);
        passes::decideNames(schema, diagnostics);
        EXPECT_EQ(diagnostics.text(), "types.xsd:1: error: complexType \"" + type.name +
                                          "\": the class " + name +
                                          " is written by hand; expected another name\n");
    }
}

}  // namespace
}  // namespace korva::schemac
