// What stands in for a text is told from every text.
#include "types/TextMarker.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

TEST(TextMarker, TellsContentFromAnId) {
    types::TextMarker marker;
    types::mark(marker, false);
    EXPECT_TRUE(types::isMarked(marker));
    EXPECT_FALSE(types::isContentId(marker));
    types::mark(marker, true);
    EXPECT_TRUE(types::isMarked(marker));
    EXPECT_TRUE(types::isContentId(marker));
}

TEST(TextMarker, IsInNoText) {
    EXPECT_FALSE(types::isMarked(nullptr));
    EXPECT_FALSE(types::isMarked("text"));
    EXPECT_FALSE(types::isMarked("\xFF\xFF\xFF\xFF"));
    // Whoever reads behind the end of one of these reads what is not allocated.
    for (const std::string text : {"", "\xFF", "\xFF\xFF", "\xFF\xFE", "\xFF\xFE\xFE"}) {
        const std::unique_ptr<char[]> exact(new char[text.size() + 1]);
        std::memcpy(exact.get(), text.c_str(), text.size() + 1);
        EXPECT_FALSE(types::isMarked(exact.get())) << text.size();
    }
}

}  // namespace
