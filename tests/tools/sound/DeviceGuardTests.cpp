#include "tools/sound/DeviceGuard.hpp"

#include <gtest/gtest.h>

#include "audio/AudioCodes.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/sound/MicLockTool.hpp"
#include "tools/sound/OutputLockTool.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;
constexpr AudioObjectID kSpeakers = 40;
constexpr AudioObjectID kMonitor = 41;
constexpr AudioObjectID kUSBMic = 42;
constexpr AudioObjectID kWebcam = 43;

TEST(DeviceGuard, RestoresOnlyAConnectedLockedDeviceThatIsNotAlreadyTheDefault) {
    const std::vector<AudioDevice> devices = {{kSpeakers, "speakers", "Speakers", 0},
                                              {kMonitor, "monitor", "Monitor", 0}};
    EXPECT_EQ(DeviceGuard::restore("speakers", devices, kMonitor), kSpeakers);
    EXPECT_FALSE(DeviceGuard::restore("speakers", devices, kSpeakers));
    EXPECT_FALSE(DeviceGuard::restore("gone", devices, kMonitor)) << "not fought for";
    EXPECT_FALSE(DeviceGuard::restore(std::nullopt, devices, kMonitor));
    EXPECT_FALSE(DeviceGuard::restore("", {{kSpeakers, "", "No uid", 0}}, kMonitor));
}

struct DeviceLockTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    ToolDescriptor outputDescriptor = catalogDescriptor("output-lock");
    ToolDescriptor micDescriptor = catalogDescriptor("mic-lock");

    void SetUp() override {
        hal.addDevice(kSpeakers, "speakers", "Speakers", hal::kTransportBuiltIn);
        hal.addDevice(kMonitor, "monitor", "Monitor", hal::fourCharCode("hdmi"));
        hal.addDevice(kUSBMic, "usbmic", "USB Mic", hal::kTransportUSB, 0, 1);
        hal.addDevice(kWebcam, "webcam", "Webcam", hal::kTransportUSB, 0, 1);
        switchTo(hal::kDefaultOutputDevice, kSpeakers);
        switchTo(hal::kDefaultInputDevice, kUSBMic);
    }
    void switchTo(std::uint32_t selector, AudioObjectID device) {
        hal.set(hal::kSystemObject, selector, device);
        hal.fire(hal::kSystemObject, hal::globalAddress(selector));
    }
    AudioObjectID current(std::uint32_t selector) {
        std::uint32_t size = 4;
        AudioObjectID id = 0;
        hal.getPropertyData(hal::kSystemObject, hal::globalAddress(selector), size, &id);
        return id;
    }
    void disconnect(AudioObjectID device) {
        std::erase(hal.deviceIDs, device);
        hal.setIDs(hal::kSystemObject, hal::kDevices, hal.deviceIDs);
        hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    }
    void reconnect(AudioObjectID device) {
        hal.deviceIDs.push_back(device);
        hal.setIDs(hal::kSystemObject, hal::kDevices, hal.deviceIDs);
        hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    }
};

TEST_F(DeviceLockTest, TheChosenOutputIsKeptLetGoWhileDisconnectedAndRestoredWhenItReturns) {
    OutputLockTool tool(outputDescriptor, fakes.platform());
    tool.start();
    EXPECT_EQ(tool.lockedUID(), "speakers") << "turned on without a choice: the current device";
    switchTo(hal::kDefaultOutputDevice, kMonitor);
    EXPECT_EQ(current(hal::kDefaultOutputDevice), kSpeakers);
    EXPECT_EQ(tool.restoredThisSession(), 1);

    disconnect(kSpeakers);
    switchTo(hal::kDefaultOutputDevice, kMonitor);
    EXPECT_EQ(current(hal::kDefaultOutputDevice), kMonitor) << "a missing device isn't fought for";
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find("Speakers (not connected)"),
              std::string::npos);
    reconnect(kSpeakers);
    EXPECT_EQ(current(hal::kDefaultOutputDevice), kSpeakers);

    hal.fail(Call::write, hal::kSystemObject, hal::kDefaultOutputDevice, -50);
    switchTo(hal::kDefaultOutputDevice, kMonitor);
    EXPECT_EQ(
        tool.lastError(),
        "Couldn't switch back to Speakers: Writing property 1682929012 failed (OSStatus -50)");
    hal.failures.clear();
    hal.fail(Call::read, hal::kSystemObject, hal::kDefaultOutputDevice, hal::kBadObjectError);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    EXPECT_EQ(tool.lastError(),
              "Couldn't read the current device: Reading property 1682929012 "
              "failed (OSStatus 560947818)");

    tool.stop();
    EXPECT_TRUE(hal.listeners.empty());
    EXPECT_EQ(OutputLockTool(outputDescriptor, fakes.platform()).lockedName(), "Speakers");
}

TEST_F(DeviceLockTest, TheMicLockKeepsTheChosenInputAndAChoiceTakesEffectAtOnce) {
    MicLockTool tool(micDescriptor, fakes.platform());
    tool.start();
    switchTo(hal::kDefaultInputDevice, kWebcam);
    EXPECT_EQ(current(hal::kDefaultInputDevice), kUSBMic);
    EXPECT_EQ(current(hal::kDefaultOutputDevice), kSpeakers);

    auto page = tool.settingsPage();
    const auto& choice = std::get<SettingsRow::Choice>(page.sections[0].rows[0].kind);
    EXPECT_EQ(choice.options.size(), 2u) << "input devices only";
    choice.set("webcam");
    EXPECT_EQ(current(hal::kDefaultInputDevice), kWebcam);
    EXPECT_EQ(fakes.preferences.string("micLock.deviceUID"), "webcam");
}

}  // namespace
}  // namespace quorvane
