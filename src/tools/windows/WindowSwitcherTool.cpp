#include "tools/windows/WindowSwitcherTool.hpp"

#include <algorithm>

#include "app/BringToFront.hpp"
#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"

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
          platform, kShortcutKey, defaultCombo(), [this] { pressed(); }, [this] { publish(); }) {}

void WindowSwitcherTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events, {EventType::keyDown, EventType::flagsChanged},
                            [this](EventType type, Event& event) { return handle(type, event); });
    if (!tap_) {
        setLastError(EventTap::refusedError("watch the keyboard"));
        return;
    }
    shortcut_.activate();
    setLastError({});
    publish();
}

void WindowSwitcherTool::stop() {
    shortcut_.deactivate();
    if (engine_.isOpen()) {
        engine_.cancel();
        platform_.input.hud.hide();
    }
    tap_.reset();
    listed_.clear();
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
    if (!engine_.open(std::move(entries))) {
        platform_.screens.beep();
        return;
    }
    show();
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
        platform_.input.hud.hide();
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
    HUDCard card;
    card.systemImage = kSymbol;
    card.title = engine_.caption();
    platform_.input.hud.show(card, false, kNoticeDuration, true);
}

void WindowSwitcherTool::finish() {
    const auto picked = engine_.commit();
    platform_.input.hud.hide();
    if (!picked || *picked >= listed_.size()) {
        return;
    }
    const auto& window = listed_[*picked];
    // The switch is the user's own doing, so focus guards let it through.
    platform_.input.userActionMark.date = platform_.scheduler.date();
    const std::int32_t status = windows_.raise(window.element);
    bringToFront(platform_.accessibility, platform_.workspace, window.pid);
    setLastError(status == Accessibility::kSuccess
                     ? std::string()
                     : AccessibleWindows::failure("Couldn't bring the window forward", status));
    listed_.clear();
}

void WindowSwitcherTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
