#include "tools/system/PreferenceFlipTool.hpp"

#include <gtest/gtest.h>

#include "app/SystemPreference.hpp"
#include "app/ToolCatalog.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using enum PreferenceHost;
constexpr const char* kGlobal = PreferenceDomains::kAnyApplication;

struct ExpectedKey {
    std::string domain;
    PreferenceHost host;
    std::string key;
    PreferenceValue value;
};
struct ExpectedTool {
    std::string id;
    std::vector<ExpectedKey> keys;
    std::vector<std::string> restarts;
};

// The preference-flip tools as the tool list describes them (screenshot settings and menu-bar
// spacing with their default choices).
const std::vector<ExpectedTool>& toolList() {
    static const std::vector<ExpectedTool> tools = {
        {"keep-spaces-in-order", {{"com.apple.dock", any, "mru-spaces", false}}, {"Dock"}},
        {"instant-dock",
         {{"com.apple.dock", any, "autohide-delay", 0.0},
          {"com.apple.dock", any, "autohide-time-modifier", 0.0}},
         {"Dock"}},
        {"screenshot-settings",
         {{"com.apple.screencapture", any, "type", "png"},
          {"com.apple.screencapture", any, "disable-shadow", false},
          {"com.apple.screencapture", any, "show-thumbnail", true},
          {"com.apple.screencapture", any, "include-date", true}},
         {"SystemUIServer"}},
        {"photos-auto-open", {{"com.apple.ImageCapture", current, "disableHotPlug", true}}, {}},
        {"hide-desktop-icons", {{"com.apple.finder", any, "CreateDesktop", false}}, {"Finder"}},
        {"show-hidden-files", {{"com.apple.finder", any, "AppleShowAllFiles", true}}, {"Finder"}},
        {"better-finder",
         {{kGlobal, any, "AppleShowAllExtensions", true},
          {"com.apple.finder", any, "_FXSortFoldersFirst", true},
          {"com.apple.finder", any, "_FXSortFoldersFirstOnDesktop", true},
          {"com.apple.finder", any, "FXDefaultSearchScope", "SCcf"},
          {"com.apple.finder", any, "_FXShowPosixPathInTitle", true},
          {"com.apple.finder", any, "ShowPathbar", true}},
         {"Finder"}},
        {"no-ds-store",
         {{"com.apple.desktopservices", any, "DSDontWriteNetworkStores", true},
          {"com.apple.desktopservices", any, "DSDontWriteUSBStores", true}},
         {}},
        {"fit-more-menu-bar-icons",
         {{kGlobal, current, "NSStatusItemSpacing", 6},
          {kGlobal, current, "NSStatusItemSelectionPadding", 6}},
         {"ControlCenter", "SystemUIServer"}},
        {"hide-menu-icons", {{kGlobal, any, "NSMenuEnableActionImages", false}}, {}},
    };
    return tools;
}

std::unique_ptr<Tool> buildFromCatalog(const std::string& id, const Platform& platform) {
    for (auto& tool : ToolCatalog::makeTools(platform)) {
        if (tool->id() == id) {
            return std::move(tool);
        }
    }
    return nullptr;
}

std::vector<std::string> backupKeys(const MemoryPreferences& preferences) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : preferences.values()) {
        if (key.starts_with("original.")) {
            keys.push_back(key);
        }
    }
    return keys;
}

TEST(PreferenceFlipTools, EachWritesExactlyItsKeysRestartsItsProcessesAndPutsEverythingBack) {
    for (const auto& expected : toolList()) {
        SCOPED_TRACE(expected.id);
        FakePlatform fakes;
        // Every other key starts with a value of the user's; the rest are absent.
        for (std::size_t i = 0; i < expected.keys.size(); i += 2) {
            const auto& key = expected.keys[i];
            fakes.preferenceDomains.store(key.key, "the user's", key.domain, key.host);
        }
        fakes.preferenceDomains.store("unrelated", 1, "com.apple.dock");
        const auto before = fakes.preferenceDomains.values;

        auto tool = buildFromCatalog(expected.id, fakes.platform());
        ASSERT_TRUE(tool);
        ASSERT_NE(dynamic_cast<PreferenceFlipTool*>(tool.get()), nullptr);
        EXPECT_TRUE(tool->isAvailable());
        EXPECT_TRUE(tool->requiredPermissions().empty());

        tool->start();
        auto wanted = before;
        for (const auto& key : expected.keys) {
            wanted[{key.domain, key.host}].insert_or_assign(key.key, key.value);
        }
        EXPECT_EQ(fakes.preferenceDomains.values, wanted);
        std::vector<FakeChildProcesses::Run> runs;
        for (const auto& process : expected.restarts) {
            runs.push_back({"/usr/bin/killall", {process}});
        }
        EXPECT_EQ(fakes.childProcesses.runs, runs);
        EXPECT_EQ(backupKeys(fakes.preferences).size(), expected.keys.size());

        tool->stop();
        for (auto& [domain, values] : fakes.preferenceDomains.values) {
            EXPECT_EQ(values, before.contains(domain) ? before.at(domain) : decltype(values){})
                << domain.first;
        }
        auto twice = runs;
        twice.insert(twice.end(), runs.begin(), runs.end());
        EXPECT_EQ(fakes.childProcesses.runs, twice);
        EXPECT_TRUE(backupKeys(fakes.preferences).empty());

        const auto page = tool->settingsPage();
        EXPECT_FALSE(page.sections.empty());
    }
}

struct FlipToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<Tool> make(const std::string& id) {
        return buildFromCatalog(id, fakes.platform());
    }
    std::optional<PreferenceValue> finder(const std::string& key) const {
        return fakes.preferenceDomains.stored(key, "com.apple.finder");
    }
};

TEST_F(FlipToolTest, AChangeLeftInForceByACrashIsUndoneByTheNextStopOrTidy) {
    fakes.preferenceDomains.store("AppleShowAllFiles", false, "com.apple.finder");
    make("show-hidden-files")->start();  // and the app dies: no stop

    auto relaunched = make("show-hidden-files");
    relaunched->start();
    EXPECT_EQ(fakes.childProcesses.runs.size(), 1u) << "nothing changed, so Finder stays";
    relaunched->stop();
    EXPECT_EQ(finder("AppleShowAllFiles"), PreferenceValue(false));
    EXPECT_EQ(fakes.childProcesses.runs.size(), 2u);

    // Turned off while Quorvane was not running: the launch's tidy puts it back.
    make("show-hidden-files")->start();
    auto launchedOff = make("show-hidden-files");
    launchedOff->tidy();
    EXPECT_EQ(finder("AppleShowAllFiles"), PreferenceValue(false));
    launchedOff->tidy();
    EXPECT_EQ(fakes.childProcesses.runs.size(), 4u)
        << "a tidy with nothing to undo restarts nothing";
}

TEST_F(FlipToolTest, AChangeThatCannotBeSavedIsShownAndLosesNothing) {
    fakes.preferenceDomains.store("AppleShowAllFiles", false, "com.apple.finder");
    fakes.preferenceDomains.unsavable.insert({"com.apple.finder", any});
    auto tool = make("show-hidden-files");
    tool->start();
    auto& flip = dynamic_cast<PreferenceFlipTool&>(*tool);
    EXPECT_NE(flip.lastError().find("AppleShowAllFiles"), std::string::npos);
    const auto page = tool->settingsPage();
    const auto& rows = page.sections.back().rows;
    ASSERT_TRUE(std::holds_alternative<SettingsRow::Warning>(rows.back().kind));
    EXPECT_EQ(std::get<SettingsRow::Warning>(rows.back().kind).current(), flip.lastError());
    EXPECT_TRUE(fakes.childProcesses.runs.empty());

    fakes.preferenceDomains.unsavable.clear();
    tool->stop();
    EXPECT_EQ(finder("AppleShowAllFiles"), PreferenceValue(false));
    EXPECT_EQ(flip.lastError(), "");
    EXPECT_TRUE(backupKeys(fakes.preferences).empty());
}

}  // namespace
}  // namespace quorvane
