#include "audio/AppAudioTap.hpp"

#include <gtest/gtest.h>

#include "audio/CoreAudioError.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/TappedProcessCounts.hpp"
#include "support/AudioBuffers.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;
using Journal = std::vector<std::string>;
constexpr AudioObjectID kSpeakers = 40;

struct AppAudioTapTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    EqualizerEngine engine;

    void SetUp() override { hal.addDevice(kSpeakers, "BuiltInSpeakerDevice", "MacBook Speakers"); }
    std::unique_ptr<AppAudioTap> appTap(std::vector<AudioObjectID> processes, bool running = true,
                                        float gain = 1.0f) {
        return AppAudioTap::capturing(hal, engine, std::move(processes), kSpeakers, gain, running);
    }
};

TEST_F(AppAudioTapTest, SetUpBuildsTapDeviceAndCallbackInOrderAndTearsThemDownInReverse) {
    auto tap = AppAudioTap::global(hal, engine, {7, 9}, kSpeakers, true);
    EXPECT_EQ(hal.journal, (Journal{"create tap", "create device", "create callback", "start"}));
    const ProcessTapDescription& description = hal.taps.at(tap->tapID());
    EXPECT_EQ(description.kind, ProcessTapDescription::Kind::stereoGlobalTapButExcludeProcesses);
    EXPECT_EQ(description.processes, (std::vector<AudioObjectID>{7, 9}));
    EXPECT_EQ(description.name, "Quorvane Equalizer");
    EXPECT_TRUE(description.isPrivate);
    EXPECT_EQ(description.muteBehavior, ProcessTapDescription::MuteBehavior::mutedWhenTapped);

    using Dictionary = PreferenceValue::Dictionary;
    using Array = PreferenceValue::Array;
    Dictionary device = hal.devices.at(tap->aggregateID());
    const std::string uid = *device.at("uid").string();
    EXPECT_EQ(uid.substr(0, 24), "com.quorvane.app.volume.");
    EXPECT_EQ(Uuid::parse(uid.substr(24)).value_or(Uuid()).text(), uid.substr(24))
        << "a fresh UUID in upper case";
    device.erase("uid");
    EXPECT_EQ(device,
              (Dictionary{
                  {"name", "Quorvane App Volume"},
                  {"master", "BuiltInSpeakerDevice"},
                  {"private", true},
                  {"stacked", false},
                  {"tapautostart", true},
                  {"subdevices", Array{Dictionary{{"uid", "BuiltInSpeakerDevice"}}}},
                  {"taps", Array{Dictionary{{"uid", description.uuid.text()}, {"drift", true}}}}}));
    hal.journal.clear();
    tap.reset();
    EXPECT_EQ(hal.journal, (Journal{"stop", "destroy callback", "destroy device", "destroy tap"}));
}

TEST_F(AppAudioTapTest, AFailingStepUndoesWhatWasMadeAndNamesTheOperation) {
    const std::vector<std::tuple<Call, AudioObjectID, std::uint32_t, std::string>> cases = {
        {Call::createTap, 0, 0, "Creating the audio tap"},
        {Call::read, kSpeakers, hal::kDeviceUID, "Reading property 1969841184"},
        {Call::createDevice, 0, 0, "Creating the audio device"},
        {Call::read, 500, hal::kTapFormat, "Reading property 1952869748"},
        {Call::createIOProc, 0, 0, "Creating the audio callback"},
        {Call::start, 0, 0, "Starting audio"},
    };
    for (const auto& [call, object, selector, operation] : cases) {
        FakeAudioHardware fresh;
        fresh.addDevice(kSpeakers, "speakers", "Speakers");
        fresh.fail(call, object, selector, -1);
        try {
            AppAudioTap::capturing(fresh, engine, {7}, kSpeakers, 1.0f, true);
            ADD_FAILURE() << operation;
        } catch (const CoreAudioError& error) {
            EXPECT_EQ(error.description(), operation + " failed (OSStatus -1)");
        }
        EXPECT_TRUE(fresh.taps.empty() && fresh.devices.empty() && fresh.ioProcs.empty());
    }
}

TEST_F(AppAudioTapTest, TheCallbackRendersTheTapsBuffersAndRunningTogglesWithoutRebuilding) {
    auto tap = appTap({7}, false, 0.5f);
    EXPECT_EQ(hal.taps.at(tap->tapID()).kind,
              ProcessTapDescription::Kind::stereoMixdownOfProcesses);
    EXPECT_EQ(hal.taps.at(tap->tapID()).name, "Quorvane App Volume");
    AudioBuffers input;
    input.add(1, 4, 0.9f);  // the output device's own input comes first
    input.add(2, 4, 0.4f);
    AudioBuffers output;
    output.add(2, 4);
    hal.render(tap->aggregateID(), input.span(), output.span());
    EXPECT_EQ(output[0], std::vector<float>(8, 0.2f));

    tap->setRunning(true);
    tap->setRunning(true);
    tap->setRunning(false);
    EXPECT_EQ(hal.journal,
              (Journal{"create tap", "create device", "create callback", "start", "stop"}));
    hal.fail(Call::start, -5);
    EXPECT_THROW(tap->setRunning(true), CoreAudioError);
    EXPECT_FALSE(tap->isRunning());

    // A start that fails after the platform answered stops the tap and says so; once the tap
    // is gone, such a report reaches nothing.
    hal.failures.clear();
    hal.lateStartFailures.clear();
    tap->setRunning(true);
    std::string reported;
    tap->onLateStartFailure = [&](const CoreAudioError& error) { reported = error.description(); };
    hal.failStartsLater(-10851);
    EXPECT_EQ(reported, "Starting audio failed (OSStatus -10851)");
    EXPECT_FALSE(tap->isRunning());
    tap->setRunning(true);
    tap.reset();
    hal.failStartsLater(-10851);

    // A tap that delivers one buffer per channel: they are the last two of the input.
    hal.tapFormat.formatFlags |= hal::kFormatFlagIsNonInterleaved;
    hal.failures.clear();
    auto split = appTap({8});
    input.add(1, 4, 0.1f);
    hal.render(split->aggregateID(), input.span(), output.span());
    EXPECT_EQ(output[0], (std::vector<float>{0.4f, 0.1f, 0.4f, 0.1f, 0.4f, 0.1f, 0.4f, 0.1f}));
}

TEST_F(AppAudioTapTest, TappedProcessCountsFollowAppTapsAndAnnounceEachChange) {
    TappedProcessCounts counts;
    int announcements = 0;
    const auto observer = fakes.notifications.observe(TappedProcessCounts::kChangedNotification,
                                                      [&](const auto&) { ++announcements; });
    auto first = appTap({7, 8});
    auto second = appTap({8});
    first->registerTappedProcesses(counts, fakes.scheduler, fakes.notifications);
    second->registerTappedProcesses(counts, fakes.scheduler, fakes.notifications);
    EXPECT_EQ(announcements, 0) << "posted asynchronously";
    fakes.scheduler.runPending();
    EXPECT_EQ(announcements, 1);
    EXPECT_EQ(counts.counts(), (std::map<AudioObjectID, std::size_t>{{7, 1}, {8, 2}}));

    first.reset();
    fakes.scheduler.runPending();
    EXPECT_EQ(announcements, 2);
    EXPECT_EQ(counts.processes(), (std::vector<AudioObjectID>{8}));
    auto global = AppAudioTap::global(hal, engine, {8}, kSpeakers, true);
    global->registerTappedProcesses(counts, fakes.scheduler, fakes.notifications);
    EXPECT_EQ(counts.processes(), (std::vector<AudioObjectID>{8})) << "the global tap counts none";
}

}  // namespace
}  // namespace quorvane
