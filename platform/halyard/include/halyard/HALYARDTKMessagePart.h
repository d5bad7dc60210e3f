/// A part of a message that travels beside the envelope.
#pragma once

#include <halyard/HALYARDTKExport.h>

class BRIMInputStream;

/// Belongs to the reader that gave it, and is valid until it is given back there.
class HALYARDTK_EXPORT HALYARDTKMessagePart {
public:
    HALYARDTKMessagePart() noexcept = default;
    HALYARDTKMessagePart(const HALYARDTKMessagePart&) = delete;
    HALYARDTKMessagePart& operator=(const HALYARDTKMessagePart&) = delete;
    virtual ~HALYARDTKMessagePart();

    /// The id as it was sent, angle brackets included; null when the part has none.
    virtual const char* getContentId() = 0;

    /// Whether the stream holds gzip data, to be expanded by who reads it.
    virtual bool isCompressed() = 0;

    /// The content, which can be read once. Each call gives the same stream.
    virtual BRIMInputStream& getStream() = 0;
};
