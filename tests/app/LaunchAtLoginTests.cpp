#include "app/LaunchAtLogin.hpp"

#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "support/FakeAppShell.hpp"

namespace quorvane {
namespace {

using Status = LoginItem::Status;

std::string shown(LaunchAtLogin& setting) {
    SettingsPage page;
    page.add(setting.section());
    return SettingsTextRenderer::render(page);
}

TEST(LaunchAtLogin, SwitchingRegistersAndUnregistersTheLoginItem) {
    std::vector<std::string> calls;
    FakeAppShell system(calls);
    LaunchAtLogin setting(system);
    EXPECT_FALSE(setting.isOn());

    setting.set(true);
    setting.set(true);
    EXPECT_TRUE(setting.isOn());
    setting.set(false);
    EXPECT_FALSE(setting.isOn());
    EXPECT_EQ(calls, (std::vector<std::string>{"register login item", "unregister login item"}));
    EXPECT_EQ(shown(setting), "Startup\n  [ ] Open Quorvane at login\n");
}

TEST(LaunchAtLogin, ApprovalAndFailuresAreShownWithoutLosingTheChoice) {
    std::vector<std::string> calls;
    FakeAppShell system(calls);
    system.statusAfterRegister = Status::requiresApproval;
    LaunchAtLogin setting(system);
    setting.set(true);
    EXPECT_TRUE(setting.isOn()) << "waiting for approval still counts as the user's on";
    EXPECT_EQ(shown(setting), "Startup\n  [x] Open Quorvane at login\n  ! " +
                                  std::string(LaunchAtLogin::kApprovalWarning) + "\n  [" +
                                  LaunchAtLogin::kApprovalButton + "]\n");
    setting.openLoginItemsSettings();
    EXPECT_EQ(calls.back(), "open login items");

    system.loginStatus = Status::notRegistered;
    system.registerError = "Operation not permitted";
    int changes = 0;
    const auto watching = setting.subscribe([&] { ++changes; });
    setting.set(true);
    EXPECT_FALSE(setting.isOn());
    EXPECT_EQ(setting.lastError(), "Couldn't turn on opening at login: Operation not permitted");
    EXPECT_EQ(changes, 1);

    system.registerError.clear();
    system.statusAfterRegister = Status::notFound;
    setting.set(true);
    EXPECT_NE(setting.lastError().find("can't find Quorvane's login item"), std::string::npos);
    system.statusAfterRegister = Status::enabled;
    setting.set(true);
    EXPECT_TRUE(setting.lastError().empty());
}

}  // namespace
}  // namespace quorvane
