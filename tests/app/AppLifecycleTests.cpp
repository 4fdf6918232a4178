#include "app/AppLifecycle.hpp"

#include <gtest/gtest.h>

#include "app/MenuBarPanel.hpp"
#include "app/PermissionCenter.hpp"
#include "app/RestartArguments.hpp"
#include "support/LaunchedApp.hpp"

namespace quorvane {
namespace {

using Calls = std::vector<std::string>;

TEST(AppLifecycle, StartsUpInOrderAndShowsTheWelcomeOnlyOnTheFirstLaunch) {
    LaunchedApp launched;
    launched.add("alpha");
    launched.add("beta");
    launched.fakes.preferences.set("tool.beta.enabled", true);
    AppLifecycle* app = nullptr;
    // The tools are made after the permission centre exists and before the registry does.
    AppLifecycle::ToolFactory factory = [&](const Platform&) {
        launched.fakes.calls.push_back(std::string("tools") +
                                       (app->permissions() ? ", permissions read" : "") +
                                       (app->registry() ? ", registry made" : ""));
        return std::move(launched.toolsToMake);
    };
    launched.app = std::make_unique<AppLifecycle>(
        launched.fakes.platform(),
        AppLifecycle::Shell{launched.shell, launched.shell, launched.shell}, factory);
    app = launched.app.get();
    EXPECT_TRUE(launched.fakes.calls.empty()) << "nothing happens before the launch";

    app->didFinishLaunching();
    EXPECT_EQ(launched.fakes.calls, (Calls{"tools, permissions read", "tidy:alpha", "start:beta",
                                           "item", "show first run"}));

    launched.fakes.calls.clear();
    app->didFinishLaunching();
    EXPECT_TRUE(launched.fakes.calls.empty()) << "a second launch event builds nothing twice";

    LaunchedApp again;
    again.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    again.launch();
    EXPECT_EQ(again.fakes.calls, (Calls{"item"}));
}

TEST(AppLifecycle, ARestartedInstanceStartsOnlyOnceTheOneItReplacesHasQuit) {
    EXPECT_EQ(replacedProcessID({"Quorvane", "--replacing", "812"}), 812);
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"Quorvane"},
                                               {"Quorvane", "--replacing"},
                                               {"Quorvane", "--replacing", "81x"},
                                               {"Quorvane", "--replacing", "-3"},
                                               {"Quorvane", "-psn_0_1234"}}) {
        EXPECT_EQ(replacedProcessID(arguments), std::nullopt) << arguments.back();
    }
    EXPECT_EQ(replacedProcessID(restartArguments(77)), 77);

    LaunchedApp launched;
    launched.add("alpha");
    launched.fakes.preferences.set("tool.alpha.enabled", true);
    launched.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    launched.shell.replaced = 812;
    launched.shell.running = {812};
    launched.launch();
    launched.fakes.scheduler.advance(AppLifecycle::kPredecessorPoll * 5);
    EXPECT_TRUE(launched.fakes.calls.empty()) << "no status item, hot key or tap while it runs";
    EXPECT_EQ(launched.app->registry(), nullptr);

    launched.shell.running.clear();
    launched.fakes.scheduler.advance(AppLifecycle::kPredecessorPoll);
    EXPECT_EQ(launched.fakes.calls, (Calls{"start:alpha", "item"}));
    launched.fakes.scheduler.advance(AppLifecycle::kPredecessorPatience);
    EXPECT_EQ(launched.fakes.calls.size(), 2u) << "started once";

    LaunchedApp stuck;
    stuck.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    stuck.shell.replaced = 812;
    stuck.shell.running = {812};
    stuck.launch();
    stuck.fakes.scheduler.advance(AppLifecycle::kPredecessorPatience +
                                  AppLifecycle::kPredecessorPoll);
    EXPECT_EQ(stuck.fakes.calls, (Calls{"item"})) << "a hung predecessor delays, never blocks";

    LaunchedApp gone;
    gone.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    gone.shell.replaced = 812;
    gone.launch();
    EXPECT_EQ(gone.fakes.calls, (Calls{"item"})) << "already gone: starts at once";
}

TEST(AppLifecycle, APermissionChangeReconcilesAndASetupNeedOpensTheToolsPage) {
    LaunchedApp launched;
    launched.add("remap", std::vector<Permission>{Permission::accessibility}).setupNeeded = true;
    launched.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    launched.launch();
    launched.fakes.menuBar.click();
    launched.fakes.calls.clear();

    launched.registry().setEnabled(true, launched.tool("remap"), true);
    EXPECT_EQ(launched.fakes.calls, (Calls{"close popover", "show settings"}));
    EXPECT_EQ(launched.settings().selectedTool(), &launched.tool("remap"));

    launched.fakes.permissionProbe.accessibility = true;
    launched.fakes.scheduler.advance(PermissionCenter::kPollInterval);
    EXPECT_EQ(launched.fakes.calls.back(), "start:remap");
}

TEST(AppLifecycle, TheCommandLinesWordReloadsThePreferencesAndNamesAloneSwitchNothing) {
    LaunchedApp launched;
    launched.add("alpha").hasControl = true;
    launched.add("beta");
    launched.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    launched.launch();
    launched.fakes.calls.clear();

    // Another process posting a self-switch name to the distributed centre reaches nothing.
    launched.fakes.workspace.distributed[ToolRegistry::kTurnedItselfOn].call();
    EXPECT_TRUE(launched.fakes.calls.empty());

    // The command line writes the store, then says only that it changed.
    launched.fakes.preferences.set("tool.beta.enabled", true);
    launched.fakes.preferences.set("controls.toolIDs", PreferenceValue::stringArray({"alpha"}));
    launched.fakes.workspace.distributed[ToolRegistry::kPreferencesChanged].call();
    EXPECT_EQ(launched.fakes.calls, (Calls{"start:beta"}));
    EXPECT_EQ(launched.registry().controlIDs(), std::vector<std::string>{"alpha"});

    launched.fakes.preferences.set("tool.beta.enabled", false);
    launched.fakes.workspace.distributed[ToolRegistry::kPreferencesChanged].call();
    EXPECT_EQ(launched.fakes.calls.back(), "stop:beta");
    launched.registry().setInControls(false, launched.tool("alpha"));
    EXPECT_EQ(launched.fakes.preferences.stringArray("controls.toolIDs"),
              std::vector<std::string>{})
        << "the app's own later change starts from the reload";
}

TEST(AppLifecycle, TheMenuOpensSettingsAndQuitsAndQuittingStopsTheToolsInOrder) {
    LaunchedApp launched;
    launched.add("alpha");
    launched.add("beta");
    launched.add("gamma");
    for (const char* id : {"gamma", "alpha"}) {
        launched.fakes.preferences.set(ToolRegistry::enabledKey(id), true);
    }
    launched.fakes.preferences.set(FirstRunModel::kDoneKey, true);
    launched.launch();
    launched.fakes.menuBar.click();
    launched.fakes.calls.clear();

    launched.menu().openSettings();
    EXPECT_EQ(launched.fakes.calls.back(), "show settings");
    EXPECT_FALSE(launched.app->menuPanel()->isShown());

    launched.fakes.calls.clear();
    launched.menu().quit();
    launched.app->willTerminate();
    launched.app->willTerminate();
    EXPECT_EQ(launched.fakes.calls, (Calls{"terminate", "stop:alpha", "stop:gamma"}));
}

}  // namespace
}  // namespace quorvane
