#include "tests/bridges/Conversions.h"
#include "tests/bridges/EventRecorder.h"
#include "tests/bridges/SameContent.h"
#include "tests/bridges/Vocabulary.h"
#include "tests/support/Comparison.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace korva::test;

constexpr std::uint32_t seeds = 2;
constexpr std::size_t objects = seeds * 831;
constexpr std::uint32_t tarnSeeds = 4;

TEST(VocabularyOverBridges, DocumentsAreReadBackEqual) {
    KORVADOMObjectDeserializer deserializer;
    const std::size_t count = forEachRandomObject(seeds, [&](const KORVASchemaTypeI& object) {
        ZELIDOM_Document document = ZELIDOM_Document::create();
        const ZELIDOM_Element element = toElement(object, document);
        const KORVASchemaTypeI* const read = deserializer.deserialize(element);
        ASSERT_NE(read, nullptr) << toText(object);
        EXPECT_TRUE(areEqual(object, *read)) << toText(object);
        EXPECT_EQ(toText(*read), toText(object));
    });
    EXPECT_EQ(count, objects);
}

TEST(VocabularyOverBridges, DocumentsThatAreWrittenOutAreReadEqual) {
    const std::size_t count = forEachRandomObject(seeds, [](const KORVASchemaTypeI& object) {
        ZELIDOM_Document document = ZELIDOM_Document::create();
        document.appendChild(toElement(object, document));
        const std::string xml = writeOut(document);
        const Registry registry = makeRegistry();
        const KORVASchemaTypeI* const read = readText(xml, registry.get());
        ASSERT_NE(read, nullptr) << xml;
        EXPECT_TRUE(areEqual(object, *read)) << xml;
    });
    EXPECT_EQ(count, objects);
}

TEST(VocabularyOverBridges, EventsBuildAnEqualObject) {
    const std::size_t count = forEachRandomObject(seeds, [](const KORVASchemaTypeI& object) {
        const Registry registry = makeRegistry();
        const KORVASchemaTypeI* const read = readReplayed(object, registry.get());
        ASSERT_NE(read, nullptr) << toText(object);
        EXPECT_TRUE(areEqual(object, *read)) << toText(object);
        EXPECT_EQ(toText(*read), toText(object));
    });
    EXPECT_EQ(count, objects);
}

/// The second model has objects of every concrete type.
bool anyType(const std::string& /*name*/, const SchemaType& /*type*/) {
    return true;
}

TEST(VocabularyOverBridges, ObjectsOfTheSecondModelAreReadBackEqual) {
    const std::size_t count = forEachRandomObject(
        tarnSeeds,
        [](const KORVASchemaTypeI& object) {
            const TarnRegistry tarnRegistry = makeTarnRegistry();
            const Registry registry = makeRegistry();
            const TARNSchemaTypeI* const copy = toTarn(object, tarnRegistry);
            const KORVASchemaTypeI* const read = fromTarn(*copy, *registry);
            EXPECT_TRUE(areEqual(object, *read)) << toText(object);
            EXPECT_EQ(toText(*read), toText(object));
        },
        anyType);
    EXPECT_EQ(count, tarnSeeds * 842);
}

TEST(VocabularyOverBridges, TheSecondModelHoldsAllThatAnObjectHolds) {
    const std::size_t count = forEachRandomObject(
        seeds,
        [](const KORVASchemaTypeI& object) {
            const TarnRegistry registry = makeTarnRegistry();
            const TARNSchemaTypeI* const copy = toTarn(object, registry);
            EXPECT_TRUE(holdsTheSame(object, *copy)) << toText(object);
        },
        anyType);
    EXPECT_EQ(count, seeds * 842);
}

TEST(VocabularyOverBridges, CopiesInTheSecondModelAreEqual) {
    const std::size_t count = forEachRandomObject(
        seeds,
        [](const KORVASchemaTypeI& object) {
            const TarnRegistry tarnRegistry = makeTarnRegistry();
            const Registry registry = makeRegistry();
            const TARNSchemaTypeI* const one = toTarn(object, tarnRegistry);
            const KORVASchemaTypeI* const read = fromTarn(*one, *registry);
            EXPECT_TRUE(*one == *toTarn(*read, tarnRegistry)) << toText(object);
        },
        anyType);
    EXPECT_EQ(count, seeds * 842);
}

TEST(VocabularyOverBridges, EventsAreThoseOfAParserForTheWrittenForm) {
    EventParser parser;
    const std::size_t count = forEachRandomObject(seeds, [&](const KORVASchemaTypeI& object) {
        EventRecorder recorder;
        replay(object, recorder);
        const std::string xml = toText(object);
        ASSERT_EQ(recorder.events(), parser.eventsOf(xml)) << xml;
    });
    EXPECT_EQ(count, objects);
}

TEST(VocabularyOverBridges, DocumentsHaveTheElementsOfTheWrittenForm) {
    const std::size_t count = forEachRandomObject(seeds, [](const KORVASchemaTypeI& object) {
        // Qualified names and texts; the namespace of array entries is another.
        const auto lines = [](const ZELIDOM_Element& root) {
            EventRecorder recorder;
            KORVADOMObjectDeserializer::replay(root, recorder);
            std::vector<std::string> result;
            for (const std::string& event : recorder.events()) {
                const bool isText = event.rfind("text ", 0) == 0;
                const std::string first = event.substr(0, event.find('\n'));
                if (isText || first.find('{') != std::string::npos)
                    result.push_back(isText ? event : first.substr(first.rfind(' ')));
            }
            return result;
        };
        ZELIDOM_Document document = ZELIDOM_Document::create();
        const std::string xml = toText(object);
        BRIMMemoryInputStream stream(xml.data(), xml.size());
        EXPECT_EQ(lines(toElement(object, document)),
                  lines(ZELIDOM_Document::parse(stream).getDocumentElement()));
    });
    EXPECT_EQ(count, objects);
}

}  // namespace
