// Each file of tests/data/toolkits is an envelope that a toolkit sent: <toolkit>/<case>-request.xml
// or -reply.xml. It holds what its case says, unless a .txt beside it tells otherwise.
#include "tests/toolkits/Cases.h"
#include "tests/toolkits/Describe.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAEventManagementServicePortType.h>
#include <korva/KORVAException.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVA_EnvelopeReader.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace korva::test {
namespace {

namespace fs = std::filesystem;

const fs::path& dataFolder() {
    static const fs::path& folder = *new fs::path(KORVA_TEST_DATA_DIR "/toolkits");
    return folder;
}

/// The toolkit that the others were given the envelopes of: this library.
constexpr const char* ourName = "korva";

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) throw std::runtime_error("no file " + path.string());
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// An envelope with the address of this build's bus in place of the one it was recorded with.
std::string envelopeOf(const fs::path& path) {
    const std::string recorded = "http://bus.korva.example";
    std::string text = contentOf(path);
    for (std::size_t at = 0; (at = text.find(recorded, at)) != std::string::npos;
         at += std::string(KORVA_TEST_AUTHORITY).size())
        text.replace(at, recorded.size(), KORVA_TEST_AUTHORITY);
    return text;
}

struct Recorded {
    std::string toolkit;
    std::string caseName;
    bool isRequest;

    fs::path file(const char* extension) const {
        return dataFolder() / toolkit /
               (caseName + (isRequest ? "-request" : "-reply") + extension);
    }

    /// What is to be read as the manual states: the text beside the file, or what the case says.
    std::string expected() const {
        if (fs::exists(file(".txt"))) return contentOf(file(".txt"));
        return isRequest ? requestOf(caseName) : replyOf(caseName);
    }

    /// What is to be read tolerantly: nearly always what the case says.
    std::string expectedTolerantly() const {
        if (fs::exists(file(".tolerant.txt"))) return contentOf(file(".tolerant.txt"));
        return isRequest ? requestOf(caseName) : replyOf(caseName);
    }

    friend std::ostream& operator<<(std::ostream& stream, const Recorded& recorded) {
        return stream << recorded.file(".xml").lexically_relative(dataFolder()).string();
    }
};

std::vector<Recorded> recordedEnvelopes() {
    std::vector<Recorded> found;
    for (const auto& entry : fs::recursive_directory_iterator(dataFolder())) {
        const std::string toolkit = entry.path().parent_path().filename().string();
        if (entry.path().extension() != ".xml" || toolkit == ourName) continue;
        const std::string stem = entry.path().stem().string();
        const std::size_t end = stem.rfind('-');
        found.push_back({toolkit, stem.substr(0, end), stem.substr(end) == "-request"});
    }
    std::sort(found.begin(), found.end(), [](const Recorded& left, const Recorded& right) {
        return left.file("") < right.file("");
    });
    return found;
}

std::string refusalOf(const KORVAException& error) {
    char text[32];
    std::snprintf(text, sizeof text, "refused: 0x%08X\n", error.getMessages()[0].getId());
    return text;
}

/// What is read of an envelope, or the number of the message that tells why it is refused.
std::string readBack(const Recorded& recorded, const KORVA_ReadingPolicy& policy,
                     KORVA_ReadingObserver* observer = nullptr) {
    const std::string xml = envelopeOf(recorded.file(".xml"));
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setPolicy(policy);
    deserializer.setObserver(observer);
    try {
        if (!recorded.isRequest) {
            const Call call = makeCall(recorded.caseName);
            deserializer.parse(stream, *call, &call->getOutputMessage());
            return describe(call->getOutputMessage());
        }
        Call call;
        deserializer.parse(stream, {&KORVAEventManagementServicePortType::getInstance()}, call);
        return describe(call->getInputMessage());
    } catch (const KORVAException& error) {
        return refusalOf(error);
    }
}

/// The same by the reader that is told nothing.
std::string readUnasked(const Recorded& recorded) {
    const std::string xml = envelopeOf(recorded.file(".xml"));
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    try {
        const KORVA_Envelope envelope = KORVA_EnvelopeReader().read(stream);
        EXPECT_EQ(envelope.getKind(),
                  recorded.isRequest ? KORVA_Envelope::eRequest : KORVA_Envelope::eReply);
        return describe(*envelope.getMessage());
    } catch (const KORVAException& error) {
        return refusalOf(error);
    }
}

/// Counts what it is told.
class Counter final : public KORVA_ReadingObserver {
public:
    void notice(const KORVA_ReadingFinding&) override { ++count; }

    std::size_t count = 0;
};

class RecordedEnvelopes : public testing::TestWithParam<Recorded> {};

TEST_P(RecordedEnvelopes, AreReadAsTheirCasesSay) {
    EXPECT_EQ(readBack(GetParam(), KORVA_ReadingPolicy::stated()), GetParam().expected());
}

TEST_P(RecordedEnvelopes, AreReadTolerantlyAsTheirCasesSay) {
    EXPECT_EQ(readBack(GetParam(), KORVA_ReadingPolicy::tolerant()),
              GetParam().expectedTolerantly());
}

TEST_P(RecordedEnvelopes, TellTheirOperationThemselves) {
    EXPECT_EQ(readUnasked(GetParam()), GetParam().expectedTolerantly());
}

TEST_P(RecordedEnvelopes, AreReadStrictlyUnlessAnObserverIsToldOfSomething) {
    Counter counter;
    const std::string stated = readBack(GetParam(), KORVA_ReadingPolicy::stated(), &counter);
    EXPECT_EQ(stated, GetParam().expected());
    EXPECT_EQ(readBack(GetParam(), KORVA_ReadingPolicy::strict()),
              counter.count != 0 ? "refused: 0xEA4F0015\n" : stated);
}

std::string nameOf(const testing::TestParamInfo<Recorded>& info) {
    std::string name = info.param.toolkit + "_" + info.param.caseName +
                       (info.param.isRequest ? "_request" : "_reply");
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, RecordedEnvelopes, testing::ValuesIn(recordedEnvelopes()), nameOf);

TEST(RecordedEnvelopesFolder, HasAllToolkits) {
    std::set<std::string> names;
    for (const Recorded& recorded : recordedEnvelopes())
        if (recorded.isRequest) names.insert(recorded.toolkit);
    EXPECT_EQ(names, (std::set<std::string>{"axis", "axis-defaults", "gsoap", "gsoap-defaults",
                                            "php", "soaplite", "soaplite-defaults", "zeep"}));
}

TEST(RecordedEnvelopesFolder, HasNoExpectationWithoutAnEnvelope) {
    for (const auto& entry : fs::recursive_directory_iterator(dataFolder())) {
        if (entry.path().extension() != ".txt") continue;
        std::string path = entry.path().string();
        path.resize(path.size() - std::string(".txt").size());
        if (path.ends_with(".tolerant")) path.resize(path.size() - std::string(".tolerant").size());
        EXPECT_TRUE(fs::exists(path + ".xml")) << entry.path();
    }
}

TEST(OurEnvelopes, AreThoseThatTheToolkitsWereGiven) {
    for (const char* const name : {"tree", "texts", "empty-text", "nulls", "empty", "null-items",
                                   "omitted", "shared", "trigger"}) {
        const Call call = makeCall(name);
        fillReply(name, *call);
        for (const bool isRequest : {true, false}) {
            BRIMMemoryOutputStream written;
            KORVASOAPMessageISerializer().serialize(
                *call, isRequest ? call->getInputMessage() : call->getOutputMessage(), written);
            const Recorded ours{ourName, name, isRequest};
            EXPECT_EQ(std::string(written.str(), written.pcount()), envelopeOf(ours.file(".xml")))
                << ours;
        }
    }
}

}  // namespace
}  // namespace korva::test
