/// Messages as texts, and short ways to read them.
#pragma once

#include "tests/brim/Streams.h"

#include <brim/BRIMGZIPOutputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <halyard/HALYARDTKMessagePart.h>
#include <halyard/HALYARDTKMultipartReader.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace korva::test {

inline const std::string typeOfB = "multipart/related; boundary=b";

/// Replaces each "|" by a line break.
inline std::string lines(std::string_view text, std::string_view lineBreak = "\r\n") {
    std::string result;
    for (const char c : text) {
        if (c == '|')
            result += lineBreak;
        else
            result += c;
    }
    return result;
}

inline std::string gzipped(const std::string& bytes) {
    BRIMMemoryOutputStream out;
    BRIMGZIPOutputStream gzip(out);
    gzip.write(bytes.data(), bytes.size());
    gzip.close();
    return {out.str(), out.pcount()};
}

/// What was read of a part.
struct ReadPart {
    std::string id;  ///< "none" stands for null
    std::string content;
    bool isCompressed = false;

    bool operator==(const ReadPart&) const = default;
};

struct ReadMessage {
    std::string root;
    std::vector<ReadPart> parts;

    bool operator==(const ReadMessage&) const = default;
};

/// Reads all that follows the root, or what is left of it.
inline std::vector<ReadPart> readParts(HALYARDTKMessageReader& reader, std::size_t size = 1024) {
    std::vector<ReadPart> parts;
    while (reader.hasNextPart()) {
        HALYARDTKMessagePart* const part = reader.getNextPart();
        const char* const id = part->getContentId();
        parts.push_back(
            {id != nullptr ? id : "none", readAll(part->getStream(), size), part->isCompressed()});
        reader.releasePart(part);
    }
    return parts;
}

/// Reads a message whose stream gives pieces of at most `piece` bytes, `size` at a time.
inline ReadMessage readMessage(const std::string& text, const std::string& type = typeOfB,
                               std::size_t piece = 1000000, std::size_t size = 1024) {
    PiecewiseInput in(text, piece);
    HALYARDTKMultipartReader reader(in, type.c_str());
    ReadMessage message;
    message.root = readAll(reader.getRoot(), size);
    message.parts = readParts(reader, size);
    return message;
}

}  // namespace korva::test
