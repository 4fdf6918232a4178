#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/sound/VolumeKeys.hpp"
#include "tools/system/BrightnessKeys.hpp"
#include "tools/system/DdcPacket.hpp"
#include "tools/system/DisplayBrightnessTool.hpp"

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;

TEST(DdcPacket, SpeaksDdcCiWithItsChecksums) {
    EXPECT_EQ(DdcPacket::getVCP(0x10), (Bytes{0x82, 0x01, 0x10, 0xAC}));
    EXPECT_EQ(DdcPacket::setVCP(0x10, 50), (Bytes{0x84, 0x03, 0x10, 0x00, 0x32, 0x9A}));
    Bytes reply{0x6E, 0x88, 0x02, 0x00, 0x10, 0x00, 0x00, 0x64, 0x00, 0x32, 0xF2};
    EXPECT_EQ(DdcPacket::reply(reply, 0x10), (DdcPacket::Value{50, 100}));
    EXPECT_FALSE(DdcPacket::reply(reply, 0x12)) << "about another control";
    EXPECT_FALSE(DdcPacket::reply(Bytes(reply.begin(), reply.end() - 1), 0x10)) << "short";
    auto garbled = reply;
    garbled[9] = 0x33;
    EXPECT_FALSE(DdcPacket::reply(garbled, 0x10)) << "checksum";
    auto refused = reply;
    refused[3] = 0x01;
    refused[10] ^= 0x01;
    EXPECT_FALSE(DdcPacket::reply(refused, 0x10)) << "unsupported code";
    EXPECT_FALSE(DdcPacket::reply(Bytes(11, 0), 0x10)) << "a silent bus reads zeros";
}

TEST(BrightnessKeys, ReadsTheBrightnessKeysAndStepsAndDimsLikeTheSystem) {
    EXPECT_TRUE(BrightnessKeys::press(8, VolumeKeys::data1(2, true))->up);
    EXPECT_FALSE(BrightnessKeys::press(8, VolumeKeys::data1(3, true))->up);
    EXPECT_FALSE(BrightnessKeys::press(8, VolumeKeys::data1(3, false))->down);
    EXPECT_FALSE(BrightnessKeys::press(8, VolumeKeys::data1(VolumeKeys::kSoundUp, true)));
    EXPECT_FALSE(BrightnessKeys::press(1, VolumeKeys::data1(2, true)));
    EXPECT_DOUBLE_EQ(BrightnessKeys::step(0.5, true, false), 0.5625);
    EXPECT_DOUBLE_EQ(BrightnessKeys::step(0.51, false, false), 0.5);
    EXPECT_DOUBLE_EQ(BrightnessKeys::step(0.5, false, true), 0.484375);
    EXPECT_DOUBLE_EQ(BrightnessKeys::step(0.0, false, false), 0.0);
    const DisplayControl::GammaTable table{{0, 1}, {0, 0.5F}, {1}};
    EXPECT_EQ(BrightnessKeys::dimmed(table, 0),
              (DisplayControl::GammaTable{{0, 0.1F}, {0, 0.05F}, {0.1F}}))
        << "never black";
    EXPECT_EQ(BrightnessKeys::dimmed(table, 1), table);
}

struct DisplayBrightnessToolTest : ::testing::Test {
    FakePlatform fakes;
    DisplayBrightnessTool tool{catalogDescriptor("display-brightness"), fakes.platform()};

    DisplayBrightnessToolTest() {
        fakes.displayControl.add(1, false, {{0, 0}, {1512, 982}}, true);
        fakes.displayControl.add(2, true, {{1512, 0}, {2560, 1440}});
        fakes.displayControl.add(3, false, {{-1920, 0}, {1920, 1080}});
    }
    // A brightness key pressed with the pointer at `x`; answers whether it went on.
    bool press(double x, std::int64_t key, bool down = true) {
        fakes.screens.mouse = {x, 100};
        FakeEvent event;
        event.eventType = EventType::systemDefined;
        event.subtype = 8;
        event.data1 = VolumeKeys::data1(key, down);
        return fakes.events.deliver(*fakes.events.taps.at(0), EventType::systemDefined, event);
    }
    const DisplayBrightnessTool::Screen& screen(std::size_t index) {
        return tool.screens().at(index);
    }
};

TEST_F(DisplayBrightnessToolTest, KeysChangeTheDisplayWithThePointerOverDdcOrGamma) {
    tool.start();
    ASSERT_EQ(tool.screens().size(), 2u) << "the built-in display is the system's";
    EXPECT_EQ(screen(0).method, DisplayBrightnessTool::Method::probing);
    EXPECT_EQ(screen(1).method, DisplayBrightnessTool::Method::gamma) << "refused at once";
    fakes.scheduler.advance(50ms);
    EXPECT_EQ(screen(0).method, DisplayBrightnessTool::Method::ddc);
    EXPECT_DOUBLE_EQ(screen(0).level, 0.5);

    EXPECT_TRUE(press(100, BrightnessKeys::kBrightnessUp)) << "built-in: the system's key";
    EXPECT_FALSE(press(2000, BrightnessKeys::kBrightnessUp));
    EXPECT_FALSE(press(2000, BrightnessKeys::kBrightnessUp, false));
    EXPECT_EQ(fakes.displayControl.monitors[2].brightness, 56);
    EXPECT_EQ(fakes.displayControl.sets, (std::vector<std::string>{"set 2 56"}));

    EXPECT_FALSE(press(-100, BrightnessKeys::kBrightnessDown));
    EXPECT_FLOAT_EQ(fakes.displayControl.monitors[3].gamma.red[2], 0.1F + 0.9F * 0.9375F);
    EXPECT_NE(
        SettingsTextRenderer::render(tool.settingsPage()).find("Display 3 (dimmed by Quorvane)"),
        std::string::npos);

    // Off: the monitor gets its own brightness back and the colours their profile.
    tool.stop();
    EXPECT_EQ(fakes.displayControl.monitors[2].brightness, 50);
    EXPECT_EQ(fakes.displayControl.restores, 1);
    EXPECT_FALSE(fakes.preferences.object(DisplayBrightnessTool::kOriginalsKey));
    EXPECT_TRUE(fakes.events.taps.empty());

    // A software level comes back on the next start.
    tool.start();
    EXPECT_DOUBLE_EQ(screen(1).level, 0.9375);
}

TEST_F(DisplayBrightnessToolTest, ABrightnessLeftByACrashIsPutBackByTidy) {
    tool.start();
    fakes.scheduler.advance(50ms);
    tool.setLevel(2, 0.2);
    tool.setLevel(2, 0.3);
    EXPECT_EQ(fakes.displayControl.monitors[2].brightness, 30);
    // The app dies here: a new instance finds the backup and the tool off.
    DisplayBrightnessTool next{catalogDescriptor("display-brightness"), fakes.platform()};
    next.tidy();
    EXPECT_EQ(fakes.displayControl.monitors[2].brightness, 50);
    EXPECT_FALSE(fakes.preferences.object(DisplayBrightnessTool::kOriginalsKey));

    // A failed write shows, and nothing else changes.
    fakes.displayControl.writeStatus = static_cast<int>(0xE00002D8);
    tool.setLevel(2, 0.9);
    ASSERT_TRUE(tool.lastError());
    EXPECT_EQ(*tool.lastError(), "Changing the brightness of Display 2 failed (status 0xE00002D8)");
}

}  // namespace
}  // namespace quorvane
