#include "tools/sound/EqualizerTool.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>

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

struct EqualizerToolTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    EqualizerEngine engine;
    TappedProcessCounts counts;
    ToolDescriptor descriptor = catalogDescriptor("equalizer");
    std::unique_ptr<EqualizerTool> tool = make();

    void SetUp() override {
        hal.addDevice(kSpeakers, "speakers", "MacBook Speakers");
        hal.addDevice(kHeadphones, "headphones", "AirPods");
        hal.setDefaultOutput(kSpeakers, 48000);
        hal.addProcess(100, 501, "com.example.player");
    }
    std::unique_ptr<EqualizerTool> make() {
        return std::make_unique<EqualizerTool>(descriptor, fakes.platform(), engine, counts);
    }
    bool tapRuns() { return tool->tap() && hal.ioProcs.at(*tool->tap()->ioProcID()).running; }
    void play(bool playing) {
        hal.set(100, hal::kProcessIsRunningOutput, std::uint32_t{playing});
        hal.fire(100, hal::globalAddress(hal::kProcessIsRunningOutput));
        fakes.scheduler.runPending();
    }
    float topBandB1() {
        EqualizerEngine::CoefficientSet set;
        engine.copyActiveSet(set);
        return set[2 + 5 * 9];
    }
};

TEST_F(EqualizerToolTest, PresetsSettingsAndCustomArePersistedAndDamageFallsBackToFlat) {
    EXPECT_EQ(tool->presetName(), "Flat");
    tool->applyPreset("vocal");
    EXPECT_EQ(tool->gains(), (EqualizerTool::Gains{-4, -3, -1, 0, 2, 4, 4, 3, 1, 0}));
    tool->applyPreset("Loudest");
    EXPECT_EQ(tool->presetName(), "Vocal") << "an unknown preset changes nothing";
    tool->setGain(0, -3.5);
    EXPECT_EQ(tool->presetName(), "Custom");
    tool->setPreamp(-20);
    EXPECT_EQ(tool->preamp(), -12.0) << "kept within the slider's range";
    EXPECT_EQ(fakes.preferences.object(EqualizerTool::kGainsKey)->array()->size(), 10u);
    EXPECT_EQ(make()->gains(), tool->gains());
    EXPECT_EQ(make()->preamp(), -12.0);

    const PreferenceValue damaged(PreferenceValue::Array{3.0, "loud"});
    fakes.preferences.set(EqualizerTool::kGainsKey, damaged);
    fakes.preferences.set(EqualizerTool::kPreampKey, "high");
    EXPECT_TRUE(make()->isFlat());
    EXPECT_EQ(fakes.preferences.object(EqualizerTool::kGainsKey), damaged) << "not overwritten";
    fakes.preferences.set(EqualizerTool::kGainsKey, PreferenceValue::Array{30.0, -2, -40.0});
    EXPECT_EQ(make()->gains(), (EqualizerTool::Gains{12, -2, -12, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(EqualizerToolTest, OneGlobalTapWhileNotFlatRebuiltOnlyForANewDeviceOrNewlyTappedApps) {
    tool->start();
    EXPECT_FALSE(tool->tap()) << "flat captures nothing";
    EXPECT_FALSE(engine.isEnabled());
    tool->applyPreset("Treble Boost");
    ASSERT_TRUE(tool->tap());
    EXPECT_TRUE(tool->tap()->isGlobal());
    const AppAudioTap* first = tool->tap();
    const float b1At48k = topBandB1();
    tool->setGain(3, 1.0);
    EXPECT_EQ(tool->tap(), first) << "same device, same exclusions: kept";

    hal.setDefaultOutput(kHeadphones, 32000);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice));
    EXPECT_EQ(tool->tap()->outputDevice(), kHeadphones);
    EXPECT_NE(topBandB1(), b1At48k) << "coefficients for the new device's rate";
    hal.set(kHeadphones, hal::kNominalSampleRate, 48000.0);
    hal.fire(kHeadphones, hal::globalAddress(hal::kNominalSampleRate));
    EXPECT_EQ(topBandB1(), b1At48k) << "and for a change of its rate";

    counts.registerProcesses(std::vector<AudioObjectID>{100, 77}, fakes.scheduler,
                             fakes.notifications);
    fakes.scheduler.runPending();
    EXPECT_EQ(hal.taps.size(), 1u);
    EXPECT_EQ(hal.taps.begin()->second.processes, (std::vector<AudioObjectID>{77, 100}))
        << "apps with their own taps are left out";

    tool->applyPreset("Flat");
    tool->setPreamp(-0.04);
    EXPECT_FALSE(tool->tap()) << "flat again releases the tap";
    EXPECT_TRUE(hal.taps.empty());
    tool->setPreamp(-0.05);
    EXPECT_TRUE(tool->tap()) << "a preamp of -0.05 dB is a change";
}

TEST_F(EqualizerToolTest, TheTapPausesAfterThreeQuietSecondsAndResumesWhenSoundReturns) {
    tool->applyPreset("Bass Boost");
    tool->start();
    fakes.scheduler.advance(Seconds(2.9));
    EXPECT_TRUE(tapRuns()) << "nothing plays, but the quiet time has only begun";
    fakes.scheduler.advance(Seconds(0.1));
    EXPECT_FALSE(tapRuns());
    EXPECT_TRUE(tool->tap()) << "paused, not released";
    play(true);
    fakes.scheduler.advance(Seconds(60));
    EXPECT_TRUE(tapRuns());
    play(false);
    fakes.scheduler.advance(Seconds(2.5));
    EXPECT_TRUE(tapRuns());
    fakes.scheduler.advance(Seconds(0.5));
    EXPECT_FALSE(tapRuns());
}

TEST_F(EqualizerToolTest, AFailureIsShownUntilTheTapCanBeBuiltAndStoppingUndoesEverything) {
    hal.fail(Call::createDevice, -50);
    tool->applyPreset("Headphones");
    tool->start();
    EXPECT_EQ(tool->lastError(),
              "The equalizer couldn't start: Creating the audio device failed (OSStatus -50)");
    EXPECT_NE(SettingsTextRenderer::render(tool->settingsPage()).find("! The equalizer couldn't"),
              std::string::npos);
    hal.failures.clear();
    tool->setGain(9, 3);
    EXPECT_TRUE(tool->tap());
    EXPECT_FALSE(tool->lastError());
    play(true);
    hal.failStartsLater(-10851);  // the platform started the device after answering
    EXPECT_EQ(tool->lastError(),
              "The equalizer couldn't start: Starting audio failed (OSStatus -10851)");
    EXPECT_FALSE(tool->tap()->isRunning());

    tool->stop();
    tool->stop();
    EXPECT_TRUE(hal.taps.empty() && hal.devices.empty() && hal.listeners.empty());
    EXPECT_EQ(hal.mismatchedRemovals, 0);
    EXPECT_FALSE(fakes.scheduler.hasPending());
    EXPECT_FALSE(engine.isEnabled()) << "app taps play unequalized while the tool is off";
    tool->setGain(0, 4);
    EXPECT_TRUE(hal.taps.empty()) << "changes while off are only stored";
}

TEST_F(EqualizerToolTest, QuorvaneItselfIsNeverCapturedAndReleasedAppTapsAreCapturedAgain) {
    hal.addProcess(300, ::getpid(), "com.quorvane.app");
    tool->applyPreset("Vocal");
    tool->start();
    EXPECT_EQ(hal.taps.begin()->second.processes, std::vector<AudioObjectID>{300});

    auto appTap = AppAudioTap::capturing(hal, engine, {100}, kSpeakers, 0.5f, true);
    appTap->registerTappedProcesses(counts, fakes.scheduler, fakes.notifications);
    fakes.scheduler.runPending();
    const AudioObjectID withApp = tool->tap()->tapID();
    EXPECT_EQ(hal.taps.at(withApp).processes, (std::vector<AudioObjectID>{100, 300}));

    appTap.reset();
    fakes.scheduler.runPending();
    EXPECT_NE(tool->tap()->tapID(), withApp) << "rebuilt with the app captured again";
    EXPECT_EQ(hal.taps.at(tool->tap()->tapID()).processes, std::vector<AudioObjectID>{300});

    hal.addProcess(301, ::getpid(), "com.quorvane.app");
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kProcessObjectList));
    EXPECT_EQ(hal.taps.at(tool->tap()->tapID()).processes, (std::vector<AudioObjectID>{300, 301}))
        << "a new process object of Quorvane's is left out as soon as it appears";
}

TEST_F(EqualizerToolTest, ANewRateOrLayoutRebuildsTheTapAndAnUnreadableDeviceIsShownNotUsed) {
    tool->applyPreset("Bass Boost");
    tool->start();
    const AudioObjectID first = tool->tap()->tapID();
    hal.fire(kSpeakers, {hal::kStreamConfiguration, hal::kScopeOutput, 0});
    ASSERT_TRUE(tool->tap());
    EXPECT_NE(tool->tap()->tapID(), first) << "a new channel layout needs a new aggregate device";
    EXPECT_EQ(hal.taps.size(), 1u);

    hal.set(kSpeakers, hal::kNominalSampleRate, 0.0);
    hal.fire(kSpeakers, hal::globalAddress(hal::kNominalSampleRate));
    EXPECT_FALSE(tool->tap());
    EXPECT_EQ(tool->lastError(),
              "The equalizer couldn't start: The sound output reports no sample rate");
    EXPECT_TRUE(std::isfinite(topBandB1()));

    hal.fail(Call::read, hal::kSystemObject, hal::kDefaultOutputDevice, hal::kBadObjectError);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice));
    EXPECT_EQ(tool->lastError(),
              "The equalizer couldn't start: Reading property 1682929012 failed (OSStatus "
              "560947818)");
    EXPECT_TRUE(hal.taps.empty());

    hal.failures.clear();
    hal.setDefaultOutput(kHeadphones, 44100);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultOutputDevice));
    EXPECT_EQ(tool->tap()->outputDevice(), kHeadphones);
    EXPECT_FALSE(tool->lastError());
    tool->stop();
    EXPECT_TRUE(hal.listeners.empty());
}

TEST_F(EqualizerToolTest, ThePagesAndTheTileShowAndChangeTheSettings) {
    tool->applyPreset("Loudness");
    tool->setPreamp(-6);
    const std::string page = SettingsTextRenderer::render(tool->settingsPage());
    for (const char* line :
         {"Preset: Loudness  (Flat | Bass Boost | Bass Reducer | Treble Boost | "
          "Vocal | Loudness | Laptop Speakers | Headphones)",
          "32 Hz: +5.0 dB  (-12 to 12)", "500 Hz: −1.0 dB", "1 kHz: 0 dB", "Preamp: −6.0 dB"}) {
        EXPECT_NE(page.find(line), std::string::npos) << line << "\n" << page;
    }
    const auto control = tool->control();
    EXPECT_TRUE(control->isOn());
    std::get<SettingsRow::Slider>(tool->menuPage().sections[1].rows[9].kind).set(2.0);
    EXPECT_EQ(tool->gains()[9], 2.0);
    tool->resetToFlat();
    EXPECT_FALSE(control->isOn());
}

}  // namespace
}  // namespace quorvane
