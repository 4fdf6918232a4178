#include "tools/keyboard/HomeEndTool.hpp"

#include <gtest/gtest.h>

#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

constexpr std::uint64_t kShift = modifierFlag::shift;
constexpr std::uint64_t kCommand = modifierFlag::command;
constexpr std::uint64_t kArrow = HomeEndEngine::kArrowFlags;
// The fn flag a real Home press carries; it says nothing about the modifiers held.
constexpr std::uint64_t kFn = 0x800000;

struct HomeEndToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<HomeEndTool> tool;

    void SetUp() override {
        fakes.workspace.add(10, "com.apple.TextEdit", "TextEdit");
        fakes.workspace.add(11, "com.apple.Terminal", "Terminal");
        fakes.workspace.add(12, "com.example.game", "Game");
        fakes.workspace.frontmostPID = 10;
        tool = std::make_unique<HomeEndTool>(catalogDescriptor("home-end"), fakes.platform());
        tool->start();
    }
    // One key event through the tool's tap; true when it went on to the app.
    bool key(EventType type, std::uint16_t keyCode, std::uint64_t flags = kFn,
             std::int64_t tag = 0) {
        FakeEvent event;
        event.eventType = type;
        event.eventFlags = flags;
        event.integers[eventField::keyboardKeycode] = keyCode;
        if (tag != 0) {
            event.integers[eventField::sourceUserData] = tag;
        }
        return fakes.events.deliver(*fakes.events.taps.at(0), type, event);
    }
    bool press(std::uint16_t keyCode, std::uint64_t flags = kFn) {
        const bool down = key(EventType::keyDown, keyCode, flags);
        const bool up = key(EventType::keyUp, keyCode, flags);
        EXPECT_EQ(down, up) << "a key comes up where it went down";
        return down;
    }
    void activate(int pid) {
        fakes.workspace.frontmostPID = pid;
        const auto app = fakes.workspace.runningApplication(pid);
        fakes.workspace.post(WorkspaceNotification::didActivateApplication, &*app);
    }
    // The posted presses as (key code, flags), one per key-down, after checking each pair.
    std::vector<HomeEndEngine::Press> posted() {
        std::vector<HomeEndEngine::Press> presses;
        const auto& events = fakes.events.posted;
        EXPECT_EQ(events.size() % 2, 0u);
        for (std::size_t i = 0; i + 1 < events.size(); i += 2) {
            const auto& down = events[i].event;
            const auto& up = events[i + 1].event;
            EXPECT_EQ(events[i].location, EventSystem::Location::hid);
            EXPECT_EQ(down.eventType, EventType::keyDown);
            EXPECT_EQ(up.eventType, EventType::keyUp);
            EXPECT_EQ(down.integerField(eventField::keyboardKeycode),
                      up.integerField(eventField::keyboardKeycode));
            EXPECT_EQ(down.eventFlags, up.eventFlags);
            EXPECT_EQ(down.integerField(eventField::sourceUserData), ownEventTag::key);
            EXPECT_EQ(up.integerField(eventField::sourceUserData), ownEventTag::key);
            presses.push_back(
                {static_cast<std::uint16_t>(down.integerField(eventField::keyboardKeycode)),
                 down.eventFlags});
        }
        fakes.events.posted.clear();
        return presses;
    }
};

TEST_F(HomeEndToolTest, HomeAndEndBecomeTheMacsLineAndDocumentShortcuts) {
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    EXPECT_EQ(fakes.events.taps[0]->mask, 0xC00u) << "key-down and key-up only";

    EXPECT_FALSE(press(HomeEndEngine::kHome));
    EXPECT_FALSE(press(HomeEndEngine::kEnd, kShift | kFn));
    EXPECT_FALSE(press(HomeEndEngine::kHome, kCommand | kFn));
    EXPECT_FALSE(press(HomeEndEngine::kEnd, kShift | kCommand | kFn));
    using Press = HomeEndEngine::Press;
    EXPECT_EQ(posted(), (std::vector<Press>{
                            {HomeEndEngine::kLeftArrow, kCommand | kArrow},
                            {HomeEndEngine::kRightArrow, kShift | kCommand | kArrow},
                            {HomeEndEngine::kUpArrow, kCommand | kArrow},
                            {HomeEndEngine::kDownArrow, kShift | kCommand | kArrow},
                        }))
        << "⇧End selects to the line's end; ⌘ goes to the document's ends";

    // Held down: every repeat moves again, and the one key-up is swallowed.
    EXPECT_FALSE(key(EventType::keyDown, HomeEndEngine::kEnd));
    EXPECT_FALSE(key(EventType::keyDown, HomeEndEngine::kEnd));
    EXPECT_FALSE(key(EventType::keyUp, HomeEndEngine::kEnd));
    EXPECT_EQ(posted().size(), 2u);

    EXPECT_TRUE(press(HomeEndEngine::kHome, modifierFlag::option | kFn)) << "⌥Home is the app's";
    EXPECT_TRUE(press(HomeEndEngine::kEnd, modifierFlag::control | kShift));
    EXPECT_TRUE(press(HomeEndEngine::kLeftArrow, kCommand)) << "other keys pass untouched";
    EXPECT_TRUE(key(EventType::keyUp, HomeEndEngine::kHome)) << "pressed before the tool started";
    EXPECT_TRUE(posted().empty());
}

TEST_F(HomeEndToolTest, OwnEventsPassAndExceptedAppsKeepTheirKeys) {
    EXPECT_TRUE(key(EventType::keyDown, HomeEndEngine::kHome, kFn, ownEventTag::key));
    EXPECT_TRUE(key(EventType::keyUp, HomeEndEngine::kHome, kFn, ownEventTag::key));
    EXPECT_FALSE(key(EventType::keyDown, HomeEndEngine::kHome, kFn, ownEventTag::scroll))
        << "only the key tag marks a key as Quorvane's";
    key(EventType::keyUp, HomeEndEngine::kHome);
    posted();

    activate(11);
    EXPECT_TRUE(press(HomeEndEngine::kHome)) << "the terminal's shell gets Home";
    EXPECT_TRUE(press(HomeEndEngine::kEnd, kShift));
    EXPECT_TRUE(posted().empty());

    // Down in the editor, up after switching to the terminal: the up stays swallowed.
    activate(10);
    EXPECT_FALSE(key(EventType::keyDown, HomeEndEngine::kEnd));
    activate(11);
    EXPECT_FALSE(key(EventType::keyUp, HomeEndEngine::kEnd));
    posted();

    activate(12);
    EXPECT_FALSE(press(HomeEndEngine::kHome));
    tool->addException("com.example.game");
    tool->addException("com.example.game");
    EXPECT_EQ(fakes.preferences.stringArray(HomeEndTool::kExceptionsKey),
              std::vector<std::string>{"com.example.game"});
    EXPECT_TRUE(press(HomeEndEngine::kHome)) << "an app the user added is left alone at once";
    EXPECT_EQ(posted().size(), 1u) << "only the press before";

    HomeEndTool reread(catalogDescriptor("home-end"), fakes.platform());
    EXPECT_TRUE(reread.leavesAlone("com.example.game"));
    reread.removeException("com.example.game");
    EXPECT_FALSE(reread.leavesAlone("com.example.game"));
    EXPECT_TRUE(reread.leavesAlone("com.googlecode.iterm2"));
}

TEST_F(HomeEndToolTest, StoppingRemovesTheTapAndForgetsHeldKeys) {
    EXPECT_FALSE(key(EventType::keyDown, HomeEndEngine::kHome));
    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    EXPECT_FALSE(tool->isRunning());
    tool->stop();
    tool->start();
    EXPECT_TRUE(key(EventType::keyUp, HomeEndEngine::kHome))
        << "a key-up whose key-down the earlier tap saw";

    fakes.events.refuseTaps = true;
    tool->start();
    EXPECT_FALSE(tool->isRunning()) << "without the permission there is simply no tap";

    const auto page = tool->settingsPage();
    ASSERT_EQ(page.sections.size(), 2u);
    const auto& fixed = std::get<SettingsRow::ItemList>(page.sections[1].rows[0].kind);
    EXPECT_EQ(fixed.items().size(), HomeEndTool::alwaysLeftAlone().size());
    EXPECT_FALSE(fixed.remove) << "the fixed apps cannot be removed";
    const auto& added = std::get<SettingsRow::AppList>(page.sections[1].rows[2].kind);
    added.add("com.example.game");
    ASSERT_EQ(added.items().size(), 1u);
    EXPECT_EQ(added.items()[0].name, "Game");
}

}  // namespace
}  // namespace quorvane
