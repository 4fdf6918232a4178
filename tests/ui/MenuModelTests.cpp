#include "ui/MenuModel.hpp"

#include <gtest/gtest.h>

#include "support/LaunchedApp.hpp"
#include "support/ViewNodeSearch.hpp"
#include "ui/ToolStatus.hpp"

namespace quorvane {
namespace {

// A tool whose tile works a control of its own, like keeping the Mac awake.
class AwakeTool : public RecordingTool {
public:
    using RecordingTool::RecordingTool;
    std::optional<ToolControl> control() override {
        return ToolControl{"Awake", "cup.and.saucer", [this] { return awake; },
                           [this] {
                               awake = !awake;
                               publish();
                           }};
    }
    bool awake = false;
};

std::vector<std::string> tileIDs(const MenuModel& menu) {
    std::vector<std::string> ids;
    for (const auto& tile : menu.tiles()) {
        ids.push_back(tile.toolID);
    }
    return ids;
}

TEST(MenuModel, TilesFollowTheControlOrderAndLeaveOutToolsWithoutATile) {
    LaunchedApp launched;
    for (const char* id : {"alpha", "beta", "gamma"}) {
        launched.add(id).hasControl = true;
    }
    launched.add("plain");
    launched.add("later").available = false;
    launched.fakes.preferences.set(ToolRegistry::kControlsKey,
                                   PreferenceValue::stringArray({"later", "gamma", "plain"}));
    launched.launch();
    MenuModel& menu = launched.menu();
    EXPECT_EQ(tileIDs(menu), (std::vector<std::string>{"gamma"}));

    launched.registry().setInControls(true, launched.tool("alpha"));
    launched.registry().setInControls(true, launched.tool("beta"));
    launched.registry().setInControls(true, launched.tool("gamma"));
    EXPECT_EQ(tileIDs(menu), (std::vector<std::string>{"alpha", "beta", "gamma"}));
    EXPECT_EQ(menu.tiles()[0].title, "alpha");
    EXPECT_EQ(menu.tiles()[0].status, ToolStatus::kOff);
}

TEST(MenuModel, ATileSwitchesItsToolOnThenWorksItsControl) {
    LaunchedApp launched;
    auto& awake = launched.add<AwakeTool>("keep-awake");
    launched.add("pin", std::vector<Permission>{Permission::screenRecording}).hasControl = true;
    launched.fakes.preferences.set(ToolRegistry::kControlsKey,
                                   PreferenceValue::stringArray({"keep-awake", "pin"}));
    launched.launch();
    MenuModel& menu = launched.menu();
    int changes = 0;
    const auto watching = menu.subscribe([&] { ++changes; });

    menu.press("keep-awake");
    EXPECT_TRUE(launched.registry().runningIDs().contains("keep-awake"));
    EXPECT_FALSE(menu.tiles()[0].isOn) << "on, but not keeping awake yet";
    const int afterSwitch = changes;
    menu.press("keep-awake");
    EXPECT_TRUE(awake.awake);
    EXPECT_TRUE(menu.tiles()[0].isOn);
    EXPECT_GT(changes, afterSwitch) << "the tool's own change refreshes the menu";

    menu.press("pin");
    EXPECT_TRUE(menu.tiles()[1].isOn);
    EXPECT_EQ(menu.tiles()[1].status, "Waiting for Screen Recording permission");
    menu.press("pin");
    EXPECT_FALSE(launched.registry().enabledIDs().contains("pin"))
        << "a tile without an action of its own switches the tool off";
}

TEST(MenuModel, TheDrawnMenuLaysTilesInRowsOfThreeAndItsItemsAct) {
    LaunchedApp launched;
    for (const char* id : {"a", "b", "c", "d"}) {
        launched.add(id).hasControl = true;
    }
    launched.launch();
    MenuModel& menu = launched.menu();
    using Kind = ViewNode::Kind;
    EXPECT_NE(findNode(menu.view(), Kind::secondaryLabel, MenuModel::kEmptyText), nullptr);

    for (const char* id : {"a", "b", "c", "d"}) {
        launched.registry().setInControls(true, launched.tool(id));
    }
    const ViewNode view = menu.view();
    const ViewNode& grid = view.children.front();
    ASSERT_EQ(grid.children.size(), 2u);
    EXPECT_EQ(grid.children[0].children.size(), 3u);
    EXPECT_EQ(grid.children[1].children.size(), 1u);
    const ViewNode& last = grid.children[1].children[0];
    EXPECT_EQ(last.kind, Kind::tile);
    EXPECT_EQ(last.toolTip, ToolStatus::kOff);
    last.action();
    EXPECT_TRUE(launched.registry().enabledIDs().contains("d"));

    bool opened = false;
    menu.onOpenSettings = [&] { opened = true; };
    const ViewNode* settings = findNode(view, Kind::button, MenuModel::kSettingsTitle);
    EXPECT_EQ(settings->keyEquivalent, ",");
    EXPECT_TRUE(settings->withCommand);
    settings->action();
    EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace quorvane
