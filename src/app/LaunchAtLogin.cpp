#include "app/LaunchAtLogin.hpp"

#include "platform/LoginItem.hpp"

namespace quorvane {

bool LaunchAtLogin::isOn() const {
    const auto status = item_.status();
    return status == LoginItem::Status::enabled || status == LoginItem::Status::requiresApproval;
}

bool LaunchAtLogin::needsApproval() const {
    return item_.status() == LoginItem::Status::requiresApproval;
}

void LaunchAtLogin::set(bool on) {
    if (on == isOn()) {
        return;
    }
    const std::string error = on ? item_.registerItem() : item_.unregisterItem();
    if (!error.empty()) {
        lastError_ = std::string(on ? "Couldn't turn on" : "Couldn't turn off") +
                     " opening at login: " + error;
    } else if (on && item_.status() == LoginItem::Status::notFound) {
        // Seen when the app runs from outside a proper, signed bundle.
        lastError_ =
            "Couldn't turn on opening at login: macOS can't find Quorvane's login item. Move "
            "Quorvane to the Applications folder, open it from there and try again.";
    } else {
        lastError_.clear();
    }
    publish();
}

void LaunchAtLogin::openLoginItemsSettings() {
    item_.openLoginItemsSettings();
}

SettingsSection LaunchAtLogin::section() {
    SettingsSection section{"Startup", {}, ""};
    section.rows.push_back({SettingsRow::Toggle{kToggleLabel, [this] { return isOn(); },
                                                [this](bool on) { set(on); }, ""},
                            {}});
    section.rows.push_back(
        {SettingsRow::Warning{kApprovalWarning}, [this] { return needsApproval(); }});
    section.rows.push_back(
        {SettingsRow::Button{kApprovalButton, [this] { openLoginItemsSettings(); }},
         [this] { return needsApproval(); }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    return section;
}

}  // namespace quorvane
