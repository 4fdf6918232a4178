#include "tools/keyboard/HomeEndTool.hpp"

#include <algorithm>

#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

const std::vector<HomeEndTool::KnownApp>& HomeEndTool::alwaysLeftAlone() {
    static const std::vector<KnownApp> apps = {
        {"com.apple.Terminal", "Terminal"},
        {"com.googlecode.iterm2", "iTerm"},
        {"dev.warp.Warp-Stable", "Warp"},
        {"net.kovidgoyal.kitty", "kitty"},
        {"org.alacritty", "Alacritty"},
        {"com.github.wez.wezterm", "WezTerm"},
        {"com.mitchellh.ghostty", "Ghostty"},
        {"co.zeit.hyper", "Hyper"},
        {"com.microsoft.rdc.macos", "Windows App (Remote Desktop)"},
        {"com.citrix.receiver.icaviewer.mac", "Citrix Viewer"},
        {"com.vmware.fusion", "VMware Fusion"},
        {"com.parallels.desktop.console", "Parallels Desktop"},
        {"org.virtualbox.app.VirtualBoxVM", "VirtualBox"},
        {"com.utmapp.UTM", "UTM"},
    };
    return apps;
}

HomeEndTool::HomeEndTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    exceptions_ =
        platform_.preferences.stringArray(kExceptionsKey).value_or(std::vector<std::string>{});
}

void HomeEndTool::start() {
    stop();
    if (const auto front = platform_.workspace.frontmostApplication()) {
        frontBundleID_ = front->bundleID;
    }
    activation_ = platform_.workspace.observe(
        WorkspaceNotification::didActivateApplication,
        [this](const RunningApplication* app) { frontBundleID_ = app ? app->bundleID : ""; });
    tap_ = EventTap::create(platform_.events, {EventType::keyDown, EventType::keyUp},
                            [this](EventType type, Event& event) { return handle(type, event); });
    publish();
}

void HomeEndTool::stop() {
    tap_.reset();
    activation_ = {};
    engine_.reset();
    frontBundleID_.clear();
    publish();
}

bool HomeEndTool::leavesAlone(const std::string& bundleID) const {
    const auto& fixed = alwaysLeftAlone();
    return std::any_of(fixed.begin(), fixed.end(),
                       [&](const KnownApp& app) { return app.bundleID == bundleID; }) ||
           std::find(exceptions_.begin(), exceptions_.end(), bundleID) != exceptions_.end();
}

bool HomeEndTool::handle(EventType type, Event& event) {
    const auto keyCode =
        static_cast<std::uint16_t>(event.integerField(eventField::keyboardKeycode));
    if (keyCode != HomeEndEngine::kHome && keyCode != HomeEndEngine::kEnd) {
        return true;  // every other key, without looking up the front app
    }
    const auto outcome =
        engine_.handle(type, keyCode, event.flags(), event.integerField(eventField::sourceUserData),
                       !frontBundleID_.empty() && leavesAlone(frontBundleID_));
    if (outcome.press) {
        post(*outcome.press);
    }
    return outcome.pass;
}

void HomeEndTool::post(const HomeEndEngine::Press& press) {
    for (const bool down : {true, false}) {
        auto event = platform_.events.makeKeyEvent(EventSystem::SourceState::combinedSession,
                                                   press.keyCode, down);
        if (!event) {
            return;
        }
        event->setFlags(press.flags);
        event->setIntegerField(eventField::sourceUserData, ownEventTag::key);
        platform_.events.post(EventSystem::Location::hid, *event);
    }
}

void HomeEndTool::addException(const std::string& bundleID) {
    if (bundleID.empty() ||
        std::find(exceptions_.begin(), exceptions_.end(), bundleID) != exceptions_.end()) {
        return;
    }
    exceptions_.push_back(bundleID);
    saveExceptions();
}

void HomeEndTool::removeException(const std::string& bundleID) {
    std::erase(exceptions_, bundleID);
    saveExceptions();
}

void HomeEndTool::saveExceptions() {
    platform_.preferences.set(kExceptionsKey, PreferenceValue::stringArray(exceptions_));
    publish();
}

}  // namespace quorvane
