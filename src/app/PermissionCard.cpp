#include "app/PermissionCard.hpp"

#include "app/PermissionCenter.hpp"

namespace quorvane {

PermissionCard PermissionCard::make(Permission permission, const PermissionCenter& center) {
    PermissionCard card{permission,
                        std::string(quorvane::title(permission)),
                        std::string(quorvane::explanation(permission)),
                        State::untestable,
                        "",
                        ColorRole::secondaryLabel,
                        {},
                        {}};
    switch (permission) {
        case Permission::accessibility:
            card.state = center.accessibilityGranted() ? State::granted : State::missing;
            break;
        case Permission::screenRecording:
            card.state = center.screenRecordingGranted() ? State::granted : State::missing;
            break;
        case Permission::systemAudioRecording:
            card.state = State::untestable;
            break;
    }
    switch (card.state) {
        case State::granted:
            card.stateIcon = "checkmark.circle.fill";
            card.stateColor = ColorRole::green;
            break;
        case State::missing:
            card.stateIcon = "exclamationmark.circle.fill";
            card.stateColor = ColorRole::orange;
            break;
        case State::untestable:
            card.stateIcon = "questionmark.circle";
            // Nothing to check: neither good nor bad news.
            card.stateColor = ColorRole::secondaryLabel;
            break;
    }

    card.steps = {"1. Click **Open System Settings**.",
                  "2. Turn on the switch next to **Quorvane**."};
    card.buttons = {{"Open System Settings", Action::openSystemSettings}};
    if (permission == Permission::screenRecording) {
        // macOS only applies a screen-recording grant to a process started after it.
        card.steps.emplace_back("3. Come back and click **Restart Quorvane**.");
        card.buttons.push_back({"Restart Quorvane", Action::restartQuorvane});
    } else {
        card.steps.emplace_back("3. Come back. The tools start by themselves, no restart needed.");
    }
    return card;
}

}  // namespace quorvane
