#include "app/PermissionCenter.hpp"

#include <gtest/gtest.h>

#include "app/PermissionCard.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

struct PermissionCenterTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<PermissionCenter> center;
    int changes = 0;
    int published = 0;
    Subscription observing;

    void SetUp() override {
        center = std::make_unique<PermissionCenter>(fakes.permissionProbe, fakes.scheduler,
                                                    fakes.workspace);
        center->onChange = [this] { ++changes; };
        observing = center->subscribe([this] { ++published; });
    }
    void tick() { fakes.scheduler.advance(PermissionCenter::kPollInterval); }
};

TEST_F(PermissionCenterTest, GrantsPresentAtLaunchAreReadAtConstructionWithoutACallback) {
    fakes.permissionProbe.accessibility = true;
    fakes.permissionProbe.screenCapture = true;
    PermissionCenter launched(fakes.permissionProbe, fakes.scheduler, fakes.workspace);
    int launchedChanges = 0;
    launched.onChange = [&] { ++launchedChanges; };
    EXPECT_TRUE(launched.accessibilityGranted()) << "known before the first reconcile";
    EXPECT_TRUE(launched.screenRecordingGranted());
    tick();
    EXPECT_EQ(launchedChanges, 0) << "the first tick finds nothing new";
}

TEST_F(PermissionCenterTest, APollNoticesEachRealChangeOnce) {
    tick();
    EXPECT_EQ(changes, 0) << "nothing changed, nothing said";
    EXPECT_EQ(published, 0);

    fakes.permissionProbe.accessibility = true;
    fakes.scheduler.advance(Seconds(1.9));
    EXPECT_FALSE(center->accessibilityGranted()) << "noticed on the tick, not before";
    fakes.scheduler.advance(Seconds(0.1));
    EXPECT_TRUE(center->accessibilityGranted());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(published, 1);

    fakes.permissionProbe.accessibility = false;
    fakes.permissionProbe.screenCapture = true;
    tick();
    EXPECT_EQ(changes, 2) << "both flags in one tick: one callback";
    EXPECT_EQ(published, 3) << "each flag is published on its own";

    center.reset();
    fakes.permissionProbe.screenCapture = false;
    tick();
    EXPECT_EQ(changes, 2) << "a destroyed centre polls no more";
}

TEST_F(PermissionCenterTest, RequestsAskTheSystemFirstAndFallBackToSystemSettings) {
    center->request(Permission::systemAudioRecording);
    EXPECT_EQ(
        fakes.permissionProbe.accessibilityPrompts + fakes.permissionProbe.screenCaptureRequests,
        0);
    EXPECT_EQ(fakes.workspace.openedURLs.back(), PermissionCenter::kScreenCaptureSettingsURL);

    center->request(Permission::accessibility);
    EXPECT_EQ(fakes.permissionProbe.accessibilityPrompts, 1);
    EXPECT_EQ(fakes.workspace.openedURLs.back(), PermissionCenter::kAccessibilitySettingsURL);

    center->request(Permission::screenRecording);
    EXPECT_EQ(fakes.permissionProbe.screenCaptureRequests, 1);
    ASSERT_EQ(fakes.workspace.openedURLs.size(), 3u);
    EXPECT_EQ(fakes.workspace.openedURLs.back(), PermissionCenter::kScreenCaptureSettingsURL)
        << "refused at the request: the pane is the way left";

    fakes.permissionProbe.screenCaptureRequestAnswer = true;
    fakes.permissionProbe.screenCapture = true;
    center->request(Permission::screenRecording);
    EXPECT_EQ(fakes.workspace.openedURLs.size(), 3u) << "granted: no pane";
    EXPECT_TRUE(center->screenRecordingGranted());
    changes = 0;

    // Granted at the prompt: the flag is read at once and no pane opens.
    fakes.permissionProbe.accessibilityPromptAnswer = true;
    fakes.permissionProbe.accessibility = true;
    center->request(Permission::accessibility);
    EXPECT_EQ(fakes.workspace.openedURLs.size(), 3u);
    EXPECT_TRUE(center->accessibilityGranted());
    EXPECT_EQ(changes, 1);
}

TEST_F(PermissionCenterTest, CardsTellWhatToDoForEachPermission) {
    fakes.permissionProbe.accessibility = true;
    tick();
    const auto accessibility = PermissionCard::make(Permission::accessibility, *center);
    EXPECT_EQ(accessibility.stateIcon, "checkmark.circle.fill");
    EXPECT_EQ(accessibility.stateColor, ColorRole::green);
    EXPECT_EQ(accessibility.buttons.size(), 1u);

    const auto screen = PermissionCard::make(Permission::screenRecording, *center);
    EXPECT_EQ(screen.stateIcon, "exclamationmark.circle.fill");
    EXPECT_EQ(screen.stateColor, ColorRole::orange);
    ASSERT_EQ(screen.buttons.size(), 2u);
    EXPECT_EQ(screen.buttons[1].action, PermissionCard::Action::restartQuorvane);

    const auto audio = PermissionCard::make(Permission::systemAudioRecording, *center);
    EXPECT_EQ(audio.state, PermissionCard::State::untestable);
    EXPECT_EQ(audio.stateIcon, "questionmark.circle");
    EXPECT_EQ(audio.stateColor, ColorRole::secondaryLabel);
}

}  // namespace
}  // namespace quorvane
