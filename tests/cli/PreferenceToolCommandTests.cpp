#include <gtest/gtest.h>

#include <sstream>

#include "cli/CommandHost.hpp"
#include "cli/CommandLine.hpp"
#include "portable/FilePreferences.hpp"
#include "support/FileCommandHost.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

struct PreferenceToolCommandTest : ::testing::Test {
    TemporaryDirectory dir;
    FileCommandHost host;

    void SetUp() override { host.file = dir / "preferences.json"; }
    std::pair<int, std::string> run(std::vector<std::string> args) {
        CommandLine commandLine(host);
        std::ostringstream out;
        std::ostringstream err;
        const int status = commandLine.run(args, out, err);
        return {status, out.str() + err.str()};
    }
    std::optional<PreferenceValue> stored(const std::string& file, const std::string& key) {
        std::string error;
        auto store = FilePreferences::open(dir / file, error);
        return store ? store->object(key) : std::nullopt;
    }
};

TEST_F(PreferenceToolCommandTest, EnableWritesTheDomainBesideTheStoreAndDisablePutsItBack) {
    TemporaryDirectory::write(dir / "com.apple.finder.json", "{\"AppleShowAllFiles\": false}");
    const auto [on, onText] = run({"enable", "show-hidden-files"});
    ASSERT_EQ(on, 0) << onText;
    EXPECT_EQ(stored("com.apple.finder.json", "AppleShowAllFiles"), PreferenceValue(true));
    EXPECT_TRUE(stored("preferences.json", "original.com.apple.finder.AppleShowAllFiles"));

    const auto [shown, page] = run({"settings", "show-hidden-files"});
    EXPECT_EQ(shown, 0);
    EXPECT_NE(page.find("com.apple.finder: AppleShowAllFiles = true"), std::string::npos) << page;
    EXPECT_NE(page.find("restarts Finder"), std::string::npos) << page;

    // Another tool switched later leaves this one's change alone.
    ASSERT_EQ(run({"enable", "fit-more-menu-bar-icons"}).first, 0);
    EXPECT_EQ(stored("ByHost/.GlobalPreferences.json", "NSStatusItemSpacing"), PreferenceValue(6));
    EXPECT_EQ(stored("com.apple.finder.json", "AppleShowAllFiles"), PreferenceValue(true));

    const auto [off, offText] = run({"disable", "show-hidden-files"});
    ASSERT_EQ(off, 0) << offText;
    EXPECT_EQ(stored("com.apple.finder.json", "AppleShowAllFiles"), PreferenceValue(false));
    EXPECT_FALSE(stored("preferences.json", "original.com.apple.finder.AppleShowAllFiles"));
    ASSERT_EQ(run({"disable", "fit-more-menu-bar-icons"}).first, 0);
    EXPECT_FALSE(stored("ByHost/.GlobalPreferences.json", "NSStatusItemSpacing"));
}

TEST_F(PreferenceToolCommandTest, ADamagedDomainIsRefusedLeftAsItIsAndTheToolStaysOff) {
    const auto dock = dir / "com.apple.dock.json";
    TemporaryDirectory::write(dock, "{\"mru-spaces\": ");
    const auto [status, text] = run({"enable", "keep-spaces-in-order"});
    EXPECT_EQ(status, 2);
    EXPECT_NE(text.find("com.apple.dock.json"), std::string::npos) << text;
    EXPECT_EQ(TemporaryDirectory::read(dock), "{\"mru-spaces\": ");
    EXPECT_EQ(stored("preferences.json", "tool.keep-spaces-in-order.enabled"),
              PreferenceValue(false));
    EXPECT_FALSE(stored("preferences.json", "original.com.apple.dock.mru-spaces"));
}

}  // namespace
}  // namespace quorvane
