/// The parts of a message, as this project's transport gives them.
#pragma once

class HALYARDTKMessagePart;

class HALYARDTKMessageReader {
public:
    virtual ~HALYARDTKMessageReader();
    virtual bool hasAttachments() = 0;
    virtual bool hasNextPart() = 0;
    virtual HALYARDTKMessagePart* getNextPart() = 0;
    virtual void releasePart(HALYARDTKMessagePart* part) = 0;

    /// What the library's own toolkit has no operation for.
    static const char* vendor();
};
