#include "ui/FirstRunModel.hpp"

#include <gtest/gtest.h>

#include "support/LaunchedApp.hpp"

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

}  // namespace
}  // namespace quorvane
