/// A part of a message, as this project's transport has it.
#pragma once

class BRIMInputStream;

class HALYARDTKMessagePart {
public:
    virtual ~HALYARDTKMessagePart();
    virtual const char* getContentId() = 0;
    virtual bool isCompressed() = 0;
    virtual BRIMInputStream& getStream() = 0;
};
