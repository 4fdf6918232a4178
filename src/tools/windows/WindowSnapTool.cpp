#include "tools/windows/WindowSnapTool.hpp"

#include <array>
#include <string_view>

#include "input/InputServices.hpp"
#include "platform/KeyboardLayout.hpp"
#include "platform/Preferences.hpp"
#include "platform/Screens.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/WindowSnapPlan.hpp"

namespace quorvane {

namespace {

constexpr std::array<std::string_view, 6> kPeerBundleIDs = {
    "com.knollsoft.Rectangle",       "com.knollsoft.Hookshot", "com.crowdcafe.windowmagnet",
    "com.divisiblebyzero.Spectacle", "com.manytricks.Moom",    "com.hegenberg.BetterSnapTool",
};

}  // namespace

WindowSnapTool::WindowSnapTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    load();
    for (const SnapAction action : kAllSnapActions) {
        recorders_[action] = std::make_unique<ShortcutRecorder>(
            platform_.eventMonitors, platform_.input.hotKeys,
            [this, action](const KeyCombo& combo) { setShortcut(action, combo); },
            [this] { publish(); });
    }
}

SnapShortcuts WindowSnapTool::defaults() {
    return SnapDefaults::shortcuts(platform_.keyboardLayout.characters());
}

void WindowSnapTool::load() {
    shortcuts_ = defaults();
    const auto data = platform_.preferences.data(kShortcutsKey);
    if (!data) {
        return;
    }
    const auto json =
        Json::parse(std::string_view(reinterpret_cast<const char*>(data->data()), data->size()));
    if (!json || !json->object()) {
        // Unreadable: the defaults serve, and the stored value stays as it is until the user
        // changes a shortcut.
        return;
    }
    for (const SnapAction action : kAllSnapActions) {
        const Json* stored = json->find(std::string(rawValue(action)));
        if (stored == nullptr) {
            continue;  // an action newer than the stored map keeps its default
        }
        if (stored->isNull()) {
            shortcuts_[action] = std::nullopt;
        } else if (auto combo = KeyCombo::fromJson(*stored)) {
            shortcuts_[action] = std::move(*combo);
        }
    }
}

void WindowSnapTool::save() {
    Json map = Json::emptyObject();
    for (const auto& [action, combo] : shortcuts_) {
        map.set(std::string(rawValue(action)), combo ? combo->toJson() : Json());
    }
    const std::string text = map.serialize();
    platform_.preferences.set(kShortcutsKey, PreferenceValue::Data(text.begin(), text.end()));
}

void WindowSnapTool::start() {
    isActive_ = true;
    reregister();
}

void WindowSnapTool::stop() {
    isActive_ = false;
    for (auto& [action, recorder] : recorders_) {
        recorder->stop();
    }
    hotKeys_.clear();
    conflicts_.clear();
    publish();
}

void WindowSnapTool::setShortcut(SnapAction action, std::optional<KeyCombo> combo) {
    shortcuts_[action] = std::move(combo);
    save();
    if (isActive_) {
        reregister();
    }
    publish();
}

void WindowSnapTool::restoreDefaultShortcuts() {
    shortcuts_ = defaults();
    save();
    if (isActive_) {
        reregister();
    }
    publish();
}

void WindowSnapTool::reregister() {
    // Everything is given back first, so two actions trading shortcuts is no conflict.
    hotKeys_.clear();
    conflicts_.clear();
    for (const SnapAction action : kAllSnapActions) {
        const auto& combo = shortcuts_[action];
        if (!combo) {
            continue;
        }
        if (auto hotKey = platform_.input.hotKeys.registerCombo(
                *combo, [this, action] { perform(action); })) {
            hotKeys_.emplace(action, std::move(*hotKey));
        } else {
            conflicts_.insert(action);
        }
    }
    publish();
}

void WindowSnapTool::perform(SnapAction action) {
    const Element window = windows_.focusedWindow();
    const auto frame = windows_.frame(window);
    if (!frame) {
        platform_.screens.beep();
        return;
    }
    const auto plan = WindowSnapPlan::make(
        action, *frame, DisplayLayout::read(platform_.screens, platform_.displayConfiguration));
    switch (plan.outcome) {
        case WindowSnapPlan::Outcome::beep:
            platform_.screens.beep();
            return;
        case WindowSnapPlan::Outcome::nothing:
            return;
        case WindowSnapPlan::Outcome::apply:
            break;
    }
    std::int32_t status = windows_.setPosition(window, plan.frame.origin);
    if (status == Accessibility::kSuccess) {
        status = windows_.setSize(window, plan.frame.size);
    }
    if (status != Accessibility::kSuccess) {
        platform_.screens.beep();
        setLastError(AccessibleWindows::failure("Couldn't move the window", status));
    } else if (!lastError_.empty()) {
        setLastError({});
    }
}

std::optional<std::string> WindowSnapTool::runningPeerName() {
    const auto running = platform_.workspace.runningApplications();
    for (const std::string_view bundleID : kPeerBundleIDs) {
        for (const auto& app : running) {
            if (app.bundleID == bundleID) {
                return app.name.empty() ? app.bundleID : app.name;
            }
        }
    }
    return std::nullopt;
}

void WindowSnapTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    publish();
}

}  // namespace quorvane
