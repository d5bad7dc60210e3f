/// A message whose parts a test tells, and what resolving asks of it.
#pragma once

#include "tests/brim/Streams.h"

#include <brim/BRIMGZIPOutputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <halyard/HALYARDTKMessagePart.h>
#include <halyard/HALYARDTKMessageReader.h>
#include <korva/KORVA_AttachmentContainerI.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_Streamable.h>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korva::test {

struct ScriptedPart {
    std::optional<std::string> id;
    std::string content;
    bool isCompressed = false;
    std::function<void()> failure = nullptr;  ///< instead of the stream's end
    long long end = 0;
};

/// Gives the parts in their order.
class ScriptedReader : public HALYARDTKMessageReader {
public:
    explicit ScriptedReader(std::vector<ScriptedPart> parts) : m_parts(std::move(parts)) {}
    ScriptedReader(std::initializer_list<ScriptedPart> parts) : m_parts(parts) {}

    bool hasAttachments() override {
        events += "attachments? ";
        return !m_parts.empty();
    }
    bool hasNextPart() override {
        events += "next? ";
        return m_next < m_parts.size();
    }
    HALYARDTKMessagePart* getNextPart() override {
        events += "get ";
        m_part = std::make_unique<Part>(m_parts.at(m_next++));
        ++out;
        return m_part.get();
    }
    void releasePart(HALYARDTKMessagePart* part) override {
        events += "release ";
        if (part == m_part.get()) --out;
        wasRead = m_part->wasRead();
        if (failureOfRelease) failureOfRelease();
    }

    std::string events;
    int out = 0;           ///< parts that were given and not taken back
    bool wasRead = false;  ///< the part taken back last, to its end
    std::function<void()> failureOfRelease;

private:
    class Part : public HALYARDTKMessagePart {
    public:
        explicit Part(const ScriptedPart& script)
            : m_script(script), m_stream(script.content, 1000000, script.end) {
            m_stream.failAtEnd([this] {
                m_wasRead = true;
                if (m_script.failure) m_script.failure();
            });
        }
        const char* getContentId() override { return m_script.id ? m_script.id->c_str() : nullptr; }
        bool isCompressed() override { return m_script.isCompressed; }
        BRIMInputStream& getStream() override { return m_stream; }
        bool wasRead() const { return m_wasRead; }

    private:
        const ScriptedPart& m_script;
        PiecewiseInput m_stream;
        bool m_wasRead = false;
    };

    std::vector<ScriptedPart> m_parts;
    std::size_t m_next = 0;
    std::unique_ptr<Part> m_part;
};

inline std::string gzipped(const std::string& bytes) {
    BRIMMemoryOutputStream out;
    BRIMGZIPOutputStream gzip(out);
    gzip.write(bytes.data(), bytes.size());
    gzip.close();
    return {out.str(), out.pcount()};
}

/// What a streamable writes.
inline std::string written(const KORVA_Streamable& streamable) {
    BRIMMemoryOutputStream out;
    streamable >> out;
    return {out.str(), out.pcount()};
}

/// What a text of the model stands for; a char streamable is written.
inline std::string textOf(const char* text) {
    if (text == nullptr) return "null";
    if (!KORVA_CharStreamable::isCharStreamable(text)) return text;
    BRIMMemoryOutputStream out;
    KORVA_CharStreamable(text) >> out;
    return "streamed:" + std::string(out.str(), out.pcount());
}

}  // namespace korva::test
