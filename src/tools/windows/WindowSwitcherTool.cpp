#include "tools/windows/WindowSwitcherTool.hpp"

#include <algorithm>

#include "app/BringToFront.hpp"
#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

namespace {

KeyCombo defaultCombo() {
    KeyCombo combo;
    combo.keyCode = WindowSwitcherTool::kTabKeyCode;
    combo.modifierFlags = modifierFlag::option;
    combo.keyLabel = "⇥";
    return combo;
}

}  // namespace

WindowSwitcherTool::WindowSwitcherTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      windows_(platform.accessibility),
      shortcut_(
          platform, kShortcutKey, defaultCombo(), [this] { pressed(); }, [this] { publish(); }),
      pictures_(platform.screenCapture) {}

void WindowSwitcherTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events, {EventType::keyDown, EventType::flagsChanged},
                            [this](EventType type, Event& event) { return handle(type, event); });
    if (!tap_) {
        setLastError(EventTap::refusedError("watch the keyboard"));
        return;
    }
    ListPanel::Handlers handlers;
    handlers.row = [this](std::size_t index) {
        ListPanelRow drawn;
        if (index < listed_.size()) {
            const WindowRecord& record = listed_[index].record;
            drawn.title = record.title.empty() ? "Untitled window" : record.title;
            drawn.symbol = "macwindow";
            drawn.thumbnail = pictures_.at(index);
            drawn.app = record.bundleID;
            drawn.isSelected = index == engine_.selected();
        }
        return drawn;
    };
    handlers.rowClicked = [this](std::size_t index) {
        if (engine_.isOpen() && index < listed_.size()) {
            engine_.step(static_cast<int>(index) - static_cast<int>(engine_.selected()));
            finish();
        }
    };
    // Going elsewhere while the list is up is a change of mind, like Esc.
    handlers.resignedKey = [this] {
        if (engine_.isOpen()) {
            engine_.cancel();
            close();
        }
    };
    panel_ = platform_.screens.makeListPanel(std::move(handlers));
    shortcut_.activate();
    setLastError({});
    publish();
}

void WindowSwitcherTool::stop() {
    shortcut_.deactivate();
    if (engine_.isOpen()) {
        engine_.cancel();
    }
    close();
    panel_.reset();
    tap_.reset();
    publish();
}

void WindowSwitcherTool::pressed() {
    if (engine_.isOpen()) {
        engine_.step(1);
        show();
        return;
    }
    OpenWindows open(platform_.workspace, windows_);
    listed_ = open.list();
    // The window server knows the front-to-back order; accessibility only lists by app.
    const auto order = platform_.windowList.onScreenWindows();
    const auto rank = [&](const OpenWindows::Window& window) {
        for (std::size_t i = 0; i < order.size(); ++i) {
            if (order[i].pid == window.pid && order[i].bounds == window.record.frame) {
                return i;
            }
        }
        return order.size();
    };
    std::stable_sort(listed_.begin(), listed_.end(),
                     [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
    std::vector<WindowSwitcherEngine::Entry> entries;
    for (const auto& window : listed_) {
        entries.push_back({window.record.appName, window.record.title});
    }
    if (!engine_.open(std::move(entries)) || !panel_) {
        platform_.screens.beep();
        return;
    }
    show();
    const auto layout = DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    if (layout.count() > 0) {
        // In the middle of the main display, where ⌘⇥ shows its apps.
        const Rect area = layout.visibleArea(0);
        const Rect frame{{area.midX() - ListPanelContent::kWidth / 2,
                          area.midY() - ListPanelContent::kHeight / 2},
                         {ListPanelContent::kWidth, ListPanelContent::kHeight}};
        // Flipping is its own inverse, so the same conversion takes the frame to the screen.
        panel_->show(layout.toAccessibility(frame));
    }
    pictures_.take(listed_, order, kPicturePixels, [this](std::size_t) { show(); });
}

bool WindowSwitcherTool::handle(EventType type, Event& event) {
    if (!engine_.isOpen()) {
        return true;
    }
    const auto held = event.flags() & modifierFlag::mask;
    const auto needed =
        shortcut_.shortcut() ? shortcut_.shortcut()->modifierFlags : modifierFlag::option;
    if (type == EventType::flagsChanged) {
        if ((held & needed & ~modifierFlag::shift) == 0) {
            finish();
        }
        return true;
    }
    const auto keyCode = event.integerField(eventField::keyboardKeycode);
    if (keyCode == KeyCombo::kEscapeKeyCode) {
        engine_.cancel();
        close();
        return false;
    }
    if (keyCode == kTabKeyCode) {
        engine_.step((held & modifierFlag::shift) != 0 ? -1 : 1);
        show();
        return false;
    }
    return true;
}

void WindowSwitcherTool::show() {
    if (!panel_) {
        return;
    }
    ListPanelContent content;
    content.placeholder = "Windows";
    content.rowCount = listed_.size();
    content.selection = engine_.selected();
    content.footer = engine_.caption();
    content.error = lastError_;
    panel_->setContent(content);
}

void WindowSwitcherTool::close() {
    pictures_.clear();
    listed_.clear();
    if (panel_ && panel_->isVisible()) {
        panel_->close();
    }
}

void WindowSwitcherTool::finish() {
    const auto picked = engine_.commit();
    if (!picked || *picked >= listed_.size()) {
        close();
        return;
    }
    const OpenWindows::Window window = listed_[*picked];
    close();
    // The switch is the user's own doing, so focus guards let it through.
    platform_.input.userActionMark.date = platform_.scheduler.date();
    const std::int32_t status = windows_.raise(window.element);
    bringToFront(platform_.accessibility, platform_.workspace, window.pid);
    setLastError(status == Accessibility::kSuccess
                     ? std::string()
                     : AccessibleWindows::failure("Couldn't bring the window forward", status));
}

void WindowSwitcherTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
