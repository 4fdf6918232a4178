#include "tools/windows/FocusStealingPolicy.hpp"

#include <gtest/gtest.h>

#include "tools/windows/StoppedEvent.hpp"

namespace quorvane {
namespace {

FocusApp app(int pid, std::string bundleID, std::string name) {
    FocusApp result;
    result.pid = pid;
    result.bundleID = std::move(bundleID);
    result.name = std::move(name);
    return result;
}

struct PolicyTest : ::testing::Test {
    std::vector<std::pair<double, double>> actions;  // user actions as [date, date]
    std::map<int, double> launches;
    FocusStealingPolicy::Context context;
    FocusApp editor = app(100, "com.example.editor", "Editor");
    FocusApp updater = app(200, "com.example.updater", "Updater");

    void SetUp() override {
        context.now = 1000;
        context.ownPID = 1;
        context.userLaunches = &launches;
        context.userActedBetween = [this](double from, double to) {
            return std::any_of(actions.begin(), actions.end(),
                               [&](const auto& a) { return a.first >= from && a.first <= to; });
        };
    }
    void userActedAt(double date) { actions.emplace_back(date, date); }
    bool allows(const FocusApp& candidate, const FocusApp* previous) {
        return FocusStealingPolicy::allows(candidate, previous, context);
    }
};

TEST_F(PolicyTest, AnActivationOnItsOwnIsStoppedAndTheUsersOwnIsNot) {
    EXPECT_FALSE(allows(updater, &editor));
    userActedAt(999);  // a Dock click a moment ago
    EXPECT_TRUE(allows(updater, &editor));
    actions.clear();
    userActedAt(998.4);
    EXPECT_FALSE(allows(updater, &editor)) << "1.6 s ago is not the user's doing";
}

TEST_F(PolicyTest, RulesThatLetAnAppComeForward) {
    launches[updater.pid] = 990;
    EXPECT_TRUE(allows(updater, &editor)) << "one free activation after a launch";
    EXPECT_FALSE(allows(updater, &editor)) << "and only one";
    launches[updater.pid] = 980;
    EXPECT_FALSE(allows(updater, &editor)) << "a stale launch earns nothing";

    FocusApp opened = updater;
    opened.launchDate = 995;
    userActedAt(993);
    EXPECT_TRUE(allows(opened, &editor)) << "just opened by the user, who has not moved on";
    context.lastUserSwitch = 997;
    EXPECT_FALSE(allows(opened, &editor)) << "the user switched elsewhere since";

    context.allowedBundleIDs = {updater.bundleID};
    EXPECT_TRUE(allows(updater, &editor));
    context.allowedBundleIDs.clear();

    EXPECT_TRUE(allows(app(1, "com.quorvane.app", "Quorvane"), &editor)) << "ourselves";
    EXPECT_TRUE(allows(updater, nullptr));
    FocusApp hidden = editor;
    hidden.isHidden = true;
    EXPECT_TRUE(allows(updater, &hidden));
    FocusApp spotlight = app(300, "com.apple.Spotlight", "Spotlight");
    EXPECT_TRUE(allows(updater, &spotlight)) << "focus was in a system interface";
}

TEST(StoppedHistory, OneEntryPerAppNewestFirstAndAtMostThirty) {
    StoppedHistory history;
    for (int i = 0; i < 31; ++i) {
        history.record({Uuid::random(), "App", "com.example." + std::to_string(i), std::nullopt,
                        1.0 * i, false});
    }
    ASSERT_EQ(history.events().size(), 30u);
    EXPECT_EQ(history.events().front().bundleID, "com.example.30");
    EXPECT_EQ(history.events().back().bundleID, "com.example.1") << "the oldest fell off";

    history.record(
        {Uuid::random(), "App", "com.example.5", "file:///Applications/A.app", 99, true});
    EXPECT_EQ(history.events().size(), 30u);
    EXPECT_EQ(history.events().front().date, 99);

    const auto decoded = StoppedHistory::decode(history.encode());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->events(), history.events());
    for (const char* corrupt : {"", "{}", "[1]", "[{\"id\":\"nope\"}]", "[{\"appName\":\"x\"}]"}) {
        EXPECT_FALSE(StoppedHistory::decode(corrupt)) << corrupt;
    }
}

}  // namespace
}  // namespace quorvane
