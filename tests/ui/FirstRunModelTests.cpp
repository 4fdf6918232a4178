#include "ui/FirstRunModel.hpp"

#include <gtest/gtest.h>

#include "support/LaunchedApp.hpp"
#include "support/ViewNodeSearch.hpp"

namespace quorvane {
namespace {

TEST(FirstRunModel, OffersAvailableFavouritesFirstThenOtherToolsUpToTheLimit) {
    LaunchedApp launched;
    for (const char* id : {"one", "two", "three", "four", "five"}) {
        launched.add(id);
    }
    launched.add("keep-awake");
    launched.add("window-snap").available = false;
    launched.add("clipboard-history");
    launched.launch();

    std::vector<std::string> offered;
    for (const auto& suggestion : launched.firstRun().suggestions()) {
        offered.push_back(suggestion.toolID);
    }
    EXPECT_EQ(offered, (std::vector<std::string>{"clipboard-history", "keep-awake", "one", "two",
                                                 "three", "four"}));
}

TEST(FirstRunModel, FinishingSwitchesThePickedToolsOnAndOffersSetupOnce) {
    LaunchedApp launched;
    launched.add("alpha").setupNeeded = true;
    launched.add("beta").setupNeeded = true;
    launched.add("gamma");
    launched.launch();
    FirstRunModel& welcome = launched.firstRun();
    welcome.setPicked("gamma", true);
    welcome.setPicked("beta", true);
    welcome.setPicked("alpha", true);
    welcome.setPicked("alpha", false);
    launched.fakes.calls.clear();

    welcome.finish();
    welcome.finish();
    welcome.dismiss();
    EXPECT_EQ(launched.fakes.calls, (std::vector<std::string>{"close first run", "start:beta",
                                                              "show settings", "start:gamma"}));
    EXPECT_EQ(launched.settings().selectedTool(), &launched.tool("beta"));
    EXPECT_FALSE(FirstRunModel::isNeeded(launched.fakes.preferences));
}

TEST(FirstRunModel, AsksOnlyForWhatThePickedToolsNeed) {
    LaunchedApp launched;
    launched.add("snap", std::vector<Permission>{Permission::accessibility});
    launched.add("record",
                 std::vector<Permission>{Permission::screenRecording, Permission::accessibility});
    launched.add("plain");
    launched.add("later", std::vector<Permission>{Permission::systemAudioRecording}).available =
        false;
    launched.launch();
    FirstRunModel& welcome = launched.firstRun();
    const auto asked = [&] {
        std::vector<Permission> permissions;
        for (const auto& card : welcome.cards()) {
            permissions.push_back(card.permission);
        }
        return permissions;
    };

    EXPECT_TRUE(asked().empty());
    EXPECT_EQ(welcome.permissionsIntro(), FirstRunModel::kPermissionsOnPicking);
    welcome.setPicked("plain", true);
    welcome.setPicked("later", true);
    EXPECT_TRUE(asked().empty()) << "a tool that cannot run here asks for nothing";
    EXPECT_EQ(welcome.permissionsIntro(), FirstRunModel::kNoPermissionsNeeded);

    welcome.setPicked("record", true);
    welcome.setPicked("snap", true);
    EXPECT_EQ(asked(),
              (std::vector<Permission>{Permission::accessibility, Permission::screenRecording}))
        << "each once, in the usual order";
    EXPECT_EQ(welcome.permissionsIntro(), FirstRunModel::kPermissionsIntro);
    welcome.setPicked("record", false);
    EXPECT_EQ(asked(), (std::vector<Permission>{Permission::accessibility}));
}

TEST(FirstRunModel, ClosingTheWelcomeSwitchesNothingOnAndADamagedRecordShowsItAgain) {
    LaunchedApp launched;
    launched.add("alpha");
    launched.launch();
    launched.firstRun().setPicked("alpha", true);
    launched.firstRun().dismiss();
    EXPECT_TRUE(launched.registry().enabledIDs().empty());
    EXPECT_FALSE(FirstRunModel::isNeeded(launched.fakes.preferences));

    launched.fakes.preferences.set(FirstRunModel::kDoneKey, "yes");
    EXPECT_TRUE(FirstRunModel::isNeeded(launched.fakes.preferences));
}

TEST(FirstRunModel, TheDrawnWelcomePicksAndFinishesThroughItsControls) {
    LaunchedApp launched;
    launched.add("snap", std::vector<Permission>{Permission::accessibility});
    launched.launch();
    FirstRunModel& welcome = launched.firstRun();
    using Kind = ViewNode::Kind;

    ViewNode view = welcome.view(500);
    EXPECT_EQ(findNode(view, Kind::secondaryLabel, FirstRunModel::kNothingToPick), nullptr);
    EXPECT_EQ(findNode(view, Kind::card, ""), nullptr) << "no card before a tool is picked";
    findNode(view, Kind::checkbox, "snap")->toggled(true);

    view = welcome.view(500);
    EXPECT_TRUE(findNode(view, Kind::checkbox, "snap")->isOn);
    EXPECT_NE(findNode(view, Kind::card, ""), nullptr) << "the picked tool's permission";
    const ViewNode* start = findNode(view, Kind::button, FirstRunModel::kFinishTitle);
    EXPECT_EQ(start->keyEquivalent, "\r");
    start->action();
    EXPECT_TRUE(launched.registry().enabledIDs().contains("snap"));

    LaunchedApp empty;
    empty.launch();
    EXPECT_NE(
        findNode(empty.firstRun().view(500), Kind::secondaryLabel, FirstRunModel::kNothingToPick),
        nullptr);
}

}  // namespace
}  // namespace quorvane
