#include "tools/windows/WindowSnapTool.hpp"

#include <gtest/gtest.h>

#include <limits>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

constexpr std::uint32_t kControlOption = 0x1800;  // Carbon ⌃⌥
constexpr std::uint32_t kControlOptionCommand = 0x1900;

const ToolDescriptor& descriptor() {
    return catalogDescriptor("window-snap");
}

struct WindowSnapToolTest : ::testing::Test {
    FakePlatform fakes;
    Element window;

    void SetUp() override {
        auto& a = fakes.accessibility;
        window = a.makeWindow(42, {100, 100, 800, 600});
        Element app = a.application(42);
        a.attributes[{a.systemWideElement.get(), "AXFocusedApplication"}] = app;
        a.attributes[{app.get(), "AXFocusedWindow"}] = window;
    }
    std::unique_ptr<WindowSnapTool> make() {
        return std::make_unique<WindowSnapTool>(descriptor(), fakes.platform());
    }
    Rect frame() { return *fakes.accessibility.frameOf(window); }
    std::string stored() {
        const auto data = fakes.preferences.data(WindowSnapTool::kShortcutsKey);
        return data ? std::string(data->begin(), data->end()) : std::string();
    }
};

TEST_F(WindowSnapToolTest, ShortcutsSnapTheFrontWindowAndCycleDisplays) {
    // A second display up and to the left of the primary one, and taller.
    fakes.screens.displays.push_back({{-1920, 900, 1920, 1080}, {-1920, 900, 1920, 1080}});
    fakes.hotKeys.takenElsewhere.insert({40, kControlOption});
    auto tool = make();
    tool->start();
    EXPECT_EQ(fakes.hotKeys.live.size(), 10u);
    EXPECT_EQ(tool->conflicts(), std::set<SnapAction>{SnapAction::bottomRight})
        << "⌃⌥K is taken elsewhere; the others still work";

    ASSERT_TRUE(fakes.hotKeys.press(123, kControlOption));
    EXPECT_EQ(frame(), Rect(0, 25, 720, 875));
    ASSERT_TRUE(fakes.hotKeys.press(124, kControlOptionCommand));
    EXPECT_EQ(frame(), Rect(-1320, -978, 720, 876)) << "centred there, rounded outward";
    ASSERT_TRUE(fakes.hotKeys.press(124, kControlOptionCommand));
    EXPECT_EQ(frame(), Rect(360, 25, 720, 875)) << "back on the first display, shrunk to fit";
    EXPECT_EQ(fakes.screens.beeps, 0);

    fakes.accessibility.writeAnswers["AXSize"] = Accessibility::kCannotComplete;
    fakes.hotKeys.press(126, kControlOption);
    EXPECT_EQ(fakes.screens.beeps, 1);
    EXPECT_EQ(tool->lastError(), "Couldn't move the window (AXError -25204)");

    fakes.accessibility.writeAnswers.clear();
    // A window caught opening answers nonsense sizes; nothing of them may reach the window.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    int beeps = fakes.screens.beeps;
    for (const Size bad : {Size{nan, 600}, Size{800, inf}, Size{0, 600}, Size{800, -1}}) {
        fakes.accessibility.attributes[{window.get(), "AXSize"}] = bad;
        const std::size_t writes = fakes.accessibility.writes.size();
        for (const std::uint32_t key : {8u, 124u}) {  // centre, then the next display
            fakes.hotKeys.press(key, key == 8u ? kControlOption : kControlOptionCommand);
            EXPECT_EQ(fakes.screens.beeps, ++beeps) << "no usable frame: a beep";
        }
        EXPECT_EQ(fakes.accessibility.writes.size(), writes) << "nothing written to the window";
    }

    fakes.accessibility.attributes.erase({window.get(), "AXSize"});
    fakes.hotKeys.press(123, kControlOption);
    EXPECT_EQ(fakes.screens.beeps, beeps + 1) << "no readable frame: a beep";
    tool->stop();
    EXPECT_TRUE(fakes.hotKeys.live.empty());
}

TEST_F(WindowSnapToolTest, LetterDefaultsFollowTheKeyboardLayout) {
    auto fallback = make()->shortcuts();
    EXPECT_EQ(fallback.at(SnapAction::topLeft), (KeyCombo{32, 0xC0000, "U"}))
        << "no layout: the US key codes";
    EXPECT_EQ(fallback.at(SnapAction::maximize)->displayText(), "⌃⌥↩");
    EXPECT_EQ(fallback.at(SnapAction::nextDisplay)->displayText(), "⌃⌥⌘→");

    // A layout that puts "u" where US keyboards have F, and "c" nowhere.
    fakes.keyboardLayout.keys = {{3, u"u"}, {32, u"y"}, {34, u"i"}, {38, u"j"}, {40, u"k"}};
    const auto moved = make()->shortcuts();
    EXPECT_EQ(moved.at(SnapAction::topLeft), (KeyCombo{3, 0xC0000, "U"}));
    EXPECT_EQ(moved.at(SnapAction::center), (KeyCombo{8, 0xC0000, "C"}));
}

TEST_F(WindowSnapToolTest, TheShortcutMapPersistsAndBadDataFallsBackUntouched) {
    auto tool = make();
    tool->start();
    tool->setShortcut(SnapAction::leftHalf, std::nullopt);
    tool->setShortcut(SnapAction::center, KeyCombo{8, 0x100000, "C"});
    EXPECT_FALSE(fakes.hotKeys.press(123, kControlOption)) << "given back at once";
    EXPECT_NE(stored().find("\"leftHalf\":null"), std::string::npos) << stored();

    const auto reread = make()->shortcuts();
    EXPECT_EQ(reread.at(SnapAction::leftHalf), std::nullopt) << "no shortcut is a choice";
    EXPECT_EQ(reread.at(SnapAction::center), (KeyCombo{8, 0x100000, "C"}));
    EXPECT_EQ(reread.at(SnapAction::rightHalf)->keyCode, 124u);

    tool->restoreDefaultShortcuts();
    EXPECT_TRUE(fakes.hotKeys.press(123, kControlOption));
    EXPECT_EQ(fakes.hotKeys.live.size(), 11u);

    const std::string corrupt = "{\"leftHalf\": [";
    fakes.preferences.set(WindowSnapTool::kShortcutsKey,
                          PreferenceValue::Data(corrupt.begin(), corrupt.end()));
    EXPECT_EQ(make()->shortcuts().at(SnapAction::leftHalf)->keyCode, 123u);
    EXPECT_EQ(stored(), corrupt) << "left for the user, not overwritten";
}

TEST_F(WindowSnapToolTest, ThePageWarnsOfAnotherSnappingApp) {
    auto tool = make();
    tool->start();
    fakes.workspace.add(7, "com.manytricks.Moom", "Moom");
    fakes.workspace.add(8, "com.knollsoft.Rectangle", "Rectangle");
    const auto page = tool->settingsPage();
    EXPECT_EQ(std::get<SettingsRow::Warning>(page.sections[0].rows[0].kind)
                  .text.find("Rectangle is running"),
              0u)
        << "the first of the list, not of the running apps";
}

}  // namespace
}  // namespace quorvane
