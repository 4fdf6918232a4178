#include "ui/NoticeLines.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(NoticeLinesTest, TheFirstLineBreakSeparatesHeadlineFromDetail) {
    const NoticeLines two = noticeLines("Updater tried to jump in front\nYou're still in Editor.");
    EXPECT_EQ(two.headline, "Updater tried to jump in front");
    EXPECT_EQ(two.detail, "You're still in Editor.");

    const NoticeLines one = noticeLines("Volume");
    EXPECT_EQ(one.headline, "Volume");
    EXPECT_EQ(one.detail, "");

    // Later breaks belong to the detail, which keeps them.
    const NoticeLines three = noticeLines("A\nB\nC");
    EXPECT_EQ(three.headline, "A");
    EXPECT_EQ(three.detail, "B\nC");
    EXPECT_EQ(noticeLines("\nOnly detail").headline, "");
}

}  // namespace
}  // namespace quorvane
