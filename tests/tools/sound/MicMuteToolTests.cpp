#include "tools/sound/MicMuteTool.hpp"

#include <gtest/gtest.h>

#include "audio/AudioCodes.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;
constexpr AudioObjectID kBuiltIn = 50;
constexpr AudioObjectID kUSB = 52;
constexpr AudioObjectID kWebcam = 53;
constexpr AudioObjectID kHeadset = 54;
// ⌥⌘M, and what the hot-key system is asked for: command 0x100 plus option 0x800.
const KeyCombo kCombo{46, 0x180000, "M"};
constexpr std::uint32_t kCarbonModifiers = 0x900;

struct MicMuteToolTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    ToolDescriptor descriptor = catalogDescriptor("mic-mute");
    MicMuteTool tool{descriptor, fakes.platform()};

    void SetUp() override {
        hal.addDevice(kBuiltIn, "builtin", "Built-in", hal::kTransportBuiltIn, 1, 1);
        hal.set(kBuiltIn, hal::kMute, std::uint32_t{0}, hal::kScopeInput);
        // No mute control, a volume per channel.
        hal.addDevice(kUSB, "usb", "USB Mic", hal::kTransportUSB, 0, 1);
        setVolume(kUSB, 1, 0.8f);
        setVolume(kUSB, 2, 0.6f);
        hal.set(hal::kSystemObject, hal::kDefaultInputDevice, kBuiltIn);
    }
    void setVolume(AudioObjectID device, std::uint32_t element, float volume) {
        auto& bytes = hal.data[{device, {hal::kVolumeScalar, hal::kScopeInput, element}}];
        bytes.resize(4);
        std::memcpy(bytes.data(), &volume, 4);
    }
    template <typename T>
    T value(AudioObjectID device, std::uint32_t selector, std::uint32_t element = 0) {
        T result{};
        std::uint32_t size = sizeof(T);
        hal.getPropertyData(device, {selector, hal::kScopeInput, element}, size, &result);
        return result;
    }
    const HUDCard& notice() { return fakes.screens.panels.at(0)->content; }
};

TEST_F(MicMuteToolTest, TheShortcutMutesEveryMicrophoneAndPutsBackWhatWasThere) {
    EXPECT_TRUE(tool.needsSetup()) << "nothing to press yet";
    tool.shortcut().set(kCombo);
    EXPECT_FALSE(tool.needsSetup());
    tool.start();
    ASSERT_TRUE(fakes.hotKeys.press(46, kCarbonModifiers));
    EXPECT_TRUE(tool.isMuted());
    EXPECT_EQ(value<std::uint32_t>(kBuiltIn, hal::kMute), 1u);
    EXPECT_EQ(value<float>(kUSB, hal::kVolumeScalar, 1), 0.0f);
    EXPECT_EQ(value<float>(kUSB, hal::kVolumeScalar, 2), 0.0f);
    EXPECT_EQ(notice(), (HUDCard{"mic.slash.fill", "Microphone Muted", std::nullopt}));
    EXPECT_TRUE(tool.control()->isOn());

    ASSERT_TRUE(fakes.hotKeys.press(46, kCarbonModifiers));
    EXPECT_FALSE(tool.isMuted());
    EXPECT_EQ(value<std::uint32_t>(kBuiltIn, hal::kMute), 0u);
    EXPECT_EQ(value<float>(kUSB, hal::kVolumeScalar, 1), 0.8f);
    EXPECT_EQ(value<float>(kUSB, hal::kVolumeScalar, 2), 0.6f);
    EXPECT_EQ(notice().title, "Microphone On");

    tool.control()->action();
    EXPECT_TRUE(tool.isMuted()) << "the menu's tile does the same";
    tool.stop();
    EXPECT_EQ(value<float>(kUSB, hal::kVolumeScalar, 1), 0.8f) << "turning off unmutes";
    EXPECT_FALSE(tool.isMuted());
    EXPECT_TRUE(fakes.hotKeys.live.empty() && hal.listeners.empty());
}

TEST_F(MicMuteToolTest, WhileMutedNewMicrophonesAndNewDefaultsAreMutedToo) {
    tool.start();
    tool.setMuted(true);
    hal.addDevice(kHeadset, "headset", "Headset", hal::kTransportBluetooth, 1, 1);
    hal.set(kHeadset, hal::kMute, std::uint32_t{0}, hal::kScopeInput);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    EXPECT_EQ(value<std::uint32_t>(kHeadset, hal::kMute), 1u);

    hal.set(kBuiltIn, hal::kMute, std::uint32_t{0}, hal::kScopeInput);  // unmuted elsewhere
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultInputDevice));
    EXPECT_EQ(value<std::uint32_t>(kBuiltIn, hal::kMute), 1u);

    tool.setMuted(false);
    EXPECT_EQ(value<std::uint32_t>(kHeadset, hal::kMute), 0u);
    hal.set(kHeadset, hal::kMute, std::uint32_t{1}, hal::kScopeInput);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    EXPECT_EQ(value<std::uint32_t>(kHeadset, hal::kMute), 1u) << "unmuted: changes are left alone";
}

TEST_F(MicMuteToolTest, ACrashWhileMutedIsUndoneOnTheNextLaunchByDeviceUID) {
    tool.start();
    tool.setMuted(true);
    ASSERT_TRUE(fakes.preferences.string(MicMuteTool::kBackupKey));
    // The process dies here: nothing is put back, and the USB mic is unplugged meanwhile.
    const auto backup = *fakes.preferences.string(MicMuteTool::kBackupKey);
    FakePlatform relaunched;
    FakeAudioHardware& after = relaunched.audioHardware;
    after.addDevice(70, "builtin", "Built-in", hal::kTransportBuiltIn, 1, 1);
    after.set(70, hal::kMute, std::uint32_t{1}, hal::kScopeInput);
    relaunched.preferences.set(MicMuteTool::kBackupKey, backup);
    MicMuteTool again{descriptor, relaunched.platform()};
    again.tidy();
    std::uint32_t mute = 9;
    std::uint32_t size = 4;
    after.getPropertyData(70, {hal::kMute, hal::kScopeInput, 0}, size, &mute);
    EXPECT_EQ(mute, 0u) << "found by its UID under a new id";
    ASSERT_TRUE(relaunched.preferences.string(MicMuteTool::kBackupKey)) << "the USB mic's is kept";

    after.addDevice(71, "usb", "USB Mic", hal::kTransportUSB, 0, 1);
    auto& volume = after.data[{71, {hal::kVolumeScalar, hal::kScopeInput, 2}}];
    volume.assign(4, 0);
    again.start();
    float restored = 0;
    after.getPropertyData(71, {hal::kVolumeScalar, hal::kScopeInput, 2}, size, &restored);
    EXPECT_EQ(restored, 0.6f) << "exactly what was there";
    EXPECT_FALSE(relaunched.preferences.string(MicMuteTool::kBackupKey));

    tool.setMuted(false);
    EXPECT_FALSE(fakes.preferences.string(MicMuteTool::kBackupKey)) << "unmuting drops it";

    relaunched.preferences.set(MicMuteTool::kBackupKey, "{\"usb\": ");
    MicMuteTool damaged{descriptor, relaunched.platform()};
    damaged.tidy();
    EXPECT_TRUE(damaged.lastError());
    EXPECT_EQ(relaunched.preferences.string(MicMuteTool::kBackupKey), "{\"usb\": ")
        << "a damaged backup is left for a person, not overwritten";
}

TEST_F(MicMuteToolTest, AMicrophoneThatCannotBeMutedIsNamedAndTheOthersAreStillMuted) {
    hal.addDevice(kWebcam, "webcam", "Webcam", hal::kTransportUSB, 0, 1);
    tool.start();
    tool.setMuted(true);
    EXPECT_EQ(tool.lastError(), "Couldn't mute Webcam: it has no mute or volume control");
    EXPECT_EQ(value<std::uint32_t>(kBuiltIn, hal::kMute), 1u);
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find("! Couldn't mute Webcam"),
              std::string::npos);

    tool.setMuted(false);
    hal.fail(Call::write, kBuiltIn, hal::kMute, -50);
    tool.setMuted(true);
    EXPECT_EQ(tool.lastError(), "Couldn't mute Webcam: it has no mute or volume control");
    hal.deviceIDs = {kBuiltIn, kUSB};
    hal.setIDs(hal::kSystemObject, hal::kDevices, hal.deviceIDs);
    tool.setMuted(false);
    tool.setMuted(true);
    EXPECT_EQ(tool.lastError(),
              "Couldn't mute Built-in: Writing property 1836414053 failed (OSStatus -50)");
    EXPECT_EQ(value<float>(kUSB, hal::kVolumeScalar, 1), 0.0f);
}

}  // namespace
}  // namespace quorvane
