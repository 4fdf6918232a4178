#include "input/AccessibilityWatcher.hpp"

#include <gtest/gtest.h>

#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Policy = RunningApplication::ActivationPolicy;

struct AccessibilityWatcherTest : ::testing::Test {
    FakePlatform fakes;
    std::vector<std::string> journal;
    AccessibilityWatcher watcher{fakes.accessibility,
                                 fakes.workspace,
                                 fakes.scheduler,
                                 {"AXFocusedWindowChanged", "AXMainWindowChanged"},
                                 [this](const Element&, const std::string& name, int pid) {
                                     journal.push_back(name + ":" + std::to_string(pid));
                                 }};

    void SetUp() override {
        watcher.onAppReady = [this](int pid, bool launched) {
            journal.push_back("ready:" + std::to_string(pid) + (launched ? ":launched" : ""));
        };
        watcher.onAppTerminated = [this](int pid) {
            journal.push_back("gone:" + std::to_string(pid));
        };
    }
    void running(int pid, Policy policy = Policy::regular) {
        fakes.workspace.applications[pid] = {pid, "", "", policy, {}, false, false, ""};
    }
    void refuse(int pid) {
        fakes.accessibility.registrationAnswers[pid] = Accessibility::kCannotComplete;
    }
    void accept(int pid) { fakes.accessibility.registrationAnswers.erase(pid); }
};

TEST_F(AccessibilityWatcherTest, WatchesRegularAppsOnlyAndNeverItself) {
    running(1);  // Quorvane
    running(10);
    running(11, Policy::accessory);
    running(12, Policy::prohibited);
    watcher.start();
    EXPECT_EQ(fakes.accessibility.timeouts, (std::vector<float>{1.0F}));
    EXPECT_EQ(journal, (std::vector<std::string>{"ready:10"}));
    EXPECT_EQ(fakes.accessibility.observersCreated.size(), 1u);
    ASSERT_NE(fakes.accessibility.observerOf(10), nullptr);
    EXPECT_EQ(fakes.accessibility.observerOf(10)->registered.size(), 2u);

    fakes.workspace.launch(20);
    fakes.workspace.launch(21, Policy::accessory);
    fakes.scheduler.runPending();
    EXPECT_EQ(journal.back(), "ready:20:launched");
    fakes.accessibility.observerOf(20)->callback(nullptr, "AXMainWindowChanged");
    EXPECT_EQ(journal.back(), "AXMainWindowChanged:20");

    fakes.workspace.terminate(20);
    EXPECT_EQ(journal.back(), "gone:20");
    EXPECT_FALSE(watcher.isWatching(20));
    EXPECT_EQ(fakes.accessibility.observerOf(20), nullptr) << "observer released";
}

TEST_F(AccessibilityWatcherTest,
       AlreadyRegisteredCountsAsRegisteredAndTheObserverIsPutOnTheRunLoop) {
    running(70);
    fakes.accessibility.registrationAnswers[70] = Accessibility::kNotificationAlreadyRegistered;
    watcher.start();
    EXPECT_EQ(journal, (std::vector<std::string>{"ready:70"}));
    EXPECT_EQ(watcher.pendingAttempt(70), 0) << "nothing to retry";
    ASSERT_EQ(fakes.accessibility.observers.size(), 1u);
    EXPECT_TRUE(fakes.accessibility.observers[0]->scheduled)
        << "an observer off the run loop never delivers a notification";
    EXPECT_TRUE(watcher.observe("AXTitleChanged", fakes.accessibility.application(70), 70));
}

TEST_F(AccessibilityWatcherTest, RetriesFiftyTimesFastThenTenTimesSlowThenGivesUp) {
    watcher.start();
    refuse(30);
    fakes.workspace.launch(30);
    fakes.scheduler.runPending();  // the list's change tries attempt 0 once more, and stops
    EXPECT_EQ(watcher.pendingAttempt(30), 1);
    const int first = fakes.accessibility.observersCreated[30];
    fakes.scheduler.advance(Seconds(0.020 * 49 + 0.010));
    EXPECT_EQ(fakes.accessibility.observersCreated[30], first + 49);
    fakes.scheduler.advance(Seconds(0.020));
    EXPECT_EQ(watcher.pendingAttempt(30), 51) << "attempt 50 failed; the slow retries begin";
    fakes.scheduler.advance(Seconds(0.250 * 9 + 0.100));
    EXPECT_EQ(watcher.pendingAttempt(30), 60);
    fakes.scheduler.advance(Seconds(0.250));
    EXPECT_EQ(fakes.accessibility.observersCreated[30], first + 60);
    EXPECT_EQ(watcher.pendingAttempt(30), 0) << "given up after attempt 60";
    EXPECT_FALSE(fakes.scheduler.hasPending());
    EXPECT_TRUE(fakes.accessibility.observers.empty()) << "half-built observers are dropped";
}

TEST_F(AccessibilityWatcherTest, LaunchDuringAPendingChainStartsNoSecondChain) {
    watcher.start();
    refuse(40);
    fakes.workspace.launch(40);
    fakes.scheduler.advance(Seconds(0.020 * 3));
    EXPECT_EQ(watcher.pendingAttempt(40), 4);
    fakes.workspace.post(WorkspaceNotification::didLaunchApplication,
                         &fakes.workspace.applications[40]);
    EXPECT_EQ(watcher.pendingAttempt(40), 4);

    const int created = fakes.accessibility.observersCreated[40];
    watcher.attach(40, true, 2);  // stale: the chain has moved on
    EXPECT_EQ(fakes.accessibility.observersCreated[40], created);

    accept(40);
    fakes.scheduler.advance(Seconds(0.020));
    EXPECT_TRUE(watcher.isWatching(40));
    EXPECT_EQ(watcher.pendingAttempt(40), 0);
    fakes.scheduler.advance(Seconds(5));
    EXPECT_EQ(fakes.accessibility.observersCreated[40], created + 1) << "one chain, one success";
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "ready:40:launched"), 1);
}

TEST_F(AccessibilityWatcherTest, StoppedWatcherRefusesEverythingAndObserveNeedsAnObserver) {
    running(50);
    watcher.start();
    const Element window = fakes.accessibility.application(50);
    EXPECT_TRUE(watcher.observe("AXUIElementDestroyed", window, 50));
    EXPECT_FALSE(watcher.observe("AXUIElementDestroyed", window, 51));
    refuse(50);
    EXPECT_FALSE(watcher.observe("AXTitleChanged", window, 50));

    refuse(60);
    fakes.workspace.launch(60);
    watcher.stop();
    EXPECT_TRUE(fakes.accessibility.observers.empty());
    fakes.scheduler.advance(Seconds(5));
    fakes.workspace.launch(61);
    EXPECT_EQ(fakes.accessibility.observersCreated[60], 1);
    EXPECT_EQ(fakes.accessibility.observersCreated.count(61), 0u);
}

}  // namespace
}  // namespace quorvane
