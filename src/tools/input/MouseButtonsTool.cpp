#include "tools/input/MouseButtonsTool.hpp"

#include <algorithm>
#include <optional>

#include "input/KeyPressSynthesizer.hpp"
#include "platform/EventField.hpp"
#include "platform/KeyboardLayout.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

namespace {

// The key that types the character with no modifier on the current layout (the lowest code if
// several do), so ⌘[ is the shortcut apps show in their menus on Dvorak too.
std::optional<std::uint16_t> keyTyping(char16_t character,
                                       const std::map<std::uint16_t, std::u16string>& layout) {
    for (const auto& [code, typed] : layout) {
        if (typed.size() == 1 && typed[0] == character) {
            return code;
        }
    }
    return std::nullopt;
}

}  // namespace

MouseButtonsTool::MouseButtonsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    exceptions_ =
        platform_.preferences.stringArray(kExceptionsKey).value_or(std::vector<std::string>{});
}

void MouseButtonsTool::start() {
    stop();
    const auto layout = platform_.keyboardLayout.characters();
    backKey_ = keyTyping(u'[', layout).value_or(kANSILeftBracket);
    forwardKey_ = keyTyping(u']', layout).value_or(kANSIRightBracket);
    tap_ = EventTap::create(platform_.events, {EventType::otherMouseDown, EventType::otherMouseUp},
                            [this](EventType type, Event& event) { return handle(type, event); });
    activationToken_ = platform_.workspace.observe(WorkspaceNotification::didActivateApplication,
                                                   [this](const RunningApplication* app) {
                                                       if (app) {
                                                           frontBundleID_ = app->bundleID;
                                                       }
                                                   });
    const auto front = platform_.workspace.frontmostApplication();
    frontBundleID_ = front ? front->bundleID : std::string();
    publish();
}

void MouseButtonsTool::stop() {
    tap_.reset();
    activationToken_.cancel();
    engine_.reset();
    frontBundleID_.clear();
    publish();
}

bool MouseButtonsTool::handle(EventType type, Event& event) {
    const auto outcome = engine_.handle(type, event.integerField(eventField::mouseButtonNumber),
                                        isExcepted(frontBundleID_));
    if (outcome.navigate) {
        const bool back = *outcome.navigate == SideButtonEngine::Navigation::back;
        KeyPressSynthesizer::press(platform_.events, back ? backKey_ : forwardKey_,
                                   modifierFlag::command, ownEventTag::key);
    }
    return outcome.pass;
}

bool MouseButtonsTool::isExcepted(const std::string& bundleID) const {
    return !bundleID.empty() &&
           std::find(exceptions_.begin(), exceptions_.end(), bundleID) != exceptions_.end();
}

void MouseButtonsTool::addException(const std::string& bundleID) {
    if (bundleID.empty() || isExcepted(bundleID)) {
        return;
    }
    exceptions_.push_back(bundleID);
    platform_.preferences.set(kExceptionsKey, PreferenceValue::stringArray(exceptions_));
    publish();
}

void MouseButtonsTool::removeException(const std::string& bundleID) {
    std::erase(exceptions_, bundleID);
    platform_.preferences.set(kExceptionsKey, PreferenceValue::stringArray(exceptions_));
    publish();
}

}  // namespace quorvane
