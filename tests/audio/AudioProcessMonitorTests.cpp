#include "audio/AudioProcessMonitor.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;

struct MonitorTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    FakeProcessFacts& facts = fakes.processFacts;
    AudioProcessMonitor monitor{hal, facts, fakes.preferences, fakes.scheduler};
};

TEST_F(MonitorTest, ProcessesAreGroupedIntoApplicationsByTheFirstRuleThatApplies) {
    const std::string chrome = "/Applications/Google Chrome.app";
    facts.bundleIDs[chrome] = "com.google.Chrome";
    facts.executables[501] = chrome + "/Contents/MacOS/Google Chrome";
    facts.executables[502] = chrome + "/Contents/Frameworks/Helpers/Helper.app/Contents/MacOS/H";
    facts.executables[508] = "/Users/me/Thing.app/Contents/MacOS/Thing";
    facts.applications["com.apple.Safari"] = "/Applications/Safari.app";
    facts.applications["com.spotify.client"] = "/Applications/Spotify.app";
    facts.names = {{506, "daemon"}, {509, "node"}, {510, "node"}};
    hal.addProcess(100, 501, "com.google.Chrome", true);
    hal.addProcess(101, 502, "com.google.Chrome.helper");
    hal.addProcess(102, 503, "com.apple.WebKit.GPU");
    hal.addProcess(103, 504, "com.apple.WebKit.WebContent", true);
    hal.addProcess(104, 505, std::nullopt);
    hal.addProcess(105, 506, "com.example.daemon");
    hal.addProcess(106, 507, "com.spotify.client", true);
    hal.addProcess(107, ::getpid(), "com.quorvane.app", true);
    hal.addProcess(108, 999, "unreadable");
    hal.addProcess(109, 0, "kernel");
    hal.addProcess(110, 508, std::nullopt);
    hal.addProcess(111, 510, std::nullopt);
    hal.addProcess(112, 509, std::nullopt);
    hal.fail(Call::read, 108, hal::kProcessPID, -1);
    hal.fail(Call::read, 106, hal::kProcessIsRunningOutput, -1);
    hal.fail(Call::read, 105, hal::kProcessBundleID, -1);

    monitor.refresh();
    std::vector<std::string> ids;
    for (const AudioApp& app : monitor.apps()) {
        ids.push_back(app.id + " " + app.name);
    }
    EXPECT_EQ(ids, (std::vector<std::string>{
                       "pid:506 daemon", "com.google.Chrome Google Chrome", "pid:510 node",
                       "pid:509 node", "pid:505 Process 505", "com.apple.WebKit Safari & Web Views",
                       "com.spotify.client Spotify", "/Users/me/Thing.app Thing"}))
        << "sorted ignoring case, equal names in the HAL's order; own pid, pid 0 and an "
           "unreadable pid left out; an unreadable bundle identifier counts as empty";
    const auto& apps = monitor.apps();
    EXPECT_EQ(apps[1], (AudioApp{"com.google.Chrome", "Google Chrome", chrome, {100, 101}, true}))
        << "a helper inside the bundle belongs to the outer application, and a silent one "
           "listed after the playing one leaves the application playing";
    EXPECT_EQ(apps[5], (AudioApp{"com.apple.WebKit",
                                 "Safari & Web Views",
                                 "/Applications/Safari.app",
                                 {102, 103},
                                 true}));
    EXPECT_FALSE(apps[6].isPlaying) << "an unreadable playing state counts as silent";
    EXPECT_FALSE(apps[4].bundleURL);

    facts.names.erase(506);
    hal.failures.clear();
    monitor.refresh();
    EXPECT_EQ(monitor.apps()[0].name, "com.example.daemon")
        << "a bundle identifier with no application and no process name names itself";
}

TEST_F(MonitorTest, OnChangeRunsOnlyWhenTheListReallyChangedAndListenersFollowTheProcesses) {
    const auto playback = hal::globalAddress(hal::kProcessIsRunningOutput);
    hal.addProcess(100, 501, std::nullopt);
    int changes = 0;
    monitor.onChange = [&] { ++changes; };
    monitor.start();
    monitor.refresh();
    fakes.scheduler.advance(AudioProcessMonitor::kPollInterval * 3);
    EXPECT_EQ(changes, 1) << "the same list again changes nothing";
    EXPECT_EQ(hal.listenerCount(100, playback), 1u);

    hal.set(100, hal::kProcessIsRunningOutput, 1u);
    hal.fire(100, playback);
    EXPECT_EQ(changes, 1) << "a playback change refreshes on the next turn of the main loop";
    fakes.scheduler.runPending();
    EXPECT_EQ(changes, 2);

    hal.removeProcess(100);
    hal.addProcess(100, 777, std::nullopt);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kProcessObjectList));
    EXPECT_EQ(changes, 3) << "a change of the process list refreshes at once";
    EXPECT_EQ(hal.listenerCount(100, playback), 1u) << "a reused object with a new pid: new key";
    EXPECT_GT(hal.listeners.back().id, 1u);

    hal.removeProcess(100);
    fakes.scheduler.advance(AudioProcessMonitor::kPollInterval);
    EXPECT_EQ(changes, 4) << "the poll catches what no listener reported";
    EXPECT_EQ(hal.listenerCount(100, playback), 0u) << "a vanished process is let go";
    monitor.stop();
    EXPECT_TRUE(hal.listeners.empty());
    EXPECT_EQ(hal.mismatchedRemovals, 0);
    EXPECT_FALSE(fakes.scheduler.hasPending());
}

TEST_F(MonitorTest, AnApplicationHeardOnceIsRememberedAcrossRestarts) {
    hal.addProcess(100, 501, "com.example.radio", true);
    fakes.preferences.set(AudioProcessMonitor::kPlayedKey, PreferenceValue::stringArray({"old"}));
    AudioProcessMonitor other(hal, facts, fakes.preferences, fakes.scheduler);
    fakes.preferences.set(AudioProcessMonitor::kPlayedKey,
                          PreferenceValue::stringArray({"old", "from.other"}));
    monitor.refresh();
    EXPECT_EQ(monitor.playedIDs(),
              (std::set<std::string>{"com.example.radio", "from.other", "old"}))
        << "what another monitor stored meanwhile is kept";

    hal.removeProcess(100);
    AudioProcessMonitor restarted(hal, facts, fakes.preferences, fakes.scheduler);
    EXPECT_TRUE(restarted.playedIDs().contains("com.example.radio"));
    fakes.preferences.set(AudioProcessMonitor::kPlayedKey, 42);
    EXPECT_TRUE(
        AudioProcessMonitor(hal, facts, fakes.preferences, fakes.scheduler).playedIDs().empty());
}

}  // namespace
}  // namespace quorvane
