#include "tools/system/FinderCutTool.hpp"

#include <gtest/gtest.h>

#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

constexpr std::uint64_t kCommand = modifierFlag::command;
constexpr std::uint64_t kMove = modifierFlag::command | modifierFlag::option;

struct FinderCutToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<FinderCutTool> tool;

    void SetUp() override {
        fakes.workspace.add(10, FinderCutTool::kFinderBundleID, "Finder");
        fakes.workspace.add(11, "com.apple.TextEdit", "TextEdit");
        fakes.workspace.frontmostPID = 10;
        tool = std::make_unique<FinderCutTool>(catalogDescriptor("finder-cut"), fakes.platform());
        tool->start();
    }
    // A key pressed and released through the tap; the key code and flags that went on.
    std::pair<std::int64_t, std::uint64_t> press(std::uint16_t keyCode,
                                                 std::uint64_t flags = kCommand) {
        FakeEvent down = FakeEvent::keyDown(keyCode, flags);
        EXPECT_TRUE(fakes.events.deliver(*fakes.events.taps.at(0), EventType::keyDown, down));
        FakeEvent up = FakeEvent::keyDown(keyCode, flags);
        up.eventType = EventType::keyUp;
        EXPECT_TRUE(fakes.events.deliver(*fakes.events.taps.at(0), EventType::keyUp, up));
        EXPECT_EQ(down.integerField(eventField::keyboardKeycode),
                  up.integerField(eventField::keyboardKeycode));
        EXPECT_EQ(down.eventFlags, up.eventFlags);
        return {down.integerField(eventField::keyboardKeycode), down.eventFlags};
    }
    // Finder answers ⌘C by putting the files on the clipboard.
    void finderCopies() {
        fakes.pasteboard.copyText("file");
        fakes.scheduler.advance(FinderCutTool::kLandDelay);
    }
    void focusTextField() {
        Element field = std::make_shared<FakeAccessibility::FakeElement>(10, "name field");
        fakes.accessibility.attributes[{field.get(), "AXRole"}] = std::string("AXTextField");
        fakes.accessibility
            .attributes[{fakes.accessibility.systemWideElement.get(), "AXFocusedUIElement"}] =
            field;
    }
    void activate(int pid) {
        fakes.workspace.frontmostPID = pid;
        const auto app = fakes.workspace.runningApplication(pid);
        fakes.workspace.post(WorkspaceNotification::didActivateApplication, &*app);
    }
};

TEST_F(FinderCutToolTest, CutThenPasteBecomesFindersCopyThenMove) {
    EXPECT_EQ(press(FinderCutEngine::kX), std::make_pair(std::int64_t{8}, kCommand));
    finderCopies();
    EXPECT_EQ(press(FinderCutEngine::kV), std::make_pair(std::int64_t{9}, kMove));
    EXPECT_EQ(press(FinderCutEngine::kV), std::make_pair(std::int64_t{9}, kCommand))
        << "the move happens once; a second ⌘V pastes a copy";
}

TEST_F(FinderCutToolTest, ACopyInBetweenCancelsTheCut) {
    press(FinderCutEngine::kX);
    finderCopies();
    fakes.pasteboard.copyText("something else");
    EXPECT_EQ(press(FinderCutEngine::kV).second, kCommand);

    press(FinderCutEngine::kX);
    finderCopies();
    press(FinderCutEngine::kC);
    EXPECT_EQ(press(FinderCutEngine::kV).second, kCommand);
}

TEST_F(FinderCutToolTest, TextFieldsAndOtherAppsKeepTheirCut) {
    focusTextField();
    EXPECT_EQ(press(FinderCutEngine::kX).first, FinderCutEngine::kX) << "renaming a file";
    EXPECT_FALSE(tool->hasPendingCut());

    fakes.accessibility.attributes.clear();
    activate(11);
    EXPECT_EQ(press(FinderCutEngine::kX).first, FinderCutEngine::kX);
    activate(10);
    EXPECT_EQ(press(FinderCutEngine::kX, kCommand | modifierFlag::shift).first,
              FinderCutEngine::kX);
    EXPECT_EQ(press(FinderCutEngine::kX).first, FinderCutEngine::kC);

    tool->stop();
    EXPECT_TRUE(fakes.events.taps.empty());
    EXPECT_FALSE(tool->hasPendingCut());
}

}  // namespace
}  // namespace quorvane
