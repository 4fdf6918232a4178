#include "tools/windows/StopFocusStealingTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

const ToolDescriptor& descriptor() {
    return catalogDescriptor("stop-focus-stealing");
}

struct StopFocusStealingToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<StopFocusStealingTool> tool;
    Element editorWindow;

    void SetUp() override {
        fakes.workspace.add(100, "com.example.editor", "Editor");
        fakes.workspace.add(200, "com.example.updater", "Updater").activationPolicy =
            RunningApplication::ActivationPolicy::accessory;
        fakes.workspace.add(300, "com.apple.SecurityAgent", "SecurityAgent");
        fakes.workspace.add(400, "com.example.mail", "Mail");
        fakes.workspace.add(500, "com.apple.notificationcenterui", "Notification Center");
        fakes.workspace.frontmostPID = 100;
        auto& a = fakes.accessibility;
        editorWindow = a.makeWindow(100, {0, 0, 500, 500});
        a.attributes[{a.application(100).get(), "AXFocusedWindow"}] = editorWindow;
        tool = std::make_unique<StopFocusStealingTool>(descriptor(), fakes.platform());
        tool->start();
        fakes.scheduler.advance(Seconds(10));  // long after any user action
    }
    void activate(int pid) {
        fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                             &fakes.workspace.applications.at(pid));
        fakes.scheduler.runPending();
    }
    void click() {
        FakeEvent event;
        event.eventType = EventType::leftMouseDown;
        fakes.eventMonitors.send(event);
    }
    int current() const { return tool->currentApp() ? tool->currentApp()->pid : 0; }
};

TEST_F(StopFocusStealingToolTest, AnAppThatComesForwardOnItsOwnIsPutBack) {
    tool->setShowNotice(true);
    activate(200);
    EXPECT_EQ(tool->stoppedThisSession(), 1);
    EXPECT_EQ(fakes.accessibility.broughtToFront(), std::vector<int>{100})
        << "the editor is brought back";
    ASSERT_FALSE(fakes.accessibility.actions.empty());
    EXPECT_EQ(fakes.accessibility.actions.back().first, editorWindow);
    ASSERT_EQ(tool->history().size(), 1u);
    EXPECT_EQ(tool->history()[0].appName, "Updater");
    EXPECT_TRUE(tool->history()[0].isBackground);
    ASSERT_EQ(fakes.screens.panels.size(), 1u);
    EXPECT_EQ(fakes.screens.panels[0]->content.title,
              "Updater tried to jump in front\nYou're still in Editor. Click it in the Dock when "
              "you want it.");

    activate(100);  // the restore itself
    EXPECT_EQ(tool->stoppedThisSession(), 1) << "the tool's own restore is not counted";
    EXPECT_EQ(tool->restoringPID(), std::nullopt);
    EXPECT_EQ(current(), 100);

    fakes.scheduler.advance(Seconds(5));
    activate(200);
    EXPECT_EQ(tool->stoppedThisSession(), 2);
    EXPECT_EQ(tool->history().size(), 1u) << "one entry per app, the newest";
    activate(100);

    // A Dock click: the user acted, so the app always comes forward.
    fakes.scheduler.advance(Seconds(5));
    click();
    fakes.scheduler.advance(Seconds(0.3));
    activate(400);
    EXPECT_EQ(current(), 400);
    EXPECT_EQ(tool->lastUserSwitch(), fakes.scheduler.date());
    EXPECT_EQ(tool->stoppedThisSession(), 2);
}

TEST_F(StopFocusStealingToolTest, SystemPromptsAreNeverPushedBack) {
    fakes.windowList.owners = {100, 300};
    activate(300);
    fakes.scheduler.advance(Seconds(1));
    EXPECT_EQ(current(), 300) << "the password prompt stays in front";
    EXPECT_TRUE(fakes.accessibility.broughtToFront().empty());
    EXPECT_EQ(tool->stoppedThisSession(), 0);

    // Focus in a system prompt: the app after it may come forward.
    activate(400);
    EXPECT_EQ(current(), 400);

    // A system process that takes the front with nothing to show gives it back a moment later.
    fakes.windowList.owners = {400};
    activate(500);
    EXPECT_TRUE(fakes.accessibility.broughtToFront().empty());
    fakes.scheduler.advance(StopFocusStealingTool::kSystemWindowWait);
    EXPECT_EQ(fakes.accessibility.broughtToFront(), std::vector<int>{400});
    EXPECT_EQ(tool->stoppedThisSession(), 0) << "the system is no culprit";
    EXPECT_TRUE(tool->history().empty());
}

TEST_F(StopFocusStealingToolTest, AnAppTheUserLaunchedComesForwardOnceWithinTheGracePeriod) {
    click();
    fakes.scheduler.advance(Seconds(2));
    fakes.workspace.launch(600);  // from the Dock, slow to start
    EXPECT_TRUE(tool->userLaunches().contains(600));
    fakes.scheduler.advance(Seconds(5));
    activate(600);
    EXPECT_EQ(current(), 600) << "its first window comes forward";
    EXPECT_FALSE(tool->userLaunches().contains(600)) << "only once";
    fakes.scheduler.advance(Seconds(60));
    fakes.workspace.launch(701);
    EXPECT_FALSE(tool->userLaunches().contains(701)) << "nobody asked for it";
    activate(701);
    EXPECT_EQ(tool->stoppedThisSession(), 1);
}

TEST_F(StopFocusStealingToolTest, HistoryPersistsAndSurvivesCorruptData) {
    // How many entries are kept is the history's own rule; here only that they last.
    for (int pid = 1000; pid < 1002; ++pid) {
        fakes.workspace.add(pid, "com.example.helper" + std::to_string(pid));
        activate(pid);
        activate(100);
    }
    ASSERT_EQ(tool->history().size(), 2u);

    StopFocusStealingTool reread(descriptor(), fakes.platform());
    EXPECT_EQ(reread.history(), tool->history());
    EXPECT_EQ(reread.stoppedThisSession(), 0) << "not kept across launches";

    const std::string corrupt = "[{\"appName\": 3}]";
    fakes.preferences.set(StopFocusStealingTool::kHistoryKey,
                          PreferenceValue::Data(corrupt.begin(), corrupt.end()));
    StopFocusStealingTool fresh(descriptor(), fakes.platform());
    EXPECT_TRUE(fresh.history().empty());
    const auto page = fresh.settingsPage();
    const auto& list = std::get<SettingsRow::ItemList>(page.sections[2].rows[1].kind);
    EXPECT_TRUE(list.items().empty());
    EXPECT_EQ(*fakes.preferences.data(StopFocusStealingTool::kHistoryKey),
              PreferenceValue::Data(corrupt.begin(), corrupt.end()));
}

TEST_F(StopFocusStealingToolTest, AllowedAppsComeForwardAndTheListRowsRemoveEntries) {
    auto page = tool->settingsPage();
    std::get<SettingsRow::AppList>(page.sections[1].rows[0].kind).add("com.example.mail");
    activate(400);
    EXPECT_EQ(current(), 400);
    activate(200);
    auto& list = std::get<SettingsRow::ItemList>(page.sections[2].rows[1].kind);
    EXPECT_EQ(list.items(), std::vector<std::string>{"Background helper · Updater"});
    list.remove(0);
    EXPECT_TRUE(tool->history().empty());
}

}  // namespace
}  // namespace quorvane
