// Reading with each allocation failing in turn.
#include "tests/soap/HostileText.h"
#include "tests/support/AllocationFailure.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVASOAPMessageIDeserializerFactory.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAXMLDeserializerFactory.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::Absorbed;
using korva::test::Binding;
using korva::test::document;
using korva::test::DocumentReader;
using korva::test::forEachFailingAllocation;
using korva::test::makeCall;
using korva::test::operation;
using korva::test::pathOf;
using korva::test::readReply;
using korva::test::readRequest;

const std::string& header() {
    static const std::string& text = *new std::string(
        "<bus:halyardHeader xsi:type=\"bus:halyardHeader\"><Warden><authenticityToken>AAEC"
        "</authenticityToken><roles><item>r\xC3\xA4</item></roles></Warden></bus:halyardHeader>");
    return text;
}

const std::string& request() {
    static const std::string& text = *new std::string(operation(
        "run",
        "<objectPath>/a</objectPath><parameterValues><item><name>p</name><value>"
        "<x xsi:type=\"bus:simpleParmValueItem\"><use>7</use></x></value></item></parameterValues>",
        header()));
    return text;
}

// The parser gets through without some of what it asks for: it looks at the names of namespaces,
// and goes on if it cannot.

TEST(ReadingAllocation, AFailureAtAServerLeavesNothingBehind) {
    EXPECT_GT(forEachFailingAllocation(
                  [] {
                      const Binding binding = readRequest(request());
                      auto& run = static_cast<KORVAAsynchRun_Request&>(binding->getInputMessage());
                      EXPECT_STREQ(pathOf(binding), "/a");
                      ASSERT_EQ(run.getParameterValues()->size(), 1U);
                      EXPECT_STREQ(run.getParameterValues()->at(0)->getName(), "p");
                      EXPECT_STREQ(run.getHalyardHeader(nullptr)->getWarden()->getRoles().at(0),
                                   "r\xC3\xA4");
                  },
                  Absorbed::Harmless),
              korva::test::countsMalloc() ? 30U : 10U);
}

TEST(ReadingAllocation, AFailureAtAClientLeavesNothingBehind) {
    const std::string text =
        operation("runResponse", "<result><status>complete</status></result>", header());
    EXPECT_GT(forEachFailingAllocation(
                  [&] {
                      const Binding call = makeCall(KORVAMessageI::eKORVAAsynchRun_Request);
                      readReply(*call, text);
                      auto& reply = static_cast<KORVAAsynchRun_Reply&>(call->getOutputMessage());
                      EXPECT_STREQ(reply.getResult()->getStatus()->toString(), "complete");
                  },
                  Absorbed::Harmless),
              korva::test::countsMalloc() ? 30U : 10U);
}

TEST(ReadingAllocation, AFailureInADocumentLeavesNothingBehind) {
    const std::string text = document("bus:provider", "<name>n</name><patch>1</patch>");
    EXPECT_GT(forEachFailingAllocation(
                  [&] { EXPECT_STREQ(DocumentReader().read<KORVAProvider>(text).getName(), "n"); },
                  Absorbed::Harmless),
              korva::test::countsMalloc() ? 30U : 10U);
}

TEST(ReadingAllocation, AFailureInADocumentTypeLeavesNothingBehind) {
    const std::string text = "<!DOCTYPE e [<!ENTITY a 'x'><!ENTITY b SYSTEM 'urn:b'>]>" +
                             operation("run", "<objectPath>&a;&b;</objectPath>");
    EXPECT_GT(forEachFailingAllocation([&] { EXPECT_STREQ(pathOf(readRequest(text)), "x"); },
                                       Absorbed::Harmless),
              korva::test::countsMalloc() ? 30U : 10U);
}

TEST(ReadingAllocation, ADocumentThatIsNotWellFormedLeavesNothingBehind) {
    const std::string text = document("bus:provider", "<name>n</mane>");
    EXPECT_GT(
        forEachFailingAllocation([&] { EXPECT_THROW(DocumentReader().read(text), ZELThrowable); },
                                 Absorbed::Harmless),
        korva::test::countsMalloc() ? 15U : 5U);
}

TEST(ReadingAllocation, ADeserializerServesOnAfterEachFailure) {
    readRequest(request());  // makes what is made once
    KORVASOAPMessageIDeserializer kept;
    for (std::size_t n = 1;; ++n) {
        // One that has to get its parser's memory first, and one that has it already.
        KORVASOAPMessageIDeserializer fresh;
        bool happened = false;
        for (KORVASOAPMessageIDeserializer* const deserializer : {&kept, &fresh}) {
            {
                const korva::test::AllocationFailure failure(n);
                try {
                    readRequest(*deserializer, request());
                } catch (const ZELThrowable&) {
                    EXPECT_TRUE(failure.happened());
                }
                happened = happened || failure.happened();
            }
            EXPECT_STREQ(readRequest(*deserializer, request())->getOperationName(), "run") << n;
        }
        if (!happened) break;
    }
}

TEST(ReadingAllocation, ADeserializerGivesBackWhatALargeDocumentNeeded) {
    std::string names;
    for (int i = 0; i != 40'000; ++i)
        names += "<n" + std::to_string(i) + "/>";
    const std::string large = operation("run", "", "<x>" + names + "</x>");
    const std::string broken = large.substr(0, large.size() - 1);
    KORVASOAPMessageIDeserializer deserializer;
    readRequest(deserializer, request());
    const std::size_t live = korva::test::liveAllocations();
    readRequest(deserializer, large);
    EXPECT_LT(korva::test::liveAllocations(), live + 10);
    EXPECT_THROW(readRequest(deserializer, broken), ZELThrowable);
    readRequest(deserializer, request());
    EXPECT_LT(korva::test::liveAllocations(), live + 10);
}

TEST(ReadingAllocation, AFailureWhileAFailureIsToldLeavesNothingBehind) {
    // Either may come out: what was to be told, or that there is no memory for it.
    const std::string text = operation("run", "<objectPath xsi:type=\"bus:folder\"/>");
    EXPECT_THROW(readRequest(text), ZELThrowable);  // makes what is made once
    for (std::size_t n = 1;; ++n) {
        const std::size_t live = korva::test::liveAllocations();
        bool happened = false;
        {
            const korva::test::AllocationFailure failure(n);
            EXPECT_THROW(readRequest(text), ZELThrowable) << n;
            happened = failure.happened();
        }
        EXPECT_EQ(korva::test::liveAllocations(), live) << n;
        if (!happened) break;
    }
}

TEST(ReadingAllocation, TheFactoriesTellOfMissingMemory) {
    forEachFailingAllocation([] {
        auto& factory = KORVASOAPMessageIDeserializerFactory::getInstance();
        factory.destroy(factory.create());
    });
    forEachFailingAllocation([] {
        auto& factory = KORVAXMLDeserializerFactory::getInstance();
        factory.destroy(factory.create());
    });
}

TEST(ReadingAllocation, AMappingTakesNothingWhenItCannotGrow) {
    KORVANamespaceMapping mapping;
    char* prefix = new char[2]{'p', '\0'};
    char* uri = new char[2]{'u', '\0'};
    {
        const korva::test::AllocationFailure failure(1);
        EXPECT_THROW(mapping.add(prefix, uri), ZELOutOfMemoryError);
    }
    ASSERT_NE(prefix, nullptr);
    EXPECT_EQ(mapping.size(), 0U);
    mapping.add(prefix, uri);
    EXPECT_STREQ(mapping.getNamespace("p"), "u");
}

}  // namespace
