#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "base/Json.hpp"
#include "cli/CommandLine.hpp"
#include "portable/SystemArchives.hpp"
#include "support/FakeFileSystem.hpp"
#include "support/FileCommandHost.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

// The file commands over a test's own home folder.
struct HomeCommandHost : FileCommandHost {
    std::string home;
    std::unique_ptr<FileSystem> makeFileSystem() override {
        auto files = std::make_unique<FakeFileSystem>();
        files->home = home;
        return files;
    }
};

struct FileCommandsTest : ::testing::Test {
    TemporaryDirectory home;
    HomeCommandHost host;
    std::string out;
    std::string err;

    FileCommandsTest() {
        host.file = home / "preferences.json";
        host.home = home.path().string();
    }
    int run(std::vector<std::string> args) {
        std::ostringstream output;
        std::ostringstream errors;
        const int status = CommandLine(host).run(args, output, errors);
        out = output.str();
        err = errors.str();
        return status;
    }
    void put(const std::string& inside, std::size_t bytes) {
        fs::create_directories((home / inside).parent_path());
        TemporaryDirectory::write(home / inside, std::string(bytes, 'x'));
    }
};

TEST_F(FileCommandsTest, SpaceScanReportsSizesAndRemovesNothing) {
    put("Library/Caches/com.maker.app/blob", 2500);
    put(".Trash/old", 10);
    ASSERT_EQ(run({"space", "scan", "--json"}), 0) << err;
    const auto json = Json::parse(out);
    ASSERT_TRUE(json) << out;
    EXPECT_EQ(json->find("items")->array()->size(), 2u);
    EXPECT_EQ(*json->find("removableBytes"), Json(2500));
    EXPECT_EQ(*json->find("trashBytes"), Json(10));
    EXPECT_TRUE(fs::exists(home / "Library/Caches/com.maker.app/blob"));

    ASSERT_EQ(run({"space", "scan"}), 0);
    EXPECT_NE(out.find("2.5 KB\tApp caches\t"), std::string::npos) << out;
    EXPECT_NE(out.find("nothing was removed"), std::string::npos);
    EXPECT_EQ(run({"space", "clean"}), 2);
    EXPECT_NE(err.find("usage: quorvane space scan [--json]"), std::string::npos);
}

TEST_F(FileCommandsTest, UninstallScanListsLeftoversByIdentifierAndRefusesTheSystemsApps) {
    put("Library/Preferences/com.maker.app.plist", 20);
    ASSERT_EQ(run({"uninstall-scan", "com.maker.app"}), 0) << err;
    EXPECT_NE(out.find("com.maker.app.plist"), std::string::npos);
    EXPECT_EQ(run({"uninstall-scan", "com.apple.Safari"}), 2);
    EXPECT_NE(err.find("part of macOS"), std::string::npos);
    EXPECT_EQ(run({"uninstall-scan"}), 2);
}

TEST_F(FileCommandsTest, ArchiveCommandsSayClearlyWhenArchivesAreUnavailableOrRefuseDamage) {
    TemporaryDirectory::write(home / "broken.zip", "no archive here");
    const int status = run({"archive", "extract", (home / "broken.zip").string()});
    EXPECT_EQ(status, 2);
    if (!makeSystemArchives()->isAvailable()) {
        EXPECT_NE(err.find("archives are unavailable"), std::string::npos) << err;
    }
    EXPECT_FALSE(fs::exists(home / "broken"));
    EXPECT_EQ(run({"archive", "unpack", "x"}), 2);
    EXPECT_NE(err.find("usage: quorvane archive"), std::string::npos);
}

}  // namespace
}  // namespace quorvane
