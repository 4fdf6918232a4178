#include "app/MenuBarPanel.hpp"

#include <gtest/gtest.h>

#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Calls = std::vector<std::string>;

struct Panel {
    FakePlatform fakes;
    std::unique_ptr<MenuBarPanel> panel = std::make_unique<MenuBarPanel>(
        fakes.menuBar, fakes.eventMonitors, fakes.scheduler,
        PanelContent{PanelContent::Page{[] { return SettingsPage{}; }}});
    int opened = 0;
    int closed = 0;

    Panel() {
        panel->onOpen = [this] {
            ++opened;
            fakes.calls.push_back("onOpen");
        };
        panel->onClose = [this] {
            ++closed;
            fakes.calls.push_back("onClose");
        };
        fakes.calls.clear();
    }

    // A press of this kind in another application, as a global monitor sees it.
    void pressElsewhere(EventType type) {
        FakeEvent event;
        event.eventType = type;
        fakes.eventMonitors.send(event);
    }
    bool monitors() const { return !fakes.eventMonitors.monitors.empty(); }
};

TEST(MenuBarPanel, TwoClicksOpenAndCloseOnceEach) {
    Panel p;
    p.fakes.menuBar.click();
    EXPECT_TRUE(p.panel->isShown());
    EXPECT_EQ(p.fakes.calls, (Calls{"onOpen", "activate", "show popover"}));
    EXPECT_TRUE(p.monitors());

    p.fakes.calls.clear();
    p.fakes.menuBar.click();
    EXPECT_FALSE(p.panel->isShown());
    EXPECT_EQ(p.fakes.calls, (Calls{"close popover", "onClose"}));
    EXPECT_FALSE(p.monitors());
    EXPECT_EQ(p.opened, 1);
    EXPECT_EQ(p.closed, 1);
}

TEST(MenuBarPanel, AClickInAnotherAppClosesItAndRemovesTheMonitor) {
    Panel p;
    p.fakes.menuBar.click();
    p.pressElsewhere(EventType::keyDown);
    EXPECT_TRUE(p.panel->isShown());

    p.pressElsewhere(EventType::otherMouseDown);
    EXPECT_FALSE(p.panel->isShown());
    EXPECT_FALSE(p.monitors());
    EXPECT_EQ(p.closed, 1);

    p.pressElsewhere(EventType::leftMouseDown);
    EXPECT_EQ(p.closed, 1) << "no monitor is left to react";
}

TEST(MenuBarPanel, EveryWayOfClosingRemovesTheMonitorAndCallsBackOnce) {
    Panel p;
    p.fakes.menuBar.click();
    p.fakes.menuBar.popovers.front()->dismiss();  // Escape
    EXPECT_FALSE(p.monitors());

    p.fakes.scheduler.advance(MenuBarPanel::kReopenGuard);
    p.fakes.menuBar.click();
    p.panel->close();
    p.panel->close();
    EXPECT_EQ(p.opened, 2);
    EXPECT_EQ(p.closed, 2);
    EXPECT_FALSE(p.monitors());
}

TEST(MenuBarPanel, AClickOnTheItemThatClosedTheTransientPopoverDoesNotReopenIt) {
    Panel p;
    p.fakes.menuBar.click();
    // The system closes the popover on the mouse-down; the item's action follows on mouse-up.
    p.fakes.menuBar.popovers.front()->dismiss();
    p.fakes.scheduler.advance(Seconds(0.2));
    p.fakes.menuBar.click();
    EXPECT_FALSE(p.panel->isShown());
    EXPECT_EQ(p.opened, 1);

    p.fakes.menuBar.click();
    EXPECT_TRUE(p.panel->isShown()) << "the next click opens it";
    p.fakes.menuBar.click();
    p.fakes.scheduler.advance(Seconds(0.1));
    p.fakes.menuBar.click();
    EXPECT_TRUE(p.panel->isShown()) << "a close asked for here does not swallow the next click";

    p.fakes.menuBar.popovers.front()->dismiss();
    p.fakes.scheduler.advance(MenuBarPanel::kReopenGuard);
    p.fakes.menuBar.click();
    EXPECT_TRUE(p.panel->isShown()) << "a later click is a new one";
}

TEST(MenuBarPanel, DestroyingItWhileShownClosesItRemovesTheItemAndCallsNothing) {
    Panel p;
    p.fakes.menuBar.click();
    p.fakes.calls.clear();
    p.panel.reset();
    EXPECT_EQ(p.fakes.calls, (Calls{"close popover", "remove item"}));
    EXPECT_EQ(p.closed, 0);
    EXPECT_TRUE(p.fakes.menuBar.items.empty());
    EXPECT_FALSE(p.monitors());
}

TEST(MenuBarPanel, AnItemWithoutAButtonNeverOpens) {
    FakePlatform fakes;
    fakes.menuBar.itemsHaveButtons = false;
    MenuBarPanel panel(fakes.menuBar, fakes.eventMonitors, fakes.scheduler,
                       PanelContent{static_cast<MenuModel*>(nullptr)});
    panel.toggle();
    EXPECT_FALSE(panel.isShown());
    EXPECT_TRUE(fakes.eventMonitors.monitors.empty());
}

}  // namespace
}  // namespace quorvane
