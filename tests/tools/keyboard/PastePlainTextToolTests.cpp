#include "tools/keyboard/PastePlainTextTool.hpp"

#include <gtest/gtest.h>

#include "platform/PasteboardType.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

constexpr std::uint32_t kCarbonOptionCommandShift = 0x800 | 0x100 | 0x200;

struct PastePlainTextToolTest : ::testing::Test {
    FakePlatform fakes;
    PastePlainTextTool tool{catalogDescriptor("paste-plain-text"), fakes.platform()};
    // Two items, styled text and a picture, as a rich editor leaves them.
    const std::vector<PasteboardItem> original = {
        {{{pasteboard_type::string, FakePasteboard::bytes("Bold words")},
          {pasteboard_type::rtf, FakePasteboard::bytes("{\\rtf1 \\b Bold words}")},
          {pasteboard_type::html, FakePasteboard::bytes("<b>Bold words</b>")}}},
        {{{pasteboard_type::png, {0x89, 0, 255}}}},
    };

    void SetUp() override {
        fakes.pasteboard.copyItems(original);
        tool.start();
    }
    bool press() { return fakes.hotKeys.press(9, kCarbonOptionCommandShift); }
    std::size_t commandVs() const {
        std::size_t count = 0;
        for (const auto& posted : fakes.events.posted) {
            if (posted.event.eventType == EventType::keyDown &&
                posted.event.integers.at(eventField::keyboardKeycode) == 9) {
                ++count;
            }
        }
        return count;
    }
};

TEST_F(PastePlainTextToolTest, PastesPlainTextThenPutsEveryItemBack) {
    ASSERT_TRUE(press());
    EXPECT_EQ(fakes.pasteboard.items(),
              (std::vector<PasteboardItem>{
                  {{{pasteboard_type::string, FakePasteboard::bytes("Bold words")}}}}));
    fakes.scheduler.advance(Seconds(0.12));
    EXPECT_EQ(commandVs(), 1u);
    EXPECT_EQ(fakes.events.posted.back().event.integers.at(eventField::sourceUserData),
              PastePlainTextTool::kOwnKeyTag);
    fakes.scheduler.advance(Seconds(1));
    EXPECT_EQ(fakes.pasteboard.items(), original);

    // Pressed twice quickly: the original, not the plain text, comes back.
    ASSERT_TRUE(press());
    fakes.scheduler.advance(Seconds(0.2));
    ASSERT_TRUE(press());
    fakes.scheduler.advance(Seconds(2));
    EXPECT_EQ(commandVs(), 3u);
    EXPECT_EQ(fakes.pasteboard.items(), original);
}

TEST_F(PastePlainTextToolTest, ANewerCopyIsNeverOverwritten) {
    ASSERT_TRUE(press());
    fakes.scheduler.advance(Seconds(0.3));
    fakes.pasteboard.copyText("copied meanwhile");
    fakes.scheduler.advance(Seconds(2));
    EXPECT_EQ(fakes.pasteboard.string(pasteboard_type::string), "copied meanwhile");
}

TEST_F(PastePlainTextToolTest, TurningOffPutsTheOriginalBackAtOnce) {
    ASSERT_TRUE(press());
    tool.stop();
    EXPECT_EQ(fakes.pasteboard.items(), original);
    fakes.scheduler.advance(Seconds(2));
    EXPECT_EQ(commandVs(), 0u) << "no paste after turning off";
    EXPECT_FALSE(press()) << "the shortcut is given back";
}

TEST_F(PastePlainTextToolTest, NoTextOrARefusedWriteChangesNothing) {
    fakes.pasteboard.copyItems({{{{pasteboard_type::png, {1, 2}}}}});
    const auto before = fakes.pasteboard.changeCount();
    ASSERT_TRUE(press());
    EXPECT_EQ(fakes.screens.beeps, 1);
    EXPECT_EQ(fakes.pasteboard.changeCount(), before);

    fakes.pasteboard.copyItems(original);
    fakes.pasteboard.refuseWrites = true;
    ASSERT_TRUE(press());
    EXPECT_FALSE(tool.lastError().empty());
    fakes.pasteboard.refuseWrites = false;
    fakes.scheduler.advance(Seconds(2));
    EXPECT_EQ(commandVs(), 0u);
}

}  // namespace
}  // namespace quorvane
