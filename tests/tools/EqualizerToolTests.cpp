#include "tools/EqualizerTool.hpp"

#include <gtest/gtest.h>

#include "app/ToolCatalog.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/TappedProcessCounts.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;

struct EqualizerToolTest : ::testing::Test {
    static constexpr AudioObjectID kSpeakers = 40;
    static constexpr AudioObjectID kHeadphones = 41;

    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    EqualizerEngine engine;
    TappedProcessCounts counts;
    ToolDescriptor descriptor = ToolCatalog::descriptors()[43];

    void SetUp() override {
        hal.addDevice(kSpeakers, "speakers", "MacBook Speakers");
        hal.addDevice(kHeadphones, "headphones", "AirPods");
        hal.setDefaultOutput(kSpeakers, 48000);
        hal.set(kHeadphones, hal::kNominalSampleRate, 32000.0);
        hal.addProcess(100, 501, "com.example.player");
    }
    std::unique_ptr<EqualizerTool> make() {
        return std::make_unique<EqualizerTool>(descriptor, fakes.platform(), engine, counts);
    }
    bool tapRuns(const EqualizerTool& tool) {
        return tool.tap() && hal.ioProcs.at(*tool.tap()->ioProcID()).running;
    }
    void play(bool playing) {
        hal.setPlaying(100, playing);
        hal.fire(100, hal::globalAddress(hal::kProcessIsRunningOutput));
        fakes.scheduler.runPending();
    }
};

TEST_F(EqualizerToolTest, PresetsAreNamedInMenuOrderAndAnythingElseIsCustom) {
    std::vector<std::string> names;
    for (const auto& preset : EqualizerPreset::all()) {
        names.push_back(preset.name);
    }
    EXPECT_EQ(names,
              (std::vector<std::string>{"Flat", "Bass Boost", "Bass Reducer", "Treble Boost",
                                        "Vocal", "Loudness", "Laptop Speakers", "Headphones"}));
    auto tool = make();
    EXPECT_EQ(tool->presetName(), "Flat");
    tool->applyPreset("vocal");
    EXPECT_EQ(tool->presetName(), "Vocal");
    EXPECT_EQ(tool->gains(), (EqualizerTool::Gains{-4, -3, -1, 0, 2, 4, 4, 3, 1, 0}));
    tool->applyPreset("Loudest");
    EXPECT_EQ(tool->presetName(), "Vocal") << "an unknown preset changes nothing";
    tool->setGain(0, -3.5);
    EXPECT_EQ(tool->presetName(), "Custom");
    tool->setPreamp(-20);
    EXPECT_EQ(tool->preamp(), -12.0) << "kept within the slider's range";

    const auto stored = fakes.preferences.object(EqualizerTool::kGainsKey);
    ASSERT_TRUE(stored && stored->array());
    EXPECT_EQ(stored->array()->size(), 10u);
    EXPECT_EQ(*(*stored->array())[0].real(), -3.5);
    EXPECT_EQ(fakes.preferences.number(EqualizerTool::kPreampKey), -12.0);

    auto relaunched = make();
    EXPECT_EQ(relaunched->gains(), tool->gains());
    EXPECT_EQ(relaunched->preamp(), -12.0);
}

TEST_F(EqualizerToolTest, DamagedSettingsFallBackToFlatAndAreNotOverwritten) {
    fakes.preferences.set(EqualizerTool::kGainsKey, PreferenceValue::Array{3.0, "loud"});
    fakes.preferences.set(EqualizerTool::kPreampKey, "high");
    auto tool = make();
    EXPECT_TRUE(tool->isFlat());
    EXPECT_EQ(*fakes.preferences.object(EqualizerTool::kGainsKey),
              PreferenceValue(PreferenceValue::Array{3.0, "loud"}));

    fakes.preferences.set(EqualizerTool::kGainsKey, PreferenceValue::Array{30.0, -2, -40.0});
    EXPECT_EQ(make()->gains(), (EqualizerTool::Gains{12, -2, -12, 0, 0, 0, 0, 0, 0, 0}))
        << "short lists are padded with flat bands and values kept within range";
}

TEST_F(EqualizerToolTest, AFlatEqualizerCapturesNothingAndAnyOtherSettingKeepsOneGlobalTap) {
    auto tool = make();
    tool->start();
    EXPECT_FALSE(tool->tap());
    EXPECT_FALSE(engine.isEnabled());
    EXPECT_TRUE(hal.taps.empty());

    tool->applyPreset("Loudness");
    ASSERT_TRUE(tool->tap());
    EXPECT_TRUE(tool->tap()->isGlobal());
    EXPECT_EQ(tool->tap()->outputDevice(), kSpeakers);
    EXPECT_TRUE(engine.isEnabled());
    const AppAudioTap* first = tool->tap();
    tool->setGain(3, 1.0);
    EXPECT_EQ(tool->tap(), first) << "same device, same exclusions: the tap is kept";
    EXPECT_EQ(hal.taps.size(), 1u);

    tool->applyPreset("Flat");
    tool->setPreamp(-0.04);
    EXPECT_FALSE(tool->tap()) << "flat releases the tap";
    EXPECT_TRUE(hal.taps.empty());
    tool->setPreamp(-0.05);
    EXPECT_TRUE(tool->tap()) << "a preamp of -0.05 dB is a change";
}

TEST_F(EqualizerToolTest, TheTapIsRebuiltForANewOutputDeviceOrNewlyTappedApps) {
    auto tool = make();
    tool->applyPreset("Treble Boost");
    tool->start();
    ASSERT_TRUE(tool->tap());
    EqualizerEngine::CoefficientSet set;
    engine.copyActiveSet(set);
    const float b1At48k = set[2 + 5 * 9];

    hal.setDefaultOutput(kHeadphones, 32000);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice));
    ASSERT_TRUE(tool->tap());
    EXPECT_EQ(tool->tap()->outputDevice(), kHeadphones);
    EXPECT_EQ(hal.taps.size(), 1u);
    engine.copyActiveSet(set);
    EXPECT_NE(set[2 + 5 * 9], b1At48k) << "coefficients computed for the new device's rate";

    hal.set(kHeadphones, hal::kNominalSampleRate, 48000.0);
    hal.fire(kHeadphones, hal::globalAddress(hal::kNominalSampleRate));
    engine.copyActiveSet(set);
    EXPECT_EQ(set[2 + 5 * 9], b1At48k) << "and for a change of its rate";

    counts.registerProcesses(std::vector<AudioObjectID>{100, 77}, fakes.scheduler,
                             fakes.notifications);
    fakes.scheduler.runPending();
    ASSERT_TRUE(tool->tap());
    EXPECT_EQ(tool->tap()->processObjects(), (std::vector<AudioObjectID>{77, 100}));
    EXPECT_EQ(hal.taps.begin()->second.processes, (std::vector<AudioObjectID>{77, 100}))
        << "apps with their own taps are left out";
}

TEST_F(EqualizerToolTest, TheTapPausesAfterThreeQuietSecondsAndResumesWhenSoundReturns) {
    auto tool = make();
    tool->applyPreset("Bass Boost");
    tool->start();
    EXPECT_TRUE(tapRuns(*tool)) << "nothing plays yet, but the quiet time has only begun";
    fakes.scheduler.advance(Seconds(2.9));
    EXPECT_TRUE(tapRuns(*tool));
    fakes.scheduler.advance(Seconds(0.1));
    EXPECT_FALSE(tapRuns(*tool));
    EXPECT_TRUE(tool->tap()) << "paused, not released";

    play(true);
    EXPECT_TRUE(tapRuns(*tool));
    fakes.scheduler.advance(Seconds(60));
    EXPECT_TRUE(tapRuns(*tool)) << "keeps running while something plays";

    play(false);
    fakes.scheduler.advance(Seconds(2.5));
    EXPECT_TRUE(tapRuns(*tool));
    fakes.scheduler.advance(Seconds(0.5));
    EXPECT_FALSE(tapRuns(*tool));
}

TEST_F(EqualizerToolTest, AFailureIsShownUntilTheTapCanBeBuilt) {
    hal.fail(Call::createDevice, -50);
    auto tool = make();
    tool->applyPreset("Headphones");
    tool->start();
    EXPECT_FALSE(tool->tap());
    EXPECT_EQ(tool->lastError(),
              "The equalizer couldn't start: Creating the audio device failed (OSStatus -50)");
    EXPECT_TRUE(hal.taps.empty()) << "the half-made tap was taken down";
    const std::string page = SettingsTextRenderer::render(tool->settingsPage());
    EXPECT_NE(page.find("! The equalizer couldn't start"), std::string::npos) << page;

    hal.failures.clear();
    tool->setGain(9, 3);
    EXPECT_TRUE(tool->tap());
    EXPECT_FALSE(tool->lastError());
}

TEST_F(EqualizerToolTest, StoppingReleasesEverythingAndLeavesAppTapsUnequalized) {
    auto tool = make();
    tool->applyPreset("Laptop Speakers");
    tool->start();
    play(true);
    ASSERT_TRUE(tool->tap());
    EXPECT_FALSE(hal.listeners.empty());

    tool->stop();
    tool->stop();
    EXPECT_FALSE(tool->tap());
    EXPECT_TRUE(hal.taps.empty() && hal.devices.empty());
    EXPECT_TRUE(hal.listeners.empty());
    EXPECT_EQ(hal.mismatchedRemovals, 0);
    EXPECT_FALSE(engine.isEnabled());
    EXPECT_FALSE(fakes.scheduler.hasPending());

    tool->setGain(0, 4);
    EXPECT_TRUE(hal.taps.empty()) << "changes while off are only stored";
    EXPECT_FALSE(engine.isEnabled());
}

TEST_F(EqualizerToolTest, ThePagesShowPresetBandsPreampAndTheHelp) {
    auto tool = make();
    tool->applyPreset("Loudness");
    tool->setPreamp(-6);
    const std::string page = SettingsTextRenderer::render(tool->settingsPage());
    EXPECT_NE(page.find("Preset: Loudness  (Flat | Bass Boost |"), std::string::npos) << page;
    EXPECT_NE(page.find("32 Hz: +5.0 dB  (-12 to 12)"), std::string::npos) << page;
    EXPECT_NE(page.find("500 Hz: −1.0 dB"), std::string::npos);
    EXPECT_NE(page.find("1 kHz: 0 dB"), std::string::npos);
    EXPECT_NE(page.find("Preamp: −6.0 dB"), std::string::npos);
    EXPECT_NE(page.find(EqualizerTool::kHelp), std::string::npos);
    EXPECT_EQ(SettingsTextRenderer::render(tool->menuPage()).find("Control Center"),
              std::string::npos)
        << "the popover leaves the explanation to the settings page";

    auto control = tool->control();
    ASSERT_TRUE(control);
    EXPECT_TRUE(control->isOn());
    const auto& slider =
        std::get<SettingsRow::Slider>(tool->settingsPage().sections[1].rows[9].kind);
    slider.set(2.0);
    EXPECT_EQ(tool->presetName(), "Custom");
    tool->resetToFlat();
    EXPECT_FALSE(control->isOn());
}

TEST(EqualizerCatalog, TheCatalogBuildsTheEqualizerWithItsPermissionAndTile) {
    FakePlatform fakes;
    const auto tools = ToolCatalog::makeTools(fakes.platform());
    const Tool& tool = *tools[43];
    EXPECT_NE(dynamic_cast<const EqualizerTool*>(&tool), nullptr);
    EXPECT_TRUE(tool.isAvailable());
    EXPECT_EQ(tool.requiredPermissions(),
              (std::vector<Permission>{Permission::systemAudioRecording}));
    EXPECT_EQ(tool.name(), "System Equalizer");
    EXPECT_TRUE(tools[43]->control());
}

}  // namespace
}  // namespace quorvane
