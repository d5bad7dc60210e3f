/// The container that streams an attachment: from memory if it is small, otherwise from a file.
#pragma once

#include <korva/KORVA_AttachmentContainerI.h>
#include <zel/ZELOwner.h>

#include <cstddef>

/// Takes content of any kind and size in bounded memory: what exceeds a threshold goes to a
/// temporary file without a name (a BRIMTemporaryFile), which lives as long as the container, and
/// with it an open descriptor. The parts of one message share one file, however many they are:
/// KORVA_AttachmentHandler::resolveReferences lets them.
///
/// The content is only streamed: values of binary type have a `streamable()` and no bytes, those of
/// text are char streamables, small or not.
class KORVA_EXPORT KORVA_SpoolingAttachmentContainer : public KORVA_AttachmentContainerI {
public:
    static constexpr std::size_t defaultThreshold = 65536;

    /// Up to `threshold` bytes, which must not be 0, stay in memory; no more are ever held there.
    /// @throws ZELAssertError `threshold` is 0
    /// @throws ZELOutOfMemoryError no memory is left
    explicit KORVA_SpoolingAttachmentContainer(std::size_t threshold = defaultThreshold);
    ~KORVA_SpoolingAttachmentContainer() override;
    KORVA_SpoolingAttachmentContainer(const KORVA_SpoolingAttachmentContainer&) = delete;
    KORVA_SpoolingAttachmentContainer& operator=(const KORVA_SpoolingAttachmentContainer&) = delete;

    /// A new container with the default threshold, in the form that
    /// KORVA_AttachmentHandler::resolveReferences takes.
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVA_AttachmentContainerI* create();

    /// @throws ZELOutOfMemoryError no memory is left; the content is unchanged
    /// @throws BRIMStreamError the file can't be made or written; the content is of no more use
    void append(const char* bytes, std::size_t length) override;

    /// From now on what doesn't stay in memory goes to the file that `other` has or will have. The
    /// file lives as long as any that share it; one thread at a time appends to them.
    /// @throws ZELAssertError there are bytes in a file already
    void shareFile(KORVA_SpoolingAttachmentContainer& other);

    /// Says that the content is complete, so that no room is held for more. It goes to the file as
    /// a whole if a part of it is there, or if those that share the file and are finished would
    /// have more than `mostInMemory` bytes in memory with it.
    /// @throws BRIMStreamError as `append`
    void finish(std::size_t mostInMemory);

    /// Always null.
    const char* getData() override;

    /// Belongs to the container. It can be written any number of times. It is read once from its
    /// begin to its end, unless `rewind` is called; what is appended meanwhile is read, too.
    KORVA_Streamable* getStreamable() override;

    /// Lets the streamable be read from its begin again.
    void rewind();

    /// How many bytes were appended.
    unsigned long long size() const;

    /// Whether bytes of this container are in a file.
    bool isSpooled() const;

private:
    class Content;
    ZELOwner<Content> m_content;
};
