#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/FitMoreMenuBarIconsTool.hpp"
#include "tools/system/ScreenshotSettingsTool.hpp"

namespace quorvane {
namespace {

constexpr const char* kCapture = "com.apple.screencapture";

struct ScreenshotSettingsToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<ScreenshotSettingsTool> tool = make();

    std::unique_ptr<ScreenshotSettingsTool> make() {
        return std::make_unique<ScreenshotSettingsTool>(catalogDescriptor("screenshot-settings"),
                                                        fakes.platform());
    }
    std::optional<PreferenceValue> capture(const std::string& key) const {
        return fakes.preferenceDomains.stored(key, kCapture);
    }
};

TEST_F(ScreenshotSettingsToolTest, ChoicesAreWrittenWhileOnRememberedAndPutBackWhenOff) {
    fakes.preferenceDomains.store("location", "/Users/me/Desktop/Shots", kCapture);
    fakes.preferenceDomains.store("type", "jpg", kCapture);
    EXPECT_TRUE(tool->needsSetup());
    EXPECT_TRUE(tool->opensSettingsWhenTurnedOn());
    tool->start();
    EXPECT_EQ(capture("location"), PreferenceValue("/Users/me/Desktop/Shots"))
        << "no folder chosen: the user's own stays";
    EXPECT_EQ(capture("type"), PreferenceValue("png"));

    EXPECT_TRUE(tool->setFolder("  /Users/me/Pictures "));
    tool->setFormat("heic");
    tool->setFormat("gif");
    tool->setShadow(false);
    tool->setThumbnail(false);
    tool->setDateInName(false);
    tool->setName("Shot");
    EXPECT_EQ(capture("location"), PreferenceValue("/Users/me/Pictures"));
    EXPECT_EQ(capture("type"), PreferenceValue("heic"));
    EXPECT_EQ(capture("disable-shadow"), PreferenceValue(true));
    EXPECT_EQ(capture("show-thumbnail"), PreferenceValue(false));
    EXPECT_EQ(capture("include-date"), PreferenceValue(false));
    EXPECT_EQ(capture("name"), PreferenceValue("Shot"));
    EXPECT_EQ(fakes.childProcesses.runs.size(), 7u) << "SystemUIServer after each change";

    EXPECT_FALSE(tool->setFolder("Pictures"));
    EXPECT_EQ(tool->folder(), "/Users/me/Pictures");
    const auto page = tool->settingsPage();
    ASSERT_TRUE(std::holds_alternative<SettingsRow::Warning>(page.sections[0].rows[1].kind));

    auto reread = make();
    EXPECT_EQ(reread->folder(), "/Users/me/Pictures");
    EXPECT_EQ(reread->format(), "heic");
    EXPECT_FALSE(reread->shadow() || reread->thumbnail() || reread->dateInName());
    EXPECT_EQ(reread->name(), "Shot");

    // Clearing the folder gives the user's own back at once, while the tool stays on.
    tool->setFolder("");
    EXPECT_EQ(capture("location"), PreferenceValue("/Users/me/Desktop/Shots"));
    tool->stop();
    EXPECT_EQ(capture("type"), PreferenceValue("jpg"));
    for (const char* key : {"disable-shadow", "show-thumbnail", "include-date", "name"}) {
        EXPECT_FALSE(capture(key)) << key;
    }
}

TEST_F(ScreenshotSettingsToolTest, ChangesWhileOffOnlyRememberTheChoice) {
    tool->setFormat("jpg");
    EXPECT_TRUE(fakes.preferenceDomains.values.empty());
    EXPECT_TRUE(fakes.childProcesses.runs.empty());
    tool->start();
    EXPECT_EQ(capture("type"), PreferenceValue("jpg"));
}

TEST(FitMoreMenuBarIconsTool, TheSpacingGoesToBothKeysOfThisMacWithinItsRange) {
    FakePlatform fakes;
    FitMoreMenuBarIconsTool tool(catalogDescriptor("fit-more-menu-bar-icons"), fakes.platform());
    tool.start();
    tool.setSpacing(40);
    EXPECT_EQ(tool.spacing(), FitMoreMenuBarIconsTool::kMaximumSpacing);
    tool.setSpacing(-3);
    EXPECT_EQ(tool.spacing(), 0);
    const auto stored = [&](const char* key) {
        return fakes.preferenceDomains.stored(key, PreferenceDomains::kAnyApplication,
                                              PreferenceHost::current);
    };
    EXPECT_EQ(stored("NSStatusItemSpacing"), PreferenceValue(0));
    EXPECT_EQ(stored("NSStatusItemSelectionPadding"), PreferenceValue(0));
    EXPECT_EQ(
        FitMoreMenuBarIconsTool(catalogDescriptor("fit-more-menu-bar-icons"), fakes.platform())
            .spacing(),
        0);
    tool.stop();
    EXPECT_FALSE(stored("NSStatusItemSpacing"));
}

}  // namespace
}  // namespace quorvane
