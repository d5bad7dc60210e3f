#include "tests/support/ExpectThrow.h"

#include <korva/DefaultAttachmentContainer.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(DefaultAttachmentContainer, CollectsAText) {
    DefaultAttachmentContainer container;
    EXPECT_STREQ(container.getData(), "");
    container.append("ab", 2);
    container.append("", 0);
    container.append("cde", 2);
    EXPECT_STREQ(container.getData(), "abcd");
    EXPECT_EQ(container.getStreamable(), nullptr);
}

TEST(DefaultAttachmentContainer, KeepsLargeContent) {
    DefaultAttachmentContainer container;
    const std::string piece(2048, 'x');
    for (int i = 0; i < 1000; ++i)
        container.append(piece.data(), piece.size());
    EXPECT_EQ(std::string(container.getData()), std::string(2048000, 'x'));
}

TEST(DefaultAttachmentContainer, IsNeitherCopiedNorAssigned) {
    DefaultAttachmentContainer container;
    EXPECT_ASSERTION(DefaultAttachmentContainer(container),
                     "ZEL_ASSERT_NAMED(false, "
                     "\"DefaultAttachmentContainer::DefaultAttachmentContainer - not "
                     "supported.\");");
    DefaultAttachmentContainer other;
    EXPECT_ASSERTION(other = container,
                     "ZEL_ASSERT_NAMED(false, "
                     "\"DefaultAttachmentContainer::operator= - not supported.\");");
}

}  // namespace
