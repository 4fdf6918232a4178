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

struct AppAudioTapTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    EqualizerEngine engine;
    static constexpr AudioObjectID kSpeakers = 40;

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
    EXPECT_TRUE(uid.starts_with("com.quorvane.app.volume.")) << uid;
    const std::string uuid = uid.substr(24);
    EXPECT_TRUE(Uuid::parse(uuid) && uuid == Uuid::parse(uuid)->text()) << "upper-case UUID";
    EXPECT_NE(uuid, description.uuid.text());
    device.erase("uid");
    EXPECT_EQ(device,
              (Dictionary{
                  {"name", "Quorvane App Volume"},
                  {"master", "BuiltInSpeakerDevice"},
                  {"private", true},
                  {"stacked", false},
                  {"tapautostart", true},
                  {"subdevices", Array{Dictionary{{"uid", "BuiltInSpeakerDevice"}}}},
                  {"taps", Array{Dictionary{{"uid", description.uuid.text()}, {"drift", true}}}},
              }));
    EXPECT_TRUE(hal.ioProcs.at(*tap->ioProcID()).running);

    hal.journal.clear();
    tap.reset();
    EXPECT_EQ(hal.journal, (Journal{"stop", "destroy callback", "destroy device", "destroy tap"}));
    EXPECT_TRUE(hal.taps.empty() && hal.devices.empty() && hal.ioProcs.empty());
}

TEST_F(AppAudioTapTest, AFailingStepUndoesWhatWasMadeAndNamesTheOperation) {
    struct Case {
        Call call;
        AudioObjectID object;
        std::uint32_t selector;
        std::string description;
    };
    const std::vector<Case> cases = {
        {Call::createTap, 0, 0, "Creating the audio tap failed (OSStatus -1)"},
        {Call::read, kSpeakers, hal::kDeviceUID,
         "Reading property 1969841184 failed (OSStatus -1)"},
        {Call::createDevice, 0, 0, "Creating the audio device failed (OSStatus -1)"},
        {Call::read, 500, hal::kTapFormat, "Reading property 1952869748 failed (OSStatus -1)"},
        {Call::createIOProc, 0, 0, "Creating the audio callback failed (OSStatus -1)"},
        {Call::start, 0, 0, "Starting audio failed (OSStatus -1)"},
    };
    for (const Case& c : cases) {
        FakeAudioHardware fresh;
        fresh.addDevice(kSpeakers, "BuiltInSpeakerDevice", "MacBook Speakers");
        fresh.fail(c.call, c.object, c.selector, -1);
        try {
            AppAudioTap::capturing(fresh, engine, {7}, kSpeakers, 1.0f, true);
            ADD_FAILURE() << c.description;
        } catch (const CoreAudioError& error) {
            EXPECT_EQ(error.description(), c.description);
        }
        EXPECT_TRUE(fresh.taps.empty() && fresh.devices.empty() && fresh.ioProcs.empty())
            << c.description;
    }
}

TEST_F(AppAudioTapTest, TheCallbackRendersTheTapsBuffersWithTheGain) {
    auto tap = appTap({7}, true, 0.5f);
    const ProcessTapDescription& description = hal.taps.at(tap->tapID());
    EXPECT_EQ(description.kind, ProcessTapDescription::Kind::stereoMixdownOfProcesses);
    EXPECT_EQ(description.name, "Quorvane App Volume");
    AudioBuffers input;
    input.add(1, 4, 0.9f);
    input.add(2, 4, 0.4f);
    AudioBuffers output;
    output.add(2, 4);
    hal.render(tap->aggregateID(), input.span(), output.span());
    EXPECT_EQ(output[0], std::vector<float>(8, 0.2f));

    // A tap that delivers one buffer per channel: its buffers are the last two of the input.
    hal.tapFormat.formatFlags |= hal::kFormatFlagIsNonInterleaved;
    auto split = appTap({8}, true);
    AudioBuffers channels;
    channels.add(2, 4, 0.9f);
    channels.add(1, 4, 0.1f);
    channels.add(1, 4, 0.3f);
    hal.render(split->aggregateID(), channels.span(), output.span());
    EXPECT_EQ(output[0], (std::vector<float>{0.1f, 0.3f, 0.1f, 0.3f, 0.1f, 0.3f, 0.1f, 0.3f}));
}

TEST_F(AppAudioTapTest, RunningIsToggledWithoutRebuilding) {
    auto tap = appTap({7}, false);
    EXPECT_EQ(hal.journal, (Journal{"create tap", "create device", "create callback"}));
    tap->setRunning(true);
    tap->setRunning(true);
    tap->setRunning(false);
    EXPECT_EQ(hal.journal.size(), 5u);
    EXPECT_EQ(hal.journal[3], "start");
    EXPECT_EQ(hal.journal[4], "stop");

    hal.fail(Call::start, -5);
    EXPECT_THROW(tap->setRunning(true), CoreAudioError);
    EXPECT_FALSE(tap->isRunning());
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
    second.reset();
    EXPECT_TRUE(counts.counts().empty());

    auto global = AppAudioTap::global(hal, engine, {8}, kSpeakers, true);
    global->registerTappedProcesses(counts, fakes.scheduler, fakes.notifications);
    EXPECT_TRUE(counts.counts().empty()) << "the global tap's processes are the ones it leaves out";
}

}  // namespace
}  // namespace quorvane
