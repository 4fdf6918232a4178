#include <gtest/gtest.h>

#include <sstream>
#include "platform/EventField.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

#include "cli/LayoutsCommand.hpp"
#include "tools/windows/DimBackgroundTool.hpp"
#include "tools/windows/DockEdgeWatch.hpp"
#include "tools/windows/DockInstantSwitchTool.hpp"
#include "tools/windows/DockMinimizeTool.hpp"
#include "tools/windows/GreenButtonMaximizeTool.hpp"
#include "tools/windows/PinWindowTool.hpp"
#include "tools/windows/QuitOnLastWindowTool.hpp"
#include "tools/windows/RestoreWindowLayoutTool.hpp"
#include "tools/windows/WindowLayoutsTool.hpp"
#include "tools/windows/WindowScreenMemoryTool.hpp"
#include "tools/windows/WindowSwitcherTool.hpp"

namespace quorvane {
namespace {

// The window tools on fakes: a laptop (accessibility frame 0, 0, 1440, 900, usable from y 25)
// and, when plugged in, a 1920×1080 monitor to its right with its top at y 0.
const Screen kLaptop{{0, 0, 1440, 900}, {0, 0, 1440, 875}};
const Screen kMonitor{{1440, -180, 1920, 1080}, {1440, -180, 1920, 1080}};

struct WindowToolsTest : ::testing::Test {
    FakePlatform fakes;

    void SetUp() override {
        fakes.workspace.add(100, "com.example.mail", "Mail");
        fakes.workspace.add(200, "com.example.editor", "Editor");
        fakes.workspace.add(300, "com.apple.finder", "Finder");
        plugMonitor(true);
    }
    void plugMonitor(bool in) {
        fakes.screens.displays =
            in ? std::vector<Screen>{kLaptop, kMonitor} : std::vector<Screen>{kLaptop};
        fakes.displayConfiguration.ids =
            in ? std::vector<std::string>{"laptop", "monitor"} : std::vector<std::string>{"laptop"};
    }
    // A standard window, listed among its application's windows.
    Element addWindow(int pid, Rect frame, std::string title = {}) {
        auto& a = fakes.accessibility;
        Element window = a.makeWindow(pid, frame);
        a.attributes[{window.get(), "AXSubrole"}] = std::string("AXStandardWindow");
        a.attributes[{window.get(), "AXTitle"}] = std::move(title);
        auto& list = a.attributes[{a.application(pid).get(), "AXWindows"}];
        if (!std::holds_alternative<std::vector<Element>>(list)) {
            list = std::vector<Element>{};
        }
        std::get<std::vector<Element>>(list).push_back(window);
        return window;
    }
    void closeWindow(int pid, const Element& window) {
        auto& a = fakes.accessibility;
        std::erase(
            std::get<std::vector<Element>>(a.attributes[{a.application(pid).get(), "AXWindows"}]),
            window);
        notify(pid, window, "AXUIElementDestroyed");
    }
    void notify(int pid, const Element& element, const std::string& notification) {
        auto* observer = fakes.accessibility.observerOf(pid);
        ASSERT_NE(observer, nullptr) << "process " << pid << " is watched";
        observer->callback(element, notification);
    }
    Rect frame(const Element& window) { return *fakes.accessibility.frameOf(window); }
    // The Dock (process 50) with its list of icons along the laptop's bottom edge.
    void addDock(const std::vector<std::pair<std::string, Rect>>& icons) {
        fakes.workspace.add(50, "com.apple.dock", "Dock");
        auto& a = fakes.accessibility;
        const auto list = std::make_shared<FakeAccessibility::FakeElement>(50, "list");
        a.attributes[{a.application(50).get(), "AXChildren"}] = std::vector<Element>{list};
        a.attributes[{list.get(), "AXRole"}] = std::string("AXList");
        std::vector<Element> items;
        for (const auto& [url, frame] : icons) {
            const auto icon = std::make_shared<FakeAccessibility::FakeElement>(50, "icon");
            a.attributes[{icon.get(), "AXPosition"}] = frame.origin;
            a.attributes[{icon.get(), "AXSize"}] = frame.size;
            a.attributes[{icon.get(), "AXURL"}] = url;
            a.attributes[{icon.get(), "AXSubrole"}] = std::string("AXApplicationDockItem");
            items.push_back(icon);
        }
        a.attributes[{list.get(), "AXChildren"}] = items;
        fakes.windowList.windows.push_back({900, 50, 20, {400, 840, 640, 60}});
    }
    // One mouse event through the tool's tap; true when it went on to the system.
    bool send(EventType type, Point at, std::uint64_t flags = 0) {
        FakeEvent event;
        event.eventType = type;
        event.eventFlags = flags;
        event.point = at;
        return fakes.events.deliver(*fakes.events.taps.at(0), type, event);
    }
    void click() {
        FakeEvent event;
        event.eventType = EventType::leftMouseDown;
        fakes.eventMonitors.send(event);
    }
};

TEST_F(WindowToolsTest, WindowsReturnWhenTheirDisplaysComeBack) {
    const Element inbox = addWindow(100, {1600, 100, 1000, 700}, "Inbox");
    const Element notes = addWindow(200, {1500, 50, 700, 500}, "notes.txt");
    RestoreWindowLayoutTool tool(catalogDescriptor("restore-window-layout"), fakes.platform());
    tool.start();

    // Unplugged: macOS piles everything onto the laptop. Nothing was saved for the laptop
    // alone, so nothing moves; what it looks like now is kept for the laptop alone.
    plugMonitor(false);
    fakes.accessibility.attributes[{inbox.get(), "AXPosition"}] = Point{0, 25};
    fakes.accessibility.attributes[{notes.get(), "AXPosition"}] = Point{20, 45};
    fakes.displayConfiguration.reconfigure();
    fakes.scheduler.advance(RestoreWindowLayoutTool::kSettleDelay);
    EXPECT_EQ(tool.lastRestoredCount(), 0);
    fakes.workspace.applications.erase(200);  // the editor quits meanwhile

    plugMonitor(true);
    fakes.displayConfiguration.reconfigure();
    fakes.scheduler.advance(Seconds(1));
    EXPECT_EQ(frame(inbox), Rect(0, 25, 1000, 700)) << "not before things settle";
    fakes.scheduler.advance(Seconds(1));
    EXPECT_EQ(frame(inbox), Rect(1600, 100, 1000, 700));
    EXPECT_EQ(tool.lastRestoredCount(), 1) << "the quit editor's window is skipped";
    EXPECT_EQ(tool.snapshots().all().size(), 2u);

    // A new resolution leaves the same displays: what the user did since the snapshot stays.
    fakes.accessibility.attributes[{inbox.get(), "AXPosition"}] = Point{1700, 200};
    fakes.displayConfiguration.reconfigure();
    fakes.scheduler.advance(RestoreWindowLayoutTool::kSettleDelay);
    EXPECT_EQ(frame(inbox), Rect(1700, 200, 1000, 700));
    // Waking restores even so: macOS may have moved windows while the displays slept.
    fakes.accessibility.attributes[{inbox.get(), "AXPosition"}] = Point{0, 25};
    fakes.workspace.post(WorkspaceNotification::screensDidWake);
    fakes.scheduler.advance(RestoreWindowLayoutTool::kSettleDelay);
    EXPECT_EQ(frame(inbox), Rect(1700, 200, 1000, 700));

    // Both arrangements are kept for next time.
    RestoreWindowLayoutTool later(catalogDescriptor("restore-window-layout"), fakes.platform());
    EXPECT_EQ(later.snapshots().all().size(), 2u);
    tool.stop();
}

TEST_F(WindowToolsTest, UnreadableSavedStateIsShownAndNeverOverwritten) {
    const PreferenceValue::Data garbage = {'{', 'x'};
    fakes.preferences.set(RestoreWindowLayoutTool::kSnapshotsKey, garbage);
    fakes.preferences.set(WindowScreenMemoryTool::kPlacesKey, garbage);
    addWindow(100, {10, 30, 500, 500});

    RestoreWindowLayoutTool restore(catalogDescriptor("restore-window-layout"), fakes.platform());
    WindowScreenMemoryTool memory(catalogDescriptor("window-screen-memory"), fakes.platform());
    restore.start();
    memory.start();
    notify(100, addWindow(100, {10, 30, 500, 500}), "AXWindowMoved");
    fakes.scheduler.advance(Seconds(60));
    memory.stop();
    EXPECT_FALSE(restore.lastError().empty());
    EXPECT_FALSE(memory.lastError().empty());
    EXPECT_EQ(fakes.preferences.data(RestoreWindowLayoutTool::kSnapshotsKey), garbage);
    EXPECT_EQ(fakes.preferences.data(WindowScreenMemoryTool::kPlacesKey), garbage);

    restore.forgetSnapshots();  // the user's choice replaces it
    EXPECT_TRUE(restore.lastError().empty());
    EXPECT_NE(fakes.preferences.data(RestoreWindowLayoutTool::kSnapshotsKey), garbage);
}

TEST_F(WindowToolsTest, NewWindowsOpenWhereTheirAppLastHadOne) {
    WindowScreenMemoryTool tool(catalogDescriptor("window-screen-memory"), fakes.platform());
    tool.start();
    const Element first = addWindow(100, {100, 100, 800, 600});
    fakes.accessibility.attributes[{first.get(), "AXPosition"}] = Point{1540, 20};
    notify(100, first, "AXWindowMoved");
    fakes.scheduler.advance(WindowScreenMemoryTool::kSaveDelay);
    EXPECT_TRUE(fakes.preferences.data(WindowScreenMemoryTool::kPlacesKey));

    const Element beside = addWindow(100, {20, 40, 640, 480});
    notify(100, beside, "AXWindowCreated");
    EXPECT_EQ(frame(beside), Rect(20, 40, 640, 480)) << "the app has a window open already";
    closeWindow(100, first);
    closeWindow(100, beside);

    const Element second = addWindow(100, {20, 40, 640, 480});
    notify(100, second, "AXWindowCreated");
    EXPECT_EQ(frame(second), Rect(1540, 20, 800, 600)) << "on the monitor, at the same spot";
    closeWindow(100, second);

    // Where it goes with its display unplugged is the memory's own rule.
    plugMonitor(false);
    tool.setRestoresSize(false);
    const Element small = addWindow(100, {20, 40, 640, 480});
    notify(100, small, "AXWindowCreated");
    EXPECT_EQ(frame(small), Rect(100, 25, 640, 480)) << "moved, its own size kept";
    closeWindow(100, small);

    // Forgetting the app from its page: its next window stays where the app puts it.
    const auto page = tool.settingsPage();
    for (const auto& row : page.sections[0].rows) {
        if (const auto* list = std::get_if<SettingsRow::ItemList>(&row.kind)) {
            EXPECT_EQ(list->items(), std::vector<std::string>{"Mail"});
            list->remove(0);
        }
    }
    EXPECT_TRUE(tool.memory().places().empty());
    const Element free = addWindow(100, {20, 40, 640, 480});
    notify(100, free, "AXWindowCreated");
    EXPECT_EQ(frame(free), Rect(20, 40, 640, 480));
    closeWindow(100, free);

    auto& a = fakes.accessibility;
    const Element sheet = addWindow(100, {20, 40, 300, 200});
    a.attributes[{sheet.get(), "AXSubrole"}] = std::string("AXDialog");
    notify(100, sheet, "AXWindowCreated");
    EXPECT_EQ(frame(sheet), Rect(20, 40, 300, 200)) << "only standard windows are placed";
    tool.stop();
}

TEST_F(WindowToolsTest, ClosingTheLastWindowQuitsTheAppButNotFinderOrAMinimizedOne) {
    fakes.workspace.add(400, "com.example.music", "Music");
    const Element mail = addWindow(100, {10, 30, 500, 500});
    const Element finder = addWindow(300, {10, 30, 500, 500});
    const Element editor = addWindow(200, {10, 30, 500, 500});
    const Element hidden = addWindow(200, {10, 30, 500, 500});
    fakes.accessibility.attributes[{hidden.get(), "AXMinimized"}] = true;
    const Element music = addWindow(400, {10, 30, 500, 500});
    QuitOnLastWindowTool tool(catalogDescriptor("quit-on-last-window"), fakes.platform());
    tool.except("com.example.music");
    tool.start();
    const auto* watched = fakes.accessibility.observerOf(100);
    ASSERT_NE(watched, nullptr);
    EXPECT_NE(std::find(watched->registered.begin(), watched->registered.end(),
                        std::pair<Element, std::string>(mail, "AXUIElementDestroyed")),
              watched->registered.end())
        << "the windows open at start are watched";

    for (const auto& [pid, window] : std::vector<std::pair<int, Element>>{
             {100, mail}, {300, finder}, {200, editor}, {400, music}}) {
        click();
        closeWindow(pid, window);
    }
    fakes.scheduler.advance(QuitOnLastWindowTool::kSettleDelay);
    EXPECT_EQ(fakes.workspace.terminated, std::vector<int>{100});
    EXPECT_EQ(tool.quitThisSession(), 1);
    ASSERT_FALSE(fakes.screens.panels.empty());
    EXPECT_EQ(fakes.screens.panels.back()->content.title, "Mail quit: its last window was closed");

    // Mail is still there a minute later (say it asks about a draft): one line in the log.
    fakes.scheduler.advance(QuitOnLastWindowTool::kQuitTimeout);
    EXPECT_EQ(fakes.systemLog.errors, std::vector<std::string>{"Mail didn't quit within a minute"});

    // A window that closes with no click or key press from the user quits nothing.
    const Element later = addWindow(100, {10, 30, 500, 500});
    notify(100, later, "AXWindowCreated");
    fakes.scheduler.advance(Seconds(10));
    closeWindow(100, later);
    fakes.scheduler.advance(QuitOnLastWindowTool::kSettleDelay);
    EXPECT_EQ(fakes.workspace.terminated, std::vector<int>{100});

    // Closing a document that opens the next one in its place: still a window, no quit.
    const Element first = addWindow(200, {10, 30, 500, 500});
    fakes.accessibility.attributes.erase({hidden.get(), "AXMinimized"});
    closeWindow(200, hidden);
    click();
    closeWindow(200, first);
    const Element next = addWindow(200, {10, 30, 500, 500});
    fakes.scheduler.advance(QuitOnLastWindowTool::kSettleDelay);
    EXPECT_EQ(fakes.workspace.terminated, std::vector<int>{100});
    // Only an inspector left open counts as nothing open.
    const Element palette = addWindow(200, {600, 30, 200, 300});
    fakes.accessibility.attributes[{palette.get(), "AXSubrole"}] = std::string("AXFloatingWindow");
    click();
    closeWindow(200, next);
    fakes.scheduler.advance(QuitOnLastWindowTool::kSettleDelay);
    EXPECT_EQ(fakes.workspace.terminated, (std::vector<int>{100, 200}));
    tool.stop();
}

TEST_F(WindowToolsTest, TheGreenButtonFillsTheScreenAndASecondClickRestores) {
    auto& a = fakes.accessibility;
    const Element window = addWindow(100, {100, 100, 600, 400}, "Doc");
    const auto button = std::make_shared<FakeAccessibility::FakeElement>(100, "button");
    a.attributes[{button.get(), "AXPosition"}] = Point{160, 106};
    a.attributes[{button.get(), "AXSize"}] = Size{14, 14};
    a.attributes[{window.get(), "AXFullScreenButton"}] = Element(button);
    a.hitAreas.emplace_back(Rect(100, 100, 600, 400), window);
    fakes.windowList.windows = {{7, 100, 0, {100, 100, 600, 400}}};
    GreenButtonMaximizeTool tool(catalogDescriptor("green-button-maximize"), fakes.platform());
    tool.start();
    ASSERT_EQ(fakes.events.taps.size(), 1u);

    EXPECT_FALSE(send(EventType::leftMouseDown, {165, 110}));
    EXPECT_FALSE(send(EventType::leftMouseUp, {165, 110}));
    EXPECT_EQ(frame(window), Rect(0, 25, 1440, 875));

    // The window server and the hit test follow the window.
    const auto follow = [&] {
        fakes.windowList.windows[0].bounds = frame(window);
        a.hitAreas[0].first = frame(window);
    };
    follow();
    a.attributes[{button.get(), "AXPosition"}] = Point{60, 31};
    EXPECT_FALSE(send(EventType::leftMouseDown, {65, 35}));
    EXPECT_FALSE(send(EventType::leftMouseUp, {65, 35}));
    EXPECT_EQ(frame(window), Rect(100, 100, 600, 400)) << "the second click restores";

    follow();
    a.attributes[{button.get(), "AXPosition"}] = Point{160, 106};
    EXPECT_TRUE(send(EventType::leftMouseDown, {165, 110}, modifierFlag::option))
        << "⌥ keeps full screen";
    EXPECT_TRUE(send(EventType::leftMouseUp, {165, 110}, modifierFlag::option));
    EXPECT_FALSE(send(EventType::leftMouseDown, {165, 110}));
    EXPECT_FALSE(send(EventType::leftMouseUp, {400, 300})) << "released off the button";
    EXPECT_TRUE(send(EventType::leftMouseDown, {400, 300})) << "inside the window";
    EXPECT_EQ(frame(window), Rect(100, 100, 600, 400));

    // On the monitor it fills the monitor.
    a.attributes[{window.get(), "AXPosition"}] = Point{2000, 100};
    follow();
    a.attributes[{button.get(), "AXPosition"}] = Point{2060, 106};
    EXPECT_FALSE(send(EventType::leftMouseDown, {2065, 110}));
    EXPECT_FALSE(send(EventType::leftMouseUp, {2065, 110}));
    EXPECT_EQ(frame(window), Rect(1440, 0, 1920, 1080));
    tool.stop();
    EXPECT_TRUE(fakes.events.taps.empty());
}

TEST_F(WindowToolsTest, TheShadeFollowsFocusWithOneReorderPerChange) {
    auto& a = fakes.accessibility;
    const Element mail = addWindow(100, {0, 25, 800, 600});
    const Element editor = addWindow(200, {900, 25, 500, 500});
    a.attributes[{a.application(100).get(), "AXFocusedWindow"}] = mail;
    a.attributes[{a.application(200).get(), "AXFocusedWindow"}] = editor;
    fakes.windowList.windows = {{11, 100, 0, {0, 25, 800, 600}}, {21, 200, 0, {900, 25, 500, 500}}};
    fakes.workspace.frontmostPID = 100;
    DimBackgroundTool tool(catalogDescriptor("dim-background"), fakes.platform());
    tool.start();
    ASSERT_EQ(fakes.screens.overlays.size(), 2u) << "one per display";
    EXPECT_EQ(fakes.screens.overlays[1]->frame, kMonitor.frame);
    EXPECT_EQ(fakes.screens.overlays[0]->alpha, DimBackgroundTool::kDefaultAmount);
    EXPECT_EQ(fakes.screens.overlays[0]->orders, std::vector<std::uint32_t>{11});

    // The editor comes forward: the workspace and the editor's own notifications all arrive.
    fakes.workspace.frontmostPID = 200;
    fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                         &fakes.workspace.applications.at(200));
    notify(200, editor, "AXMainWindowChanged");
    notify(200, editor, "AXFocusedWindowChanged");
    fakes.scheduler.runPending();
    for (const auto* overlay : fakes.screens.overlays) {
        EXPECT_EQ(overlay->orders, (std::vector<std::uint32_t>{11, 21}));
    }

    // The desktop in front, no window: no shade.
    fakes.workspace.frontmostPID = 300;
    fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                         &fakes.workspace.applications.at(300));
    fakes.scheduler.runPending();
    EXPECT_FALSE(fakes.screens.overlays[0]->visible);

    // One display unplugged: the shades are made again and go under the focused window at once.
    plugMonitor(false);
    fakes.workspace.frontmostPID = 200;
    fakes.displayConfiguration.reconfigure();
    fakes.scheduler.runPending();
    ASSERT_EQ(fakes.screens.overlays.size(), 1u);
    EXPECT_EQ(fakes.screens.overlays[0]->orders, std::vector<std::uint32_t>{21});

    tool.setAmount(5);
    EXPECT_EQ(tool.amount(), DimBackgroundTool::kMaximumAmount);
    EXPECT_EQ(fakes.screens.overlays[0]->alpha, DimBackgroundTool::kMaximumAmount);
    tool.stop();
    EXPECT_TRUE(fakes.screens.overlays.empty()) << "the shades are gone with the tool";
}

TEST_F(WindowToolsTest, SavedLayoutsReopenAppsAndPlaceTheirWindowsAsTheyAppear) {
    const Element inbox = addWindow(100, {1600, 100, 1000, 700}, "Inbox");
    addWindow(200, {100, 100, 700, 500}, "notes.txt");
    WindowLayoutsTool tool(catalogDescriptor("window-layouts"), fakes.platform());
    EXPECT_FALSE(tool.save("")) << "a name is needed";
    ASSERT_TRUE(tool.save("Writing"));

    fakes.accessibility.attributes[{inbox.get(), "AXPosition"}] = Point{0, 25};
    fakes.workspace.applications.erase(200);
    ASSERT_TRUE(tool.restore("Writing"));
    EXPECT_EQ(fakes.workspace.launched, std::vector<std::string>{"com.example.editor"});
    EXPECT_EQ(frame(inbox), Rect(1600, 100, 1000, 700));

    // The editor opens its window a moment later, wherever it likes.
    fakes.workspace.add(200, "com.example.editor", "Editor");
    fakes.accessibility.attributes.erase({fakes.accessibility.application(200).get(), "AXWindows"});
    const Element reopened = addWindow(200, {0, 25, 700, 500}, "notes.txt");
    fakes.scheduler.advance(WindowLayoutsTool::kRetryDelays[0]);
    EXPECT_EQ(frame(reopened), Rect(100, 100, 700, 500));

    // The command line reads the same layouts.
    std::ostringstream out;
    std::string error;
    ASSERT_TRUE(LayoutsCommand::run(fakes.preferences, {"list"}, out, error));
    EXPECT_EQ(out.str(), "Writing\t2 windows\n");
    out.str("");
    ASSERT_TRUE(LayoutsCommand::run(fakes.preferences, {"show", "Writing"}, out, error));
    EXPECT_NE(out.str().find("Mail (com.example.mail) \"Inbox\" at 1600,100 size 1000x700"),
              std::string::npos)
        << out.str();
    EXPECT_FALSE(LayoutsCommand::run(fakes.preferences, {"remove", "Reading"}, out, error));
    ASSERT_TRUE(LayoutsCommand::run(fakes.preferences, {"remove", "Writing"}, out, error));
    WindowLayoutsTool reread(catalogDescriptor("window-layouts"), fakes.platform());
    EXPECT_TRUE(reread.layouts().empty());
    EXPECT_FALSE(LayoutsCommand::checkShape({"show"}, error));
}

TEST_F(WindowToolsTest, ADockClickHidesOnlyTheAppInFront) {
    fakes.workspace.applications.at(100).bundleURL = "file:///Applications/Mail.app";
    fakes.workspace.applications.at(200).bundleURL = "file:///Applications/Editor.app";
    fakes.workspace.frontmostPID = 100;
    addDock({{"file:///Applications/Mail.app/", {420, 850, 48, 48}},
             {"file:///Applications/Editor.app/", {470, 850, 48, 48}}});
    DockMinimizeTool tool(catalogDescriptor("dock-minimize"), fakes.platform());
    tool.start();
    EXPECT_FALSE(send(EventType::leftMouseDown, {440, 870}));
    EXPECT_FALSE(send(EventType::leftMouseUp, {440, 870}));
    EXPECT_EQ(fakes.workspace.hidden, std::vector<int>{100});

    EXPECT_TRUE(send(EventType::leftMouseDown, {490, 870})) << "another app's icon";
    EXPECT_TRUE(send(EventType::leftMouseUp, {490, 870}));
    EXPECT_TRUE(send(EventType::leftMouseDown, {440, 870}, modifierFlag::command));
    EXPECT_TRUE(send(EventType::leftMouseUp, {440, 870}, modifierFlag::command));
    EXPECT_TRUE(send(EventType::leftMouseDown, {440, 400})) << "not on the Dock";
    EXPECT_EQ(fakes.workspace.hidden, std::vector<int>{100});
}

TEST_F(WindowToolsTest, TheDockComesToAnotherDisplayAtOnceOrSaysWhyNot) {
    DockEdgeWatch watch;
    const std::function<std::optional<std::size_t>()> onLaptop = [] { return std::size_t{0}; };
    const DisplayLayout both = DisplayLayout::read(fakes.screens, fakes.displayConfiguration);
    EXPECT_EQ(watch.moved({2000, 1079}, both, onLaptop, Seconds(0)), (Point{2000, 1079}));
    EXPECT_EQ(watch.moved({2100, 1079.5}, both, onLaptop, Seconds(0.1)), std::nullopt)
        << "still there";
    watch.moved({2100, 900}, both, onLaptop, Seconds(0.2));
    EXPECT_EQ(watch.moved({2100, 1079}, both, onLaptop, Seconds(0.5)), std::nullopt)
        << "cooling down";
    watch.moved({2100, 900}, both, onLaptop, Seconds(1.4));
    EXPECT_EQ(watch.moved({2100, 1079}, both, onLaptop, Seconds(1.5)), (Point{2100, 1079}));
    watch.moved({500, 500}, both, onLaptop, Seconds(3));
    EXPECT_EQ(watch.moved({500, 899}, both, onLaptop, Seconds(4)), std::nullopt)
        << "the Dock's own";

    addDock({{"file:///Applications/Mail.app/", {420, 850, 48, 48}}});
    DockInstantSwitchTool tool(catalogDescriptor("dock-instant-switch"), fakes.platform());
    tool.start();
    const auto move = [&](Point at) {
        FakeEvent event;
        event.eventType = EventType::mouseMoved;
        event.point = at;
        fakes.eventMonitors.send(event);
    };
    move({2000, 1079});
    EXPECT_EQ(fakes.screens.dockSummons, std::vector<Point>{(Point{2000, 1079})});
    move({2000, 600});
    fakes.scheduler.advance(Seconds(2));
    fakes.screens.dockSummonable = false;
    move({2000, 1079});
    EXPECT_FALSE(tool.lastError().empty());
    tool.stop();
    EXPECT_TRUE(fakes.eventMonitors.monitors.empty());
}

TEST_F(WindowToolsTest, PinningFailsSoftWhereTheSystemRefuses) {
    auto& a = fakes.accessibility;
    const Element mail = addWindow(100, {0, 25, 800, 600});
    a.attributes[{a.application(100).get(), "AXFocusedWindow"}] = mail;
    fakes.windowList.windows = {{11, 100, 0, {0, 25, 800, 600}}};
    fakes.workspace.frontmostPID = 100;
    PinWindowTool tool(catalogDescriptor("pin-window"), fakes.platform());
    tool.start();
    tool.toggle();
    EXPECT_EQ(tool.pinned(), std::nullopt);
    EXPECT_FALSE(tool.lastError().empty());

    fakes.windowList.allowsKeepAbove = true;
    tool.control()->action();
    EXPECT_EQ(tool.pinned(), 11u);
    EXPECT_TRUE(tool.control()->isOn());
    EXPECT_TRUE(tool.lastError().empty());
    tool.stop();
    EXPECT_EQ(tool.pinned(), std::nullopt);
    EXPECT_EQ(fakes.windowList.keepAboveCalls.back(), (std::pair<std::uint32_t, bool>{11, false}))
        << "turning the tool off lets the window go";
}

TEST_F(WindowToolsTest, TheSwitcherGoesThroughWindowsFrontToBackAndSwitchesOnRelease) {
    const Element inbox = addWindow(100, {0, 25, 800, 600}, "Inbox");
    const Element notes = addWindow(200, {900, 25, 500, 500}, "notes.txt");
    fakes.windowList.windows = {{21, 200, 0, {900, 25, 500, 500}}, {11, 100, 0, {0, 25, 800, 600}}};
    WindowSwitcherTool tool(catalogDescriptor("window-switcher"), fakes.platform());
    tool.start();
    const auto key = [&](std::uint32_t code, std::uint64_t flags) {
        FakeEvent event = FakeEvent::keyDown(code, flags);
        return fakes.events.deliver(*fakes.events.taps.at(0), EventType::keyDown, event);
    };
    const auto release = [&] {
        FakeEvent event;
        event.eventType = EventType::flagsChanged;
        fakes.events.deliver(*fakes.events.taps.at(0), EventType::flagsChanged, event);
    };
    const auto picked = [&] {
        const FakeListPanel& panel = *fakes.screens.listPanels.at(0);
        const auto rows = panel.rows();
        EXPECT_TRUE(rows.at(panel.content.selection).isSelected);
        return rows.at(panel.content.selection).title;
    };

    tool.pressed();
    ASSERT_TRUE(tool.isOpen());
    ASSERT_TRUE(fakes.screens.listPanels.at(0)->visible);
    EXPECT_EQ(picked(), "Inbox") << "the window behind the front one";
    EXPECT_EQ(fakes.screenCapture.captures.size(), 2u) << "a picture of each window";
    EXPECT_EQ(fakes.screenCapture.captures[1].second, (Size{56, 42})) << "in its proportions";
    fakes.screenCapture.settle();
    EXPECT_TRUE(fakes.screens.listPanels[0]->rows()[1].thumbnail.has_value());
    EXPECT_FALSE(key(WindowSwitcherTool::kTabKeyCode, modifierFlag::option));
    EXPECT_EQ(picked(), "notes.txt");
    EXPECT_FALSE(key(WindowSwitcherTool::kTabKeyCode, modifierFlag::option | modifierFlag::shift));
    EXPECT_TRUE(key(0, modifierFlag::option)) << "other keys pass";
    release();
    EXPECT_FALSE(tool.isOpen());
    EXPECT_FALSE(fakes.screens.listPanels[0]->visible);
    ASSERT_FALSE(fakes.accessibility.actions.empty());
    EXPECT_EQ(fakes.accessibility.actions.back(),
              (std::pair<Element, std::string>(inbox, "AXRaise")));

    tool.pressed();
    EXPECT_FALSE(key(KeyCombo::kEscapeKeyCode, modifierFlag::option));
    release();
    EXPECT_EQ(fakes.accessibility.actions.size(), 1u) << "Esc stays";
    EXPECT_FALSE(fakes.screens.listPanels[0]->visible);

    // A click picks a window at once; going elsewhere closes the list like Esc.
    tool.pressed();
    fakes.screens.listPanels[0]->handlers.rowClicked(0);
    EXPECT_FALSE(tool.isOpen());
    EXPECT_EQ(fakes.accessibility.actions.back(),
              (std::pair<Element, std::string>(notes, "AXRaise")));
    tool.pressed();
    fakes.screenCapture.queue.clear();
    fakes.screens.listPanels[0]->handlers.resignedKey();
    EXPECT_FALSE(tool.isOpen());
    EXPECT_EQ(fakes.accessibility.actions.size(), 2u);
    tool.stop();
}

}  // namespace
}  // namespace quorvane
