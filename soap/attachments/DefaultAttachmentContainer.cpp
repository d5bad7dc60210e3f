#include "korva/DefaultAttachmentContainer.h"

#include <zel/ZELAssert.h>

DefaultAttachmentContainer::DefaultAttachmentContainer() = default;

DefaultAttachmentContainer::DefaultAttachmentContainer(const DefaultAttachmentContainer&)
    : KORVA_AttachmentContainerI() {
    ZEL_ASSERT_NAMED(false, "DefaultAttachmentContainer::DefaultAttachmentContainer - not supported.");
}

DefaultAttachmentContainer& DefaultAttachmentContainer::operator=(
    const DefaultAttachmentContainer&) {
    ZEL_ASSERT_NAMED(false, "DefaultAttachmentContainer::operator= - not supported.");
    return *this;
}

DefaultAttachmentContainer::~DefaultAttachmentContainer() = default;

void DefaultAttachmentContainer::append(const char* bytes, std::size_t length) {
    m_buffer.appendChars(bytes, length);
}

const char* DefaultAttachmentContainer::getData() {
    return m_buffer.str();
}

KORVA_Streamable* DefaultAttachmentContainer::getStreamable() {
    return nullptr;
}
