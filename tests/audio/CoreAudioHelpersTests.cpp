#include "audio/CoreAudio+Helpers.hpp"

#include <gtest/gtest.h>

#include <unordered_set>

#include "audio/PropertyListener.hpp"
#include "support/FakeAudioHardware.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;

TEST(CoreAudioHelpers, DeviceListsSkipWhatCannotBeNamedAndFallBackForTheRest) {
    FakeAudioHardware hal;
    hal.addDevice(10, "built-in", "MacBook Speakers", hal::fourCharCode("bltn"));
    hal.addDevice(11, "usb-mic", "USB Microphone", 0, 0, 1);
    hal.addDevice(12, "no-name", "ignored");
    hal.addDevice(13, "gone", "Gone");
    hal.fail(Call::read, 12, hal::kName, -1);
    hal.fail(Call::read, 12, hal::kTransportType, -1);
    hal.fail(Call::read, 13, hal::kDeviceUID, -1);
    hal.fail(Call::size, 10, hal::kStreams, -1);
    hal.setIDs(hal::kSystemObject, hal::kDevices, {0, 10, 11, 12, 13});
    hal.setString(11, hal::kDeviceUID, std::nullopt);

    const auto all = allDevices(hal);
    ASSERT_EQ(all.size(), 3u) << "ID 0 is skipped; a device whose uid fails is not listed";
    EXPECT_EQ(all[0], (AudioDevice{10, "built-in", "MacBook Speakers", hal::fourCharCode("bltn")}));
    EXPECT_EQ(all[1].uid, "") << "a NULL string reads as empty text";
    EXPECT_EQ(all[2], (AudioDevice{12, "no-name", "Unknown Device", 0}));
    ASSERT_EQ(outputDevices(hal).size(), 1u) << "no output streams, or a failed size, leave out";
    EXPECT_EQ(outputDevices(hal)[0].id, 12u);
    EXPECT_EQ(inputDevices(hal)[0].id, 11u);
    EXPECT_FALSE(deviceWithID(hal, 0));
    EXPECT_FALSE(deviceWithID(hal, 13));

    hal.setIDs(hal::kSystemObject, hal::kDevices, {});
    EXPECT_TRUE(allDevices(hal).empty()) << "no devices at all";
    for (std::size_t bytes = 0; bytes < 4; ++bytes) {
        hal.data[{hal::kSystemObject, hal::globalAddress(hal::kDevices)}].assign(bytes, 0xFF);
        EXPECT_TRUE(allDevices(hal).empty()) << bytes << " bytes are not one ID";
    }
    hal.fail(Call::read, hal::kSystemObject, hal::kDevices, -1);
    EXPECT_TRUE(allDevices(hal).empty());

    const AudioDevice a{1, "uid", "Name", 2};
    EXPECT_NE(a, (AudioDevice{1, "uid", "Other", 2})) << "equal only in all four fields";
    EXPECT_NE(a, (AudioDevice{1, "uid", "Name", 3}));
    EXPECT_EQ(std::unordered_set<AudioDevice>({a, AudioDevice{1, "uid", "Other", 2}, a}).size(),
              2u);
}

TEST(CoreAudioHelpers, FailuresThatDecideAnActionThrowWithTheirOperation) {
    FakeAudioHardware hal;
    hal.addDevice(10, "built-in", "Speakers");
    EXPECT_FALSE(defaultInputDevice(hal)) << "the input side falls back to no device";
    try {
        defaultOutputDeviceID(hal);
        FAIL() << "the output side throws";
    } catch (const CoreAudioError& error) {
        EXPECT_EQ(error.description(), "Reading property 1682929012 failed (OSStatus 2003332927)");
    }
    setDefaultOutputDevice(hal, 10);
    setDefaultInputDevice(hal, 10);
    EXPECT_EQ(defaultOutputDeviceID(hal), 10u);
    EXPECT_EQ(defaultInputDevice(hal)->uid, "built-in");

    hal.fail(Call::write, hal::kSystemObject, hal::kDefaultInputDevice, -5);
    hal.fail(Call::size, hal::kSystemObject, hal::kProcessObjectList, 7);
    const auto description = [](auto action) {
        try {
            action();
        } catch (const CoreAudioError& error) {
            return error.description();
        }
        return std::string("nothing thrown");
    };
    EXPECT_EQ(description([&] { setDefaultInputDevice(hal, 11); }),
              "Writing property 1682533920 failed (OSStatus -5)");
    EXPECT_EQ(description([&] { readIDListProperty(hal, hal::kProcessObjectList, 0, 1); }),
              "Sizing property 1886548771 failed (OSStatus 7)");
}

TEST(PropertyListener, ReleasingItRemovesTheVeryRegistrationThatWasAdded) {
    FakeAudioHardware hal;
    const AudioPropertyAddress address = hal::globalAddress(hal::kDefaultOutputDevice);
    int calls = 0;
    {
        PropertyListener first(hal, hal::kSystemObject, address, [&] { ++calls; });
        PropertyListener second(hal, hal::kSystemObject, address, [&] { calls += 10; });
        hal.fire(hal::kSystemObject, address);
        EXPECT_EQ(calls, 11);
    }
    EXPECT_EQ(hal.listenerCount(hal::kSystemObject, address), 0u);
    EXPECT_EQ(hal.mismatchedRemovals, 0) << "same object, address and block on removal";

    hal.fail(Call::addListener, hal::kSystemObject, address.selector, -1);
    EXPECT_FALSE(PropertyListener(hal, hal::kSystemObject, address, [] {}).isRegistered());
    EXPECT_EQ(hal.mismatchedRemovals, 0) << "a refused registration removes nothing";
}

}  // namespace
}  // namespace quorvane
