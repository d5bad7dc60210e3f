/// What goes back to a caller.
#pragma once

#include <brim/BRIMInputStream.h>
#include <halyard/HALYARDTKMultipartWriter.h>

#include <memory>
#include <string>
#include <vector>

namespace live_call {

/// Content that travels beside the envelope. It is read when it is sent, once.
struct Attachment {
    std::string id;    ///< what the envelope refers to it by
    std::string type;  ///< its media type
    HALYARDTKMultipartWriter::Compression compression;
    std::unique_ptr<BRIMInputStream> content;
};

/// The envelope is complete before the first byte is sent, so that whatever fails while it is made
/// can still be told by a fault.
struct Answer {
    int status;  ///< of HTTP: 200, or 500 if the envelope holds a fault
    std::string envelope;
    std::vector<Attachment> attachments;
};

}  // namespace live_call
