#include "tools/system/SpaceScan.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/FakeFileSystem.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/system/SizeTally.hpp"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

struct SpaceScanTest : ::testing::Test {
    TemporaryDirectory home;
    TemporaryDirectory outside;
    FakeFileSystem files;

    SpaceScanTest() { files.home = home.path().string(); }

    void put(const fs::path& path, std::size_t bytes) {
        fs::create_directories(path.parent_path());
        TemporaryDirectory::write(path, std::string(bytes, 'x'));
    }
    std::string at(const std::string& inside) const { return (home.path() / inside).string(); }
};

TEST_F(SpaceScanTest, ListsOnlyTheAllowedFoldersFollowsNoLinkAndCountsHardLinksOnce) {
    put(at("Library/Caches/com.maker.app/blob"), 1000);
    fs::create_hard_link(at("Library/Caches/com.maker.app/blob"),
                         at("Library/Caches/com.maker.app/same-blob"));
    fs::create_directories(at("Library/Logs"));
    fs::create_hard_link(at("Library/Caches/com.maker.app/blob"), at("Library/Logs/blob.log"));
    put(at("Library/Caches/com.apple.Safari/cache.db"), 5000);
    put(at("Library/Caches/com.running.app/cache"), 700);
    put(at("Library/Logs/maker.log"), 40);
    put(at(".Trash/old.zip"), 30);
    put(at("Documents/large.mov"), 9000);
    put(outside.path() / "big/huge", 100000);
    // A link inside a caches folder counts as itself; a category reached through one is skipped.
    fs::create_directory_symlink(outside.path() / "big", at("Library/Caches/pointer"));
    fs::create_directories(at(".npm"));
    fs::create_directory_symlink(outside.path() / "big", at(".npm/_cacache"));

    const auto items = SpaceScan::scan(files, files.home, {"com.running.app"});

    std::uint64_t listed = 0;
    for (const auto& item : items) {
        listed += item.bytes;
        const bool allowed = item.path.starts_with(at("Library/Caches/")) ||
                             item.path.starts_with(at("Library/Logs/")) ||
                             item.path.starts_with(at(".Trash/"));
        EXPECT_TRUE(allowed) << item.path;
        EXPECT_EQ(item.path.find("com.apple."), std::string::npos);
        EXPECT_EQ(item.path.find("com.running.app"), std::string::npos);
    }
    ASSERT_EQ(items.size(), 4u);
    EXPECT_EQ(items[0].path, at("Library/Caches/com.maker.app"));
    EXPECT_EQ(items[0].bytes, 1000u);
    EXPECT_EQ(items[1].path, at("Library/Caches/pointer"));
    EXPECT_EQ(items[1].bytes, (outside.path() / "big").string().size());
    EXPECT_EQ(items[2].path, at("Library/Logs/maker.log"));
    EXPECT_EQ(items[3].category, "trash");
    EXPECT_EQ(SpaceScan::total(items, true), listed);
    EXPECT_EQ(SpaceScan::total(items, false), listed - 30);
}

TEST_F(SpaceScanTest, AHomeWhoseLibraryIsALinkListsNothingFromIt) {
    put(outside.path() / "Library/Caches/com.maker.app/blob", 100);
    fs::create_directory_symlink(outside.path() / "Library", at("Library"));
    EXPECT_TRUE(SpaceScan::scan(files, files.home, {}).empty());
}

TEST(SpaceScanRules, SafeCachesAreNeitherTheSystemsNorARunningApps) {
    EXPECT_TRUE(SpaceScan::isSafeCache("com.maker.app", {"com.other.app"}));
    EXPECT_FALSE(SpaceScan::isSafeCache("com.apple.Safari", {}));
    EXPECT_FALSE(SpaceScan::isSafeCache("COM.APPLE.bird", {}));
    EXPECT_FALSE(SpaceScan::isSafeCache("com.Maker.App", {"com.maker.app"}));
    EXPECT_FALSE(SpaceScan::isSafeCache(".DS_Store", {}));
}

TEST(SizeTallyFormat, UsesDecimalUnitsAsFinderDoes) {
    EXPECT_EQ(SizeTally::format(999), "999 bytes");
    EXPECT_EQ(SizeTally::format(1500), "1.5 KB");
    EXPECT_EQ(SizeTally::format(2'340'000'000), "2.3 GB");
}

}  // namespace
}  // namespace quorvane
