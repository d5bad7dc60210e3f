#include "tests/support/ForEachFailingAllocation.h"
#include "tests/zelidom/Documents.h"

#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::forEachFailingAllocation;
using korva::test::parseDocument;

const std::string longText(5000, 'x');

TEST(DocumentAllocationFailure, BuildingIsSafe) {
    const std::size_t count = forEachFailingAllocation([] {
        ZELIDOM_Document document = ZELIDOM_Document::create();
        ZELIDOM_Element root = document.createElementNS("urn:p", "p:root");
        document.appendChild(root);
        for (int i = 0; i < 20; ++i) {
            ZELIDOM_Element child = document.createElement("child" + std::to_string(i));
            child.setAttribute("a" + std::to_string(i), longText);
            child.setAttributeNS("urn:p", "p:b", "value");
            child.appendChild(document.createTextNode(longText));
            root.appendChild(child);
        }
    });
    EXPECT_GT(count, 10u);
}

TEST(DocumentAllocationFailure, ParsingIsSafe) {
    std::string xml = "<r xmlns:p='urn:p'>";
    for (int i = 0; i < 20; ++i)
        xml += "<p:e" + std::to_string(i) + " a='" + std::string(200, 'x') + "'>text</p:e" +
               std::to_string(i) + ">";
    xml += "</r>";
    const std::size_t count = forEachFailingAllocation([&xml] { parseDocument(xml); });
    EXPECT_GT(count, 50u);
}

TEST(DocumentAllocationFailure, ReadingIsSafe) {
    const ZELIDOM_Document document = parseDocument("<r a='" + longText + "'/>");
    const ZELIDOM_Element root = document.getDocumentElement();
    const std::size_t count = forEachFailingAllocation([&root] {
        EXPECT_EQ(root.getAttribute("a").utf8(), longText);
        EXPECT_TRUE(root.getAttributes().getNamedItem(longText).isNull());
    });
    EXPECT_GT(count, 0u);
}

TEST(DocumentAllocationFailure, AFailureThatIsTranslatedIsSafe) {
    ZELIDOM_Document document = ZELIDOM_Document::create();
    // The exception's own text may be lost, never the failure itself.
    korva::test::failEachAllocation([&document] {
        try {
            document.createElement("no name");
            ADD_FAILURE() << "nothing was thrown";
        } catch (const ZELThrowable&) {
        }
    });
}

}  // namespace
