/// Where the parts of a message come from that travel beside its envelope.
#pragma once

#include <halyard/HALYARDTKExport.h>

class HALYARDTKMessagePart;

/// Gives the parts one after another, in the order of the message. Used by one thread at a time.
class HALYARDTK_EXPORT HALYARDTKMessageReader {
public:
    HALYARDTKMessageReader() noexcept = default;
    HALYARDTKMessageReader(const HALYARDTKMessageReader&) = delete;
    HALYARDTKMessageReader& operator=(const HALYARDTKMessageReader&) = delete;
    virtual ~HALYARDTKMessageReader();

    /// Whether the message has parts beside its envelope at all, given already or not.
    virtual bool hasAttachments() = 0;

    /// Whether another part follows.
    virtual bool hasNextPart() = 0;

    /// The next part; there must be one. It is given back by `releasePart` before the next is asked
    /// for. Never null.
    virtual HALYARDTKMessagePart* getNextPart() = 0;

    /// Takes back a part, whether it was read to its end or not.
    virtual void releasePart(HALYARDTKMessagePart* part) = 0;
};
