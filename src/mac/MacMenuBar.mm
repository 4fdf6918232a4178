#include "mac/MacPorts.hpp"

#include <memory>
#include <utility>
#include <variant>

#include "base/Overloaded.hpp"
#include "mac/MacActionTarget.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacMenuPanelView.hpp"
#include "mac/MacObservation.hpp"
#include "mac/MacPanelPageView.hpp"
#include "mac/MacViews.hpp"
#include "ui/PanelContent.hpp"

namespace quorvane {

namespace {

class MacStatusItem final : public StatusItem {
public:
    explicit MacStatusItem(double length)
        : item_([[NSStatusBar systemStatusBar] statusItemWithLength:length]),
          targets_([NSMutableArray array]) {}
    ~MacStatusItem() override { [[NSStatusBar systemStatusBar] removeStatusItem:item_]; }

    bool hasButton() const override { return item_.button != nil; }

    void setImage(const std::string& systemImage,
                  const std::string& accessibilityDescription) override {
        NSStatusBarButton* button = item_.button;
        // unconfirmed: check on a Mac first (+[NSImage imageWithSystemSymbolName:
        // accessibilityDescription:], -setTemplate: and the button's image and title are not
        // in the fact sheet). It gives nil for a symbol this system lacks, hence the text.
        NSImage* image = [NSImage imageWithSystemSymbolName:text(systemImage)
                                   accessibilityDescription:text(accessibilityDescription)];
        if (image) {
            // A template image follows the menu bar's light and dark appearance. (The
            // property is named "template", a C++ keyword, so it is set through its method.)
            [image setTemplate:YES];
            button.image = image;
        } else {
            button.title = text(accessibilityDescription);
        }
    }

    void setAction(std::function<void()> action) override {
        NSStatusBarButton* button = item_.button;
        if (!button) {
            return;
        }
        [targets_ removeAllObjects];
        [QVActionTarget bind:button
                        keep:targets_
                     handler:^(id) {
                       action();
                     }];
    }

    void setTitle(const std::string& title) override {
        // unconfirmed: check on a Mac first (-[NSButton setTitle:] on the status item's
        // button, beside its image, is not in the fact sheet).
        item_.button.title = text(title);
    }

    void setLength(double length) override { item_.length = length; }

    void setAutosaveName(const std::string& name) override {
        // Apple: "Applications with multiple status items should set an autosave name after
        // creating each item"; the name also keeps where the user dragged it with ⌘.
        item_.autosaveName = text(name);
    }

    bool isOnScreen() const override {
        // unconfirmed: check on a Mac first (whether the status bar window's occlusion
        // state turns invisible for an item pushed behind the notch or off the menu bar's
        // end, as it does when a full-screen app hides the menu bar). NSStatusItem's
        // `visible` is false once the user has removed the item.
        NSWindow* window = item_.button.window;
        return item_.visible && window &&
               (window.occlusionState & NSWindowOcclusionStateVisible) != 0;
    }

    Subscription observeOnScreen(std::function<void()> handler) override {
        NSWindow* window = item_.button.window;
        if (!window) {
            return {};
        }
        return observeOnMainQueue([NSNotificationCenter defaultCenter],
                                  NSWindowDidChangeOcclusionStateNotification, window,
                                  [handler = std::move(handler)](NSNotification*) { handler(); });
    }

    NSStatusBarButton* button() const { return item_.button; }

private:
    // The status bar does not retain its items: this reference keeps the item in the menu bar.
    NSStatusItem* item_;
    NSMutableArray* targets_;
};

class MacPopover final : public Popover {
public:
    MacPopover(NSView* content, MenuBar::PopoverBehavior behavior)
        : popover_([[NSPopover alloc] init]) {
        popover_.behavior = static_cast<NSPopoverBehavior>(behavior);
        // unconfirmed: check on a Mac first (NSViewController, -[NSPopover
        // contentViewController], contentSize and shown are not in the fact sheet). A view
        // controller given its view never looks for a nib.
        NSViewController* controller = [[NSViewController alloc] init];
        controller.view = content;
        popover_.contentViewController = controller;
    }
    ~MacPopover() override {
        if (popover_.shown) {
            // unconfirmed: check on a Mac first (-[NSPopover close] is not in the fact sheet).
            // Closes at once, without the animation performClose: plays.
            [popover_ close];
        }
    }

    bool isShown() const override { return popover_.shown; }

    void show(StatusItem& anchor) override {
        auto* item = dynamic_cast<MacStatusItem*>(&anchor);
        NSStatusBarButton* button = item ? item->button() : nil;
        if (!button) {
            return;
        }
        popover_.contentSize = popover_.contentViewController.view.fittingSize;
        // NSRectEdgeMinY (1): in the status bar's unflipped button, below the item.
        [popover_ showRelativeToRect:button.bounds ofView:button preferredEdge:NSRectEdgeMinY];
    }

    void performClose() override { [popover_ performClose:nil]; }

    Subscription observeDidClose(std::function<void()> handler) override {
        return observeOnMainQueue([NSNotificationCenter defaultCenter],
                                  NSPopoverDidCloseNotification, popover_,
                                  [handler = std::move(handler)](NSNotification*) { handler(); });
    }

private:
    NSPopover* popover_;
};

NSView* makeContentView(const PanelContent& content) {
    return std::visit(Overloaded{
                          [](const PanelContent::Page& page) -> NSView* {
                              return [[QVPanelPageView alloc] initWithPage:page];
                          },
                          [](MenuModel* menu) -> NSView* {
                              if (!menu) {
                                  return [[NSView alloc] initWithFrame:NSZeroRect];
                              }
                              return [[QVMenuPanelView alloc] initWithModel:*menu];
                          },
                      },
                      content.kind);
}

// NSStatusBar's items, NSPopover and NSApplication's activation.
// Main thread only.
class MacMenuBar final : public MenuBar {
public:
    std::unique_ptr<StatusItem> makeStatusItem(double length) override {
        return std::make_unique<MacStatusItem>(length);
    }

    std::unique_ptr<Popover> makePopover(const PanelContent& content,
                                         PopoverBehavior behavior) override {
        return std::make_unique<MacPopover>(makeContentView(content), behavior);
    }

    void activateApplication() override { [NSApp activate]; }
};

}  // namespace

std::unique_ptr<MenuBar> makeMacMenuBar() { return std::make_unique<MacMenuBar>(); }

}  // namespace quorvane
