#include "tools/system/FinderMenu.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvane {
namespace {

using Entry = FinderMenu::Entry;
using Click = FinderMenu::Click;

TEST(FinderMenuTests, NewFilesGoIntoAClickedFolderOrBesideAClickedFile) {
    const auto intoFolder =
        FinderMenu::request(Entry::newMarkdownFile, Click{"/Users/me/Notes", true, {}});
    ASSERT_TRUE(intoFolder);
    EXPECT_EQ(intoFolder->action, FinderRequest::Action::newFile);
    EXPECT_EQ(intoFolder->folder, "/Users/me/Notes");
    EXPECT_EQ(intoFolder->kind, "md");

    const auto besideFile = FinderMenu::request(
        Entry::newTextFile, Click{"/Users/me/Notes/a.txt", false, {"/Users/me/Notes/a.txt"}});
    ASSERT_TRUE(besideFile);
    EXPECT_EQ(besideFile->folder, "/Users/me/Notes");
    EXPECT_EQ(besideFile->kind, "txt");

    const auto atTheRoot = FinderMenu::request(Entry::newEmptyFile, Click{"/a.txt", false, {}});
    ASSERT_TRUE(atTheRoot);
    EXPECT_EQ(atTheRoot->folder, "/");
    EXPECT_EQ(atTheRoot->kind, "");
}

TEST(FinderMenuTests, CopyPathCopiesTheSelectionOrElseTheWindowsFolder) {
    const auto selection = FinderMenu::request(
        Entry::copyPath, Click{"/Users/me", true, {"/Users/me/a.txt", "/Users/me/b"}});
    ASSERT_TRUE(selection);
    EXPECT_EQ(selection->action, FinderRequest::Action::copyPath);
    EXPECT_EQ(selection->items, (std::vector<std::string>{"/Users/me/a.txt", "/Users/me/b"}));

    const auto background = FinderMenu::request(Entry::copyPath, Click{"/Users/me", true, {}});
    ASSERT_TRUE(background);
    EXPECT_EQ(background->items, (std::vector<std::string>{"/Users/me"}));
}

TEST(FinderMenuTests, AClickThatNamesNothingSendsNothing) {
    for (const Entry entry : FinderMenu::kEntries) {
        EXPECT_EQ(FinderMenu::request(entry, Click{}), std::nullopt);
    }
}

TEST(FinderMenuTests, AMenuItemsTagNamesItsEntryAndAMissingTagNone) {
    for (std::size_t index = 0; index < std::size(FinderMenu::kEntries); ++index) {
        EXPECT_EQ(FinderMenu::entryForTag(FinderMenu::tagAt(index)), FinderMenu::kEntries[index]);
    }
    // 0 is the tag of an item nobody tagged.
    EXPECT_EQ(FinderMenu::entryForTag(0), std::nullopt);
    EXPECT_EQ(FinderMenu::entryForTag(FinderMenu::tagAt(std::size(FinderMenu::kEntries))),
              std::nullopt);
}

}  // namespace
}  // namespace quorvane
