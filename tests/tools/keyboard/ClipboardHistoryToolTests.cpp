#include "tools/keyboard/ClipboardHistoryTool.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/Sha256.hpp"
#include "platform/PasteboardType.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakeEvent.hpp"
#include "support/FakePlatform.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

constexpr std::uint64_t kCommand = 0x100000;
constexpr std::uint64_t kOption = 0x80000;
const std::vector<std::uint8_t> kPng = {0x89, 'P', 'N', 'G', 1, 2, 3};

struct ClipboardHistoryToolTest : ::testing::Test {
    TemporaryDirectory temp;
    FakePlatform fakes;
    std::unique_ptr<ClipboardHistoryTool> tool;

    void SetUp() override {
        fakes.workspace.add(100, "com.example.editor", "Editor");
        fakes.workspace.add(200, "com.bitwarden.desktop", "Bitwarden");
        fakes.workspace.frontmostPID = 100;
        restart();
    }
    void restart() {
        tool.reset();
        tool = std::make_unique<ClipboardHistoryTool>(catalogDescriptor("clipboard-history"),
                                                      fakes.platform(), temp.path());
        tool->start();
    }
    // One poll later, and the debounced save done too.
    void settle() { fakes.scheduler.advance(Seconds(1.5)); }
    void copyImage(const std::vector<std::uint8_t>& bytes, const std::string& text = {}) {
        PasteboardItem item{{{pasteboard_type::png, bytes}}};
        if (!text.empty()) {
            item.representations.push_back({pasteboard_type::string, FakePasteboard::bytes(text)});
        }
        fakes.pasteboard.copyItems({item});
    }
    std::size_t imageFiles() {
        std::size_t count = 0;
        std::error_code error;
        for (std::filesystem::directory_iterator it(temp / "Images", error), end;
             !error && it != end; it.increment(error)) {
            ++count;
        }
        return count;
    }
    bool sendRightMouse(EventType type, std::uint64_t flags, Point at = {300, 200}) {
        FakeEvent event;
        event.eventType = type;
        event.eventFlags = flags;
        event.point = at;
        return fakes.events.deliver(*fakes.events.taps.at(0), type, event);
    }
    bool key(std::uint16_t keyCode, std::uint64_t flags = 0) {
        return fakes.eventMonitors.send(FakeEvent::keyDown(keyCode, flags));
    }
};

TEST_F(ClipboardHistoryToolTest, CopiesShortcutKeysAndPasteEndToEnd) {
    fakes.pasteboard.copyText("first", {pasteboard_type::rtf});
    settle();
    const Uuid firstID = tool->items().at(0).id;
    const double firstDate = tool->items()[0].date;
    EXPECT_EQ(tool->items()[0].app, "com.example.editor");
    ASSERT_TRUE(tool->items()[0].rich);
    EXPECT_TRUE(tool->items()[0].rich->contains(pasteboard_type::rtf));

    fakes.pasteboard.copyText("second");
    settle();
    fakes.pasteboard.copyText("first");
    settle();
    ASSERT_EQ(tool->items().size(), 2u);
    EXPECT_EQ(tool->items()[0].id, firstID) << "the same text keeps its old id";
    EXPECT_GT(tool->items()[0].date, firstDate) << "with the newer date";

    // Private copies and password managers are never recorded.
    fakes.pasteboard.copyItems({{{{pasteboard_type::string, FakePasteboard::bytes("plain")}}},
                                {{{"org.nspasteboard.ConcealedType", {}}}}});
    settle();
    fakes.workspace.frontmostPID = 200;
    fakes.pasteboard.copyText("hunter2");
    settle();
    fakes.workspace.frontmostPID = 100;
    EXPECT_EQ(tool->items().size(), 2u);

    // ⌘⇧V opens the list at the pointer (no caret here); ↓ then ⌥↩ pastes "second" plain.
    fakes.screens.mouse = {500, 500};
    ASSERT_TRUE(fakes.hotKeys.press(9, 0x100 | 0x200));
    ASSERT_TRUE(tool->isPanelOpen());
    EXPECT_EQ(tool->panelFrame(), Rect(500, 40, 400, 460));
    EXPECT_TRUE(key(0x00, 0)) << "typing goes on to the search field";
    EXPECT_FALSE(key(125));
    EXPECT_EQ(tool->listModel().selection(), 1u);
    EXPECT_FALSE(key(36, kOption));
    EXPECT_FALSE(tool->isPanelOpen());
    EXPECT_EQ(fakes.pasteboard.items(),
              (std::vector<PasteboardItem>{
                  {{{pasteboard_type::string, FakePasteboard::bytes("second")}}}}));
    EXPECT_TRUE(fakes.events.posted.empty()) << "⌘V waits for the panel to go";
    fakes.scheduler.advance(Seconds(0.12));
    const auto v = std::find_if(
        fakes.events.posted.begin(), fakes.events.posted.end(), [](const auto& posted) {
            return posted.event.eventType == EventType::keyDown &&
                   posted.event.integers.at(eventField::keyboardKeycode) == 9;
        });
    ASSERT_NE(v, fakes.events.posted.end());
    EXPECT_EQ(v->event.eventFlags & kCommand, kCommand);
    EXPECT_EQ(v->event.integers.at(eventField::sourceUserData), ClipboardHistoryTool::kOwnKeyTag);

    // A normal paste of the first item writes its styled text back too; ⌘1 picks it.
    ASSERT_TRUE(fakes.hotKeys.press(9, 0x100 | 0x200));
    settle();  // the poll saw the paste: "second" is newest again
    ASSERT_TRUE(tool->isPanelOpen());
    EXPECT_FALSE(key(19, kCommand));  // ⌘2
    EXPECT_TRUE(fakes.pasteboard.data(pasteboard_type::rtf));
    EXPECT_EQ(fakes.pasteboard.string(pasteboard_type::string), "first");

    // ⌘⌫ removes; Escape closes; the monitors go with the panel.
    tool->openPanel(Point{100, 100});
    EXPECT_FALSE(key(51, kCommand));
    EXPECT_EQ(tool->items().size(), 1u);
    EXPECT_FALSE(key(53));
    EXPECT_FALSE(tool->isPanelOpen());
    EXPECT_TRUE(key(53)) << "no monitor left once closed";
}

TEST_F(ClipboardHistoryToolTest, ImagesKeepOneFileAndGoWithTheirItems) {
    copyImage(kPng);
    settle();
    copyImage(kPng);
    settle();
    ASSERT_EQ(tool->items().size(), 1u);
    EXPECT_EQ(imageFiles(), 1u);
    const Uuid pictureID = tool->items()[0].id;
    EXPECT_EQ(tool->items()[0].imageHash, Sha256::hex(Sha256::of(kPng)));
    EXPECT_EQ(tool->items()[0].imageType, pasteboard_type::png);
    EXPECT_EQ(TemporaryDirectory::read(tool->store().imagePath(pictureID)),
              std::string(kPng.begin(), kPng.end()));

    // Whitespace-only text beside an image: the image is taken.
    copyImage({9, 9, 9}, " \n ");
    settle();
    EXPECT_EQ(tool->items()[0].kind, ClipItem::Kind::image);
    EXPECT_EQ(imageFiles(), 2u);

    // Thumbnails are made once and cached.
    ASSERT_TRUE(tool->thumbnail(pictureID));
    ASSERT_TRUE(tool->thumbnail(pictureID));
    EXPECT_EQ(fakes.thumbnails.requests.size(), 1u);

    fakes.pasteboard.copyText("text");
    settle();
    tool->setMaxItems(1);
    EXPECT_EQ(tool->items().size(), 1u);
    EXPECT_EQ(imageFiles(), 0u) << "dropped images take their files along";
    EXPECT_EQ(fakes.preferences.integer(ClipboardHistoryTool::kMaxItemsKey), 1);
    EXPECT_EQ(tool->thumbnailCount(), 0u);
}

TEST_F(ClipboardHistoryToolTest, ClearingTheClipboardTakesARecentTextOut) {
    fakes.pasteboard.copyText("password");
    fakes.scheduler.advance(Seconds(0.4));
    fakes.scheduler.advance(Seconds(118.6));
    fakes.pasteboard.clearByOtherApp();
    fakes.scheduler.advance(Seconds(0.4));  // seen at 119 s
    EXPECT_TRUE(tool->items().empty());

    fakes.pasteboard.copyText("kept");
    fakes.scheduler.advance(Seconds(0.4));
    fakes.scheduler.advance(Seconds(120.6));
    fakes.pasteboard.clearByOtherApp();
    fakes.scheduler.advance(Seconds(0.4));  // seen at 121 s
    EXPECT_EQ(tool->items().size(), 1u);
}

TEST_F(ClipboardHistoryToolTest, HistoryLastsAcrossRestartsOnlyWhenAsked) {
    fakes.pasteboard.copyText("remembered");
    settle();
    copyImage(kPng);
    settle();
    // A stray image file from a quit between writing an image and saving the history.
    TemporaryDirectory::write(temp / "Images" / Uuid::random().text(), "orphan");
    restart();
    ASSERT_EQ(tool->items().size(), 2u);
    EXPECT_EQ(tool->items()[1].text, "remembered");
    EXPECT_EQ(imageFiles(), 1u);

    tool->setRemembersAfterRestart(false);
    EXPECT_EQ(fakes.preferences.boolean(ClipboardHistoryTool::kRememberKey), false);
    EXPECT_FALSE(std::filesystem::exists(temp / "history.json"));
    // Otherwise the first look at the clipboard after the restart records the image again.
    fakes.pasteboard.clearByOtherApp();
    restart();
    EXPECT_TRUE(tool->items().empty());
    EXPECT_EQ(imageFiles(), 0u);
    fakes.pasteboard.copyText("not kept");
    settle();
    EXPECT_FALSE(std::filesystem::exists(temp / "history.json"));
}

TEST_F(ClipboardHistoryToolTest, ACorruptHistoryStartsEmptyAndIsKept) {
    tool.reset();
    TemporaryDirectory::write(temp / "history.json", "[{\"id\":");
    restart();
    EXPECT_TRUE(tool->items().empty());
    fakes.pasteboard.copyText("new");
    settle();
    EXPECT_EQ(TemporaryDirectory::read(temp / "history.json.corrupt-1"), "[{\"id\":");
    EXPECT_TRUE(std::filesystem::exists(temp / "history.json"));
}

TEST_F(ClipboardHistoryToolTest, TheListPanelDrawsTheModelAndReportsTheUser) {
    fakes.pasteboard.copyText("Grüße aus Köln");
    settle();
    copyImage(kPng);
    settle();
    fakes.pasteboard.copyText("  meeting\n notes  ");
    settle();

    tool->openPanel(Point{500, 500});
    ASSERT_EQ(fakes.screens.listPanels.size(), 1u);
    FakeListPanel& panel = *fakes.screens.listPanels[0];
    EXPECT_TRUE(panel.visible);
    EXPECT_EQ(panel.frame, tool->panelFrame());
    auto rows = panel.rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].title, "meeting notes");
    EXPECT_TRUE(rows[0].isSelected);

    // The arrows and the hovering mouse move the highlight the panel draws.
    EXPECT_FALSE(key(125));
    EXPECT_EQ(panel.content.selection, 1u);
    panel.handlers.rowHovered(2, {10, 10});
    EXPECT_EQ(panel.content.selection, 2u);
    panel.handlers.rowHovered(0, {10, 10});
    EXPECT_EQ(panel.content.selection, 2u) << "the list moved under a resting mouse";

    // Typing into the field searches, upper case and accents included.
    panel.handlers.queryChanged(" KÖLNER ");
    EXPECT_EQ(panel.content.rowCount, 0u);
    panel.handlers.queryChanged("KÖLN");
    ASSERT_EQ(panel.content.rowCount, 1u);
    EXPECT_EQ(panel.rows()[0].title, "Grüße aus Köln");

    // A click pastes the row; losing key status closes the panel.
    panel.handlers.rowClicked(0);
    EXPECT_FALSE(panel.visible);
    EXPECT_EQ(fakes.pasteboard.string(pasteboard_type::string), "Grüße aus Köln");
    tool->openPanel(Point{500, 500});
    EXPECT_EQ(fakes.screens.listPanels.size(), 1u) << "one panel, made on first use";
    EXPECT_EQ(panel.content.query, "") << "each opening starts a new search";
    panel.handlers.resignedKey();
    fakes.scheduler.runPending();
    EXPECT_FALSE(tool->isPanelOpen());
    EXPECT_FALSE(panel.visible);
}

TEST_F(ClipboardHistoryToolTest, RightClickWithTheTriggerOpensAtThePointer) {
    tool->setMouseTrigger(MouseTrigger::controlOption);
    ASSERT_EQ(fakes.events.taps.size(), 1u);
    EXPECT_TRUE(sendRightMouse(EventType::rightMouseDown, 0)) << "a plain right-click passes";
    EXPECT_TRUE(sendRightMouse(EventType::rightMouseUp, 0));
    EXPECT_TRUE(sendRightMouse(EventType::rightMouseDown, 0x40000 | 0x80000 | kCommand));
    EXPECT_FALSE(tool->isPanelOpen());

    EXPECT_FALSE(sendRightMouse(EventType::rightMouseDown, 0x40000 | 0x80000));
    EXPECT_FALSE(sendRightMouse(EventType::rightMouseUp, 0)) << "its up goes with it";
    EXPECT_TRUE(sendRightMouse(EventType::rightMouseUp, 0)) << "only that one";
    fakes.scheduler.runPending();
    ASSERT_TRUE(tool->isPanelOpen());
    EXPECT_FALSE(tool->isPasteHere());
    // (300, 200) from the top of a 900-point screen is 700 from its bottom.
    EXPECT_EQ(tool->panelFrame(), Rect(300, 240, 400, 460));
    tool->closePanel();

    // Over a text field, a left click moves the caret there first.
    auto& ax = fakes.accessibility;
    const Element field = ax.makeWindow(100, {250, 150, 200, 100});
    ax.attributes[{field.get(), "AXRole"}] = std::string("AXTextField");
    ax.hitAreas.push_back({Rect(250, 150, 200, 100), field});
    EXPECT_FALSE(sendRightMouse(EventType::rightMouseDown, 0x40000 | 0x80000));
    fakes.scheduler.runPending();
    EXPECT_FALSE(tool->isPanelOpen());
    ASSERT_EQ(fakes.events.posted.size(), 2u);
    EXPECT_EQ(fakes.events.posted[0].event.eventType, EventType::leftMouseDown);
    EXPECT_EQ(fakes.events.posted[1].event.point, (Point{300, 200}));
    fakes.scheduler.advance(Seconds(0.12));
    EXPECT_TRUE(tool->isPanelOpen());
    EXPECT_TRUE(tool->isPasteHere());

    tool->setMouseTrigger(MouseTrigger::off);
    EXPECT_TRUE(fakes.events.taps.empty());
    EXPECT_EQ(fakes.preferences.string(ClipboardHistoryTool::kMouseTriggerKey), "off");
    tool->stop();
    EXPECT_FALSE(tool->isPanelOpen());
    EXPECT_EQ(fakes.hotKeys.live.size(), 0u);
}

TEST_F(ClipboardHistoryToolTest, MenuCommandReturnsToTheLastAppAndOpensAtItsCaret) {
    fakes.workspace.add(300, "com.example.notes", "Notes");
    fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                         &fakes.workspace.applications.at(300));
    RunningApplication self;
    self.pid = fakes.workspace.ownPID;
    fakes.workspace.post(WorkspaceNotification::didActivateApplication, &self);
    EXPECT_EQ(tool->lastOtherApp(), 300);

    auto& ax = fakes.accessibility;
    const Element focused = ax.makeWindow(300, {0, 0, 10, 10});
    ax.attributes[{ax.systemWide().get(), "AXFocusedUIElement"}] = focused;
    ax.attributes[{focused.get(), "AXSelectedTextRange"}] = TextRange{3, 0};
    ax.attributes[{focused.get(), "AXBoundsForRange"}] = Rect(600, 100, 2, 20);

    ASSERT_TRUE(tool->control());
    tool->control()->action();
    EXPECT_EQ(fakes.workspace.activated, std::vector<int>{300});
    fakes.scheduler.advance(Seconds(0.2));
    EXPECT_FALSE(tool->isPanelOpen());
    fakes.scheduler.advance(Seconds(0.1));
    ASSERT_TRUE(tool->isPanelOpen());
    // The caret's lower-left corner is 120 from the top, so 6 lower is 900 - 126 = 774.
    EXPECT_EQ(tool->panelFrame(), Rect(600, 314, 400, 460));
}

TEST_F(ClipboardHistoryToolTest, IgnoredAppsAreStoredAndRecordedAgainOnceRemembered) {
    tool->ignoreApp("com.example.chat");
    fakes.workspace.add(400, "com.example.chat", "Chat");
    fakes.workspace.frontmostPID = 400;
    fakes.pasteboard.copyText("secret chat");
    settle();
    EXPECT_TRUE(tool->items().empty());
    EXPECT_EQ(fakes.preferences.stringArray(ClipboardHistoryTool::kIgnoredAppsKey),
              std::vector<std::string>{"com.example.chat"});
    tool->rememberApp("com.example.chat");
    fakes.pasteboard.copyText("chat again");
    settle();
    EXPECT_EQ(tool->items().size(), 1u);
}

}  // namespace
}  // namespace quorvane
