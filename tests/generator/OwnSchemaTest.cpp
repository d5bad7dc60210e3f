// The library's own schema.
#include "generator/emit/Emit.h"
#include "generator/passes/Passes.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace korva::schemac {
namespace {

std::string schemaFile(const std::string& name) {
    return KORVA_TEST_SOURCE_DIR "/schema/" + name;
}

const Model& vocabulary() {
    static const Model& model = [&]() -> const Model& {
        std::vector<std::string> wsdls = {schemaFile("messages.wsdl")};
        for (const auto& entry : std::filesystem::directory_iterator(schemaFile(""))) {
            if (entry.path().extension() == ".wsdl") wsdls.push_back(entry.path().string());
        }
        std::sort(wsdls.begin(), wsdls.end());
        return *new Model({schemaFile("bus.xsd")}, wsdls);
    }();
    return model;
}

TEST(OwnSchema, HasNoErrors) {
    EXPECT_EQ(vocabulary().diagnostics.text(), "");
}

TEST(OwnSchema, GivesEachTypeTheCrc32OfItsName) {
    ASSERT_GT(vocabulary().schema.byName.size(), 900U);
    for (const model::Type* type : vocabulary().schema.byName) {
        EXPECT_EQ(type->identity, passes::identityOf(type->name)) << type->name;
    }
    EXPECT_EQ(vocabulary().type("schedule").identity, 0x5A3811FB);
    EXPECT_EQ(vocabulary().message("asynchRun_Request").identity, 0x205E290F);
}

TEST(OwnSchema, CountsTheFieldsOfAllBases) {
    EXPECT_EQ(vocabulary().type("schedule").fields.size(), 34U);
    EXPECT_EQ(vocabulary().type("schedule").baseType()->name, "uiClass");
    EXPECT_EQ(vocabulary().type("uiClass").fields.size(), 9U);
}

TEST(OwnSchema, SpreadsItsClassesEvenly) {
    std::map<std::string, std::size_t> sizes;
    std::size_t most = 0;
    std::size_t least = SIZE_MAX;
    const emit::Files files = emit::emitAll(vocabulary().schema);
    for (const auto& [path, content] : files.all()) {
        if (!path.starts_with("schema/KORVASchemaTypesClass")) continue;
        most = std::max(most, content.size());
        least = std::min(least, content.size());
    }
    EXPECT_LT(most, least + least / 5);
}

}  // namespace
}  // namespace korva::schemac
