#include "portable/PosixFileSystem.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

// The freedesktop.org Trash keeps a record beside each item, so the item can be put back; two
// items of one name never overwrite each other there.
TEST(PosixFileSystemTest, TrashKeepsEveryItemWithARecordOfWhereItCameFrom) {
    TemporaryDirectory home;
    const char* saved = std::getenv("XDG_DATA_HOME");
    const std::string previous = saved != nullptr ? saved : "";
    ::setenv("XDG_DATA_HOME", (home / "data").c_str(), 1);
    PosixFileSystem files(home.path().string());
    fs::create_directories(home / "a");
    fs::create_directories(home / "b");
    TemporaryDirectory::write(home / "a/notes.txt", "first");
    TemporaryDirectory::write(home / "b/notes.txt", "second");

    EXPECT_EQ(files.trashItem((home / "a/notes.txt").string()), "");
    EXPECT_EQ(files.trashItem((home / "b/notes.txt").string()), "");
    EXPECT_NE(files.trashItem((home / "missing").string()), "");
    if (saved != nullptr) {
        ::setenv("XDG_DATA_HOME", previous.c_str(), 1);
    } else {
        ::unsetenv("XDG_DATA_HOME");
    }

    const fs::path trash = home / "data/Trash";
    EXPECT_EQ(TemporaryDirectory::read(trash / "files/notes.txt"), "first");
    EXPECT_EQ(TemporaryDirectory::read(trash / "files/notes.txt.2"), "second");
    EXPECT_NE(TemporaryDirectory::read(trash / "info/notes.txt.2.trashinfo")
                  .find("Path=" + (home / "b/notes.txt").string()),
              std::string::npos);
    EXPECT_FALSE(fs::exists(trash / "info/missing.trashinfo"));
}

TEST(PosixFileSystemTest, NeitherCreatingNorMovingReplacesAnything) {
    TemporaryDirectory home;
    PosixFileSystem files(home.path().string());
    const std::string path = (home / "new.txt").string();
    EXPECT_EQ(files.createFile(path, "one"), "");
    EXPECT_NE(files.createFile(path, "two"), "");
    TemporaryDirectory::write(home / "other.txt", "other");
    EXPECT_NE(files.moveItem((home / "other.txt").string(), path), "");
    EXPECT_EQ(TemporaryDirectory::read(path), "one");
    EXPECT_EQ(files.createDirectory((home / "x/y").string()), "");
    EXPECT_EQ(files.moveItem((home / "other.txt").string(), (home / "x/y/other.txt").string()), "");

    fs::create_symlink(home / "x", home / "link");
    const auto link = files.status((home / "link").string());
    ASSERT_TRUE(link);
    EXPECT_EQ(link->kind, FileStatus::Kind::symbolicLink);
    const auto listing = files.contents((home / "x").string());
    ASSERT_TRUE(listing);
    ASSERT_EQ(listing->size(), 1u);
    EXPECT_EQ(listing->front().status.kind, FileStatus::Kind::directory);
}

}  // namespace
}  // namespace quorvane
