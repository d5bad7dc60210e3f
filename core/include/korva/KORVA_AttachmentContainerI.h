/// What collects the bytes of one attachment.
#pragma once

#include <korva/KORVAExport.h>

#include <cstddef>

class KORVA_Streamable;

/// Holds the content of one part of a multipart message, in memory or as a stream.
class KORVA_EXPORT KORVA_AttachmentContainerI {
public:
    virtual ~KORVA_AttachmentContainerI();

    /// Adds `length` bytes behind those already held.
    virtual void append(const char* bytes, std::size_t length) = 0;
    /// The collected bytes, NUL-terminated; null when the content is only streamed.
    virtual const char* getData() = 0;
    /// The content as a stream; null when it is held in memory.
    virtual KORVA_Streamable* getStreamable() = 0;

protected:
    KORVA_AttachmentContainerI() = default;
    KORVA_AttachmentContainerI(const KORVA_AttachmentContainerI&) = default;
    KORVA_AttachmentContainerI& operator=(const KORVA_AttachmentContainerI&) = default;
};
