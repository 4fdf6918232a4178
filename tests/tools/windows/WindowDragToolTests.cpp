#include "tools/windows/WindowDragTool.hpp"

#include <gtest/gtest.h>

#include <limits>

#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

const ToolDescriptor& descriptor() {
    return catalogDescriptor("window-drag");
}

struct WindowDragToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<WindowDragTool> tool;
    Element window;

    void SetUp() override {
        fakes.workspace.add(42, "com.example.editor");
        window = fakes.accessibility.makeWindow(42, {100, 100, 800, 600});
        // The mouse lands on a button inside a group; only the group's parent is the window.
        auto& a = fakes.accessibility;
        auto button = std::make_shared<FakeAccessibility::FakeElement>(42, "button");
        auto group = std::make_shared<FakeAccessibility::FakeElement>(42, "group");
        a.attributes[{button.get(), "AXParent"}] = Element(group);
        a.attributes[{group.get(), "AXParent"}] = window;
        a.hitAreas.emplace_back(Rect(100, 100, 800, 600), button);
        tool = std::make_unique<WindowDragTool>(descriptor(), fakes.platform());
    }
    // Sends one mouse event through the tool's tap; true when it went on to the system.
    bool send(EventType type, Point at,
              std::uint64_t flags = modifierFlag::control | modifierFlag::command) {
        FakeEvent event;
        event.eventType = type;
        event.eventFlags = flags;
        event.point = at;
        return fakes.events.deliver(*fakes.events.taps.at(0), type, event);
    }
    Rect frame() { return *fakes.accessibility.frameOf(window); }
};

TEST_F(WindowDragToolTest, ADragMovesTheWindowUnderTheMouseAndBringsItForward) {
    tool->start();
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    EXPECT_EQ(fakes.events.taps[0]->mask, 0xDEu) << "left and right down, dragged and up";

    EXPECT_TRUE(send(EventType::leftMouseDown, {200, 150}, modifierFlag::control))
        << "only ⌃ held: the click is the application's";
    EXPECT_TRUE(fakes.accessibility.actions.empty());

    fakes.scheduler.advance(Seconds(1));
    const double pressed = fakes.scheduler.date();
    EXPECT_FALSE(send(EventType::leftMouseDown, {200, 150}));
    EXPECT_EQ(fakes.input.userActionMark.date, pressed) << "the activation counts as the user's";
    ASSERT_EQ(fakes.accessibility.actions.size(), 1u);
    EXPECT_EQ(fakes.accessibility.actions[0].first, window);
    EXPECT_EQ(fakes.accessibility.actions[0].second, "AXRaise");
    EXPECT_EQ(fakes.accessibility.broughtToFront(), std::vector<int>{42});

    // Every 2 ms for 20 ms: at most one move per 1/120 s goes to the window.
    const std::size_t beforeMoves = fakes.accessibility.writes.size();  // the frontmost request
    for (int i = 1; i <= 10; ++i) {
        fakes.scheduler.advance(Seconds(0.002));
        EXPECT_FALSE(send(EventType::leftMouseDragged, {200.0 + i, 150.0 + 2 * i}));
    }
    EXPECT_EQ(fakes.accessibility.writes.size() - beforeMoves, 2u)
        << "at 2 and 12 ms, not again by 20";
    EXPECT_TRUE(send(EventType::rightMouseUp, {0, 0})) << "the other button does not end it";
    EXPECT_FALSE(send(EventType::leftMouseUp, {210, 170}));
    EXPECT_EQ(frame(), Rect(110, 120, 800, 600)) << "the last point is applied on release";
    EXPECT_EQ(fakes.accessibility.writes.size() - beforeMoves, 3u);
    EXPECT_TRUE(send(EventType::leftMouseDragged, {400, 400})) << "the drag is over";

    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    tool->stop();
}

TEST_F(WindowDragToolTest, RightDragResizesAndTheSettingsPersist) {
    fakes.preferences.set(WindowDragTool::kKeysKey, "optionCommand");
    fakes.preferences.set(WindowDragTool::kBringToFrontKey, false);
    tool = std::make_unique<WindowDragTool>(descriptor(), fakes.platform());
    EXPECT_EQ(tool->keys(), WindowDragEngine::Keys::optionCommand);
    tool->start();

    const auto flags = modifierFlag::option | modifierFlag::command;
    EXPECT_FALSE(send(EventType::rightMouseDown, {110, 400}, flags)) << "near the left edge";
    EXPECT_TRUE(fakes.accessibility.actions.empty()) << "not brought to the front";
    EXPECT_FALSE(send(EventType::rightMouseDragged, {900, 400}, flags));
    EXPECT_EQ(frame(), Rect(740, 100, 160, 600)) << "no narrower than 160, right edge kept";
    send(EventType::rightMouseUp, {900, 400}, flags);

    // A window that answers a NaN height for a moment is not grabbed at all, so the width
    // change of a one-edge resize cannot carry NaN into the other axis.
    const std::size_t writes = fakes.accessibility.writes.size();
    fakes.accessibility.attributes[{window.get(), "AXSize"}] =
        Size{160, std::numeric_limits<double>::quiet_NaN()};
    send(EventType::rightMouseDown, {750, 400}, flags);
    fakes.scheduler.advance(Seconds(1));
    send(EventType::rightMouseDragged, {800, 420}, flags);
    send(EventType::rightMouseUp, {800, 420}, flags);
    EXPECT_EQ(fakes.accessibility.writes.size(), writes) << "nothing written to the window";
    fakes.accessibility.attributes[{window.get(), "AXSize"}] = Size{160, 600};

    fakes.accessibility.writeAnswers["AXPosition"] = Accessibility::kCannotComplete;
    send(EventType::leftMouseDown, {500, 400}, flags);
    fakes.scheduler.advance(Seconds(1));
    send(EventType::leftMouseDragged, {510, 400}, flags);
    EXPECT_EQ(tool->lastError(), "Couldn't move the window (AXError -25204)");
    fakes.preferences.set(WindowDragTool::kKeysKey, "hyper");
    EXPECT_EQ(WindowDragTool(descriptor(), fakes.platform()).keys(),
              WindowDragEngine::Keys::controlCommand)
        << "an unknown choice falls back to ⌃⌘";
}

}  // namespace
}  // namespace quorvane
