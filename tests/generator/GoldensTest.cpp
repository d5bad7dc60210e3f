// What the sample vocabulary compiles to, compared byte by byte with the files of goldens/.
//
// After a wanted change of the output, from tests/generator:
//     korva-schemac --schema sample/sample.xsd --wsdl sample/service.wsdl --out <dir>
//         --hand-written <build>/hand-written.txt
// and copy the files that goldens/ has.
#include "generator/emit/Emit.h"
#include "tests/generator/Model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>

namespace korva::schemac {
namespace {

std::set<std::string> goldens() {
    const std::filesystem::path root = testFile("goldens");
    std::set<std::string> out;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_regular_file()) out.insert(entry.path().lexically_relative(root).string());
    }
    return out;
}

TEST(Goldens, AreWhatTheSampleCompilesTo) {
    const Model model = sample();
    ASSERT_EQ(model.diagnostics.text(), "");
    std::map<std::string, std::string> made = emit::emitAll(model.schema).all();
    made["vocabulary.md"] = emit::emitDocs(model.schema);
    for (const std::string& path : goldens()) {
        const auto found = made.find(path);
        ASSERT_NE(found, made.end()) << path << " is not written any more";
        EXPECT_EQ(found->second, contentOf(testFile("goldens/" + path))) << path;
    }
}

TEST(Goldens, ShowEachFamily) {
    const std::set<std::string> present = goldens();
    for (const std::string path : {"include/korva/KORVAAccessEnum.h",
                                   "include/korva/KORVAAccount.h",
                                   "include/korva/KORVAAccountArray.h",
                                   "include/korva/KORVAGuid.h",
                                   "include/korva/KORVAMessageTypes_gen_.inc",
                                   "include/korva/KORVAObjectTypes_gen_.inc",
                                   "include/korva/KORVAParamDescriptors_gen_.inc",
                                   "include/korva/KORVAQuery_1_Request.h",
                                   "include/korva/KORVAServicePortType.h",
                                   "include/korva/KORVAStringArrayProp.h",
                                   "messages/KORVAMessageFactory_gen_.cpp",
                                   "messages/KORVAMessages3_gen_.cpp",
                                   "messages/KORVAPortTypes1_gen_.cpp",
                                   "schema/KORVADescriptors_gen_.h",
                                   "schema/KORVARecords_gen_.h",
                                   "schema/KORVASchemaTypesArray1_gen_.cpp",
                                   "schema/KORVASchemaTypesClass5_gen_.cpp",
                                   "schema/KORVASchemaTypesEnum_gen_.cpp",
                                   "schema/KORVASchemaTypesFactory_gen_.cpp",
                                   "schema/KORVASchemaTypesProperty1_gen_.cpp",
                                   "schema/KORVASchemaTypesRestrictedString_gen_.cpp",
                                   "tarn/TARNTypes_gen_.cpp",
                                   "words/tarnsymbols1_gen_.cpp",
                                   "vocabulary.md"}) {
        EXPECT_TRUE(present.contains(path)) << path;
    }
}

TEST(Output, IsTheSameInEachRun) {
    EXPECT_EQ(emit::emitAll(sample().schema).all(), emit::emitAll(sample().schema).all());
    EXPECT_EQ(emit::emitDocs(sample().schema), emit::emitDocs(sample().schema));
}

TEST(Output, DoesNotDependOnTheOrderOfTheFiles) {
    // The sample's own first file stays first, for it gives its name to what is made of all.
    const std::string service = testFile("sample/service.wsdl");
    const std::string messages = testFile("sample/messages.wsdl");
    const Model forwards({testFile("sample/sample.xsd")}, {messages, service});
    const Model backwards({testFile("sample/sample.xsd")}, {service, messages});
    EXPECT_EQ(emit::emitAll(forwards.schema).all(), emit::emitAll(backwards.schema).all());
}

TEST(Output, TellsItsSourceAndChecksTheVersion) {
    const emit::Files files = emit::emitAll(sample().schema);
    for (const auto& [path, content] : files.all()) {
        EXPECT_TRUE(content.starts_with("// Made by korva-schemac from sample/")) << path;
        EXPECT_NE(content.find("; do not edit.\n"), std::string::npos) << path;
        const bool isOfTarn = path.starts_with("tarn/") || path.starts_with("words/");
        const std::string check = isOfTarn ? "#if TARN_TABLE_VERSION != 1\n#error"
                                           : "#if KORVA_CORE_VERSION != 1\n#error";
        EXPECT_NE(content.find(check), std::string::npos) << path;
    }
}

}  // namespace
}  // namespace korva::schemac
