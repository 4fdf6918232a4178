#include "tools/sound/VolumeHUDTool.hpp"

#include <gtest/gtest.h>

#include "audio/AudioCodes.hpp"
#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "ui/LevelBar.hpp"

namespace quorvane {
namespace {

constexpr AudioObjectID kSpeakers = 40;
using Key = VolumeKeys::Key;
using Level = VolumeKeys::Level;

TEST(VolumeKeys, StepsLandOnSixteenthsOrSixtyFourthsAndUnmute) {
    EXPECT_EQ(VolumeKeys::apply(Key::up, false, {0.5f, false}).volume, 0.5625f);
    EXPECT_EQ(VolumeKeys::apply(Key::down, false, {0.5f, false}).volume, 0.4375f);
    EXPECT_EQ(VolumeKeys::apply(Key::up, true, {0.5f, false}).volume, 0.515625f);
    // Between steps the first press goes to the next step, not a whole step further.
    EXPECT_EQ(VolumeKeys::apply(Key::up, false, {0.52f, false}).volume, 0.5625f);
    EXPECT_EQ(VolumeKeys::apply(Key::down, false, {0.52f, false}).volume, 0.5f);
    EXPECT_EQ(VolumeKeys::apply(Key::up, false, {1.0f, false}).volume, 1.0f);
    EXPECT_EQ(VolumeKeys::apply(Key::down, false, {0.0f, false}).volume, 0.0f);
    EXPECT_EQ(VolumeKeys::apply(Key::up, false, {0.25f, true}), (Level{0.3125f, false}));
    EXPECT_EQ(VolumeKeys::apply(Key::down, false, {0.0625f, true}), (Level{0.0f, true}));
    EXPECT_EQ(VolumeKeys::apply(Key::mute, false, {0.25f, false}), (Level{0.25f, true}));

    EXPECT_EQ(LevelBar{*VolumeKeys::card({0.5f, false}).level}.filledSegments(), 8);
    EXPECT_EQ(VolumeKeys::card({0.5f, true}).level, 0.0);
    EXPECT_EQ(VolumeKeys::card({0.5f, true}).systemImage, "speaker.slash.fill");
    EXPECT_EQ(VolumeKeys::card({0.9f, false}).systemImage, "speaker.wave.3.fill");
}

TEST(VolumeKeys, OnlyTheVolumeKeysAreRead) {
    const auto up = VolumeKeys::press(8, VolumeKeys::data1(VolumeKeys::kSoundUp, true, true));
    ASSERT_TRUE(up);
    EXPECT_EQ(up->key, Key::up);
    EXPECT_TRUE(up->down);
    EXPECT_TRUE(up->repeat);
    EXPECT_FALSE(VolumeKeys::press(8, VolumeKeys::data1(VolumeKeys::kMute, false))->down);
    EXPECT_FALSE(VolumeKeys::press(8, VolumeKeys::data1(2, true))) << "brightness";
    EXPECT_FALSE(VolumeKeys::press(8, VolumeKeys::data1(16, true))) << "play";
    EXPECT_FALSE(VolumeKeys::press(1, VolumeKeys::data1(VolumeKeys::kSoundUp, true)));
}

struct VolumeHUDToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<VolumeHUDTool> tool;

    void SetUp() override {
        fakes.audioHardware.addDevice(kSpeakers, "speakers", "Speakers");
        fakes.audioHardware.setDefaultOutput(kSpeakers, 48000);
        setLevel(0.5f, false);
        tool = std::make_unique<VolumeHUDTool>(catalogDescriptor("volume-hud"), fakes.platform());
        tool->start();
    }
    void setLevel(float volume, bool muted) {
        fakes.audioHardware.set(kSpeakers, hal::kVirtualMainVolume, volume, hal::kScopeOutput);
        fakes.audioHardware.set(kSpeakers, hal::kMute, std::uint32_t{muted}, hal::kScopeOutput);
    }
    Level level() {
        float volume = -1;
        std::uint32_t muted = 9;
        auto size = std::uint32_t{4};
        fakes.audioHardware.getPropertyData(
            kSpeakers, {hal::kVirtualMainVolume, hal::kScopeOutput, 0}, size, &volume);
        fakes.audioHardware.getPropertyData(kSpeakers, {hal::kMute, hal::kScopeOutput, 0}, size,
                                            &muted);
        return {volume, muted != 0};
    }
    // A key pressed and released; true when its key down went on to the system.
    bool press(std::int64_t keyType, std::uint64_t flags = 0) {
        bool passed = false;
        for (const bool down : {true, false}) {
            FakeEvent event;
            event.eventType = EventType::systemDefined;
            event.eventFlags = flags;
            event.subtype = VolumeKeys::kAuxControlButtons;
            event.data1 = VolumeKeys::data1(keyType, down);
            const bool went =
                fakes.events.deliver(*fakes.events.taps.at(0), event.eventType, event);
            passed = down ? went : passed;
        }
        return passed;
    }
};

TEST_F(VolumeHUDToolTest, VolumeKeysSetTheOutputAndShowTheLevelBar) {
    EXPECT_FALSE(press(VolumeKeys::kSoundUp));
    EXPECT_EQ(level(), (Level{0.5625f, false}));
    const HUDCard& card = fakes.screens.panels.at(0)->content;
    EXPECT_EQ(LevelBar{*card.level}.filledSegments(), 9);
    EXPECT_FALSE(press(VolumeKeys::kSoundDown, modifierFlag::option | modifierFlag::shift));
    EXPECT_EQ(level().volume, 0.546875f);
    EXPECT_FALSE(press(VolumeKeys::kMute));
    EXPECT_EQ(level(), (Level{0.546875f, true}));
    EXPECT_EQ(fakes.screens.panels.at(0)->content.title, "Muted");
    EXPECT_TRUE(press(VolumeKeys::kSoundUp + 2)) << "brightness goes on to the system";
}

TEST_F(VolumeHUDToolTest, OutputsWithoutAControlAndFailuresLeaveTheKeyToTheSystem) {
    fakes.audioHardware.data.erase({kSpeakers, {hal::kVirtualMainVolume, hal::kScopeOutput, 0}});
    EXPECT_TRUE(press(VolumeKeys::kSoundUp));
    EXPECT_TRUE(fakes.screens.panels.empty());

    setLevel(0.5f, false);
    fakes.audioHardware.fail(FakeAudioHardware::Call::write, kSpeakers, hal::kVirtualMainVolume,
                             hal::kUnspecifiedError);
    EXPECT_TRUE(press(VolumeKeys::kSoundUp));
    EXPECT_NE(tool->lastError().find("Couldn't change the volume"), std::string::npos);
    EXPECT_EQ(level().volume, 0.5f);

    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
}

}  // namespace
}  // namespace quorvane
