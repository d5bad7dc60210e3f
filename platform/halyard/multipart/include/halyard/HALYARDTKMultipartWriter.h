/// Writes a message of type multipart/related: an envelope, and the parts that it refers to.
#pragma once

#include <halyard/HALYARDTKMultipartExport.h>
#include <zel/ZELOwner.h>

class BRIMInputStream;
class BRIMOutputStream;

/// Writes front to back, and holds nothing back but what compression needs:
///
///     HALYARDTKMultipartWriter message(stream);
///     sendHeader("Content-Type", message.getContentType());
///     serializer.serialize(..., message.beginRoot());
///     message.writePart("report", "application/pdf", content);
///     message.close();
class HALYARDTK_MULTIPART_EXPORT HALYARDTKMultipartWriter {
public:
    /// How the content of a part travels.
    enum Compression {
        ePlain,  ///< as it is
        eGzip    ///< with `Content-Encoding: gzip`
    };

    /// Writes nothing yet. `stream` must live until `close`. The boundary between the parts is made
    /// of 160 random bits, so that no content has it.
    /// @throws ZELOutOfMemoryError no memory is left, as every operation does
    explicit HALYARDTKMultipartWriter(BRIMOutputStream& stream);

    /// Ends nothing: a message that was not closed is not complete, and no reader takes it so.
    ~HALYARDTKMultipartWriter();
    HALYARDTKMultipartWriter(const HALYARDTKMultipartWriter&) = delete;
    HALYARDTKMultipartWriter& operator=(const HALYARDTKMultipartWriter&) = delete;

    /// The value for the message's Content-Type header. Lives as long as the writer.
    const char* getContentType() const noexcept;

    /// Begins the root part, the envelope in UTF-8, which is written to the result until the next
    /// part begins. Comes first.
    /// @throws ZELAssertError there is a root: `ZEL_ASSERT(!m_message->hasRoot);`
    BRIMOutputStream& beginRoot();

    /// Begins a part, whose content is written to the result until the next part begins. The
    /// envelope refers to it by `cid:` and the id; angle brackets around the id are optional here,
    /// and null leaves it out.
    /// @throws BRIMStreamError there are control characters in either text
    /// @throws ZELAssertError there is no root, or the message is closed:
    ///     `ZEL_ASSERT(m_message->hasRoot && !m_message->isClosed);`
    BRIMOutputStream& beginPart(const char* contentId, const char* contentType,
                                Compression compression = ePlain);

    /// The same with all that `content` gives.
    void writePart(const char* contentId, const char* contentType, BRIMInputStream& content,
                   Compression compression = ePlain);

    /// Ends the message. The stream stays open. A second call does nothing.
    /// @throws ZELAssertError there is no root: the assertion of `beginPart`
    void close();

private:
    struct Message;
    ZELOwner<Message> m_message;
};
