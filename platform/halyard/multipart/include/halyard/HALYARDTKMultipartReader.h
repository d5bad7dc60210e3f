/// Reads a message of type multipart/related: an envelope, and the parts that it refers to.
#pragma once

#include <halyard/HALYARDTKMessageReader.h>
#include <halyard/HALYARDTKMultipartExport.h>
#include <zel/ZELOwner.h>

#include <cstddef>

class BRIMInputStream;

/// Reads front to back, as the stream gives, in some 70 KB of memory whatever the size of the
/// parts:
///
///     HALYARDTKMultipartReader message(stream, contentType);
///     deserializer.parse(message.getRoot(), ...);
///     attachments.resolveReferences(message, ...);
///
/// What is malformed throws `BRIMStreamError`, and so does what exceeds a limit; that text names
/// the limit, its value and the operation that sets it. Lines end with CRLF, or all with LF. The
/// parts' transfer encodings are binary, 8bit, 7bit and base64, their content encodings gzip and
/// identity.
class HALYARDTK_MULTIPART_EXPORT HALYARDTKMultipartReader final : public HALYARDTKMessageReader {
public:
    /// `stream` is the message's content, which must live as long as the reader. `contentType` is
    /// the value of its header of that name, folded or not: of a type that isn't multipart, or
    /// null, the whole stream is the root, and nothing follows. A boundary is required otherwise.
    /// @throws ZELOutOfMemoryError no memory is left, as every operation does
    HALYARDTKMultipartReader(BRIMInputStream& stream, const char* contentType);
    ~HALYARDTKMultipartReader() override;

    /// How many parts may follow the root: 10,000 at first.
    void setMaximumParts(std::size_t parts);

    /// How many bytes the headers of one part may have, the root's included: 16,384 at first.
    void setMaximumHeaderBytes(std::size_t bytes);

    /// How many bytes a root that is compressed may expand to: 2^30 at first. Parts are handed out
    /// as they are, to be limited by who expands them.
    void setMaximumInflatedBytes(unsigned long long bytes);

    /// How many times its size a root that is compressed may expand to, looked at when it has
    /// expanded to 16 MB: 200 at first.
    void setMaximumInflateRatio(unsigned long long ratio);

    /// The root part, expanded if it is compressed. It is read before the parts: asking for those
    /// skips what is left of it.
    /// @throws BRIMStreamError the message names another part than the first as its root
    BRIMInputStream& getRoot();

    /// The value of a header of the part that was begun last, the root included; null if it has
    /// none. Names compare without case. Valid until the next part.
    const char* getHeader(const char* name) const;

    /// Skips what is left of the root.
    bool hasAttachments() override;

    /// Skips what is left of the root, or of the part before, which must have been given back.
    /// Behind the last part the stream isn't read to its end.
    /// @throws ZELAssertError a part is out: `ZEL_ASSERT(!m_message->partIsOut);`
    bool hasNextPart() override;

    /// @throws ZELAssertError there is none: `ZEL_ASSERT(hasNextPart());`
    HALYARDTKMessagePart* getNextPart() override;

    /// Reads nothing.
    /// @throws ZELAssertError the part isn't out:
    ///     `ZEL_ASSERT(m_message->partIsOut && part == &*m_message->part);`
    void releasePart(HALYARDTKMessagePart* part) override;

private:
    struct Message;
    ZELOwner<Message> m_message;
};
