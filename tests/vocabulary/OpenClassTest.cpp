// A field added in the XSD is all that an open class needs.

#include "tests/vocabulary/CompilerRun.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using korva::test::contentOf;
using korva::test::runCompiler;
using korva::test::sourceSchema;
using korva::test::TemporaryDirectory;

constexpr const char* fieldAdded =
    R"(<xs:element name="displayCaption" type="bus:stringProp" minOccurs="0" nillable="true">
        <xs:annotation><xs:documentation>What the tenant is called.</xs:documentation></xs:annotation>
      </xs:element>
      <xs:element name="seatCount" type="xs:int" minOccurs="0" nillable="true"/>)";

/// A copy of the schema in which the open class `tenantInfo` has two fields, and what it compiles
/// to.
class OpenClass : public testing::Test {
protected:
    void SetUp() override {
        schema = directory.path() + "/schema";
        out = directory.path() + "/out";
        std::filesystem::copy(sourceSchema(), schema);
        const std::string file = schema + "/fields.xsd";
        std::string text = contentOf(file);
        const std::size_t type = text.find("<xs:complexType name=\"tenantInfo\">");
        ASSERT_NE(type, std::string::npos);
        const std::string empty = "<xs:sequence/>";
        const std::size_t fields = text.find(empty, type);
        ASSERT_LT(fields, text.find("</xs:complexType>", type));
        text.replace(fields, empty.size(),
                     std::string("<xs:sequence>") + fieldAdded + "</xs:sequence>");
        std::ofstream(file, std::ios::binary) << text;
        const auto outcome =
            runCompiler(schema, {"--out", out, "--docs", directory.path() + "/vocabulary.md"});
        ASSERT_EQ(outcome.status, 0) << outcome.errors;
    }

    std::string generated(const std::string& path) const { return contentOf(out + "/" + path); }

    /// The unit that defines the class.
    std::string definingUnit() const {
        for (int i = 1; i <= 8; ++i) {
            const std::string path =
                "schema/KORVASchemaTypesClass" + std::to_string(i) + "_gen_.cpp";
            if (generated(path).find("// tenantInfo ---") != std::string::npos) return path;
        }
        return {};
    }

    /// Whether the compiler takes a unit, with the generated headers in front of ours.
    static bool compiles(const std::string& unit, const std::string& out) {
        std::string command =
            "\"" KORVA_TEST_COMPILER "\" -std=c++20 -Wall -Wextra -Wpedantic -Werror -fsyntax-only";
        for (const std::string& directory : {out, out + "/include"})
            command += " \"-I" + directory + "\"";
        command += " \"-I" KORVA_TEST_SOURCE_DIR "\"";
        for (const char* const room : {"core", "platform/zel", "platform/i18n", "platform/tarn"})
            command += std::string(" \"-I" KORVA_TEST_SOURCE_DIR "/") + room + "/include\"";
        return std::system((command + " \"" + unit + "\"").c_str()) == 0;
    }

    TemporaryDirectory directory;
    std::string schema;
    std::string out;
};

bool has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

/// The part of a unit that belongs to one class.
std::string partOf(const std::string& unit, const std::string& name) {
    const std::size_t start = unit.find("// " + name + " ---");
    if (start == std::string::npos) return {};
    return unit.substr(start, unit.find(" ---\n//", start + 1) - start);
}

TEST_F(OpenClass, GetsTheAccessorsOfAnAddedField) {
    const std::string header = generated("include/korva/KORVATenantInfo.h");
    for (const char* const part :
         {"    /// What the tenant is called.", "    KORVAStringProp* getDisplayCaption() const;\n",
          "    KORVAStringProp* getDisplayCaption(KORVAObjectRegistryI* registry);\n",
          "    void setDisplayCaption(KORVAStringProp* value);\n",
          "    int* getSeatCount() const;\n", "    void setSeatCount(int value);\n",
          "    void resetSeatCount();\n"})
        EXPECT_TRUE(has(header, part)) << part;
    EXPECT_FALSE(has(contentOf(sourceSchema() + "/fields.xsd"), "displayCaption"));
}

TEST_F(OpenClass, KeepsAnAddedFieldInItsRecordAndItsDescriptor) {
    const std::string records = generated("schema/KORVARecords_gen_.h");
    const std::size_t record = records.find("struct KORVATenantInfo_PrivateData");
    ASSERT_NE(record, std::string::npos);
    const std::string members = records.substr(record, records.find("};", record) - record);
    EXPECT_TRUE(has(members, "displayCaption")) << members;
    EXPECT_TRUE(has(members, "seatCount")) << members;

    const std::string unit = partOf(generated(definingUnit()), "tenantInfo");
    ASSERT_FALSE(unit.empty());
    for (const char* const part :
         {"KORVASchemaTypeI::eKORVAStringProp,\n"
          "     offsetof(KORVATenantInfo_PrivateData, displayCaption),\n"
          "     0, korva::FieldKind::Object},\n",
          "KORVASchemaTypeI::eInt,\n     offsetof(KORVATenantInfo_PrivateData, seatCount),\n"})
        EXPECT_TRUE(has(unit, part)) << part << " is not in\n" << unit;
}

TEST_F(OpenClass, AddedNameIsAWordOfTheTable) {
    const std::string words = generated("words/tarnsymbols1_gen_.cpp");
    EXPECT_TRUE(has(words, "displayCaption"));
    EXPECT_TRUE(has(words, "seatCount"));
}

TEST_F(OpenClass, AddedFieldStandsInTheDocs) {
    EXPECT_TRUE(has(contentOf(directory.path() + "/vocabulary.md"),
                    "| `displayCaption` | `stringProp` | What the tenant is called. |\n"));
}

TEST_F(OpenClass, HeaderWithAnAddedFieldCompiles) {
    const std::string unit = directory.path() + "/use.cpp";
    std::ofstream(unit) << "#include <korva/KORVATenantInfo.h>\n"
                           "void use(KORVATenantInfo& tenant, KORVAStringProp& caption) {\n"
                           "    tenant.setDisplayCaption(&caption);\n"
                           "    tenant.setSeatCount(12);\n"
                           "    if (const int* const seats = tenant.getSeatCount())\n"
                           "        tenant.setSeatCount(*seats + 1);\n"
                           "}\n";
    EXPECT_TRUE(compiles(unit, out));
}

TEST_F(OpenClass, DefinitionOfAClassWithAnAddedFieldCompiles) {
    EXPECT_TRUE(compiles(out + "/" + definingUnit(), out));
}

}  // namespace
