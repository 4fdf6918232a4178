#include "tools/keyboard/AppShortcutsTool.hpp"

#include <gtest/gtest.h>

#include "input/HotKeyCenter.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/keyboard/AppShortcutAction.hpp"

namespace quorvane {
namespace {

using Kind = AppShortcutAction::Kind;

TEST(AppShortcutAction, HidesInFrontActivatesWhenRunningLaunchesOtherwise) {
    RunningApplication notes;
    notes.pid = 7;
    notes.bundleID = "com.example.notes";
    RunningApplication helper;
    helper.pid = 8;
    helper.bundleID = "com.example.player";
    helper.activationPolicy = RunningApplication::ActivationPolicy::accessory;
    const std::vector<RunningApplication> running{notes, helper};

    EXPECT_EQ(AppShortcutAction::decide("com.example.notes", notes, running),
              (AppShortcutAction{Kind::hide, 7}));
    EXPECT_EQ(AppShortcutAction::decide("com.example.notes", std::nullopt, running),
              (AppShortcutAction{Kind::activate, 7}));
    EXPECT_EQ(AppShortcutAction::decide("com.example.player", notes, running).kind, Kind::launch)
        << "a background helper of the app has no windows to bring forward";
    EXPECT_EQ(AppShortcutAction::decide("com.example.absent", notes, running).kind, Kind::launch);
}

TEST(AppShortcutsTool, EachAppsShortcutOpensShowsAndHidesItOnlyWhileOn) {
    FakePlatform fakes;
    constexpr std::uint32_t kT = 17;
    const auto combo = KeyCombo::make(kT, 0x100000 | 0x80000, "t");  // ⌥⌘T
    ASSERT_TRUE(combo);
    const std::uint32_t modifiers = HotKeyCenter::kCommandKey | HotKeyCenter::kOptionKey;
    {
        AppShortcutsTool tool(catalogDescriptor("app-shortcuts"), fakes.platform());
        tool.addApp("com.example.terminal");
        tool.shortcut("com.example.terminal")->set(combo);
    }
    AppShortcutsTool tool(catalogDescriptor("app-shortcuts"), fakes.platform());
    ASSERT_EQ(tool.apps(), std::vector<std::string>{"com.example.terminal"}) << "kept";
    EXPECT_FALSE(fakes.hotKeys.press(kT, modifiers)) << "nothing registered while off";

    tool.start();
    ASSERT_TRUE(fakes.hotKeys.press(kT, modifiers));
    EXPECT_EQ(fakes.workspace.launched, std::vector<std::string>{"com.example.terminal"});
    fakes.workspace.add(40, "com.example.terminal", "Terminal");
    fakes.hotKeys.press(kT, modifiers);
    EXPECT_EQ(fakes.workspace.activated, std::vector<int>{40});
    fakes.workspace.frontmostPID = 40;
    fakes.hotKeys.press(kT, modifiers);
    EXPECT_EQ(fakes.workspace.hidden, std::vector<int>{40});

    tool.removeApp("com.example.terminal");
    EXPECT_FALSE(fakes.hotKeys.press(kT, modifiers));
    EXPECT_FALSE(fakes.preferences.object("appShortcuts.shortcut.com.example.terminal"));
    tool.stop();
    EXPECT_TRUE(fakes.hotKeys.live.empty());
}

}  // namespace
}  // namespace quorvane
