#include "app/PermissionCardActions.hpp"

#include <gtest/gtest.h>

#include "app/PermissionCenter.hpp"
#include "support/FakeAppShell.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

struct Cards {
    FakePlatform fakes;
    FakeAppShell system{fakes.calls};
    PermissionCenter center{fakes.permissionProbe, fakes.scheduler, fakes.workspace};
    PermissionCardActions actions{center, system};
};

TEST(PermissionCardActions, OpenSystemSettingsAsksThePermissionCentre) {
    Cards cards;
    cards.actions.perform(Permission::accessibility, PermissionCard::Action::openSystemSettings);
    EXPECT_EQ(cards.fakes.permissionProbe.accessibilityPrompts, 1);
    EXPECT_EQ(cards.fakes.workspace.openedURLs,
              (std::vector<std::string>{PermissionCenter::kAccessibilitySettingsURL}));
}

TEST(PermissionCardActions, RestartQuitsOnlyOnceTheNewInstanceRuns) {
    Cards cards;
    const auto restart = [&] {
        cards.actions.perform(Permission::screenRecording, PermissionCard::Action::restartQuorvane);
    };
    restart();
    restart();
    EXPECT_EQ(cards.fakes.calls, (std::vector<std::string>{"launch new instance"}))
        << "a second press while launching starts nothing";

    cards.system.finishLaunch("The application could not be found");
    EXPECT_EQ(cards.fakes.calls.back(), "launch new instance") << "still running";
    EXPECT_NE(cards.actions.lastError().find("could not be found"), std::string::npos);

    restart();
    cards.system.finishLaunch();
    EXPECT_EQ(cards.fakes.calls.back(), "terminate");
}

}  // namespace
}  // namespace quorvane
