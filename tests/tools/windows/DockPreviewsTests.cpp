#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/windows/DockPreviewEngine.hpp"
#include "tools/windows/DockPreviewPlan.hpp"
#include "tools/windows/DockPreviewsTool.hpp"

namespace quorvane {
namespace {

using Step = DockPreviewEngine::Step;
constexpr Seconds kOpen{0.3};

TEST(DockPreviewEngineTest, APreviewWaitsToOpenSwitchesAtOnceAndStaysWhileThePointerIsInIt) {
    DockPreviewEngine engine(kOpen);
    const auto first = engine.hovered("mail");
    EXPECT_EQ(first, (Step{kOpen, "mail"}));
    // Sliding on before the wait is over: the first step is stale.
    const auto second = engine.hovered("notes");
    EXPECT_FALSE(engine.due(*first, false));
    ASSERT_TRUE(engine.due(*second, false));
    EXPECT_EQ(engine.shown(), "notes");
    EXPECT_FALSE(engine.hovered("notes")) << "already shown";
    EXPECT_EQ(engine.hovered("mail"), (Step{Seconds{0}, "mail"})) << "open: the next at once";
    ASSERT_TRUE(engine.due(Step{Seconds{0}, "mail"}, false));

    // Leaving the Dock for the preview: it stays while the pointer is inside, every check.
    const auto leave = engine.hovered("");
    EXPECT_EQ(leave, (Step{DockPreviewEngine::kCloseDelay, ""}));
    EXPECT_FALSE(engine.due(*leave, true));
    EXPECT_EQ(engine.next(), leave);
    EXPECT_TRUE(engine.due(*leave, false));
    EXPECT_EQ(engine.shown(), "");
    EXPECT_FALSE(engine.next());

    engine.hovered("mail");
    engine.closed();  // a window was picked
    EXPECT_FALSE(engine.next());
    EXPECT_EQ(engine.hovered("mail"), (Step{kOpen, "mail"})) << "hovering again reopens";
}

OpenWindows::Window window(int pid, Rect frame, std::string title) {
    return {pid, nullptr, {"", "", std::move(title), frame}};
}

TEST(DockPreviewPlanTest, OnlyTheHoveredAppsWindowsFrontFirstBesideTheIcon) {
    const std::vector<OpenWindows::Window> windows = {
        window(100, {0, 0, 10, 10}, "back"), window(200, {0, 0, 10, 10}, "other app"),
        window(100, {5, 5, 10, 10}, "front"), window(300, {0, 0, 10, 10}, "prefix app"),
        window(100, {9, 9, 10, 10}, "other Space")};
    const auto urlOf = [](int pid) {
        return pid == 100   ? "file:///Applications/Mail.app/"
               : pid == 300 ? "file:///Applications/Mail.app.Helper/"
                            : "file:///Applications/Notes.app/";
    };
    const std::vector<WindowInfo> order = {{2, 100, 0, {5, 5, 10, 10}},
                                           {1, 100, 0, {0, 0, 10, 10}}};
    EXPECT_EQ(
        DockPreviewPlan::windowsToShow("file:///Applications/Mail.app", windows, urlOf, order),
        (std::vector<std::size_t>{2, 0, 4}));
    EXPECT_TRUE(DockPreviewPlan::windowsToShow("", windows, urlOf, order).empty());
    std::vector<OpenWindows::Window> many(12, window(100, {}, "w"));
    EXPECT_EQ(
        DockPreviewPlan::windowsToShow("file:///Applications/Mail.app/", many, urlOf, {}).size(),
        DockPreviewPlan::kMaxWindows);
    EXPECT_EQ(DockPreviewPlan::windowNumber(100, {0, 0, 10, 10}, order), 1u);

    // A bottom Dock: above the icon, centred, but never off the screen's left edge nor over
    // the Dock's own strip.
    const Rect screen{0, 25, 1440, 810};
    const Rect icon{20, 850, 48, 48};
    EXPECT_EQ(DockPreviewPlan::dockEdge(icon, {0, 0, 1440, 900}), DockPreviewPlan::Edge::bottom);
    EXPECT_EQ(DockPreviewPlan::panelFrame(icon, {400, 460}, screen, DockPreviewPlan::Edge::bottom),
              Rect(0, 835 - 460, 400, 460));
    const Rect leftIcon{0, 400, 48, 48};
    EXPECT_EQ(DockPreviewPlan::dockEdge(leftIcon, {0, 0, 1440, 900}), DockPreviewPlan::Edge::left);
    EXPECT_EQ(DockPreviewPlan::panelFrame(leftIcon, {400, 460}, {48, 25, 1392, 875},
                                          DockPreviewPlan::Edge::left),
              Rect(56, 194, 400, 460));
    EXPECT_EQ(DockPreviewPlan::dockEdge({1392, 400, 48, 48}, {0, 0, 1440, 900}),
              DockPreviewPlan::Edge::right);
}

// The Dock (process 50) with Mail's and Notes' icons along the bottom of a 1440×900 laptop.
struct DockPreviewsToolTest : ::testing::Test {
    FakePlatform fakes;
    Element list;
    Element mailIcon;
    Element mailFront;

    void SetUp() override {
        auto& a = fakes.accessibility;
        fakes.workspace.add(100, "com.example.mail", "Mail").bundleURL =
            "file:///Applications/Mail.app";
        fakes.workspace.add(200, "com.example.notes", "Notes").bundleURL =
            "file:///Applications/Notes.app";
        fakes.workspace.add(50, "com.apple.dock", "Dock");
        list = std::make_shared<FakeAccessibility::FakeElement>(50, "list");
        a.attributes[{a.application(50).get(), "AXChildren"}] = std::vector<Element>{list};
        a.attributes[{list.get(), "AXRole"}] = std::string("AXList");
        mailIcon = icon("file:///Applications/Mail.app/", {420, 850, 48, 48});
        a.attributes[{list.get(), "AXChildren"}] = std::vector<Element>{
            mailIcon, icon("file:///Applications/Notes.app/", {470, 850, 48, 48})};
        mailFront = addWindow(100, {100, 100, 600, 400}, "Inbox");
        addWindow(100, {200, 200, 600, 400}, "Draft");
        addWindow(200, {300, 300, 600, 400}, "Shopping");
        fakes.windowList.windows = {{11, 100, 0, {100, 100, 600, 400}},
                                    {12, 200, 0, {300, 300, 600, 400}},
                                    {13, 100, 0, {200, 200, 600, 400}}};
    }
    Element icon(const std::string& url, Rect frame) {
        auto& a = fakes.accessibility;
        const auto element = std::make_shared<FakeAccessibility::FakeElement>(50, "icon");
        a.attributes[{element.get(), "AXPosition"}] = frame.origin;
        a.attributes[{element.get(), "AXSize"}] = frame.size;
        a.attributes[{element.get(), "AXURL"}] = url;
        a.attributes[{element.get(), "AXSubrole"}] = std::string("AXApplicationDockItem");
        return element;
    }
    Element addWindow(int pid, Rect frame, std::string title) {
        auto& a = fakes.accessibility;
        Element made = a.makeWindow(pid, frame);
        a.attributes[{made.get(), "AXSubrole"}] = std::string("AXStandardWindow");
        a.attributes[{made.get(), "AXTitle"}] = std::move(title);
        auto& windows = a.attributes[{a.application(pid).get(), "AXWindows"}];
        if (!std::holds_alternative<std::vector<Element>>(windows)) {
            windows = std::vector<Element>{};
        }
        std::get<std::vector<Element>>(windows).push_back(made);
        return made;
    }
    void hover(std::vector<Element> icons) {
        fakes.accessibility.attributes[{list.get(), "AXSelectedChildren"}] = std::move(icons);
        auto* observer = fakes.accessibility.observerOf(50);
        ASSERT_NE(observer, nullptr);
        observer->callback(list, DockPreviewsTool::kSelectionChanged);
    }
    FakeListPanel& panel() { return *fakes.screens.listPanels.at(0); }
};

TEST_F(DockPreviewsToolTest, HoveringAnIconListsItsWindowsWithPicturesAndAClickRaisesOne) {
    DockPreviewsTool tool(catalogDescriptor("dock-previews"), fakes.platform());
    tool.start();
    ASSERT_TRUE(tool.isWatching());
    const auto& registered = fakes.accessibility.observerOf(50)->registered;
    ASSERT_EQ(registered.size(), 1u);
    EXPECT_EQ(registered[0].second, "AXSelectedChildrenChanged");

    hover({mailIcon});
    fakes.scheduler.advance(Seconds{0.2});
    EXPECT_FALSE(tool.isShowing()) << "not before the wait";
    fakes.scheduler.advance(Seconds{0.1});
    ASSERT_TRUE(tool.isShowing());
    auto rows = panel().rows();
    ASSERT_EQ(rows.size(), 2u) << "Mail's windows only";
    EXPECT_EQ(rows[0].title, "Inbox");
    EXPECT_EQ(rows[1].title, "Draft");
    // Above the icon, in screen coordinates (the panel's frame is flipped back).
    EXPECT_EQ(panel().frame, Rect(444 - 200, 900 - (850 - 8), 400, 460));
    ASSERT_EQ(fakes.screenCapture.captures.size(), 2u);
    EXPECT_EQ(fakes.screenCapture.captures[0].first.id, 11u);
    EXPECT_EQ(fakes.screenCapture.captures[0].second, (Size{56, 37})) << "a 600×400 window";
    fakes.screenCapture.settle();
    EXPECT_TRUE(panel().rows()[0].thumbnail);

    panel().handlers.queryChanged("dra");
    ASSERT_EQ(panel().content.rowCount, 1u);
    panel().handlers.rowClicked(0);
    EXPECT_FALSE(tool.isShowing());
    ASSERT_FALSE(fakes.accessibility.actions.empty());
    EXPECT_EQ(fakes.accessibility.actions.back().second, "AXRaise");
    EXPECT_NE(fakes.accessibility.actions.back().first, mailFront) << "the filtered row: Draft";
    tool.stop();
}

TEST_F(DockPreviewsToolTest, LeavingTheDockClosesThePreviewUnlessThePointerIsInIt) {
    DockPreviewsTool tool(catalogDescriptor("dock-previews"), fakes.platform());
    tool.start();
    hover({mailIcon});
    fakes.scheduler.advance(Seconds{0.3});
    ASSERT_TRUE(tool.isShowing());
    fakes.screens.mouse = {444, 900 - 600};  // inside the preview (screen coordinates)
    hover({});
    fakes.scheduler.advance(Seconds{2});
    EXPECT_TRUE(tool.isShowing());
    fakes.screens.mouse = {1000, 800};
    fakes.scheduler.advance(DockPreviewEngine::kCloseDelay);
    EXPECT_FALSE(tool.isShowing());

    // Turned off while a preview waits to open: nothing opens, nothing is watched.
    hover({mailIcon});
    tool.stop();
    fakes.scheduler.advance(Seconds{1});
    EXPECT_EQ(fakes.accessibility.observerOf(50), nullptr);
    EXPECT_FALSE(tool.isShowing());
}

TEST_F(DockPreviewsToolTest, WithoutTheDockThePageSaysWhyAndItIsFoundAgainWhenItReturns) {
    fakes.workspace.applications.erase(50);
    DockPreviewsTool tool(catalogDescriptor("dock-previews"), fakes.platform());
    tool.start();
    EXPECT_FALSE(tool.isWatching());
    EXPECT_FALSE(tool.lastError().empty());
    fakes.workspace.add(50, "com.apple.dock", "Dock");
    fakes.scheduler.advance(DockPreviewsTool::kDockCheck);
    EXPECT_TRUE(tool.isWatching());
    EXPECT_TRUE(tool.lastError().empty());
}

}  // namespace
}  // namespace quorvane
