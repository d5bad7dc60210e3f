/// The container that keeps an attachment in memory, as a text.
#pragma once

#include <korva/KORVA_AttachmentContainerI.h>
#include <korva/KORVA_String.h>

/// Collects the bytes in one buffer. Binary content ends, for who asks by `getData`, at its first
/// NUL byte: take a KORVA_SpoolingAttachmentContainer where it may have one.
class KORVA_EXPORT DefaultAttachmentContainer : public KORVA_AttachmentContainerI {
public:
    DefaultAttachmentContainer();
    /// @throws ZELAssertError always: containers aren't copied
    DefaultAttachmentContainer(const DefaultAttachmentContainer&);
    /// @throws ZELAssertError always
    DefaultAttachmentContainer& operator=(const DefaultAttachmentContainer&);
    ~DefaultAttachmentContainer() override;

    /// @throws ZELOutOfMemoryError no memory is left; the content is unchanged
    void append(const char* bytes, std::size_t length) override;
    /// Never null; valid until the next `append`.
    const char* getData() override;
    /// Always null.
    KORVA_Streamable* getStreamable() override;

private:
    KORVA_String m_buffer;
};
