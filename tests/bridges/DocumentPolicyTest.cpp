// What the reader of documents in memory makes of what other toolkits send.

#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVADOMObjectDeserializer.h>
#include <korva/KORVAException.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVAStringArray.h>
#include <zelidom/ZELIDOM_Document.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace korva::test;

namespace {

struct Paths final : KORVA_ReadingObserver {
    void notice(const KORVA_ReadingFinding& finding) override {
        paths.push_back(std::string(finding.path) + ": " + finding.reason);
        EXPECT_EQ(finding.line, 0U);
    }
    std::vector<std::string> paths;
};

/// Reads an option whose content is given.
class DocumentPolicy : public testing::Test {
protected:
    KORVARunOptionStringArray& read(const std::string& content) {
        const std::string text =
            "<option xmlns:bus=\"" KORVA_TEST_AUTHORITY
            "/schemas/halyardns/3/\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
            "xsi:type=\"bus:runOptionStringArray\">" +
            content + "</option>";
        BRIMMemoryInputStream stream(text.data(), text.size());
        const ZELIDOM_Document document = ZELIDOM_Document::parse(stream);
        return static_cast<KORVARunOptionStringArray&>(
            *m_deserializer.deserialize(document.getDocumentElement(), m_registry.get()));
    }

    const Registry m_registry = makeRegistry();
    KORVADOMObjectDeserializer m_deserializer;
};

TEST_F(DocumentPolicy, FollowsReferencesInTheElement) {
    m_deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    const auto& option =
        read("<value><item href=\"#a\"/><item>b</item><item id=\"a\">a</item></value>");
    ASSERT_EQ(option.getValue().size(), 3U);
    EXPECT_STREQ(option.getValue().at(0), "a");
    EXPECT_STREQ(option.getValue().at(2), "a");
}

TEST_F(DocumentPolicy, KeepsUnknownWords) {
    EXPECT_NUMBERED(read("<name>unheardOf</name>"), 0xEA45DC29, "_stringToEnum()",
                    "runOptionEnum:unheardOf");
    m_deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    EXPECT_STREQ(read("<name>unheardOf</name>").getName()->toString(), "unheardOf");
}

TEST_F(DocumentPolicy, TellsAnObserverWithAPath) {
    Paths paths;
    m_deserializer.setObserver(&paths);
    read("<value><item href=\"#a\"/></value><new><inner/></new>");
    EXPECT_EQ(paths.paths, (std::vector<std::string>{
                               "/option/value/item: references are not followed, so it is empty",
                               "/option/new: what it stands in has no such child"}));
}

TEST_F(DocumentPolicy, RefusesFindingsStrictly) {
    m_deserializer.setPolicy(KORVA_ReadingPolicy::strict());
    EXPECT_NUMBERED(read("<new/>"), 0xEA4F0015, "KORVA_ReadingPolicy", "new", "",
                    "what it stands in has no such child");
}

TEST_F(DocumentPolicy, LimitsReferences) {
    m_deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    m_deserializer.setMaximumReferences(1);
    EXPECT_NUMBERED(read("<value><item id=\"a\"/><item href=\"#a\"/><item href=\"#a\"/></value>"),
                    0xEA4F0001, "KORVA_ReadingPolicy::resolvesReferences()",
                    "references between elements", "1", "setMaximumReferences");
}

}  // namespace
