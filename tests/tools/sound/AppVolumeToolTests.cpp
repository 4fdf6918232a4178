#include "tools/sound/AppVolumeTool.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "app/ToolCatalog.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/TappedProcessCounts.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;
constexpr AudioObjectID kSpeakers = 40;
constexpr AudioObjectID kHeadphones = 41;
const std::string kPlayer = "com.example.player";
const std::string kBrowser = "com.example.browser";

struct AppVolumeToolTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    EqualizerEngine engine;
    TappedProcessCounts counts;
    ToolDescriptor descriptor = catalogDescriptor("app-volume");
    std::unique_ptr<AppVolumeTool> tool = make();

    void SetUp() override {
        hal.addDevice(kSpeakers, "speakers", "MacBook Speakers");
        hal.addDevice(kHeadphones, "headphones", "AirPods");
        hal.setDefaultOutput(kSpeakers, 48000);
        hal.addProcess(100, 501, kPlayer, true);
        hal.addProcess(101, 502, kBrowser, true);
        hal.addProcess(102, 502, kBrowser, false);
        fakes.processFacts.names = {{501, "Player"}, {502, "Browser"}};
    }
    std::unique_ptr<AppVolumeTool> make() {
        return std::make_unique<AppVolumeTool>(descriptor, fakes.platform(), engine, counts);
    }
    AppAudioTap* tap(const std::string& id) {
        const auto found = tool->taps().find(id);
        return found == tool->taps().end() ? nullptr : found->second.get();
    }
    bool runs(const std::string& id) {
        return tap(id) && hal.ioProcs.at(static_cast<AudioObjectID>(*tap(id)->ioProcID())).running;
    }
    void play(AudioObjectID process, bool playing) {
        hal.set(process, hal::kProcessIsRunningOutput, std::uint32_t{playing});
        hal.fire(process, hal::globalAddress(hal::kProcessIsRunningOutput));
        fakes.scheduler.runPending();
    }
    std::string mixer() { return SettingsTextRenderer::render(tool->mixerPage()); }
};

TEST_F(AppVolumeToolTest, LevelsSnapToNormalMutingKeepsTheLevelAndEverythingIsStored) {
    tool->setVolume(kPlayer, 1.02);
    EXPECT_TRUE(tool->volumes().empty()) << "within 0.03 of normal is normal";
    EXPECT_FALSE(tool->hasAdjustments());
    tool->setVolume(kPlayer, 1.5);
    tool->setMuted(kPlayer, true);
    EXPECT_EQ(tool->gain(kPlayer), 0.0);
    EXPECT_EQ(tool->level(kPlayer), 1.5);
    tool->setMuted(kPlayer, false);
    EXPECT_EQ(tool->gain(kPlayer), 1.5);
    tool->setVolume(kBrowser, 7.0);
    EXPECT_EQ(tool->gain(kBrowser), 3.0) << "300% at most";
    tool->setMuted("com.example.quiet", true);
    EXPECT_TRUE(tool->hasAdjustments());

    const auto again = make();
    EXPECT_EQ(again->volumes(), tool->volumes());
    EXPECT_EQ(again->mutedIDs(), std::set<std::string>{"com.example.quiet"});
    tool->reset(kBrowser);
    EXPECT_EQ(make()->gain(kBrowser), 1.0);
    tool->resetAll();
    EXPECT_FALSE(make()->hasAdjustments());

    fakes.preferences.set(AppVolumeTool::kVolumesKey,
                          PreferenceValue::Dictionary{{"a", "loud"}, {"b", 0.25}});
    fakes.preferences.set(AppVolumeTool::kMutedKey, 3.0);
    const auto damaged = make();
    EXPECT_EQ(damaged->volumes(), (std::map<std::string, double>{{"b", 0.25}}));
    EXPECT_TRUE(damaged->mutedIDs().empty());
    EXPECT_EQ(fakes.preferences.number(AppVolumeTool::kMutedKey), 3.0) << "not overwritten";
}

TEST_F(AppVolumeToolTest, OnlyAdjustedAppsAreTappedAndBackToNormalReleasesTheTap) {
    tool->start();
    EXPECT_TRUE(hal.taps.empty());
    tool->setVolume(kBrowser, 1.5);
    ASSERT_TRUE(tap(kBrowser));
    EXPECT_EQ(tap(kBrowser)->processObjects(), (std::vector<AudioObjectID>{101, 102}));
    EXPECT_EQ(tap(kBrowser)->outputDevice(), kSpeakers);
    fakes.scheduler.runPending();
    EXPECT_EQ(counts.processes(), (std::vector<AudioObjectID>{101, 102}));

    const AudioObjectID tapID = tap(kBrowser)->tapID();
    tool->setMuted(kBrowser, true);
    EXPECT_EQ(tap(kBrowser)->tapID(), tapID) << "a new gain keeps the tap";
    EXPECT_EQ(tap(kBrowser)->control().target(), 0.0f);
    tool->setMuted(kBrowser, false);
    tool->setVolume(kBrowser, 1.02);
    EXPECT_FALSE(tap(kBrowser));
    EXPECT_TRUE(hal.taps.empty());
    fakes.scheduler.runPending();
    EXPECT_TRUE(counts.processes().empty());

    tool->setVolume("com.example.closed", 0.5);
    EXPECT_TRUE(hal.taps.empty()) << "an app the monitor doesn't list gets no tap";
}

TEST_F(AppVolumeToolTest, AQuietAppsTapRunsThreeSecondsThenPausesWithoutBeingReleased) {
    tool->start();
    tool->setVolume(kPlayer, 0.5);
    play(100, false);
    fakes.scheduler.advance(Seconds(2.9));
    EXPECT_TRUE(runs(kPlayer));
    fakes.scheduler.advance(Seconds(0.1));
    EXPECT_FALSE(runs(kPlayer));
    EXPECT_TRUE(tap(kPlayer)) << "stopped, not released";
    play(100, true);
    EXPECT_TRUE(runs(kPlayer));
    fakes.scheduler.advance(Seconds(10));
    EXPECT_TRUE(runs(kPlayer)) << "playing again clears the quiet time";
    play(100, false);
    fakes.scheduler.advance(Seconds(3));
    EXPECT_FALSE(runs(kPlayer));
}

TEST_F(AppVolumeToolTest, ANewOutputDeviceRateOrLayoutRebuildsEveryTap) {
    tool->start();
    tool->setVolume(kPlayer, 2.0);
    tool->setVolume(kBrowser, 0.5);
    const AudioObjectID before = tap(kPlayer)->tapID();
    hal.setDefaultOutput(kHeadphones, 44100);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice));
    EXPECT_EQ(tap(kPlayer)->outputDevice(), kHeadphones);
    EXPECT_EQ(tap(kBrowser)->outputDevice(), kHeadphones);
    EXPECT_EQ(hal.taps.size(), 2u);
    EXPECT_EQ(hal.devices.size(), 2u) << "the old aggregate devices are gone";

    const AudioObjectID onHeadphones = tap(kPlayer)->tapID();
    EXPECT_NE(onHeadphones, before);
    hal.fire(kHeadphones, {hal::kStreamConfiguration, hal::kScopeOutput, 0});
    EXPECT_NE(tap(kPlayer)->tapID(), onHeadphones);
    hal.fire(kSpeakers, hal::globalAddress(hal::kNominalSampleRate));
    EXPECT_EQ(hal.taps.size(), 2u) << "the old device is no longer followed";
}

TEST_F(AppVolumeToolTest, AFailureLeavesThatAppAloneAndAnUnreadableOutputReleasesEveryTap) {
    tool->start();
    tool->setVolume(kBrowser, 0.5);
    hal.fail(Call::createDevice, -50);
    tool->setVolume(kPlayer, 2.0);
    EXPECT_EQ(tool->lastError(),
              "Couldn't control Player: Creating the audio device failed (OSStatus -50)");
    EXPECT_FALSE(tap(kPlayer));
    EXPECT_TRUE(tap(kBrowser)) << "other apps keep their taps";
    EXPECT_NE(mixer().find("! Couldn't control Player"), std::string::npos);
    hal.failures.clear();
    tool->setMuted(kPlayer, true);
    EXPECT_TRUE(tap(kPlayer));
    EXPECT_FALSE(tool->lastError());

    hal.set(kSpeakers, hal::kNominalSampleRate, 0.0);
    hal.fire(kSpeakers, hal::globalAddress(hal::kNominalSampleRate));
    EXPECT_TRUE(tool->taps().empty());
    EXPECT_EQ(tool->lastError(),
              "Couldn't control any app: The sound output reports no sample rate");
    hal.fail(Call::read, hal::kSystemObject, hal::kDefaultOutputDevice, hal::kBadObjectError);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice));
    EXPECT_EQ(tool->lastError(),
              "Couldn't control any app: Reading property 1682929012 failed (OSStatus 560947818)");
    EXPECT_TRUE(hal.taps.empty());
}

TEST_F(AppVolumeToolTest, TheMenuBarItemLivesWhileTheToolRunsAndStoppingUndoesEverything) {
    tool->setVolume(kPlayer, 2.0);
    tool->start();
    ASSERT_EQ(fakes.menuBar.items.size(), 1u);
    EXPECT_EQ(fakes.menuBar.items[0]->image, "speaker.wave.2.fill");
    fakes.menuBar.click();
    EXPECT_TRUE(tool->panel()->isShown());
    EXPECT_TRUE(tap(kPlayer));

    tool->stop();
    tool->stop();
    fakes.scheduler.runPending();
    EXPECT_TRUE(fakes.menuBar.items.empty());
    EXPECT_TRUE(hal.taps.empty() && hal.devices.empty() && hal.listeners.empty());
    EXPECT_EQ(hal.mismatchedRemovals, 0);
    EXPECT_TRUE(counts.processes().empty());
    EXPECT_FALSE(fakes.scheduler.hasPending());
    EXPECT_EQ(tool->gain(kPlayer), 2.0) << "levels are kept for next time";
}

TEST_F(AppVolumeToolTest, TheMixerListsAppsThatPlayedAndKeepsItsOrderWhileThePointerIsInside) {
    tool->start();
    hal.addProcess(103, 503, "com.example.silent", false);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kProcessObjectList));
    tool->setVolume(kPlayer, 1.5);
    std::string page = mixer();
    EXPECT_LT(page.find("Browser"), page.find("Player")) << page;
    EXPECT_EQ(page.find("com.example.silent"), std::string::npos) << "never played: not listed";
    EXPECT_NE(page.find("Volume: 150%  (0 to 3)"), std::string::npos) << page;
    EXPECT_NE(page.find("[Reset All Apps to Normal Volume]"), std::string::npos);

    const auto& panel = std::get<PanelContent::Page>(fakes.menuBar.popovers[0]->content.kind);
    const std::string layout = panel.layoutKey();
    tool->setVolume(kBrowser, 0.5);
    EXPECT_EQ(panel.layoutKey(), layout) << "a new level only refreshes the controls";
    panel.pointerInside(true);
    EXPECT_TRUE(tool->list().isPointerInside());
    mixer();
    hal.addProcess(104, 504, "com.example.aardvark", true);
    fakes.processFacts.names[504] = "Aardvark";
    fakes.processFacts.executables[504] = "/Applications/Aardvark.app/Contents/MacOS/Aardvark";
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kProcessObjectList));
    page = mixer();
    EXPECT_LT(page.find("Player"), page.find("Aardvark")) << "new rows join at the end";
    const auto sections = tool->mixerPage().sections;
    const auto aardvark = std::find_if(sections.begin(), sections.end(), [](const auto& section) {
        return section.title == "Aardvark";
    });
    ASSERT_NE(aardvark, sections.end());
    EXPECT_EQ(aardvark->iconFile, "/Applications/Aardvark.app") << "its row shows the app's icon";
    EXPECT_NE(panel.layoutKey(), layout) << "a new row builds the page again";
    panel.pointerInside(false);
    page = mixer();
    EXPECT_LT(page.find("Aardvark"), page.find("Browser"));

    std::get<SettingsRow::Button>(tool->mixerPage().sections.back().rows[0].kind).action();
    EXPECT_FALSE(tool->hasAdjustments());
}

}  // namespace
}  // namespace quorvane
