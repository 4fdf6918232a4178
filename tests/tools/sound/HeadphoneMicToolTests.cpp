#include "tools/sound/HeadphoneMicTool.hpp"

#include <gtest/gtest.h>

#include "audio/AudioCodes.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;
constexpr AudioObjectID kBuiltIn = 50;
constexpr AudioObjectID kAirPods = 51;
constexpr AudioObjectID kUSB = 52;
constexpr AudioObjectID kWebcam = 53;

struct HeadphoneMicToolTest : ::testing::Test {
    FakePlatform fakes;
    FakeAudioHardware& hal = fakes.audioHardware;
    ToolDescriptor descriptor = catalogDescriptor("headphone-mic");
    HeadphoneMicTool tool{descriptor, fakes.platform()};

    void addMic(AudioObjectID id, const std::string& uid, std::uint32_t transport) {
        hal.addDevice(id, uid, uid + " mic", transport, 0, 1);
    }
    void setInput(AudioObjectID id) {
        hal.set(hal::kSystemObject, hal::kDefaultInputDevice, id);
        hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultInputDevice));
    }
    AudioObjectID input() {
        std::uint32_t size = 4;
        AudioObjectID id = 0;
        hal.getPropertyData(hal::kSystemObject, hal::globalAddress(hal::kDefaultInputDevice), size,
                            &id);
        return id;
    }
};

TEST_F(HeadphoneMicToolTest, ABluetoothDefaultInputMovesToTheBuiltInMicAndCountsOnce) {
    addMic(kAirPods, "airpods", hal::kTransportBluetooth);
    addMic(kUSB, "usb", hal::kTransportUSB);
    addMic(kBuiltIn, "builtin", hal::kTransportBuiltIn);
    hal.set(hal::kSystemObject, hal::kDefaultInputDevice, kBuiltIn);
    tool.start();
    EXPECT_EQ(tool.switchedThisSession(), 0);

    setInput(kAirPods);
    EXPECT_EQ(input(), kBuiltIn) << "built-in goes before the first usable microphone";
    EXPECT_EQ(tool.switchedThisSession(), 1);
    EXPECT_EQ(tool.currentInput()->id, kBuiltIn);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDefaultInputDevice));
    EXPECT_EQ(tool.switchedThisSession(), 1) << "the switch's own notice changes nothing";

    setInput(kUSB);
    EXPECT_EQ(input(), kUSB) << "a wired or USB input is left alone even if not preferred";
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage())
                  .find("Headphone mic avoided this session: 1"),
              std::string::npos);

    tool.stop();
    EXPECT_TRUE(hal.listeners.empty());
    setInput(kAirPods);
    EXPECT_EQ(input(), kAirPods);
}

TEST_F(HeadphoneMicToolTest, TheTargetIsThePreferredMicThenBuiltInThenTheFirstUsable) {
    const std::vector<AudioDevice> inputs = {
        {kAirPods, "airpods", "AirPods", hal::kTransportBluetoothLE},
        {kWebcam, "webcam", "Webcam", hal::kTransportUSB},
        {kUSB, "usb", "USB", hal::kTransportUSB},
        {kBuiltIn, "builtin", "Built-in", hal::kTransportBuiltIn}};
    EXPECT_EQ(HeadphoneMicTool::target(inputs, "usb")->id, kUSB);
    EXPECT_EQ(HeadphoneMicTool::target(inputs, "gone")->id, kBuiltIn);
    EXPECT_EQ(HeadphoneMicTool::target(inputs, "airpods")->id, kBuiltIn)
        << "a Bluetooth choice is never used";
    EXPECT_EQ(HeadphoneMicTool::target({inputs[0], inputs[1], inputs[2]}, "gone")->id, kWebcam);
    EXPECT_FALSE(HeadphoneMicTool::target({inputs[0]}, std::nullopt));

    tool.setPreferredMicUID("usb");
    EXPECT_EQ(HeadphoneMicTool(descriptor, fakes.platform()).preferredMicUID(), "usb");
    tool.setPreferredMicUID(std::nullopt);
    EXPECT_FALSE(fakes.preferences.object(HeadphoneMicTool::kPreferredKey));
}

TEST_F(HeadphoneMicToolTest, WithOnlyTheHeadsetsMicOrAFailingSwitchNothingChanges) {
    addMic(kAirPods, "airpods", hal::kTransportBluetooth);
    hal.set(hal::kSystemObject, hal::kDefaultInputDevice, kAirPods);
    tool.start();
    EXPECT_EQ(input(), kAirPods);
    EXPECT_EQ(tool.switchedThisSession(), 0);
    EXPECT_NE(
        SettingsTextRenderer::render(tool.settingsPage()).find(HeadphoneMicTool::kNoMicrophone),
        std::string::npos);

    addMic(kBuiltIn, "builtin", hal::kTransportBuiltIn);
    hal.fail(Call::write, hal::kSystemObject, hal::kDefaultInputDevice, hal::kBadObjectError);
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    EXPECT_EQ(tool.switchedThisSession(), 0);
    EXPECT_EQ(tool.currentInput()->id, kAirPods);
    hal.failures.clear();
    hal.fire(hal::kSystemObject, hal::globalAddress(hal::kDevices));
    EXPECT_EQ(input(), kBuiltIn) << "a new microphone is used as soon as it is connected";

    const std::string page = SettingsTextRenderer::render(tool.settingsPage());
    EXPECT_NE(page.find("Microphone to use: Automatic (any connected microphone)  (Automatic (any "
                        "connected microphone) | Built-in microphone)"),
              std::string::npos)
        << page;
}

}  // namespace
}  // namespace quorvane
