#include "tools/system/LeftoverScan.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/FakeFileSystem.hpp"
#include "support/FakeProcessFacts.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

struct LeftoverScanTest : ::testing::Test {
    TemporaryDirectory home;
    TemporaryDirectory computer;  // stands in for /Library
    FakeFileSystem files;

    LeftoverScanTest() { files.home = home.path().string(); }

    void put(const fs::path& path, std::size_t bytes = 1) {
        fs::create_directories(path.parent_path());
        TemporaryDirectory::write(path, std::string(bytes, 'x'));
    }
    std::string library(const std::string& inside = {}) const {
        return inside.empty() ? (home.path() / "Library").string()
                              : (home.path() / "Library" / inside).string();
    }
    std::vector<std::string> paths(const AppIdentity& app, std::vector<AppIdentity> others = {}) {
        std::vector<std::string> found;
        const LeftoverMatcher matcher(app, std::move(others));
        for (const auto& item : LeftoverScan::find(
                 files, matcher, {library(), (computer.path() / "Library").string()})) {
            found.push_back(item.path);
        }
        return found;
    }
};

TEST_F(LeftoverScanTest, FindsTheAppsFilesAndKeepsThoseOfAnAppWhoseIdentifierItBegins) {
    const std::vector<std::string> mine = {"Application Support/com.maker.app",
                                           "Application Support/Maker",
                                           "Caches/com.maker.app",
                                           "Containers/com.maker.app",
                                           "Group Containers/ABCDE12345.com.maker.app",
                                           "Preferences/com.maker.app.plist",
                                           "Preferences/ByHost/com.maker.app.0123456789ab.plist",
                                           "Saved Application State/com.maker.app.savedState",
                                           "HTTPStorages/com.maker.app",
                                           "HTTPStorages/com.maker.app.binarycookies",
                                           "Logs/Maker",
                                           "LaunchAgents/com.maker.app.plist"};
    const std::vector<std::string> theirs = {"Application Support/com.maker.app.pro",
                                             "Application Support/Maker Pro",
                                             "Preferences/com.maker.app.pro.plist",
                                             "Group Containers/ABCDE12345.com.maker.app.pro",
                                             "Caches/com.maker.apple",
                                             "LaunchAgents/com.maker.app.pro.helper.plist",
                                             "Preferences/com.apple.finder.plist",
                                             "Preferences/ByHost/com.maker.app.pro.plist",
                                             "Group Containers/notateam.com.maker.app"};
    for (const auto& path : mine) {
        put(library(path));
    }
    for (const auto& path : theirs) {
        put(library(path));
    }
    put(computer.path() / "Library/Application Support/com.maker.app/data");

    auto found = paths({"com.maker.app", "Maker", {}});

    std::vector<std::string> expected;
    for (const auto& path : mine) {
        expected.push_back(library(path));
    }
    expected.push_back((computer.path() / "Library/Application Support/com.maker.app").string());
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(found, expected);
}

TEST_F(LeftoverScanTest, NeverTakesWhatAnotherAppClaimsNorAnythingOfTheSystem) {
    put(library("Application Support/Notes"));
    put(library("Preferences/com.apple.Notes.plist"));
    // Another app of the same name claims the folder just as well.
    EXPECT_TRUE(
        paths({"com.maker.notes", "Notes", {}}, {{"com.other.notes", "Notes", {}}}).empty());
    EXPECT_EQ(paths({"com.maker.notes", "Notes", {}}).size(), 1u);

    EXPECT_FALSE(LeftoverMatcher({"com.apple.Notes", "Notes", {}}, {}).refusal().empty());
    EXPECT_FALSE(LeftoverMatcher({"", "Notes", {}}, {}).refusal().empty());
    EXPECT_TRUE(paths({"com.apple.Notes", "Notes", {}}).empty());
}

TEST_F(LeftoverScanTest, SizesCountHardLinksOnceAndAFolderReplacedByALinkIsNotSearched) {
    put(library("Caches/com.maker.app/a"), 300);
    fs::create_hard_link(library("Caches/com.maker.app/a"), library("Caches/com.maker.app/b"));
    put(library("Preferences/com.maker.app.plist"), 20);
    TemporaryDirectory elsewhere;
    put(elsewhere.path() / "com.maker.app/secret", 5000);
    fs::create_directory_symlink(elsewhere.path(), library("Logs"));

    const LeftoverMatcher matcher({"com.maker.app", "Maker", {}}, {});
    const auto items = LeftoverScan::find(files, matcher, {library()});
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].path, library("Caches/com.maker.app"));
    EXPECT_EQ(items[0].bytes, 300u);
    EXPECT_EQ(items[1].bytes, 20u);
}

TEST(LeftoverScanIdentify, NamesAnAppByItsBundleOrItsIdentifier) {
    FakeProcessFacts facts;
    facts.bundleIDs["/Applications/Maker.app"] = "com.maker.app";
    facts.applications["com.maker.app"] = "/Applications/Maker.app";
    std::string error;
    auto app = LeftoverScan::identify(facts, "/Applications/Maker.app/", error);
    ASSERT_TRUE(app);
    EXPECT_EQ(app->bundleID, "com.maker.app");
    EXPECT_EQ(app->name, "Maker");
    app = LeftoverScan::identify(facts, "com.maker.app", error);
    ASSERT_TRUE(app);
    EXPECT_EQ(app->bundlePath, "/Applications/Maker.app");
    EXPECT_FALSE(LeftoverScan::identify(facts, "/Applications/Other.app", error));
    EXPECT_NE(error.find("bundle identifier"), std::string::npos);
    EXPECT_FALSE(LeftoverScan::identify(facts, "maker", error));
    EXPECT_FALSE(LeftoverScan::identify(facts, "/Applications/Maker", error));
}

}  // namespace
}  // namespace quorvane
