#include "audio/CoreAudio+Helpers.hpp"

#include <gtest/gtest.h>

#include <unordered_set>

#include "audio/AudioCodes.hpp"
#include "audio/PropertyListener.hpp"
#include "support/FakeAudioHardware.hpp"

namespace quorvane {
namespace {

using Call = FakeAudioHardware::Call;

TEST(CoreAudioError, DescribesTheOperationAndTheSignedStatus) {
    EXPECT_EQ(CoreAudioError(-50, "Creating the audio tap").description(),
              "Creating the audio tap failed (OSStatus -50)");
    EXPECT_EQ(CoreAudioError::reading(560947818, hal::kDefaultOutputDevice).description(),
              "Reading property 1682929012 failed (OSStatus 560947818)");
    EXPECT_EQ(CoreAudioError::sizing(1, hal::kDevices).operation(), "Sizing property 1684370979");
    EXPECT_EQ(CoreAudioError::writing(1, hal::kDefaultInputDevice).operation(),
              "Writing property 1682533920");
    EXPECT_EQ(hal::kProcessObjectList, 1886548771u);
}

TEST(CoreAudioHelpers, DeviceListsSkipWhatCannotBeNamedAndFallBackForTheRest) {
    FakeAudioHardware hal;
    hal.addDevice(10, "built-in", "MacBook Speakers", hal::fourCharCode("bltn"));
    hal.addDevice(11, "usb-mic", "USB Microphone", hal::fourCharCode("usb "), 0, 1);
    hal.addDevice(12, "no-name", "ignored");
    hal.addDevice(13, "gone", "Gone");
    hal.fail(Call::read, 12, hal::kName, hal::kUnspecifiedError);
    hal.fail(Call::read, 12, hal::kTransportType, hal::kUnspecifiedError);
    hal.fail(Call::read, 13, hal::kDeviceUID, hal::kBadObjectError);
    hal.fail(Call::size, 10, hal::kStreams, hal::kUnspecifiedError);
    hal.deviceIDs.insert(hal.deviceIDs.begin(), 0);
    hal.setIDs(hal::kSystemObject, hal::kDevices, hal.deviceIDs);
    hal.setString(11, hal::kDeviceUID, std::nullopt);

    const auto all = allDevices(hal);
    ASSERT_EQ(all.size(), 3u) << "ID 0 is skipped and a device without a uid is not listed";
    EXPECT_EQ(all[0], (AudioDevice{10, "built-in", "MacBook Speakers", hal::fourCharCode("bltn")}));
    EXPECT_EQ(all[1].uid, "") << "a NULL uid string reads as empty text";
    EXPECT_EQ(all[2], (AudioDevice{12, "no-name", "Unknown Device", 0}));

    const auto outputs = outputDevices(hal);
    ASSERT_EQ(outputs.size(), 1u) << "no output streams, or a failed size query, leave a device out";
    EXPECT_EQ(outputs[0].id, 12u);
    const auto inputs = inputDevices(hal);
    ASSERT_EQ(inputs.size(), 1u);
    EXPECT_EQ(inputs[0].id, 11u);

    EXPECT_FALSE(deviceWithID(hal, 0));
    EXPECT_FALSE(deviceWithID(hal, 13));
    EXPECT_EQ(deviceWithID(hal, 10)->name, "MacBook Speakers");
}

TEST(CoreAudioHelpers, IDListsShorterThanOneIDAreEmptyAndFailuresThrowTheirOperation) {
    FakeAudioHardware hal;
    for (std::size_t bytes = 0; bytes < 4; ++bytes) {
        hal.data[{hal::kSystemObject, hal::globalAddress(hal::kDevices)}] =
            std::vector<std::uint8_t>(bytes, 0xFF);
        EXPECT_TRUE(readIDListProperty(hal, hal::kDevices, 0, hal::kSystemObject).empty());
        EXPECT_TRUE(allDevices(hal).empty());
    }
    hal.setIDs(hal::kSystemObject, hal::kDevices, {7, 8});
    EXPECT_EQ(readIDListProperty(hal, hal::kDevices, 0, hal::kSystemObject),
              (std::vector<std::uint32_t>{7, 8}));

    hal.fail(Call::read, hal::kSystemObject, hal::kDevices, -1);
    try {
        readIDListProperty(hal, hal::kDevices, 0, hal::kSystemObject);
        FAIL() << "a failed read throws";
    } catch (const CoreAudioError& error) {
        EXPECT_EQ(error.description(), "Reading property 1684370979 failed (OSStatus -1)");
    }
    EXPECT_TRUE(allDevices(hal).empty()) << "the display list never throws";
    hal.fail(Call::size, hal::kSystemObject, hal::kDevices, -2);
    EXPECT_THROW(readIDListProperty(hal, hal::kDevices, 0, hal::kSystemObject), CoreAudioError);
}

TEST(CoreAudioHelpers, DefaultDevicesReadAndWriteTheSystemObject) {
    FakeAudioHardware hal;
    hal.addDevice(10, "built-in", "Speakers");
    EXPECT_THROW(defaultOutputDeviceID(hal), CoreAudioError) << "the output side throws";
    EXPECT_FALSE(defaultInputDevice(hal)) << "the input side falls back to no device";

    setDefaultOutputDevice(hal, 10);
    setDefaultInputDevice(hal, 10);
    EXPECT_EQ(defaultOutputDeviceID(hal), 10u);
    EXPECT_EQ(defaultInputDevice(hal)->uid, "built-in");

    hal.fail(Call::write, hal::kSystemObject, hal::kDefaultInputDevice, 5);
    try {
        setDefaultInputDevice(hal, 11);
        FAIL() << "a failed write throws";
    } catch (const CoreAudioError& error) {
        EXPECT_EQ(error.description(), "Writing property 1682533920 failed (OSStatus 5)");
    }
}

TEST(AudioDevice, EqualityAndHashUseAllFourFields) {
    const AudioDevice a{1, "uid", "Name", 2};
    EXPECT_NE(a, (AudioDevice{1, "uid", "Other", 2}));
    EXPECT_NE(a, (AudioDevice{1, "uid", "Name", 3}));
    EXPECT_NE(a, (AudioDevice{1, "other", "Name", 2}));
    std::unordered_set<AudioDevice> set{a, AudioDevice{1, "uid", "Other", 2}, a};
    EXPECT_EQ(set.size(), 2u);
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
        EXPECT_EQ(hal.listenerCount(hal::kSystemObject, address), 2u);
    }
    EXPECT_EQ(hal.listenerCount(hal::kSystemObject, address), 0u);
    EXPECT_EQ(hal.mismatchedRemovals, 0) << "same object, address and block on removal";
    hal.fire(hal::kSystemObject, address);
    EXPECT_EQ(calls, 11);

    hal.fail(Call::addListener, hal::kSystemObject, address.selector, -1);
    {
        PropertyListener refused(hal, hal::kSystemObject, address, [&] { ++calls; });
        EXPECT_FALSE(refused.isRegistered());
    }
    EXPECT_EQ(hal.mismatchedRemovals, 0) << "a refused registration removes nothing";
}

}  // namespace
}  // namespace quorvane
