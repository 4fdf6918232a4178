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

    std::unique_ptr<AudioProcessMonitor> makeMonitor() {
        return std::make_unique<AudioProcessMonitor>(hal, facts, fakes.preferences,
                                                     fakes.scheduler);
    }
    static std::vector<std::string> names(const AudioProcessMonitor& monitor) {
        std::vector<std::string> result;
        for (const auto& app : monitor.apps()) {
            result.push_back(app.name);
        }
        return result;
    }
};

TEST_F(MonitorTest, ProcessesAreGroupedIntoApplicationsByTheFirstRuleThatApplies) {
    const std::string chrome = "/Applications/Google Chrome.app";
    facts.bundleIDs[chrome] = "com.google.Chrome";
    facts.executables[501] = chrome + "/Contents/MacOS/Google Chrome";
    facts.executables[502] = chrome +
                             "/Contents/Frameworks/Chrome Framework.framework/Helpers/"
                             "Google Chrome Helper.app/Contents/MacOS/Google Chrome Helper";
    facts.executables[508] = "/Users/me/Tools/Thing.app/Contents/MacOS/Thing";
    facts.applications["com.apple.Safari"] = "/Applications/Safari.app";
    facts.applications["com.spotify.client"] = "/Applications/Spotify.app";
    facts.names[506] = "daemon";
    facts.names[509] = "node";
    facts.names[510] = "node";
    hal.addProcess(100, 501, "com.google.Chrome");
    hal.addProcess(101, 502, "com.google.Chrome.helper", true);
    hal.addProcess(102, 503, "com.apple.WebKit.GPU");
    hal.addProcess(103, 504, "com.apple.WebKit.WebContent", true);
    hal.addProcess(104, 505, std::nullopt);
    hal.addProcess(105, 506, "com.example.daemon");
    hal.addProcess(106, 507, "com.spotify.client");
    hal.addProcess(107, ::getpid(), "com.quorvane.app", true);
    hal.addProcess(108, 999, "unreadable");
    hal.fail(Call::read, 108, hal::kProcessPID, hal::kBadObjectError);
    hal.addProcess(109, 0, "kernel");
    hal.addProcess(110, 508, std::nullopt);
    hal.addProcess(111, 510, std::nullopt);
    hal.addProcess(112, 509, std::nullopt);
    hal.fail(Call::read, 106, hal::kProcessIsRunningOutput, hal::kUnspecifiedError);
    hal.fail(Call::read, 105, hal::kProcessBundleID, hal::kUnspecifiedError);

    auto monitor = makeMonitor();
    monitor->refresh();
    EXPECT_EQ(names(*monitor),
              (std::vector<std::string>{"daemon", "Google Chrome", "node", "node", "Process 505",
                                        "Safari & Web Views", "Spotify", "Thing"}))
        << "sorted by name ignoring case; equal names keep the HAL's order";
    const auto& apps = monitor->apps();
    EXPECT_EQ(apps[1], (AudioApp{"com.google.Chrome", "Google Chrome", chrome, {100, 101}, true}))
        << "a helper inside the bundle belongs to the outer application";
    EXPECT_EQ(apps[0].id, "pid:506") << "an unreadable bundle identifier counts as empty";
    EXPECT_EQ(apps[2].id, "pid:510");
    EXPECT_EQ(apps[3].id, "pid:509");
    EXPECT_EQ(apps[4], (AudioApp{"pid:505", "Process 505", std::nullopt, {104}, false}));
    EXPECT_EQ(apps[5], (AudioApp{"com.apple.WebKit",
                                 "Safari & Web Views",
                                 "/Applications/Safari.app",
                                 {102, 103},
                                 true}));
    EXPECT_EQ(
        apps[6],
        (AudioApp{"com.spotify.client", "Spotify", "/Applications/Spotify.app", {106}, false}))
        << "an unreadable playing state counts as silent";
    EXPECT_EQ(apps[7].id, "/Users/me/Tools/Thing.app") << "a bundle without an identifier";

    facts.names.erase(506);
    hal.set(105, hal::kProcessPID, std::int32_t{511});
    hal.failures.erase({Call::read, 105, hal::kProcessBundleID});
    monitor->refresh();
    EXPECT_EQ(monitor->apps()[0].name, "com.example.daemon")
        << "a known bundle identifier without an application or a name names itself";
}

TEST_F(MonitorTest, OnChangeRunsOnlyWhenTheListReallyChanged) {
    hal.addProcess(100, 501, std::nullopt);
    facts.names[501] = "player";
    auto monitor = makeMonitor();
    int changes = 0;
    monitor->onChange = [&] { ++changes; };
    monitor->start();
    EXPECT_EQ(changes, 1);
    monitor->refresh();
    fakes.scheduler.advance(AudioProcessMonitor::kPollInterval * 3);
    EXPECT_EQ(changes, 1) << "the same list again changes nothing";

    hal.setPlaying(100, true);
    hal.fire(100, hal::globalAddress(hal::kProcessIsRunningOutput));
    EXPECT_EQ(changes, 1) << "a playback change refreshes on the next turn of the main loop";
    fakes.scheduler.runPending();
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(monitor->apps()[0].isPlaying);

    hal.addProcess(101, 502, std::nullopt);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kProcessObjectList));
    EXPECT_EQ(changes, 3) << "a change of the process list refreshes at once";

    hal.removeProcess(100);
    fakes.scheduler.advance(AudioProcessMonitor::kPollInterval);
    EXPECT_EQ(changes, 4) << "and the poll catches what no listener reported";
}

TEST_F(MonitorTest, ListenersFollowEachProcessAndStopReleasesThemAll) {
    const auto playback = hal::globalAddress(hal::kProcessIsRunningOutput);
    const auto list = hal::globalAddress(hal::kProcessObjectList);
    hal.addProcess(100, 501, std::nullopt);
    hal.addProcess(101, 502, std::nullopt);
    auto monitor = makeMonitor();
    monitor->refresh();
    EXPECT_EQ(hal.listeners.size(), 0u) << "nothing is registered before start";

    monitor->start();
    EXPECT_EQ(hal.listenerCount(hal::kSystemObject, list), 1u);
    EXPECT_EQ(hal.listenerCount(100, playback), 1u);
    const auto firstID = hal.listeners.back().id;

    hal.set(101, hal::kProcessPID, std::int32_t{777});
    hal.removeProcess(100);
    monitor->refresh();
    EXPECT_EQ(hal.listenerCount(100, playback), 0u) << "a vanished process is let go";
    ASSERT_EQ(hal.listenerCount(101, playback), 1u);
    EXPECT_NE(hal.listeners.back().id, firstID) << "a reused object with a new pid is new";

    monitor->stop();
    EXPECT_TRUE(hal.listeners.empty());
    EXPECT_EQ(hal.mismatchedRemovals, 0);
    EXPECT_FALSE(fakes.scheduler.hasPending()) << "no poll left behind";
}

TEST_F(MonitorTest, AnApplicationHeardOnceIsRememberedAcrossRestarts) {
    facts.names[501] = "radio";
    hal.addProcess(100, 501, "com.example.radio", true);
    hal.addProcess(101, 502, std::nullopt);
    fakes.preferences.set(AudioProcessMonitor::kPlayedKey,
                          PreferenceValue::stringArray({"com.example.old"}));
    {
        auto other = makeMonitor();
        auto monitor = makeMonitor();
        fakes.preferences.set(AudioProcessMonitor::kPlayedKey,
                              PreferenceValue::stringArray({"com.example.old", "added.elsewhere"}));
        monitor->refresh();
        EXPECT_EQ(monitor->playedIDs(), (std::set<std::string>{"added.elsewhere", "com.example.old",
                                                               "com.example.radio"}))
            << "what another monitor stored meanwhile is kept";
        (void)other;
    }
    hal.removeProcess(100);
    auto restarted = makeMonitor();
    restarted->refresh();
    EXPECT_TRUE(restarted->playedIDs().contains("com.example.radio"));
    EXPECT_EQ(restarted->apps().size(), 1u);

    fakes.preferences.set(AudioProcessMonitor::kPlayedKey, 42);
    EXPECT_TRUE(makeMonitor()->playedIDs().empty()) << "a damaged value reads as nothing played";
}

}  // namespace
}  // namespace quorvane
